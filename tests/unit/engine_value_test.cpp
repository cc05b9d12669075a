#include "engine_support.h"

#include "engine/list.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

using namespace pozhil::engine;

namespace {

constexpr int DEEP = 1'000'000;

TEST(Values, ShareTheirBlocks) {
    Value first = text("மா");
    EXPECT_EQ(holders(first), 1);
    {
        const Value second = first;
        EXPECT_EQ(holders(first), 2);
        const Value moved = std::move(first);
        EXPECT_EQ(holders(moved), 2);
        first = second;
        EXPECT_EQ(holders(first), 3);
    }
    EXPECT_EQ(holders(first), 1);
    Value& same = first;
    first = same;
    EXPECT_EQ(holders(first), 1);
    EXPECT_EQ(form(first), "மா");
}

TEST(Values, TakeTheirPartsAlongWhenTheyGo) {
    const Value element = text("மா");
    {
        const Value inner = list({element, element});
        const Value outer = list({inner, map({{text("பலா"), inner}}, nullptr), element});
        EXPECT_EQ(holders(element), 4);
    }
    EXPECT_EQ(holders(element), 1);
}

TEST(Values, EndWithoutNesting) {
    const Value last = text("மா");
    {
        Value chain = list({last});
        for (int link = 0; link < DEEP; ++link) {
            Value longer = makeList(1);
            appendTo(listBlock(longer), std::move(chain));
            chain = std::move(longer);
        }
        EXPECT_EQ(holders(last), 2);
    }
    EXPECT_EQ(holders(last), 1);
}

TEST(Values, EndWithoutNestingWhereChainsBranch) {
    const Value last = text("மா");
    {
        Value chain = last;
        for (int link = 0; link < DEEP / 10; ++link) {
            // Both halves of a link go when it goes, the first one through a map.
            chain = list({map({{Value(1), chain}}, nullptr), list({chain})});
        }
    }
    EXPECT_EQ(holders(last), 1);
}

TEST(Kinds, HaveNames) {
    const auto kind = [](const Value& value) { return form(kindName(value, nullptr)); };
    EXPECT_EQ(kind(1), "எண்");
    EXPECT_EQ(kind(1.0), "தசம_எண்");
    EXPECT_EQ(kind(text("")), "உரை");
    EXPECT_EQ(kind(true), "நிலை");
    EXPECT_EQ(kind(list({})), "பட்டியல்");
    EXPECT_EQ(kind(map({}, nullptr)), "அகராதி");
    EXPECT_EQ(kind(now(nullptr)), "நேரம்");
    EXPECT_EQ(kind(Value()), "தெரியாத_வகை (Unknown)");
}

TEST(Kinds, AreToldInWords) {
    EXPECT_STREQ(kindWord(1), "எண்");
    EXPECT_STREQ(kindWord(1.5), "தசம எண்");
    EXPECT_STREQ(kindWord(Value()), "வெறுமை");
    EXPECT_STREQ(kindWord(list({})), "பட்டியல்");
}

} // namespace
