#include "tools/new/starter_files.h"

#include "base/text.h"

namespace pozhil::tools {
namespace {

/// Of the file that the compiler takes where none is named.
constexpr const char* PROGRAM_NAME = "முதன்மை.பொழில்";
constexpr const char* SECOND_EDITION = "ஃ பொழில் 2\n";
constexpr const char* NAME_HOLE = "@NAME@";

constexpr const char* CONSOLE_PROGRAM = R"(ஃ வாழ்த்தும் நிரல்

செயல் வாழ்த்து(பெயர்):
    திரும்பு "வணக்கம், " இணை பெயர் இணை "!"

அச்சிடு(வாழ்த்து("உலகே"))
)";

constexpr const char* APPLICATION = R"(ஃ பொத்தானை அழுத்தினால் எண்ணும் வலைச் செயலி

வலைதளம் எண்ணி (
    தலைமை(இணைய_தலைப்பு: "எண்ணி")
    குமரி(
        நெடுவரிசை(சீரமைப்பு: மையம், இடைவெளி: 20)(
            உரை(எண்ணிக்கை, உரைபாணி(அளவு: 60)),
            பொத்தான்(உரை: "ஒன்று கூட்டு", அழுத்தினால்: () => கூட்டு_ஒன்று())
        )
    )
    வரையறை(
        எண்ணிக்கை = 0

        செயல் கூட்டு_ஒன்று():
            எண்ணிக்கை = எண்ணிக்கை கூட்டு 1
    )
)
)";

constexpr const char* README = R"(# @NAME@

`முதன்மை.பொழில்` நிரலின் தொடக்கம்.

- ஓட்ட: `பொழில் ஓட்டு முதன்மை.பொழில்`
- பிழைகளைச் சரிபார்க்க: `பொழில் சரிபார்`
- ஒரே பாணியில் அடுக்க: `பொழில் வடிவமை`
- ஒரு பிழையின் எண்ணைப் புரிந்துகொள்ள: `பொழில் விளக்கு <எண்>`
)";

constexpr const char* APPLICATION_README = R"(- இணையத்தில் ஏற்ற: `பொழில் வெளியிடு முதன்மை.பொழில்`
)";

constexpr const char* EDITOR_SETTINGS = R"(root = true

[*]
charset = utf-8
end_of_line = lf
insert_final_newline = true

[*.பொழில்]
indent_style = space
indent_size = 4
trim_trailing_whitespace = true
)";

constexpr const char* IGNORED = R"(.நிலையற்ற/
வெளியீடு/
*_தளம்/
)";

} // namespace

std::vector<StarterFile> starterFiles(const std::string& name, ProjectKind kind) {
    const std::string marker = kind.isSecondEdition ? SECOND_EDITION : "";
    std::string readme = README;
    replaceAll(readme, NAME_HOLE, name);
    return {{PROGRAM_NAME, marker + (kind.isApplication ? APPLICATION : CONSOLE_PROGRAM)},
            {"README.md", readme + (kind.isApplication ? APPLICATION_README : "")},
            {".editorconfig", EDITOR_SETTINGS},
            {".gitignore", IGNORED}};
}

} // namespace pozhil::tools
