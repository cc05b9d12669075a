#pragma once

#include "front_end/second_edition.h"

#include <string>
#include <vector>

namespace pozhil::test {

/// The tokens of a source of the second edition in their written form, as told at tokens; its faults, as told at
/// secondFaults, on lines before them.
std::string secondTokens(const std::string& text);

/// The tree of a source of the second edition in its written form, as told at treeText; the faults if there are any.
std::string secondTree(const std::string& text);

/// The tree of what could be parsed, whatever the faults are.
std::string partialTree(const std::string& text);

/// The faults of a source of the second edition, each as its number, line, and the text that is underlined, with the
/// suggestion after an arrow if there is one: "535 1 '='", "530 2 'அ' → …".
std::vector<std::string> secondFaults(const std::string& text);

/// The same for faults that are at hand.
std::vector<std::string> faultTexts(const SecondFaults& faults);

} // namespace pozhil::test
