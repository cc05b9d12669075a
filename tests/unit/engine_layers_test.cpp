#include "engine/layers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine::layers;

constexpr Area ALL = {0, 100, 0, 100};
constexpr Area LEFT = {0, 50, 0, 100};

class Layers : public testing::Test {
protected:
    Layers() { forget(); }

    /// Shows what has been drawn to a user whose pointer is at this place.
    static void pointAt(float x, float y) { begin({x, y, false, false, nullptr}); }
    static void pressAt(float x, float y) { begin({x, y, true, false, nullptr}); }
    static void goTo(const Area& area) {
        begin({(area.left + area.right) / 2, (area.top + area.bottom) / 2, false, true, &area});
    }
    /// Two frames without anything.
    static void forget() {
        pointAt(-1, -1);
        pointAt(-1, -1);
    }
};

TEST_F(Layers, ThePressGoesToWhatWasDrawnLast) {
    takesPress(1, ALL);
    takesPress(2, LEFT);
    pointAt(20, 50);
    EXPECT_FALSE(takesPress(1, ALL));
    EXPECT_TRUE(takesPress(2, LEFT));
    pointAt(70, 50);
    EXPECT_TRUE(takesPress(1, ALL));
    EXPECT_FALSE(takesPress(2, LEFT));
}

TEST_F(Layers, EdgesBelongToTheArea) {
    takesPress(1, ALL);
    takesPress(2, LEFT);
    pointAt(50, 100);
    EXPECT_TRUE(takesPress(2, LEFT));
    takesPress(1, ALL);
    pointAt(100, 100);
    EXPECT_TRUE(takesPress(1, ALL));
    pointAt(100.5F, 100);
    EXPECT_FALSE(takesPress(1, ALL));
}

TEST_F(Layers, TheFrameThatWasSeenCounts) {
    takesPress(1, ALL);
    pointAt(20, 50);
    takesPress(2, ALL);
    EXPECT_TRUE(takesPress(1, ALL));
}

TEST_F(Layers, WhatTakesNothingShieldsWhatLiesUnderIt) {
    takesPress(1, ALL);
    shield(LEFT);
    pointAt(20, 50);
    EXPECT_FALSE(takesPress(1, ALL));
    shield(LEFT);
    pointAt(70, 50);
    EXPECT_TRUE(takesPress(1, ALL));
}

TEST_F(Layers, WhatWasDrawnBeforeShieldsNothing) {
    shield(ALL);
    takesPress(1, LEFT);
    pointAt(20, 50);
    EXPECT_TRUE(takesPress(1, LEFT));
}

TEST_F(Layers, WhatTakesNothingLeavesPressesToWhatItIsIn) {
    const auto draw = [] {
        const bool isPressed = takesPress(1, ALL);
        const Holder holder(1, true);
        shield(LEFT);
        return isPressed;
    };
    draw();
    pointAt(20, 50);
    EXPECT_TRUE(draw());
}

TEST_F(Layers, WhatOnlyShowsThePointerLeavesPressesToWhatItIsIn) {
    const auto draw = [] {
        const bool isPressed = takesPress(1, ALL);
        const Holder outer(1, true);
        takesHover(2, LEFT);
        const Holder inner(2, false);
        shield(LEFT);
        return isPressed;
    };
    draw();
    pointAt(20, 50);
    EXPECT_TRUE(draw());
}

TEST_F(Layers, HoldersLieInEachOther) {
    {
        const Holder outer(1, true);
        {
            const Holder inner(2, false);
            shield(ALL);
        }
    }
    pointAt(20, 50);
    EXPECT_TRUE(takesPress(1, ALL));
    {
        const Holder outer(1, true);
        const Holder inner(2, true);
        shield(ALL);
    }
    pointAt(20, 50);
    EXPECT_FALSE(takesPress(1, ALL));
    EXPECT_TRUE(takesPress(2, ALL));
}

