// Blocks of emitted text: their holes, their indentation, and the numbers that stand in them.

#include "emit/emitted_block.h"

#include <gtest/gtest.h>
#include <limits>
#include <sstream>
#include <stdexcept>

using pozhil::Block;
using pozhil::Filling;
using pozhil::floatConstant;
using pozhil::Holes;

namespace {

std::string block(const std::string& text, const Holes& holes = {}, std::size_t indent = 0) {
    std::ostringstream out;
    pozhil::writeBlock(out, std::string_view(text), holes, indent);
    return out.str();
}

TEST(Blocks, DropTheFirstLineEndAndEndTheLastLine) {
    EXPECT_EQ(block("\na();\nb();\n"), "a();\nb();\n");
    EXPECT_EQ(block("a();"), "a();\n");
    EXPECT_EQ(block("\n\na();"), "\na();\n");
    EXPECT_EQ(block(""), "");
}

TEST(Blocks, FillTheirHoles) {
    EXPECT_EQ(block("f($x, ${x}ULL, a_$x_b, v_$y;", {{"x", "1"}, {"y", "2"}, {"x_b", "3"}}), "f(1, 1ULL, a_3, v_2;\n");
    EXPECT_EQ(block("f($x$y)", {{"x", "1"}, {"y", "2"}}), "f(12)\n");
}

TEST(Blocks, LeaveOtherDollarSignsAlone) {
    EXPECT_EQ(block("EM_ASM({ f($0, $10); }); $ 5$"), "EM_ASM({ f($0, $10); }); $ 5$\n");
}

TEST(Blocks, DontLookForHolesInAFilling) {
    EXPECT_EQ(block("f($x)", {{"x", "$y"}}), "f($y)\n");
}

TEST(Blocks, RefuseAHoleWithoutFilling) {
    EXPECT_THROW(block("f($x)"), std::logic_error);
    EXPECT_THROW(block("f($x, $xx)", {{"x", "1"}}), std::logic_error);
}

TEST(Blocks, RefuseAFillingWithoutHole) {
    EXPECT_THROW(block("f($x)", {{"x", "1"}, {"y", "2"}}), std::logic_error);
    EXPECT_THROW(block("f($xx)", {{"xx", "1"}, {"x", "2"}}), std::logic_error);
}

TEST(Blocks, MayLeaveStandingFillingsUnused) {
    std::ostringstream out;
    pozhil::writeBlock(out, "f($x);", {{"x", "1"}}, 0, {{"y", "2"}});
    pozhil::writeBlock(out, "f($x, $y);", {{"x", "1"}}, 0, {{"y", "2"}, {"x", "3"}});
    EXPECT_EQ(out.str(), "f(1);\nf(1, 2);\n");
}

TEST(Blocks, RefuseMalformedHoles) {
    for (const char* text : {"${", "f(${x", "f(${x y})", "${}", "${1}", "a\n${x\n}"}) {
        EXPECT_THROW(Block{text}, std::logic_error) << text;
    }
}

TEST(Blocks, AreCheckedWhenTheyAreConstants) {
    constexpr Block CONSTANT = "f($x, ${y}ULL, $0)";
    static_assert(CONSTANT.has("x") && CONSTANT.has("y") && !CONSTANT.has("z") && !CONSTANT.has("0"));
    EXPECT_EQ(block(std::string(CONSTANT.text()), {{"x", "1"}, {"y", "2"}}), "f(1, 2ULL, $0)\n");
}

/// \p pattern with "1" in its hole A.
std::string patternText(const char* pattern) {
    std::ostringstream out;
    pozhil::writeInline(out, pattern, [&](std::string_view hole) {
        out << (hole == "A" ? "1" : "");
        return hole == "A";
    });
    return out.str();
}

TEST(Patterns, AreWrittenAsTheyStand) {
    EXPECT_EQ(patternText("f($A, $A)"), "f(1, 1)");
    EXPECT_EQ(patternText("\n  $A\n"), "\n  1\n");
    EXPECT_EQ(patternText("f($1)"), "f($1)");
}

TEST(Patterns, RefuseUnknownHoles) {
    EXPECT_THROW(patternText("f($B)"), std::logic_error);
    EXPECT_THROW(patternText("f(${A)"), std::logic_error);
}

TEST(Blocks, AreIndentedButForEmptyLines) {
    EXPECT_EQ(block("{\n    a();\n\n}\n", {}, 4), "    {\n        a();\n\n    }\n");
}

TEST(Blocks, LetAHoleAloneInItsLineWriteWholeLines) {
    std::ostringstream out;
    const Filling lines = std::function<void()>([&] { out << "inner();\n"; });
    pozhil::writeBlock(out, "{\n    $lines\n}\n", {{"lines", lines}}, 2);
    EXPECT_EQ(out.str(), "  {\ninner();\n  }\n");
    EXPECT_EQ(block("{\n    $lines\n}\n", {{"lines", ""}}), "{\n}\n");
}

TEST(FloatConstants, AreValidWhateverTheValue) {
    EXPECT_EQ(floatConstant(0.0F), "0.0f");
    EXPECT_EQ(floatConstant(78.0F), "78.0f");
    EXPECT_EQ(floatConstant(62.4F), "62.4f");
    EXPECT_EQ(floatConstant(-1.0F), "-1.0f");
    EXPECT_EQ(floatConstant(0.5F), "0.5f");
    EXPECT_EQ(floatConstant(1.0e9F), "1e+09f");
    EXPECT_EQ(floatConstant(std::numeric_limits<float>::infinity()), "3.402823e+38f");
}

} // namespace
