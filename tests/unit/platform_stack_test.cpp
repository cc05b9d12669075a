#include "platform/stack.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <stdexcept>

namespace {

using pozhil::platform::runOnOwnStack;

/// Touches a frame of a kilobyte a level; the sum keeps the frames from being left out.
int nest(int levels) {
    std::array<volatile char, 1024> frame{};
    frame[static_cast<std::size_t>(levels) % frame.size()] = 1;
    return levels == 0 ? 0 : nest(levels - 1) + frame[static_cast<std::size_t>(levels) % frame.size()];
}

TEST(OwnStack, BearsMoreThanTheUsualOne) {
    constexpr int LEVELS = 16 * 1024;
    EXPECT_EQ(runOnOwnStack([] { return nest(LEVELS); }), LEVELS);
}

TEST(OwnStack, HandsOnWhatIsReturnedAndThrown) {
    EXPECT_EQ(runOnOwnStack([] { return 7; }), 7);
    EXPECT_THROW(runOnOwnStack([]() -> int { throw std::runtime_error("x"); }), std::runtime_error);
}

} // namespace
