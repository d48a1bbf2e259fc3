# The libraries as a CMake package: `find_package(corvimo_launcher)` gives the same targets and include
# names as this tree. The install component is `dev`.

include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/corvimo_launcher)
set(config ${PROJECT_BINARY_DIR}/package/corvimo_launcher-config.cmake)
set(config_version ${PROJECT_BINARY_DIR}/package/corvimo_launcher-config-version.cmake)

# The libraries get their own folder, because names such as libfile.a are general.
install(TARGETS logger tmpname file utils platform deskui-qt launcher_core
    EXPORT corvimo_launcher
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}/corvimo COMPONENT dev
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/corvimo COMPONENT dev
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/corvimo COMPONENT dev)
install(EXPORT corvimo_launcher
    NAMESPACE corvimo::
    FILE corvimo_launcher-targets.cmake
    DESTINATION ${package_folder}
    COMPONENT dev)

configure_file(${CMAKE_CURRENT_LIST_DIR}/corvimo_launcher-config.cmake.in ${config} @ONLY)
write_basic_package_version_file(${config_version} COMPATIBILITY SameMajorVersion)
install(FILES ${config} ${config_version} DESTINATION ${package_folder} COMPONENT dev)
