# What `cmake --install` puts where.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package ${CMAKE_INSTALL_LIBDIR}/cmake/Velkord)

# A static library may go where a shared one is already: each has its own file of targets, and all else
# is the same for both.
if(BUILD_SHARED_LIBS)
  set(targets VelkordTargets)
else()
  set(targets VelkordStaticTargets)
endif()

# The runtime is what a program needs that was built elsewhere, the rest is for building one.
install(TARGETS Velkord EXPORT ${targets}
  RUNTIME COMPONENT runtime
  LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE COMPONENT development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/Velkord.h ${PROJECT_SOURCE_DIR}/include/velkord.hpp
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
if(MINGW AND BUILD_SHARED_LIBS)
  install(FILES $<TARGET_FILE_DIR:Velkord>/Velkord.def
    DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()

install(TARGETS velkord_cpp EXPORT VelkordCppTargets)
foreach(set IN ITEMS ${targets} VelkordCppTargets)
  install(EXPORT ${set} NAMESPACE Velkord:: DESTINATION ${package} COMPONENT development)
endforeach()
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VelkordConfig.cmake.in
  ${PROJECT_BINARY_DIR}/VelkordConfig.cmake INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VelkordConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/VelkordConfig.cmake
  ${PROJECT_BINARY_DIR}/VelkordConfigVersion.cmake
  DESTINATION ${package} COMPONENT development)

# velkord.pc finds the rest from its own folder, so that an installation may be moved.
file(RELATIVE_PATH prefix_from_pc
  /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" prefix_from_pc "${prefix_from_pc}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/velkord.pc.in ${PROJECT_BINARY_DIR}/velkord.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/velkord.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
