#include "generator/second/names.h"

#include "base/utf8.h"

#include <cstdio>
#include <utility>

namespace pozhil::resolved::writer {
namespace {

bool isPlainAscii(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

/// A letter, vowel sign or digit of Tamil.
bool isTamil(std::string_view character) {
    return character.size() == 3 && character[0] == '\xE0' && (character[1] == '\xAE' || character[1] == '\xAF');
}

std::string numbered(std::string_view character) {
    std::string text = "x";
    for (const char byte : character) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        text += digits;
    }
    return text;
}

/// Without the two letters of its prefix.
std::string_view stemOf(const std::string& name) {
    return std::string_view(name).substr(2);
}

} // namespace

std::string plainName(std::string_view name) {
    std::string plain;
    while (!name.empty()) {
        const std::string_view character = firstCharacter(name);
        if (isPlainAscii(character.front()) || isTamil(character)) {
            plain += character;
        } else {
            plain += numbered(character);
        }
        name.remove_prefix(character.size());
    }
    return plain;
}

std::string cellName(const std::string& variable) {
    return "c" + variable.substr(1);
}

Names::Names(const Program& program) {
    for (const auto& structure : program.structures) {
        names_[structure.get()] = unique("s_" + plainName(structure->name), global_);
        names_[&structure->self] = "self";
    }
    for (const auto& variable : program.variables) {
        if (variable->owner == nullptr) {
            names_[variable.get()] = unique("v_" + plainName(variable->name), global_);
        } else {
            locals_[variable->owner].push_back(variable.get());
        }
    }
    for (const auto& function : program.functions) {
        nameFunction(*function);
    }
    for (const auto& function : program.functions) {
        nameLocals(*function);
    }
}

void Names::nameFunction(const Function& function) {
    std::string name = plainName(function.name);
    if (function.structure != nullptr) {
        name = std::string(stemOf(of(*function.structure))) + "_" + name;
    }
    names_[&function] = unique("f_" + name, global_);
}

void Names::nameLocals(const Function& function) {
    const auto waiting = locals_.find(&function);
    if (waiting == locals_.end()) {
        return;
    }
    const std::vector<const Variable*> locals = std::move(waiting->second);
    locals_.erase(waiting);
    Taken taken;
    for (const Variable* captured : function.captures) {
        nameLocals(*captured->owner);
        taken.insert(of(*captured));
    }
    for (const Variable* local : locals) {
        names_[local] = unique("v_" + plainName(local->name), taken);
    }
}

std::string Names::unique(const std::string& wished, Taken& taken) {
    std::string name = wished;
    for (int number = 2; taken.count(name) != 0 || globalWithNumber_.count(name) != 0; ++number) {
        name = wished + "_" + std::to_string(number);
    }
    taken.insert(name);
    if (&taken == &global_ && name != wished) {
        globalWithNumber_.insert(name);
    }
    return name;
}

std::string Names::of(const Function& function, std::string_view prefix) const {
    return std::string(prefix) + std::string(stemOf(of(function)));
}

std::string Names::of(const Structure& structure, std::string_view prefix) const {
    return std::string(prefix) + std::string(stemOf(of(structure)));
}

const std::string& Members::of(const std::string& member) {
    const auto [known, isNew] = indices_.emplace(member, rows_.size());
    if (isNew) {
        const std::string wished = "m_" + plainName(member);
        std::string emitted = wished;
        for (int number = 2; !taken_.insert(emitted).second; ++number) {
            emitted = wished + "_" + std::to_string(number);
        }
        rows_.push_back({member, emitted});
    }
    return rows_[known->second].emitted;
}

} // namespace pozhil::resolved::writer
