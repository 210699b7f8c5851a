# kx_room(NAME SOURCES ... BELOW ...): one room as an object library.
#
# Rooms stand one above the other. A room's headers are reached as "room/header.hpp" through a folder of its own, and a
# room is given the folders of the rooms below it only: an include upwards does not compile.
set(KX_ROOMS "")
function(kx_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;BELOW" ${ARGN})
  set(door ${CMAKE_BINARY_DIR}/rooms/${name})
  file(MAKE_DIRECTORY ${door})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${name} ${door}/${name} SYMBOLIC)
  add_library(kx_${name} OBJECT ${ROOM_SOURCES})
  target_include_directories(kx_${name} PRIVATE ${PROJECT_SOURCE_DIR}/include ${door})
  foreach(lower ${ROOM_BELOW})
    target_include_directories(kx_${name} PRIVATE ${CMAKE_BINARY_DIR}/rooms/${lower})
  endforeach()
  target_link_libraries(kx_${name} PRIVATE kx_flags)
  target_compile_options(kx_${name} PRIVATE -fno-exceptions -fno-rtti -fvisibility=hidden)
  set_target_properties(kx_${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
  set(KX_ROOMS ${KX_ROOMS} ${name} PARENT_SCOPE)
  set_property(GLOBAL APPEND PROPERTY KX_ROOM_OBJECTS $<TARGET_OBJECTS:kx_${name}>)
  set_property(GLOBAL APPEND PROPERTY KX_ROOM_DOORS ${door})
endfunction()
