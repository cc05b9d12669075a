#include "base/text.h"
#include "language/operators.h"
#include "scanner/second/fault_numbers.h"
#include "scanner/second/scan.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace pozhil::second {
namespace {

/// A sign of other languages, and the word to use. Those of operators stand in the table of operators.
struct ForeignSign {
    std::string_view sign;
    /// What to write in its place.
    std::string_view own;
    /// The kind of the token in its place; NEWLINE for the beginning of a comment.
    TokenType kind;
    /// The value of that token; empty if it is what to write.
    std::string_view token = {};
    /// What to do about it if that takes more than writing something else in its place.
    const char* remedy = "";
};

constexpr const char* POWER_REMEDY = "அடுக்கு ஒரு செயல்: 'அ ** ஆ' என்பதை 'அடுக்கு(அ, ஆ)' என்று எழுது மச்சி!";
constexpr const char* SLASHES_REMEDY =
    "குறிப்புன்னா 'ஃ' போட்டு ஒரு இடைவெளி விடு; முழு எண்ணாக வகுக்கணும்னா 'கீழ்எண்(அ வகு ஆ)' என்று எழுது மச்சி!";
constexpr const char* BRACES_REMEDY =
    "'{'-க்குப் பதில் ':' எழுதி, பிளாக்கின் வரிகளை நான்கு இடைவெளி உள்ள தள்ளு; இறுதியில '}' வேண்டாம் மச்சி!";
constexpr const char* STAR_REMEDY = "பல மதிப்புகளை ஒன்றா வாங்கவோ பிரிக்கவோ '*' உதவாது; ஒரு பட்டியலைக் கொடு மச்சி!";
constexpr const char* ARROW_REMEDY =
    "வினைக்கு '(அ) => அ கூட்டு 1' மாதிரி '=>' எழுது; செயல் தரும் மதிப்பின் வகையை எழுத வேண்டாம் மச்சி!";

// Longer signs come before those that they begin with.
constexpr ForeignSign FOREIGN_SIGNS[] = {
    {"===", "சமம்", TokenType::OPERATOR},
    {"!==", "சமமில்லை", TokenType::OPERATOR},
    {"++", "கூட்டிசேர் 1", TokenType::COMPOUND_ASSIGN, "ஒன்றுசேர்"},
    {"--", "கழிசேர் 1", TokenType::COMPOUND_ASSIGN, "ஒன்றுகழி"},
    {"**", "அடுக்கு", TokenType::OPERATOR, "பெருக்கு", POWER_REMEDY},
    {"//", "ஃ", TokenType::NEWLINE, {}, SLASHES_REMEDY},
    {"/*", "ஃஃ", TokenType::NEWLINE},
    {"->", "=>", TokenType::ARROW, {}, ARROW_REMEDY},
    {"#", "ஃ", TokenType::NEWLINE},
    {"≤", "சிறிதுசமம்", TokenType::OPERATOR},
    {"≥", "பெரிதுசமம்", TokenType::OPERATOR},
    {"≠", "சமமில்லை", TokenType::OPERATOR},
    {"×", "பெருக்கு", TokenType::OPERATOR},
    {"÷", "வகு", TokenType::OPERATOR},
    {"−", "கழி", TokenType::OPERATOR},
    {"–", "கழி", TokenType::OPERATOR},
    {"—", "கழி", TokenType::OPERATOR},
};

/// What to do about a character that means nothing, where a habit of other languages tells what was meant.
struct ForeignCharacter {
    char character;
    const char* remedy;
};

constexpr ForeignCharacter FOREIGN_CHARACTERS[] = {
    {'\\', "அடுத்த வரியிலும் தொடரணும்னா '\\' வேண்டாம்; முழுசையும் அடைப்புக்குறிக்குள்ள ( ) போடு மச்சி!"},
    {'`', "உரையை இரட்டை மேற்கோள் குறிகளுக்குள்ள (\") எழுது; மதிப்பைச் சேர்க்க 'இணை' எழுது மச்சி!"},
    {'@', "செயலுக்கு மேல '@' வரியை எழுத முடியாது; அந்த வரியை நீக்கு மச்சி!"},
};

/// What to do about such a character; empty if that is what the catalogue says.
std::string remedyFor(Character character) {
    const auto* const row =
        std::find_if(std::begin(FOREIGN_CHARACTERS), std::end(FOREIGN_CHARACTERS),
                     [&](const ForeignCharacter& one) { return one.character == character.codePoint; });
    return row == std::end(FOREIGN_CHARACTERS) ? "" : row->remedy;
}

/// The operator with the longest symbol that \p text begins with, null if there is none.
/// \param isUnary whether it stands before its only operand
const language::Operator* foreignOperator(std::string_view text, bool isUnary) {
    const language::Operator* found = nullptr;
    for (const language::Operator& row : language::operators()) {
        const bool fits = !row.symbol.empty() && startsWith(text, row.symbol);
        const bool isLonger = found == nullptr || row.symbol.size() > found->symbol.size();
        const bool isBetter = found != nullptr && row.symbol == found->symbol && isUnary;
        if (fits && (isLonger || isBetter)) {
            found = &row;
        }
    }
    return found;
}

std::string shown(Character character, std::string_view written) {
    constexpr std::int32_t FIRST_VISIBLE = 0x20;
    constexpr std::int32_t DELETE = 0x7F;
    if (character.codePoint >= FIRST_VISIBLE && character.codePoint != DELETE) {
        return std::string(written);
    }
    char code[sizeof("U+00000000")];
    std::snprintf(code, sizeof(code), "U+%04X", static_cast<unsigned>(character.codePoint));
    return code;
}

/// \param remedy what to do if that takes more
Mend mendOf(std::string_view sign, std::string_view own, std::string_view remedy) {
    return remedy.empty() ? Mend{std::string(sign), std::string(own)} : Mend();
}

} // namespace

