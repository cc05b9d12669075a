#pragma once

#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace pozhil {

/// A piece of the emitted text with holes: `$name` or `${name}`, where a name is a letter and then letters, digits and
/// underscores. "$" before anything but a letter or "{" is an ordinary character.
///
/// A block that is a constant is checked when the compiler is built, any other when it is made.
class Block {
public:
    /// \param text outlives the block
    /// \throws std::logic_error for a "${" that doesn't begin a hole
    constexpr Block(std::string_view text) : text_(text) {
        for (Found hole = find(text_, 0); hole.begin != NOWHERE; hole = find(text_, hole.end)) {
            if (!hole.isWhole) {
                throw std::logic_error("a hole of an emitted block is malformed");
            }
        }
    }
    constexpr Block(const char* text) : Block(std::string_view(text)) {}

    constexpr std::string_view text() const { return text_; }

    /// Whether there is a hole of this name.
    constexpr bool has(std::string_view name) const {
        for (Found hole = find(text_, 0); hole.begin != NOWHERE; hole = find(text_, hole.end)) {
            if (hole.name == name) {
                return true;
            }
        }
        return false;
    }

    static constexpr std::size_t NOWHERE = std::string_view::npos;

    /// A hole in a text: where it stands, with its dollar sign and braces, and its name.
    struct Found {
        std::size_t begin;
        std::size_t end;
        std::string_view name;
        bool isWhole;
    };

    /// The first hole of \p text at or after \p from; begins NOWHERE if there is none.
    static constexpr Found find(std::string_view text, std::size_t from) {
        for (std::size_t dollar = text.find('$', from); dollar != NOWHERE; dollar = text.find('$', dollar + 1)) {
            const std::size_t next = dollar + 1;
            const bool isBraced = next < text.size() && text[next] == '{';
            const std::size_t start = isBraced ? next + 1 : next;
            const std::size_t stop = endOfName(text, start);
            if (isBraced) {
                const bool isClosed = stop > start && stop < text.size() && text[stop] == '}';
                return {dollar, isClosed ? stop + 1 : stop, text.substr(start, stop - start), isClosed};
            }
            if (stop > start) {
                return {dollar, stop, text.substr(start, stop - start), true};
            }
        }
        return {NOWHERE, NOWHERE, {}, true};
    }

private:
    static constexpr bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

    /// \p start itself if no name begins there.
    static constexpr std::size_t endOfName(std::string_view text, std::size_t start) {
        std::size_t end = start;
        while (end < text.size() &&
               (isLetter(text[end]) || (end > start && ((text[end] >= '0' && text[end] <= '9') || text[end] == '_')))) {
            ++end;
        }
        return end;
    }

    std::string_view text_;
};

/// What stands in a hole of an emitted block: a text, something that writes itself, such as a user's expression, or
/// several of these, one directly after the other.
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

/// Writes \p block line by line after \p indent blanks. A hole that is alone in its line writes whole lines of its own:
/// neither its blanks nor its line end are written. A line end at the start of the block is dropped.
///
/// \param holes what stands in the holes of this block
/// \param standing what may stand in any block; the block needn't have these holes
/// \throws std::logic_error for a hole that is among neither, and for one of \p holes that the block doesn't have
void writeBlock(std::ostream& out, const Block& block, const Holes& holes, std::size_t indent = 0,
                const Holes& standing = {});

/// Writes what stands in a hole; false if it knows no such hole.
using WriteHole = std::function<bool(std::string_view name)>;

/// Writes \p pattern as a part of a line: as it stands, without indentation, and without a line end of its own.
/// \throws std::logic_error for a hole that \p writeHole doesn't know
void writeInline(std::ostream& out, const Block& pattern, const WriteHole& writeHole);

/// \p value as a float constant of the emitted text: 78.0f, 62.4f. What no float can hold becomes the nearest one.
std::string floatConstant(float value);

} // namespace pozhil
