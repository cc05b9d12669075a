"""The recipes of docs/architecture.md, "How to add", each carried out for something made up."""

from dataclasses import dataclass

MOST_SOURCES = 3
MOST_TESTS = 1


@dataclass(frozen=True)
class Rows:
    """Lines put before the line of a file that begins with `before`, or at its end without one."""

    path: str
    text: str
    before: str = ""


@dataclass(frozen=True)
class File:
    """A new file."""

    path: str
    text: str


@dataclass(frozen=True)
class Recipe:
    name: str
    steps: tuple
    # The document that repeats the new row.
    derived: str = ""

    @property
    def paths(self):
        return sorted({step.path for step in self.steps})

    @property
    def sources(self):
        return [path for path in self.paths if path.startswith(("src/", "உள்ளடக்கம்/", "cmake/"))]

    @property
    def tests(self):
        return [path for path in self.paths if path.startswith("tests/")]


BUILT_IN = Recipe(
    "built-in",
    (
        Rows(
            "src/generator/first/runtime/library.h",
            "\n// ஐம்மடங்கு\ninline std::any fn_ஐம்மடங்கு(const std::any& value) {\n"
            "    return std::any(5LL * std::any_cast<long long>(value));\n}\n",
        ),
        Rows(
            "src/language/builtins.cpp",
            '    {"ஐம்மடங்கு", Form::Call, Topic::Mathematics, 1,\n'
            '     "fn_ஐம்மடங்கு($A)",\n'
            '     WrongCount::Report, "",\n'
            '     ResultRule::Unknown, VarType::Any, {"மதிப்பு"}, {"எண்", "number"},\n'
            '     {"ஐந்து மடங்கு", "five times the value"}},\n',
            before="    // Input and files.",
        ),
        File(
            "tests/language/உள்ளமை_செயல்கள்/ஐம்மடங்கு.பொழில்",
            "அச்சிடு(ஐம்மடங்கு(14))\nஃ> வெளியீடு: 70\n",
        ),
    ),
    derived="docs/மொழி/13_உள்ளமை_செயல்கள்.md",
)

DIAGNOSTIC = Recipe(
    "diagnostic",
    (
        Rows(
            "உள்ளடக்கம்/error_codes.h",
            '    {"பொழி-226", "ஓடாத சுற்று.",\n     "எப்போதாவது மெய்யாகும் நிபந்தனையை எழுது மச்சி!"},\n',
            before='    {"பொழி-231",',
        ),
        Rows(
            "src/language/diagnostic_causes.cpp",
            '    {"பொழி-226", {"`சுற்று பொய்:`", "A loop that never runs."}},\n',
            before='    {"பொழி-231",',
        ),
        Rows(
            "src/parser/grammar/control_flow.cpp",
            '    if (const auto* truth = nodeCast<BooleanLiteral>(condition.get()); truth && truth->value == "பொய்") {\n'
            '        cursor_.பிழை("பொழி-226", cursor_.peek().line);\n'
            "    }\n",
            before="    return std::make_unique<WhileStatement>(",
        ),
        File(
            "tests/language/இலக்கணம்_கூற்றுகள்/ஓடாத_சுற்று.பொழில்",
            "அ = 1\nசுற்று பொய்:\n    அ = 2\nஃ> பிழை: பொழி-226 வரி 2\n",
        ),
    ),
    derived="docs/பிழைகள்.md",
)

WIDGET = Recipe(
    "widget",
    (
        Rows(
            "src/language/widget_words.h",
            'constexpr std::string_view DOT = "நுண்புள்ளி";\n',
            before="constexpr std::string_view DIVIDER",
        ),
        Rows(
            "src/language/widgets/indicators.cpp",
            "constexpr WidgetProperty DOT_PROPERTIES[] = {\n"
            '    {property::COLOUR, "", ValueKind::Colour, {"புள்ளியின் நிறம்", "colour of the dot"}},\n'
            "};\n\n",
            before="constexpr WidgetProperty DIVIDER_PROPERTIES",
        ),
        Rows(
            "src/language/widgets/indicators.cpp",
            "    {widget::DOT, TokenType::IDENTIFIER, false, Start::Nothing, Form::General, Role::Widget, DOT_PROPERTIES,\n"
            '     {"ஒரு புள்ளி", "a dot"}},\n',
            before="    {widget::DIVIDER,",
        ),
        File(
            "src/generator/web/widgets/dot.cpp",
            '#include "generator/web/measure/metric_rules.h"\n'
            '#include "generator/web/write/colours.h"\n'
            '#include "generator/web/write/literals.h"\n'
            '#include "generator/web/write/widget_writer.h"\n'
            '#include "language/widget_words.h"\n\n'
            "namespace pozhil {\nnamespace {\n\n"
            "/// நுண்புள்ளி: a dot.\n"
            "void emitDot(WidgetWriter& dot) {\n"
            '    dot.block(R"(\n{\n    nvgBeginPath(vg);\n    nvgCircle(vg, $x + 5.0f, $y + 5.0f, 5.0f);\n'
            '    nvgFillColor(vg, $colour);\n    nvgFill(vg);\n}\n)",\n'
            '              {{"colour", byteColourText(colourProperty(dot.widget(), {"நிறம்"}, "#000000"))}});\n'
            "}\n\n} // namespace\n\n"
            "extern const WidgetKind DOT = {language::widget::DOT, emitDot, sized<10>, sized<10>};\n\n"
            "} // namespace pozhil\n",
        ),
        File(
            "tests/language/சட்டகம்/நுண்புள்ளி.பொழில்",
            "வலைதளம் (\n    தலைமை()\n    குமரி(\n        நெடுவரிசை(நுண்புள்ளி(நிறம்: \"#FF0000\"))\n    )\n    வரையறை()\n)\n"
            "ஃ> உருவாக்கம்: void render_frame() {\nஃ> உருவாக்கம்: nvgFillColor(vg, nvgRGBA(255, 0, 0, 255));\n",
        ),
    ),
)

KEYWORD = Recipe(
    "keyword",
    (
        Rows(
            "src/language/keywords.cpp",
            '    {"வீணே", TokenType::KEYWORD},\n',
            before='    {"விடு", TokenType::KEYWORD},',
        ),
        Rows(
            "src/parser/grammar/statements.cpp",
            '        {"வீணே", singleWord<PassStatement>},\n',
            before='        {"விடு", singleWord<PassStatement>},',
        ),
        File(
            "tests/language/கூற்றுகள்/வீணே.பொழில்",
            "எனில் மெய்:\n    வீணே\nஅச்சிடு(1)\nஃ> வெளியீடு: 1\n",
        ),
    ),
    derived="docs/மொழி/03_பெயர்கள்.md",
)

RECIPES = (BUILT_IN, DIAGNOSTIC, WIDGET, KEYWORD)
