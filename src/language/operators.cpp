#include "language/operators.h"

#include <unordered_map>

namespace pozhil::language {
namespace {

using Kind = OperatorKind;

// clang-format off
constexpr Operator OPERATORS[] = {
    {"அல்லது",       Kind::Logical,    TokenType::OPERATOR, 0, "||", ""},
    {"மற்றும்",       Kind::Logical,    TokenType::OPERATOR, 1, "&&", ""},
    {"கூட்டுஇருமை",   Kind::Bitwise,    TokenType::OPERATOR, 2, "|",  ""},
    {"வேறுஇருமை",    Kind::Bitwise,    TokenType::OPERATOR, 3, "^",  ""},
    {"பெருக்குஇருமை", Kind::Bitwise,    TokenType::OPERATOR, 4, "&",  ""},
    {"சமம்",         Kind::Comparison, TokenType::OPERATOR, 5, "==", ""},
    {"சமமில்லை",     Kind::Comparison, TokenType::OPERATOR, 5, "!=", ""},
    {"பெரிது",        Kind::Comparison, TokenType::OPERATOR, 6, ">",  ""},
    {"சிறிது",        Kind::Comparison, TokenType::OPERATOR, 6, "<",  ""},
    {"பெரிதுசமம்",    Kind::Comparison, TokenType::OPERATOR, 6, ">=", ""},
    {"சிறிதுசமம்",    Kind::Comparison, TokenType::OPERATOR, 6, "<=", ""},
    {"இடதுஇருமை",   Kind::Bitwise,    TokenType::OPERATOR, 7, "<<", ""},
    {"வலதுஇருமை",   Kind::Bitwise,    TokenType::OPERATOR, 7, ">>", ""},
    {"கூட்டு",        Kind::Arithmetic, TokenType::OPERATOR, 8, "+",  ""},
    {"கழி",          Kind::Arithmetic, TokenType::OPERATOR, 8, "-",  ""},
    {"இணை",         Kind::Join,       TokenType::OPERATOR, 8, "",   ""},
    {"பெருக்கு",      Kind::Arithmetic, TokenType::OPERATOR, 9, "*",  ""},
    {"வகு",          Kind::Arithmetic, TokenType::OPERATOR, 9, "/",  ""},
    {"மீதி",          Kind::Arithmetic, TokenType::OPERATOR, 9, "%",  ""},

    {"இல்லை",       Kind::Unary, TokenType::KEYWORD,     NO_LEVEL, "!", ""},
    {"எதிர்இருமை",   Kind::Unary, TokenType::BIT_NOT,     NO_LEVEL, "~", ""},
    {"மிகை",        Kind::Unary, TokenType::UNARY_PLUS,  NO_LEVEL, "+", ""},
    {"குறை",        Kind::Unary, TokenType::UNARY_MINUS, NO_LEVEL, "-", ""},

    {"கூட்டிசேர்",     Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "+=",  "+"},
    {"கழிசேர்",       Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "-=",  "-"},
    {"பெருக்குசேர்",   Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "*=",  "*"},
    {"வகுசேர்",       Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "/=",  "/"},
    {"மீதிசேர்",       Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "%=",  "%"},
    {"பெஇசேர்",      Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "&=",  "&"},
    {"கூட்டுஇசேர்",    Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "|=",  "|"},
    {"வேஇசேர்",      Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "^=",  "^"},
    {"இடதுஇசேர்",    Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, "<<=", "<<"},
    {"வலதுஇசேர்",    Kind::Compound, TokenType::COMPOUND_ASSIGN, NO_LEVEL, ">>=", ">>"},
    {"ஒன்றுசேர்",     Kind::Step,     TokenType::COMPOUND_ASSIGN, NO_LEVEL, "++",  "+"},
    {"ஒன்றுகழி",     Kind::Step,     TokenType::COMPOUND_ASSIGN, NO_LEVEL, "--",  "-"},
};
// clang-format on

using OperatorMap = std::unordered_map<std::string_view, const Operator*>;

/// All operators by their words.
const OperatorMap& operatorsByWord() {
    static const OperatorMap map = [] {
        OperatorMap byWord;
        for (const Operator& row : OPERATORS) {
            byWord.emplace(row.word, &row);
        }
        return byWord;
    }();
    return map;
}

} // namespace

Rows<Operator> operators() {
    return OPERATORS;
}

const Operator* findOperator(std::string_view word) {
    const auto found = operatorsByWord().find(word);
    return found == operatorsByWord().end() ? nullptr : found->second;
}

const Operator* findOperator(std::string_view word, OperatorKind kind) {
    const Operator* found = findOperator(word);
    return found != nullptr && found->kind == kind ? found : nullptr;
}

std::string_view compoundArithmetic(std::string_view word) {
    if (const Operator* found = findOperator(word)) {
        return found->arithmetic;
    }
    for (const Operator& row : OPERATORS) {
        if (row.kind == OperatorKind::Compound && row.symbol == word) {
            return row.arithmetic;
        }
    }
    return {};
}

} // namespace pozhil::language
