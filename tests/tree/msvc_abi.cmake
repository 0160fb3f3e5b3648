cmake_minimum_required(VERSION 3.25)

# The boundary as a compiler with the other ABI of Windows sees it: Clang compiles it so, with stand-ins for the few
# headers of that compiler's library, and what a call takes from the table is read in its code.
# Variables: CLANG, SOURCE_DIR (of the tree)

set(folder "${SOURCE_DIR}/tests/tree/msvc")
execute_process(COMMAND "${CLANG}" --target=x86_64-pc-windows-msvc -std=c++17 -nostdinc++ -Wall -Wextra -Werror
    -Wno-unused-private-field -isystem "${folder}" -I "${SOURCE_DIR}" -fno-discard-value-names -S -emit-llvm -o - "${folder}/boundary.cpp"
    OUTPUT_VARIABLE code ERROR_VARIABLE errors RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${CLANG} failed: ${result}\n${errors}")
endif()

string(REPLACE ";" "," code "${code}")
string(REGEX MATCHALL "define[^@]*@Slot[^}]*}" functions "${code}")
list(LENGTH functions count)
if(count LESS 29)
    message(FATAL_ERROR "only ${count} functions")
endif()
foreach(function IN LISTS functions)
    string(REGEX MATCH "@(Slot([0-9]+)_[A-Za-z]+)" name "${function}")
    set(name "${CMAKE_MATCH_1}")
    set(slot "${CMAKE_MATCH_2}")
    if(NOT function MATCHES "%vfn = getelementptr [^\n]*, i64 ([0-9]+)\n")
        message(FATAL_ERROR "${name} calls nothing:\n${function}")
    endif()
    if(NOT CMAKE_MATCH_1 EQUAL slot)
        message(FATAL_ERROR "${name} calls slot ${CMAKE_MATCH_1}")
    endif()
endforeach()
message(STATUS "${count} slots")
