# A room is one static library that sees the headers of the rooms it names and of no others.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env
      CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
      "${CCACHE_PROGRAM}")
endif()

add_library(glaceron_options INTERFACE)
target_compile_definitions(glaceron_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS
  QT_DEPRECATED_WARNINGS QT_MESSAGELOGCONTEXT)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  # -fpch-preprocess lets ccache see through a precompiled header.
  target_compile_options(glaceron_options INTERFACE
    "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  if(GLACERON_STRICT)
    target_compile_options(glaceron_options INTERFACE -Werror)
  endif()
  if(UNIX)
    # What Debian builds with, too: an overrun ends the program instead of taking it over.
    target_compile_definitions(glaceron_options INTERFACE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
    target_compile_options(glaceron_options INTERFACE
      $<$<CONFIG:Release>:-fstack-protector-strong>)
    target_link_options(glaceron_options INTERFACE $<$<CONFIG:Release>:-Wl,-z,relro,-z,now>)
  endif()
elseif(MSVC)
  target_compile_options(glaceron_options INTERFACE /W4 /utf-8)
  if(GLACERON_STRICT)
    target_compile_options(glaceron_options INTERFACE /WX)
  endif()
endif()
if(GLACERON_SANITIZE)
  target_compile_options(glaceron_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    # The compiler takes the sanitizers' own variables for ours.
    -Wno-maybe-uninitialized)
  target_link_options(glaceron_options INTERFACE -fsanitize=address,undefined)
endif()

# glaceron_room(<name> [ROOMS <room>...] [LIBRARIES <target>...] [PCH <header>])
function(glaceron_room name)
  cmake_parse_arguments(ROOM "" "PCH" "ROOMS;LIBRARIES" ${ARGN})
  set(folder "${CMAKE_CURRENT_SOURCE_DIR}/${name}")
  file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h")
  if(WIN32)
    file(GLOB system CONFIGURE_DEPENDS "${folder}/windows/*.cpp" "${folder}/windows/*.h")
  else()
    file(GLOB system CONFIGURE_DEPENDS "${folder}/linux/*.cpp" "${folder}/linux/*.h")
  endif()
  list(APPEND sources ${system})
  if(name STREQUAL "ui")
    file(GLOB inner CONFIGURE_DEPENDS "${folder}/*/*.cpp" "${folder}/*/*.h")
    list(APPEND sources ${inner})
  endif()
  add_library(room_${name} STATIC ${sources})
  target_include_directories(room_${name} PUBLIC "${folder}")
  target_link_libraries(room_${name} PRIVATE glaceron_options ${ROOM_LIBRARIES})
  foreach(room IN LISTS ROOM_ROOMS)
    target_link_libraries(room_${name} PRIVATE room_${room})
  endforeach()
  if(ROOM_PCH)
    target_precompile_headers(room_${name} PRIVATE ${ROOM_PCH})
  endif()
endfunction()

# glaceron_test(<file below tests, without .cpp> ROOMS <room>... [LIBRARIES <target>...])
function(glaceron_test path)
  cmake_parse_arguments(TEST "" "" "ROOMS;LIBRARIES;SOURCES" ${ARGN})
  get_filename_component(name "${path}" NAME)
  add_executable(${name} "${path}.cpp" ${TEST_SOURCES})
  target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  target_compile_definitions(${name} PRIVATE
    TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data")
  target_link_libraries(${name} PRIVATE glaceron_options Qt5::Test ${TEST_LIBRARIES})
  foreach(room IN LISTS TEST_ROOMS)
    target_link_libraries(${name} PRIVATE room_${room})
  endforeach()
  if(GLACERON_SANITIZE)
    add_test(NAME ${path} COMMAND ${PROJECT_SOURCE_DIR}/scripts/run-sanitized $<TARGET_FILE:${name}>)
  else()
    add_test(NAME ${path} COMMAND ${name})
  endif()
  # One limit, CTest's: the framework's own would end a slow function of a test that has longer.
  set_tests_properties(${path} PROPERTIES TIMEOUT 300 ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;QT_LOGGING_RULES=;QTEST_FUNCTION_TIMEOUT=2400000")
endfunction()
