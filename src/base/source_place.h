#pragma once

#include "base/source_text.h"

#include <cstdint>

namespace pozhil {

/// The bytes from begin up to, but not including, end of a source's text.
struct ByteRange {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
};

/// A part of a source.
struct SourcePlace {
    SourcePtr source;
    ByteRange range;
};

} // namespace pozhil
