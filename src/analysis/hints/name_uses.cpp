#include "analysis/hints/name_uses.h"

namespace pozhil {

NameUse& NameUses::mention(std::string_view name, const Expression& node) {
    NameUse& use = uses_[name];
    if (use.mention == nullptr) {
        use.mention = &node;
        use.function = function;
    }
    use.isShared = use.isShared || use.function != function;
    return use;
}

void NameUses::read(std::string_view name, const Expression& node) {
    NameUse& use = mention(name, node);
    if (use.read == nullptr && use.natives == 0) {
        use.read = &node;
    }
}

void NameUses::assign(std::string_view name, const Expression& node, const Expression& value) {
    NameUse& use = mention(name, node);
    use.isAssigned = true;
    use.holdsListsOnly = use.holdsListsOnly && nodeCast<ListLiteral>(&value) != nullptr;
}

void NameUses::assign(std::string_view name) {
    NameUse& use = uses_[name];
    use.isAssigned = true;
    use.holdsListsOnly = false;
}

void NameUses::addNative(std::string_view name) {
    NameUse& use = uses_[name];
    use.wasNative = true;
    ++use.natives;
    natives_.push_back(&use);
}

void NameUses::leave(std::size_t depth) {
    for (; natives_.size() > depth; natives_.pop_back()) {
        --natives_.back()->natives;
    }
}

const NameUse* NameUses::find(std::string_view name) const {
    const auto found = uses_.find(name);
    return found == uses_.end() ? nullptr : &found->second;
}

} // namespace pozhil
