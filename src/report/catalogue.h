#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

namespace pozhil::report {

/// One fault of the second edition. Numbers are never reused: a gap stays a gap.
///
/// 501 to 549: what is written wrong. 551 to 599: what means nothing. 601 to 699: what goes wrong in a running
/// program; among them, 624 to 639: what is written wrong in a web application, and 693, in a file of tests.
struct Entry {
    int number;
    /// Such as "பெயர்ப் பிழை".
    const char* category;
    /// What is wrong; {1}, {2} and so on stand for what is told by the place.
    const char* message;
    /// What to do about it, with the same holes.
    const char* remedy;
};

/// The row of this number, null if there is none.
const Entry* findEntry(int number);
/// The same among those of running programs, so that programs needn't carry the others.
const Entry* findRunningEntry(int number);

/// "பொழி-501"
std::string codeOf(int number);

/// A message or remedy with its holes filled; a hole without a value becomes nothing.
std::string filled(const char* text, std::initializer_list<std::string_view> values);
std::string filled(const char* text, const std::string_view* values, std::size_t count);

} // namespace pozhil::report
