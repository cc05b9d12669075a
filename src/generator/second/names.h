#pragma once

#include "analysis/second/resolved/program.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace pozhil::resolved::writer {

/// \p name with what C++ doesn't take in a name written as the numbers of its characters.
std::string plainName(std::string_view name);

/// What holds on to a variable that functions share: c_எ for v_எ.
std::string cellName(const std::string& variable);

/// What everything of a program is called in the emitted text: its own name with a prefix that tells what it is, and a
/// number where two would be called alike.
class Names {
public:
    explicit Names(const Program& program);

    /// v_மொத்தம்
    const std::string& of(const Variable& variable) const { return names_.at(&variable); }
    /// f_பிபனாச்சி; of a method f_நபர்_பேசு
    const std::string& of(const Function& function) const { return names_.at(&function); }
    /// s_நபர்
    const std::string& of(const Structure& structure) const { return names_.at(&structure); }
    /// The same name with another prefix: what belongs to a function or structure.
    std::string of(const Function& function, std::string_view prefix) const;
    std::string of(const Structure& structure, std::string_view prefix) const;

private:
    /// Names of one scope.
    using Taken = std::unordered_set<std::string>;

    void nameFunction(const Function& function);
    /// Names the variables of each call, those of the functions around it first, since it may see them.
    void nameLocals(const Function& function);
    /// \p wished, or with the first number that makes it one that nobody has.
    std::string unique(const std::string& wished, Taken& taken);

    std::unordered_map<const void*, std::string> names_;
    std::unordered_map<const Function*, std::vector<const Variable*>> locals_;
    /// What all of the program sees. A variable of a call may hide one of the same writing, since no function means both,
    /// but not one that has a number, whose writing is another.
    Taken global_;
    Taken globalWithNumber_;
};

/// Numbers of the names of members, in the order in which they are asked for.
class Members {
public:
    /// m_பெயர்
    const std::string& of(const std::string& member);

    struct Row {
        std::string member;
        std::string emitted;
    };
    /// By number.
    const std::vector<Row>& rows() const { return rows_; }

private:
    std::vector<Row> rows_;
    std::unordered_map<std::string, std::size_t> indices_;
    std::unordered_set<std::string> taken_;
};

} // namespace pozhil::resolved::writer
