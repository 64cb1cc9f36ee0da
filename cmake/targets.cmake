# The kinds of target that the tree is made of.

# A portable core: standard library only, built natively and for Windows, tested by core_tests.
function(add_core name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PRIVATE project_options)
  set_property(GLOBAL APPEND PROPERTY TIMES_READINGS_CORES ${name})
endfunction()

# TARGET's FILE is laid into the program folder without its symbols; these stand in a file of their own, which goes with
# exactly this build of it.
function(lay_into_program_folder target file)
  set(symbols ${SYMBOLS_FOLDER}/${file}.debug)
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROGRAM_FOLDER} SYMBOLS_APART ON)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E make_directory ${SYMBOLS_FOLDER}
    COMMAND ${CMAKE_OBJCOPY} --preserve-dates --only-keep-debug ${PROGRAM_FOLDER}/${file} ${symbols}
    COMMAND ${CMAKE_STRIP} --preserve-dates ${PROGRAM_FOLDER}/${file}
    BYPRODUCTS ${symbols} VERBATIM)
endfunction()

# A companion library: <name>_dll.cpp and <name>.def of the folder at hand, laid into the program folder as FILE.
# DESCRIPTION is its one line in Explorer. LIBRARIES are what it links, its own core first; SOURCES are further Win32
# files of its own. The def file's LIBRARY line must spell FILE's name.
function(add_companion_library name)
  cmake_parse_arguments(ARG "" "FILE;DESCRIPTION" "LIBRARIES;SOURCES" ${ARGN})
  get_filename_component(stem ${ARG_FILE} NAME_WLE)
  get_filename_component(suffix ${ARG_FILE} LAST_EXT)
  configure_file(${CMAKE_SOURCE_DIR}/cmake/version.rc.in ${CMAKE_CURRENT_BINARY_DIR}/version.rc @ONLY)
  add_library(${name} SHARED ${name}_dll.cpp ${name}.def ${CMAKE_CURRENT_BINARY_DIR}/version.rc ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE project_options ${ARG_LIBRARIES} terminate)
  set_target_properties(${name} PROPERTIES PREFIX "" OUTPUT_NAME ${stem} SUFFIX ${suffix})
  lay_into_program_folder(${name} ${ARG_FILE})
  set_property(GLOBAL APPEND PROPERTY TIMES_READINGS_COMPANIONS ${name})
endfunction()

# A GoogleTest program that ctest runs whole (in Wine for Windows: starting Wine once per case would cost minutes).
function(add_test_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE project_options ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name})
endfunction()
