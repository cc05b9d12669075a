#pragma once

#include "base/source_text.h"

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

/// Writes programs as hurried people do: blanks where they like, more blank lines, other indentation.
class LayoutMangler {
public:
    /// \param seed the same seed mangles alike
    explicit LayoutMangler(unsigned seed) : random_(seed) {}

    /// The same program in another layout, which may not be one that the language takes.
    /// \param source without faults of the scanner
    std::string mangled(const pozhil::SourcePtr& source);

private:
    std::size_t below(std::size_t bound);
    std::string blanks(std::size_t least, std::size_t most);
    std::string indentation(std::size_t width);
    std::string indentedAnew(std::string_view gap);
    void addGap(std::string_view gap, bool isFixed, std::string& text);

    std::mt19937 random_;
    /// Of one program: what each four blanks become.
    std::string step_;
};
