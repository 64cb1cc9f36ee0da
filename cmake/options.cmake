# What every target of ours is compiled with. GoogleTest is not ours and does not link this.
add_library(project_options INTERFACE)
target_include_directories(project_options INTERFACE ${CMAKE_SOURCE_DIR})
# GCC 12 sees overlapping copies in std::string where there are none (GCC bug 105329).
target_compile_options(project_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(WIN32)
  # The oldest Windows that GDI scaling (the manifest) knows is 10; the calls themselves go back to 7.
  target_compile_definitions(project_options INTERFACE WINVER=0x0601 _WIN32_WINNT=0x0601 WIN32_LEAN_AND_MEAN NOMINMAX)
  # No time of linking in the files: the same sources make the same bytes (tools/check_reproducible).
  add_link_options(-static -s -Wl,--no-insert-timestamp)
endif()
if(TIMES_READINGS_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(TIMES_READINGS_FUZZ)
  # Every core is built for the fuzzer, so that it sees which branches an input takes.
  set(fuzz_sanitizers address,undefined,float-cast-overflow)
  add_compile_options(-fsanitize=fuzzer-no-link,${fuzz_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${fuzz_sanitizers})
endif()
