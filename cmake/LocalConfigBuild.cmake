# What every target of this project shares.

set(LOCALCONFIG_SANITIZE "" CACHE STRING "Sanitizers, comma separated: address,undefined or thread")

add_library(LocalConfigWarnings INTERFACE)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(LocalConfigWarnings INTERFACE -Wall -Wextra -Wpedantic -Werror)
elseif(MSVC)
    target_compile_options(LocalConfigWarnings INTERFACE /W4 /WX /utf-8)
endif()
target_compile_definitions(LocalConfigWarnings INTERFACE
    QT_NO_CAST_FROM_BYTEARRAY QT_DEPRECATED_WARNINGS QT_DISABLE_DEPRECATED_BEFORE=0x050F00 $<$<BOOL:${WIN32}>:NOMINMAX>)

if(LOCALCONFIG_SANITIZE)
    add_compile_options(-fsanitize=${LOCALCONFIG_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${LOCALCONFIG_SANITIZE})
endif()

set(LOCALCONFIG_LANGUAGES zh_CN es ar) # beside English, which the sources are written in

# localconfig_translations(<target> <stem>): builds <stem>_<language>.ts of the folder "translations"
# into the client's resource folder.
function(localconfig_translations target stem)
    file(GLOB tsFiles CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/translations/${stem}_*.ts")
    set(qmFiles)
    foreach(tsFile IN LISTS tsFiles)
        get_filename_component(name "${tsFile}" NAME_WE)
        set(qmFile "${LOCALCONFIG_RESOURCE_DIR}/translations/${name}.qm")
        add_custom_command(OUTPUT "${qmFile}"
            COMMAND ${CMAKE_COMMAND} -E make_directory "${LOCALCONFIG_RESOURCE_DIR}/translations"
            COMMAND Qt5::lrelease -silent "${tsFile}" -qm "${qmFile}"
            DEPENDS "${tsFile}" VERBATIM)
        list(APPEND qmFiles "${qmFile}")
    endforeach()
    add_custom_target(${target}Translations ALL DEPENDS ${qmFiles})
    install(FILES ${qmFiles} DESTINATION "${LOCALCONFIG_RESOURCE_INSTALL_DIR}/translations")
endfunction()

# localconfig_picture(<source> <target> <color>): a picture that is drawn in currentColor, in a colour.
function(localconfig_picture source target color)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
    file(READ "${source}" content)
    string(REPLACE "currentColor" "${color}" content "${content}")
    file(CONFIGURE OUTPUT "${target}" CONTENT "${content}" @ONLY)
endfunction()
