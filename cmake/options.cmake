# What every target of ours is compiled with. GoogleTest is not ours and does not link this.
add_library(project_options INTERFACE)
target_include_directories(project_options INTERFACE ${CMAKE_SOURCE_DIR})
# GCC 12 sees overlapping copies in std::string where there are none (GCC bug 105329).
target_compile_options(project_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(WIN32)
  # The oldest Windows that GDI scaling (the manifest) knows is 10; the calls themselves go back to 7.
  target_compile_definitions(project_options INTERFACE WINVER=0x0601 _WIN32_WINNT=0x0601 WIN32_LEAN_AND_MEAN NOMINMAX)
  # Functions with arrays check that nothing was written past them; copies of the C headers, that they fit. These need an
  # optimising build. libraries/terminate has what both call, where a target does not link it, GCC's libssp.
  target_compile_options(project_options INTERFACE
    $<$<COMPILE_LANGUAGE:C,CXX>:-fstack-protector-strong>
    $<$<AND:$<COMPILE_LANGUAGE:C,CXX>,$<NOT:$<CONFIG:Debug>>>:-D_FORTIFY_SOURCE=2>)
  # Functions and lines for the symbols; folders are named from the top of the sources, wherever these are. The second
  # form of the top is what a compiler cache makes of the first.
  target_compile_options(project_options INTERFACE
    $<$<COMPILE_LANGUAGE:C,CXX>:-g1>
    $<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=>
    $<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=../../=>
    $<$<COMPILE_LANGUAGE:C,CXX>:-ffile-prefix-map=${CMAKE_BINARY_DIR}=.>)
  # No time of linking in the files: the same sources make the same bytes (tools/check_reproducible). Loaded at any
  # address, also far above 4 GB, with data that are never code.
  add_link_options(-static -fstack-protector-strong
    -Wl,--no-insert-timestamp,--dynamicbase,--high-entropy-va,--nxcompat
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:SYMBOLS_APART>>>:-s>)
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
