#pragma once

#include "engine/value.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What the variables of a page hold, as a text that outlives the page while it is loaded anew with a newer build.

namespace pozhil::engine {

/// A variable of a file, as the emitted text declares it.
class StateVariable {
public:
    /// \param file its index among the sources of the program
    /// \param name as it is written
    constexpr StateVariable(int file, const char* name, Value* place) : file_(file), name_(name), value_(place) {}
    constexpr StateVariable(int file, const char* name, Whole* place)
        : file_(file), name_(name), tag_(Tag::Whole), whole_(place) {}
    constexpr StateVariable(int file, const char* name, Decimal* place)
        : file_(file), name_(name), tag_(Tag::Decimal), decimal_(place) {}
    constexpr StateVariable(int file, const char* name, bool* place)
        : file_(file), name_(name), tag_(Tag::Truth), truth_(place) {}

    const char* name() const { return name_; }
    /// What no other variable of the program has.
    std::string key() const;
    Value value() const;
    /// Whether it could hold the value, by the kind of what it holds. What holds nothing yet takes whatever there is.
    bool fits(const Value& value) const;
    /// \param value one that fits
    void set(const Value& value) const;

private:
    int file_;
    const char* name_;
    /// Of what it points to: of any kind if it is Unset.
    Tag tag_ = Tag::Unset;
    union {
        Value* value_;
        Whole* whole_;
        Decimal* decimal_;
        bool* truth_;
    };
};

/// How many bytes all that is kept may take: it comes back by way of the page's stack.
constexpr std::size_t MOST_KEPT = 1'000'000;

/// Notes what the variables of the running program begin with, and that they are those of keptState() and takeState().
/// \param variables they last as long as the program
void keepState(const StateVariable* variables, int count);

/// What those variables hold that have another value than they began with. Objects, functions and times aren't kept, and no
/// variable that holds one somewhere.
/// \param tooLarge the names of those are added for which there is no room
std::string keptState(std::vector<std::string>& tooLarge);

/// Gives each variable its kept value that began then as it begins now, and whose kind fits it. A text that keptState() never
/// made changes nothing.
void takeState(std::string_view kept);

} // namespace pozhil::engine
