#include "analysis/second/doubt.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/model.h"
#include "base/text.h"
#include "front_end/second_edition.h"

#include <algorithm>

namespace pozhil::second {
namespace {

/// Whether a fault is about a name that nothing gives a meaning, or no value.
bool isAboutUnknownName(int number) {
    switch (number) {
    case fault::UNKNOWN_NAME:
    case fault::UNKNOWN_FUNCTION:
    case fault::UNKNOWN_PARENT:
    case fault::NAME_OF_OTHER_FUNCTION:
    case fault::NAME_OF_OTHER_FILE:
    case fault::INNER_FUNCTION:
    case fault::BARE_MEMBER:
    case fault::UNSET_VARIABLE:
    case fault::UNSET_OWN_VARIABLE: return true;
    default: return false;
    }
}

/// Whether a fault is about kinds of values: then its own values are words of operators and kinds, no names.
bool isAboutKinds(int number) {
    switch (number) {
    case fault::NO_TRUTH:
    case fault::WRONG_OPERANDS:
    case fault::WRONG_OPERAND:
    case fault::NO_FUNCTION:
    case fault::WRONG_INDEX:
    case fault::WRONG_ORDERING:
    case fault::WRONG_BOUND:
    case fault::NO_ELEMENTS:
    case fault::NOTHING_TO_GO_OVER: return true;
    default: return false;
    }
}

bool overlaps(ByteRange one, ByteRange other) {
    return one.begin < other.end && other.begin < one.end;
}

bool holds(ByteRange whole, ByteRange part) {
    return whole.begin <= part.begin && part.end <= whole.end;
}

/// Whether a part of a function is unread, and not all of it.
bool hasPart(ByteRange function, ByteRange part) {
    return holds(function, part) && !holds(part, function);
}

} // namespace

void Doubt::find(const Model& model) {
    const auto& files = model.source.files;
    isAny_ = std::any_of(files.begin(), files.end(), [](const SecondFile& file) { return !file.unread.parts.empty(); });
    if (!isAny_) {
        return;
    }
    files_.resize(files.size());
    addWords(model);
    addFunctions(model);
    addStructures(model);
}

void Doubt::addWords(const Model& model) {
    for (std::size_t file = 0; file < files_.size(); ++file) {
        for (const UnreadPart& part : model.source.files[file].unread.parts) {
            files_[file].parts.push_back(part.range);
            words_.insert(part.words.begin(), part.words.end());
            beginnings_.insert(part.beginnings.begin(), part.beginnings.end());
        }
    }
}

/// A function with an unread part is in doubt as a whole, and with it those around it that it shares variables with. Parts
/// that stand in none may name what the whole program knows.
void Doubt::addFunctions(const Model& model) {
    struct Innermost {
        const Scope* scope = nullptr;
        ByteRange range;
    };
    std::vector<std::vector<Innermost>> innermost(files_.size());
    for (std::size_t file = 0; file < files_.size(); ++file) {
        innermost[file].resize(files_[file].parts.size());
    }
    for (const auto& [node, scope] : model.scopeOf) {
        const ByteRange range = model.locations.of(scope->file, node).range;
        for (std::size_t part = 0; part < innermost[scope->file].size(); ++part) {
            Innermost& known = innermost[scope->file][part];
            const bool isFurtherIn = known.scope == nullptr || holds(known.range, range);
            if (!scope->function->isPage && hasPart(range, files_[scope->file].parts[part]) && isFurtherIn) {
                known = {scope, range};
            }
        }
    }
    for (std::size_t file = 0; file < files_.size(); ++file) {
        for (std::size_t part = 0; part < innermost[file].size(); ++part) {
            const Scope* const scope = innermost[file][part].scope;
            if (scope != nullptr) {
                addFunction(model, *scope);
            }
            const bool isInPlainFunction = scope != nullptr && !scope->isOfApplication;
            files_[file].mayNameMore = files_[file].mayNameMore ||
                                       (!isInPlainFunction && model.source.files[file].unread.parts[part].mayNameMore);
        }
        mayNameMore_ = mayNameMore_ || files_[file].mayNameMore;
    }
}

void Doubt::addFunction(const Model& model, const Scope& innermost) {
    const Scope* outermost = &innermost;
    while (outermost->outer != nullptr && outermost->outer->function != nullptr &&
           !outermost->outer->function->isPage) {
        outermost = outermost->outer;
    }
    const auto isInside = [&](const Scope* scope) {
        while (scope != nullptr && scope != outermost) {
            scope = scope->outer;
        }
        return scope != nullptr;
    };
    FileDoubt& file = files_[innermost.file];
    for (const auto& [node, scope] : model.scopeOf) {
        if (!isInside(scope)) {
            continue;
        }
        functions_.insert(scope->function);
        file.assigned.insert(scope->fileNames.begin(), scope->fileNames.end());
        if (scope == outermost) {
            file.functions.push_back(model.locations.of(scope->file, node).range);
        }
    }
}

/// Members of a structure may be missing, and with them those of the structures made of it.
void Doubt::addStructures(const Model& model) {
    bool isNews = true;
    while (isNews) {
        isNews = false;
        for (const auto& [structure, facts] : model.structures) {
            const void* const node = facts.tree != nullptr ? static_cast<const void*>(facts.tree) : facts.abstractTree;
            const bool hasUnreadParent = facts.tree != nullptr && isParentUnread(model, *facts.tree);
            if (hasUnreadParent || (node != nullptr && hasUnread(model.locations.of(structure->file, node)))) {
                isNews = words_.insert(structure->name).second || isNews;
            }
        }
    }
}

/// Whether the parent of a structure may be missing from what could be read.
bool Doubt::isParentUnread(const Model& model, const StructDefinitionStatement& child) const {
    const std::string& name = child.parent.value;
    const bool isKnown =
        std::any_of(model.own.begin(), model.own.end(), [&](const auto& one) { return one.count(name) != 0; });
    return child.hasParent && (isLikeWord(name) || (mayNameMore_ && !isKnown));
}

bool Doubt::hasUnread(resolved::Place place) const {
    const auto& parts = files_[place.file].parts;
    return std::any_of(parts.begin(), parts.end(), [&](ByteRange part) { return overlaps(part, place.range); });
}

bool Doubt::covers(resolved::Place place) const {
    if (!isAny_) {
        return false;
    }
    const auto& functions = files_[place.file].functions;
    return hasUnread(place) || std::any_of(functions.begin(), functions.end(),
                                           [&](ByteRange function) { return holds(function, place.range); });
}

bool Doubt::mayMean(std::string_view name) const {
    if (!isAny_) {
        return false;
    }
    const auto [known, isNew] = asked_.emplace(name, false);
    if (isNew) {
        known->second = isLikeWord(known->first);
    }
    return known->second;
}

/// Whether an unread part has the name, the beginning of it, or it joined to what stood after it.
bool Doubt::isLikeWord(const std::string& name) const {
    const auto word = words_.lower_bound(name);
    bool isLike = word != words_.end() && startsWith(*word, name);
    for (std::size_t size = 1; size < name.size() && !isLike; ++size) {
        isLike = beginnings_.count(name.substr(0, size)) != 0;
    }
    return isLike;
}

bool Doubt::mayGive(const resolved::Variable& variable) const {
    if (!isAny_) {
        return false;
    }
    if (variable.owner != nullptr) {
        return isIn(*variable.owner);
    }
    const FileDoubt& file = files_[variable.file];
    return file.mayNameMore || file.assigned.count(variable.name) != 0 || mayMean(variable.name);
}

bool Doubt::mayExplain(int number, resolved::Place place, const std::vector<std::string>& values) const {
    if (!isAny_) {
        return false;
    }
    return covers(place) || (mayNameMore_ && isAboutUnknownName(number)) ||
           (!isAboutKinds(number) &&
            std::any_of(values.begin(), values.end(), [&](const std::string& value) { return mayMean(value); }));
}

} // namespace pozhil::second
