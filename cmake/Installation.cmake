# The installation: one folder, which can stand anywhere, since the compiler finds everything from its own place.

set(CMAKE_INSTALL_MESSAGE LAZY)

install(TARGETS pozhil pozhil_command DESTINATION .)
# The command's name in letters that every keyboard has.
set(command_link ${PROJECT_BINARY_DIR}/generated/pozhil)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/generated)
file(CREATE_LINK பொழில் ${command_link} SYMBOLIC)
install(FILES ${command_link} DESTINATION .)
install(DIRECTORY உள்ளடக்கம்/ DESTINATION உள்ளடக்கம்)
install(FILES ${precompiled_headers} ${web_precompiled_headers} DESTINATION உள்ளடக்கம்)
install(FILES ${web_headers} DESTINATION உள்ளடக்கம்/nanovg)
install(FILES ${engine_headers} DESTINATION உள்ளடக்கம்/engine)
install(FILES ${report_headers} DESTINATION உள்ளடக்கம்/report)
install(FILES ${reporter_object} ${engine_archive} ${web_objects} DESTINATION திரட்டு)
# g++ compiles the report from these where its object is missing.
set(reporter_source ${PROJECT_SOURCE_DIR}/src/diagnostics/error_handler.cpp)
file(GLOB last_word_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/diagnostics/last_word/*.h)
install(FILES ${reporter_source} DESTINATION src)
install(FILES ${last_word_sources} DESTINATION src/last_word)
install(DIRECTORY DESTINATION தொகுப்புகள்)
install(DIRECTORY தொகுப்புகள்/ DESTINATION தொகுப்புகள் OPTIONAL PATTERN சோதனைகள் EXCLUDE PATTERN .நிலையற்ற EXCLUDE)

# Every build lays down the same folder in its own directory, for use in place.
set(stage ${PROJECT_BINARY_DIR}/பொழில்)
file(GLOB_RECURSE installed_files CONFIGURE_DEPENDS உள்ளடக்கம்/* தொகுப்புகள்/*)
list(FILTER installed_files EXCLUDE REGEX "/தொகுப்புகள்/(சோதனைகள்|.நிலையற்ற)/")
# The list is a file of its own, so that a deleted header or module disappears from the folder too.
file(CONFIGURE OUTPUT generated/installed_files.txt CONTENT "${installed_files};${last_word_sources};${engine_headers};${report_headers};${web_objects};${web_headers}")

add_custom_command(
    OUTPUT ${stage}/பொழி
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${stage}/உள்ளடக்கம் ${stage}/திரட்டு ${stage}/src ${stage}/தொகுப்புகள்
    COMMAND ${CMAKE_COMMAND} -E env --unset=DESTDIR ${CMAKE_COMMAND} --install ${PROJECT_BINARY_DIR} --prefix ${stage}
    COMMAND ${CMAKE_COMMAND} -E touch ${stage}/பொழி
    DEPENDS pozhil pozhil_command ${precompiled_headers} ${reporter_object} ${reporter_source} ${last_word_sources}
            ${engine_archive} ${engine_headers} ${report_headers}
            ${web_objects} ${web_headers} ${web_precompiled_headers}
            ${installed_files} ${PROJECT_BINARY_DIR}/generated/installed_files.txt
    COMMENT "Staging the installation"
    VERBATIM)
add_custom_target(installation ALL DEPENDS ${stage}/பொழி)
add_dependencies(installation generated_program_files engine_archive)
if(TARGET web_program_files)
    add_dependencies(installation web_program_files)
endif()
