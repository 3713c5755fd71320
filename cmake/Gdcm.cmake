# Gdcm::Gdcm, the library that check/ reads objects with. Its own package file asks for tools that libgdcm-dev does not
# bring.
include_guard(GLOBAL)

find_path(GDCM_INCLUDE_DIR gdcmReader.h PATH_SUFFIXES gdcm-3.0)
foreach(part MSFF DSED DICT Common)
    find_library(GDCM_${part}_LIBRARY gdcm${part})
    mark_as_advanced(GDCM_${part}_LIBRARY)
    list(APPEND gdcm_libraries ${GDCM_${part}_LIBRARY})
endforeach()
mark_as_advanced(GDCM_INCLUDE_DIR)
if(NOT GDCM_INCLUDE_DIR OR NOT GDCM_MSFF_LIBRARY OR NOT GDCM_Common_LIBRARY)
    message(FATAL_ERROR "GDCM was not found. On Debian: apt-get install libgdcm-dev")
endif()

add_library(Gdcm::Gdcm INTERFACE IMPORTED GLOBAL)
target_include_directories(Gdcm::Gdcm INTERFACE ${GDCM_INCLUDE_DIR})
target_link_libraries(Gdcm::Gdcm INTERFACE ${gdcm_libraries})
