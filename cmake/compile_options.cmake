# Compiler options of everything that is ours. Warnings are errors; floating point keeps the order and
# rounding of the source on every build (no contraction), so that both builds give the same digits.
set(KX7_SANITIZE "" CACHE STRING "Sanitizers to build with, for instance address,undefined")

function(kx7_set_compile_options target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Werror -ffp-contract=off)
    if(WIN32)
        # One self-contained file: no run-time libraries of the toolchain to ship.
        target_link_options(${target} PRIVATE -static)
        target_compile_options(${target} PRIVATE -Wa,-mbig-obj)
        target_compile_definitions(${target} PUBLIC NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
    endif()
    if(KX7_SANITIZE)
        target_compile_options(
            ${target} PRIVATE -fsanitize=${KX7_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${KX7_SANITIZE})
    endif()
endfunction()
