#pragma once

#include <cstdint>

namespace pozhil::resolved {

/// What is certain about a value before the program runs.
enum class Kind : std::uint8_t {
    Any,     ///< nothing
    Whole,   ///< a whole number
    Decimal, ///< a decimal
    Truth,   ///< மெய் or பொய்
    Text,
    List,
    Map,
    Object,
    Function,
    Time,
    Nothing ///< வெறுமை, and what a function without திரும்பு gives
};

/// Whether such a value is a native one in the emitted text: a number or a truth value without its tag.
constexpr bool isNative(Kind kind) {
    return kind == Kind::Whole || kind == Kind::Decimal || kind == Kind::Truth;
}

} // namespace pozhil::resolved
