# cmake -D PROGRAM=path -D OTHER=path -P LinkedLibraries.cmake
# The window's program asks for no library that reads objects or keeps data; the command line's, which does, shows
# that such a library would be seen.
set(forbidden "gdcm|dcm(data|img|jp)|ofstd|sqlite|libz\\.")

function(needed program result)
    execute_process(COMMAND readelf --dynamic ${program} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "\\(NEEDED\\)[^\n]*" lines "${output}")
    list(FILTER lines INCLUDE REGEX "${forbidden}")
    set(${result} "${lines}" PARENT_SCOPE)
endfunction()

needed(${PROGRAM} found)
if(found)
    message(SEND_ERROR "${PROGRAM} links: ${found}")
endif()
needed(${OTHER} found)
if(NOT found)
    message(SEND_ERROR "${OTHER} links no library that this check would see")
endif()
