# Gmp::Gmp, the arbitrary precision library that tests and benchmarks compare BigInt with. The program itself does
# not use it.
include_guard(GLOBAL)

find_path(GMP_INCLUDE_DIR gmp.h)
find_library(GMP_LIBRARY gmp)
mark_as_advanced(GMP_INCLUDE_DIR GMP_LIBRARY)
if(NOT GMP_INCLUDE_DIR OR NOT GMP_LIBRARY)
    message(FATAL_ERROR "GMP was not found; tests and benchmarks need it. On Debian: apt-get install libgmp-dev")
endif()

add_library(Gmp::Gmp INTERFACE IMPORTED GLOBAL)
target_include_directories(Gmp::Gmp INTERFACE ${GMP_INCLUDE_DIR})
target_link_libraries(Gmp::Gmp INTERFACE ${GMP_LIBRARY})
