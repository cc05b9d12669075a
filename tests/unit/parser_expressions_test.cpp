#include "support/parsing.h"

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

using namespace pozhil::test;

namespace {

/// The binary operator words, loosest level first.
const std::vector<std::vector<std::string>> levels = {
    {"அல்லது"},
    {"மற்றும்"},
    {"கூட்டுஇருமை"},
    {"வேறுஇருமை"},
    {"பெருக்குஇருமை"},
    {"சமம்", "சமமில்லை"},
    {"பெரிது", "சிறிது", "பெரிதுசமம்", "சிறிதுசமம்"},
    {"இடதுஇருமை", "வலதுஇருமை"},
    {"கூட்டு", "கழி", "இணை"},
    {"பெருக்கு", "வகு", "மீதி"},
};

const std::vector<std::string> unaryWords = {"இல்லை", "எதிர்இருமை", "கழி", "மிகை", "குறை"};

/// The node that joins two operands by a word of this level.
std::string joined(std::size_t level, const std::string& left, const std::string& word, const std::string& right) {
    return (level < 2 ? "(Logical " : "(Binary ") + left + " " + word + " " + right + ")";
}

TEST(BinaryOperators, EveryWordJoinsTwoOperands) {
    for (std::size_t level = 0; level < levels.size(); ++level) {
        for (const std::string& word : levels[level]) {
            EXPECT_EQ(valueTree("அ " + word + " ஆ"), joined(level, "அ", word, "ஆ"));
        }
    }
}

TEST(BinaryOperators, TighterLevelsGroupFirst) {
    for (std::size_t loose = 0; loose < levels.size(); ++loose) {
        for (std::size_t tight = loose + 1; tight < levels.size(); ++tight) {
            for (const std::string& outer : levels[loose]) {
                for (const std::string& inner : levels[tight]) {
                    EXPECT_EQ(valueTree("அ " + outer + " ஆ " + inner + " இ"),
                              joined(loose, "அ", outer, joined(tight, "ஆ", inner, "இ")));
                    EXPECT_EQ(valueTree("அ " + inner + " ஆ " + outer + " இ"),
                              joined(loose, joined(tight, "அ", inner, "ஆ"), outer, "இ"));
                }
            }
        }
    }
}

TEST(BinaryOperators, EqualLevelsGroupToTheLeft) {
    for (std::size_t level = 0; level < levels.size(); ++level) {
        for (const std::string& first : levels[level]) {
            for (const std::string& second : levels[level]) {
                EXPECT_EQ(valueTree("அ " + first + " ஆ " + second + " இ"),
                          joined(level, joined(level, "அ", first, "ஆ"), second, "இ"));
            }
        }
    }
}

TEST(BinaryOperators, ClimbDownAndUpThroughAllLevels) {
    EXPECT_EQ(valueTree("அ அல்லது ஆ கூட்டு இ பெருக்கு ஈ சமம் உ மற்றும் ஊ"),
              "(Logical அ அல்லது (Logical (Binary (Binary ஆ கூட்டு (Binary இ பெருக்கு ஈ)) சமம் உ) மற்றும் ஊ))");
    EXPECT_EQ(valueTree("1 கூட்டு 2 பெருக்கு 3"), "(Binary (Number 1) கூட்டு (Binary (Number 2) பெருக்கு (Number 3)))");
    EXPECT_EQ(valueTree("2 கழி 1 கழி 0"), "(Binary (Binary (Number 2) கழி (Number 1)) கழி (Number 0))");
}

TEST(BinaryOperators, NeedBothOperands) {
    for (const auto& level : levels) {
        for (const std::string& word : level) {
            EXPECT_EQ(valueFault("அ " + word), "பொழி-201 வரி 1") << word;
            EXPECT_EQ(valueFault("அ " + word + " பெருக்கு"), "பொழி-201 வரி 1") << word;
        }
    }
    EXPECT_EQ(valueFault("பெருக்கு அ"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("கூட்டு 5"), "பொழி-201 வரி 1");
}

TEST(UnaryOperators, EveryWordTakesTheOperandBehindIt) {
    for (const std::string& word : unaryWords) {
        EXPECT_EQ(valueTree(word + " அ"), "(Unary " + word + " அ)");
    }
}

TEST(UnaryOperators, GroupToTheRight) {
    for (const std::string& outer : unaryWords) {
        for (const std::string& inner : unaryWords) {
            EXPECT_EQ(valueTree(outer + " " + inner + " அ"), "(Unary " + outer + " (Unary " + inner + " அ))");
        }
    }
}

TEST(UnaryOperators, BindTighterThanEveryBinaryWord) {
    for (std::size_t level = 0; level < levels.size(); ++level) {
        for (const std::string& word : levels[level]) {
            EXPECT_EQ(valueTree("இல்லை அ " + word + " கழி ஆ"), joined(level, "(Unary இல்லை அ)", word, "(Unary கழி ஆ)"));
        }
    }
}

TEST(UnaryOperators, BindLooserThanCallsMembersAndIndices) {
    EXPECT_EQ(valueTree("இல்லை அ.ஆ(இ)[ஈ]"), "(Unary இல்லை (Index (Call (Get அ ஆ) இ) ஈ))");
    EXPECT_EQ(valueTree("கழி (அ) கூட்டு ஆ"), "(Binary (Unary கழி (Grouping அ)) கூட்டு ஆ)");
}

TEST(UnaryOperators, NeedAnOperand) {
    for (const std::string& word : unaryWords) {
        EXPECT_EQ(valueFault(word), "பொழி-201 வரி 1") << word;
    }
}

TEST(Ternary, HasTwoSpellingsThatMayBeMixed) {
    const std::string expected = "(Ternary அ ஆ இ)";
    EXPECT_EQ(valueTree("அ எனில் ஆ இல்லைஎனில் இ"), expected);
    EXPECT_EQ(valueTree("அ ? ஆ : இ"), expected);
    EXPECT_EQ(valueTree("அ எனில் ஆ : இ"), expected);
    EXPECT_EQ(valueTree("அ ? ஆ இல்லைஎனில் இ"), expected);
}

TEST(Ternary, GroupsToTheRight) {
    EXPECT_EQ(valueTree("அ ? ஆ : இ ? ஈ : உ"), "(Ternary அ ஆ (Ternary இ ஈ உ))");
    EXPECT_EQ(valueTree("அ ? ஆ ? இ : ஈ : உ"), "(Ternary அ (Ternary ஆ இ ஈ) உ)");
    EXPECT_EQ(valueTree("அ எனில் ஆ இல்லைஎனில் இ எனில் ஈ இல்லைஎனில் உ"), "(Ternary அ ஆ (Ternary இ ஈ உ))");
}

TEST(Ternary, BindsLooserThanEveryBinaryWord) {
    for (std::size_t level = 0; level < levels.size(); ++level) {
        for (const std::string& word : levels[level]) {
            const std::string operation = "அ " + word + " ஆ";
            const std::string node = joined(level, "அ", word, "ஆ");
            EXPECT_EQ(valueTree(operation + " ? " + operation + " : " + operation),
                      "(Ternary " + node + " " + node + " " + node + ")");
        }
    }
}

TEST(Ternary, TakesAnyExpressionBeforeTheColonButNoAssignmentBehindIt) {
    EXPECT_EQ(valueTree("அ ? ஆ = இ : ஈ"), "(Ternary அ (Assignment ஆ = இ) ஈ)");
    EXPECT_EQ(valueTree("அ ? ஆ => இ : ஈ"), "(Ternary அ (Lambda (ஆ) இ) ஈ)");
    EXPECT_EQ(valueFault("அ ? ஆ : இ = ஈ"), "பொழி-211 வரி 1");
    EXPECT_EQ(valueFault("அ ? ஆ : இ => ஈ"), "பொழி-204 வரி 1");
}

TEST(Ternary, NeedsBothBranches) {
    EXPECT_EQ(valueFault("அ ? ஆ"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueFault("அ எனில் ஆ"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueFault("அ எனில் ஆ இல்லை இ"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueFault("அ ? : ஆ"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("அ ? ஆ :"), "பொழி-201 வரி 1");
}

TEST(Grouping, KeepsWhatStandsInside) {
    EXPECT_EQ(valueTree("(அ கூட்டு ஆ) பெருக்கு இ"), "(Binary (Grouping (Binary அ கூட்டு ஆ)) பெருக்கு இ)");
    EXPECT_EQ(valueTree("((அ))"), "(Grouping (Grouping அ))");
    EXPECT_EQ(valueTree("(அ = ஆ)"), "(Grouping (Assignment அ = ஆ))");
    EXPECT_EQ(valueTree("(அ ? ஆ : இ) ? ஈ : உ"), "(Ternary (Grouping (Ternary அ ஆ இ)) ஈ உ)");
    EXPECT_EQ(valueTree("(அ)(ஆ).இ[ஈ]"), "(Index (Get (Call (Grouping அ) ஆ) இ) ஈ)");
}

TEST(Grouping, HoldsOneExpressionOnOneLine) {
    EXPECT_EQ(valueFault("()"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("(அ, ஆ)"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueFault("(அ ஆ)"), "பொழி-204 வரி 1");
    EXPECT_EQ(fault("இ = (அ\n)"), "பொழி-204 வரி 1");
    EXPECT_EQ(fault("இ = (\nஅ)"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("இ = (அ கூட்டு\nஆ)"), "பொழி-201 வரி 1");
}

TEST(ArrowFunction, TakesOneNameOrNamesInParentheses) {
    EXPECT_EQ(valueTree("அ => ஆ"), "(Lambda (அ) ஆ)");
    EXPECT_EQ(valueTree("() => அ"), "(Lambda () அ)");
    EXPECT_EQ(valueTree("(அ) => ஆ"), "(Lambda (அ) ஆ)");
    EXPECT_EQ(valueTree("(அ, ஆ, இ) => அ கூட்டு ஆ"), "(Lambda (அ ஆ இ) (Binary அ கூட்டு ஆ))");
}

TEST(ArrowFunction, IsAlsoWrittenWithTheWordForGreater) {
    EXPECT_EQ(valueTree("அ = பெரிது 5"), "(Lambda (அ) (Number 5))");
    EXPECT_EQ(valueTree("(அ, ஆ) = பெரிது 5"), "(Lambda (அ ஆ) (Number 5))");
    EXPECT_EQ(valueTree("() = பெரிது 5"), "(Lambda () (Number 5))");
}

TEST(ArrowFunction, IsToldByTheTextBehindTheNameEvenIfThatIsAString) {
    EXPECT_EQ(valueTree("அ \"=>\" ஆ"), "(Lambda (அ) ஆ)");
    EXPECT_EQ(valueTree("அ = \"பெரிது\" ஆ"), "(Lambda (அ) ஆ)");
    EXPECT_EQ(fault("அ = \"பெரிது\"\n"), "பொழி-201 வரி 1");
}

TEST(ArrowFunction, TakesTheWholeExpressionBehindIt) {
    EXPECT_EQ(valueTree("அ => ஆ => இ"), "(Lambda (அ) (Lambda (ஆ) இ))");
    EXPECT_EQ(valueTree("அ => ஆ ? இ : ஈ"), "(Lambda (அ) (Ternary ஆ இ ஈ))");
    EXPECT_EQ(valueTree("அ => ஆ = இ"), "(Lambda (அ) (Assignment ஆ = இ))");
    EXPECT_EQ(valueTree("(அ => ஆ)(இ)"), "(Call (Grouping (Lambda (அ) ஆ)) இ)");
    EXPECT_EQ(valueTree("அ(ஆ => இ, () => ஈ)"), "(Call அ (Lambda (ஆ) இ) (Lambda () ஈ))");
}

TEST(ArrowFunction, TakesKeywordsAndWidgetWordsAsNames) {
    for (const std::string name : {"சுற்று", "வகை", "செயல்", "இல்லை", "உரை", "பெட்டி", "பக்கம்", "அகலம்", "உயரம்", "பாணி",
                                   "அழுத்தினால்", "பின்னணி", "நிறம்", "தேடல்_பட்டை"}) {
        EXPECT_EQ(valueTree(name + " => 1"), "(Lambda (" + name + ") (Number 1))");
        EXPECT_EQ(valueTree("(அ, " + name + ") => 1"), "(Lambda (அ " + name + ") (Number 1))");
    }
}

TEST(ArrowFunction, RefusesParametersThatAreNoNames) {
    for (const std::string parameters : {"(1)", "(அ, 1)", "(அ,)", "(\"அ\")", "(மெய்)", "(ரகசிய)", "(தலைமை)"}) {
        EXPECT_EQ(valueFault(parameters + " => 1"), "பொழி-232 வரி 1") << parameters;
    }
    EXPECT_EQ(valueFault("(அ ஆ) => 1"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueFault("1 => 2"), "பொழி-204 வரி 1");
}

TEST(ArrowFunction, IsLookedForBehindTheFirstClosingParenthesisWhateverTheNesting) {
    EXPECT_EQ(fault("இ = (அ (ஆ)) => 1"), "பொழி-201 வரி 1");
    EXPECT_EQ(valueFault("((அ)) => 1"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueFault("(அ((ஆ) => இ))"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueTree("அ((ஆ) => இ)"), "(Call அ (Lambda (ஆ) இ))");
}

TEST(ArrowFunction, IsNotLookedForBehindTheLineEnd) {
    EXPECT_EQ(fault("இ = (அ,\nஆ) => 1"), "பொழி-204 வரி 1");
}

TEST(WordFunction, TakesNamesInParenthesesOrBare) {
    EXPECT_EQ(valueTree("வினை(அ, ஆ): இ"), "(Lambda (அ ஆ) இ)");
    EXPECT_EQ(valueTree("வினை அ, ஆ: இ"), "(Lambda (அ ஆ) இ)");
    EXPECT_EQ(valueTree("வினை(): அ"), "(Lambda () அ)");
    EXPECT_EQ(valueTree("வினை: அ"), "(Lambda () அ)");
}

TEST(WordFunction, NeedsNoCommasAndSkipsSpareOnes) {
    EXPECT_EQ(valueTree("வினை(அ ஆ): இ"), "(Lambda (அ ஆ) இ)");
    EXPECT_EQ(valueTree("வினை அ ஆ: இ"), "(Lambda (அ ஆ) இ)");
    EXPECT_EQ(valueTree("வினை(அ,): இ"), "(Lambda (அ) இ)");
    EXPECT_EQ(valueTree("வினை(, அ): இ"), "(Lambda (அ) இ)");
}

TEST(WordFunction, MaySpanLinesBetweenItsNames) {
    EXPECT_EQ(valueTree("வினை(\nஅ,\n\nஆ\n): இ"), "(Lambda (அ ஆ) இ)");
    EXPECT_EQ(valueFault("வினை(\n    அ): இ"), "பொழி-204 வரி 2");
}

TEST(WordFunction, TakesTheWholeExpressionBehindItsColon) {
    EXPECT_EQ(valueTree("வினை(அ): வினை(ஆ): இ"), "(Lambda (அ) (Lambda (ஆ) இ))");
    EXPECT_EQ(valueTree("வினை(அ): ஆ ? இ : ஈ"), "(Lambda (அ) (Ternary ஆ இ ஈ))");
    EXPECT_EQ(valueTree("அ(வினை(ஆ): இ, ஈ)"), "(Call அ (Lambda (ஆ) இ) ஈ)");
    EXPECT_EQ(valueTree("வினை(சுற்று, உரை): சுற்று"), "(Lambda (சுற்று உரை) சுற்று)");
}

TEST(WordFunction, NeedsItsBracketColonAndBody) {
    EXPECT_EQ(valueFault("வினை(1): அ"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueFault("வினை(அ: ஆ"), "பொழி-204 வரி 1");
    EXPECT_EQ(valueFault("வினை(அ) ஆ"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueFault("வினை 1: அ"), "பொழி-202 வரி 1");
    EXPECT_EQ(valueFault("வினை(அ):"), "பொழி-201 வரி 1");
    EXPECT_EQ(fault("அச்சிடு(வினை(அ):\n    அ)"), "பொழி-201 வரி 1");
}

} // namespace
