# Build rules shared by every target of the project.

add_library(pelmira_options INTERFACE)
target_compile_features(pelmira_options INTERFACE cxx_std_20)
target_compile_options(pelmira_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
  -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  $<$<BOOL:${PELMIRA_WERROR}>:-Werror>)
target_compile_definitions(pelmira_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(PELMIRA_SANITIZE)
  target_compile_options(pelmira_options INTERFACE
    -fsanitize=${PELMIRA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(pelmira_options INTERFACE -fsanitize=${PELMIRA_SANITIZE})
endif()

add_custom_target(pelmira_plugins)

# pelmira_room([ENGINE|PLUGIN] SOURCES ... [PUBLIC ...] [PRIVATE ...])
# The library of one folder below src/, named after it: src/platform/gl is pelmira_platform_gl. What
# it links is told by folder as well (`PUBLIC platform/gl`); PUBLIC is what its headers include. The
# test Rooms.IncludesFollowTheLinks holds the includes against these lists. An ENGINE room must build
# and run without a window: its whole link closure is checked against Qt Quick once all are known.
# A PLUGIN is loaded while the program runs; every program is built together with all of them.
function(pelmira_room)
  cmake_parse_arguments(ARG "ENGINE;PLUGIN" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src
    OUTPUT_VARIABLE FOLDER)
  pelmira_room_targets(NAME ${FOLDER})
  pelmira_room_targets(PUBLIC_LINKS ${ARG_PUBLIC})
  pelmira_room_targets(PRIVATE_LINKS ${ARG_PRIVATE})
  if(ARG_PLUGIN)
    add_library(${NAME} MODULE ${ARG_SOURCES})
    add_dependencies(pelmira_plugins ${NAME})
  else()
    add_library(${NAME} STATIC ${ARG_SOURCES})
  endif()
  target_include_directories(${NAME} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${NAME} PUBLIC ${PUBLIC_LINKS} PRIVATE ${PRIVATE_LINKS} pelmira_options)
  string(REPLACE ";" "," LINE "${FOLDER}|${ARG_PUBLIC}|${ARG_PRIVATE}")
  set_property(GLOBAL APPEND_STRING PROPERTY PELMIRA_ROOMS "${LINE}\n")
  if(ARG_ENGINE)
    cmake_language(EVAL CODE "cmake_language(DEFER DIRECTORY [[${PROJECT_SOURCE_DIR}]]
      CALL pelmira_require_windowless ${NAME} ${NAME} [[]])")
  endif()
endfunction()

# The targets of links that are told by folder; what contains "::" is a target already.
function(pelmira_room_targets RESULT)
  set(TARGETS)
  foreach(LINK IN LISTS ARGN)
    if(NOT LINK MATCHES "::")
      string(REPLACE "/" "_" LINK "pelmira_${LINK}")
    endif()
    list(APPEND TARGETS ${LINK})
  endforeach()
  set(${RESULT} ${TARGETS} PARENT_SCOPE)
endfunction()

# The check that includes follow the links, as a test. To be called once all rooms are known.
function(pelmira_check_rooms)
  get_property(ROOMS GLOBAL PROPERTY PELMIRA_ROOMS)
  file(WRITE ${PROJECT_BINARY_DIR}/rooms.txt "${ROOMS}")
  add_test(NAME Rooms.IncludesFollowTheLinks COMMAND ${CMAKE_COMMAND}
    -D SOURCES=${PROJECT_SOURCE_DIR}/src -D ROOMS=${PROJECT_BINARY_DIR}/rooms.txt
    -P ${PROJECT_SOURCE_DIR}/cmake/CheckRooms.cmake)
endfunction()

# Fails when TARGET reaches Qt Quick or Qt Qml through its link interface.
function(pelmira_require_windowless ENGINE TARGET SEEN)
  get_target_property(LINKS ${TARGET} LINK_LIBRARIES)
  foreach(LINK IN LISTS LINKS)
    if(LINK MATCHES "Quick|Qml" OR LINK STREQUAL "pelmira_platform_quick")
      message(FATAL_ERROR "${ENGINE} is engine code, yet ${TARGET} links ${LINK}")
    endif()
    if(TARGET ${LINK} AND LINK MATCHES "^pelmira_")
      get_target_property(KIND ${LINK} TYPE)
      if(NOT KIND STREQUAL "INTERFACE_LIBRARY")
        pelmira_require_windowless(${ENGINE} ${LINK} "${SEEN}")
      endif()
    endif()
  endforeach()
endfunction()

# pelmira_test(NAME SOURCES ... LINKS ... [LABEL ...])
# One GoogleTest executable; every TEST becomes a ctest case of its own. Tests that draw carry the
# label `gl`: they are run once more the way a GPU without extensions would see them. LINKS are
# told as those of a room are.
function(pelmira_test NAME)
  cmake_parse_arguments(ARG "" "LABEL" "SOURCES;LINKS" ${ARGN})
  add_executable(${NAME} ${ARG_SOURCES})
  target_include_directories(${NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  pelmira_room_targets(LINKS ${ARG_LINKS})
  target_link_libraries(${NAME} PRIVATE ${LINKS} GTest::gmock pelmira_options)
  set(PROPERTIES TIMEOUT 300)
  if(ARG_LABEL)
    list(APPEND PROPERTIES LABELS ${ARG_LABEL})
  endif()
  # The texts that tests look for are the English ones, whatever the user's language is. Two
  # properties, since on the way to ctest a list falls apart.
  list(APPEND PROPERTIES
    ENVIRONMENT LC_ALL=C.UTF-8
    ENVIRONMENT_MODIFICATION LANGUAGE=unset:)
  gtest_discover_tests(${NAME} DISCOVERY_MODE PRE_TEST PROPERTIES ${PROPERTIES})
endfunction()
