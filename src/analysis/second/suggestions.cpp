#include "analysis/second/suggestions.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/nearest_name.h"
#include "analysis/second/structures.h"
#include "base/letters.h"
#include "front_end/second_edition.h"
#include "language/keywords.h"
#include "language/second/builtins.h"
#include "language/second/foreign_words.h"
#include "language/second/module_functions.h"
#include "report/catalogue.h"
#include "report/remedies.h"

#include <algorithm>
#include <filesystem>

namespace pozhil::second {
namespace {

/// Names that the language itself gives: its functions, and the words that begin statements.
void addOwnWords(std::vector<std::string_view>& known) {
    for (const auto& row : language::second::builtins()) {
        if (row.form == language::second::BuiltinForm::Call) {
            known.push_back(row.name);
        }
    }
    const auto words = language::typoCandidates();
    known.insert(known.end(), words.begin(), words.end());
}

/// The scope of a function of this file that has this name among \p names; null if there is none.
template <class Names>
const Scope* ownerElsewhere(const Model& model, std::size_t file, std::string_view name, Names Scope::*names) {
    const auto found = std::find_if(model.scopes.begin(), model.scopes.end(), [&](const Scope& scope) {
        return scope.file == file && scope.function != nullptr && (scope.*names).count(name) != 0;
    });
    return found == model.scopes.end() ? nullptr : &*found;
}

/// The file that has a variable of this name, and that this one may have meant to bring in; null if there is none.
const Scope* fileElsewhere(const Model& model, std::size_t file, std::string_view name) {
    for (const std::size_t imported : model.source.files[file].imports) {
        if (model.fileScopes[imported]->variables.count(name) != 0) {
            return model.fileScopes[imported];
        }
    }
    return nullptr;
}

/// What may have been meant by a name that nothing has.
struct MeantName {
    /// A question; empty if nothing is near.
    std::string question{};
    Mend mend{};
};

/// The nearest one, if no other is as near.
Mend nearestAsMend(std::string_view name, const std::vector<std::string_view>& known) {
    const std::string_view nearest = nearestName(name, known);
    return nearest.empty() || !isOnlyNearest(name, nearest, known) ? Mend()
                                                                   : Mend{std::string(name), std::string(nearest)};
}

MeantName meantName(const Resolution& resolution, std::string_view name) {
    if (resolution.model.faults.isLong()) {
        return {};
    }
    auto known = namesKnownIn(resolution.model, resolution.scope);
    addOwnWords(known);
    MeantName meant = {nearestAsQuestion(name, known), nearestAsMend(name, known)};
    if (const auto* const foreign = language::second::findForeignWord(name)) {
        meant.mend = {std::string(name), std::string(language::second::dropIn(*foreign))};
    }
    return meant;
}

/// Whether \p name is that of a file that this one imports.
bool isImportedFile(const Resolution& resolution, std::string_view name) {
    const auto& files = resolution.model.source.files;
    const auto& imports = files[resolution.scope.file].imports;
    return std::any_of(imports.begin(), imports.end(), [&](std::size_t imported) {
        return std::filesystem::u8path(files[imported].source->path).stem().u8string() == name;
    });
}

/// What to do about a name that other languages, or a module, would give a meaning; empty if none would.
std::string remedyForName(const Resolution& resolution, std::string_view name) {
    if (isImportedFile(resolution, name)) {
        return "'" + std::string(name) +
               "' நீ இறக்கிய கோப்பின் பெயர்; அதன் செயல்களைக் கோப்பின் பெயரும் '.' குறியும் இல்லாம நேரா அழை, 'செயல்(…)' மாதிரி மச்சி!";
    }
    if (language::second::findBuiltin(language::second::BuiltinForm::TestCall, name) != nullptr) {
        return report::filled(report::remedy::ONLY_IN_TESTS, {name});
    }
    if (const auto* const function = language::second::findModuleFunction(name)) {
        return importRemedyOf(*function);
    }
    if (const auto* const foreign = language::second::findForeignWord(name)) {
        const auto* const parent = resolution.inside == nullptr ? nullptr : resolution.inside->parent;
        return parent == nullptr ? remedyOf(*foreign) : remedyOf(*foreign, parent->name);
    }
    return language::second::isModule(name)
               ? "'" + std::string(name) + "' ஒரு தொகுப்பு; கோப்பின் தொடக்கத்துல 'நூஇறக்கி \"" + std::string(name) +
                     "\"' என்று எழுதி, அதன் செயல்களை '" + std::string(name) + "_…(…)' என்று அழை மச்சி!"
               : "";
}

/// Tells a member of the object in whose method or field a name stands that has no meaning without it.
/// \return whether it is one
bool tellBareMember(Resolution& resolution, std::string_view name, resolved::Place place) {
    const auto* const inside = resolution.inside;
    if (inside == nullptr) {
        return false;
    }
    const bool isField = findField(*inside, name).field != nullptr;
    if (isField || findMethod(*inside, name) != nullptr) {
        resolution.model.faults.add(fault::BARE_MEMBER, place,
                                    {std::string(name), inside->name, isField ? "பண்பு" : "செயல்"});
        return true;
    }
    return false;
}

/// Tells a function of this file that stands inside another, and so isn't known elsewhere.
/// \return whether there is one
bool tellInnerFunction(Resolution& resolution, std::string_view name, resolved::Place place) {
    const Scope* const owner = ownerElsewhere(resolution.model, place.file, name, &Scope::functions);
    if (owner == nullptr) {
        return false;
    }
    resolution.model.faults.add(fault::INNER_FUNCTION, place, {std::string(name), owner->function->name});
    return true;
}

/// Whether the name hasn't been told in this file; from then on it has.
bool isFirstTime(Model& model, std::size_t file, std::string_view name) {
    return model.toldNames.emplace(file, name).second;
}

} // namespace

std::string nearestAsQuestion(std::string_view name, const std::vector<std::string_view>& known) {
    const std::string_view nearest = nearestName(name, known);
    return nearest.empty() ? "" : "ஒருவேளை '" + std::string(nearest) + "' என்று எழுத நினைத்தாயா?";
}

void tellUnknownName(Resolution& resolution, std::string_view name, resolved::Place place) {
    Model& model = resolution.model;
    if (model.doubt.covers(place) || !isFirstTime(model, place.file, name)) {
        return;
    }
    if (isSelf(name)) {
        model.faults.add(fault::SELF_OUTSIDE_METHOD, place, {std::string(name)});
        return;
    }
    if (tellBareMember(resolution, name, place) || tellInnerFunction(resolution, name, place)) {
        return;
    }
    if (const Scope* const owner = ownerElsewhere(model, place.file, name, &Scope::variables)) {
        model.faults.add(fault::NAME_OF_OTHER_FUNCTION, place, {std::string(name), owner->function->name});
        return;
    }
    if (const Scope* const file = fileElsewhere(model, place.file, name)) {
        model.faults.add(fault::NAME_OF_OTHER_FILE, place,
                         {std::string(name), fileName(model.source.files[file->file].source->path)});
        return;
    }
    MeantName meant = meantName(resolution, name);
    model.faults.add(fault::UNKNOWN_NAME, place, {std::string(name)}, std::move(meant.question),
                     remedyForName(resolution, name), std::move(meant.mend));
}

void tellUnknownFunction(Resolution& resolution, std::string_view name, resolved::Place place) {
    Model& model = resolution.model;
    if (model.doubt.covers(place) || !isFirstTime(model, place.file, name) || tellBareMember(resolution, name, place) ||
        tellInnerFunction(resolution, name, place)) {
        return;
    }
    MeantName meant = meantName(resolution, name);
    model.faults.add(fault::UNKNOWN_FUNCTION, place, {std::string(name)}, std::move(meant.question),
                     remedyForName(resolution, name), std::move(meant.mend));
}

void tellNameWithoutValue(Resolution& resolution, const Meaning& meaning, std::string_view name,
                          resolved::Place place) {
    resolution.model.faults.add(meaning.structure != nullptr ? fault::STRUCTURE_AS_VALUE : fault::ENUMERATION_AS_VALUE,
                                place, {std::string(name)});
}

void tellUnknownMember(Model& model, std::string_view what, std::string_view member,
                       const std::vector<std::string_view>& members, resolved::Place place, std::string remedy) {
    if (model.doubt.covers(place) || !model.toldMembers.emplace(what, member).second) {
        return;
    }
    std::string all;
    for (const std::string_view one : members) {
        all += (all.empty() ? "" : ", ") + std::string(one);
    }
    const auto* const foreign = language::second::findForeignWord(member, language::second::ForeignPlace::Member);
    Mend mend = foreign == nullptr ? nearestAsMend(member, members)
                                   : Mend{std::string(member), std::string(language::second::dropIn(*foreign))};
    model.faults.add(fault::UNKNOWN_MEMBER, place,
                     {std::string(what), std::string(member), all.empty() ? "எதுவுமில்லை" : all},
                     nearestAsQuestion(member, members), std::move(remedy), std::move(mend));
}

std::string fileName(const std::string& path) {
    return std::filesystem::u8path(path).filename().u8string();
}

void tellWrongCount(Model& model, std::string_view name, std::size_t fewest, std::size_t most, std::size_t given,
                    resolved::Place place, std::string remedy) {
    const std::string asked =
        fewest == most ? std::to_string(most) : std::to_string(fewest) + " முதல் " + std::to_string(most) + " வரை";
    model.faults.add(fault::WRONG_COUNT, place, {std::string(name), asked, std::to_string(given)}, "",
                     std::move(remedy));
}

} // namespace pozhil::second
