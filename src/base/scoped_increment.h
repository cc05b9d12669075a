#pragma once

namespace pozhil {

/// Counts one more as long as it lives, however its scope is left.
class ScopedIncrement {
public:
    explicit ScopedIncrement(int& counter) : counter_(counter) { ++counter_; }
    ~ScopedIncrement() { --counter_; }
    ScopedIncrement(const ScopedIncrement&) = delete;
    ScopedIncrement& operator=(const ScopedIncrement&) = delete;

private:
    int& counter_;
};

} // namespace pozhil
