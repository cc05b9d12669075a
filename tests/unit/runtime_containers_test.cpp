// Reading, writing, measuring and removing elements of text, lists, maps and objects.

#include "generator/first/runtime/runtime.h"

#include <gtest/gtest.h>

namespace {

using List = std::vector<std::any>;
using Map = std::map<std::string, std::any>;
using std::any;

std::string text(const char* literal) {
    return literal;
}

std::string as_text(const any& value) {
    return fn_any_to_string(value);
}

TEST(IndexRead, TextGivesTheLetterOfOneByte) {
    const any word = text("abc");
    EXPECT_EQ(std::any_cast<_PozhilChar>(fn_எடு(word, any(0LL), "f", 1)).val, "a");
    EXPECT_EQ(std::any_cast<_PozhilChar>(fn_எடு(word, any(2LL), "f", 1)).val, "c");
    EXPECT_EQ(std::any_cast<_PozhilChar>(fn_எடு(any(text("அ")), any(1LL), "f", 1)).val, "\xAE")
        << "the index counts bytes";
}

TEST(IndexRead, TextOutsideItsBytesIsEmptyText) {
    const any word = text("abc");
    EXPECT_EQ(std::any_cast<std::string>(fn_எடு(word, any(3LL), "f", 1)), "");
    EXPECT_EQ(std::any_cast<std::string>(fn_எடு(word, any(-1LL), "f", 1)), "");
    EXPECT_EQ(std::any_cast<std::string>(fn_எடு(any(text("")), any(0LL), "f", 1)), "");
}

TEST(IndexRead, ListsAndMaps) {
    const any list = List{any(1LL), any(text("இரண்டு")), any(List{any(3LL)})};
    EXPECT_EQ(std::any_cast<long long>(fn_எடு(list, any(0LL), "f", 1)), 1);
    EXPECT_EQ(std::any_cast<std::string>(fn_எடு(list, any(1LL), "f", 1)), "இரண்டு");
    EXPECT_EQ(as_text(fn_எடு(fn_எடு(list, any(2LL), "f", 1), any(0LL), "f", 1)), "3");
    const any map = Map{{"பெயர்", any(text("மலர்"))}, {"", any(0LL)}};
    EXPECT_EQ(as_text(fn_எடு(map, any(text("பெயர்")), "f", 1)), "மலர்");
    EXPECT_EQ(as_text(fn_எடு(map, any(text("")), "f", 1)), "0");
}

TEST(IndexRead, GivesACopy) {
    any list = List{any(List{any(1LL)})};
    any inner = fn_எடு(list, any(0LL), "f", 1);
    fn_index_ref(inner, any(0LL)) = any(9LL);
    EXPECT_EQ(as_text(list), "[[1]]");
}

// The ways in which a generated program calls the function; both forms must be found without ambiguity.
TEST(IndexRead, EveryFormOfCallCompiles) {
    any list = List{any(1LL), any(2LL)};
    const any& constant = list;
    const long long loop_variable = 1;
    const std::string path = "f";
    EXPECT_EQ(as_text(fn_எடு(list, std::any(1LL), "f", 3)), "2");
    EXPECT_EQ(as_text(fn_எடு(constant, std::any(loop_variable), "f", 3)), "2");
    EXPECT_EQ(as_text(fn_எடு(std::any(list), std::any(std::any(1LL)), "f", 3)), "2");
    EXPECT_EQ(as_text(fn_எடு((list = std::any(list), list), std::any(1LL), "f", 3)), "2");
    EXPECT_EQ(as_text(fn_எடு(std::string(u8"xyz"), std::any(1LL), "f", 3)), "y");
    EXPECT_EQ(as_text(fn_எடு(List({std::any(5LL)}), std::any(0LL), "f", 3)), "5");
    EXPECT_EQ(as_text(fn_எடு(Map({{"k", std::any(6LL)}}), std::any(std::string(u8"k")), "f", 3)), "6");
    EXPECT_EQ(as_text(fn_எடு(fn_பிளவு("அ,ஆ", ","), std::any(1LL), "f", 3)), "ஆ");
    EXPECT_EQ(as_text(fn_எடு(list, 1LL, "f", 3)), "2");
    EXPECT_EQ(as_text(fn_எடு(list, any(1LL), path, 3)), "2");
    EXPECT_EQ(as_text(fn_எடு(std::any(list), any(1LL), std::string("f"), 3)), "2");
    EXPECT_EQ(as_text(fn_எடு(std::string(u8"xyz"), any(1LL), path, 3)), "y");
}

TEST(IndexWrite, MapsGrowOnANewKey) {
    any map = Map{{"அ", any(1LL)}};
    fn_index_ref(map, any(text("அ")), "f", 1) = any(10LL);
    fn_index_ref(map, any(text("ஆ")), "f", 1) = any(20LL);
    EXPECT_EQ(as_text(map), "{\"அ\": 10, \"ஆ\": 20}");
    EXPECT_FALSE(fn_index_ref(map, any(text("இ"))).has_value()) << "a read through this path creates the entry";
    EXPECT_EQ(std::any_cast<Map&>(map).size(), 3U);
}

TEST(IndexWrite, OtherKeysOfMapsAreTheirText) {
    any map = Map{};
    fn_index_ref(map, any(5LL)) = any(1LL);
    fn_index_ref(map, any(true)) = any(2LL);
    fn_index_ref(map, any(_PozhilChar{"க"})) = any(3LL);
    fn_index_ref(map, any(1.5L)) = any(4LL);
    EXPECT_EQ(as_text(map), "{\"1.500000\": 4, \"5\": 1, \"க\": 3, \"மெய்\": 2}");
}

TEST(IndexWrite, ListsTakeEveryNumberAsIndex) {
    any list = List{any(0LL), any(0LL), any(0LL)};
    fn_index_ref(list, any(0LL)) = any(1LL);
    fn_index_ref(list, any(1)) = any(2LL);
    fn_index_ref(list, any(2.9L)) = any(3LL);
    EXPECT_EQ(as_text(list), "[1, 2, 3]");
    EXPECT_THROW(fn_index_ref(list, any(text("0"))), std::runtime_error);
}

TEST(IndexWrite, NestedReferencesReachTheElementInPlace) {
    any table = Map{{"வரிசை", any(List{any(List{any(1LL), any(2LL)})})}};
    (fn_index_ref(fn_index_ref(fn_index_ref(table, any(text("வரிசை")), "f", 1), any(0LL), "f", 1), any(1LL), "f", 1) =
         any(7LL));
    EXPECT_EQ(as_text(table), "{\"வரிசை\": [[1, 7]]}");
}

TEST(IndexWrite, IntoATemporaryIsLost) {
    any list = List{any(1LL)};
    fn_index_ref(std::any(list), any(0LL)) = any(5LL);
    EXPECT_EQ(as_text(list), "[1]");
    EXPECT_EQ(as_text(fn_index_ref(std::any(list), any(0LL), "f", 1)), "1");
    EXPECT_EQ(as_text(fn_index_ref(List({std::any(3LL)}), any(0LL), "f", 1)), "3");
    EXPECT_FALSE(fn_index_ref(any(Map{}), any(text("அ"))).has_value());
}

TEST(Properties, ReadGivesACopy) {
    const auto object = std::make_shared<_StructBase>();
    object->properties["பெயர்"] = any(text("மலர்"));
    any name = fn_get_property(object, "பெயர்", "f", 1);
    name = any(1LL);
    EXPECT_EQ(as_text(fn_get_property(object, "பெயர்", "f", 1)), "மலர்");
}

TEST(Properties, WriteReachesTheSharedObject) {
    const auto object = std::make_shared<_StructBase>();
    const any value = std::shared_ptr<_StructBase>(object);
    EXPECT_EQ(as_text(fn_set_property(value, "வயது", any(5LL), "f", 1)), "5");
    EXPECT_EQ(as_text(fn_set_property(value, "வயது", any(6LL), "f", 1)), "6");
    EXPECT_EQ(as_text(object->properties.at("வயது")), "6");
    EXPECT_EQ(object->properties.size(), 1U);
}

TEST(Properties, NamesAndPathsMayBeTexts) {
    const std::string name = "வயது";
    const std::string path = "f";
    const auto object = std::make_shared<_StructBase>();
    any value = std::shared_ptr<_StructBase>(object);
    EXPECT_EQ(as_text(fn_set_property(value, name, any(5LL), path, 1)), "5");
    EXPECT_EQ(as_text(fn_set_property(std::shared_ptr<_StructBase>(object), "வயது", std::any(7LL), "f", 1)), "7");
    EXPECT_EQ(as_text(fn_get_property(std::any_cast<std::shared_ptr<_StructBase>>(value), name, path, 1)), "7");
    EXPECT_EQ(as_text(fn_get_property(std::any_cast<std::shared_ptr<_StructBase>>(value), "வயது", "f", 1)), "7");
}

TEST(IndexWrite, PathsMayBeTexts) {
    const std::string path = "f";
    any list = List{any(1LL)};
    const any key = any(0LL);
    fn_index_ref(list, key, path, 1) = any(2LL);
    EXPECT_EQ(as_text(list), "[2]");
    fn_index_ref(list, key) = any(3LL);
    EXPECT_EQ(as_text(list), "[3]");
    EXPECT_EQ(as_text(fn_index_ref(std::any(list), key, path, 1)), "3");
}

/// An element that counts how often any of its kind is copied.
struct CountedElement {
    static int copies;
    CountedElement() = default;
    CountedElement(const CountedElement&) { ++copies; }
    CountedElement& operator=(const CountedElement&) = delete;
};

int CountedElement::copies = 0;

// What a loop over a long list does at each turn must not touch the other elements.
TEST(LongLists, AreNotCopiedByLengthReadOrWrite) {
    List elements(1000);
    for (any& element : elements) {
        element.emplace<CountedElement>();
    }
    any list = std::move(elements);
    std::any_cast<List&>(list)[7] = any(1LL);
    CountedElement::copies = 0;
    EXPECT_EQ(fn_நீளம்(list), 1000);
    EXPECT_EQ(as_text(fn_எடு(list, std::any(7LL), "f", 1)), "1");
    fn_index_ref(list, std::any(7LL)) = any(2LL);
    fn_index_ref(list, std::any(7LL), "f", 1) = any(3LL);
    EXPECT_FALSE(fn_compare_any(list, list, "=="));
    EXPECT_EQ(CountedElement::copies, 0);
}

TEST(Length, CountsBytesAndElements) {
    EXPECT_EQ(fn_நீளம்(any(text("அ"))), 3);
    EXPECT_EQ(fn_நீளம்(any(text(""))), 0);
    EXPECT_EQ(fn_நீளம்(any(_PozhilChar{"அ"})), 1);
    EXPECT_EQ(fn_நீளம்(any(_PozhilChar{""})), 1);
    EXPECT_EQ(fn_நீளம்(any('a')), 1);
    EXPECT_EQ(fn_நீளம்(any(List{any(), any()})), 2);
    EXPECT_EQ(fn_நீளம்(any(Map{{"அ", any()}})), 1);
    EXPECT_EQ(fn_நீளம்(List({std::any(5LL)})), 1);
}

TEST(Length, OfANumberIsThatOfItsText) {
    EXPECT_EQ(fn_நீளம்(any(-123LL)), 4);
    EXPECT_EQ(fn_நீளம்(any(10)), 2);
    EXPECT_EQ(fn_நீளம்(any(2.5L)), 8) << "six decimals";
}

TEST(Length, OfAllElseIsZero) {
    EXPECT_EQ(fn_நீளம்(any()), 0);
    EXPECT_EQ(fn_நீளம்(any(true)), 0);
    EXPECT_EQ(fn_நீளம்(any(std::make_shared<_StructBase>())), 0);
}

TEST(Length, TakesAValueAsWell) {
    EXPECT_EQ(fn_நீளம்<>(any(text("அஆ"))), 6);
}

TEST(Length, IsAShortInteger) {
    const any length = std::any(fn_நீளம்(any(text("அ"))));
    EXPECT_THROW(static_cast<void>(std::any_cast<long long>(length)), std::bad_any_cast);
    EXPECT_EQ(std::any_cast<long double>(fn_add_any(length, any(1LL))), 4.0L);
}

TEST(Remove, FirstEqualElementOnly) {
    any list = List{any(2LL), any(1LL), any(2LL)};
    EXPECT_FALSE(fn_நீக்கு(list, any(2LL), "f", 1).has_value());
    EXPECT_EQ(as_text(list), "[1, 2]");
}

TEST(Remove, EqualityIsThatOfTheLanguage) {
    any list = List{any(text("1")), any(true), any(1LL), any(_PozhilChar{"அ"})};
    fn_நீக்கு(list, any(1.0L), "f", 1);
    EXPECT_EQ(as_text(list), "[1, மெய், அ]") << "the text of the digit stays";
    fn_நீக்கு(list, any(text("அ")), "f", 1);
    EXPECT_EQ(as_text(list), "[1, மெய்]");
}

TEST(Remove, FromATemporaryChangesNothing) {
    any list = List{any(1LL)};
    EXPECT_FALSE(fn_நீக்கு(std::any(list), any(1LL), "f", 1).has_value());
    EXPECT_FALSE(fn_நீக்கு(List({std::any(3LL)}), any(3LL), "f", 1).has_value());
    EXPECT_EQ(as_text(list), "[1]");
}

TEST(Rounding, UpAndDown) {
    EXPECT_EQ(fn_மேல்எண்(2.1L), 3LL);
    EXPECT_EQ(fn_மேல்எண்(-2.9L), -2LL);
    EXPECT_EQ(fn_மேல்எண்(4.0L), 4LL);
    EXPECT_EQ(fn_கீழ்எண்(2.9L), 2LL);
    EXPECT_EQ(fn_கீழ்எண்(-2.1L), -3LL);
    EXPECT_EQ(as_text(std::any(fn_கீழ்எண்(9007199254740993.5L))), "9007199254740993") << "in full precision";
}

} // namespace
