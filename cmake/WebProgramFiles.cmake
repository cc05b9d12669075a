# What the installation holds ready so that web programs build, and build fast. It is made by the em++ that builds those
# programs. Without em++ or the sources, which scripts/setup-web brings, the installation is for console programs only;
# so it is in debug builds, to spare them the work.

find_program(POZHIL_EMXX em++)
find_path(POZHIL_STB stb_truetype.h PATH_SUFFIXES stb)
set(nanovg ${PROJECT_SOURCE_DIR}/third_party/nanovg/src)
set(nanosvg ${PROJECT_SOURCE_DIR}/third_party/nanosvg/src)

set(web_objects)
set(web_headers)
set(web_precompiled_headers)
if(CMAKE_BUILD_TYPE STREQUAL Debug)
    return()
endif()
if(NOT POZHIL_EMXX OR NOT POZHIL_STB OR NOT EXISTS ${nanovg}/nanovg.c OR NOT EXISTS ${nanosvg}/nanosvg.h)
    message(STATUS "No parts for web programs; scripts/setup-web installs what they take")
    return()
endif()

# The compiler builds web programs with the same: without it, a program that throws ends even where it would catch. The
# other kind of exceptions, by JavaScript, takes three times as long in programs that aren't optimised.
set(exceptions -fwasm-exceptions)

# add_web_program_file(<output> <source> <argument>...): compiles with em++ and tracks what the source includes.
function(add_web_program_file output source)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${POZHIL_EMXX} -c ${ARGN} ${source} -o ${output} ${exceptions} -MD -MF ${output}.d
        DEPENDS ${source}
        DEPFILE ${output}.d
        COMMENT "Compiling ${output}"
        VERBATIM)
endfunction()

set(web_headers ${nanovg}/nanovg.h ${nanovg}/nanovg_gl.h ${nanosvg}/nanosvg.h ${nanosvg}/nanosvgrast.h)
set(web_objects ${PROJECT_BINARY_DIR}/generated/error_handler_web.o ${PROJECT_BINARY_DIR}/generated/nanovg_web.o)
list(GET web_objects 0 web_reporter_object)
list(GET web_objects 1 nanovg_object)
add_web_program_file(
    ${web_reporter_object} ${PROJECT_SOURCE_DIR}/src/error_handler.cpp -O2 -std=c++17
    -I ${PROJECT_SOURCE_DIR}/உள்ளடக்கம்)
add_web_program_file(${nanovg_object} ${nanovg}/nanovg.c -O2 -x c -I ${POZHIL_STB})

# The headers of the toolchain that a web program includes, and none of our own, which lie elsewhere once installed:
# unlike g++, em++ fails where a file in the precompiled headers is not what it was.
file(GLOB runtime_files CONFIGURE_DEPENDS src/generator/runtime/*.h)
set(includes)
foreach(file IN LISTS runtime_files)
    file(STRINGS ${file} lines REGEX "^#include <")
    list(TRANSFORM lines REPLACE "^#include <(.*)>$" "-include;\\1")
    list(APPEND includes ${lines})
endforeach()
set(web_precompiled_headers ${PROJECT_BINARY_DIR}/generated/web_headers.pch)
add_web_program_file(
    ${web_precompiled_headers} /dev/null -x c++-header -fpch-instantiate-templates -std=c++17 -finput-charset=UTF-8
    ${includes})

add_custom_target(web_program_files DEPENDS ${web_objects} ${web_precompiled_headers})
