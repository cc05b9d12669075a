#include "tools/explain/error_page.h"

#include <string>

#include <gmock/gmock.h>

using pozhil::tools::shownPrograms;

namespace {

const std::string PAGE =
    "# தலைப்பு\n\n```பொழில்\nதவறு 1\n```\n\n```பிழை\nபொழி-304 வரி 1\n```\n\n"
    "```குறிப்பு\nவரி 1\n```\n\n```பொழில்\nசரி 1\n\nசரி 2\n```\n\n```வெளியீடு\nபொழி-305 வரி 1\n```\n\n"
    "```பொழில்\nதவறு 3\n```\n\n```இயக்கநேர_பிழை\nபொழி-30 வரி 1\n```\n\n"
    "```பொழில்-வலை\nதவறு 4\n```\n\n```பிழை\nபொழி-305 வரி 1\n```\n";

TEST(ShownPrograms, AreTheOneThatComesToTheFaultAndTheNext) {
    const auto shown = shownPrograms(PAGE, "பொழி-304");
    EXPECT_EQ(shown.wrong, "தவறு 1\n");
    EXPECT_EQ(shown.right, "சரி 1\n\nசரி 2\n");
}

TEST(ShownPrograms, AnotherWrongProgramIsNoRightOne) {
    const auto shown = shownPrograms(PAGE, "பொழி-30");
    EXPECT_EQ(shown.wrong, "தவறு 3\n");
    EXPECT_EQ(shown.right, "");
}

TEST(ShownPrograms, OutputThatLooksLikeAFaultIsNone) {
    EXPECT_EQ(shownPrograms(PAGE, "பொழி-305").wrong, "தவறு 4\n");
}

TEST(ShownPrograms, AreTestsToo) {
    const auto shown = shownPrograms("```பொழில்-சோதனை\nதவறு\n```\n```இயக்கநேர_பிழை\nபொழி-691 வரி 1\n```\n"
                                     "```பொழில்-சோதனை\nசரி\n```\n```வெளியீடு\n✅\n```\n",
                                     "பொழி-691");
    EXPECT_EQ(shown.wrong, "தவறு\n");
    EXPECT_EQ(shown.right, "சரி\n");
}

TEST(ShownPrograms, AreNoneForACodeThatThePageLacks) {
    EXPECT_EQ(shownPrograms(PAGE, "பொழி-3").wrong, "");
    EXPECT_EQ(shownPrograms("", "பொழி-304").wrong, "");
}

TEST(ShownPrograms, PageMayBeCutAnywhere) {
    for (std::size_t length = 0; length < PAGE.size(); ++length) {
        shownPrograms(PAGE.substr(0, length), "பொழி-304");
    }
}

} // namespace
