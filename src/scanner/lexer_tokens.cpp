#include "base/script_checks.h"
#include "base/utf8.h"
#include "scanner/keywords.h"
#include "scanner/lexer.h"
#include "scanner/spelling.h"

#include <utility>

namespace pozhil {
namespace {

constexpr std::string_view DELIMITERS = "(){}();=,:?.[]*{}";
constexpr std::string_view REALTIME_PREFIX = "நிகழ்நேர";
constexpr std::string_view NOT_WORD = "இல்லை";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isDelimiter(char c) {
    return DELIMITERS.find(c) != std::string_view::npos;
}

/// Whether \p c, the byte after a number or a run of word characters, ends it; 0 is the end of the text.
bool endsRun(char c) {
    return c == 0 || isSpace(c) || isDelimiter(c);
}

bool isAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

bool isAsciiWordCharacter(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool continuesWord(char c) {
    return !endsRun(c) && (!isAscii(c) || isAsciiWordCharacter(c));
}

/// The kind of a one-character token, KEYWORD for a character that is none.
TokenType symbolType(char c) {
    switch (c) {
    case '(': return TokenType::LPAREN;
    case ')': return TokenType::RPAREN;
    case ':': return TokenType::COLON;
    case '?': return TokenType::QUESTION;
    case ',': return TokenType::COMMA;
    case '.': return TokenType::DOT;
    case '[': return TokenType::LBRACKET;
    case ']': return TokenType::RBRACKET;
    case '{': return TokenType::LBRACE;
    case '}': return TokenType::RBRACE;
    case '*': return TokenType::STAR;
    case ';': return TokenType::NEWLINE;
    case '=': return TokenType::ASSIGN;
    default: return TokenType::KEYWORD;
    }
}

} // namespace

Token Lexer::getNextToken() {
    skipComments();
    tokenStart_ = position_;
    const char next = peek();
    if (next == '\n') {
        return scanNewline();
    }
    if (next == '"') {
        return scanString();
    }
    if (next == '\'') {
        return scanChar();
    }
    if (isDigit(next)) {
        return scanNumber();
    }
    if (script::isTamilDigit(character())) {
        return scanTamilNumber();
    }
    const TokenType symbol = symbolType(next);
    return symbol == TokenType::KEYWORD ? scanWord() : scanSymbol(symbol);
}

Token Lexer::makeToken(TokenType type, std::string value) const {
    return {type, std::move(value), line_};
}

Token Lexer::scanNewline() {
    Token token = makeToken(TokenType::NEWLINE, "\\n");
    ++line_;
    advance();
    return token;
}

/// There are no escapes: a backslash is an ordinary character and a quote always closes. Line ends may stand inside
/// and do not count as lines.
Token Lexer::scanString() {
    advance();
    const std::size_t start = position_;
    while (peek() != 0 && peek() != '"') {
        advance();
    }
    if (peek() == 0) {
        பிழை("பொழி-102");
    }
    Token token = makeToken(TokenType::STRING, std::string(textSince(start)));
    advance();
    return token;
}

/// Any number of characters may stand between the quotes: a Tamil letter is often several.
Token Lexer::scanChar() {
    advance();
    if (peek() == '\'') {
        பிழை("பொழி-105");
    }
    const std::size_t start = position_;
    while (peek() != 0 && peek() != '\'' && peek() != '\n') {
        advance();
    }
    if (peek() != '\'') {
        பிழை("பொழி-103");
    }
    Token token = makeToken(TokenType::CHAR, std::string(textSince(start)));
    advance();
    return token;
}

Token Lexer::scanNumber() {
    const std::size_t start = position_;
    bool hasPoint = false;
    while (isDigit(peek()) || peek() == '.') {
        if (peek() == '.') {
            if (hasPoint) {
                பிழை("பொழி-104");
            }
            hasPoint = true;
        }
        advance();
    }
    if (peek() == '%') {
        advance();
        return makeToken(TokenType::PERCENT, std::string(textSince(start)));
    }
    if (!endsRun(peek())) {
        பிழை(script::isTamilDigit(character()) ? "பொழி-109" : "பொழி-108");
    }
    return makeToken(TokenType::NUMBER, std::string(textSince(start)));
}

Token Lexer::scanTamilNumber() {
    const std::size_t start = position_;
    while (script::isTamilDigit(character())) {
        advance();
    }
    if (peek() == '%') {
        advance();
        return makeToken(TokenType::PERCENT, std::string(textSince(start)));
    }
    if (isDigit(peek())) {
        பிழை("பொழி-109");
    }
    if (!endsRun(peek())) {
        பிழை("பொழி-108");
    }
    return makeToken(TokenType::NUMBER, std::string(textSince(start)));
}

Token Lexer::scanSymbol(TokenType type) {
    const char symbol = advance();
    if (symbol == '=' && peek() == '>') {
        advance();
        return makeToken(TokenType::OPERATOR, "=>");
    }
    return makeToken(type, std::string(1, symbol));
}

Token Lexer::scanWord() {
    const std::size_t start = position_;
    walkWord();
    if (textSince(start) == REALTIME_PREFIX && peek() == '.') {
        // The database words are the only ones that hold a dot.
        advance();
        while (!endsRun(peek())) {
            advance();
        }
    }
    const std::string_view word = textSince(start);
    if (word.empty()) {
        if (peek() == 0) {
            return makeToken(TokenType::END_OF_FILE, "");
        }
        advance();
        பிழை("பொழி-101");
    }
    const WordFacts& facts = factsOf(word);
    return makeToken(facts.type, std::string(word));
}

void Lexer::walkWord() {
    const std::size_t start = position_;
    while (!endsRun(peek())) {
        checkWordCharacter(textSince(start));
        if (!continuesWord(peek())) {
            break;
        }
        advance();
    }
}

/// The script rules for the character at the cursor, \p wordSoFar being the word up to it.
void Lexer::checkWordCharacter(std::string_view wordSoFar) const {
    const std::string_view next = character();
    if (next.size() != 3) {
        return;
    }
    if (script::isInvisibleMark(next)) {
        பிழை("பொழி-117");
    }
    if (wordSoFar.empty() && script::isVowelSign(next)) {
        பிழை("பொழி-106");
    }
    if (script::isGranthaLetter(next)) {
        பிழை("பொழி-115");
    }
    if (script::isLongVowelSign(next) && script::endsInVowelLetter(wordSoFar)) {
        பிழை("பொழி-114");
    }
}

/// Looks \p word up, or remembers it, and refuses keywords that are written in two pieces or with a wrong letter.
const Lexer::WordFacts& Lexer::factsOf(std::string_view word) {
    auto known = words_.find(word);
    const bool isNew = known == words_.end();
    if (isNew) {
        const TokenType type = lookupKeyword(word);
        const bool isName = type == TokenType::IDENTIFIER;
        known = words_.emplace(word, WordFacts{type, (isName || word == NOT_WORD) && beginsLongerKeyword(word)}).first;
    }
    if (known->second.mayBeSplitKeyword && isSplitKeyword(word)) {
        பிழை("பொழி-112");
    }
    if (isNew && known->second.type == TokenType::IDENTIFIER && looksLikeMisspeltKeyword(word)) {
        const std::string meant(keywordMeantBy(word));
        பிழை("பொழி-113", meant.empty() ? Mend() : Mend{std::string(word), meant});
    }
    return known->second;
}

/// The word after the cursor on the same line, empty if none; no longer than it takes to tell that it can't complete
/// a keyword.
std::string_view Lexer::followingWord() const {
    std::string_view text = rest();
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    std::size_t length = 0;
    while (length < text.size() && length <= longestKeyword() && continuesWord(text[length])) {
        length += getUTF8SequenceLength(text[length]);
    }
    return text.substr(0, length);
}

bool Lexer::isSplitKeyword(std::string_view word) const {
    const std::string_view second = followingWord();
    if (second.empty()) {
        return false;
    }
    const std::string joined = std::string(word) + std::string(second);
    return lookupKeyword(joined) != TokenType::IDENTIFIER;
}

} // namespace pozhil
