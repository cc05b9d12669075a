#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil::test {

/// The text that is emitted for a program of the second edition, "ஃ பொழில் 2" left out, in its parts: faults in its place
/// if there are any, a number each.
class WrittenProgram {
public:
    explicit WrittenProgram(const std::string& source);

    /// All of it.
    const std::string& text() const { return text_; }

    /// What the statements of the file become, without comments and indentation, a line each. Those of functions of the
    /// emitted text that follow each other stand together; @ stands for each place of the source.
    std::string statements() const;

    /// The same of the body of one function of the emitted text, its frame left out.
    std::string body(const std::string& function) const;

    /// The line of the source that line \p number of the text was written for; both count from 1.
    std::size_t sourceLine(std::size_t number) const;

    /// The number of the first line of the text that holds \p piece; 0 if none does.
    std::size_t lineWith(const std::string& piece) const;

private:
    std::string text_;
    std::vector<std::size_t> sourceLines_;
};

} // namespace pozhil::test
