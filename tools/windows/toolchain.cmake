# Cross-building for Windows x86-64: MinGW-w64 with POSIX threads, and the folder that tools/windows/toolchain makes.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(cache "$ENV{XDG_CACHE_HOME}")
if(NOT cache)
    set(cache "$ENV{HOME}/.cache")
endif()
set(LOCALCONFIG_WINDOWS_QT "${cache}/local-config/windows/qt" CACHE PATH "Qt and pugixml for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LOCALCONFIG_WINDOWS_QT)

set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_PREFIX_PATH "${LOCALCONFIG_WINDOWS_QT}")
set(CMAKE_FIND_ROOT_PATH "${LOCALCONFIG_WINDOWS_QT}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(Qt5LinguistTools_DIR /usr/lib/x86_64-linux-gnu/cmake/Qt5LinguistTools) # they run here

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/wine;${LOCALCONFIG_WINDOWS_QT};${CMAKE_BINARY_DIR}/wine")