TEST_F(Layers, ThePointerIsOverWhatShowsIt) {
    takesPress(1, ALL);
    {
        const Holder holder(1, true);
        takesHover(2, LEFT);
    }
    pointAt(20, 50);
    EXPECT_TRUE(takesHover(2, LEFT));
    EXPECT_FALSE(takesHover(1, ALL));
    // The press goes to what it is in.
    takesPress(1, ALL);
    const Holder holder(1, true);
    takesHover(2, LEFT);
    pointAt(20, 50);
    EXPECT_TRUE(takesPress(1, ALL));
}

TEST_F(Layers, WhatIsCutOffCannotBeReached) {
    const auto draw = [] {
        const Cut outer(0, 0, 50, 50, false);
        const Cut inner(20, 20, 100, 100, false);
        return takesPress(1, ALL);
    };
    draw();
    pointAt(30, 30);
    EXPECT_TRUE(draw());
    pointAt(10, 10);
    EXPECT_FALSE(draw());
    pointAt(70, 70);
    EXPECT_FALSE(draw());
    takesPress(1, ALL);
    pointAt(70, 70);
    EXPECT_TRUE(takesPress(1, ALL)) << "the cut has ended";
}

TEST_F(Layers, TextsAreCutWithWhatScrolls) {
    const Area whole = readable();
    {
        const Cut box(0, 0, 50, 50, false);
        EXPECT_EQ(readable().right, whole.right);
        const Cut scrolling(10, 10, 80, 20, true);
        // What the box doesn't cut stays readable beside it.
        EXPECT_EQ(readable().left, 10);
        EXPECT_EQ(readable().right, 90);
        EXPECT_EQ(readable().bottom, 30);
    }
    EXPECT_EQ(readable().left, whole.left);
    EXPECT_EQ(readable().bottom, whole.bottom);
}

TEST_F(Layers, WhatIsHeldWasUnderThePointerAtThePress) {
    takesPress(1, LEFT);
    takesPress(2, {60, 100, 0, 100});
    pressAt(20, 50);
    EXPECT_TRUE(isHeld(1));
    takesPress(1, LEFT);
    takesPress(2, {60, 100, 0, 100});
    pressAt(70, 50);
    EXPECT_TRUE(isHeld(1)) << "it was pressed there already";
    takesPress(2, {60, 100, 0, 100});
    pointAt(70, 50);
    EXPECT_TRUE(isHeld(1)) << "until the next press";
    takesPress(2, {60, 100, 0, 100});
    pressAt(70, 50);
    EXPECT_TRUE(isHeld(2));
    pressAt(70, 50);
    pointAt(-1, -1);
    pressAt(-1, -1);
    EXPECT_TRUE(isHeld(0));
}

TEST_F(Layers, AQuickPressIsHeldToo) {
    takesPress(1, ALL);
    begin({20, 50, false, true, nullptr});
    EXPECT_TRUE(isHeld(1));
}

TEST_F(Layers, WhoGoesWithoutAPointerPressesTheWidget) {
    const Area inner = {40, 60, 40, 60};
    takesPress(1, ALL);
    takesPress(2, inner);
    goTo(ALL);
    EXPECT_TRUE(takesPress(1, ALL)) << "whatever stands over its middle";
    takesPress(2, inner);
    goTo(inner);
    EXPECT_TRUE(takesPress(2, inner));
}

TEST_F(Layers, WhoGoesWithoutAPointerReachesNothingThatIsCovered) {
    takesPress(1, LEFT);
    shield(ALL);
    goTo(LEFT);
    EXPECT_FALSE(takesPress(1, LEFT));
    // A box in the widget covers nothing of what is not its own.
    const auto draw = [] {
        const bool isReached = takesPress(1, LEFT);
        const Holder holder(1, true);
        shield(ALL);
        return isReached;
    };
    draw();
    goTo(LEFT);
    EXPECT_TRUE(draw());
}

TEST_F(Layers, AMenuIsAWidgetOfItsOwn) {
    EXPECT_NE(menuOf(1), WidgetKey{1});
    EXPECT_NE(menuOf(1), menuOf(2));
    EXPECT_EQ(menuOf(1), menuOf(1));
}

} // namespace
