#pragma once

#include <stdexcept>

/// Throws if what is promised doesn't hold.
inline void expect(bool holds, const char* promise) {
    if (!holds) {
        throw std::logic_error(promise);
    }
}
