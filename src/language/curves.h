#pragma once

#include "language/rows.h"

#include <string_view>

namespace pozhil::language {

/// Whether a curve has a name of its own or shares the curve of another name.
enum class CurveName { Usual, Further };

/// A curve along which an animation runs. What it computes stands in the emitted runtime.
struct Curve {
    std::string_view name;
    /// After which kind of curve it is shaped.
    Bilingual family;
    /// Where it differs from a steady run.
    Bilingual place;
    CurveName kind = CurveName::Usual;
    /// The exponent, where it isn't that of the family.
    std::string_view exponent = {};
};

/// All names of curves, those of the same family together.
Rows<Curve> curves();

} // namespace pozhil::language
