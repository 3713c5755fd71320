# cmake -D WINDOW=path -D COMMANDS=path -D MODULE=path -P LinkedLibraries.cmake
# The window's program asks for no library that reads objects or keeps data. The command line's does, but for GDCM, whose
# start takes longer than its own: the module brings that, and nothing but its entry to the program.

function(output_of result)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${output}" PARENT_SCOPE)
endfunction()

# links(<program> <YES or NO> <pattern>)
function(links program expected pattern)
    output_of(output readelf --dynamic ${program})
    string(REGEX MATCHALL "\\(NEEDED\\)[^\n]*" found "${output}")
    list(FILTER found INCLUDE REGEX "${pattern}")
    if(found AND NOT expected)
        message(SEND_ERROR "${program} links: ${found}")
    elseif(NOT found AND expected)
        message(SEND_ERROR "${program} links nothing that is called ${pattern}")
    endif()
endfunction()

set(readers "gdcm|dcm(data|img|jp)|ofstd|sqlite|libz\\.")
links(${WINDOW} NO "${readers}")
links(${COMMANDS} YES "${readers}")
links(${COMMANDS} NO "gdcm")
links(${MODULE} YES "gdcm")

output_of(symbols nm --dynamic --defined-only ${MODULE})
string(REGEX MATCHALL "dravolin[A-Za-z_0-9]*" symbols "${symbols}")
if(NOT symbols STREQUAL "dravolinGdcmModule")
    message(SEND_ERROR "${MODULE} shows the symbols ${symbols}")
endif()
output_of(symbols nm --dynamic --defined-only ${COMMANDS})
if(NOT symbols MATCHES " T __assert_fail\n")
    message(SEND_ERROR "${COMMANDS} does not show its __assert_fail(): assertions of GDCM would end it")
endif()
