#include "support/diagnosis.h"
#include "support/generating.h"
#include "support/parsing.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using pozhil::test::generatorReport;
using pozhil::test::parseText;
using pozhil::test::reportOf;
using pozhil::test::rowsOf;

using Rows = std::vector<std::string>;

/// The rows of a box that the stage fills in: title, file, place, source line and description.
Rows stageRows(const std::string& report) {
    const Rows rows = rowsOf(report);
    return {rows.at(2), rows.at(4), rows.at(5), rows.at(8), rows.at(10)};
}

Rows expected(const std::string& code, const std::string& category, const std::string& line, const std::string& source,
              const std::string& description) {
    return {
        "  🚨 [ \x1b[1;93m" + code + "\x1b[0m ] :: \x1b[1;31m" + category + "\x1b[0m",
        "  \x1b[1;34m📂 கோப்பு  \x1b[0m: நிரல்.பொழில்",
        "  \x1b[1;34m📍 இடம்    \x1b[0m: வரி " + line,
        "    0" + line + " |  " + source,
        "\x1b[1;31m       ╰── மச்சி, " + description + "\x1b[0m",
    };
}

Rows parserRows(const std::string& source) {
    return stageRows(reportOf([&] { parseText(source); }));
}

Rows generatorRows(const std::string& source) {
    return stageRows(generatorReport(source));
}

TEST(ParserReport, ShowsTheLineThatTheParserNames) {
    EXPECT_EQ(parserRows("அ = 1\n\nஎனில் அ\nஆ = 2\n"),
              expected("பொழி-202", "இலக்கணப் பிழை", "3", "எனில் அ", "எதிர்பார்க்கப்பட்ட ':' விடுபட்டுள்ளது."));
}

TEST(ParserReport, ShowsAnEmptyLineBehindTheEndOfTheText) {
    EXPECT_EQ(parserRows("எனில் மெய்:\n"),
              expected("பொழி-202", "இலக்கணப் பிழை", "2", "", "எதிர்பார்க்கப்பட்ட ':' விடுபட்டுள்ளது."));
}

TEST(GeneratorReport, WithoutADetailHasTheDescriptionAlone) {
    EXPECT_EQ(generatorRows("அ = 1\n\nஆ = அ வகு 0 ஃ குறிப்பு\n"),
              expected("பொழி-301", "பொருள் பிழை", "3", "ஆ = அ வகு 0 ஃ குறிப்பு", "பூஜ்ஜியத்தால் வகுக்க முயற்சி "));
}

TEST(GeneratorReport, HasItsDetailInBracketsBehindTheDescription) {
    EXPECT_EQ(generatorRows("செயல் f(அ, ஆ):\n    திரும்பு அ\nf(1, 2, 3)\n"),
              expected("பொழி-331", "பொருள் பிழை", "3", "f(1, 2, 3)",
                       "தவறான உள்ளீடு எண்ணிக்கை (Arguments Mismatch). ('f' 2 உள்ளீடுகளை ஏற்கும், ஆனால் 3 "
                       "கொடுக்கப்பட்டுள்ளது.)"));
}

} // namespace
