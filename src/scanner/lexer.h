#pragma once

#include "scanner/scanned_source.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace pozhil {

/// Turns the text of one source file into tokens. Indentation becomes INDENT and DEDENT, line ends become NEWLINE.
///
/// The first fault in the text ends the scan, unless somebody asks for more of them.
class Lexer {
public:
    explicit Lexer(SourcePtr source);

    /// \param source the whole text, without carriage returns
    /// \param fileName the path that diagnostics show
    Lexer(std::string source, std::string fileName);

    Lexer(const Lexer&) = delete;
    Lexer& operator=(const Lexer&) = delete;

    /// Scans the whole text. The last token is END_OF_FILE; so is the one before the closing DEDENTs if blanks end
    /// the text.
    /// \param maxFaults how many faults to keep and to go on after, the last one ending the scan; 0 to throw the first
    /// \throws Fault
    /// \throws std::out_of_range if a line's tabs measure wider than the text that is left
    ScannedSource scan(std::size_t maxFaults = 0);

    /// The tokens alone.
    /// \throws Fault
    /// \throws std::out_of_range like scan
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
    [[noreturn]] void பிழை(const std::string& code, Mend mend = {}) const;

    // What the scan is made of, and what it goes on with after a fault (lexer.cpp, lexer_recovery.cpp).
    void scanStep();
    void push(Token token);
    void resumeAfter(Fault fault);
    bool resumeLine(const std::string& code);
    void skipFaultyText(const std::string& code);

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

    SourcePtr source_;
    /// The text of the source.
    std::string_view text_;
    std::size_t position_ = 0;
    /// Where the token under construction begins.
    std::size_t tokenStart_ = 0;
    std::int32_t line_ = 1;
    std::size_t lineStart_ = 0;
    std::vector<std::size_t> indents_{0};
    bool atLineStart_ = true;
    ScannedSource scanned_;
    std::unordered_map<std::string_view, WordFacts> words_;
};

} // namespace pozhil
