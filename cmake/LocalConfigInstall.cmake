# An installed tree: libraries, client, public headers, resources and the package "LocalConfig".

install(TARGETS LocalConfig KvGui UICommonModule EXPORT LocalConfigTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(TARGETS local-config-client RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")

install(FILES
    LocalConfig/CLocalConfig.h LocalConfig/LocalConfigExport.h
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/LocalConfig")
install(DIRECTORY LocalConfig/interfaces DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/LocalConfig" FILES_MATCHING PATTERN "*.h")
install(DIRECTORY platform/KvGui platform/UICommonModule DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
    FILES_MATCHING PATTERN "*.h" PATTERN translations EXCLUDE)

set(packageDir "${CMAKE_INSTALL_LIBDIR}/cmake/LocalConfig")
install(EXPORT LocalConfigTargets NAMESPACE LocalConfig:: DESTINATION "${packageDir}")
configure_package_config_file(cmake/LocalConfigConfig.cmake.in "${PROJECT_BINARY_DIR}/LocalConfigConfig.cmake"
    INSTALL_DESTINATION "${packageDir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/LocalConfigConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/LocalConfigConfig.cmake" "${PROJECT_BINARY_DIR}/LocalConfigConfigVersion.cmake"
    DESTINATION "${packageDir}")
