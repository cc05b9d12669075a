#include "generator/first/builtins.h"

#include <unordered_map>
#include <vector>

namespace pozhil {
namespace {

// clang-format off
constexpr Builtin BUILTINS[] = {
    {"இப்போதுநேரம்", ANY_COUNT, "std::any([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }())",
     WrongCount::Exception, ""},
    {"என்னவகை", 1, "std::any(என்னவகை_கண்டுபிடி($A))",
     WrongCount::Report, "('என்னவகை' செயலுக்கு ஒரு மதிப்பு மட்டுமே தர வேண்டும்)"},
    {"வரம்பு", ANY_COUNT, "nullptr",
     WrongCount::Exception, ""},
    {"நீளம்", 1, "std::any(fn_நீளம்($A))",
     WrongCount::Exception, "'நீளம்' 1 argument மட்டுமே ஏற்கும்."},
    {"உள்ளீடு", 0, "fn_உள்ளீடு()",
     WrongCount::Exception, "'உள்ளீடு' 0 அல்லது 1 argument மட்டுமே ஏற்கும்."},
    {"உள்ளீடு", 1, "fn_உள்ளீடு(std::any_cast<std::string>($A))",
     WrongCount::Exception, "'உள்ளீடு' 0 அல்லது 1 argument மட்டுமே ஏற்கும்."},
    {"எண்", 1, "fn_cast_to_number($A, $line)",
     WrongCount::Report, ""},
    {"நீக்கு", 2, "fn_நீக்கு($A, std::any($B), \"$file\", $line)",
     WrongCount::Report, ""},
    {"செல்க", 1, "(g_currentPage = std::any_cast<std::string>($A), g_mouseClicked = false)",
     WrongCount::Exception, "'செல்க' 1 argument only."},
    {"நகர்த்து", 1, "fn_நகர்த்து($A)",
     WrongCount::Exception, "'நகர்த்து' 1 argument மட்டுமே ஏற்கும் (அடையாளம்)."},
    {"சீரற்ற_எண்", 2, "std::any((long long)(std::rand() % (std::any_cast<long long>($B) - std::any_cast<long long>($A) + 1) + std::any_cast<long long>($A)))",
     WrongCount::Exception, "'சீரற்ற_எண்' 2 arguments ஏற்கும் (min, max)."},
    {"எடு", 2, "fn_எடு( std::any($A), std::any($B))",
     WrongCount::Exception, "'எடு' 2 arguments ஏற்கும் (object, index)."},
    {"வர்க்கமூலம்", 1, "std::any(std::sqrt(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'வர்க்கமூலம்' 1 argument மட்டுமே ஏற்கும்."},
    {"அடுக்கு", 2, "std::any(std::pow(std::any_cast<long double>($A), std::any_cast<long double>($B)))",
     WrongCount::Exception, "'அடுக்கு' 2 arguments ஏற்கும் (அடி, அடுக்கு)."},
    {"தனிமதிப்பு", 1, "std::any(std::abs(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'தனிமதிப்பு' 1 argument மட்டுமே ஏற்கும்."},
    {"மேல்எண்", 1, "std::any(fn_மேல்எண்(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'மேல்எண்' 1 argument மட்டுமே ஏற்கும்."},
    {"கீழ்எண்", 1, "std::any(fn_கீழ்எண்(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'கீழ்எண்' 1 argument மட்டுமே ஏற்கும்."},
    {"சைன்", 1, "std::any(std::sin(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'சைன்' 1 argument மட்டுமே ஏற்கும்."},
    {"காஸ்", 1, "std::any(std::cos(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'காஸ்' 1 argument மட்டுமே ஏற்கும்."},
    {"டேன்", 1, "std::any(std::tan(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'டேன்' 1 argument மட்டுமே ஏற்கும்."},
    {"மடக்கு", 1, "std::any(std::log(std::any_cast<long double>($A)))",
     WrongCount::Exception, "'மடக்கு' 1 argument மட்டுமே ஏற்கும்."},
    {"பிளவு", 2, "fn_பிளவு( std::any_cast<std::string>($A), std::any_cast<std::string>($B))",
     WrongCount::Exception, "'பிளவு' 2 arguments ஏற்கும் (string, delimiter)."},
    {"பதில்", 3, "fn_பதில்( std::any_cast<std::string>($A), std::any_cast<std::string>($B), std::any_cast<std::string>($D))",
     WrongCount::Exception, "'பதில்' 3 arguments ஏற்கும் (string, find, replace)."},
    {"பெரியஎ", 1, "fn_பெரியஎ( std::any_cast<std::string>($A))",
     WrongCount::Exception, "'பெரியஎ' 1 argument மட்டுமே ஏற்கும்."},
    {"சிறியஎ", 1, "fn_சிறியஎ( std::any_cast<std::string>($A))",
     WrongCount::Exception, "'சிறியஎ' 1 argument மட்டுமே ஏற்கும்."},
    {"கோப்பு_எழுது", 2, "fn_கோப்பு_எழுது( std::any_cast<std::string>($A), fn_any_to_string($B), \"$file\", $line)",
     WrongCount::Report, "'கோப்பு_எழுது' 2 உள்ளீடுகளை ஏற்கும் (path, content)."},
    {"கோப்பு_படி", 1, "fn_கோப்பு_படி( std::any_cast<std::string>($A), \"$file\", $line)",
     WrongCount::Report, "'கோப்பு_படி' 1 உள்ளீட்டை ஏற்கும் (path)."},
    {"கோப்பு_சேர்", 2, "fn_கோப்பு_சேர்( std::any_cast<std::string>($A), fn_any_to_string($B), \"$file\", $line)",
     WrongCount::Report, "'கோப்பு_சேர்' 2 உள்ளீடுகளை ஏற்கும் (path, content)."},
    {"கோப்பு_அழி", 1, "fn_கோப்பு_அழி( std::any_cast<std::string>($A))",
     WrongCount::Exception, "'கோப்பு_அழி' 1 argument ஏற்கும் (path)."},
    {"கோப்பு_உள்ளதா", 1, "fn_கோப்பு_உள்ளதா( std::any_cast<std::string>($A))",
     WrongCount::Exception, "'கோப்பு_உள்ளதா' 1 argument ஏற்கும் (path)."},
    {"தேதி", 0, "std::any(fn_தேதி([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }()))",
     WrongCount::Exception, "'தேதி' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"தேதி", 1, "std::any(fn_தேதி(std::any_cast<std::tm*>($A)))",
     WrongCount::Exception, "'தேதி' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"நேரம்", 0, "std::any(fn_நேரம்([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }()))",
     WrongCount::Exception, "'நேரம்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"நேரம்", 1, "std::any(fn_நேரம்(std::any_cast<std::tm*>($A)))",
     WrongCount::Exception, "'நேரம்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"முழுவதும்", 0, "std::any(fn_முழுவதும்([]() { static std::time_t t; t = std::time(nullptr); return std::localtime(&t); }()))",
     WrongCount::Exception, "'முழுவதும்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
    {"முழுவதும்", 1, "std::any(fn_முழுவதும்(std::any_cast<std::tm*>($A)))",
     WrongCount::Exception, "'முழுவதும்' 0 அல்லது 1 argument-ஐ மட்டுமே ஏற்கும்."},
};
// clang-format on

using FormsByName = std::unordered_map<std::string_view, std::vector<const Builtin*>>;

const FormsByName& formsByName() {
    static const FormsByName forms = [] {
        FormsByName byName;
        for (const Builtin& builtin : BUILTINS) {
            byName[builtin.name].push_back(&builtin);
        }
        return byName;
    }();
    return forms;
}

} // namespace

const Builtin* findBuiltin(std::string_view name, int argumentCount, const Builtin*& anyForm) {
    const auto forms = formsByName().find(name);
    anyForm = forms == formsByName().end() ? nullptr : forms->second.front();
    if (anyForm == nullptr) {
        return nullptr;
    }
    for (const Builtin* form : forms->second) {
        if (form->argumentCount == ANY_COUNT || form->argumentCount == argumentCount) {
            return form;
        }
    }
    return nullptr;
}

} // namespace pozhil
