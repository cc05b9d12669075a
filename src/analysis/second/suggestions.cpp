#include "analysis/second/suggestions.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/nearest_name.h"
#include "analysis/second/structures.h"
#include "front_end/second_edition.h"
#include "language/keywords.h"
#include "language/second/builtins.h"

#include <algorithm>

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

/// The function of this file that has a variable of this name, or one inside of which there is; null if there is none.
const Scope* ownerElsewhere(const Model& model, std::size_t file, std::string_view name) {
    const auto found = std::find_if(model.scopes.begin(), model.scopes.end(), [&](const Scope& scope) {
        return scope.file == file && scope.function != nullptr && scope.variables.count(name) != 0;
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

/// A member of the object in whose method a name stands that has no meaning without it, as a question; empty if it has
/// none of that name.
std::string memberAsQuestion(const Resolution& resolution, std::string_view name) {
    const auto* const inside = resolution.inside;
    const bool isMember =
        inside != nullptr && (findField(*inside, name).field != nullptr || findMethod(*inside, name) != nullptr);
    return isMember ? "ஒருவேளை '" + std::string(SELF_NAME) + "." + std::string(name) + "' என்று எழுத நினைத்தாயா?" : "";
}

/// What may have been meant by a name that nothing has, as a question; empty if nothing is near.
std::string meantName(const Resolution& resolution, std::string_view name) {
    std::string member = memberAsQuestion(resolution, name);
    if (!member.empty()) {
        return member;
    }
    auto known = namesKnownIn(resolution.model, resolution.scope);
    addOwnWords(known);
    return nearestAsQuestion(name, known);
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
    if (!isFirstTime(model, place.file, name)) {
        return;
    }
    if (isSelf(name)) {
        model.faults.add(fault::SELF_OUTSIDE_METHOD, place, {std::string(name)});
        return;
    }
    if (const Scope* const owner = ownerElsewhere(model, place.file, name)) {
        model.faults.add(fault::NAME_OF_OTHER_FUNCTION, place, {std::string(name), owner->function->name},
                         memberAsQuestion(resolution, name));
        return;
    }
    if (const Scope* const file = fileElsewhere(model, place.file, name)) {
        model.faults.add(fault::NAME_OF_OTHER_FILE, place,
                         {std::string(name), model.source.files[file->file].source->path});
        return;
    }
    model.faults.add(fault::UNKNOWN_NAME, place, {std::string(name)}, meantName(resolution, name));
}

void tellUnknownFunction(Resolution& resolution, std::string_view name, resolved::Place place) {
    Model& model = resolution.model;
    if (!isFirstTime(model, place.file, name)) {
        return;
    }
    model.faults.add(fault::UNKNOWN_FUNCTION, place, {std::string(name)}, meantName(resolution, name));
}

void tellNameWithoutValue(Resolution& resolution, const Meaning& meaning, std::string_view name,
                          resolved::Place place) {
    resolution.model.faults.add(meaning.structure != nullptr ? fault::STRUCTURE_AS_VALUE : fault::ENUMERATION_AS_VALUE,
                                place, {std::string(name)});
}

void tellUnknownMember(Model& model, std::string_view what, std::string_view member,
                       const std::vector<std::string_view>& members, resolved::Place place) {
    if (!model.toldMembers.emplace(what, member).second) {
        return;
    }
    std::string all;
    for (const std::string_view one : members) {
        all += (all.empty() ? "" : ", ") + std::string(one);
    }
    model.faults.add(fault::UNKNOWN_MEMBER, place,
                     {std::string(what), std::string(member), all.empty() ? "எதுவுமில்லை" : all},
                     nearestAsQuestion(member, members));
}

void tellWrongCount(Model& model, std::string_view name, std::size_t fewest, std::size_t most, std::size_t given,
                    resolved::Place place) {
    const std::string asked =
        fewest == most ? std::to_string(most) : std::to_string(fewest) + " முதல் " + std::to_string(most) + " வரை";
    model.faults.add(fault::WRONG_COUNT, place, {std::string(name), asked, std::to_string(given)});
}

} // namespace pozhil::second
