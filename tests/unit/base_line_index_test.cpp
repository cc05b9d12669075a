#include "base/line_index.h"

#include <gtest/gtest.h>

using pozhil::LineIndex;

namespace {

TEST(LineIndex, TellsTheLineOfEveryOffset) {
    const LineIndex index("ab\n\nc");
    EXPECT_EQ(index.count(), 3U);
    EXPECT_EQ(index.lineAt(0), 1U);
    EXPECT_EQ(index.lineAt(2), 1U) << "a line end belongs to its line";
    EXPECT_EQ(index.lineAt(3), 2U);
    EXPECT_EQ(index.lineAt(4), 3U);
    EXPECT_EQ(index.lineAt(99), 3U);
}

TEST(LineIndex, TellsWhereLinesBegin) {
    const LineIndex index("ab\n\nc\n");
    EXPECT_EQ(index.count(), 4U);
    EXPECT_EQ(index.beginOf(1), 0U);
    EXPECT_EQ(index.beginOf(2), 3U);
    EXPECT_EQ(index.beginOf(3), 4U);
    EXPECT_EQ(index.beginOf(4), 6U);
    EXPECT_EQ(LineIndex("").count(), 1U);
}

} // namespace
