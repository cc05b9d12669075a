# Writes the C++ source that defines the constants of a header, each the whole text of one file: that of frame_head.cpp.in
# or database_loader.js is called frame_head or database_loader.
#
#   cmake -D "FILES=<file;...>" -D HEADER=<header> -D TYPE=<type of the constants> -D NAMESPACE=<namespace>
#         -D OUTPUT=<source> -P EmbedTexts.cmake

set(delimiter "emitted_text")
set(source "#include \"${HEADER}\"\n")
foreach(file IN LISTS FILES)
    file(READ "${file}" text)
    string(FIND "${text}" ")${delimiter}\"" end_of_literal)
    if(NOT end_of_literal EQUAL -1)
        message(FATAL_ERROR "${file}: holds the raw string delimiter '${delimiter}', choose another one")
    endif()
    get_filename_component(name "${file}" NAME_WE)
    # The qualified name makes the compiler refuse a text that the header does not declare; constexpr, one that its type
    # refuses.
    string(APPEND source "\nconstexpr ${TYPE} ${NAMESPACE}::${name} = R\"${delimiter}(${text})${delimiter}\";\n")
endforeach()
file(WRITE "${OUTPUT}" "${source}")
