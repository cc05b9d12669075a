#include "language/second/builtins.h"

#include <algorithm>
#include <iterator>

namespace pozhil::language::second {
namespace {

using Form = BuiltinForm;
using Kind = ResultKind;

// clang-format off
constexpr Builtin BUILTINS[] = {
    // Values.
    {"என்னவகை", Form::Call, 1, 1, "kindName", Kind::Text, false, {"மதிப்பு"}, {"வகையின் பெயர்", "the name of the kind"}},
    {"எண்", Form::Call, 1, 1, "number", Kind::Any, false, {"மதிப்பு"}, {"உரையை எண்ணாக்கும்", "makes a number of a text"}},
    {"நீளம்", Form::Call, 1, 1, "length", Kind::Whole, false, {"மதிப்பு"}, {"உரையின் எழுத்துகள், பட்டியல் அல்லது அகராதியின் உறுப்புகள்", "letters of a text, elements of a list or map"}},
    {"நீளம்", Form::Method, 1, 1, "length", Kind::Whole, false, {"மதிப்பு"}, {"நீளம்(மதிப்பு) போன்றது", "the same"}, owner::TEXT | owner::LIST | owner::MAP},

    // Lists and maps.
    {"சேர்", Form::Method, 2, 2, "append", Kind::Nothing, true, {"பட்டியல்", "மதிப்பு"}, {"பட்டியலின் இறுதியில் சேர்க்கும்", "appends to a list"}, owner::LIST},
    {"சேர்", Form::Call, 2, 2, "append", Kind::Nothing, true, {"பட்டியல்", "மதிப்பு"}, {"பட்டியலின் இறுதியில் சேர்க்கும்", "appends to a list"}},
    {"நீக்கு", Form::Call, 2, 2, "removeFrom", Kind::Nothing, true, {"பட்டியல் அல்லது அகராதி", "மதிப்பு அல்லது சாவி"}, {"சமமான முதல் உறுப்பை, அல்லது சாவியை நீக்கும்", "removes the first equal element, or a key"}},
    {"நீக்கு", Form::Method, 2, 2, "removeFrom", Kind::Nothing, true, {"பட்டியல் அல்லது அகராதி", "மதிப்பு அல்லது சாவி"}, {"சமமான முதல் உறுப்பை, அல்லது சாவியை நீக்கும்", "removes the first equal element, or a key"}, owner::LIST | owner::MAP},
    {"வை", Form::Call, 3, 3, "put", Kind::Any, true, {"பட்டியல் அல்லது அகராதி", "இடம்", "மதிப்பு"}, {"`அ[இடம்] = மதிப்பு` போன்றது", "as assignment to an element"}},
    {"எடு", Form::Call, 2, 2, "get", Kind::Any, false, {"மதிப்பு", "இடம்"}, {"`அ[இடம்]` போன்றது", "as reading an element"}},
    {"கொண்டுள்ளது", Form::Call, 2, 2, "contains", Kind::Truth, false, {"மதிப்பு", "எது"}, {"உரையில் பகுதி, பட்டியலில் உறுப்பு, அகராதியில் சாவி உள்ளதா", "whether a text holds a part, a list an element, a map a key"}},
    {"கொண்டுள்ளது", Form::Method, 2, 2, "contains", Kind::Truth, false, {"மதிப்பு", "எது"}, {"உரையில் பகுதி, பட்டியலில் உறுப்பு, அகராதியில் சாவி உள்ளதா", "whether a text holds a part, a list an element, a map a key"}, owner::TEXT | owner::LIST | owner::MAP},
    {"வரம்பு", Form::Call, 1, 3, "range", Kind::List, false, {"தொடக்கம்", "முடிவு", "படி"}, {"எண்களின் பட்டியல்; முடிவு சேராது", "a list of numbers, without the end"}},

    // Texts.
    {"பிளவு", Form::Call, 2, 2, "split", Kind::List, false, {"உரை", "பிரிப்பான்"}, {"பிரிப்பான் வரும் இடமெல்லாம் பிரிக்கும்", "splits at every separator"}},
    {"பதில்", Form::Call, 3, 3, "replace", Kind::Text, false, {"உரை", "தேடுவது", "புதியது"}, {"எல்லா இடத்திலும் மாற்றும்", "replaces all"}},
    {"பெரியஎ", Form::Call, 1, 1, "upperCase", Kind::Text, false, {"உரை"}, {"பெரிய எழுத்துகள்", "capitals"}},
    {"சிறியஎ", Form::Call, 1, 1, "lowerCase", Kind::Text, false, {"உரை"}, {"சிறிய எழுத்துகள்", "small letters"}},
    {"பெரியஎழுத்து", Form::Method, 1, 1, "upperCase", Kind::Text, false, {"உரை"}, {"பெரிய எழுத்துகள்", "capitals"}, owner::TEXT},
    {"சிறியஎழுத்து", Form::Method, 1, 1, "lowerCase", Kind::Text, false, {"உரை"}, {"சிறிய எழுத்துகள்", "small letters"}, owner::TEXT},
    {"சுத்தம்", Form::Call, 1, 1, "trim", Kind::Text, false, {"உரை"}, {"முனைகளின் இடைவெளி இல்லாமல்", "without blanks at its ends"}},
    {"சுத்தம்", Form::Method, 1, 1, "trim", Kind::Text, false, {"உரை"}, {"முனைகளின் இடைவெளி இல்லாமல்", "without blanks at its ends"}, owner::TEXT},
    {"தொடக்கம்", Form::Method, 2, 2, "startsWith", Kind::Truth, false, {"உரை", "பகுதி"}, {"பகுதியோடு தொடங்குகிறதா", "whether it begins so"}, owner::TEXT},
    {"முடிவு", Form::Method, 2, 2, "endsWith", Kind::Truth, false, {"உரை", "பகுதி"}, {"பகுதியோடு முடிகிறதா", "whether it ends so"}, owner::TEXT},

    // Mathematics.
    {"வர்க்கமூலம்", Form::Call, 1, 1, "squareRoot", Kind::Decimal, false, {"எண்"}, {"வர்க்கமூலம்", "square root"}},
    {"அடுக்கு", Form::Call, 2, 2, "power", Kind::Decimal, false, {"அடி", "அடுக்கு"}, {"அடியின் அடுக்கு", "power"}},
    {"தனிமதிப்பு", Form::Call, 1, 1, "absolute", Kind::OfFirstArgument, false, {"எண்"}, {"குறி இல்லா மதிப்பு", "absolute value"}},
    {"மேல்எண்", Form::Call, 1, 1, "roundUp", Kind::Whole, false, {"எண்"}, {"மேல் முழு எண்", "rounded up"}},
    {"கீழ்எண்", Form::Call, 1, 1, "roundDown", Kind::Whole, false, {"எண்"}, {"கீழ் முழு எண்", "rounded down"}},
    {"சைன்", Form::Call, 1, 1, "sine", Kind::Decimal, false, {"எண்"}, {"சைன் (ரேடியன்)", "sine (radians)"}},
    {"காஸ்", Form::Call, 1, 1, "cosine", Kind::Decimal, false, {"எண்"}, {"கோசைன் (ரேடியன்)", "cosine (radians)"}},
    {"டேன்", Form::Call, 1, 1, "tangent", Kind::Decimal, false, {"எண்"}, {"டேன்ஜென்ட் (ரேடியன்)", "tangent (radians)"}},
    {"மடக்கு", Form::Call, 1, 1, "logarithm", Kind::Decimal, false, {"எண்"}, {"இயல் மடக்கை", "natural logarithm"}},
    {"சீரற்ற_எண்", Form::Call, 2, 2, "randomNumber", Kind::Whole, false, {"சிறியது", "பெரியது"}, {"இரண்டும் உட்பட ஓர் எண்", "a number, both bounds included"}},

    // Input and files.
    {"உள்ளீடு", Form::Call, 0, 1, "readLine", Kind::Text, false, {"கேள்வி"}, {"கேள்வியை அச்சிட்டு ஒரு வரியைப் படிக்கும்", "prints the question and reads a line"}},
    {"கோப்பு_எழுது", Form::Call, 2, 2, "writeFile", Kind::Nothing, false, {"பாதை", "மதிப்பு"}, {"கோப்பைப் புதிதாக எழுதும்", "writes a file anew"}},
    {"கோப்பு_சேர்", Form::Call, 2, 2, "appendFile", Kind::Nothing, false, {"பாதை", "மதிப்பு"}, {"கோப்பின் இறுதியில் சேர்க்கும்", "appends to a file"}},
    {"கோப்பு_படி", Form::Call, 1, 1, "readFile", Kind::Text, false, {"பாதை"}, {"முழுக் கோப்பையும் படிக்கும்", "reads a whole file"}},
    {"கோப்பு_உள்ளதா", Form::Call, 1, 1, "fileExists", Kind::Truth, false, {"பாதை"}, {"திறக்க முடிகிறதா", "whether it can be opened"}},
    {"கோப்பு_அழி", Form::Call, 1, 1, "removeFile", Kind::Truth, false, {"பாதை"}, {"கோப்பை அழிக்கும்; அழித்தால் மெய்", "removes a file; true on success"}},

    // Time.
    {"இப்போதுநேரம்", Form::Call, 0, 0, "now", Kind::Time, false, {}, {"இப்போதைய நேரம்", "the present"}},
    {"தேதி", Form::Call, 0, 1, "dateText", Kind::Text, false, {"நேரம்"}, {"நாள்-மாதம்-ஆண்டு", "day-month-year"}},
    {"தேதி", Form::Method, 1, 1, "dateText", Kind::Text, false, {"நேரம்"}, {"நாள்-மாதம்-ஆண்டு", "day-month-year"}, owner::TIME},
    {"நேரம்", Form::Call, 0, 1, "clockText", Kind::Text, false, {"நேரம்"}, {"மணி:நிமிடம்:வினாடி", "hour:minute:second"}},
    {"நேரம்", Form::Method, 1, 1, "clockText", Kind::Text, false, {"நேரம்"}, {"மணி:நிமிடம்:வினாடி", "hour:minute:second"}, owner::TIME},
    {"முழுவதும்", Form::Call, 0, 1, "dateAndClockText", Kind::Text, false, {"நேரம்"}, {"தேதியும் நேரமும்", "both"}},
    {"முழுவதும்", Form::Method, 1, 1, "dateAndClockText", Kind::Text, false, {"நேரம்"}, {"தேதியும் நேரமும்", "both"}, owner::TIME},
    {"வினாடிகள்", Form::Clock, 0, 0, "secondsSince1970", Kind::Decimal, false, {}, {"1970 முதல் கடந்த வினாடிகள்", "seconds since 1970"}},
    {"ஆண்டு", Form::Part, 1, 1, "year", Kind::Whole, false, {"நேரம்"}, {"ஆண்டு", "the year"}, owner::TIME},
    {"மாதம்", Form::Part, 1, 1, "month", Kind::Whole, false, {"நேரம்"}, {"மாதம், 1 முதல் 12 வரை", "the month, 1 to 12"}, owner::TIME},
    {"நாள்", Form::Part, 1, 1, "day", Kind::Whole, false, {"நேரம்"}, {"மாதத்தின் நாள், 1 முதல் 31 வரை", "the day of the month, 1 to 31"}, owner::TIME},
    {"மணி", Form::Part, 1, 1, "hour", Kind::Whole, false, {"நேரம்"}, {"மணி, 0 முதல் 23 வரை", "the hour, 0 to 23"}, owner::TIME},
    {"நிமிடம்", Form::Part, 1, 1, "minute", Kind::Whole, false, {"நேரம்"}, {"நிமிடம்", "the minute"}, owner::TIME},
    {"வினாடி", Form::Part, 1, 1, "second", Kind::Whole, false, {"நேரம்"}, {"வினாடி", "the second"}, owner::TIME},
    {"வாரநாள்", Form::Part, 1, 1, "weekday", Kind::Whole, false, {"நேரம்"}, {"வாரத்தின் நாள்: ஞாயிறு 0, சனி 6", "the day of the week: 0 is Sunday, 6 is Saturday"}, owner::TIME},

    // Of tests.
    {"உறுதிசெய்", Form::TestCall, 2, 2, "ensure", Kind::Nothing, false, {"நிபந்தனை", "செய்தி"}, {"நிபந்தனை பொய் என்றால் சோதனை அந்தச் செய்தியோடு தோற்கும்", "fails the test with the message if the condition is false"}},
    {"சமம்_உறுதி", Form::TestCall, 2, 2, "ensureEqual", Kind::Nothing, false, {"பெற்றது", "வேண்டியது"}, {"இரண்டும் சமமில்லை என்றால், எங்கே வேறுபடுகின்றன என்று சொல்லி சோதனை தோற்கும்", "fails the test if they aren't equal, and tells where they differ"}},

    // Of web applications.
    {"செல்க", Form::PageCall, 1, 1, "page::go", Kind::Nothing, false, {"பக்கம்"}, {"பக்கத்திற்குச் செல்லும்", "goes to a page"}},
    {"முகவரி", Form::PageCall, 0, 0, "page::address", Kind::Text, false, {}, {"காட்டப்படும் பக்கத்தின் பெயர்", "the name of the page that is shown"}},
    {"நகர்த்து", Form::PageCall, 1, 1, "page::scrollTo", Kind::Nothing, false, {"அடையாளம்"}, {"அந்த இடத்திற்கு உருட்டும்", "scrolls there"}},
    {"திரை_அகலம்", Form::PageWord, 0, 0, "page::windowWidth", Kind::Decimal, false, {}, {"சாளரத்தின் அகலம்", "width of the window"}},
    {"திரை_உயரம்", Form::PageWord, 0, 0, "page::windowHeight", Kind::Decimal, false, {}, {"சாளரத்தின் உயரம்", "height of the window"}},
    {"உரைதரவு", Form::FieldPart, 1, 1, "page::fieldText", Kind::Text, false, {"பெட்டி"}, {"எழுதிய உரை", "the text"}},
    {"வெறுமை", Form::FieldPart, 1, 1, "page::isFieldEmpty", Kind::Truth, false, {"பெட்டி"}, {"வெறுமையா?", "is it empty?"}},
    {"வெறுமைஇல்லை", Form::FieldPart, 1, 1, "page::isFieldFilled", Kind::Truth, false, {"பெட்டி"}, {"ஏதேனும் எழுதப்பட்டுள்ளதா?", "is anything typed?"}},
    {"நீளம்", Form::FieldPart, 1, 1, "page::fieldLength", Kind::Whole, false, {"பெட்டி"}, {"எழுத்துகளின் எண்ணிக்கை", "letters"}},
    {"சுத்தம்", Form::FieldPart, 1, 1, "page::fieldTrimmed", Kind::Text, false, {"பெட்டி"}, {"முனைகளின் இடைவெளி இல்லாமல்", "trimmed"}},
    {"பெரியஎழுத்து", Form::FieldPart, 1, 1, "page::fieldUpperCase", Kind::Text, false, {"பெட்டி"}, {"ஆங்கிலப் பெரிய எழுத்துகளில்", "in capitals"}},
    {"சிறியஎழுத்து", Form::FieldPart, 1, 1, "page::fieldLowerCase", Kind::Text, false, {"பெட்டி"}, {"ஆங்கிலச் சிறிய எழுத்துகளில்", "in small letters"}},
    {"கொண்டுள்ளது", Form::FieldMethod, 2, 2, "page::fieldContains", Kind::Truth, false, {"பெட்டி", "உரை"}, {"உள்ளதா", "contains"}},
    {"தொடக்கம்", Form::FieldMethod, 2, 2, "page::fieldStartsWith", Kind::Truth, false, {"பெட்டி", "உரை"}, {"தொடங்குகிறதா", "begins with"}},
    {"முடிவு", Form::FieldMethod, 2, 2, "page::fieldEndsWith", Kind::Truth, false, {"பெட்டி", "உரை"}, {"முடிகிறதா", "ends in"}},
    {"பிழைசெய்தி", Form::FieldMethod, 2, 2, "page::setFieldError", Kind::Nothing, false, {"பெட்டி", "செய்தி"}, {"சிவப்புக் கரையும் கீழே செய்தியும்; தட்டச்சு செய்ததும் நீங்கும்", "a red border and a message below; typing clears it"}},
    {"பிழை_அழி", Form::FieldMethod, 1, 1, "page::clearFieldError", Kind::Nothing, false, {"பெட்டி"}, {"பிழையை நீக்கும்", "clears the error"}},
};
// clang-format on

} // namespace

Rows<Builtin> builtins() {
    return BUILTINS;
}

const Builtin* findBuiltin(BuiltinForm form, std::string_view name) {
    const auto* const found = std::find_if(std::begin(BUILTINS), std::end(BUILTINS),
                                           [&](const Builtin& row) { return row.form == form && row.name == name; });
    return found == std::end(BUILTINS) ? nullptr : found;
}

} // namespace pozhil::language::second
