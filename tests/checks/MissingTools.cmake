# cmake -D SEARCH=path/to/DcmtkTools.cmake -P MissingTools.cmake
# Runs the search for the tools with each of them missing and compares what it says.

# search(<expected message or "" for success> <argument>...): the search finds nothing by itself but what the
# arguments say.
function(search expected)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -D CMAKE_FIND_ROOT_PATH=${CMAKE_CURRENT_LIST_DIR}/nothing
            -D CMAKE_FIND_ROOT_PATH_MODE_PROGRAM=ONLY -D CMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY
            ${ARGN} -P ${SEARCH}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE error)
    if(expected STREQUAL "")
        if(NOT result EQUAL 0)
            message(SEND_ERROR "The search failed with everything given:\n${error}")
        endif()
        return()
    endif()
    # "CMake Error at <file>:<line> (message):", the text broken into lines, and where it was called
    string(REGEX REPLACE "[ \n]+" " " error "${error}")
    string(REGEX REPLACE "^CMake Error at [^ ]+ \\(message\\): " "" error "${error}")
    string(STRIP "${error}" error)
    if(result EQUAL 0 OR NOT error STREQUAL expected)
        message(SEND_ERROR "Expected to fail with\n${expected}\nbut got ${result} and\n${error}")
    endif()
endfunction()

set(modify -D DRAVOLIN_DCMODIFY=/given/dcmodify)
set(dump -D DRAVOLIN_DCMDUMP=/given/dcmdump)
set(dictionary -D DRAVOLIN_DICOM_DIC=/given/dicom.dic)
search("The tool 'dcmodify' was not found. On Debian: apt-get install dcmtk" ${dump} ${dictionary})
search("The tool 'dcmdump' was not found. On Debian: apt-get install dcmtk" ${modify} ${dictionary})
string(CONCAT no_dictionary "The data dictionary 'dicom.dic' was not found. "
    "On Debian it comes with the library of dcmtk: apt-get install dcmtk libdcmtk17")
search("${no_dictionary}" ${modify} ${dump})
search("" ${modify} ${dump} ${dictionary})
