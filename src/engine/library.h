#pragma once

#include "engine/list.h"
#include "engine/value.h"

#include <initializer_list>
#include <new>

/// The functions that come with the language, one for each row of src/language/second/builtins.cpp, by its name there.

namespace pozhil::engine {

// Values.
Value kindName(const Value& value, Place place);
Value number(const Value& value, Place place);
/// Letters of a text, elements of a list or map, letters of the text form of a number; 0 of anything else.
Whole length(const Value& value, Place place);

// Lists and maps.
Value appendValue(Value& list, const Value& value, Place place);
inline Value append(Value& list, const Value& value, Place place) {
    // With room for one more that nobody else sees. A list that is appended to itself is copied first.
    if (list.is(Tag::List) && listBlock(list).references == 1 && listBlock(list).size < listBlock(list).capacity &&
        &value != &list) {
        new (listBlock(list).elements + listBlock(list).size++) Value(value);
        return Value();
    }
    return appendValue(list, value, place);
}
Value removeFrom(Value& container, const Value& value, Place place);
Value put(Value& container, const Value& index, const Value& value, Place place);
bool contains(const Value& container, const Value& value, Place place);
Value range(const Value& end, Place place);
Value range(const Value& begin, const Value& end, Place place);
Value range(const Value& begin, const Value& end, const Value& step, Place place);
/// A step of 0 is a fault.
Whole checkedStep(const Value& step, Place place);

// Texts.
Value split(const Value& text, const Value& separator, Place place);
Value replace(const Value& text, const Value& from, const Value& to, Place place);
Value upperCase(const Value& text, Place place);
Value lowerCase(const Value& text, Place place);
Value trim(const Value& text, Place place);
bool startsWith(const Value& text, const Value& part, Place place);
bool endsWith(const Value& text, const Value& part, Place place);

// Tests. What fails one passes every பிடி.
Value ensure(const Value& condition, const Value& message, Place place);
Value ensureEqual(const Value& got, const Value& wanted, Place place);
/// Whether the program was started for the test of this name: CHOSEN_TEST of report/test_run.h holds it.
bool isChosenTest(const Value& name, Place place);
/// After all tests have been asked for: fails if the program was started for one that it doesn't have.
Value requireChosenTest(Place place);

// Mathematics.
Decimal squareRoot(const Value& value, Place place);
Decimal power(const Value& base, const Value& exponent, Place place);
Value absolute(const Value& value, Place place);
Whole absolute(Whole value, Place place);
Decimal absolute(Decimal value, Place place);
Whole roundUp(const Value& value, Place place);
Whole roundDown(const Value& value, Place place);
Decimal sine(const Value& value, Place place);
Decimal cosine(const Value& value, Place place);
Decimal tangent(const Value& value, Place place);
Decimal logarithm(const Value& value, Place place);
Whole randomNumber(const Value& low, const Value& high, Place place);

// Printing, input and files.
void print(std::initializer_list<Value> values);
Value readLine(Place place);
Value readLine(const Value& question, Place place);
Value writeFile(const Value& path, const Value& value, Place place);
Value appendFile(const Value& path, const Value& value, Place place);
Value readFile(const Value& path, Place place);
bool fileExists(const Value& path, Place place);
bool removeFile(const Value& path, Place place);

// Time.
void wait(const Value& seconds, Place place);
Value now(Place place);
Value dateText(Place place);
Value dateText(const Value& time, Place place);
Value clockText(Place place);
Value clockText(const Value& time, Place place);
Value dateAndClockText(Place place);
Value dateAndClockText(const Value& time, Place place);
Decimal secondsSince1970(Place place);
Whole year(const Value& time, Place place);
Whole month(const Value& time, Place place);
Whole day(const Value& time, Place place);
Whole hour(const Value& time, Place place);
Whole minute(const Value& time, Place place);
Whole second(const Value& time, Place place);
Whole weekday(const Value& time, Place place);

} // namespace pozhil::engine
