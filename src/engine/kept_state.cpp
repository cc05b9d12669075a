#include "engine/kept_state.h"

#include "engine/numbers.h"
#include "engine/running_program.h"
#include "engine/state_form.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>

namespace pozhil::engine {
namespace {

/// A variable, and what it began with.
struct Kept {
    const StateVariable* variable;
    /// Nothing if what it began with can't be kept.
    std::optional<std::uint64_t> beginning;
};

std::vector<Kept> state;

/// What a variable holds, as far as it is kept.
struct Held {
    Writing writing = Writing::NotKept;
    std::string form{};
};

Held heldBy(const StateVariable& variable) {
    Held held;
    const Value value = variable.value();
    if (value.is(Tag::Unset)) {
        held.writing = Writing::Done;
    } else {
        held.writing = writeState(held.form, value, MOST_KEPT);
    }
    return held;
}

/// By all chance, different forms have different numbers (FNV-1a).
std::uint64_t numberOf(const std::string& form) {
    constexpr std::uint64_t FIRST = 0xCBF29CE484222325U;
    constexpr std::uint64_t FACTOR = 0x100000001B3U;
    std::uint64_t number = FIRST;
    for (const char byte : form) {
        number = (number ^ static_cast<unsigned char>(byte)) * FACTOR;
    }
    return number;
}

/// A variable as it was kept.
struct Entry {
    std::string beginning;
    Value value;
};

/// By the key of the variable; empty if the text has another form.
std::unordered_map<std::string, Entry> entriesOf(std::string_view kept) {
    std::unordered_map<std::string, Entry> entries;
    StateReader reader(kept);
    while (!reader.isAtEnd()) {
        const std::string key = reader.text();
        const std::string beginning = reader.text();
        entries[key] = {beginning, reader.value()};
    }
    if (!reader.isGood()) {
        entries.clear();
    }
    return entries;
}

} // namespace

std::string StateVariable::key() const {
    return std::string(runningProgram().sources[file_].path) + ":" + name_;
}

Value StateVariable::value() const {
    switch (tag_) {
    case Tag::Whole: return Value(*whole_);
    case Tag::Decimal: return Value(*decimal_);
    case Tag::Truth: return Value(*truth_);
    default: return *value_;
    }
}

bool StateVariable::fits(const Value& value) const {
    if (tag_ != Tag::Unset) {
        return value.is(tag_);
    }
    const Value& held = *value_;
    const bool isOpen = held.is(Tag::Unset) || held.is(Tag::Nothing) || value.is(Tag::Nothing);
    return isOpen || held.is(value.tag()) || (isNumber(held) && isNumber(value));
}

void StateVariable::set(const Value& value) const {
    switch (tag_) {
    case Tag::Whole: *whole_ = value.whole(); break;
    case Tag::Decimal: *decimal_ = value.decimal(); break;
    case Tag::Truth: *truth_ = value.truth(); break;
    default: *value_ = value;
    }
}

void keepState(const StateVariable* variables, int count) {
    state.clear();
    for (const StateVariable* variable = variables; variable != variables + count; ++variable) {
        const Held held = heldBy(*variable);
        const bool isKept = held.writing == Writing::Done;
        state.push_back({variable, isKept ? std::optional(numberOf(held.form)) : std::nullopt});
    }
}

std::string keptState(std::vector<std::string>& tooLarge) {
    std::string kept;
    for (const Kept& one : state) {
        if (!one.beginning) {
            continue;
        }
        const Held held = heldBy(*one.variable);
        // What is as it began may begin otherwise in a newer build.
        const bool isChanged =
            held.writing == Writing::Done && !held.form.empty() && numberOf(held.form) != *one.beginning;
        if (held.writing == Writing::TooLarge || (isChanged && kept.size() + held.form.size() > MOST_KEPT)) {
            tooLarge.emplace_back(one.variable->name());
        } else if (isChanged) {
            writeStateText(kept, one.variable->key());
            writeStateText(kept, std::to_string(*one.beginning));
            kept += held.form;
        }
    }
    return kept;
}

void takeState(std::string_view kept) {
    const auto entries = entriesOf(kept);
    for (const Kept& one : state) {
        const auto entry = entries.find(one.variable->key());
        const bool isSame =
            entry != entries.end() && one.beginning && entry->second.beginning == std::to_string(*one.beginning);
        if (isSame && one.variable->fits(entry->second.value)) {
            one.variable->set(entry->second.value);
        }
    }
}

} // namespace pozhil::engine
