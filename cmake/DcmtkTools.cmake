# Finds the DCMTK tools and their data dictionary: DRAVOLIN_DCMODIFY, DRAVOLIN_DCMDUMP, DRAVOLIN_DICOM_DIC.
# Also runs alone: cmake -P cmake/DcmtkTools.cmake
foreach(tool dcmodify dcmdump)
    string(TOUPPER DRAVOLIN_${tool} variable)
    find_program(${variable} ${tool})
    if(NOT ${variable})
        message(FATAL_ERROR "The tool '${tool}' was not found. On Debian: apt-get install dcmtk")
    endif()
endforeach()

file(GLOB dictionary_folders /usr/share/libdcmtk* /usr/share/dcmtk /usr/local/share/dcmtk*)
find_file(DRAVOLIN_DICOM_DIC dicom.dic PATHS ${dictionary_folders})
if(NOT DRAVOLIN_DICOM_DIC)
    message(FATAL_ERROR "The data dictionary 'dicom.dic' was not found. "
        "On Debian it comes with the library of dcmtk: apt-get install dcmtk libdcmtk17")
endif()
