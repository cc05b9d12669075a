// How values are shown: printed text, script literal, type name.

#include "generator/first/runtime/runtime.h"

#include <gtest/gtest.h>

namespace {

using List = std::vector<std::any>;
using Map = std::map<std::string, std::any>;
using std::any;

std::string text(const char* literal) {
    return literal;
}

any object() {
    return std::make_shared<_StructBase>();
}

any function_of_one() {
    return std::function<any(any)>([](const any& x) { return x; });
}

any function_of_four() {
    return std::function<any(any, any, any, any)>([](const any& x, any, any, any) { return x; });
}

std::tm new_year() {
    std::tm time{};
    time.tm_year = 124;
    time.tm_mon = 0;
    time.tm_mday = 1;
    time.tm_hour = 9;
    time.tm_min = 5;
    time.tm_sec = 7;
    return time;
}

TEST(TextForm, Integers) {
    EXPECT_EQ(fn_any_to_string(any(42LL)), "42");
    EXPECT_EQ(fn_any_to_string(any(-9223372036854775807LL - 1)), "-9223372036854775808");
    EXPECT_EQ(fn_any_to_string(any(-7)), "-7");
}

TEST(TextForm, DecimalsAlwaysHaveSixPlaces) {
    EXPECT_EQ(fn_any_to_string(any(3.0L)), "3.000000");
    EXPECT_EQ(fn_any_to_string(any(2.5L)), "2.500000");
    EXPECT_EQ(fn_any_to_string(any(-0.1234567L)), "-0.123457");
    EXPECT_EQ(fn_any_to_string(any(1.5)), "1.500000") << "a clock reading";
}

TEST(TextForm, TextLetterByte) {
    EXPECT_EQ(fn_any_to_string(any(text("வணக்கம் 'உலகம்'"))), "வணக்கம் 'உலகம்'");
    EXPECT_EQ(fn_any_to_string(std::string(u8"வணக்கம்")), "வணக்கம்") << "a literal";
    EXPECT_EQ(fn_any_to_string(any(text(""))), "");
    EXPECT_EQ(fn_any_to_string(any(_PozhilChar{"ழி"})), "ழி");
    EXPECT_EQ(fn_any_to_string(any('x')), "x");
}

TEST(TextForm, Truth) {
    EXPECT_EQ(fn_any_to_string(any(true)), "மெய்");
    EXPECT_EQ(fn_any_to_string(any(false)), "பொய்");
}

TEST(TextForm, TimeIsWholeDateAndClock) {
    std::tm time = new_year();
    EXPECT_EQ(fn_any_to_string(any(&time)), "01-01-2024 09:05:07");
}

TEST(TextForm, ListsLeaveTextBare) {
    EXPECT_EQ(fn_any_to_string(any(List{})), "[]");
    EXPECT_EQ(fn_any_to_string(any(List{any(1LL), any(text("அ")), any(true), any(2.5L)})), "[1, அ, மெய், 2.500000]");
    EXPECT_EQ(fn_any_to_string(any(List{any(List{any(1LL), any(2LL)}), any(List{})})), "[[1, 2], []]");
}

TEST(TextForm, MapsQuoteKeysOnlyAndSortThem) {
    EXPECT_EQ(fn_any_to_string(any(Map{})), "{}");
    EXPECT_EQ(fn_any_to_string(any(Map{{"b", any(text("அ"))}, {"a", any(1LL)}})), "{\"a\": 1, \"b\": அ}");
    EXPECT_EQ(fn_any_to_string(any(Map{{"அ", any(List{any(Map{{"க", any(0LL)}})})}})), "{\"அ\": [{\"க\": 0}]}");
    EXPECT_EQ(fn_any_to_string(any(Map{{"a\"b", any(1LL)}})), "{\"a\"b\": 1}") << "a quote in a key stays as it is";
}

TEST(TextForm, FunctionsUpToThreeParameters) {
    EXPECT_EQ(fn_any_to_string(any(std::function<any()>([] { return any(); }))), "[வினை]");
    EXPECT_EQ(fn_any_to_string(function_of_one()), "[வினை]");
    EXPECT_EQ(fn_any_to_string(any(std::function<any(any, any)>([](any, any) { return any(); }))), "[வினை]");
    EXPECT_EQ(fn_any_to_string(any(std::function<any(any, any, any)>([](any, any, any) { return any(); }))), "[வினை]");
    EXPECT_EQ(fn_any_to_string(function_of_four()), "[தெரியாத வகை]");
}

TEST(TextForm, ObjectsAndTheRest) {
    EXPECT_EQ(fn_any_to_string(object()), "[பொருள்]");
    EXPECT_EQ(fn_any_to_string(any()), "[தெரியாத வகை]");
    EXPECT_EQ(fn_any_to_string(any(1.5f)), "[தெரியாத வகை]");
    EXPECT_EQ(fn_any_to_string(any(nullptr)), "[தெரியாத வகை]");
    EXPECT_EQ(fn_any_to_string(any(List{any(), object()})), "[[தெரியாத வகை], [பொருள்]]");
}

TEST(TextForm, TakesNativeValues) {
    EXPECT_EQ(fn_any_to_string(5LL), "5");
    EXPECT_EQ(fn_any_to_string(std::string(u8"அ")), "அ");
    EXPECT_EQ(fn_any_to_string(List({any(1LL)})), "[1]");
}

TEST(ScriptLiteral, NumbersAndTruth) {
    EXPECT_EQ(fn_any_to_json(any(42LL)), "42");
    EXPECT_EQ(fn_any_to_json(any(-1)), "-1");
    EXPECT_EQ(fn_any_to_json(any(2.5L)), "2.500000");
    EXPECT_EQ(fn_any_to_json(any(true)), "true");
    EXPECT_EQ(fn_any_to_json(any(false)), "false");
}

TEST(ScriptLiteral, TextIsEscaped) {
    EXPECT_EQ(fn_any_to_json(any(text("வணக்கம்"))), "'வணக்கம்'");
    EXPECT_EQ(fn_any_to_json(any(text("a'b\"c\\d\ne\rf\tg"))), "'a\\'b\\\"c\\\\d\\ne\\rf\tg'");
    EXPECT_EQ(fn_any_to_json(any(text(""))), "''");
}

TEST(ScriptLiteral, LettersAreNotEscaped) {
    EXPECT_EQ(fn_any_to_json(any(_PozhilChar{"'"})), "'''");
    EXPECT_EQ(fn_any_to_json(any('\\')), "'\\'");
}

TEST(ScriptLiteral, ContainersRecurse) {
    EXPECT_EQ(fn_any_to_json(any(List{any(text("அ")), any(List{any(1LL)}), any(false)})), "['அ', [1], false]");
    EXPECT_EQ(fn_any_to_json(any(Map{{"b", any(text("x"))}, {"a", any(Map{})}})), "{'a': {}, 'b': 'x'}");
    EXPECT_EQ(fn_any_to_json(any(Map{{"k'\"\\\n", any(1LL)}})), "{'k\\'\\\"\\\\\n': 1}") << "line ends stay in keys";
}

TEST(ScriptLiteral, EverythingElseIsNull) {
    std::tm time = new_year();
    EXPECT_EQ(fn_any_to_json(any()), "null");
    EXPECT_EQ(fn_any_to_json(object()), "null");
    EXPECT_EQ(fn_any_to_json(function_of_one()), "null");
    EXPECT_EQ(fn_any_to_json(any(&time)), "null");
}

TEST(TypeName, SomeNamesEndInABlank) {
    std::tm time = new_year();
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(1LL)), "எண் ");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(1)), "எண் ");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(true)), "நிலை ");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(&time)), "நேரம் ");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(object()), "பொருள் ");
    for (const any& value : {any(1LL), any(true), any(&time), object()}) {
        EXPECT_EQ(என்னவகை_கண்டுபிடி(value).back(), ' ');
    }
}

TEST(TypeName, NamesWithoutABlank) {
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(1.0L)), "தசம_எண்");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(1.0)), "தசம_எண்") << "a clock reading";
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(text("அ"))), "உரை");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(_PozhilChar{"அ"})), "எழுத்து");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any('a')), "எழுத்து");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(List{})), "பட்டியல்");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(Map{})), "அகராதி");
}

TEST(TypeName, FunctionsOfAnyArity) {
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(std::function<any()>([] { return any(); }))), "வினை");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(function_of_one()), "வினை");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(function_of_four()), "வினை");
}

TEST(TypeName, Unknown) {
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any()), "தெரியாத_வகை (Unknown)");
    EXPECT_EQ(என்னவகை_கண்டுபிடி(any(1.5f)), "தெரியாத_வகை (Unknown)");
}

} // namespace
