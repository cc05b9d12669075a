#include "language/second/foreign_words.h"

#include "base/text.h"
#include "language/second/module_functions.h"

#include <algorithm>
#include <iterator>

namespace pozhil::language::second {
namespace {

using Place = ForeignPlace;

constexpr const char* NO_RAISING =
    "நிரல் தானே பிழை எழுப்ப வழி இல்லை; தவறுன்னு சொல்ல, செயலிலிருந்து 'திரும்பு வெறுமை' மாதிரி ஒரு மதிப்பைத் திருப்பு மச்சி!";
constexpr const char* NO_DECLARING = "மாறியை அறிவிக்கச் சொல் எதுவும் வேண்டாம்; 'அ = 5' என்று மதிப்பு வச்சாலே போதும் மச்சி!";
constexpr const char* NO_FINALLY =
    "எப்படியும் நடக்க வேண்டியதை 'முயற்சி' … 'பிடி' பிளாக்குகளுக்குக் கீழ, அவற்றுக்கு நேரா எழுது மச்சி!";
constexpr const char* NO_NAMESPACES =
    "இறக்கிய கோப்பின் எல்லாச் செயல்களும் அவற்றின் பெயராலேயே கிடைக்கும்; ஒவ்வொன்றா இறக்க வேண்டாம் மச்சி!";
constexpr const char* OWN_FUNCTIONS = "'வர்க்கமூலம்', 'சீரற்ற_எண்', 'இப்போதுநேரம்' மாதிரியானவை இறக்காமலே கிடைக்கும்.";
constexpr const char* NO_REMOVING = "ஒரு மாறியை நீக்க வேண்டாம்; அகராதியின் சாவியை 'நீக்கு(அகராதி, சாவி)' என்று நீக்கலாம் மச்சி!";
constexpr const char* OUTER_VARIABLES = "வெளிச் செயலின் மாறியை உட்செயல் நேராவே மாத்தலாம்; கோப்பின் மாறிக்கு மட்டும் 'பொது' வேணும்.";
constexpr const char* DECIMALS_TOO = "தசம எண்ணையும் 'எண்' படிக்கும்.";
constexpr const char* WHOLE_PART = "தசம எண்ணின் முழுப் பகுதி வேணும்னா 'கீழ்எண்(அ)'.";
constexpr const char* WITH_COUNTER = "இடமும் வேணும்னா 'ஒவ்வொன்றாக இடம் இல் வரம்பு(நீளம்(அ)):' என்று எழுதி, 'அ[இடம்]' என்று எடு.";

// clang-format off
constexpr ForeignWord ROWS[] = {
    // Conditions and loops.
    {"if",       Place::Statement, "எனில் நிபந்தனை:", ""},
    {"elif",     Place::Statement, "இல்லைஎனில் நிபந்தனை:", ""},
    {"elseif",   Place::Statement, "இல்லைஎனில் நிபந்தனை:", ""},
    {"else if",  Place::Statement, "இல்லைஎனில் நிபந்தனை:", ""},
    {"else",     Place::Statement, "இல்லை:", ""},
    {"while",    Place::Statement, "சுற்று நிபந்தனை:", ""},
    {"for",      Place::Statement, "ஒவ்வொன்றாக உறுப்பு இல் பட்டியல்:", "எண்ணிக்கைக்கு 'ஒவ்வொன்றாக எ இல் வரம்பு(10):'."},
    {"foreach",  Place::Statement, "ஒவ்வொன்றாக உறுப்பு இல் பட்டியல்:", ""},
    {"do",       Place::Statement, "சுற்று நிபந்தனை:", ""},
    {"break",    Place::Statement, "நிறுத்து", ""},
    {"continue", Place::Statement, "தொடர்", ""},
    {"pass",     Place::Statement, "விடு", ""},
    {"end",      Place::Statement, "", "பிளாக்கை முடிக்கச் சொல் வேண்டாம்; அடுத்த வரியை உள்ள தள்ளாம எழுதினாலே போதும் மச்சி!"},
    {"switch",   Place::Statement, "தேர்வு மதிப்பு:", ""},
    {"match",    Place::Statement, "தேர்வு மதிப்பு:", ""},
    {"case",     Place::Statement, "நிலை மதிப்பு:", ""},
    {"default",  Place::Statement, "மற்றவை:", ""},
    {"if",       Place::Inside, "நிபந்தனை எனில் அ இல்லைஎனில் ஆ", "நிபந்தனை முதல்ல வரணும்."},
    {"else",     Place::Inside, "நிபந்தனை எனில் அ இல்லைஎனில் ஆ", "நிபந்தனை முதல்ல வரணும்."},
    {"for",      Place::Inside, "", NO_COMPREHENSION},
    {"and",      Place::Inside, "மற்றும்", ""},
    {"or",       Place::Inside, "அல்லது", ""},
    {"not",      Place::Inside, "இல்லை", "ஒப்பீட்டை மறுக்க 'இல்லை (அ சமம் ஆ)' என்று அடைப்புக்குள்ள போடு."},
    {"in",       Place::Inside, "பட்டியல்.கொண்டுள்ளது(மதிப்பு)", "சுற்றுல மட்டும் 'இல்' வரும்: 'ஒவ்வொன்றாக உறுப்பு இல் பட்டியல்:'."},
    {"of",       Place::Inside, "ஒவ்வொன்றாக உறுப்பு இல் பட்டியல்:", ""},
    {"is",       Place::Inside, "சமம்", "'is not'-க்கு 'சமமில்லை'; மதிப்பு இல்லையான்னு பார்க்க 'அ சமம் வெறுமை'."},
    {"then",     Place::Inside, ":", ""},
    {"mod",      Place::Inside, "மீதி", ""},

    // Functions, structures, files.
    {"def",      Place::Statement, "செயல் பெயர்(அ, ஆ):", ""},
    {"function", Place::Statement, "செயல் பெயர்(அ, ஆ):", ""},
    {"func",     Place::Statement, "செயல் பெயர்(அ, ஆ):", ""},
    {"fn",       Place::Statement, "செயல் பெயர்(அ, ஆ):", ""},
    {"return",   Place::Statement, "திரும்பு மதிப்பு", ""},
    {"yield",    Place::Statement, "திரும்பு மதிப்பு", "பல மதிப்புகளைப் பட்டியலாச் சேர்த்துத் திருப்பு."},
    {"class",    Place::Statement, "கட்டமைப்பு பெயர்:", ""},
    {"struct",   Place::Statement, "கட்டமைப்பு பெயர்:", ""},
    {"enum",     Place::Statement, "வகை பெயர்:", ""},
    {"interface", Place::Statement, "வடிவமைப்பு பெயர்:", ""},
    {"private",  Place::Statement, "ரகசிய பெயர் = மதிப்பு", ""},
    {"public",   Place::Statement, "பெயர் = மதிப்பு", ""},
    {"import",   Place::Statement, "நூஇறக்கி \"கோப்பு\"", OWN_FUNCTIONS},
    {"include",  Place::Statement, "நூஇறக்கி \"கோப்பு\"", ""},
    {"from",     Place::Statement, "நூஇறக்கி \"கோப்பு\"", NO_NAMESPACES},
    {"global",   Place::Statement, "பொது பெயர்", ""},
    {"nonlocal", Place::Statement, "", OUTER_VARIABLES},
    {"let",      Place::Statement, "", NO_DECLARING},
    {"var",      Place::Statement, "", NO_DECLARING},
    {"const",    Place::Statement, "மாறிலி_பெயர் = மதிப்பு", "பெயரின் தொடக்கத்துல 'மாறிலி_' இருந்தா மதிப்பு மாறாது."},
    {"del",      Place::Statement, "", NO_REMOVING},
    {"with",     Place::Statement, "", "கோப்பைத் திறந்து மூட வேண்டாம்; 'கோப்பு_படி(\"பெயர்.txt\")' முழுக் கோப்பையும் படிக்கும் மச்சி!"},
    {"lambda",   Place::Inside, "(அ, ஆ) => அ கூட்டு ஆ", ""},
    {"new",      Place::Inside, "நபர்(\"மலர்\")", "கட்டமைப்பின் பெயரும் அடைப்புக்குறியும் போதும்."},

    // Faults.
    {"try",      Place::Statement, "முயற்சி:", ""},
    {"except",   Place::Statement, "பிடி(பிழை):", ""},
    {"catch",    Place::Statement, "பிடி(பிழை):", ""},
    {"finally",  Place::Statement, "", NO_FINALLY},
    {"raise",    Place::Statement, "", NO_RAISING},
    {"throw",    Place::Statement, "", NO_RAISING},
    {"assert",   Place::Statement, "", NO_RAISING},
    {"எழுப்பு",    Place::Statement, "", NO_RAISING},
    {"எறி",      Place::Statement, "", NO_RAISING},

    // Values.
    {"true",      Place::Name, "மெய்", ""},
    {"True",      Place::Name, "மெய்", ""},
    {"false",     Place::Name, "பொய்", ""},
    {"False",     Place::Name, "பொய்", ""},
    {"None",      Place::Name, "வெறுமை", ""},
    {"null",      Place::Name, "வெறுமை", ""},
    {"nil",       Place::Name, "வெறுமை", ""},
    {"undefined", Place::Name, "வெறுமை", ""},
    {"self",      Place::Name, "தான்", "கட்டமைப்பின் ஒவ்வொரு செயலிலும் முதல் பராமீட்டர் 'தான்'."},
    {"this",      Place::Name, "தான்", "கட்டமைப்பின் ஒவ்வொரு செயலிலும் முதல் பராமீட்டர் 'தான்'."},
    {"super",     Place::Name, "{1}.துவக்கம்(தான், …)", "பெற்றோரின் செயலைப் பெற்றோர்க் கட்டமைப்பின் பெயரால் அழை."},
    {"பெற்றோர்",   Place::Name, "{1}.துவக்கம்(தான், …)", "பெற்றோரின் செயலைப் பெற்றோர்க் கட்டமைப்பின் பெயரால் அழை."},

    // Functions.
    {"print",     Place::Name, "அச்சிடு(மதிப்பு)", ""},
    {"console",   Place::Name, "அச்சிடு(மதிப்பு)", ""},
    {"println",   Place::Name, "அச்சிடு(மதிப்பு)", ""},
    {"printf",    Place::Name, "அச்சிடு(மதிப்பு)", ""},
    {"alert",     Place::Name, "அச்சிடு(மதிப்பு)", ""},
    {"input",     Place::Name, "உள்ளீடு(\"கேள்வி\")", ""},
    {"prompt",    Place::Name, "உள்ளீடு(\"கேள்வி\")", ""},
    {"len",       Place::Name, "நீளம்(அ)", ""},
    {"int",       Place::Name, "எண்(உரை)", WHOLE_PART},
    {"parseInt",  Place::Name, "எண்(உரை)", WHOLE_PART},
    {"float",     Place::Name, "எண்(உரை)", DECIMALS_TOO},
    {"parseFloat", Place::Name, "எண்(உரை)", DECIMALS_TOO},
    {"Number",    Place::Name, "எண்(உரை)", DECIMALS_TOO},
    {"str",       Place::Name, "\"\" இணை அ", ""},
    {"String",    Place::Name, "\"\" இணை அ", ""},
    {"range",     Place::Name, "வரம்பு(தொடக்கம், முடிவு)", ""},
    {"enumerate", Place::Name, "", WITH_COUNTER},
    {"type",      Place::Name, "என்னவகை(அ)", ""},
    {"typeof",    Place::Name, "என்னவகை(அ)", ""},
    {"isinstance", Place::Name, "என்னவகை(அ)", ""},
    {"list",      Place::Name, "[ ]", ""},
    {"dict",      Place::Name, "{ }", ""},
    {"abs",       Place::Name, "தனிமதிப்பு(அ)", ""},
    {"pow",       Place::Name, "அடுக்கு(அடி, அடுக்கு)", ""},
    {"sqrt",      Place::Name, "வர்க்கமூலம்(அ)", ""},
    {"math",      Place::Name, "வர்க்கமூலம்(அ)", "கணிதத்தின் மற்ற செயல்களுக்கு 'நூஇறக்கி \"கணிதம்\"'."},
    {"Math",      Place::Name, "வர்க்கமூலம்(அ)", "கணிதத்தின் மற்ற செயல்களுக்கு 'நூஇறக்கி \"கணிதம்\"'."},
    {"random",    Place::Name, "சீரற்ற_எண்(1, 6)", ""},
    {"round",     Place::Name, "கணிதம்_முழுமையாக்கு(அ)", ""},
    {"floor",     Place::Name, "கீழ்எண்(அ)", ""},
    {"ceil",      Place::Name, "மேல்எண்(அ)", ""},
    {"sum",       Place::Name, "பட்டியல்_மொத்தம்(அ)", ""},
    {"max",       Place::Name, "பட்டியல்_பெரியது(அ)", "இரண்டே எண்கள்னா 'அ பெரிது ஆ எனில் அ இல்லைஎனில் ஆ'."},
    {"min",       Place::Name, "பட்டியல்_சிறியது(அ)", "இரண்டே எண்கள்னா 'அ சிறிது ஆ எனில் அ இல்லைஎனில் ஆ'."},
    {"sorted",    Place::Name, "பட்டியல்_வரிசை(அ)", ""},
    {"reversed",  Place::Name, "பட்டியல்_தலைகீழ்(அ)", ""},
    {"map",       Place::Name, "பட்டியல்_மாற்று(அ, விதி)", ""},
    {"filter",    Place::Name, "பட்டியல்_வடிகட்டு(அ, விதி)", ""},
    {"set",       Place::Name, "பட்டியல்_தனித்தவை(அ)", ""},
    {"tuple",     Place::Name, "[ ]", ""},
    {"open",      Place::Name, "கோப்பு_படி(\"பெயர்.txt\")", "எழுத 'கோப்பு_எழுது', சேர்க்க 'கோப்பு_சேர்'."},
    {"sleep",     Place::Name, "காத்திரு 1.5", ""},

    // Members.
    {"append",     Place::Member, "அ.சேர்(மதிப்பு)", ""},
    {"push",       Place::Member, "அ.சேர்(மதிப்பு)", ""},
    {"add",        Place::Member, "அ.சேர்(மதிப்பு)", ""},
    {"remove",     Place::Member, "அ.நீக்கு(மதிப்பு)", ""},
    {"pop",        Place::Member, "பட்டியல்_அகற்று(அ, இடம்)", "கடைசி உறுப்பு 'அ[நீளம்(அ) கழி 1]'."},
    {"insert",     Place::Member, "பட்டியல்_செருகு(அ, இடம், மதிப்பு)", ""},
    {"sort",       Place::Member, "அ = பட்டியல்_வரிசை(அ)", ""},
    {"forEach",    Place::Member, "ஒவ்வொன்றாக உறுப்பு இல் அ:", ""},
    {"map",        Place::Member, "பட்டியல்_மாற்று(அ, விதி)", ""},
    {"filter",     Place::Member, "பட்டியல்_வடிகட்டு(அ, விதி)", ""},
    {"reduce",     Place::Member, "பட்டியல்_திரட்டு(அ, தொடக்கம், விதி)", ""},
    {"slice",      Place::Member, "பட்டியல்_பகுதி(அ, தொடக்கம், முடிவு)", ""},
    {"extend",     Place::Member, "அ = அ கூட்டு ஆ", ""},
    {"concat",     Place::Member, "அ = அ கூட்டு ஆ", ""},
    {"count",      Place::Member, "பட்டியல்_எத்தனை(அ, மதிப்பு)", ""},
    {"size",       Place::Member, "நீளம்(அ)", ""},
    {"reverse",    Place::Member, "அ = பட்டியல்_தலைகீழ்(அ)", ""},
    {"index",      Place::Member, "பட்டியல்_இடம்(அ, மதிப்பு)", ""},
    {"indexOf",    Place::Member, "பட்டியல்_இடம்(அ, மதிப்பு)", ""},
    {"includes",   Place::Member, "அ.கொண்டுள்ளது(மதிப்பு)", ""},
    {"length",     Place::Member, "நீளம்(அ)", ""},
    {"split",      Place::Member, "பிளவு(உரை, பிரிப்பான்)", ""},
    {"join",       Place::Member, "உரை_இணை(பட்டியல், இடையில்)", ""},
    {"replace",    Place::Member, "பதில்(உரை, தேடுவது, புதியது)", ""},
    {"find",       Place::Member, "உரை_இடம்(உரை, பகுதி)", ""},
    {"format",     Place::Member, "\"வணக்கம் \" இணை பெயர்", ""},
    {"isdigit",    Place::Member, "உரை_எண்ணா(உரை)", ""},
    {"toString",   Place::Member, "\"\" இணை அ", ""},
    {"toUpperCase", Place::Member, "பெரியஎ(உரை)", ""},
    {"toLowerCase", Place::Member, "சிறியஎ(உரை)", ""},
    {"upper",      Place::Member, "பெரியஎ(உரை)", ""},
    {"lower",      Place::Member, "சிறியஎ(உரை)", ""},
    {"strip",      Place::Member, "உரை.சுத்தம்()", ""},
    {"trim",       Place::Member, "உரை.சுத்தம்()", ""},
    {"startswith", Place::Member, "உரை.தொடக்கம்(பகுதி)", ""},
    {"endswith",   Place::Member, "உரை.முடிவு(பகுதி)", ""},
    {"keys",       Place::Member, "அகராதி_சாவிகள்(அ)", "சுற்றுல 'ஒவ்வொன்றாக சாவி இல் அ:' போதும்."},
    {"values",     Place::Member, "அகராதி_மதிப்புகள்(அ)", ""},
    {"items",      Place::Member, "ஒவ்வொன்றாக சாவி இல் அ:", "மதிப்பை 'அ[சாவி]' என்று எடு."},
    {"get",        Place::Member, "அகராதி_பெறு(அ, சாவி, மாற்று_மதிப்பு)", ""},
};
// clang-format on

} // namespace

Rows<ForeignWord> foreignWords() {
    return ROWS;
}

const ForeignWord* findForeignWord(std::string_view word, ForeignPlace place) {
    const auto* const found = std::find_if(std::begin(ROWS), std::end(ROWS), [&](const ForeignWord& row) {
        return row.place == place && row.word == word;
    });
    return found == std::end(ROWS) ? nullptr : found;
}

const ForeignWord* findForeignWord(std::string_view word) {
    const auto* const found = std::find_if(std::begin(ROWS), std::end(ROWS), [&](const ForeignWord& row) {
        return row.place != ForeignPlace::Member && row.word == word;
    });
    return found == std::end(ROWS) ? nullptr : found;
}

std::string_view dropIn(const ForeignWord& foreign) {
    const std::string_view own = foreign.own;
    const std::size_t end = std::min(own.find_first_of(" :(."), own.size());
    const bool isWordAlone = end == own.size();
    if (moduleFunctionIn(own) != nullptr ||
        (!foreign.remark.empty() && !(isWordAlone && foreign.place == Place::Name))) {
        return {};
    }
    if (foreign.place == Place::Member) {
        // value.word(…)
        const std::size_t bracket = std::min(own.find('('), own.size());
        const bool isMember = end < own.size() && own[end] == '.' && bracket < own.size();
        return isMember ? own.substr(end + 1, bracket - end - 1) : std::string_view();
    }
    const bool isCall = end < own.size() && own[end] == '(';
    const bool isWord = own.find_first_of("\"[{") > 0;
    return isWord && (isWordAlone || isCall || foreign.place == Place::Statement) ? own.substr(0, end)
                                                                                  : std::string_view();
}

std::string remedyOf(const ForeignWord& foreign, std::string_view parent) {
    std::string own(foreign.own);
    replaceAll(own, "{1}", parent);
    std::string remedy = "'" + std::string(foreign.word) + "' பொழிலின் சொல் அல்ல";
    if (!own.empty()) {
        remedy += "; '" + own + "' என்று எழுது மச்சி!";
    } else {
        remedy += ".";
    }
    if (const ModuleFunction* const function = moduleFunctionIn(foreign.own)) {
        remedy += " " + importRemedyOf(*function);
    }
    return foreign.remark.empty() ? remedy : remedy + " " + std::string(foreign.remark);
}

} // namespace pozhil::language::second
