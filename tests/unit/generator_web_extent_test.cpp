#include "generator/web/write/extent.h"

#include <gtest/gtest.h>

using pozhil::Extent;
using pozhil::gapsBetween;
using pozhil::larger;
using pozhil::onlyWhile;

namespace {

const Extent COMPUTED = Extent::computed("h");

TEST(Extent, ConstantsAreReckonedByTheCompiler) {
    EXPECT_EQ((Extent(10) + Extent(2.5F)).text(), "12.5f");
    EXPECT_EQ((Extent(10) * 3.0F).text(), "30.0f");
    EXPECT_EQ(larger(10.0F, 20.0F).text(), "20.0f");
    EXPECT_TRUE((Extent(10) * 0.0F).isNothing());
}

TEST(Extent, WhatThePageReckonsStandsInBrackets) {
    EXPECT_EQ(COMPUTED.text(), "(h)");
    EXPECT_EQ((COMPUTED + Extent(2) + Extent(3)).text(), "(5.0f + h)");
    EXPECT_EQ((Extent(2) + COMPUTED + COMPUTED).text(), "(2.0f + h + h)");
    EXPECT_EQ((COMPUTED * 2.0F).text(), "((h) * 2.0f)");
    EXPECT_EQ(larger(COMPUTED, 7.0F).text(), "(std::max((h), 7.0f))");
}

TEST(Extent, NothingTimesAnythingIsNothing) {
    EXPECT_TRUE((COMPUTED * 0.0F).isNothing());
    EXPECT_TRUE((Extent() * COMPUTED).isNothing());
}

TEST(Extent, GapsLieBetweenChildrenAlone) {
    EXPECT_EQ(gapsBetween(3.0F).text(), "2.0f");
    EXPECT_TRUE(gapsBetween(1.0F).isNothing());
    EXPECT_TRUE(gapsBetween(0.0F).isNothing());
    EXPECT_EQ(gapsBetween(COMPUTED).text(), "(std::max((-1.0f + h), 0.0f))");
}

TEST(Extent, GroupsCountTheLastOneThatIsNotFull) {
    EXPECT_EQ(Extent(6).inGroupsOf(3).text(), "2.0f");
    EXPECT_EQ(Extent(7).inGroupsOf(3).text(), "3.0f");
    EXPECT_TRUE(Extent().inGroupsOf(3).isNothing());
    EXPECT_EQ(COMPUTED.inGroupsOf(3).text(), "(std::ceil((h) / 3.0f))");
}

TEST(Extent, WhatIsNotAlwaysThereTakesItsRoomWhileItIs) {
    EXPECT_EQ(onlyWhile("", 20.0F).text(), "20.0f");
    EXPECT_EQ(onlyWhile("x > 1", 20.0F).text(), "((x > 1 ? 20.0f : 0.0f))");
    EXPECT_TRUE(onlyWhile("x > 1", 0.0F).isNothing());
}

} // namespace
