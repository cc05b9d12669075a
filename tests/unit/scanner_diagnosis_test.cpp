#include "error_codes.h"
#include "support/diagnosis.h"
#include "support/scanning.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using pozhil::test::reportOf;
using pozhil::test::rowsOf;
using pozhil::test::scan;

std::vector<std::string> boxOf(const std::string& source) {
    return rowsOf(reportOf([&] { scan(source); }));
}

constexpr std::size_t CODE_ROW = 2;
constexpr std::size_t SOURCE_ROW = 8;
constexpr std::size_t DESCRIPTION_ROW = 10;
constexpr std::size_t REMEDY_ROW = 13;
constexpr std::size_t SAYING_ROW = 15;

std::string sourceRow(const std::string& source) {
    return boxOf(source).at(SOURCE_ROW);
}

TEST(ScannerBox, NamesTheFileTheLineAndTheScanner) {
    const std::string rule(60, '-');
    const std::string dimRule = "\x1b[2;37m  " + rule + "\x1b[0m";
    std::vector<std::string> rows = boxOf("அ = 1\n    ஆ = \"இ\n");
    ASSERT_EQ(rows.size(), 18U);
    rows[SAYING_ROW] = "(saying)";
    EXPECT_EQ(rows, (std::vector<std::string>{
                        "",
                        "\x1b[1;31m" + rule + "\x1b[0m",
                        "  🚨 [ \x1b[1;93mபொழி-102\x1b[0m ] :: \x1b[1;31mசொல் பிழை\x1b[0m",
                        "\x1b[1;31m" + rule + "\x1b[0m",
                        "  \x1b[1;34m📂 கோப்பு  \x1b[0m: நிரல்.பொழில்",
                        "  \x1b[1;34m📍 இடம்    \x1b[0m: வரி 2",
                        dimRule,
                        "\x1b[1;36m  🔍 பிழை கண்டறியப்பட்ட பகுதி:\x1b[0m",
                        "    02 |      ஆ = \"இ",
                        "       |  \x1b[1;93m        ▲\x1b[0m",
                        "\x1b[1;31m       ╰── மச்சி, சரத்தை (String) நிறைவு செய்யும் '\"' விடுபட்டுள்ளது.\x1b[0m",
                        dimRule,
                        "\x1b[1;32m  💡 சரி செய்யும் முறை:\x1b[0m",
                        "     வரியின் இறுதியில் ஒரு இரட்டை மேற்கோள் குறியைச் சேர்த்துச் சரி செய்!",
                        dimRule,
                        "(saying)",
                        dimRule,
                        "",
                    }));
}

struct Example {
    const char* code;
    const char* source;
};

TEST(ScannerBox, ShowsEveryFaultWithItsTexts) {
    const std::vector<Example> examples = {
        {"பொழி-101", "1 + 2"}, {"பொழி-102", "\"அ"},     {"பொழி-103", "'அ"},      {"பொழி-104", "1.2.3"},
        {"பொழி-105", "''"},    {"பொழி-106", "ிஅ"},      {"பொழி-108", "12அ"},     {"பொழி-109", "1௨"},
        {"பொழி-110", " \tஅ"},  {"பொழி-111", "  அ\n ஆ"}, {"பொழி-112", "வலை தளம்"}, {"பொழி-113", "அச்சிடூ"},
        {"பொழி-114", "அா"},    {"பொழி-115", "ஜ"},       {"பொழி-117", "அ\u200C"}, {"பொழி-118", "ஃஃ"},
    };
    for (const auto& [code, source] : examples) {
        const std::vector<std::string> rows = boxOf(source);
        ASSERT_EQ(rows.size(), 18U) << code;
        EXPECT_EQ(rows[CODE_ROW], std::string("  🚨 [ \x1b[1;93m") + code + "\x1b[0m ] :: \x1b[1;31mசொல் பிழை\x1b[0m");
        EXPECT_EQ(rows[DESCRIPTION_ROW], "\x1b[1;31m       ╰── மச்சி, " + பிழை_அகராதி.at(code).விளக்கம் + "\x1b[0m");
        EXPECT_EQ(rows[REMEDY_ROW], "     " + பிழை_அகராதி.at(code).தீர்வு);
    }
}

TEST(SourceRow, ShowsTheWholeLine) {
    EXPECT_EQ(sourceRow("அ = 1\n    ஆ = 1 + 2 ஃ கூட்டல்\nஇ = 3"), "    02 |      ஆ = 1 + 2 ஃ கூட்டல்");
    EXPECT_EQ(sourceRow("\n\n\n\n\n\n\n\n\n  +"), "    10 |    +");
    EXPECT_EQ(sourceRow(" \tஅ"), "    01 |   \tஅ");
}

TEST(SourceRow, ShowsTheRestBehindASemicolon) {
    EXPECT_EQ(sourceRow("அ = 1;  ஆ = 1 + 2"), "    01 |    ஆ = 1 + 2");
}

TEST(SourceRow, ShowsTheLineWhereAConstructOfManyLinesBegan) {
    EXPECT_EQ(sourceRow("அ = ஃஃ க\n\nஃஃ +\n"), "    03 |  அ = ஃஃ க");
    EXPECT_EQ(sourceRow("அ = \"\n\n\" +\n"), "    01 |  அ = \"");
    EXPECT_EQ(sourceRow("அ = 1\nஆ = \"இ\nஈ"), "    02 |  ஆ = \"இ");
}

} // namespace
