#pragma once

#include "scanner/token.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pozhil {

/// Turns the text of one source file into tokens. Indentation becomes INDENT and DEDENT, line ends become NEWLINE.
///
/// The first fault in the text ends the scan; nothing is repaired.
class Lexer {
public:
    /// \param source the whole text, without carriage returns
    /// \param fileName the path that diagnostics show
    Lexer(std::string source, std::string fileName);

    Lexer(const Lexer&) = delete;
    Lexer& operator=(const Lexer&) = delete;

    /// Scans the whole text. The last token is END_OF_FILE; so is the one before the closing DEDENTs if blanks end
    /// the text.
    /// \throws Fault
    /// \throws std::out_of_range if a line's tabs measure wider than the text that is left
    std::vector<Token> tokenize();

private:
    /// What is known of a distinct word of the source.
    struct WordFacts {
        TokenType type;
        bool mayBeSplitKeyword;
    };

    // The cursor.
    char peek() const;
    char advance();
    std::string_view rest() const;
    std::string_view character() const;
    std::string_view textSince(std::size_t start) const;
    void skipWhitespace();
    void skipToLineEnd();
    [[noreturn]] void பிழை(const std::string& code) const;

    // Line starts (lexer.cpp).
    bool startLine();
    std::size_t getCurrentIndent() const;
    void checkBlanksAreUniform() const;
    void changeIndent(std::size_t width);
    void closeIndents();

    // Tokens (lexer_tokens.cpp).
    Token getNextToken();
    void skipComments();
    void skipBlockComment();
    Token makeToken(TokenType type, std::string value) const;
    Token scanNewline();
    Token scanString();
    Token scanChar();
    Token scanNumber();
    Token scanTamilNumber();
    Token scanSymbol(TokenType type);
    Token scanWord();
    void walkWord();
    void checkWordCharacter(std::string_view wordSoFar) const;
    const WordFacts& factsOf(std::string_view word);
    std::string_view followingWord() const;
    bool isSplitKeyword(std::string_view word) const;

    std::string source_;
    std::string fileName_;
    std::size_t position_ = 0;
    std::int32_t line_ = 1;
    std::size_t lineStart_ = 0;
    std::vector<std::size_t> indents_{0};
    bool atLineStart_ = true;
    std::vector<Token> tokens_;
    std::unordered_map<std::string_view, WordFacts> words_;
};

} // namespace pozhil
