#pragma once

#include "base/source_text.h"
#include "scanner/scanned_source.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace pozhil {

using TokenKinds = std::initializer_list<TokenType>;

/// Walks the tokens of one file, keeps count of the indentation, and raises the faults of the grammar.
class TokenCursor {
public:
    class FreeLayout;

    /// \param scanned the file's tokens, ending in END_OF_FILE; outlives the cursor
    /// \param shownSource the source whose path and lines faults show
    TokenCursor(const ScannedSource& scanned, SourcePtr shownSource);

    TokenCursor(const TokenCursor&) = delete;
    TokenCursor& operator=(const TokenCursor&) = delete;

    /// The token at the cursor.
    const Token& peek() const;
    /// The token so many places after the cursor, the last one if there are fewer.
    const Token& peekAhead(std::size_t offset) const;
    /// The token before the cursor.
    const Token& previous() const;
    /// Index of the token at the cursor.
    std::size_t position() const { return current_; }
    bool isAtEnd() const;

    /// Whether the token at the cursor is of this type. No type is at the end of the file.
    bool check(TokenType type) const;
    bool checkOneOf(TokenKinds kinds) const;
    bool checkKeyword(std::string_view text) const;
    /// Whether a plain name or keyword of this text stands here.
    bool checkName(std::string_view text) const;
    /// Whether a token of this type stands here, or the word where it arrives as a plain name.
    bool checkWord(TokenType type, std::string_view text) const;
    bool checkLayout() const;
    bool checkClosingBracket() const;
    /// Whether a key of one of these types stands here with its colon.
    bool isKeyAhead(TokenKinds kinds) const;
    /// Whether a section of an application begins here: inside a widget that means that its bracket was left open.
    bool isSectionWord() const;
    /// Index of the first closing parenthesis, line end or end of the tokens from the cursor on; nesting isn't counted.
    std::size_t bracketEnd();
    /// Whether a token of this type stands on the rest of the current line, after a token with this text if one is
    /// given.
    /// \param searchEnd end of the last search that found none, since many statements of one line ask for the same
    bool restOfLineHolds(TokenType type, std::string_view afterText, std::size_t& searchEnd) const;

    /// Takes the token at the cursor.
    /// \return that token; at the end of the file nothing is taken, and it is the one before
    const Token& advance();
    /// Takes the token if it is of this type.
    bool accept(TokenType type);
    /// Takes a token of this type, or raises \p code at \p line, at the token's own line if that is -1.
    Token consume(TokenType type, const char* code, std::int32_t line = -1);
    /// Takes a token that can name a variable, or raises like consume.
    Token consumeName(const char* code, std::int32_t line = -1);

    void skipNewlines();
    /// Inside brackets that may span lines: line ends and indentation mean nothing.
    void skipLayout();
    /// Indents that are open at the cursor, those that a FreeLayout closed beyond its beginning not counted.
    int indentation() const { return openIndents_ + uncounted_; }
    /// Goes to the next item of a bracketed list; false at its closing bracket and at the end of the file.
    /// \param level of the line that opened the list
    bool atListItem(int level);
    /// The same for a list whose commas may stand or be left out.
    bool nextListItem(int level);

    /// The text from token \p first up to the cursor, without layout at its end; nothing if tokens have no places.
    ByteRange rangeFrom(std::size_t first) const;
    /// The last token of a line up to the cursor, where a fault of that line is best shown.
    ByteRange rangeOnLine(std::int32_t line) const;
    /// How many brackets more are opened than closed from token \p first up to the cursor.
    int openBrackets(std::size_t first) const;

    /// Raises a fault of the grammar.
    [[noreturn]] void பிழை(const std::string& code, std::int32_t line) const;

private:
    void handleIndentation(int level);
    std::string getLineText(std::int32_t line) const;

    const std::vector<Token>& tokens_;
    const std::vector<ByteRange>& places_;
    SourcePtr shownSource_;
    std::size_t current_ = 0;
    int openIndents_ = 0;
    /// How many closed indents aren't counted.
    int uncounted_ = 0;
    /// Where the search for a closing bracket that began at bracketSearchStart_ ended.
    std::size_t bracketSearchStart_ = 1;
    std::size_t bracketSearchEnd_ = 0;
};

/// A part that may be laid out as one likes: where it ends further left than \p level, that doesn't count for the lists
/// around it.
class TokenCursor::FreeLayout {
public:
    FreeLayout(TokenCursor& cursor, int level) : cursor_(cursor), level_(level), before_(cursor.uncounted_) {}
    explicit FreeLayout(TokenCursor& cursor) : FreeLayout(cursor, cursor.indentation()) {}
    ~FreeLayout() { cursor_.uncounted_ = std::max(before_, level_ - cursor_.openIndents_); }
    FreeLayout(const FreeLayout&) = delete;
    FreeLayout& operator=(const FreeLayout&) = delete;

private:
    TokenCursor& cursor_;
    const int level_;
    const int before_;
};

} // namespace pozhil
