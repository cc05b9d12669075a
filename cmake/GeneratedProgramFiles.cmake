# What the installation holds ready so that generated programs compile fast. It is made by the g++ that compiles those
# programs, with the flags of their compile line, whatever the compiler itself is built with.

find_program(POZHIL_GXX g++ REQUIRED)

# add_generated_program_file(<output> <source> <argument>...): compiles with g++ and tracks what the source includes.
function(add_generated_program_file output source)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${POZHIL_GXX} ${ARGN} ${source} -o ${output} -std=c++17 -I ${PROJECT_SOURCE_DIR}/உள்ளடக்கம்
                -MD -MF ${output}.d
        DEPENDS ${source}
        DEPFILE ${output}.d
        COMMENT "Compiling ${output}"
        VERBATIM)
endfunction()

# The compiler looks for the object under this name on every system.
set(reporter_object ${PROJECT_BINARY_DIR}/generated/error_handler_native_windows.o)
# Optimised, since the containers and values of every program run in it, whatever the program is compiled with.
add_generated_program_file(${reporter_object} ${PROJECT_SOURCE_DIR}/src/diagnostics/error_handler.cpp -c -O2)

# g++ ignores this file without a word where it does not fit, as with other flags or after an update of g++.
set(precompiled_headers ${PROJECT_BINARY_DIR}/generated/iostream.gch)
add_generated_program_file(
    ${precompiled_headers} ${PROJECT_SOURCE_DIR}/src/installation/precompiled_headers.h -x c++-header)

# A target of its own, so that these are made while the compiler is still being compiled.
add_custom_target(generated_program_files DEPENDS ${reporter_object} ${precompiled_headers})
