# How every target of Norvex is made: one library a folder, one test program a tests/ folder.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  foreach(lang C CXX)
    set(CMAKE_${lang}_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${CCACHE_PROGRAM})
  endforeach()
endif()

add_library(norvex_flags INTERFACE)
target_compile_options(norvex_flags INTERFACE
  -Wall -Wextra -Wshadow -Wold-style-cast -Wnon-virtual-dtor -Wpedantic
  $<$<BOOL:${NORVEX_WERROR}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  target_compile_options(norvex_flags INTERFACE -fpch-preprocess)  # what ccache asks for
endif()
target_compile_definitions(norvex_flags INTERFACE
  NORVEX_VERSION="${PROJECT_VERSION}" QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
target_compile_options(norvex_flags INTERFACE -pthread)  # some libraries ask for it; one precompiled header serves all
if(NORVEX_SANITIZE)
  target_compile_options(norvex_flags INTERFACE
    -fsanitize=${NORVEX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(norvex_flags INTERFACE -fsanitize=${NORVEX_SANITIZE})
endif()
if(NORVEX_COVERAGE)
  target_compile_options(norvex_flags INTERFACE --coverage)
  target_link_options(norvex_flags INTERFACE --coverage)
endif()

# The code under test is optimised, the tests are not: they compile in half the time.
# What changes a macro that Qt's test header reads is the same for all of them: their precompiled header serves nobody else.
set(NORVEX_TEST_OPTIONS $<$<CONFIG:Release>:-O0> -UQT_NETWORK_LIB)

# One precompiled header for all folders and one for each kind of tests (tests/CMakeLists.txt): each takes longer to make than
# most sources.
# Sources include what they need all the same; a build without precompiled headers shows it.
set(NORVEX_PCH <algorithm> <functional> <memory> <optional> <vector>
    <QByteArray> <QHash> <QList> <QRectF> <QString> <QVariant>)
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/pch/folder.cpp CONTENT "")
add_library(norvex_pch STATIC ${CMAKE_BINARY_DIR}/pch/folder.cpp)
target_link_libraries(norvex_pch PRIVATE norvex_flags Qt6::Core)
target_precompile_headers(norvex_pch PRIVATE ${NORVEX_PCH})
# norvex_folder(FOLDER NEEDS folder… LINK lib…): every .cpp directly in src/FOLDER becomes the static library
# norvex_FOLDER (slashes as underscores). Its headers are in sight, by their paths from src/, of itself and of those who
# link it, and of nobody else: an include against the arrows does not compile.
function(norvex_folder folder)
  cmake_parse_arguments(ARG "" "" "NEEDS;LINK" ${ARGN})
  string(REPLACE "/" "_" name norvex_${folder})
  set(source ${PROJECT_SOURCE_DIR}/src/${folder})
  file(GLOB sources CONFIGURE_DEPENDS ${source}/*.cpp ${source}/*.h)
  file(GLOB headers CONFIGURE_DEPENDS ${source}/*.h)
  set(room ${CMAKE_BINARY_DIR}/rooms/${name})
  file(REMOVE_RECURSE ${room})
  file(MAKE_DIRECTORY ${room}/${folder})
  foreach(header ${headers})
    get_filename_component(base ${header} NAME)
    file(CREATE_LINK ${header} ${room}/${folder}/${base} SYMBOLIC)
  endforeach()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC ${room})
  list(TRANSFORM ARG_NEEDS PREPEND norvex_)
  list(TRANSFORM ARG_NEEDS REPLACE "/" "_")
  target_link_libraries(${name} PUBLIC norvex_flags ${ARG_NEEDS} ${ARG_LINK})
  target_precompile_headers(${name} REUSE_FROM norvex_pch)
  if(NORVEX_HEADERS_ALONE)
    norvex_headers_alone(${folder} ${name} ${headers})
  endif()
endfunction()

# norvex_headers_alone(FOLDER LIBRARY header…): each header that no source of its own name includes first is compiled
# by itself, with what its folder sees.
function(norvex_headers_alone folder library)
  set(sources)
  foreach(header ${ARGN})
    get_filename_component(stem ${header} NAME_WE)
    get_filename_component(place ${header} DIRECTORY)
    if(NOT EXISTS ${place}/${stem}.cpp)
      set(source ${CMAKE_BINARY_DIR}/headers/${folder}/${stem}.cpp)
      file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${folder}/${stem}.h\"\n")
      list(APPEND sources ${source})
    endif()
  endforeach()
  if(sources)
    add_library(${library}_headers OBJECT ${sources})
    target_link_libraries(${library}_headers PRIVATE ${library})
    set_target_properties(${library}_headers PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
  endif()
endfunction()

# norvex_folders(TABLE): a library for each line "FOLDER | folders that it may include | other libraries".
function(norvex_folders table)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
  file(STRINGS ${table} lines)
  foreach(line ${lines})
    if(line MATCHES "^#" OR NOT line MATCHES "^([^|]+)[|]([^|]*)[|](.*)$")
      continue()
    endif()
    string(STRIP "${CMAKE_MATCH_1}" folder)
    separate_arguments(needs UNIX_COMMAND "${CMAKE_MATCH_2}")
    separate_arguments(libraries UNIX_COMMAND "${CMAKE_MATCH_3}")
    norvex_folder(${folder} NEEDS ${needs} LINK ${libraries})
  endforeach()
endfunction()

# norvex_tests_header(KIND lib…): the precompiled header of all tests that see Qt's libraries up to KIND.
function(norvex_tests_header kind)
  set(name norvex_${kind}_test_pch)
  add_executable(${name} ${CMAKE_CURRENT_BINARY_DIR}/pch.cpp)
  target_link_libraries(${name} PRIVATE norvex_flags Qt6::Test ${ARGN})
  target_compile_options(${name} PRIVATE ${NORVEX_TEST_OPTIONS})
  target_precompile_headers(${name} PRIVATE ${NORVEX_PCH} <QtTest>)
endfunction()

# norvex_tests(FOLDER APP core|gui|widgets [HEADER core|gui|widgets] LINK lib…): tests/FOLDER/*_test.cpp become the
# program FOLDER_tests; each file is a ctest case of its own, so a hang or a crash names its file. HEADER is the
# precompiled header where what it links sees more of Qt than its application object is made of.
function(norvex_tests folder)
  cmake_parse_arguments(ARG "" "APP;HEADER" "LINK" ${ARGN})
  if(NOT ARG_HEADER)
    set(ARG_HEADER ${ARG_APP})
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp
       ${PROJECT_SOURCE_DIR}/tests/${folder}/*.h)
  file(GLOB cases CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*_test.cpp)
  if(NOT cases)
    return()
  endif()
  string(REPLACE "/" "_" target ${folder})
  add_executable(${target}_tests ${sources} ${PROJECT_SOURCE_DIR}/tests/kit/test_main.cpp)
  target_link_libraries(${target}_tests PRIVATE ${ARG_LINK} Qt6::Test)
  if(ARG_APP STREQUAL "widgets")
    target_link_libraries(${target}_tests PRIVATE Qt6::Widgets)
    target_compile_definitions(${target}_tests PRIVATE NORVEX_TEST_APP_WIDGETS)
  elseif(ARG_APP STREQUAL "gui")
    target_link_libraries(${target}_tests PRIVATE Qt6::Gui)
    target_compile_definitions(${target}_tests PRIVATE NORVEX_TEST_APP_GUI)
  endif()
  target_include_directories(${target}_tests PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${target}_tests PRIVATE
    NORVEX_SOURCE_DIR="${PROJECT_SOURCE_DIR}" NORVEX_BUILD_DIR="${CMAKE_BINARY_DIR}")
  target_compile_options(${target}_tests PRIVATE ${NORVEX_TEST_OPTIONS})
  target_precompile_headers(${target}_tests REUSE_FROM norvex_${ARG_HEADER}_test_pch)
  set(timeout 300)
  if(folder MATCHES "^system" OR NORVEX_SANITIZE)
    set(timeout 1200)  # whole programs over real files, or every access watched, on whatever machine this is
  endif()
  # Qt Test ends a case of its own accord after five minutes in one function: the limit above is the one that is meant.
  foreach(case ${cases})
    get_filename_component(stem ${case} NAME_WE)
    add_test(NAME ${folder}/${stem} COMMAND ${target}_tests --case ${stem})
    set_tests_properties(${folder}/${stem} PROPERTIES
      TIMEOUT ${timeout} ENVIRONMENT
      "QT_QPA_PLATFORM=offscreen;TZ=UTC;QT_LOGGING_RULES=qt.qpa.*=false;QTEST_FUNCTION_TIMEOUT=${timeout}000")
  endforeach()
endfunction()
