#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace pozhil {

/// What stands in a hole of an emitted block: a text, something that writes itself, such as a user's expression, or
/// several of these, one directly behind the other.
class Filling {
public:
    Filling(std::string text) : content_(std::move(text)) {}
    Filling(const char* text) : content_(std::string(text)) {}
    Filling(std::function<void()> writer) : content_(std::move(writer)) {}
    explicit Filling(std::vector<Filling> parts) : content_(std::move(parts)) {}

    void writeTo(std::ostream& out) const;

private:
    std::variant<std::string, std::function<void()>, std::vector<Filling>> content_;
};

/// A hole's name, and what stands in it.
using Hole = std::pair<std::string_view, Filling>;
using Holes = std::vector<Hole>;

/// Writes \p block, a raw string that reads as the emitted text, line by line behind \p indent blanks.
///
/// `$name` and `${name}` are holes; "$" before anything but a letter or "{" is an ordinary character. A hole that is
/// alone in its line writes whole lines of its own: neither its blanks nor its line end are written. A line end at the
/// start of the block is dropped.
/// \throws std::logic_error for a hole that isn't among \p holes
void writeBlock(std::ostream& out, std::string_view block, const Holes& holes, std::size_t indent = 0);

/// \p value as a float constant of the emitted text: 78.0f, 62.4f. What no float can hold becomes the nearest one.
std::string floatConstant(float value);

} // namespace pozhil
