# The library itself, from the rooms' objects, exporting exactly the names of include/kxgeom32.def.
get_property(KX_OBJECTS GLOBAL PROPERTY KX_ROOM_OBJECTS)
set(KX_DEF ${PROJECT_SOURCE_DIR}/include/kxgeom32.def)
set(KX_EXPORTS ${PROJECT_SOURCE_DIR}/scripts/exports.py)
set(KX_LINK_DIR ${CMAKE_BINARY_DIR}/link)
file(MAKE_DIRECTORY ${KX_LINK_DIR})

# What the linkers read, made from the list of names: aliases.ld (each alias as a second symbol at the address of its
# function) and, by platform, exports.map or exports.def. On Windows the objects tell each name's stack size.
if(WIN32)
  set(KX_LINK_FILES ${KX_LINK_DIR}/aliases.ld ${KX_LINK_DIR}/exports.def ${KX_LINK_DIR}/import.def)
  set(KX_EXPORTS_MODE windows --nm ${CMAKE_NM})
else()
  set(KX_LINK_FILES ${KX_LINK_DIR}/aliases.ld ${KX_LINK_DIR}/exports.map)
  set(KX_EXPORTS_MODE elf)
endif()
add_custom_command(
  OUTPUT ${KX_LINK_FILES}
  COMMAND Python3::Interpreter ${KX_EXPORTS} ${KX_EXPORTS_MODE} ${KX_DEF} ${KX_LINK_DIR} ${KX_OBJECTS}
  DEPENDS ${KX_EXPORTS} ${KX_DEF} ${KX_OBJECTS}
  COMMAND_EXPAND_LISTS VERBATIM)
add_custom_target(kx_link_files DEPENDS ${KX_LINK_FILES})

if(WIN32)
  set(KX_MESSAGE_BOX ${PROJECT_SOURCE_DIR}/runtime/message_box_windows.cpp)
else()
  set(KX_MESSAGE_BOX ${PROJECT_SOURCE_DIR}/runtime/message_box_stderr.cpp)
endif()
add_library(kxgeom SHARED ${KX_OBJECTS} ${KX_MESSAGE_BOX})
add_library(kxgeom::kxgeom ALIAS kxgeom)
add_dependencies(kxgeom kx_link_files)
target_link_libraries(kxgeom PRIVATE kx_flags)
target_compile_options(kxgeom PRIVATE -fno-exceptions -fno-rtti -fvisibility=hidden)
target_include_directories(kxgeom INTERFACE
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
set_target_properties(kxgeom PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
  LINK_DEPENDS "${KX_LINK_FILES}")
if(WIN32)
  # The import library is made from the decorated names (import.def), so that C callers' symbols meet the DLL's
  # undecorated ones; what the linker would write beside the DLL knows only the latter.
  set_target_properties(kxgeom PROPERTIES PREFIX "" OUTPUT_NAME KXGEOM32 IMPORT_PREFIX "lib" IMPORT_SUFFIX ".dll.a")
  target_link_options(kxgeom PRIVATE ${KX_LINK_DIR}/aliases.ld ${KX_LINK_DIR}/exports.def
    -static -static-libgcc -static-libstdc++)
  add_custom_command(TARGET kxgeom POST_BUILD
    COMMAND ${CMAKE_DLLTOOL} --kill-at --dllname KXGEOM32.dll --input-def ${KX_LINK_DIR}/import.def
      --output-lib $<TARGET_LINKER_FILE:kxgeom>
    VERBATIM)
else()
  set_target_properties(kxgeom PROPERTIES OUTPUT_NAME kxgeom32)
  target_link_options(kxgeom PRIVATE ${KX_LINK_DIR}/aliases.ld
    -Wl,--version-script=${KX_LINK_DIR}/exports.map -Wl,-Bsymbolic-functions -Wl,--as-needed)
  if(NOT KXGEOM_SANITIZE)
    target_link_options(kxgeom PRIVATE -Wl,--no-undefined)
  endif()
endif()

# ---- installation ----
include(CMakePackageConfigHelpers)
install(TARGETS kxgeom EXPORT kxgeom
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/kxgeom.h ${KX_DEF} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/kxgeom DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${PROJECT_SOURCE_DIR}/message/KXMSG.DAT DESTINATION ${CMAKE_INSTALL_DATADIR}/kxgeom/MSG)
install(EXPORT kxgeom NAMESPACE kxgeom:: FILE kxgeomTargets.cmake DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kxgeom)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kxgeomConfig.cmake.in ${CMAKE_BINARY_DIR}/kxgeomConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kxgeom PATH_VARS CMAKE_INSTALL_DATADIR)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/kxgeomConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/kxgeomConfig.cmake ${CMAKE_BINARY_DIR}/kxgeomConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/kxgeom)
# Found from where the file lies, so that an installed tree can be moved.
file(RELATIVE_PATH KX_PC_PREFIX /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" KX_PC_PREFIX ${KX_PC_PREFIX})
get_target_property(KX_PC_LIBRARY kxgeom OUTPUT_NAME)
configure_file(${PROJECT_SOURCE_DIR}/cmake/kxgeom.pc.in ${CMAKE_BINARY_DIR}/kxgeom.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/kxgeom.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
