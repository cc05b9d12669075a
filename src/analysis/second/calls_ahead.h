#pragma once

#include "analysis/second/model.h"

#include <functional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace pozhil::second {

/// Which variables of files the functions of a program read, and which functions they may call in turn.
class CallsAhead {
public:
    explicit CallsAhead(Model& model);

    /// Asks \p tell for every variable of a file that a call may read. Each function is followed once: what has a value at
    /// its first call has one at all later ones.
    using Tell = std::function<void(resolved::Variable*)>;
    void call(const resolved::Function* function, const Tell& tell);
    void construct(const resolved::Structure* structure, const Tell& tell);
    void callMember(std::string_view member, const Tell& tell);
    void callValue(const Tell& tell);

private:
    /// What one function, or the fields of a structure, do.
    struct Deeds {
        std::vector<resolved::Variable*> reads;
        std::vector<const resolved::Function*> functions;
        std::vector<const resolved::Structure*> structures;
        std::vector<std::string_view> members;
        bool callsValues = false;
        bool isFollowed = false;
    };
    class Gathering;

    void follow(const void* key, const Tell& tell);

    Model& model_;
    /// By function or structure.
    std::unordered_map<const void*, Deeds> deeds_;
    std::unordered_map<std::string_view, std::vector<const resolved::Function*>> methods_;
    std::unordered_set<std::string_view> fields_;
    std::unordered_set<std::string_view> followedMembers_;
    bool areValuesFollowed_ = false;
    std::vector<const void*> waiting_;
};

} // namespace pozhil::second
