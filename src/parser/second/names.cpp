#include "parser/second/names.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pozhil::second {
namespace {

/// Words that begin a statement or part of one, or a value, whatever comes after them.
constexpr std::string_view RESERVED_WORDS[] = {"அச்சிடு", "காத்திரு", "ஒவ்வொன்றாக", "திரும்பு", "நூஇறக்கி",
                                               "வினை",   "எனில்",    "இல்லைஎனில்", "இல்லை"};

/// The only operator that stands both before its operand and between two.
constexpr std::string_view MINUS = "கழி";

bool isReserved(std::string_view word) {
    return std::find(std::begin(RESERVED_WORDS), std::end(RESERVED_WORDS), word) != std::end(RESERVED_WORDS);
}

} // namespace

bool isWord(const Token& token) {
    switch (token.type) {
    case TokenType::IDENTIFIER:
    case TokenType::KEYWORD:
    case TokenType::PRIVATE:
    case TokenType::BOOLEAN:
    case TokenType::OPERATOR:
    case TokenType::BIT_NOT:
    case TokenType::UNARY_PLUS:
    case TokenType::UNARY_MINUS:
    case TokenType::COMPOUND_ASSIGN: return true;
    default: return false;
    }
}

bool canBeName(const Token& token) {
    switch (token.type) {
    case TokenType::IDENTIFIER:
    case TokenType::PRIVATE: return true;
    case TokenType::KEYWORD: return !isReserved(token.value);
    case TokenType::OPERATOR: return token.value != MINUS;
    default: return false;
    }
}

bool canBeginValue(const Token& token) {
    switch (token.type) {
    case TokenType::IDENTIFIER:
    case TokenType::PRIVATE:
    case TokenType::BOOLEAN:
    case TokenType::NUMBER:
    case TokenType::STRING:
    case TokenType::LPAREN:
    case TokenType::LBRACKET:
    case TokenType::LBRACE:
    case TokenType::BIT_NOT:
    case TokenType::UNARY_PLUS:
    case TokenType::UNARY_MINUS: return true;
    case TokenType::KEYWORD: return token.value != "எனில்" && token.value != "இல்லைஎனில்";
    default: return token.type == TokenType::OPERATOR && token.value == MINUS;
    }
}

} // namespace pozhil::second
