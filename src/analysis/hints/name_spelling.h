#pragma once

#include <string>
#include <string_view>

/// Letters of a name that look like something else.
namespace pozhil {

/// Whether a curly quote stands in \p name, “ ” „ ‘ ’ or ‚.
bool holdsCurlyQuote(std::string_view name);

/// Whether a blank other than the usual one stands in \p name.
bool holdsOddBlank(std::string_view name);

/// Whether a vowel sign of \p name is written as two that look like it: ெ ா for ொ.
bool isDecomposed(std::string_view name);

/// \p name with each vowel sign that is written as two (ெ ா) as the one that looks like them (ொ).
std::string composed(std::string_view name);

} // namespace pozhil
