#include "support/parsing.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

std::string repeated(int count, const std::string& text) {
    std::string all;
    for (int number = 0; number < count; ++number) {
        all += text;
    }
    return all;
}

/// A number between so many opening and closing texts.
std::string nested(int count, const std::string& opening, const std::string& closing) {
    return repeated(count, opening) + "1" + repeated(count, closing);
}

/// Blocks behind this head in one another.
std::string nestedBlocks(int count, const std::string& head) {
    std::string text;
    for (int depth = 0; depth < count; ++depth) {
        text += std::string(static_cast<std::size_t>(depth), ' ') + head + "\n";
    }
    return text + std::string(static_cast<std::size_t>(count), ' ') + "விடு\n";
}

const std::string tooDeep = "பொழி-291 வரி 1";

TEST(Nesting, OfAHundredThousandBracketsIsRefused) {
    const int many = 100000;
    for (const std::string before : {"அ = ", "அச்சிடு(", "எனில் ", "அ"}) {
        EXPECT_EQ(fault(before + repeated(many, "(")), tooDeep) << before;
        EXPECT_EQ(fault(before + repeated(many, "[")), tooDeep) << before;
    }
    EXPECT_EQ(fault(repeated(many, "(")), tooDeep);
    EXPECT_EQ(fault("அ = " + repeated(many, "{")), "பொழி-212 வரி 1");
    EXPECT_EQ(fault("அ = " + nested(many, "(", ")")), tooDeep);
    EXPECT_EQ(fault("அ = " + nested(many, "[", "]")), tooDeep);
    EXPECT_EQ(fault("அ = " + nested(many, "{அ: ", "}")), tooDeep);
    EXPECT_EQ(fault("அ = " + nested(many, "அ(", ")")), tooDeep);
    EXPECT_EQ(fault("அ = " + nested(many, "அ[", "]")), tooDeep);
}

TEST(Nesting, OfTenThousandOperatorsIsRefused) {
    const int many = 10000;
    for (const std::string opening : {"இல்லை ", "கழி ", "மெய் ? 1 : ", "மெய் எனில் 1 இல்லைஎனில் ", "அ => ", "(அ) => ",
                                      "1 கூட்டு ", "1 பெருக்கு 2 கூட்டு ", "1 அல்லது ", "அ = ", "காட்சி_நிலை.அ: "}) {
        EXPECT_EQ(fault("அ = " + nested(many, opening, "")), tooDeep) << opening;
    }
    EXPECT_EQ(fault("அ = " + nested(many, "மெய் ? ", " : 1")), tooDeep);
    EXPECT_EQ(fault("அச்சிடு(" + nested(many, "வினை(அ): ", "")), tooDeep);
    for (const std::string link : {"()", ".ஆ", "[0]"}) {
        EXPECT_EQ(fault("அ = அ" + repeated(many, link)), tooDeep) << link;
    }
}

TEST(Nesting, OfBlocksIsRefusedWhereItGoesTooFar) {
    for (const std::string head : {"எனில் அ:", "சுற்று அ:", "ஒவ்வொன்றாக அ இல் ஆ:", "முயற்சி:", "செயல் அ():", "கட்டமைப்பு அ:"}) {
        EXPECT_EQ(fault(nestedBlocks(2000, head)).substr(0, tooDeep.find(' ')), "பொழி-291") << head;
    }
    EXPECT_EQ(fault(nestedBlocks(900, "எனில் அ:")), "none");
    EXPECT_EQ(fault("எனில் அ:\n விடு\n" + repeated(10000, "இல்லைஎனில் அ:\n விடு\n")), "பொழி-291 வரி 1999");
}

TEST(Nesting, PartsThatStandSideBySideDoNotAddUp) {
    const std::string deep = nested(600, "(", ")");
    EXPECT_EQ(fault("அ(" + deep + ", " + deep + ", " + deep + ")"), "none");
    EXPECT_EQ(fault("அச்சிடு(" + deep + ", " + deep + ", " + deep + ")"), "none");
    EXPECT_EQ(fault("அ = [" + deep + ", " + deep + ", " + deep + "]"), "none");
    EXPECT_EQ(fault("அ = {அ: " + deep + ", ஆ: " + deep + ", இ: " + deep + "}"), "none");
    EXPECT_EQ(fault("அ = " + deep + " கூட்டு " + deep + " பெருக்கு " + deep), "none");
    EXPECT_EQ(fault("அ = " + deep + " ? " + deep + " : " + deep), "none");
    EXPECT_EQ(fault("அ = (அ)(" + deep + ")[" + deep + "](" + deep + ")"), "none");
    EXPECT_EQ(fault(repeated(5, "அ = " + deep + "\n")), "none");
}

TEST(Nesting, BranchesOfAStatementDoNotAddUp) {
    const std::string line = "அ(ஆ.இ[1] கூட்டு (2 பெருக்கு 3))";
    const std::string branch = " " + line + ":\n " + line + "\n";
    EXPECT_EQ(fault("எனில்" + branch + repeated(900, "இல்லைஎனில்" + branch) + "இல்லை:\n விடு\n"), "none");
    EXPECT_EQ(fault("தேர்வு " + line + ":\n" + repeated(2000, " நிலை " + line + ":\n  " + line + "\n")), "none");
    const std::string deep = nested(600, "(", ")");
    const std::string block = ":\n  அ = " + deep + "\n  அ = " + deep + "\n";
    EXPECT_EQ(fault("எனில் " + deep + block + "இல்லைஎனில் " + deep + block + "இல்லை" + block), "none");
    EXPECT_EQ(fault("தேர்வு " + deep + ":\n நிலை " + deep + block + " நிலை " + deep + block + " மற்றவை" + block), "none");
    EXPECT_EQ(fault("சுற்று " + deep + block), "none");
    EXPECT_EQ(fault("ஒவ்வொன்றாக அ இல் " + deep + block), "none");
    EXPECT_EQ(fault("முயற்சி" + block + "பிடி" + block), "none");
    EXPECT_EQ(fault("கட்டமைப்பு அ:\n ஆ = " + deep + "\n ரகசிய (\n ஆ = " + deep + "\n ஆ = " + deep + "\n )\n"), "none");
}

TEST(Nesting, AChainGrowsTheTreeAboveItsFirstOperand) {
    const std::string chain = repeated(400, " கூட்டு 1");
    EXPECT_EQ(fault("அ = ((1" + chain + ")" + chain + ")"), "none");
    EXPECT_EQ(fault("அ = (((1" + chain + ")" + chain + ")" + chain + ")"), tooDeep);
    EXPECT_EQ(fault("அ = (1 கூட்டு (1 கூட்டு (1" + chain + ")" + chain + "))"), "none");
}

TEST(Nesting, LengthIsNoDepth) {
    const int many = 20000;
    EXPECT_EQ(fault("அ = [" + repeated(many, "1, ") + "]"), "none");
    EXPECT_EQ(fault("அ = {" + repeated(many, "அ: 1, ") + "}"), "none");
    EXPECT_EQ(fault("அ(" + repeated(many, "1, ") + "1)"), "none");
    EXPECT_EQ(fault(repeated(many, "அ() ")), "none");
    EXPECT_EQ(fault("கட்டமைப்பு அ:\n ரகசிய (" + repeated(many, "ஆ = 1 ") + ")\n"), "none");
    EXPECT_EQ(fault("செயல் அ(" + repeated(many, "ஆ, ") + "இ):\n விடு\n"), "none");
    EXPECT_EQ(fault("எனில் அ:\n" + repeated(many, " அ = (1)\n")), "none");
}

} // namespace