void Scan::scanSign() {
    if (!scanPunctuation() && !scanForeignSign() && !scanForeignOperator()) {
        scanUnknown();
    }
}

bool Scan::scanPunctuation() {
    const std::size_t begin = position_;
    const char c = peek();
    if (isForeignBlock()) {
        return scanForeignBlock();
    }
    switch (c) {
    case '(':
    case '[':
    case '{': layout_.openBracket(c, position_++); return true;
    case ')':
    case ']':
    case '}': layout_.closeBracket(c, position_++); return true;
    case ';': layout_.endStatement(position_++); return true;
    case ':':
        ++position_;
        push(TokenType::COLON, ":", begin);
        layout_.noteColon();
        return true;
    case ',':
        ++position_;
        push(TokenType::COMMA, ",", begin);
        return true;
    case '?':
        ++position_;
        push(TokenType::QUESTION, "?", begin);
        return true;
    case '.':
        ++position_;
        push(TokenType::DOT, ".", begin);
        return true;
    default: break;
    }
    if (startsWith(rest(), "=>")) {
        position_ += 2;
        push(TokenType::ARROW, "=>", begin);
        return true;
    }
    if (c == '=' && !startsWith(rest(), "==")) {
        ++position_;
        push(TokenType::ASSIGN, "=", begin);
        return true;
    }
    return false;
}

/// Whether a brace is here that holds a block in other languages: one after a value, at the end of its line, or alone
/// on a line, and the end of such a block.
bool Scan::isForeignBlock() const {
    if (layout_.joinsLines() || (peek() == '{' && layout_.isAfterDatabaseCall())) {
        return false;
    }
    if (peek() == '}') {
        return foreignBlocks_ > 0;
    }
    const std::size_t next = text_.find_first_not_of(" \t\r", position_ + 1);
    return peek() == '{' && (endsOperand() || tokens_.isAtLineStart()) &&
           (next == std::string_view::npos || text_[next] == '\n');
}

/// The colon that belongs there keeps the statement's shape; the end of the block needs no more words.
bool Scan::scanForeignBlock() {
    const std::size_t begin = position_;
    const bool opens = text_[position_++] == '{';
    foreignBlocks_ += opens ? 1 : -1;
    if (opens) {
        fault(fault::NO_SIGN, begin, {"':'", "'{'"}, BRACES_REMEDY);
    }
    if (opens && !tokens_.isAtLineStart()) {
        push(TokenType::COLON, ":", begin);
    }
    return true;
}

/// A sign of other languages. The token of the word in its place keeps the statement's shape.
bool Scan::scanForeignSign() {
    for (const ForeignSign& foreign : FOREIGN_SIGNS) {
        if (!startsWith(rest(), foreign.sign)) {
            continue;
        }
        const std::size_t begin = position_;
        position_ += foreign.sign.size();
        fault(fault::SIGN_FOR_WORD, begin, {std::string(foreign.sign), std::string(foreign.own)}, foreign.remedy,
              mendOf(foreign.sign, foreign.own, foreign.remedy));
        if (foreign.kind == TokenType::NEWLINE) {
            skipToLineEnd();
        } else {
            push(foreign.kind, std::string(foreign.token.empty() ? foreign.own : foreign.token), begin);
        }
        return true;
    }
    return false;
}

bool Scan::scanForeignOperator() {
    const language::Operator* found = foreignOperator(rest(), !endsOperand());
    if (found == nullptr) {
        return false;
    }
    const std::size_t begin = position_;
    position_ += found->symbol.size();
    const bool isStar = found->symbol == "*" && !endsOperand();
    fault(fault::SIGN_FOR_WORD, begin, {std::string(found->symbol), std::string(found->word)},
          isStar ? STAR_REMEDY : "", mendOf(found->symbol, found->word, isStar ? STAR_REMEDY : ""));
    push(found->token, std::string(found->word), begin);
    return true;
}

/// Whether the token before can be the end of a value.
bool Scan::endsOperand() const {
    if (tokens_.tokens().empty()) {
        return false;
    }
    switch (tokens_.tokens().back().type) {
    case TokenType::IDENTIFIER:
    case TokenType::NUMBER:
    case TokenType::STRING:
    case TokenType::BOOLEAN:
    case TokenType::RPAREN:
    case TokenType::RBRACKET:
    case TokenType::RBRACE: return true;
    default: return false;
    }
}

/// Characters that mean nothing leave no token; several in a row are told together.
void Scan::scanUnknown() {
    const std::size_t begin = position_;
    const Character first = character();
    while (!isAtEnd() && characterAt(text_, position_).codePoint == first.codePoint) {
        position_ += first.size;
    }
    fault(fault::UNKNOWN_CHARACTER, begin, {shown(first, text_.substr(begin, first.size))}, remedyFor(first));
}

} // namespace pozhil::second
