#include "analysis/hints/name_hints.h"

#include "analysis/hints/name_spelling.h"
#include "language/builtins.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace pozhil {
namespace {

std::string quoted(std::string_view name) {
    return "'" + std::string(name) + "'";
}

/// f of two parameters  ->  (அ, ஆ) => f(அ, ஆ)
std::string asFunctionValue(std::string_view name, const std::vector<Param>& params) {
    std::string list;
    for (const Param& param : params) {
        list += (list.empty() ? "" : ", ") + param.name.value;
    }
    return "(" + list + ") => " + std::string(name) + "(" + list + ")";
}

/// What is told of a name that no variable has; empty if it may have a meaning that isn't known here.
std::string unassignedText(std::string_view name, const NameUse& use, const Parser& parser) {
    const std::string text(name);
    const auto function = parser.functions().find(text);
    if (function != parser.functions().end()) {
        return quoted(name) + " ஒரு செயலின் பெயர்; அதை மதிப்பாகப் பயன்படுத்த '" + asFunctionValue(name, function->second) +
               "' என்று எழுதவும்.";
    }
    if (parser.structs().count(text) != 0 || parser.abstractStructs().count(text) != 0) {
        return {};
    }
    if (language::findBuiltin(name) != nullptr) {
        return quoted(name) + " ஒரு செயலின் பெயர்; அதை அழைக்க '" + text + "(...)' என்று அடைப்புக்குறிகளோடு எழுதவும்.";
    }
    // A word of the language has no line. What it may stand for is left to whoever knows the word.
    if (use.read->line == 0) {
        return {};
    }
    if (use.wasNative) {
        return quoted(name) + " இந்த இடத்தில் மதிப்பில்லாத மாறி; சுற்றின் மாறியும் செயலின் பராமீட்டரும் அவற்றுக்குள் மட்டுமே தெரியும்.";
    }
    return quoted(name) + " என்ற மாறிக்கு எங்கும் மதிப்பு தரவில்லை; பெயரில் எழுத்துப்பிழை உள்ளதா என்று பார்க்கவும்.";
}

/// Whether a built-in has a member of this name.
bool isBuiltinMember(std::string_view name) {
    using Form = language::BuiltinForm;
    constexpr std::array FORMS = {Form::ListMethod, Form::InputProperty, Form::InputMethod,
                                  Form::TimePart,   Form::TimeMethod,    Form::Clock};
    return std::any_of(FORMS.begin(), FORMS.end(),
                       [&](Form form) { return language::findMember(form, name) != nullptr; });
}

/// Whether the program has the name with composed signs too.
bool hasTwin(std::string_view name, const NameUses& names, const MemberUses& members) {
    if (!isDecomposed(name)) {
        return false;
    }
    const std::string twin = composed(name);
    return names.find(twin) != nullptr || members.count(twin) != 0;
}

/// Whether the way in which the name is written is a hint of its own.
bool isSpeltOddly(std::string_view name, const NameUses& names, const MemberUses& members) {
    return holdsCurlyQuote(name) || holdsOddBlank(name) || hasTwin(name, names, members);
}

} // namespace

void findUnassigned(const NameUses& names, const MemberUses& members, const Parser& parser, HintList& found) {
    for (const auto& [name, use] : names.all()) {
        if (use.read == nullptr || use.isAssigned || isSpeltOddly(name, names, members)) {
            continue;
        }
        std::string text = unassignedText(name, use, parser);
        if (!text.empty()) {
            found.add(HintKind::UnassignedName, *use.read, std::move(text));
        }
    }
}

void findUnsetMembers(const MemberUses& members, HintList& found) {
    for (const auto& [name, use] : members) {
        if (use.read != nullptr && !use.isSet && !isBuiltinMember(name)) {
            found.add(HintKind::UnsetMember, *use.read,
                      quoted(name) + " என்ற பண்போ செயலோ எந்தக் கட்டமைப்பிலும் இல்லை; பெயரில் எழுத்துப்பிழை உள்ளதா என்று பார்க்கவும்.");
        }
    }
}

void findTwins(const NameUses& names, const MemberUses& members, HintList& found) {
    const auto addTwin = [&](std::string_view name, const Expression* mention) {
        if (mention != nullptr && hasTwin(name, names, members)) {
            found.add(
                HintKind::TwoSpellings, *mention,
                quoted(name) +
                    " என்ற பெயரில் ஒரு குறி இரண்டாகப் பிரிந்துள்ளது ('ொ' என்பதற்குப் பதில் 'ெ', 'ா' என்பது போல); பார்வைக்கு ஒன்றானாலும் "
                    "இது வேறு பெயர். பெயரை அழித்துவிட்டு மீண்டும் எழுதவும்.");
        }
    };
    for (const auto& [name, use] : names.all()) {
        addTwin(name, use.mention);
    }
    for (const auto& [name, use] : members) {
        addTwin(name, use.mention);
    }
}

} // namespace pozhil
