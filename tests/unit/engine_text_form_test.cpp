#include "engine_support.h"

#include "engine/list.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace pozhil::engine;

namespace {

TEST(TextForms, AreThoseOfTheLanguage) {
    EXPECT_EQ(form(true), "மெய்");
    EXPECT_EQ(form(false), "பொய்");
    EXPECT_EQ(form(7), "7");
    EXPECT_EQ(form(7.5), "7.5");
    EXPECT_EQ(form(text("அ\"ஆ")), "அ\"ஆ");
    EXPECT_EQ(form(Value()), "[தெரியாத வகை]");
    static const FunctionInfo info = {"செயல்", [](const Closure&, Value*, Place) { return Value(); }, 0, 0};
    EXPECT_EQ(form(function(info)), "[வினை]");
    EXPECT_EQ(form(now(nullptr)), form(dateAndClockText(now(nullptr), nullptr)));
}

TEST(TextForms, OfListsAndMapsShowWhatIsInThem) {
    EXPECT_EQ(form(list({})), "[]");
    EXPECT_EQ(form(map({}, nullptr)), "{}");
    EXPECT_EQ(form(list({1, text("உரை"), true, Value(), 0.5})), "[1, உரை, மெய், [தெரியாத வகை], 0.5]");
    EXPECT_EQ(form(list({list({}), list({1, list({2, 3})}), 4})), "[[], [1, [2, 3]], 4]");
    EXPECT_EQ(form(map({{text("மா"), 2}}, nullptr)), "{\"மா\": 2}");
    EXPECT_EQ(form(map({{text("மா"), text("பழம்")}, {1, text("ஒன்று")}, {true, list({1})}}, nullptr)),
              "{மெய்: [1], 1: ஒன்று, \"மா\": பழம்}");
    EXPECT_EQ(form(list({map({{1, map({{2, 3}}, nullptr)}}, nullptr)})), "[{1: {2: 3}}]");
}

TEST(TextForms, GoAsDeepAsListsDo) {
    constexpr std::size_t DEEP = 300'000;
    Value nested = 1;
    for (std::size_t depth = 0; depth < DEEP; ++depth) {
        Value outer = makeList(1);
        appendTo(listBlock(outer), std::move(nested));
        nested = std::move(outer);
    }
    EXPECT_EQ(form(nested), std::string(DEEP, '[') + "1" + std::string(DEEP, ']'));
}

} // namespace
