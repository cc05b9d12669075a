# Writes the C++ source that defines the constants of src/generator/first/runtime_text.h: for each section the text behind
# the marker line of its file, byte for byte.
#
#   cmake -D SECTIONS=<name;...> -D DIRECTORY=<folder of the files> -D OUTPUT=<source> -P EmbedRuntime.cmake

set(marker "\n// --- emitted from here ---\n")
set(delimiter "emitted_text")
string(LENGTH "${marker}" marker_length)

set(source "#include \"generator/first/runtime_text.h\"\n")
foreach(section IN LISTS SECTIONS)
    set(file "${DIRECTORY}/${section}.h")
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
    # The qualified name makes the compiler refuse a section that the header does not declare.
    string(APPEND source "\nconstexpr std::string_view pozhil::runtime::${section} = "
                         "R\"${delimiter}(${text})${delimiter}\";\n")
endforeach()
file(WRITE "${OUTPUT}" "${source}")
