# An installed tree, in three components: "libraries" (with the resources that they read), "client" and "development".

set(LOCALCONFIG_LIBRARIES LocalConfig KvGui UICommonModule)
set_target_properties(${LOCALCONFIG_LIBRARIES} PROPERTIES
    VERSION "${PROJECT_VERSION}" SOVERSION "${PROJECT_VERSION_MAJOR}")
install(TARGETS ${LOCALCONFIG_LIBRARIES} EXPORT LocalConfigTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT libraries
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT libraries NAMELINK_COMPONENT development
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
install(TARGETS local-config-client RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT client)

install(FILES
    LocalConfig/CLocalConfig.h LocalConfig/LocalConfigExport.h
    DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/LocalConfig" COMPONENT development)
install(DIRECTORY LocalConfig/interfaces DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/LocalConfig" COMPONENT development
    FILES_MATCHING PATTERN "*.h")
install(DIRECTORY platform/KvGui platform/UICommonModule DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
    FILES_MATCHING PATTERN "*.h" PATTERN FileSystem.h EXCLUDE PATTERN translations EXCLUDE)

set(packageDir "${CMAKE_INSTALL_LIBDIR}/cmake/LocalConfig")
install(EXPORT LocalConfigTargets NAMESPACE LocalConfig:: DESTINATION "${packageDir}" COMPONENT development)
configure_package_config_file(cmake/LocalConfigConfig.cmake.in "${PROJECT_BINARY_DIR}/LocalConfigConfig.cmake"
    INSTALL_DESTINATION "${packageDir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/LocalConfigConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/LocalConfigConfig.cmake" "${PROJECT_BINARY_DIR}/LocalConfigConfigVersion.cmake"
    DESTINATION "${packageDir}" COMPONENT development)

# By its own place, so that a tree that was moved still answers.
file(RELATIVE_PATH LOCALCONFIG_PREFIX_FROM_PKGCONFIG "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file(cmake/local-config.pc.in "${PROJECT_BINARY_DIR}/local-config.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/local-config.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT development)

set(CPACK_PACKAGE_NAME local-config)
set(CPACK_PACKAGE_VENDOR "The Local Config authors")
set(CPACK_PACKAGE_CONTACT "The Local Config authors <local-config@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Settings dialog of a video-surveillance workstation")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
if(WIN32)
    include(WindowsPackage)
elseif(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    include(DebianPackages)
endif()
include(CPack)
