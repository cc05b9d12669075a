#include "engine/kept_state.h"
#include "engine/list.h"
#include "engine/map.h"
#include "engine/running_program.h"
#include "engine/state_form.h"
#include "engine_run_support.h"

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string written(const Value& value) {
    std::string out;
    EXPECT_EQ(writeState(out, value, MOST_KEPT), Writing::Done);
    return out;
}

Value readBack(const std::string& text) {
    StateReader reader(text);
    const Value value = reader.value();
    EXPECT_TRUE(reader.isGood() && reader.isAtEnd()) << text;
    return value;
}

Value nested(int depth) {
    Value value = 1;
    for (int level = 0; level < depth; ++level) {
        value = list({value});
    }
    return value;
}

TEST(StateForm, MakesEveryKindAgain) {
    const Whole least = std::numeric_limits<Whole>::min();
    const Whole most = std::numeric_limits<Whole>::max();
    const Value all =
        list({Value(), true, false, 0, -1, least, most, 0.1, -0.0, 1e308, text(""), text("கௌ \"ஒன்று\" \\ ;]"), list({}),
              list({list({})}), map({}, "1:0-1"),
              map({{text("அ\"\\"), list({1, 2.5, Value()})}, {7, map({{true, text("ஆ")}}, "1:0-1")}}, "1:0-1")});
    const Value again = readBack(written(all));
    EXPECT_EQ(form(again), form(all));
    for (Whole index = 0; const Value* element = elementOf(all, index); ++index) {
        EXPECT_EQ(elementOf(again, index)->tag(), element->tag()) << index;
    }
    EXPECT_TRUE(std::signbit(readBack(written(-0.0)).decimal()));
    EXPECT_TRUE(std::isnan(readBack(written(std::nan(""))).decimal()));
}

TEST(StateForm, HasNoZeroByte) {
    const Value value = makeText(std::string("அ\0ஆ0\\0", 10));
    EXPECT_EQ(written(value).find('\0'), std::string::npos);
    EXPECT_EQ(form(readBack(written(value))), form(value));
}

TEST(StateForm, LeavesOutWhatItHasNoFormFor) {
    constexpr FunctionInfo NOTHING = {"எதுவும்", nullptr, 0, 0};
    std::string out;
    EXPECT_EQ(writeState(out, function(NOTHING), MOST_KEPT), Writing::NotKept);
    EXPECT_EQ(writeState(out, list({1, list({function(NOTHING)}), 2}), MOST_KEPT), Writing::NotKept);
    EXPECT_EQ(writeState(out, Value::unset(), MOST_KEPT), Writing::NotKept);
    EXPECT_EQ(writeState(out, nested(100000), MOST_KEPT), Writing::NotKept);
    EXPECT_EQ(form(readBack(written(nested(150)))), form(nested(150)));
}

TEST(StateForm, IsSoonDoneWithWhatIsTooLarge) {
    std::string out;
    EXPECT_EQ(writeState(out, makeText(std::string(MOST_KEPT + 1, 'a')), MOST_KEPT), Writing::TooLarge);
    // Small in memory, since its parts are shared.
    Value doubled = list({});
    for (int level = 0; level < 60; ++level) {
        doubled = list({doubled, doubled});
    }
    out.clear();
    EXPECT_EQ(writeState(out, doubled, MOST_KEPT), Writing::TooLarge);
    EXPECT_LT(out.size(), MOST_KEPT * 2);
}

class KeptState : public testing::Test {
protected:
    static constexpr Value* NO_VALUE = nullptr;

    KeptState() { setRunningProgram(program); }

    /// What the variables begin with in this build.
    void begin() { keepState(variables, 6); }
    std::string kept() {
        tooLarge.clear();
        return keptState(tooLarge);
    }

    Value value = text("அ");
    Value other;
    Whole whole = 1;
    Decimal decimal = 0.5;
    bool truth = false;
    Value imported = 1;
    const StateVariable variables[6] = {{0, "மதிப்பு", &value}, {0, "வேறு", &other},  {0, "முழு", &whole},
                                        {0, "தசமம்", &decimal}, {0, "மெய்யா", &truth}, {1, "மதிப்பு", &imported}};
    std::vector<std::string> tooLarge;

    inline static const ProgramInfo program = programOf([] {});
};

TEST_F(KeptState, GivesBackWhatHasChanged) {
    begin();
    value = text("ஆ");
    other = list({1});
    whole = 7;
    decimal = 2.5;
    truth = true;
    imported = 9;
    const std::string text = kept();
    value = ::text("அ");
    other = Value();
    whole = 1;
    decimal = 0.5;
    truth = false;
    imported = 1;
    begin();
    takeState(text);
    EXPECT_EQ(form(value), "ஆ");
    EXPECT_EQ(form(other), "[1]");
    EXPECT_EQ(whole, 7);
    EXPECT_EQ(decimal, 2.5);
    EXPECT_TRUE(truth);
    EXPECT_EQ(form(imported), "9") << "the same name in another file is another variable";
}

