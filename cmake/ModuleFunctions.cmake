# Writes the C++ source that names the functions of the modules that come with the language, as
# src/language/second/module_functions.h declares them.
#
#   cmake -D "FILES=<module;...>" -D OUTPUT=<source> -P ModuleFunctions.cmake

foreach(file IN LISTS FILES)
    get_filename_component(module ${file} NAME_WE)
    file(STRINGS "${file}" definitions REGEX "^செயல் " ENCODING UTF-8)
    foreach(definition IN LISTS definitions)
        string(REGEX REPLACE "^செயல் ([^(]+)\\(.*" "\\1" name "${definition}")
        # What a module has for itself says so by its name.
        if(NOT name MATCHES "_உதவி_")
            string(APPEND rows "    {\"${name}\", \"${module}\"},\n")
        endif()
    endforeach()
endforeach()
if(NOT rows)
    message(FATAL_ERROR "no module defines a function: ${FILES}")
endif()
file(WRITE "${OUTPUT}" "#include \"language/second/module_functions.h\"

namespace pozhil::language::second {
namespace {

constexpr ModuleFunction FUNCTIONS[] = {
${rows}};

} // namespace

Rows<ModuleFunction> moduleFunctions() {
    return FUNCTIONS;
}

} // namespace pozhil::language::second
")
