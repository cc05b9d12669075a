#pragma once

#include "language/rows.h"

#include <string_view>

namespace pozhil::language {

/// A curve along which an animation runs. What it computes stands in the emitted runtime.
struct Curve {
    std::string_view name;
    /// After which kind of curve it is shaped.
    Bilingual family;
    /// Where it differs from a steady run.
    Bilingual place;
};

/// All names of curves, those of the same family together.
Rows<Curve> curves();

} // namespace pozhil::language
