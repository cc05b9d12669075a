#include "engine/difference.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/object.h"
#include "engine/running_program.h"
#include "engine_support.h"

#include <chrono>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// What a failed சமம்_உறுதி tells: the places where two values differ.

namespace {

using namespace pozhil::engine;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr Place HERE = "1:0-1";
constexpr const char* MORE = "மேலும் வேறுபடும் இடங்கள்: ";

/// The lines of the difference without their margins.
std::vector<std::string> told(const Value& got, const Value& wanted) {
    std::vector<std::string> lines;
    const std::string difference = differenceOf(got, wanted);
    for (std::size_t begin = 0; begin < difference.size();) {
        const std::size_t end = std::min(difference.find('\n', begin), difference.size());
        const std::string line = difference.substr(begin, end - begin);
        lines.push_back(line.substr(std::min(line.find_first_not_of(' '), line.size())));
        begin = end + 1;
    }
    return lines;
}

std::vector<std::string> toldTexts(const std::string& got, const std::string& wanted) {
    return told(makeText(got), makeText(wanted));
}

std::string repeated(const std::string& text, int count) {
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

template <class Make> Value listOf(Whole count, Make make) {
    Value values = list({});
    for (Whole i = 0; i < count; ++i) {
        appendTo(ownList(values), make(i));
    }
    return values;
}

Value nested(int levels, Value innermost) {
    for (int i = 0; i < levels; ++i) {
        innermost = list({innermost});
    }
    return innermost;
}

template <class Action> double secondsOf(Action action) {
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

TEST(Difference, OfEqualValuesIsNothing) {
    EXPECT_EQ(differenceOf(5, 5.0), "");
    EXPECT_EQ(differenceOf(text("அ\nஆ"), text("அ\nஆ")), "");
    EXPECT_EQ(differenceOf(list({}), list({})), "");
    EXPECT_EQ(differenceOf(Value(), Value()), "");
}

TEST(Difference, TellsSimpleValuesWithTheirKind) {
    EXPECT_THAT(told(1, 2), ElementsAre("பெற்றது: 1 (எண்)", "வேண்டியது: 2 (எண்)"));
    EXPECT_THAT(told(1, text("1")), ElementsAre("பெற்றது: 1 (எண்)", "வேண்டியது: \"1\" (உரை)"));
    EXPECT_THAT(told(true, text("மெய்")), ElementsAre("பெற்றது: மெய் (நிலை)", "வேண்டியது: \"மெய்\" (உரை)"));
    EXPECT_THAT(told(list({}), makeMap()), ElementsAre("பெற்றது: [] (பட்டியல்)", "வேண்டியது: {} (அகராதி)"));
    EXPECT_THAT(told(list({1}), text("[1]")), ElementsAre("பெற்றது: [1] (பட்டியல்)", "வேண்டியது: \"[1]\" (உரை)"));
    EXPECT_THAT(told(Value(), 0)[0], HasSubstr("பெற்றது: "));
}

TEST(Difference, OfTextsHasNoKind) {
    EXPECT_THAT(toldTexts("", "அ"), ElementsAre("பெற்றது: \"\"", "வேண்டியது: \"அ\""));
    EXPECT_THAT(toldTexts("அ ", "அ"), ElementsAre("பெற்றது: \"அ \"", "வேண்டியது: \"அ\""));
}

TEST(Difference, FindsElementsWhereverTheyAre) {
    const Value got = list({1, list({2, map({{text("அ"), list({3, 4})}}, HERE)})});
    const Value wanted = list({1, list({2, map({{text("அ"), list({3, 5})}}, HERE)})});
    EXPECT_THAT(told(got, wanted), ElementsAre("[1][1][\"அ\"][1]:", "பெற்றது: 4 (எண்)", "வேண்டியது: 5 (எண்)"));
}

TEST(Difference, OfMapsGoesByKeyNotByOrder) {
    const Value got = map({{text("ஆ"), 2}, {text("அ"), 1}}, HERE);
    EXPECT_EQ(differenceOf(got, map({{text("அ"), 1}, {text("ஆ"), 2}}, HERE)), "");
    EXPECT_THAT(told(got, map({{text("இ"), 3}, {text("ஆ"), 4}}, HERE)),
                ElementsAre("[\"ஆ\"]:", "பெற்றது: 2 (எண்)", "வேண்டியது: 4 (எண்)",      //
                            "[\"இ\"]:", "பெற்றது: இல்லை", "வேண்டியது: 3", "[\"அ\"]:", //
                            "பெற்றது: 1", "வேண்டியது: இல்லை"));
}

TEST(Difference, TellsKeysOfDifferentKindsApart) {
    EXPECT_THAT(told(map({{1, 5}}, HERE), map({{text("1"), 5}}, HERE)),
                ElementsAre("[\"1\"]:", "பெற்றது: இல்லை", "வேண்டியது: 5", "[1]:", "பெற்றது: 5", "வேண்டியது: இல்லை"));
}

TEST(Difference, OfAnInsertionIsThatAlone) {
    EXPECT_THAT(told(list({9, 1, 2, 3}), list({1, 2, 3})),
                ElementsAre("நீளம்:", "பெற்றது: 4", "வேண்டியது: 3", "[0]:", "பெற்றது: 9", "வேண்டியது: இல்லை"));
    EXPECT_THAT(told(list({1, 3}), list({1, 2, 3})),
                ElementsAre("நீளம்:", "பெற்றது: 2", "வேண்டியது: 3", "[1]:", "பெற்றது: இல்லை", "வேண்டியது: 2"));
    EXPECT_THAT(told(list({1, 2}), list({1, 2, 3})),
                ElementsAre("நீளம்:", "பெற்றது: 2", "வேண்டியது: 3", "[2]:", "பெற்றது: இல்லை", "வேண்டியது: 3"));
    EXPECT_THAT(told(list({list({})}), list({list({7})})),
                ElementsAre("[0] நீளம்:", "பெற்றது: 0", "வேண்டியது: 1", "[0][0]:", "பெற்றது: இல்லை", "வேண்டியது: 7"));
}

TEST(Difference, OfRepeatedElementsTellsAsManyAsAreOver) {
    EXPECT_THAT(told(list({1, 1, 1}), list({1})),
                ElementsAre("நீளம்:", "பெற்றது: 3", "வேண்டியது: 1", "[1]:", "பெற்றது: 1", "வேண்டியது: இல்லை", //
                            "[2]:", "பெற்றது: 1", "வேண்டியது: இல்லை"));
}

TEST(Difference, OfListsThatDifferMoreGoesByIndexWhereTheyDo) {
    EXPECT_THAT(told(list({1, 5, 6, 9}), list({1, 7, 9})),
                ElementsAre("நீளம்:", "பெற்றது: 4", "வேண்டியது: 3", "[1]:", "பெற்றது: 5 (எண்)", "வேண்டியது: 7 (எண்)", //
                            "[2]:", "பெற்றது: 6", "வேண்டியது: இல்லை"));
}

TEST(Difference, OfTextsWithLinesGoesByLine) {
    EXPECT_THAT(toldTexts("அ\nஆ\nஇ", "அ\nஈ\nஇ"), ElementsAre("வரி 2:", "பெற்றது: \"ஆ\"", "வேண்டியது: \"ஈ\""));
    EXPECT_THAT(toldTexts("அ\n", "அ"), ElementsAre("வரி 2:", "பெற்றது: \"\"", "வேண்டியது: இல்லை"));
    EXPECT_THAT(toldTexts("ஆ\nஇ", "அ\nஆ\nஇ"), ElementsAre("வரி 1:", "பெற்றது: இல்லை", "வேண்டியது: \"அ\""));
    EXPECT_THAT(toldTexts("", "\n"), ElementsAre("வரி 2:", "பெற்றது: இல்லை", "வேண்டியது: \"\""));
    EXPECT_THAT(told(list({text("அ\nஆ")}), list({text("அ\nஇ")})),
                ElementsAre("[0] வரி 2:", "பெற்றது: \"ஆ\"", "வேண்டியது: \"இ\""));
}

TEST(Difference, NeverSplitsLetters) {
    const std::string letters = repeated("அ", 40);
    EXPECT_THAT(toldTexts(letters + "க", letters + "கி"),
                ElementsAre("எழுத்து 41:", "பெற்றது: …\"அஅஅஅஅஅஅஅஅஅக\"", "வேண்டியது: …\"அஅஅஅஅஅஅஅஅஅகி\""));
    EXPECT_THAT(toldTexts(letters + "கு", letters + "கூ"),
                ElementsAre("எழுத்து 41:", "பெற்றது: …\"அஅஅஅஅஅஅஅஅஅகு\"", "வேண்டியது: …\"அஅஅஅஅஅஅஅஅஅகூ\""));
    const std::string signs = repeated("கொ", 40);
    EXPECT_THAT(toldTexts(signs + "ங்", signs), ElementsAre("எழுத்து 41:", "பெற்றது: …\"" + repeated("கொ", 10) + "ங்\"",
                                                           "வேண்டியது: …\"" + repeated("கொ", 10) + "\""));
}

TEST(Difference, OfLinesThatBeginWithASignTellsWholeLines) {
    EXPECT_THAT(toldTexts("க\n\u0BBF", "க\n\u0BC0"),
                ElementsAre("வரி 2:", "பெற்றது: \"\u0BBF\"", "வேண்டியது: \"\u0BC0\""));
}

TEST(Difference, ShowsOnlyTheBeginningOfWhatIsLong) {
    const std::string end = repeated("ஆ", 1000);
    for (const std::string& line : toldTexts("அ" + end, "இ" + end)) {
        EXPECT_LT(line.size(), 300U);
        EXPECT_THAT(line, HasSubstr("…"));
    }
    EXPECT_LT(differenceOf(listOf(1000, [](Whole i) { return Value(i); }), 5).size(), 300U);
    EXPECT_LT(differenceOf(map({{makeText(end), 1}}, HERE), map({{makeText(end), 2}}, HERE)).size(), 300U);
}

TEST(Difference, TellsTenPlacesAndCountsTheOthers) {
    const auto ofSize = [](Whole count, Whole first) {
        return listOf(count, [=](Whole i) { return Value(first + i); });
    };
    EXPECT_THAT(differenceOf(ofSize(10, 0), ofSize(10, 1)), Not(HasSubstr(MORE)));
    EXPECT_THAT(told(ofSize(11, 0), ofSize(11, 1)).back(), MORE + std::string("1."));
    EXPECT_THAT(told(ofSize(0, 0), ofSize(20, 0)).back(), MORE + std::string("11.")) << "the length is a place, too";
    EXPECT_THAT(toldTexts(repeated("அ\n", 30), repeated("ஆ\n", 30)).back(), MORE + std::string("20."));
}

TEST(Difference, OfWhatIsNoNumberIsTold) {
    const Decimal noNumber = std::numeric_limits<Decimal>::quiet_NaN();
    EXPECT_THAT(told(noNumber, noNumber)[1], HasSubstr("அச்சில் ஒன்றுபோல; ஆனால் சமமில்லை"));
    EXPECT_THAT(told(list({1, noNumber}), list({1, noNumber}))[0], "[1]:");
    EXPECT_THAT(told(list({noNumber, 1}), list({noNumber})).size(), 9U);
}

TEST(Difference, OfValuesThatPrintAlikeSaysSo) {
    EXPECT_THAT(told(0.1 + 0.2, 0.3),
                ElementsAre("பெற்றது: 0.3 (தசம எண்)", "வேண்டியது: 0.3 (தசம எண்) — அச்சில் ஒன்றுபோல; ஆனால் சமமில்லை"));
}

TEST(Difference, OfObjectsThatHoldThemselvesIsTold) {
    constexpr Member NEXT = 0;
    static const char* const names[] = {"அடுத்தது"};
    static constexpr FieldInfo fields[] = {{NEXT, false}};
    static Structure ring = {"வளையம்", nullptr, false, fields, 1, nullptr, 0, nullptr, nullptr};
    static Structure* const structures[] = {&ring};
    static const ProgramInfo program = {nullptr, nullptr, 0, names, 1, structures, 1};
    setRunningProgram(program);
    makeTables(program);
    Value one = create(ring, HERE);
    Value other = create(ring, HERE);
    field(one, NEXT, HERE) = list({one});
    field(other, NEXT, HERE) = list({other});
    EXPECT_EQ(differenceOf(list({one}), list({one})), "");
    EXPECT_THAT(told(list({one}), list({other})),
                ElementsAre("[0]:", "பெற்றது: [பொருள்] (பொருள்)", HasSubstr("அச்சில் ஒன்றுபோல")));
    field(one, NEXT, HERE) = 0; // or nobody frees them
    field(other, NEXT, HERE) = 0;
}

TEST(Difference, GoesDownSoFarThatNoPlaceIsEndless) {
    EXPECT_THAT(told(nested(49, 1), nested(49, 2))[0], repeated("[0]", 49) + ":");
    const std::vector<std::string> lines = told(nested(5000, 1), nested(5000, 2));
    EXPECT_EQ(lines[0], repeated("[0]", 50) + ":");
    EXPECT_THAT(lines, ElementsAre(lines[0], "பெற்றது: …[[[[[[[[[[1]]]]]]]]]]]]]]]]]]]…",
                                   "வேண்டியது: …[[[[[[[[[[2]]]]]]]]]]]]]]]]]]]…"))
        << "what is cut off must not pass for alike";
}

TEST(Difference, OfManyElementsTakesTimeInProportion) {
    const Value got = listOf(100'000, [](Whole i) { return Value(i); });
    const Value shifted = listOf(99'999, [](Whole i) { return Value(i + 1); });
    const Value other = listOf(100'000, [](Whole i) { return Value(-i - 1); });
    EXPECT_LT(secondsOf([&] { EXPECT_EQ(told(got, shifted).size(), 6U); }), 5);
    EXPECT_LT(secondsOf([&] { EXPECT_LT(differenceOf(got, other).size(), 3000U); }), 5);
    Value one = makeMap();
    Value two = makeMap();
    for (Whole i = 0; i < 100'000; ++i) {
        slot(one, i, HERE) = i;
        slot(two, i * 2, HERE) = i;
    }
    EXPECT_LT(secondsOf([&] { EXPECT_LT(differenceOf(one, two).size(), 3000U); }), 5);
}

TEST(Difference, OfLongElementsTakesTimeInProportion) {
    const Value element = listOf(20'000, [](Whole i) { return Value(i); });
    const Value got = listOf(20'000, [&](Whole /*i*/) { return element; });
    EXPECT_LT(secondsOf([&] { EXPECT_LT(differenceOf(got, list({})).size(), 3000U); }), 5);
    EXPECT_LT(secondsOf([&] { EXPECT_LT(differenceOf(list({}), got).size(), 3000U); }), 5);
    const Value numbers = listOf(20'000, [](Whole i) { return Value(i); });
    EXPECT_LT(secondsOf([&] { EXPECT_LT(differenceOf(got, numbers).size(), 3000U); }), 5);
}

TEST(Difference, OfLongTextsTakesTimeInProportion) {
    for (const std::string letter : {"கி", "🇮🇳", "x\u0BBF\u0BBF", "வரி\n", "\n"}) {
        const std::string letters = repeated(letter, 100'000);
        EXPECT_LT(secondsOf([&] { EXPECT_LT(toldTexts(letters + "அ", letters + "ஆ").size(), 4U); }), 5) << letter;
        EXPECT_LT(secondsOf([&] { EXPECT_LT(toldTexts(letters, "அ" + letters).size(), 4U); }), 5) << letter;
    }
}

} // namespace
