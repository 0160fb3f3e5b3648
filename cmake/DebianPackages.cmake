# Debian packages by CPack: the libraries, the client, and what a host is built with.

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")

set(packaging "${PROJECT_SOURCE_DIR}/packaging")
set(papers "${PROJECT_BINARY_DIR}/packaging")
file(MAKE_DIRECTORY "${papers}")
foreach(paper changelog local-config-client.1)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${packaging}/${paper}")
    execute_process(COMMAND gzip -9nc "${packaging}/${paper}" OUTPUT_FILE "${papers}/${paper}.gz"
        COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# package(<component> <name> <section> <text>): the name of a component's package, and the papers that each one carries.
macro(package component name section text)
    string(TOUPPER "${component}" id)
    set(CPACK_DEBIAN_${id}_PACKAGE_NAME "${name}")
    set(CPACK_DEBIAN_${id}_PACKAGE_SECTION "${section}")
    set(CPACK_COMPONENT_${id}_DESCRIPTION "${text}")
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}"
        COMPONENT ${component} RENAME copyright)
    install(FILES "${papers}/changelog.gz" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}"
        COMPONENT ${component})
endmacro()

set(libraries "liblocalconfig${PROJECT_VERSION_MAJOR}")
set(sameLibraries "${libraries} (= ${PROJECT_VERSION})")

package(libraries ${libraries} libs
    "The dialog, the libraries that it is built on, their skins and their texts.")
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_RECOMMENDS "fonts-inter, fonts-dejavu-core, fonts-wqy-microhei | fonts-noto-cjk")
set(CPACK_DEBIAN_LIBRARIES_PACKAGE_CONTROL_EXTRA "${packaging}/triggers")
install(FILES "${packaging}/${libraries}.lintian-overrides"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" COMPONENT libraries RENAME ${libraries})

package(client local-config-client video
    "A client that shows what the settings do in live view, recordings and alarms.")
set(CPACK_DEBIAN_CLIENT_PACKAGE_DEPENDS "${sameLibraries}")
set(CPACK_DEBIAN_CLIENT_PACKAGE_RECOMMENDS qttranslations5-l10n)
install(FILES "${papers}/local-config-client.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT client)

package(development liblocalconfig-dev libdevel
    "What a host is built with: headers, and the packages of CMake and pkg-config.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${sameLibraries}, qtbase5-dev")
