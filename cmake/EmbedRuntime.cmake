# Writes the C++ source that defines the constants of a header: for each file the text after its marker line, byte for byte.
# That of scrolling.h is called scrolling.
#
#   cmake -D "FILES=<file;...>" -D HEADER=<header> -D NAMESPACE=<namespace> -D OUTPUT=<source> -P EmbedRuntime.cmake

set(marker "\n// --- emitted from here ---\n")
set(delimiter "emitted_text")
string(LENGTH "${marker}" marker_length)

set(source "#include \"${HEADER}\"\n")
foreach(file IN LISTS FILES)
    file(READ "${file}" content)
    string(FIND "${content}" "${marker}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "${file}: the line '// --- emitted from here ---' is missing")
    endif()
    math(EXPR position "${position} + ${marker_length}")
    string(SUBSTRING "${content}" ${position} -1 text)
    string(FIND "${text}" ")${delimiter}\"" end_of_literal)
    if(NOT end_of_literal EQUAL -1)
        message(FATAL_ERROR "${file}: holds the raw string delimiter '${delimiter}', choose another one")
    endif()
    get_filename_component(section "${file}" NAME_WE)
    # The qualified name makes the compiler refuse a section that the header does not declare.
    string(APPEND source "\nconstexpr std::string_view ${NAMESPACE}::${section} = "
                         "R\"${delimiter}(${text})${delimiter}\";\n")
endforeach()
file(WRITE "${OUTPUT}" "${source}")
