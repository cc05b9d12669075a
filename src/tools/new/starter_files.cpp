#include "tools/new/starter_files.h"

#include "base/text.h"

namespace pozhil::tools {
namespace {

/// Of the file that the compiler takes where none is named.
constexpr const char* PROGRAM_NAME = "முதன்மை.பொழில்";
constexpr const char* SECOND_EDITION = "ஃ பொழில் 2\n";
constexpr const char* NAME_HOLE = "@NAME@";

/// A program of the first edition, which has no tests.
constexpr const char* FIRST_PROGRAM = R"(ஃ வாழ்த்தும் நிரல்

செயல் வாழ்த்து(பெயர்):
    திரும்பு "வணக்கம், " இணை பெயர் இணை "!"

அச்சிடு(வாழ்த்து("உலகே"))
)";

// What a test imports runs with it, so the functions have a file of their own, apart from the program's statements.

constexpr const char* CONSOLE_PROGRAM = R"(ஃ பொழில் 2
ஃ வாழ்த்தும் நிரல்
நூஇறக்கி "வாழ்த்து"

அச்சிடு(வாழ்த்து("உலகே"))
)";

constexpr const char* CONSOLE_FUNCTIONS = R"(ஃ பொழில் 2

செயல் வாழ்த்து(பெயர்):
    திரும்பு "வணக்கம், " இணை பெயர் இணை "!"
)";

constexpr const char* CONSOLE_TESTS = R"(ஃ பொழில் 2
நூஇறக்கி "../வாழ்த்து"

செயல் சோதி_வாழ்த்து():
    சமம்_உறுதி(வாழ்த்து("மலர்"), "வணக்கம், மலர்!")
)";

constexpr const char* APPLICATION = R"(ஃ பொத்தானை அழுத்தினால் எண்ணும் வலைச் செயலி
@IMPORT@
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
            எண்ணிக்கை = @NEXT@
    )
)
)";

constexpr const char* APPLICATION_FUNCTIONS = R"(ஃ பொழில் 2

செயல் அடுத்த_எண்(எண்ணிக்கை):
    திரும்பு எண்ணிக்கை கூட்டு 1
)";

constexpr const char* APPLICATION_TESTS = R"(ஃ பொழில் 2
நூஇறக்கி "../எண்ணுதல்"

செயல் சோதி_அடுத்த_எண்():
    சமம்_உறுதி(அடுத்த_எண்(0), 1)
)";

constexpr const char* README = R"(# @NAME@

`முதன்மை.பொழில்` நிரலின் தொடக்கம்.

- ஓட்ட: `பொழில் ஓட்டு முதன்மை.பொழில்`
- பிழைகளைச் சரிபார்க்க: `பொழில் சரிபார்`
- ஒரே பாணியில் அடுக்க: `பொழில் வடிவமை`
- ஒரு பிழையின் எண்ணைப் புரிந்துகொள்ள: `பொழில் விளக்கு <எண்>`
)";

constexpr const char* TEST_README = R"(- சோதனைகளை ஓட்ட: `பொழில் சோதி`
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

std::string applicationText(bool isSecondEdition) {
    std::string text = std::string(isSecondEdition ? SECOND_EDITION : "") + APPLICATION;
    replaceAll(text, "@IMPORT@", isSecondEdition ? "நூஇறக்கி \"எண்ணுதல்\"\n" : "");
    replaceAll(text, "@NEXT@", isSecondEdition ? "அடுத்த_எண்(எண்ணிக்கை)" : "எண்ணிக்கை கூட்டு 1");
    return text;
}

std::vector<StarterFile> sources(ProjectKind kind) {
    std::vector<StarterFile> files;
    if (kind.isApplication) {
        files.push_back({PROGRAM_NAME, applicationText(kind.isSecondEdition)});
    } else {
        files.push_back({PROGRAM_NAME, kind.isSecondEdition ? CONSOLE_PROGRAM : FIRST_PROGRAM});
    }
    if (kind.isSecondEdition) {
        const std::string name = kind.isApplication ? "எண்ணுதல்" : "வாழ்த்து";
        files.push_back({name + ".பொழில்", kind.isApplication ? APPLICATION_FUNCTIONS : CONSOLE_FUNCTIONS});
        files.push_back({"சோதனைகள்/" + name + "_சோதி.பொழில்", kind.isApplication ? APPLICATION_TESTS : CONSOLE_TESTS});
    }
    return files;
}

} // namespace

std::vector<StarterFile> starterFiles(const std::string& name, ProjectKind kind) {
    std::string readme = README;
    replaceAll(readme, NAME_HOLE, name);
    readme += std::string(kind.isSecondEdition ? TEST_README : "") + (kind.isApplication ? APPLICATION_README : "");
    std::vector<StarterFile> files = sources(kind);
    files.push_back({"README.md", readme});
    files.push_back({".editorconfig", EDITOR_SETTINGS});
    files.push_back({".gitignore", IGNORED});
    return files;
}

} // namespace pozhil::tools
