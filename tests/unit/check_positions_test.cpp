#include "tools/check/outcome_json.h"
#include "tools/check/positions.h"

#include <string>
#include <tuple>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace pozhil::tools;
using testing::HasSubstr;
using testing::Not;

namespace {

std::tuple<std::size_t, std::size_t, std::size_t> at(std::string_view text, std::size_t offset) {
    const Position position = positionAt(text, offset);
    return {position.line, position.byte, position.utf16};
}

TEST(Position, CountsFromOne) {
    EXPECT_EQ(at("", 0), std::make_tuple(1, 1, 1));
    EXPECT_EQ(at("ab\ncd", 2), std::make_tuple(1, 3, 3));
    EXPECT_EQ(at("ab\ncd", 3), std::make_tuple(2, 1, 1));
    EXPECT_EQ(at("\n\n", 2), std::make_tuple(3, 1, 1));
}

TEST(Position, BeyondTheTextIsItsEnd) {
    EXPECT_EQ(at("ab", 9), std::make_tuple(1, 3, 3));
}

TEST(Position, CountsBytesAndUnitsOfUtf16) {
    const std::string text = "அ😀é.";
    EXPECT_EQ(at(text, 3), std::make_tuple(1, 4, 2));
    EXPECT_EQ(at(text, 7), std::make_tuple(1, 8, 4)) << "what lies beyond the first plane takes two units";
    EXPECT_EQ(at(text, 9), std::make_tuple(1, 10, 5));
}

TEST(Position, EachBrokenByteCountsOnce) {
    EXPECT_EQ(at("\xff\xe0\xae.", 3), std::make_tuple(1, 4, 4));
}

TEST(ValidText, HasReplacementsForBrokenBytesAlone) {
    EXPECT_EQ(validUtf8("அ\xff.\xe0\xae"), "அ\xEF\xBF\xBD.\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(validUtf8("\xEF\xBF\xBD"), "\xEF\xBF\xBD") << "one that stands there already";
    EXPECT_EQ(validUtf8(std::string("\0\n", 2)), std::string("\0\n", 2));
    EXPECT_EQ(validUtf8("\xed\xa0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD") << "half of a pair of UTF-16";
}

TEST(OutcomeJson, IsOneLineWhateverStandsInIt) {
    Outcome outcome;
    outcome.unread.push_back({"அ\n\"\\\x01\xff", "படிக்க முடியவில்லை"});
    Finding finding;
    finding.place = {makeSource("அ", "ab\ncd"), {3, 1}};
    finding.text.message = "ஒன்று\nஇரண்டு";
    outcome.findings = {finding, finding};
    const std::string line = outcomeJson(outcome);
    EXPECT_THAT(line, Not(HasSubstr("\n")));
    EXPECT_THAT(line, HasSubstr("அ\\u000a\\\"\\\\\\u0001\xEF\xBF\xBD"));
    EXPECT_THAT(line, HasSubstr("ஒன்று\\u000aஇரண்டு"));
    EXPECT_THAT(line, HasSubstr("\"end\": {\"line\": 2, \"byte\": 1, \"utf16\": 1}")) << "never before its beginning";
}

TEST(OutcomeJson, PlaceThatNobodyKnowsIsNull) {
    Outcome outcome;
    outcome.findings.emplace_back();
    EXPECT_THAT(outcomeJson(outcome), HasSubstr("\"begin\": null, \"end\": null"));
}

} // namespace
