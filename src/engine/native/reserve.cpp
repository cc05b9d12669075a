#include "engine/system.h"

namespace pozhil::engine {

std::size_t reserveSize() noexcept {
    // What telling a fault takes, many times over.
    return std::size_t{4} << 20U;
}

} // namespace pozhil::engine
