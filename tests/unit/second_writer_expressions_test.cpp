#include "support/second_writing.h"

#include <gmock/gmock.h>

namespace pozhil::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// What "அச்சிடு(expression)" becomes after these statements, without print({…}).
std::string printed(const std::string& before, const std::string& expression) {
    const std::string all = WrittenProgram(before + "அச்சிடு(" + expression + ")\n").statements();
    const std::string head = "print({";
    const std::size_t begin = all.rfind(head);
    return begin == std::string::npos ? all : all.substr(begin + head.size(), all.rfind("});") - begin - head.size());
}

TEST(SecondWriterExpressions, NumbersStayNativeWhereTheirKindIsCertain) {
    EXPECT_EQ(printed("", "1 கூட்டு 2"), "add(1LL, 2LL, @)");
    EXPECT_EQ(printed("", "1 வகு 2.5"), "divide(1LL, 2.5, @)");
    EXPECT_EQ(printed("", "குறை 9223372036854775807"), "(-9223372036854775807LL)");
}

TEST(SecondWriterExpressions, TruthValuesAreNoNumbersOfCxx) {
    // C++ would take a bool for a number.
    EXPECT_EQ(printed("", "மெய் சமம் பொய்"), "equal(true, false)");
    EXPECT_EQ(printed("", "1 சமம் மெய்"), "equal(1LL, Value(true))");
}

TEST(SecondWriterExpressions, ConditionsAreAskedForTheirTruth) {
    EXPECT_EQ(printed("ப = [1]\n", "ப[0] மற்றும் மெய்"), "(truth(get(v_ப, 0LL, @), @) && true)");
    EXPECT_EQ(printed("", "இல்லை மெய்"), "!true");
}

TEST(SecondWriterExpressions, IndicesOfOtherKindsThanWholeNumbersAreValues) {
    // C++ would cut the fraction off.
    EXPECT_EQ(printed("ப = [1]\n", "ப[0]"), "get(v_ப, 0LL, @)");
    EXPECT_EQ(printed("ப = [1]\n", "ப[0.0]"), "get(v_ப, Value(0.0), @)");
}

TEST(SecondWriterExpressions, PiecesOfATextAreJoinedAtOnce) {
    EXPECT_EQ(printed("", "\"அ\" இணை 1 இணை மெய்"), "join({texts[0], 1LL, true}, @)");
    EXPECT_EQ(printed("", "1 இணை 2"), "join(1LL, 2LL, @)");
}

TEST(SecondWriterExpressions, MixedBranchesKeepTheirKinds) {
    EXPECT_EQ(printed("", "மெய் ? 1 : 2.5"), "(true ? Value(1LL) : Value(2.5))");
    EXPECT_EQ(printed("", "மெய் ? 1 : 2"), "(true ? 1LL : 2LL)");
}

// Order of evaluation. C++ leaves that of arguments open.

constexpr const char* FUNCTION = "எண்ணி = 1\n"
                                 "செயல் f():\n"
                                 "    பொது எண்ணி\n"
                                 "    எண்ணி கூட்டிசேர் 1\n"
                                 "    திரும்பு எண்ணி\n";

TEST(SecondWriterExpressions, CallsAreMadeFromLeftToRight) {
    EXPECT_THAT(printed(FUNCTION, "f() கழி f()"), HasSubstr("({ const Whole t1 = f_f("));
}

TEST(SecondWriterExpressions, AVariableIsReadBeforeACallThatMayChangeIt) {
    EXPECT_THAT(printed(FUNCTION, "எண்ணி கழி f()"), HasSubstr("({ const Whole t1 = v_எண்ணி; subtract(t1, f_f("));
}

TEST(SecondWriterExpressions, NothingIsHeldThatCannotChange) {
    EXPECT_THAT(printed(FUNCTION, "f() கழி 1"), testing::StartsWith("subtract(f_f("));
    EXPECT_THAT(printed(FUNCTION, "5 கழி f()"), testing::StartsWith("subtract(5LL, f_f("));
    EXPECT_EQ(printed("அ = 1\nஆ = 2\n", "அ கழி ஆ"), "subtract(v_அ, v_ஆ, @)");
}

TEST(SecondWriterExpressions, OfTwoOperandsThatMayFailTheLeftOneComesFirst) {
    const std::string before = "ப = [1]\nம = {}\nஎ = 2\n";
    EXPECT_EQ(printed(before, "ம[எ] கூட்டு ப[9]"), "({ Value t1 = get(v_ம, v_எ, @); add(t1, get(v_ப, 9LL, @), @); })");
    EXPECT_EQ(printed(before, "(எ பெருக்கு 2) கழி (எ பெருக்கு 3)"),
              "({ const Whole t1 = multiply(v_எ, 2LL, @); subtract(t1, multiply(v_எ, 3LL, @), @); })");
    EXPECT_EQ(printed(before, "(எ பெருக்கு 2) கழி (எ பெருக்குஇருமை 3)"),
              "subtract(multiply(v_எ, 2LL, @), bitAnd(v_எ, 3LL, @), @)");
}

TEST(SecondWriterExpressions, LongListsAndMapsAreMadePartByPart) {
    const auto items = [](const std::string& item, int count) {
        std::string text;
        for (int index = 0; index < count; ++index) {
            text += (index == 0 ? "" : ", ") + item;
        }
        return text;
    };
    EXPECT_THAT(WrittenProgram("ப = [" + items("1", 64) + "]\n").statements(),
                HasSubstr("v_ப = list({" + items("1LL", 64) + "});\n"));
    EXPECT_THAT(WrittenProgram("ப = [" + items("1", 130) + "]\n").statements(),
                HasSubstr("v_ப = [&]() -> Value { Value all = list({" + items("1LL", 64) +
                          "}); [&] { addElements(all, {" + items("1LL", 64) +
                          "}); }(); [&] { addElements(all, {1LL, 1LL}); }(); return all; }();\n"));
    std::string entries;
    for (int index = 0; index < 65; ++index) {
        entries += std::to_string(index) + ": 1, ";
    }
    EXPECT_THAT(WrittenProgram("ம = {" + entries + "}\n").statements(),
                AllOf(HasSubstr("Value all = map({Entry{0LL, 1LL}, "),
                      HasSubstr("[&] { addEntries(all, {Entry{64LL, 1LL}}, @); }();")));
}

TEST(SecondWriterExpressions, DeepListsAreFunctionsAtSomeLevels) {
    const auto nested = [](int depth) {
        return "ப = " + std::string(static_cast<std::size_t>(depth), '[') + "1" +
               std::string(static_cast<std::size_t>(depth), ']') + "\n";
    };
    EXPECT_THAT(WrittenProgram(nested(15)).statements(), Not(HasSubstr("[&]")));
    EXPECT_THAT(WrittenProgram(nested(16)).statements(), HasSubstr("list({[&]() -> Value { return list({1LL}); }()})"));
}

TEST(SecondWriterExpressions, BracesKeepTheOrderByThemselves) {
    EXPECT_THAT(printed(FUNCTION, "[f(), f()]"), testing::StartsWith("list({f_f("));
}

TEST(SecondWriterExpressions, AnAssignmentWithinComesAfterWhatStandsBeforeIt) {
    EXPECT_THAT(printed("அ = 1\n", "அ கூட்டு (அ = 5)"),
                HasSubstr("({ const Whole t1 = v_அ; add(t1, (v_அ = 5LL, v_அ), "));
}

} // namespace
} // namespace pozhil::test
