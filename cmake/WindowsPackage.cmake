# One zip for Windows, which an integrator unpacks and starts. Nobody finds a program's libraries for it there: what the
# client needs lies beside it.

set(runtimeDir "${CMAKE_INSTALL_BINDIR}")
find_package(Qt5 5.15 REQUIRED COMPONENTS Svg) # for the plug-ins that draw the skin
foreach(module Core Gui Multimedia Network Svg Widgets)
    install(FILES $<TARGET_FILE:Qt5::${module}> DESTINATION "${runtimeDir}")
endforeach()
get_target_property(qtCore Qt5::Core LOCATION)
cmake_path(GET qtCore PARENT_PATH qtDir)
foreach(plugin audio/qtaudio_windows iconengines/qsvgicon imageformats/qjpeg imageformats/qsvg platforms/qwindows
        styles/qwindowsvistastyle)
    cmake_path(GET plugin PARENT_PATH kind)
    install(FILES "${qtDir}/../plugins/${plugin}.dll" DESTINATION "${runtimeDir}/${kind}")
endforeach()
# Qt's own texts in the languages of the client; they are the same for every system.
find_path(LOCALCONFIG_QT_TRANSLATIONS qtbase_es.qm PATHS "${qtDir}/../translations" /usr/share/qt5/translations
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
if(LOCALCONFIG_QT_TRANSLATIONS)
    foreach(language ${LOCALCONFIG_LANGUAGES})
        install(FILES "${LOCALCONFIG_QT_TRANSLATIONS}/qtbase_${language}.qm"
            DESTINATION "${LOCALCONFIG_RESOURCE_INSTALL_DIR}/translations")
    endforeach()
endif()
if(MINGW)
    install(FILES "${qtDir}/libgcc_s_seh-1.dll" "${qtDir}/libstdc++-6.dll" "${qtDir}/libwinpthread-1.dll"
        DESTINATION "${runtimeDir}")
endif()

install(FILES LICENSE DESTINATION licenses RENAME LocalConfig.txt)
foreach(package g++-mingw-w64-x86-64-posix libpugixml-dev libqt5svg5 mingw-w64-common qtbase5-dev qtmultimedia5-dev
        qttranslations5-l10n)
    install(FILES "/usr/share/doc/${package}/copyright" DESTINATION licenses RENAME "${package}.txt" OPTIONAL)
endforeach()
install(FILES /usr/share/common-licenses/GPL-3 /usr/share/common-licenses/LGPL-3 DESTINATION licenses OPTIONAL)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "local-config-${PROJECT_VERSION}-win64")
