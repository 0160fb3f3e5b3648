# Installs the build into a fresh prefix, then configures, builds and runs a host that knows nothing but that prefix.
# On Windows the prefix is what comes out of the archive, in a folder whose name is not the simplest.
# Variables: BUILD_DIR, SOURCE_DIR (of the host), WORK_DIR, GENERATOR, CXX, CXX_FLAGS; TOOLCHAIN (options), EMULATOR and
# WIN32 when it is cross-built; LANGUAGES (beside English) of the archive

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "failed (${result}): ${ARGN}\n${output}")
    endif()
    string(REPLACE "\r\n" "\n" output "${output}")
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")
set(hostDir "${WORK_DIR}/build")
set(suffix "")
if(WIN32)
    set(prefix "${WORK_DIR}/Local Config é")
    set(suffix .exe)
    set(ENV{QT_FORCE_STDERR_LOGGING} 0) # Qt's own words go to the debugger, as they do for an operator
    cmake_path(GET CMAKE_COMMAND PARENT_PATH cmakeDir)
    run("${cmakeDir}/cpack" --config "${BUILD_DIR}/CPackConfig.cmake" -B "${WORK_DIR}/archive")
    file(GLOB archive "${WORK_DIR}/archive/*.zip")
    file(ARCHIVE_EXTRACT INPUT "${archive}" DESTINATION "${WORK_DIR}/unpacked")
    file(GLOB unpacked "${WORK_DIR}/unpacked/*")
    file(RENAME "${unpacked}" "${prefix}")
    foreach(language ${LANGUAGES})
        foreach(stem KvGui UICommonModule LocalConfig local-config-client qtbase)
            if(NOT EXISTS "${prefix}/share/local-config-client/translations/${stem}_${language}.qm")
                message(FATAL_ERROR "the archive has no ${stem}_${language}.qm")
            endif()
        endforeach()
    endforeach()
    set(hostDir "${prefix}/bin") # where a program finds its libraries
else()
    run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${prefix}")
endif()
run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}" "-DCMAKE_CXX_COMPILER=${CXX}"
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${hostDir}"
    ${TOOLCHAIN})
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/build")

# The installed libraries and resources must be found without help from the environment of the build tree.
unset(ENV{KV_CLIENT_RESOURCES})
if(WIN32)
    set(ENV{QT_QPA_PLATFORM} windows) # the archive has no other
endif()
run(${EMULATOR} "${hostDir}/package-host${suffix}")
if(NOT output MATCHES "Local Config: shown\n")
    message(FATAL_ERROR "the host said: ${output}")
endif()
file(MAKE_DIRECTORY "${WORK_DIR}/data")
run(${EMULATOR} "${prefix}/bin/local-config-client${suffix}" --data-dir "${WORK_DIR}/data" --dump)
if(NOT output MATCHES "\"sections\"")
    message(FATAL_ERROR "the installed client said: ${output}")
endif()

# Without a display, which Windows always has, and without a word about a missing skin.
if(NOT WIN32)
    unset(ENV{QT_QPA_PLATFORM})
    unset(ENV{DISPLAY})
    unset(ENV{WAYLAND_DISPLAY})
endif()
run(${EMULATOR} "${prefix}/bin/local-config-client${suffix}" --data-dir "${WORK_DIR}/data" --screenshot "${WORK_DIR}/dialog.png")
if(NOT output STREQUAL "" OR NOT EXISTS "${WORK_DIR}/dialog.png")
    message(FATAL_ERROR "the installed client said: ${output}")
endif()
