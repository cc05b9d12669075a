#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::language_server {

/// In which units a client counts the characters of a line.
enum class Encoding { Utf8, Utf16 };

/// A place between two characters, both counted from 0.
struct Position {
    std::size_t line = 0;
    std::size_t character = 0;
};

/// What stands from one place up to another.
struct Range {
    Position begin;
    Position end;
};

/// A text as the client has it: with its carriage returns, which end lines too, and with its byte order mark.
class ClientText {
public:
    ClientText(std::string text, Encoding encoding);

    const std::string& text() const { return text_; }

    /// The byte at a place; for one outside of the text or of its line the nearest one that is inside, and never one within
    /// a character.
    std::size_t offsetAt(Position position) const;

    /// The place of a byte; the end of the text for one beyond it.
    Position positionAt(std::size_t offset) const;

    /// Puts a text in the place of what stands in a range. Its ends may come in either order.
    void replace(Range range, std::string_view text);

private:
    /// Where lines begin after the byte \p from, up to the byte \p to.
    std::vector<std::size_t> lineBegins(std::size_t from, std::size_t to) const;
    std::size_t lineOf(std::size_t offset) const;
    /// The bytes of a line without its end.
    std::string_view lineText(std::size_t line) const;

    std::string text_;
    Encoding encoding_;
    /// Where each line begins.
    std::vector<std::size_t> lines_;
};

} // namespace pozhil::language_server
