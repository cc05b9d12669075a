# What the installation holds ready so that web programs build, and build fast. It is made by the em++ that builds those
# programs. Without em++ or the sources, which scripts/setup-web brings, the installation is for console programs only;
# so it is in debug builds, to spare them the work.

find_program(POZHIL_EMXX em++)
find_program(POZHIL_EMAR emar)
find_path(POZHIL_STB stb_truetype.h PATH_SUFFIXES stb)
set(nanovg ${PROJECT_SOURCE_DIR}/third_party/nanovg/src)
set(nanosvg ${PROJECT_SOURCE_DIR}/third_party/nanosvg/src)
set(utf8proc ${PROJECT_SOURCE_DIR}/third_party/utf8proc)

set(web_objects)
set(web_headers)
set(web_precompiled_headers)
if(CMAKE_BUILD_TYPE STREQUAL Debug)
    return()
endif()
if(NOT POZHIL_EMXX OR NOT POZHIL_EMAR OR NOT POZHIL_STB OR NOT EXISTS ${nanovg}/nanovg.c
   OR NOT EXISTS ${nanosvg}/nanosvg.h OR NOT EXISTS ${utf8proc}/utf8proc.c)
    message(STATUS "No parts for web programs; scripts/setup-web installs what they take")
    return()
endif()

# The compiler builds web programs with the same: without it, a program that throws ends even where it would catch. The
# other kind of exceptions, by JavaScript, takes three times as long in programs that aren't optimised. All objects of a
# program must mean the same by std::function.
set(program_flags -fwasm-exceptions -D_LIBCPP_ABI_OPTIMIZED_FUNCTION)
set(web_parts ${PROJECT_BINARY_DIR}/generated)

# add_web_program_file(<output> <source> <argument>...): compiles with em++ and tracks what the source includes. em++
# reads the source from standard input, so that what it makes doesn't depend on where the source lies.
function(add_web_program_file output source)
    add_custom_command(
        OUTPUT ${output}
        COMMAND sh -c "source=$1 && shift && exec \"$@\" <\"$source\"" sh ${source}
                ${POZHIL_EMXX} -c ${ARGN} - -o ${output} ${program_flags} -MD -MF ${output}.d
        DEPENDS ${source}
        DEPFILE ${output}.d
        COMMENT "Compiling ${output}"
        VERBATIM)
endfunction()

