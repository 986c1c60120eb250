# Language level, warnings, sanitizers and hardening, for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# Optimised, with assertions: tests and sanitizers see what ships, and a fault still stops the run.
set(CMAKE_CXX_FLAGS_DEV "-O2 -g1")

# As Debian builds. GCC 12 sees overlapping copies at -O3 where there are none, and -Werror stops there.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # Paths are relative in what is compiled, so that all clones on a machine share the cache.
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_NOHASHDIR=1 CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} ${CCACHE_PROGRAM})
endif()

# Debug information and assertions name files relative to the project, whoever builds it.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)

add_library(quillseal_options INTERFACE)
target_include_directories(quillseal_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quillseal_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

if(QUILLSEAL_SANITIZERS)
  add_compile_options(-fsanitize=${QUILLSEAL_SANITIZERS} -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${QUILLSEAL_SANITIZERS})
  # Also detects accesses outside a vector's or span's bounds but inside its memory.
  add_compile_definitions(_GLIBCXX_ASSERTIONS)
  if(QUILLSEAL_SANITIZERS MATCHES "undefined")
    add_compile_options(-fno-sanitize-recover=undefined)
  endif()
endif()

if(QUILLSEAL_FUZZERS)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT QUILLSEAL_SANITIZERS)
  include(CheckPIESupported)
  check_pie_supported()
  add_compile_options(-fstack-protector-strong)
  if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    add_compile_options(-U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3)
    add_link_options(-Wl,-z,relro,-z,now)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
      add_compile_options(-fcf-protection)
    endif()
  endif()
endif()

# One test program from its sources; each suite of a file *Test.cpp or *Test.mm is a CTest entry of its own, "NAME.FILE.SUITE".
#   quillseal_add_test(NAME SOURCES... [LIBRARIES...] [CASES...] [EXCEPT FILTER] [PROPERTIES...])
# CASES are files that core/Tests/Cases.h reads; EXCEPT names the tests to leave out, as --gtest_filter does; PROPERTIES are those of every entry.
function(quillseal_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "EXCEPT" "SOURCES;LIBRARIES;CASES;PROPERTIES")
  find_package(GTest REQUIRED)
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE quillseal_options ${ARG_LIBRARIES} GTest::gmock GTest::gtest_main)
  if(ARG_CASES)
    list(TRANSFORM ARG_CASES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    list(JOIN ARG_CASES ":" files)
    target_link_libraries(${name} PRIVATE quillseal_test_cases)
    target_compile_definitions(${name} PRIVATE QUILLSEAL_CASES="${files}")
  endif()
  list(FILTER ARG_SOURCES INCLUDE REGEX "Test\\.(cpp|mm)$")
  foreach(source ${ARG_SOURCES})
    # A suite may be new.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    file(STRINGS ${source} suites REGEX "^TEST(_F|_P)?\\(")
    # A suite with parameters has a prefix.
    list(TRANSFORM suites REPLACE "^TEST_P\\(([A-Za-z0-9]+),.*" "*/\\1")
    list(TRANSFORM suites REPLACE "^TEST[^(]*\\(([A-Za-z0-9]+),.*" "\\1")
    list(REMOVE_DUPLICATES suites)
    if(NOT suites)
      message(FATAL_ERROR "${source} holds no test.")
    endif()
    get_filename_component(file ${source} NAME_WE)
    foreach(suite ${suites})
      # The same in both names, unless the file has several.
      string(REPLACE "*/" "" test ${name}.${file}.${suite})
      string(REPLACE ".${file}.${file}" ".${file}" test ${test})
      add_test(NAME ${test} COMMAND ${name} --gtest_brief --gtest_filter=${suite}.*-${ARG_EXCEPT})
      if(ARG_PROPERTIES)
        set_tests_properties(${test} PROPERTIES ${ARG_PROPERTIES})
      endif()
    endforeach()
  endforeach()
endfunction()

# Installs a manual page or the like as Debian wants it.
function(quillseal_install_compressed file folder)
  get_filename_component(name ${file} NAME)
  set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
  add_custom_command(OUTPUT ${compressed}
    COMMAND gzip -9nc ${file} > ${compressed}
    DEPENDS ${file}
    VERBATIM)
  add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION ${folder})
endfunction()
