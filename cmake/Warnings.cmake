# Compile options that every target of this project shares.
add_library(dravolin_warnings INTERFACE)
target_compile_options(dravolin_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
target_compile_definitions(dravolin_warnings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(DRAVOLIN_WERROR)
    target_compile_options(dravolin_warnings INTERFACE -Werror)
endif()
if(DRAVOLIN_SANITIZE STREQUAL "address")
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
elseif(DRAVOLIN_SANITIZE STREQUAL "thread")
    set(sanitizers -fsanitize=thread -fno-omit-frame-pointer)
elseif(DRAVOLIN_SANITIZE)
    message(FATAL_ERROR "DRAVOLIN_SANITIZE is address, thread or empty, not '${DRAVOLIN_SANITIZE}'")
endif()
if(DRAVOLIN_SANITIZE)
    list(APPEND sanitizers -g1) # lines are all that their reports show
endif()
if(DRAVOLIN_FUZZ)
    # a library's failed assertion then ends the process, as a finding
    target_compile_definitions(dravolin_warnings INTERFACE FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
    target_compile_options(dravolin_warnings INTERFACE -fsanitize=fuzzer-no-link)
endif()
target_compile_options(dravolin_warnings INTERFACE ${sanitizers})
target_link_options(dravolin_warnings INTERFACE ${sanitizers})

# A fault in memory is to end the program, not to be used by what it reads. What is compiled in is for what is shipped;
# scripts/check-hardening.sh and the tests see that it is there.
if(NOT DRAVOLIN_SANITIZE)
    target_compile_options(dravolin_warnings INTERFACE $<$<CONFIG:Release>:-fstack-protector-strong
        -fstack-clash-protection -fcf-protection -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3>)
    target_link_options(dravolin_warnings INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack
        $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()