# add_drawing_header(<header> <line>...): the header for web programs, which begins with these lines. They tell it to
# declare only, whatever the program says, since nanovg_web.o holds the code.
function(add_drawing_header header)
    get_filename_component(name ${header} NAME)
    file(READ ${header} text)
    list(JOIN ARGN "\n" lines)
    file(CONFIGURE OUTPUT ${web_parts}/nanovg/${name} CONTENT "${lines}\n${text}" @ONLY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
    list(APPEND web_headers ${web_parts}/nanovg/${name})
    set(web_headers ${web_headers} PARENT_SCOPE)
endfunction()

list(APPEND web_headers ${nanovg}/nanovg.h)
add_drawing_header(${nanosvg}/nanosvg.h "#undef NANOSVG_IMPLEMENTATION")
add_drawing_header(${nanosvg}/nanosvgrast.h "#undef NANOSVGRAST_IMPLEMENTATION")
add_drawing_header(${nanovg}/nanovg_gl.h "#undef NANOVG_GLES2_IMPLEMENTATION" "#define NANOVG_GLES2 1")

set(nanovg_object ${web_parts}/nanovg_web.o)
add_web_program_file(
    ${nanovg_object} ${PROJECT_SOURCE_DIR}/src/installation/web_drawing.c -O2 -x c
    -I ${PROJECT_SOURCE_DIR}/src/installation -I ${nanovg} -I ${nanosvg} -I ${POZHIL_STB})

# The headers of the toolchain that a web program includes, and none of our own, which lie elsewhere once installed:
# unlike g++, em++ fails where a file in the precompiled headers is not what it was. What else they are to hold is read
# as one text from standard input, for the same reason.
file(GLOB runtime_files CONFIGURE_DEPENDS src/generator/first/runtime/*.h src/generator/web/runtime/*.h)
set(includes)
foreach(file IN LISTS runtime_files)
    file(STRINGS ${file} lines REGEX "^#include <")
    list(TRANSFORM lines REPLACE "^#include <(.*)>$" "-include;\\1")
    list(APPEND includes ${lines})
endforeach()
set(shared_templates ${web_parts}/web_shared_templates.h)
set(shared_template_parts
    ${PROJECT_SOURCE_DIR}/உள்ளடக்கம்/error_record.h ${PROJECT_SOURCE_DIR}/src/installation/web_shared_templates.h)
add_custom_command(
    OUTPUT ${shared_templates}
    COMMAND sh -c "output=$1 && shift && exec cat \"$@\" >\"$output\"" sh ${shared_templates} ${shared_template_parts}
    DEPENDS ${shared_template_parts}
    VERBATIM)
set(web_precompiled_headers ${web_parts}/web_headers.pch)
add_web_program_file(
    ${web_precompiled_headers} ${shared_templates} -x c++-header -fpch-instantiate-templates -fpch-codegen -std=c++17
    -finput-charset=UTF-8 ${includes})

# Beside the reporter, its object holds what pages ask of their programs, and the code of the precompiled headers, which
# programs that use them leave out.
set(web_reporter ${web_parts}/web_reporter.o)
set(web_headers_code ${web_parts}/web_headers.o)
set(web_reporter_object ${web_parts}/error_handler_web.o)
add_web_program_file(
    ${web_reporter} ${PROJECT_SOURCE_DIR}/src/diagnostics/error_handler.cpp -x c++ -O2 -std=c++17
    -I ${PROJECT_SOURCE_DIR}/உள்ளடக்கம்)
set(web_page_questions)
foreach(name web_page_state web_memory_sum)
    add_web_program_file(
        ${web_parts}/${name}.o ${PROJECT_SOURCE_DIR}/src/installation/${name}.cpp -x c++ -O2 -std=c++17)
    list(APPEND web_page_questions ${web_parts}/${name}.o)
endforeach()
add_custom_command(
    OUTPUT ${web_reporter_object}
    COMMAND ${POZHIL_EMXX} -c -x none ${web_precompiled_headers} -o ${web_headers_code} -O2 ${program_flags}
    COMMAND ${POZHIL_EMXX} -r -nostdlib ${web_reporter} ${web_page_questions} ${web_headers_code} -o ${web_reporter_object}
    DEPENDS ${web_reporter} ${web_page_questions} ${web_precompiled_headers}
    BYPRODUCTS ${web_headers_code}
    COMMENT "Compiling ${web_reporter_object}"
    VERBATIM)

# Utf8proc with tables that are a third as large: what few characters have is looked up in lists of these characters.
set(small_utf8proc ${web_parts}/utf8proc)
add_executable(letter_tables EXCLUDE_FROM_ALL ${PROJECT_SOURCE_DIR}/src/installation/letter_tables.cpp)
target_include_directories(letter_tables SYSTEM PRIVATE ${utf8proc})
add_custom_command(
    OUTPUT ${small_utf8proc}/utf8proc_data.c
    COMMAND letter_tables > ${small_utf8proc}/utf8proc_data.c
    DEPENDS letter_tables
    COMMENT "Writing ${small_utf8proc}/utf8proc_data.c"
    VERBATIM)
file(READ ${utf8proc}/utf8proc.c utf8proc_text)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${utf8proc}/utf8proc.c)
foreach(looked_up IN ITEMS
        "(property->decomp_seqindex,|(decomp_seqindex_of(uc),"
        "starter_property->comb_index|comb_index_of(*starter)"
        "current_property->comb_index|comb_index_of(current_char)"
        "utf8proc_get_property(c)->lowercase_seqindex|lowercase_seqindex_of(c)"
        "utf8proc_get_property(c)->uppercase_seqindex|uppercase_seqindex_of(c)")
    string(REPLACE "|" ";" looked_up ${looked_up})
    list(GET looked_up 0 field)
    list(GET looked_up 1 call)
    string(FIND "${utf8proc_text}" "${field}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "${utf8proc}/utf8proc.c has no ${field}")
    endif()
    string(REPLACE "${field}" "${call}" utf8proc_text "${utf8proc_text}")
endforeach()
file(CONFIGURE OUTPUT ${small_utf8proc}/utf8proc.c CONTENT "${utf8proc_text}" @ONLY)
set(utf8proc_object ${web_parts}/engine_web/utf8proc.o)
add_web_program_file(
    ${utf8proc_object} ${small_utf8proc}/utf8proc.c -O2 -x c -I ${small_utf8proc} -I ${utf8proc} -D UTF8PROC_STATIC)
add_custom_command(OUTPUT ${utf8proc_object} DEPENDS ${small_utf8proc}/utf8proc_data.c APPEND)

# The engine for web programs: the same code as for others, but for the sources of the system that it runs on.
set(web_engine_objects ${utf8proc_object})
foreach(source IN LISTS engine_sources web_engine_sources)
    engine_object(object engine_web ${source})
    add_web_program_file(
        ${object} ${source} -x c++ -O2 -std=c++17 -I ${PROJECT_SOURCE_DIR}/src -I ${utf8proc} -D UTF8PROC_STATIC)
    list(APPEND web_engine_objects ${object})
endforeach()
file(MAKE_DIRECTORY ${web_parts}/engine_web)

set(web_engine_archive ${web_parts}/libpozhil_engine_web.a)
# The list of objects is a file, so that one that is gone leaves the archive.
file(CONFIGURE OUTPUT generated/web_engine_objects.txt CONTENT "${web_engine_objects}")
add_custom_command(
    OUTPUT ${web_engine_archive}
    COMMAND ${CMAKE_COMMAND} -E rm -f ${web_engine_archive}
    COMMAND ${POZHIL_EMAR} rcs ${web_engine_archive} ${web_engine_objects}
    DEPENDS ${web_engine_objects} ${web_parts}/web_engine_objects.txt
    COMMENT "Archiving ${web_engine_archive}"
    VERBATIM)

set(web_objects ${web_reporter_object} ${nanovg_object} ${web_engine_archive})
add_custom_target(web_program_files DEPENDS ${web_objects} ${web_precompiled_headers})
