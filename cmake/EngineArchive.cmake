# What programs of the second edition are compiled and linked with: the headers of the engine, and an archive of its
# code, that of its reports and that of utf8proc, so that building a program takes nothing but g++.

# The headers that programs see are those that program.h names, those of pages, and the report's; the others are the
# engine's own.
set(engine_directory ${PROJECT_SOURCE_DIR}/src/engine)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${engine_directory}/program.h)
file(STRINGS ${engine_directory}/program.h engine_headers REGEX "^#include \"engine/")
list(TRANSFORM engine_headers REPLACE "^#include \"engine/(.*)\"$" "${engine_directory}/\\1")
list(APPEND engine_headers ${engine_directory}/program.h ${engine_directory}/page.h
     ${engine_directory}/kept_state.h ${engine_directory}/layers.h ${engine_directory}/stopping.h)
set(report_headers ${PROJECT_SOURCE_DIR}/src/report/box.h)

file(GLOB engine_sources CONFIGURE_DEPENDS ${engine_directory}/*.cpp ${PROJECT_SOURCE_DIR}/src/report/*.cpp)
file(GLOB native_engine_sources CONFIGURE_DEPENDS ${engine_directory}/native/*.cpp)
file(GLOB web_engine_sources CONFIGURE_DEPENDS ${engine_directory}/web/*.cpp)

# engine_object(<variable> <directory> <source>): where a source of the engine is compiled to.
function(engine_object variable directory source)
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/src OUTPUT_VARIABLE name)
    string(REPLACE / _ name ${name})
    set(${variable} ${PROJECT_BINARY_DIR}/generated/${directory}/${name}.o PARENT_SCOPE)
endfunction()

set(engine_objects)
foreach(source IN LISTS engine_sources native_engine_sources)
    engine_object(object engine ${source})
    add_generated_program_file(
        ${object} ${source} -c -O2 -I ${PROJECT_SOURCE_DIR}/src -I ${POZHIL_UTF8PROC_HEADERS} -D UTF8PROC_STATIC)
    list(APPEND engine_objects ${object})
endforeach()
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/generated/engine)

set(engine_archive ${PROJECT_BINARY_DIR}/generated/libpozhil_engine.a)
# The archive begins as a copy of utf8proc's. The list of objects is a file, so that one that is gone leaves it.
file(CONFIGURE OUTPUT generated/engine_objects.txt CONTENT "${engine_objects}")
add_custom_command(
    OUTPUT ${engine_archive}
    COMMAND ${CMAKE_COMMAND} -E copy ${POZHIL_UTF8PROC_ARCHIVE} ${engine_archive}
    COMMAND ${CMAKE_AR} rcs ${engine_archive} ${engine_objects}
    DEPENDS ${engine_objects} ${POZHIL_UTF8PROC_ARCHIVE} ${PROJECT_BINARY_DIR}/generated/engine_objects.txt
    COMMENT "Archiving ${engine_archive}"
    VERBATIM)
add_custom_target(engine_archive DEPENDS ${engine_archive})
