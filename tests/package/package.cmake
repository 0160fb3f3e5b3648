# Installs the build into a fresh prefix, then configures, builds and runs a host that knows nothing but that prefix.
# Variables: BUILD_DIR, SOURCE_DIR (of the host), WORK_DIR, GENERATOR, CXX, CXX_FLAGS; TOOLCHAIN (options), EMULATOR and
# WIN32 when it is cross-built

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
# On Windows a program finds its libraries beside it.
set(hostDir "${WORK_DIR}/build")
set(suffix "")
if(WIN32)
    set(hostDir "${WORK_DIR}/prefix/bin")
    set(suffix .exe)
    set(ENV{QT_FORCE_STDERR_LOGGING} 0) # Qt's own words go to the debugger, as they do for an operator
endif()
run("${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix")
run("${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}" "-DCMAKE_CXX_COMPILER=${CXX}"
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" "-DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix"
    "-DCMAKE_RUNTIME_OUTPUT_DIRECTORY=${hostDir}" ${TOOLCHAIN})
run("${CMAKE_COMMAND}" --build "${WORK_DIR}/build")

# The installed libraries and resources must be found without help from the environment of the build tree.
unset(ENV{KV_CLIENT_RESOURCES})
run(${EMULATOR} "${hostDir}/package-host${suffix}")
if(NOT output MATCHES "Local Config: shown\n")
    message(FATAL_ERROR "the host said: ${output}")
endif()
file(MAKE_DIRECTORY "${WORK_DIR}/data")
run(${EMULATOR} "${WORK_DIR}/prefix/bin/local-config-client${suffix}" --data-dir "${WORK_DIR}/data" --dump)
if(NOT output MATCHES "\"sections\"")
    message(FATAL_ERROR "the installed client said: ${output}")
endif()

# Without a display and without a word about a missing skin.
unset(ENV{QT_QPA_PLATFORM})
unset(ENV{DISPLAY})
unset(ENV{WAYLAND_DISPLAY})
run(${EMULATOR} "${WORK_DIR}/prefix/bin/local-config-client${suffix}" --data-dir "${WORK_DIR}/data" --screenshot "${WORK_DIR}/dialog.png")
if(NOT output STREQUAL "" OR NOT EXISTS "${WORK_DIR}/dialog.png")
    message(FATAL_ERROR "the installed client said: ${output}")
endif()
