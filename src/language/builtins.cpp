#include "language/builtins.h"

#include <unordered_map>
#include <vector>

namespace pozhil::language {
namespace {

using Form = BuiltinForm;
using Topic = BuiltinTopic;

// clang-format off
constexpr Builtin BUILTINS[] = {
    // Values.
    {"என்னவகை", Form::Call, Topic::Values, 1,
     "std::any(என்னவகை_கண்டுபிடி($A))",
     WrongCount::Report, "('என்னவகை' செயலுக்கு ஒரு மதிப்பு மட்டுமே தர வேண்டும்)",
     ResultRule::Unknown, VarType::Any, {"மதிப்பு"}, {"உரை", "text"},
     {"வகையின் பெயர்", "the name of the kind"},
     {"நான்கு பெயர்கள் இடைவெளியில் முடியும்", "four names end in a blank ([2](02_மதிப்புகள்.md))"}},
    {"எண்", Form::Call, Topic::Values, 1,
     "fn_cast_to_number($A, $line)",
     WrongCount::Report, "",
     ResultRule::Unknown, VarType::Any, {"உரை"}, {"எண்", "number"},
     {"உரையை எண்ணாக்கும்", "text to number"},
     {"புள்ளி அல்லது அடுக்கு இருந்தால் தசம எண். தமிழ் இலக்கங்கள் ஏற்கப்படாது. மாறாத உரை `பொழி-302`. எண்ணைத் தந்தால் அதே எண்", "Decimal with a point or exponent; no Tamil digits; box 302 if it is no number"}},
    {"நீளம்", Form::Call, Topic::Values, 1,
     "std::any(fn_நீளம்($A))",
     WrongCount::Exception, "'நீளம்' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Integer, {"மதிப்பு"}, {"சிற்றெண்", "short integer"},
     {"உரை: பைட்டுகள். பட்டியல், அகராதி: உறுப்புகள். எழுத்து: 1. எண்: அச்சாகும் நீளம். மற்றவை: 0", "bytes of a text, elements of a list or map, 1 for a letter, printed length of a number, else 0"},
     {"`கழி`, `பெருக்கு`, `மீதி`, சுட்டெண் ஆகியவற்றில் நேராகப் பயன்படாது", "not directly with `கழி`, `பெருக்கு`, `மீதி` or as an index ([14](14_வியப்புகள்.md))"}},

    // Lists and maps.
    {"சேர்", Form::ListMethod, Topic::Lists, 1,
     "",
     WrongCount::Report, "'.சேர்()' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Unknown, VarType::Any, {"மதிப்பு"}, {},
     {"பட்டியலின் இறுதியில் சேர்க்கும்", "appends to a list"},
     {"`அ` ஒரு மாறி. உறுப்பு, பண்பு ஆகாது", "a variable only"}},
    {"நீக்கு", Form::Call, Topic::Lists, 2,
     "fn_நீக்கு($A, std::any($B), $place)",
     WrongCount::Report, "",
     ResultRule::Unknown, VarType::Any, {"அ", "மதிப்பு"}, {},
     {"சமமான முதல் உறுப்பை நீக்கும்", "removes the first equal element"},
     {"இல்லையென்றால் `பொழி-314`; பட்டியல் இல்லையென்றால் `பொழி-304`", "boxes"}},
    {"வை", Form::ElementWrite, Topic::Lists, 3,
     "(fn_index_ref($A, std::any($B), $place) = std::any($D))",
     WrongCount::Report, "('வை' செயலுக்கு 3 மதிப்புகள் தேவை: பட்டியல்/அகராதி, குறியீடு/சாவி, மதிப்பு)",
     ResultRule::Unknown, VarType::Any, {"அ", "இடம்", "மதிப்பு"}, {"மதிப்பு", "the value"},
     {"`அ[இடம்] = மதிப்பு` போன்றது", "as assignment to an element"},
     {"`அ` மாறியாக இருந்தால் மட்டுமே மாற்றம் நிலைக்கும்", "lasting only if `அ` is a variable"}},
    {"வரம்பு", Form::LoopRange, Topic::Lists, ANY_COUNT,
     "nullptr",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Any, {"தொடக்கம்", "முடிவு"}, {},
     {"`ஒவ்வொன்றாக` சுற்றின் எண்கள்", "the numbers of a loop"},
     {"சுற்றுக்கு வெளியே மதிப்பு இல்லை; மூன்று மதிப்புகள் ஏற்கப்படாது", "no value elsewhere; no third argument"}},
    {"எடு", Form::Call, Topic::Lists, 2,
     "fn_எடு( std::any($A), std::any($B))",
     WrongCount::Exception, "'எடு' 2 arguments ஏற்கும் (object, index).",
     ResultRule::Firm, VarType::Any, {"அ", "இடம்"}, {},
     {},
     {"g++ மறுக்கும்; `அ[இடம்]` எழுதவும்", "refused by g++; write `அ[இடம்]`"}},

    // Texts.
    {"பிளவு", Form::Call, Topic::Texts, 2,
     "fn_பிளவு( std::any_cast<std::string>($castA), std::any_cast<std::string>($castB))",
     WrongCount::Exception, "'பிளவு' 2 arguments ஏற்கும் (string, delimiter).",
     ResultRule::UnlessStruct, VarType::List, {"உரை", "பிரிப்பான்"}, {"பட்டியல்", "list"},
     {"பிரிப்பான் வரும் இடமெல்லாம் பிரிக்கும்", "splits at every separator"},
     {"வெற்றுப் பிரிப்பான் முடியாமல் ஓடும்", "an empty separator never ends"}},
    {"பதில்", Form::Call, Topic::Texts, 3,
     "fn_பதில்( std::any_cast<std::string>($castA), std::any_cast<std::string>($castB), std::any_cast<std::string>($castD))",
     WrongCount::Exception, "'பதில்' 3 arguments ஏற்கும் (string, find, replace).",
     ResultRule::UnlessStruct, VarType::Text, {"உரை", "தேடுவது", "புதியது"}, {"உரை", "text"},
     {"எல்லா இடத்திலும் மாற்றும்", "replaces all"},
     {"வெற்றுத் தேடல் முடியாமல் ஓடும்", "an empty search never ends"}},
    {"பெரியஎ", Form::Call, Topic::Texts, 1,
     "fn_பெரியஎ( std::any_cast<std::string>($castA))",
     WrongCount::Exception, "'பெரியஎ' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::UnlessStruct, VarType::Text, {"உரை"}, {"உரை", "text"},
     {"ஆங்கிலப் பெரிய எழுத்துகள்", "capitals"},
     {"தமிழ் மாறாது", "Tamil stays"}},
    {"சிறியஎ", Form::Call, Topic::Texts, 1,
     "fn_சிறியஎ( std::any_cast<std::string>($castA))",
     WrongCount::Exception, "'சிறியஎ' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::UnlessStruct, VarType::Text, {"உரை"}, {"உரை", "text"},
     {"ஆங்கிலச் சிறிய எழுத்துகள்", "small letters"},
     {"தமிழ் மாறாது", "Tamil stays"}},

    // Mathematics.
    {"வர்க்கமூலம்", Form::Call, Topic::Mathematics, 1,
     "std::any(std::sqrt(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'வர்க்கமூலம்' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Double, {"தசமம்"}, {"தசமம்", "decimal"},
     {"வர்க்கமூலம்", "square root"}},
    {"அடுக்கு", Form::Call, Topic::Mathematics, 2,
     "std::any(std::pow(std::any_cast<long double>($castA), std::any_cast<long double>($castB)))",
     WrongCount::Exception, "'அடுக்கு' 2 arguments ஏற்கும் (அடி, அடுக்கு).",
     ResultRule::Firm, VarType::Double, {"தசமம்", "தசமம்"}, {"தசமம்", "decimal"},
     {"அடியின் அடுக்கு", "power"},
     {"இரண்டும் தசமம்", "both decimal"}},
    {"தனிமதிப்பு", Form::Call, Topic::Mathematics, 1,
     "std::any(std::abs(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'தனிமதிப்பு' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::OfArgument, VarType::Any, {"தசமம்"}, {"தசமம்", "decimal"},
     {"குறி இல்லா மதிப்பு", "absolute value"}},
    {"மேல்எண்", Form::Call, Topic::Mathematics, 1,
     "std::any(fn_மேல்எண்(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'மேல்எண்' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Integer, {"தசமம்"}, {"முழு எண்", "integer"},
     {"மேல் முழு எண்", "rounded up"}},
    {"கீழ்எண்", Form::Call, Topic::Mathematics, 1,
     "std::any(fn_கீழ்எண்(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'கீழ்எண்' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Integer, {"தசமம்"}, {"முழு எண்", "integer"},
     {"கீழ் முழு எண்", "rounded down"},
     {"தசம எண்ணையும் சிற்றெண்ணையும் முழு எண்ணாக்கப் பயன்படும்", "makes integers"}},
    {"சைன்", Form::Call, Topic::Mathematics, 1,
     "std::any(std::sin(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'சைன்' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Double, {"தசமம்"}, {"தசமம்", "decimal"},
     {"சைன் (ரேடியன்)", "sine (radians)"}},
    {"காஸ்", Form::Call, Topic::Mathematics, 1,
     "std::any(std::cos(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'காஸ்' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Double, {"தசமம்"}, {},
     {},
     {"`ஸ்` கிரந்த எழுத்து என்பதால் இப்பெயரை எழுத முடியாது (`பொழி-115`); `சைன்(அ கூட்டு 1.5707963267948966)` எழுதவும்", "can't be written, since it holds a grantha letter; take the sine of `அ` + π/2"}},
    {"டேன்", Form::Call, Topic::Mathematics, 1,
     "std::any(std::tan(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'டேன்' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Double, {"தசமம்"}, {"தசமம்", "decimal"},
     {"டேன்ஜென்ட் (ரேடியன்)", "tangent (radians)"}},
    {"மடக்கு", Form::Call, Topic::Mathematics, 1,
     "std::any(std::log(std::any_cast<long double>($castA)))",
     WrongCount::Exception, "'மடக்கு' 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Double, {"தசமம்"}, {"தசமம்", "decimal"},
     {"இயல் மடக்கை", "natural logarithm"}},
    {"சீரற்ற_எண்", Form::Call, Topic::Mathematics, 2,
     "std::any((long long)(std::rand() % (std::any_cast<long long>($castB) - std::any_cast<long long>($castA) + 1) + std::any_cast<long long>($castA)))",
     WrongCount::Exception, "'சீரற்ற_எண்' 2 arguments ஏற்கும் (min, max).",
     ResultRule::Unknown, VarType::Any, {"சிறியது", "பெரியது"}, {"முழு எண்", "integer"},
     {"இரண்டும் உட்பட ஓர் எண்", "a number, both bounds included"},
     {"ஒவ்வோர் ஓட்டத்திலும் அதே வரிசை", "the same sequence on every run"}},

    // Input and files.
    {"உள்ளீடு", Form::Call, Topic::Files, 0,
     "fn_உள்ளீடு()",
     WrongCount::Exception, "'உள்ளீடு' 0 அல்லது 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Text, {}, {},
     {}},
    {"உள்ளீடு", Form::Call, Topic::Files, 1,
     "fn_உள்ளீடு(std::any_cast<std::string>($castA))",
     WrongCount::Exception, "'உள்ளீடு' 0 அல்லது 1 argument மட்டுமே ஏற்கும்.",
     ResultRule::Firm, VarType::Text, {"உரை"}, {"உரை", "text"},
     {"கேள்வியை அச்சிட்டு ஒரு வரியைப் படிக்கும்", "prints the question and reads a line"},
     {"உள்ளீடு முடிந்திருந்தால் வெற்று உரை", "empty at the end of input"}},
    {"கோப்பு_எழுது", Form::Call, Topic::Files, 2,
     "fn_கோப்பு_எழுது( std::any_cast<std::string>($castA), fn_any_to_string($B), $place)",
     WrongCount::Report, "'கோப்பு_எழுது' 2 உள்ளீடுகளை ஏற்கும் (path, content).",
     ResultRule::Unknown, VarType::Any, {"உரை", "மதிப்பு"}, {},
     {"கோப்பைப் புதிதாக எழுதும்", "writes a file anew"},
     {"`பொழி-342`, `343`", ""}},
    {"கோப்பு_சேர்", Form::Call, Topic::Files, 2,
     "fn_கோப்பு_சேர்( std::any_cast<std::string>($castA), fn_any_to_string($B), $place)",
     WrongCount::Report, "'கோப்பு_சேர்' 2 உள்ளீடுகளை ஏற்கும் (path, content).",
     ResultRule::Unknown, VarType::Any, {"உரை", "மதிப்பு"}, {},
     {"கோப்பின் இறுதியில் சேர்க்கும்", "appends to a file"},
     {"`பொழி-342`, `343`", ""}},
    {"கோப்பு_படி", Form::Call, Topic::Files, 1,
     "fn_கோப்பு_படி( std::any_cast<std::string>($castA), $place)",
     WrongCount::Report, "'கோப்பு_படி' 1 உள்ளீட்டை ஏற்கும் (path).",
     ResultRule::UnlessStruct, VarType::Text, {"உரை"}, {"உரை", "text"},
     {"முழுக் கோப்பையும் படிக்கும்", "reads a whole file"},
     {"`பொழி-341`, `342`, `344`", ""}},
    {"கோப்பு_உள்ளதா", Form::Call, Topic::Files, 1,
     "fn_கோப்பு_உள்ளதா( std::any_cast<std::string>($castA))",
     WrongCount::Exception, "'கோப்பு_உள்ளதா' 1 argument ஏற்கும் (path).",
     ResultRule::UnlessStruct, VarType::Boolean, {"உரை"}, {"நிலை", "truth value"},
     {"திறக்க முடிகிறதா", "whether it can be opened"}},
    {"கோப்பு_அழி", Form::Call, Topic::Files, 1,
     "fn_கோப்பு_அழி( std::any_cast<std::string>($castA))",
     WrongCount::Exception, "'கோப்பு_அழி' 1 argument ஏற்கும் (path).",
     ResultRule::UnlessStruct, VarType::Boolean, {"உரை"}, {"நிலை", "truth value"},
     {"கோப்பை அழிக்கும்", "removes a file"},
     {"அழித்தால் `மெய்`", "true on success"}},

    // Time.
    {"இப்போதுநேரம்", Form::Call, Topic::Time, ANY_COUNT,
     "std::any([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }())",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Time, {}, {"நேரம்", "time"},
     {"இப்போதைய நேரம்", "the present"},
     {"முன்பு எடுத்த நேரங்களையும் மாற்றும்", "changes earlier times too"}},
    {"தேதி", Form::Call, Topic::Time, 0,
     "std::any(fn_தேதி([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }()))",
     WrongCount::Exception, "'தேதி' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்.",
     ResultRule::Unknown, VarType::Any, {}, {"உரை", "text"},
     {"நாள்-மாதம்-ஆண்டு", "day-month-year"}},
    {"தேதி", Form::Call, Topic::Time, 1,
     "std::any(fn_தேதி(std::any_cast<std::tm*>($castA)))",
     WrongCount::Exception, "'தேதி' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்.",
     ResultRule::Unknown, VarType::Any, {"நேரம்"}, {"உரை", "text"},
     {"நாள்-மாதம்-ஆண்டு", "day-month-year"}},
    {"நேரம்", Form::Call, Topic::Time, 0,
     "std::any(fn_நேரம்([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }()))",
     WrongCount::Exception, "'நேரம்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்.",
     ResultRule::Unknown, VarType::Any, {}, {"உரை", "text"},
     {"மணி:நிமிடம்:வினாடி", "hour:minute:second"}},
    {"நேரம்", Form::Call, Topic::Time, 1,
     "std::any(fn_நேரம்(std::any_cast<std::tm*>($castA)))",
     WrongCount::Exception, "'நேரம்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்.",
     ResultRule::Unknown, VarType::Any, {"நேரம்"}, {"உரை", "text"},
     {"மணி:நிமிடம்:வினாடி", "hour:minute:second"}},
    {"முழுவதும்", Form::Call, Topic::Time, 0,
     "std::any(fn_முழுவதும்([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }()))",
     WrongCount::Exception, "'முழுவதும்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்.",
     ResultRule::Unknown, VarType::Any, {}, {"உரை", "text"},
     {"தேதியும் நேரமும்", "both"}},
    {"முழுவதும்", Form::Call, Topic::Time, 1,
     "std::any(fn_முழுவதும்(std::any_cast<std::tm*>($castA)))",
     WrongCount::Exception, "'முழுவதும்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்.",
     ResultRule::Unknown, VarType::Any, {"நேரம்"}, {"உரை", "text"},
     {"தேதியும் நேரமும்", "both"}},
    {"வினாடிகள்", Form::Clock, Topic::Time, 0,
     "std::any(std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count())",
     WrongCount::Exception, "'நேரம்.வினாடிகள்()' arguments எதையும் ஏற்காது.",
     ResultRule::Firm, VarType::Double, {}, {"தசமம்", "decimal"},
     {"1970 முதல் கடந்த வினாடிகள்", "seconds since 1970"}},

    // For web applications.
    {"செல்க", Form::Call, Topic::Web, 1,
     "(g_currentPage = std::any_cast<std::string>($castA), g_mouseClicked = false)",
     WrongCount::Exception, "'செல்க' 1 argument only.",
     ResultRule::Unknown, VarType::Any, {"பக்கம்"}, {},
     {"பக்கத்திற்குச் செல்லும்", "goes to a page"},
     {"கன்சோல் நிரலில் g++ மறுக்கும்", "refused by g++ in a console program"}},
    {"நகர்த்து", Form::Call, Topic::Web, 1,
     "fn_நகர்த்து($A)",
     WrongCount::Exception, "'நகர்த்து' 1 argument மட்டுமே ஏற்கும் (அடையாளம்).",
     ResultRule::Unknown, VarType::Any, {"அடையாளம்"}, {},
     {"அந்த இடத்திற்கு உருட்டும்", "scrolls there"},
     {"கன்சோல் நிரலில் எதுவும் செய்யாது", "does nothing in a console program"}},

    // Parts of a time value.
    {"ஆண்டு", Form::TimePart, Topic::Time, 0,
     "std::any_cast<std::tm*>($A)->tm_year + 1900",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Integer, {}, {"முழு எண்", "integer"},
     {"ஆண்டு", "the year"}},
    {"மாதம்", Form::TimePart, Topic::Time, 0,
     "std::any_cast<std::tm*>($A)->tm_mon + 1",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Integer, {}, {"முழு எண்", "integer"},
     {"மாதம், 1 முதல் 12 வரை", "the month, 1 to 12"}},
    {"நாள்", Form::TimePart, Topic::Time, 0,
     "std::any_cast<std::tm*>($A)->tm_mday",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Integer, {}, {"முழு எண்", "integer"},
     {"மாதத்தின் நாள், 1 முதல் 31 வரை", "the day of the month, 1 to 31"}},
    {"மணி", Form::TimePart, Topic::Time, 0,
     "std::any_cast<std::tm*>($A)->tm_hour",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Integer, {}, {"முழு எண்", "integer"},
     {"மணி, 0 முதல் 23 வரை", "the hour, 0 to 23"}},
    {"நிமிடம்", Form::TimePart, Topic::Time, 0,
     "std::any_cast<std::tm*>($A)->tm_min",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Integer, {}, {"முழு எண்", "integer"},
     {"நிமிடம்", "the minute"}},
    {"வினாடி", Form::TimePart, Topic::Time, 0,
     "std::any_cast<std::tm*>($A)->tm_sec",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Integer, {}, {"முழு எண்", "integer"},
     {"வினாடி", "the second"}},
    {"வாரநாள்", Form::TimePart, Topic::Time, 0,
     "std::any_cast<std::tm*>($A)->tm_wday",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Integer, {}, {"முழு எண்", "integer"},
     {"வாரத்தின் நாள்: ஞாயிறு 0, சனி 6", "the day of the week: 0 is Sunday, 6 is Saturday"}},

    // Texts of a time value. One parenthesis short: the target compiler refuses them, the function forms work.
    {"தேதி", Form::TimeMethod, Topic::Time, 0,
     "std::any(fn_தேதி(std::any_cast<std::tm*>($A))",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Text, {}, {},
     {}},
    {"நேரம்", Form::TimeMethod, Topic::Time, 0,
     "std::any(fn_நேரம்(std::any_cast<std::tm*>($A))",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Text, {}, {},
     {}},
    {"முழுவதும்", Form::TimeMethod, Topic::Time, 0,
     "std::any(fn_முழுவதும்(std::any_cast<std::tm*>($A))",
     WrongCount::Exception, "",
     ResultRule::Firm, VarType::Text, {}, {},
     {}},

    // What an input holds.
    {"உரைதரவு", Form::InputProperty, Topic::Web, 0,
     "std::any(g_inputValues[\"$id\"])",
     WrongCount::Exception, "",
     ResultRule::Unknown, VarType::Any, {}, {"உரை", "text"},
     {"எழுதிய உரை", "the text"}},
    {"வெறுமை", Form::InputProperty, Topic::Web, 0,
     "g_inputValues[\"$id\"].empty()",
     WrongCount::Exception, "",
     ResultRule::Unknown, VarType::Any, {}, {"நிலை", "truth value"},
     {"வெறுமையா?", "is it empty?"}},
    {"வெறுமைஇல்லை", Form::InputProperty, Topic::Web, 0,
     "(!g_inputValues[\"$id\"].empty())",
     WrongCount::Exception, "",
     ResultRule::Unknown, VarType::Any, {}, {"நிலை", "truth value"},
     {"ஏதேனும் எழுதப்பட்டுள்ளதா?", "is anything typed?"}},
    {"நீளம்", Form::InputProperty, Topic::Web, 0,
     "std::any((long long)g_inputValues[\"$id\"].length())",
     WrongCount::Exception, "",
     ResultRule::Unknown, VarType::Any, {}, {"முழு எண்", "integer"},
     {"பைட்டுகள் (தமிழ் எழுத்துக்கு 3)", "bytes, three for a Tamil letter"}},
    {"சுத்தம்", Form::InputProperty, Topic::Web, 0,
     "fn_சுத்தம்(std::string(g_inputValues[\"$id\"]))",
     WrongCount::Exception, "",
     ResultRule::Unknown, VarType::Any, {}, {"உரை", "text"},
     {"முனைகளின் இடைவெளி இல்லாமல்", "trimmed"}},
    {"பெரியஎழுத்து", Form::InputProperty, Topic::Web, 0,
     "fn_பெரியஎ(std::string(g_inputValues[\"$id\"]))",
     WrongCount::Exception, "",
     ResultRule::Unknown, VarType::Any, {}, {"உரை", "text"},
     {"ஆங்கிலப் பெரிய எழுத்துகளில்", "in capitals"}},
    {"சிறியஎழுத்து", Form::InputProperty, Topic::Web, 0,
     "fn_சிறியஎ(std::string(g_inputValues[\"$id\"]))",
     WrongCount::Exception, "",
     ResultRule::Unknown, VarType::Any, {}, {"உரை", "text"},
     {"ஆங்கிலச் சிறிய எழுத்துகளில்", "in small letters"}},
    {"கொண்டுள்ளது", Form::InputMethod, Topic::Web, 1,
     R"(std::any(g_inputValues["$id"].find(fn_any_to_string($A)) != std::string::npos))",
     WrongCount::Report, "'.கொண்டுள்ளது()'",
     ResultRule::Unknown, VarType::Any, {"உரை"}, {"நிலை", "truth value"},
     {"உள்ளதா", "contains"}},
    {"தொடக்கம்", Form::InputMethod, Topic::Web, 1,
     R"(std::any(g_inputValues["$id"].find(fn_any_to_string($A)) == 0))",
     WrongCount::Report, "'.தொடக்கம்()'",
     ResultRule::Unknown, VarType::Any, {"உரை"}, {"நிலை", "truth value"},
     {"தொடங்குகிறதா", "begins with"}},
    {"முடிவு", Form::InputMethod, Topic::Web, 1,
     R"(([&]() -> std::any { std::string s = g_inputValues["$id"]; std::string sub = fn_any_to_string($A); )"
     R"(if (s.length() >= sub.length()) { )"
     R"(return std::any(0 == s.compare(s.length() - sub.length(), sub.length(), sub)); } )"
     R"(return std::any(false); })())",
     WrongCount::Report, "'.முடிவு()'",
     ResultRule::Unknown, VarType::Any, {"உரை"}, {"நிலை", "truth value"},
     {"முடிகிறதா", "ends in"}},
    {"பிழைசெய்தி", Form::InputMethod, Topic::Web, 1,
     R"(g_inputErrors["$id"] = fn_any_to_string($A))",
     WrongCount::Report, "'.பிழைசெய்தி()'",
     ResultRule::Unknown, VarType::Any, {"செய்தி"}, {},
     {"சிவப்புக் கரையும் கீழே செய்தியும்; தட்டச்சு செய்ததும் நீங்கும்", "a red border and a message below; typing clears it"}},
    {"பிழை_அழி", Form::InputMethod, Topic::Web, 0,
     R"(g_inputErrors.erase("$id"))",
     WrongCount::Report, "'.பிழை_அழி()'",
     ResultRule::Unknown, VarType::Any, {}, {},
     {"பிழையை நீக்கும்", "clears the error"}},
};
// clang-format on

using FormsByName = std::unordered_map<std::string_view, std::vector<const Builtin*>>;

/// The forms of each name in the order of the table.
const std::vector<const Builtin*>& formsOf(std::string_view name) {
    static const FormsByName byName = [] {
        FormsByName forms;
        for (const Builtin& row : BUILTINS) {
            forms[row.name].push_back(&row);
        }
        return forms;
    }();
    static const std::vector<const Builtin*> none;
    const auto found = byName.find(name);
    return found == byName.end() ? none : found->second;
}

bool isCalledByName(const Builtin& row) {
    return row.form == Form::Call || row.form == Form::ElementWrite || row.form == Form::LoopRange;
}

} // namespace

Rows<Builtin> builtins() {
    return BUILTINS;
}

const Builtin* findBuiltin(std::string_view name, int argumentCount, const Builtin*& anyForm) {
    anyForm = findBuiltin(name);
    for (const Builtin* row : formsOf(name)) {
        const bool fits = row->argumentCount == ANY_COUNT || row->argumentCount == argumentCount;
        if (fits && isCalledByName(*row)) {
            return row;
        }
    }
    return nullptr;
}

const Builtin* findBuiltin(std::string_view name) {
    for (const Builtin* row : formsOf(name)) {
        if (isCalledByName(*row)) {
            return row;
        }
    }
    return nullptr;
}

const Builtin* findMember(BuiltinForm form, std::string_view name) {
    for (const Builtin* row : formsOf(name)) {
        if (row->form == form) {
            return row;
        }
    }
    return nullptr;
}

std::optional<ArgumentHole> argumentOf(std::string_view name) {
    constexpr std::string_view CAST = "cast";
    constexpr std::string_view LETTERS = "ABD";
    const bool isCastOperand = name.substr(0, CAST.size()) == CAST;
    name.remove_prefix(isCastOperand ? CAST.size() : 0);
    const std::size_t index = name.size() == 1 ? LETTERS.find(name.front()) : std::string_view::npos;
    return index == std::string_view::npos ? std::nullopt : std::optional(ArgumentHole{index, isCastOperand});
}

} // namespace pozhil::language
