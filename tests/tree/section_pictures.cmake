cmake_minimum_required(VERSION 3.25)

# What the build reads from a list of sections, and that it names a row which it cannot read.
# Variables: MODULE, WORK_DIR; LIST in the inner runs

if(DEFINED LIST)
    include("${MODULE}")
    localconfig_section_pictures("${LIST}" pictures)
    message("pictures: ${pictures}")
    return()
endif()

# expect(<text> <content>): the build says a text about a list of this content.
function(expect text content)
    file(WRITE "${WORK_DIR}/list.h" "${content}")
    execute_process(COMMAND "${CMAKE_COMMAND}" "-DMODULE=${MODULE}" "-DLIST=${WORK_DIR}/list.h"
        -P "${CMAKE_CURRENT_FUNCTION_LIST_FILE}" OUTPUT_VARIABLE output ERROR_VARIABLE output)
    string(REGEX REPLACE "[ \n]+" " " output "${output}")
    string(FIND "${output}" "${text}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "not said: ${text}\nbut: ${output}")
    endif()
endfunction()

expect("pictures: one;public;LocalConfig;public;two;LocalConfig;public;public" [[
// SECTION(a comment)
SECTION(One, Call(),
        TEXT("Context", "One"),
        "one", "public", "LocalConfig", "public")

SECTION(Two, "two", "LocalConfig", "public", "public")
#undef SECTION
]])
expect("list.h: no section" "// SECTION(One, \"one\", \"public\", \"public\", \"public\")\n")
expect("a row does not end in a picture and three folders: SECTION(Two, \"two\", \"public\", \"public\")" [[
SECTION(One, "one", "public", "public", "public")
SECTION(Two,
        "two", "public", "public")
]])
expect("a row does not end in a picture and three folders: SECTION(One, \"one\", \"public\", \"private\", \"public\")"
    "SECTION(One, \"one\", \"public\", \"private\", \"public\")\n")
