#pragma once

namespace pozhil {

/// Gives a variable another value as long as it lives, however its scope is left.
template <class Value> class ScopedValue {
public:
    ScopedValue(Value& variable, Value value) : variable_(variable), before_(variable) { variable_ = value; }
    ~ScopedValue() { variable_ = before_; }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

private:
    Value& variable_;
    const Value before_;
};

} // namespace pozhil
