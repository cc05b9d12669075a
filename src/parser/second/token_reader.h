#pragma once

#include "scanner/scanned_source.h"

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil::second {

/// Goes through the tokens of one file.
class TokenReader {
public:
    static constexpr std::size_t NONE = std::numeric_limits<std::size_t>::max();

    /// \param scanned the file's tokens with their places, ending in END_OF_FILE; outlives the reader
    explicit TokenReader(const ScannedSource& scanned);

    TokenReader(const TokenReader&) = delete;
    TokenReader& operator=(const TokenReader&) = delete;

    /// The token so many places after the next one, the last one if there are fewer.
    const Token& peek(std::size_t offset = 0) const { return at(position_ + offset); }
    /// The token before the next one, the first one at the beginning.
    const Token& previous() const { return at(position_ == 0 ? 0 : position_ - 1); }
    const Token& at(std::size_t index) const {
        return index < scanned_.tokens.size() ? scanned_.tokens[index] : scanned_.tokens.back();
    }
    /// Index of the next token.
    std::size_t position() const { return position_; }
    bool isAtEnd() const { return check(TokenType::END_OF_FILE); }

    bool check(TokenType type) const { return peek().type == type; }
    /// Whether this word of the language comes next.
    bool checkWord(std::string_view word) const { return isWordAt(0, word); }
    bool isWordAt(std::size_t offset, std::string_view word) const;
    /// Whether what is left of the line is nothing.
    bool isAtLineEnd() const;
    /// Whether the last token taken ended a line, or a block.
    bool isAfterLineEnd() const;

    /// Takes the next token; the last one is never taken.
    const Token& advance();
    bool accept(TokenType type);
    bool acceptWord(std::string_view word);

    /// How many blocks are open.
    int indentation() const { return indentation_; }
    /// Index of the bracket that closes the one at \p index; NONE if nothing does, and for all other tokens.
    std::size_t closingOf(std::size_t index) const { return closings_[index]; }
    /// How many brackets that have an end are opened, less those closed, from token \p first up to the next one.
    int openBrackets(std::size_t first) const;

    /// The text from token \p first up to the next one, without line ends and indentation at its end.
    ByteRange rangeFrom(std::size_t first) const;
    ByteRange rangeOf(std::size_t index) const { return scanned_.places[clamped(index)]; }
    /// The text of the next token; of the last one before it where the line ends.
    ByteRange visibleRange() const;
    /// Token \p index as it is written, to be told to the user.
    std::string shown(std::size_t index) const;
    const SourcePtr& source() const { return scanned_.source; }

private:
    std::size_t clamped(std::size_t index) const {
        return index < scanned_.tokens.size() ? index : scanned_.tokens.size() - 1;
    }

    const ScannedSource& scanned_;
    std::vector<std::size_t> closings_;
    std::size_t position_ = 0;
    int indentation_ = 0;
};

} // namespace pozhil::second
