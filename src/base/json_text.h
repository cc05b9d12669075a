#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace pozhil::json {

/// \p text as a JSON string. It must be UTF-8.
std::string text(std::string_view text);

std::string truth(bool value);

/// The members, whose values are JSON already, in the order given.
std::string object(std::initializer_list<std::pair<std::string_view, std::string>> members);

/// What \p describe makes of each of \p rows, one to a line.
template <class Rows, class Describe> std::string array(const Rows& rows, const Describe& describe) {
    std::string elements;
    for (const auto& row : rows) {
        elements += (elements.empty() ? "\n" : ",\n") + describe(row);
    }
    return "[" + elements + "]";
}

} // namespace pozhil::json
