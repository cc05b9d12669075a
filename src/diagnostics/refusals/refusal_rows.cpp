#include "diagnostics/refusals/refusals.h"

#include <algorithm>
#include <iterator>

namespace pozhil {
namespace {

bool isInStructure(const Refusal& refusal) {
    return refusal.isInStructure;
}

bool holdsWordOfCpp(const Refusal& refusal) {
    const std::string code = codeOf(refusal.statement);
    return !wordOfCpp(code).empty();
}

/// Whether a text of the statement is still open at the end of its line.
bool isTextOpen(const Refusal& refusal) {
    return std::count(refusal.statement.begin(), refusal.statement.end(), '"') % 2 == 1;
}

bool holdsEscapedQuote(const Refusal& refusal) {
    return refusal.statement.find("\\\"") != std::string_view::npos;
}

constexpr std::string_view NOT_BOOLEAN = "could not convert*to 'bool'|not contextually convertible to 'bool'|"
                                         "no match for 'operator&&'|no match for 'operator||'|"
                                         "invalid operands to binary expression";
constexpr std::string_view NOT_DECLARED = "'fn_*was not declared in this scope|undeclared identifier 'fn_";
constexpr std::string_view TEMPORARY = "cannot bind non-const lvalue reference of type|cannot bind to a temporary";
constexpr std::string_view SYNTAX = "expected |two or more data types|multiple types in one declaration|"
                                    "redeclared as different kind|redefinition of*as different kind|"
                                    "declaration of anonymous|cannot combine with previous|unexpected namespace name|"
                                    "template argument 1 is invalid|type/value mismatch|"
                                    "no matching function for call to 'make_shared";
constexpr std::string_view WRONG_COUNT = "too few arguments to function|too many arguments to function|"
                                         "no matching function for call to 'fn_";

// NOLINTNEXTLINE(modernize-avoid-c-arrays): the table itself says how many rows it has
constexpr RefusalRow ROWS[] = {
    // Texts and numbers
    {"missing terminating|stray |expected ", "", holdsEscapedQuote,
     "'\\' குறி, அதற்குப் பின் வரும் மேற்கோள் குறியை உரையின் ஒரு பகுதியாக்கிவிடுகிறது; அதனால் உரை முடிவதே இல்லை.",
     "'\\' குறி வேணும்னா ரெண்டு தடவை எழுது (\"C:\\\\\"); மேற்கோள் குறி வேணும்னா '\\042' எழுது மச்சி!", true},
    {"missing terminating|stray |expected ", "", isTextOpen,
     "உரை தொடங்கிய வரியிலேயே முடிய வேண்டும்; இங்கே அது அடுத்த வரிக்கும் நீள்கிறது.",
     "உரையை அதே வரியில மூடு; நடுவுல வரி மாறணும்னா '\\n' எழுது மச்சி!", true},
    {"incomplete universal character name|used with no following hex digits|not a valid universal character|"
     "escape sequence out of range",
     "", nullptr, "உரையில் '\\' குறிக்குப் பின் வரும் எழுத்து, ஒரு சிறப்புக் குறியீட்டின் தொடக்கமாகப் படிக்கப்படுகிறது.",
     "'\\' குறியே வேணும்னா அதை ரெண்டு தடவை '\\\\'-ன்னு எழுது மச்சி!"},
    {"in octal constant", "", nullptr,
     "0-வில் தொடங்கும் முழு எண் எட்டின் அடிமானத்தில் படிக்கப்படும்; அந்த அடிமானத்தில் 8, 9 என்ற இலக்கங்கள் இல்லை.",
     "எண்ணுக்கு முன்னால இருக்கிற 0-வை எடுத்துடு: '08'-க்குப் பதிலா '8'-ன்னு எழுது!"},

    // Built-in functions
    {"too few arguments to function*fn_உள்ளீடு(|no matching function for call to 'fn_உள்ளீடு'", "", nullptr,
     "'உள்ளீடு' செயலுக்கு ஒரு கேள்வி வேண்டும்; இங்கே அடைப்புக்குறி வெறுமையாக உள்ளது.",
     "கேள்வியைச் சேர்த்து 'உள்ளீடு(\"உன் பெயர்: \")'-ன்னு எழுது; கேள்வி வேண்டாம்னா 'உள்ளீடு(\"\")' போதும் மச்சி!"},
    {"no matching function for call to 'fn_எடு", "", nullptr,
     "'எடு(அ, இடம்)' என்ற வடிவம் வேலை செய்யாது; உறுப்பைச் சதுர அடைப்புக்குறியால்தான் எடுக்க முடியும்.",
     "'எடு(அ, 0)'-க்குப் பதிலா 'அ[0]'-ன்னு எழுது மச்சி!"},
    {"unresolved overloaded function|overloaded function could not be resolved|cannot resolve overloaded|expected ",
     ".தேதி(|.நேரம்(|.முழுவதும்(", nullptr, "'தேதி', 'நேரம்', 'முழுவதும்' ஆகியவை புள்ளிக்குப் பின் வர முடியாது.",
     "நேரத்தை அடைப்புக்குறிக்குள்ள வை: 'த.தேதி()'-க்குப் பதிலா 'தேதி(த)'-ன்னு எழுது மச்சி!"},
    {"'nvgRGBA' was not declared", "", nullptr,
     "'#'-இல் தொடங்கும் உரை ஒரு நிறமாகப் படிக்கப்படும்; நிறங்கள் வலைச் செயலியில் மட்டுமே உண்டு.",
     "'#' குறிக்குப் பதிலா '\\043' எழுது: \"#1\" வேணும்னா \"\\0431\" மச்சி!"},
    {"'winWidth' was not declared|undeclared identifier 'winWidth'", "", nullptr,
     "விட்ஜெட்டை ஒரு மதிப்பாக மாறியிலோ செயலிலோ வைக்க முடியாது; அது வலைச் செயலியின் 'குமரி' பகுதியில் மட்டுமே வரும்.",
     "விட்ஜெட்டை 'வலைதளம்' பகுதியோட 'குமரி'-க்குள்ள எழுது மச்சி!"},
    {"'g_mouseClicked' was not declared", "செல்க", nullptr,
     "'செல்க' வலைச் செயலியின் பக்கங்களுக்கு இடையே மட்டும் செல்லும்; இது கன்சோல் நிரல்.",
     "இந்த வரியை எடுத்துடு, இல்லைன்னா நிரலை ஒரு 'வலைதளம்' ஆக்கு மச்சி!"},

    // Functions
    {NOT_DECLARED, "", isInStructure,
     "கட்டமைப்பின் செயலுக்குள் இருந்து, வெளியே எழுதிய '$name' செயலை அழைக்க முடியாது; கட்டமைப்புகள் எல்லாச் "
     "செயல்களுக்கும் முன்பே தொகுக்கப்படும்.",
     "'$name' செய்யுற வேலையைக் கட்டமைப்புக்குள்ளேயே ஒரு செயலா எழுது, இல்லைன்னா அதை வெளியில அழைச்சு விடையை மட்டும் "
     "உள்ளீடா கொடு மச்சி!"},
    {NOT_DECLARED, "", nullptr,
     "'$name' செயல், அதை அழைக்கும் செயலுக்குக் கீழே எழுதப்பட்டுள்ளது; ஒரு செயல் தனக்கு மேலே உள்ள செயல்களை மட்டுமே "
     "அழைக்க முடியும்.",
     "'$name' செயலை, அதை அழைக்கிற செயலுக்கு மேலே நகர்த்து; ரெண்டும் ஒன்னையொன்னு அழைச்சா, ரெண்டையும் ஒரே செயலா எழுது மச்சி!"},
    {"function-definition is not allowed here|function definition is not allowed here", "", nullptr,
     "'எனில்', 'சுற்று' போன்ற பிளாக்கிற்குள் செயலை எழுத முடியாது.",
     "செயலை வெளியே எடுத்து, வரியோட தொடக்கத்துல இடைவெளி இல்லாம எழுது மச்சி!", true},
    {"redefinition of 'std::any fn_|redefinition of 'fn_", "", isInStructure,
     "ஒரே கட்டமைப்பில் ஒரே பெயரில் இரண்டு செயல்கள் உள்ளன.", "ரெண்டுல ஒரு செயலுக்கு வேற பெயர் வை மச்சி!"},
    {"redefinition of 'std::any fn_|redefinition of 'fn_", "", nullptr, "'$name' என்ற பெயரில் இரண்டு செயல்கள் உள்ளன.",
     "ரெண்டுல ஒரு செயலுக்கு வேற பெயர் வை; நீ இறக்குமதி செய்யுற கோப்புலயும் அதே பெயர் இருக்கான்னு பாரு மச்சி!"},
    {"redefinition of 'std::any |redefinition of parameter '", "", nullptr,
     "ஒரே செயலின் இரண்டு உள்ளீடுகளுக்கு ஒரே பெயர் உள்ளது.", "ஒவ்வொரு உள்ளீட்டுக்கும் வேற வேற பெயர் வை மச்சி!"},

    // Names
    {SYNTAX, "", holdsWordOfCpp,
     "'$word' என்ற ஆங்கிலச் சொல்லை உள்ளீடு, சுற்றின் மாறி, கட்டமைப்பு ஆகியவற்றுக்குப் பெயராக வைக்க முடியாது; அது "
     "தொகுப்பியின் உள்ளே வேறு பொருளில் பயன்படுகிறது.",
     "'$word'-க்குப் பதிலா ஒரு தமிழ்ப் பெயரை வை மச்சி!", true},

    // Structures
    {"redefinition of 'struct |redefinition of '", "கட்டமைப்பு", nullptr, "ஒரே பெயரில் இரண்டு கட்டமைப்புகள் உள்ளன.",
     "ரெண்டுல ஒரு கட்டமைப்புக்கு வேற பெயர் வை மச்சி!"},
    {"too few arguments to function*_துவக்கம்(|too many arguments to function*_துவக்கம்(|"
     "no matching function for call to*_துவக்கம்'",
     "", nullptr, "கட்டமைப்பின் 'துவக்கம்' கேட்கும் உள்ளீடுகளும், இங்கே கொடுத்தவையும் பொருந்தவில்லை.",
     "'துவக்கம்' செயல்ல 'தான்'-க்கு அப்புறம் எத்தனை உள்ளீடு இருக்கோ, சரியா அத்தனை மதிப்புகளைக் கொடு; 'மாற்று' அங்கே "
     "வேண்டாம் மச்சி!"},
    {WRONG_COUNT, "", nullptr, "கட்டமைப்பின் செயலுக்கு முதல் உள்ளீடாக 'தான்' வேண்டும்.",
     "செயலோட அடைப்புக்குறிக்குள்ள முதல்ல 'தான்' எழுது: 'செயல் பேசு(தான்):' மச்சி!"},

    // Values that are written
    {"constructible from an rvalue|due to requirement 'is_constructible|invalid 'static_cast' from type|"
     "cannot bind to a temporary",
     ".சேர்(", nullptr, "'.சேர்' மாறியில் உள்ள பட்டியலில் மட்டுமே சேர்க்கும்; பண்பிலோ உறுப்பிலோ உள்ள பட்டியலில் நேராகச் சேர்க்காது.",
     "பட்டியலை ஒரு மாறியில எடுத்து, அதுல சேர்த்து, திரும்ப வை: 'ப = தான்.பட்டி', 'ப.சேர்(1)', 'தான்.பட்டி = ப'!"},
    {"no match for 'operator='|no viable overloaded '='", "=>", nullptr,
     "'=>' செயலுக்குள், அதற்கு வெளியே உள்ள செயலின் மாறிக்கு மதிப்பு கொடுக்க முடியாது.",
     "'=>' செயல் மதிப்பை மட்டும் கணக்கிடட்டும்; அந்த விடையை வெளியில ஒரு மாறிக்குக் கொடு மச்சி!"},

    // Loops
    {TEMPORARY, "ஒவ்வொன்றாக", nullptr,
     "'இல்' சொல்லுக்குப் பின், பட்டியலையோ அகராதியையோ வைத்திருக்கும் மாறியின் பெயர் மட்டுமே வரும்; மதிப்போ, உறுப்போ, "
     "பண்போ, செயலின் விடையோ நேராக வர முடியாது.",
     "அதை முதல்ல ஒரு மாறியில வை: 'எண்கள் = [1, 2]'; அப்புறம் 'ஒவ்வொன்றாக எண் இல் எண்கள்:'-ன்னு எழுது மச்சி!"},
    {TEMPORARY, "", nullptr, "கட்டமைப்பின் 'துவக்கம்', 'மாற்று' என்ற உள்ளீட்டை ஏற்காது.",
     "'துவக்கம்' செயல்ல இருக்கிற 'மாற்று' என்ற சொல்லை எடுத்துடு மச்சி!"},
    {"call of overloaded 'fn_index(*is ambiguous|call to 'fn_index' is ambiguous", "", nullptr,
     "'வரம்பு' சுற்றுக்கு முழு எண் வேண்டும்; இங்கே தசம எண் உள்ளது.",
     "தசம எண்ணை முழு எண்ணா எழுது, இல்லைன்னா 'கீழ்எண்(…)' வச்சு மாத்து மச்சி!"},
    {"break statement not within|'break' statement not in|continue statement not within|'continue' statement not in",
     "", nullptr, "'நிறுத்து', 'தொடர்' ஆகியவை 'சுற்று', 'ஒவ்வொன்றாக' ஆகியவற்றுக்குள் மட்டுமே வரும்.",
     "அந்த வரியை ஒரு சுற்றுக்குள்ள நகர்த்து, இல்லைன்னா எடுத்துடு; 'தேர்வு' தானாவே முடியும், அதுக்கு 'நிறுத்து' வேண்டாம் "
     "மச்சி!"},
    {"cannot convert 'std::any' to 'long long int' in assignment|"
     "assigning to 'long long' from incompatible type 'std::any'",
     "", nullptr, "செயலுக்குள், 'வரம்பு' சுற்றின் மாறிக்குப் புதிய மதிப்பு கொடுக்க முடியாது.",
     "புதிய மதிப்பை வேற பெயருள்ள ஒரு மாறிக்குக் கொடு மச்சி!"},

    // Operators
    {"operator-' (operand type |to unary expression", "குறை", nullptr,
     "'குறை' நேராக எழுதிய எண்ணுக்கு முன்னால் மட்டுமே வரும்; மாறி, பண்பு, செயலின் விடை ஆகியவற்றுக்கு முன்னால் வராது.",
     "'குறை அ'-க்குப் பதிலா '0 கழி அ'-ன்னு எழுது மச்சி!"},
    {"operator+' (operand type |to unary expression", "மிகை", nullptr,
     "'மிகை' நேராக எழுதிய எண்ணுக்கு முன்னால் மட்டுமே வரும்.",
     "'மிகை' எதையும் மாத்தாது, அதை எடுத்துடு: 'மிகை அ'-க்குப் பதிலா 'அ' போதும் மச்சி!"},
    {"no match for 'operator|invalid operands", "சேர் ", nullptr,
     "'கூட்டிசேர்', 'கழிசேர்' போன்றவற்றுக்கு வலப்பக்கம் ஒரே ஓர் எண் வர வேண்டும்; மாறி, கூட்டல் கணக்கு, உரை, பட்டியல், "
     "செயலின் விடை ஆகியவை வர முடியாது.",
     "'அ கூட்டிசேர் ஆ'-க்குப் பதிலா 'அ = அ கூட்டு ஆ'-ன்னு முழுசா எழுது மச்சி!"},
    {"to binary 'operator%'|invalid operands to binary expression", "மீதி", nullptr,
     "'மீதி' முழு எண்களுக்கு மட்டுமே; இங்கே தசம எண் உள்ளது.",
     "முதல்ல முழு எண்ணா மாத்து: '7.5 மீதி 2'-க்குப் பதிலா 'கீழ்எண்(7.5) மீதி 2'-ன்னு எழுது மச்சி!"},
    {"to binary 'operator|invalid operands to binary expression", "இருமை", nullptr,
     "'இடதுஇருமை', 'பெருக்குஇருமை' போன்றவை முழு எண்களுக்கு மட்டுமே; இங்கே தசம எண் உள்ளது.",
     "தசம எண்ணை 'கீழ்எண்(…)' வச்சு முழு எண்ணா மாத்து மச்சி!"},
    {"operands to '?:' have different types|incompatible operand types", "", nullptr,
     "'?'-க்குப் பின் வரும் இரண்டு விடைகளும் வெவ்வேறு வகையாக உள்ளன.",
     "ரெண்டையும் ஒரே வகையா எழுது, இல்லைன்னா 'எனில்', 'இல்லை' பிளாக் எழுது மச்சி!"},
    {NOT_BOOLEAN, "?", nullptr,
     "'?'-க்கு முன்னால் மாறியோ கணக்கோ தனியாக வர முடியாது; மெய்யா பொய்யா என்று சொல்லும் ஓர் ஒப்பீடு வேண்டும்.",
     "'நிறைவு ? 1 : 2'-க்குப் பதிலா 'நிறைவு சமம் மெய் ? 1 : 2'-ன்னு எழுது மச்சி!"},
    {NOT_BOOLEAN, "எனில்|சுற்று|மற்றும்|அல்லது|இல்லை", nullptr,
     "நிபந்தனையில் கணக்கின் விடை தனியாக வர முடியாது; மெய்யா பொய்யா என்று சொல்லும் ஓர் ஒப்பீடு வேண்டும்.",
     "'எனில் அ கூட்டு 1:'-க்குப் பதிலா 'எனில் அ கூட்டு 1 சமமில்லை 0:'-ன்னு எழுது மச்சி!"},
    {"no match for 'operator*std::string|invalid operands to binary expression*string", "", nullptr,
     "உரையோடு 'கழி', 'பெருக்கு', 'வகு' போன்ற கணக்குகளைப் போட முடியாது.",
     "உரைக்குள்ள எண் இருந்தா முதல்ல 'எண்(…)' வச்சு மாத்து; உரைகளைச் சேர்க்க 'கூட்டு' எழுது மச்சி!"},

    // The linker
    {"undefined reference to|undefined symbol|cannot find ", "", nullptr,
     "பொழிலின் நிறுவலில் ஒரு பகுதி குறைகிறது அல்லது பழையது; உன் நிரலில் தவறு இல்லை.", "பொழிலை மறுபடியும் நிறுவிப் பாரு மச்சி!"},
};

} // namespace

const std::vector<RefusalRow>& refusalRows() {
    static const std::vector<RefusalRow> rows(std::begin(ROWS), std::end(ROWS));
    return rows;
}

} // namespace pozhil
