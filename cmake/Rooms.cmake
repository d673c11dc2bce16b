# One leaf folder under src/ is one room is one static library. The rooms a room may include are
# the ones it names here; script/check-rooms holds the includes against the same table.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} ${CCACHE_PROGRAM})
endif()

add_library(skeldon_options INTERFACE)
target_compile_options(skeldon_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# Nobody asks the math functions for errno, and a square root is an instruction without it.
target_compile_options(skeldon_options INTERFACE -fno-math-errno)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # A literal joined to a std::string looks to GCC 12 like a copy onto itself, out of bounds or too
  # long. The build with Clang keeps these warnings.
  target_compile_options(skeldon_options INTERFACE
    -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CCACHE_PROGRAM)
  # A precompiled header that carries its time stamp can not be cached.
  target_compile_options(skeldon_options INTERFACE "SHELL:-Xclang -fno-pch-timestamp")
endif()
if(SKELDON_SANITIZE)
  target_compile_options(skeldon_options INTERFACE
    -fsanitize=${SKELDON_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(skeldon_options INTERFACE -fsanitize=${SKELDON_SANITIZE})
endif()
if(SKELDON_FUZZ)
  target_compile_options(skeldon_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(skeldon_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# skeldon_room(<target> [ROOMS other targets] [LIBS private libraries]): all sources of the calling
# folder but Main.cpp.
function(skeldon_room target)
  cmake_parse_arguments(ARG "" "" "ROOMS;LIBS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h platform/*.cpp platform/*.h)
  list(FILTER sources EXCLUDE REGEX "/Main\\.cpp$")
  add_library(${target} STATIC ${sources})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${target} PUBLIC ${ARG_ROOMS} PRIVATE skeldon_options ${ARG_LIBS})
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()

# skeldon_program(<name> <room> [LIBS libraries]): Main.cpp of the calling folder on top of the room.
function(skeldon_program name room)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  add_executable(${name} Main.cpp)
  target_link_libraries(${name} PRIVATE skeldon_options ${room} ${ARG_LIBS})
  install(TARGETS ${name} RUNTIME)
endfunction()

# What is run under the thread sanitizer.
add_custom_target(thread_tests)

# skeldon_test(<name> [LIBS targets] [EXCEPT files]): every *.cpp of the calling folder is one
# GoogleTest program, registered with CTest under the folder's name.
function(skeldon_test name)
  cmake_parse_arguments(ARG "" "" "LIBS;EXCEPT;LABELS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  foreach(file ${ARG_EXCEPT})
    list(REMOVE_ITEM sources ${CMAKE_CURRENT_SOURCE_DIR}/${file})
  endforeach()
  set(target test_${name})
  add_executable(${target} ${sources})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${target} PRIVATE skeldon_options ${ARG_LIBS} GTest::gmock GTest::gtest_main)
  target_precompile_headers(${target} PRIVATE <gmock/gmock.h> <gtest/gtest.h> <string> <vector>)
  add_test(NAME ${name} COMMAND ${target})
  if("threads" IN_LIST ARG_LABELS)
    add_dependencies(thread_tests ${target})
  endif()
  # Nothing a test does may reach the home of whoever runs it.
  set_tests_properties(${name} PROPERTIES
    TIMEOUT 600 LABELS "${ARG_LABELS}"
    ENVIRONMENT "HOME=${PROJECT_BINARY_DIR}/testhome;XDG_DATA_HOME=${PROJECT_BINARY_DIR}/testhome/data;TZ=Europe/Berlin;LC_ALL=C.UTF-8")
endfunction()

# --- rooms with the toolkit ---

# One precompiled header for all of them.
function(skeldon_qt_precompiled)
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/QtHeaders.cpp "")
  add_library(skeldon_qt_headers STATIC ${CMAKE_CURRENT_BINARY_DIR}/QtHeaders.cpp)
  target_link_libraries(skeldon_qt_headers PRIVATE skeldon_options Qt6::Widgets)
  target_precompile_headers(skeldon_qt_headers PRIVATE <QtWidgets> <memory> <string> <vector>)
endfunction()

# skeldon_qt_room(<target> [ROOMS other targets] [LIBS private libraries]): as `skeldon_room`.
function(skeldon_qt_room target)
  cmake_parse_arguments(ARG "" "" "ROOMS;LIBS" ${ARGN})
  skeldon_room(${target} ROOMS ${ARG_ROOMS} Qt6::Widgets LIBS ${ARG_LIBS})
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  target_precompile_headers(${target} REUSE_FROM skeldon_qt_headers)
endfunction()

# skeldon_qt_program(<name> <room>): Main.cpp of the calling folder on top of the room.
function(skeldon_qt_program name room)
  add_executable(${name} Main.cpp)
  target_link_libraries(${name} PRIVATE skeldon_options ${room})
  target_precompile_headers(${name} REUSE_FROM skeldon_qt_headers)
  install(TARGETS ${name} RUNTIME)
endfunction()

# skeldon_window_test(<name> LIBS targets): every *Test.cpp of the calling folder holds one Qt Test
# class and is one program, registered with CTest as <name>_<file>; run without a screen. What else
# lies in the folder is common to them.
function(skeldon_window_test name)
  cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  set(tests ${sources})
  list(FILTER tests INCLUDE REGEX "Test\\.cpp$")
  list(REMOVE_ITEM sources ${tests})
  set(common)
  if(sources)
    set(common window_test_${name}_common)
    add_library(${common} STATIC ${sources})
    target_include_directories(${common} PUBLIC ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${common} PUBLIC ${ARG_LIBS} Qt6::Test PRIVATE skeldon_options)
    set_target_properties(${common} PROPERTIES AUTOMOC ON)
  endif()
  foreach(file ${tests})
    get_filename_component(title ${file} NAME_WE)
    set(target test_${name}_${title})
    add_executable(${target} ${file})
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${target} PRIVATE skeldon_options ${common} ${ARG_LIBS} Qt6::Test)
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_precompile_headers(${target} REUSE_FROM skeldon_qt_headers)
    add_test(NAME ${name}_${title} COMMAND ${target})
    set_tests_properties(${name}_${title} PROPERTIES
      TIMEOUT 600
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FORCE_STDERR_LOGGING=1;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/leaks-of-libraries.txt:print_suppressions=0;HOME=${PROJECT_BINARY_DIR}/testhome;XDG_CONFIG_HOME=${PROJECT_BINARY_DIR}/testhome/config;XDG_DATA_HOME=${PROJECT_BINARY_DIR}/testhome/data;TZ=Europe/Berlin;LC_ALL=C.UTF-8")
  endforeach()
endfunction()