TEST_F(KeptState, KeepsNothingOfWhatIsAsItBegan) {
    begin();
    EXPECT_EQ(kept(), "");
    whole = 2;
    whole = 1;
    EXPECT_EQ(kept(), "");
}

TEST_F(KeptState, LeavesWhatBeginsOtherwiseNow) {
    begin();
    whole = 7;
    decimal = 2.5;
    const std::string text = kept();
    whole = 3;
    decimal = 0.5;
    begin();
    takeState(text);
    EXPECT_EQ(whole, 3);
    EXPECT_EQ(decimal, 2.5);
}

TEST_F(KeptState, LeavesWhatIsOfAnotherKind) {
    begin();
    value = list({1});
    other = list({2});
    const std::string text = kept();
    value = ::text("அ");
    other = Value();
    begin();
    takeState(text);
    EXPECT_EQ(form(value), "அ") << "it began with a text";
    EXPECT_EQ(form(other), "[2]") << "it began with nothing";
    // Numbers are of one kind, and every variable can be emptied.
    imported = 2.5;
    value = Value();
    const std::string numbers = kept();
    imported = 1;
    value = ::text("அ");
    takeState(numbers);
    EXPECT_EQ(form(imported), "2.5");
    EXPECT_TRUE(value.is(Tag::Nothing));
}

TEST_F(KeptState, NeverGivesANativeVariableAnotherKind) {
    begin();
    whole = 7;
    std::string text = kept();
    whole = 1;
    text.replace(text.find("i7;"), 3, "\"அ\"");
    takeState(text);
    EXPECT_EQ(whole, 1);
}

TEST_F(KeptState, NamesWhatIsTooLarge) {
    begin();
    value = makeText(std::string(MOST_KEPT + 1, 'a'));
    whole = 7;
    const std::string text = kept();
    EXPECT_THAT(tooLarge, ElementsAre("மதிப்பு"));
    EXPECT_THAT(text, HasSubstr("முழு"));
    EXPECT_THAT(text, Not(HasSubstr("aaa")));
}

TEST_F(KeptState, KeepsNoMoreOfAllThanHasRoom) {
    begin();
    value = makeText(std::string(MOST_KEPT / 5 * 2, 'a'));
    other = makeText(std::string(MOST_KEPT / 5 * 2, 'b'));
    imported = makeText(std::string(MOST_KEPT / 5 * 2, 'c'));
    whole = 7;
    const std::string text = kept();
    EXPECT_THAT(tooLarge, ElementsAre("மதிப்பு")) << "the imported one";
    EXPECT_THAT(text, AllOf(HasSubstr("aaa"), HasSubstr("bbb"), Not(HasSubstr("ccc")), HasSubstr("முழு")));
}

TEST_F(KeptState, TakesNothingOfATextThatIsDamaged) {
    begin();
    value = map({{text("அ"), list({1, 2.5, text("இ"), true, Value()})}}, "1:0-1");
    other = value;
    whole = 7;
    const std::string text = kept();
    const auto restore = [&] {
        value = ::text("அ");
        other = Value();
        whole = 1;
    };
    restore();
    for (std::size_t length = 0; length < text.size(); ++length) {
        takeState(text.substr(0, length));
        restore();
    }
    takeState(text + "]");
    EXPECT_EQ(whole, 1);
    EXPECT_TRUE(other.is(Tag::Nothing));
    for (const char* const foreign : {"{}", "null", "\"", "i", "[[[", "\"\"", "\"\"\"\"", "\"\"\"\"{[]+}", "\\"}) {
        takeState(foreign);
    }
    takeState(std::string(1000000, '['));
    takeState("\"அ\"\"1\"" + std::string(1000000, '['));
    takeState("\"அ\"\"1\"" + std::string(1000000, '{'));
    EXPECT_EQ(whole, 1);
}

TEST_F(KeptState, OutlivesAnyBytes) {
    begin();
    value = list({1, text("ஆ"), map({{text("அ"), 2.5}}, "1:0-1")});
    whole = 7;
    const std::string text = kept();
    // The same each time: what is random here is only the choice. NOLINTNEXTLINE(bugprone-random-generator-seed)
    std::mt19937 chance(1);
    for (int round = 0; round < 20000; ++round) {
        std::string damaged = text;
        for (int change = 0; change <= round % 4; ++change) {
            damaged[chance() % damaged.size()] = static_cast<char>(chance() % 256);
        }
        takeState(damaged);
    }
    EXPECT_THAT(kept(), Not(IsEmpty()));
}

} // namespace
