cmake_minimum_required(VERSION 3.25)

# The one exported class: every symbol that the module defines for others belongs to LocalConfig::CLocalConfig.
# Variables: NM, LIBRARY

if(LIBRARY MATCHES "\\.a$") # the import library of one for Windows
    execute_process(COMMAND "${NM}" --defined-only "${LIBRARY}" OUTPUT_VARIABLE output)
    string(REGEX MATCHALL "__imp_[^\n]+" symbols "${output}")
    list(TRANSFORM symbols REPLACE "^__imp_" "")
    string(REGEX REPLACE "nm$" "c++filt" NM "${NM}")
    execute_process(COMMAND "${NM}" ${symbols} OUTPUT_VARIABLE output RESULT_VARIABLE result)
else()
    execute_process(COMMAND "${NM}" --dynamic --defined-only --demangle "${LIBRARY}" OUTPUT_VARIABLE output
        RESULT_VARIABLE result)
endif()
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${NM} failed: ${result}")
endif()
string(REPLACE ";" " " output "${output}")
string(REPLACE "\n" ";" lines "${output}")
set(foreign "")
set(found "")
foreach(line IN LISTS lines)
    string(REGEX REPLACE "^[0-9a-f]* *. " "" symbol "${line}")
    if(symbol STREQUAL "")
        continue()
    elseif(symbol MATCHES "^(non-virtual thunk to |vtable for |typeinfo for |typeinfo name for )?LocalConfig::CLocalConfig(::|$)")
        list(APPEND found "${symbol}")
    else()
        string(APPEND foreign "\n  ${symbol}")
    endif()
endforeach()
if(foreign)
    message(FATAL_ERROR "exported beside CLocalConfig:${foreign}")
endif()
foreach(operation
        "CLocalConfig(QWidget*)" "~CLocalConfig()" "Init(LocalConfigLogical::ILocalConfig*, UserLogical::IUserManager*)"
        "InitDialogSize()" "UnInitUI()" "SignalDisconnect()" "SignalReconnect()" "staticMetaObject"
        "NotifyLoginState(UserLogical::ILoginManagerObserver::Param const&)")
    if(NOT "LocalConfig::CLocalConfig::${operation}" IN_LIST found)
        message(FATAL_ERROR "not exported: ${operation}")
    endif()
endforeach()
