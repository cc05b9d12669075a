#include "analysis/scope.h"

namespace pozhil {

VarType Scope::kindOf(const std::string& name) const {
    const auto known = kinds_.find(name);
    return known == kinds_.end() ? VarType::Any : known->second;
}

std::vector<std::string_view> Scope::assignedNames() const {
    std::vector<std::string_view> names;
    for (const auto& entry : kinds_) {
        names.emplace_back(entry.first);
    }
    return names;
}

void Scope::assign(const std::string& name, VarType kind) {
    kinds_[name] = kind;
    changeMeanings();
}

void Scope::addNative(const std::string& name) {
    if (natives_.insert(name).second) {
        log_.push_back(name);
    }
    changeMeanings();
}

void Scope::removeNative(const std::string& name) {
    natives_.erase(name);
    changeMeanings();
}

void Scope::leave(std::size_t depth) {
    for (; log_.size() > depth; log_.pop_back()) {
        natives_.erase(log_.back());
    }
    changeMeanings();
}

} // namespace pozhil
