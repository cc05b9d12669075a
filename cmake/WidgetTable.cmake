# Writes the C++ source that gathers the rows that the files of widgets end in, as src/generator/web/page/widget_table.h
# declares them.
#
#   cmake -D "FILES=<file;...>" -D OUTPUT=<source> -P WidgetTable.cmake

foreach(file IN LISTS FILES)
    file(STRINGS "${file}" rows REGEX "^extern const WidgetKind [A-Z_]+ = ")
    foreach(row IN LISTS rows)
        string(REGEX REPLACE "^extern const WidgetKind ([A-Z_]+) = .*" "\\1" name "${row}")
        string(APPEND declarations "extern const WidgetKind ${name};\n")
        string(APPEND addresses "    &${name},\n")
    endforeach()
endforeach()
file(WRITE "${OUTPUT}" "#include \"generator/web/page/widget_table.h\"

namespace pozhil {

${declarations}
namespace {

constexpr const WidgetKind* KINDS[] = {
${addresses}};

} // namespace

language::Rows<const WidgetKind*> widgetKinds() {
    return KINDS;
}

} // namespace pozhil
")
