#pragma once

#include <cstdint>

namespace pozhil {

/// Static type of a value, as far as it is known before the program runs.
enum class VarType : std::int32_t {
    Auto,    ///< not declared: to be inferred from the initialiser
    Integer, ///< whole number
    Double,  ///< decimal number
    Text,    ///< string
    Boolean, ///< truth value
    Any,     ///< unknown
    Time,    ///< date and time value
    List,    ///< list
    Object,  ///< structure instance, also a function value
    Map      ///< map
};

} // namespace pozhil
