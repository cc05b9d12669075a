#pragma once

#include "analysis/second/analysis.h"

#include <string>
#include <vector>

namespace pozhil::test {

/// The meaning of a source of the second edition that is parsed without faults.
struct MeaningOf {
    explicit MeaningOf(const std::string& text);

    SecondMeaning meaning;
};

/// A program of the second edition, its names resolved, in written form: a line for each structure, function and file.
///
///     f(அ, &ஆ): (return (add அ ::இ))
///     main: (set ::இ 1)
///
/// `::` stands before variables of a file, `^` before those that functions share, `&` before what is taken as a place,
/// `?` after reads that are checked. Functions of values have the shared variables that they take in [].
std::string resolvedText(const std::string& text);

/// The kinds of all variables and results that have a certain one: "அ Whole, f() Text", in the order of the text.
std::string certainKinds(const std::string& text);

/// The faults that the analysis finds, each as its number, line, and the text that is underlined, with the suggestion after
/// an arrow if there is one: "551 1 'அ'".
std::vector<std::string> meaningFaults(const std::string& text);

/// The same for a source that the parser finds fault with; nothing if it couldn't read all of it.
std::vector<std::string> partialMeaningFaults(const std::string& text);

} // namespace pozhil::test
