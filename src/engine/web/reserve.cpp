#include "engine/system.h"

namespace pozhil::engine {

std::size_t reserveSize() noexcept {
    // What telling a fault takes, several times over. A page at rest reads its whole memory again and again.
    return std::size_t{128} << 10U;
}

} // namespace pozhil::engine
