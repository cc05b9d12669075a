#include "scanner/lexer.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace pozhil {
namespace {

/// What a faulty number or word can't reach past. A point belongs to a number that has too many of them.
constexpr std::string_view RUN_ENDS = " \t\r\n\v\f(){}[];=,:?*\"'";

/// Faults of a literal or comment that is never closed. Where it should have been is anybody's guess; most often on its
/// own line.
bool isOpenEnded(std::string_view code) {
    return code == "பொழி-102" || code == "பொழி-103" || code == "பொழி-118";
}

/// Faults that leave nothing where a token was to be expected.
bool leavesNoToken(std::string_view code) {
    return code == "பொழி-101" || code == "பொழி-118";
}

} // namespace

/// Keeps the fault and goes on after the text that it stands in. A name takes the place of what was faulty, so that the
/// rest of the statement keeps its shape.
void Lexer::resumeAfter(Fault fault) {
    const bool isLineFault = resumeLine(fault.code);
    if (!isLineFault) {
        skipFaultyText(fault.code);
        if (!leavesNoToken(fault.code)) {
            push(makeToken(TokenType::IDENTIFIER, std::string(textSince(tokenStart_))));
        }
    }
    atLineStart_ = false;
    const ByteRange range = {static_cast<std::uint32_t>(tokenStart_), static_cast<std::uint32_t>(position_)};
    scanned_.faults.push_back({std::move(fault), {source_, range}});
}

/// Goes on at the first character of a line whose indentation is faulty. A line of mixed blanks counts as indented like
/// the one before; one between two blocks as a part of the inner one.
/// \return false if the fault isn't one of indentation
bool Lexer::resumeLine(const std::string& code) {
    if (code == "பொழி-110") {
        skipWhitespace();
        return true;
    }
    if (code == "பொழி-111") {
        scanned_.tokens.pop_back();
        scanned_.places.pop_back();
        indents_.push_back(getCurrentIndent());
        tokenStart_ = lineStart_;
        return true;
    }
    return false;
}

/// Moves past the characters that belong to the fault.
void Lexer::skipFaultyText(const std::string& code) {
    if (code == "பொழி-118") {
        tokenStart_ = position_; // comments before it are in order
    }
    if (isOpenEnded(code)) {
        position_ = std::min(text_.find('\n', tokenStart_), text_.size());
        return;
    }
    const bool isWordDone = code == "பொழி-112" || code == "பொழி-113" || code == "பொழி-101";
    if (isWordDone) {
        return;
    }
    if (code == "பொழி-105" || position_ == tokenStart_) {
        advance(); // the closing quote, or the character that begins the token
    }
    if (code != "பொழி-105") {
        position_ = std::min(text_.find_first_of(RUN_ENDS, position_), text_.size());
    }
}

} // namespace pozhil
