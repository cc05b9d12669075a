#include "base/json_text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

namespace json = pozhil::json;

TEST(JsonText, EscapesWhatMayNotStandInAString) {
    EXPECT_EQ(json::text("உரை"), "\"உரை\"");
    EXPECT_EQ(json::text("\"\\/"), R"("\"\\/")");
    EXPECT_EQ(json::text(std::string_view("\0\n\x1f ~\x7f", 6)), "\"\\u0000\\u000a\\u001f ~\x7f\"");
    EXPECT_EQ(json::text(""), "\"\"");
}

TEST(JsonText, ListsMembersInTheOrderGiven) {
    EXPECT_EQ(json::object({}), "{}");
    EXPECT_EQ(json::object({{"b", "1"}, {"a\"", json::truth(false)}}), R"({"b": 1, "a\"": false})");
}

TEST(JsonText, ListsElementsOneToALine) {
    EXPECT_EQ(json::array(std::vector<std::string_view>(), json::text), "[]");
    EXPECT_EQ(json::array(std::vector<std::string_view>{"a", ""}, json::text), "[\n\"a\",\n\"\"]");
}

} // namespace
