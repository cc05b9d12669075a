#include "scanner/second/layout.h"

#include "base/text.h"
#include "scanner/second/fault_numbers.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace pozhil::second {
namespace {

constexpr std::size_t TAB_WIDTH = 4;

/// Whether one of two lines is indented like the other and maybe further.
bool isAlike(std::string_view a, std::string_view b) {
    return startsWith(a, b) || startsWith(b, a);
}

char closingOf(char opening) {
    switch (opening) {
    case '(': return ')';
    case '[': return ']';
    default: return '}';
    }
}

/// What to do about a bracket that is closed by one of another kind.
std::string otherClosingRemedy(char opening, char written, char fitting) {
    return std::string("முன்னாடி '") + opening + "' திறந்திருக்கு; அதை மூட '" + written + "'-க்குப் பதில் '" + fitting +
           "' போடு மச்சி!";
}

TokenType typeOf(char bracket) {
    switch (bracket) {
    case '(': return TokenType::LPAREN;
    case ')': return TokenType::RPAREN;
    case '[': return TokenType::LBRACKET;
    case ']': return TokenType::RBRACKET;
    case '{': return TokenType::LBRACE;
    default: return TokenType::RBRACE;
    }
}

} // namespace

std::size_t Layout::widthOf(std::string_view blanks) {
    std::size_t width = 0;
    for (const char blank : blanks) {
        width += blank == '\t' ? TAB_WIDTH - width % TAB_WIDTH : 1;
    }
    return width;
}

void Layout::beginLine(const Indentation& indentation, std::size_t position, bool isClosing) {
    const std::string& blanks = indentation.blanks;
    blanks_ = blanks;
    const bool closesFrame = isClosing && frames_.size() > 1;
    if (joinsLines() || closesFrame) {
        return;
    }
    Frame& frame = frames_.back();
    if (frame.kind == Kind::Function && widthOf(blanks) <= widthOf(frame.indents.front())) {
        closeFrame(position);
        return;
    }
    if (frame.kind == Kind::Group && frame.indents.empty()) {
        frame.indents.push_back(blanks);
    }
    changeIndent(indentation, position);
}

void Layout::changeIndent(const Indentation& indentation, std::size_t position) {
    const std::string& blanks = indentation.blanks;
    std::vector<std::string>& indents = frames_.back().indents;
    if (blanks == indents.back()) {
        return;
    }
    if (startsWith(blanks, indents.back())) {
        indents.push_back(blanks);
        tokens_.push(TokenType::INDENT, std::to_string(widthOf(blanks)), position, position);
        return;
    }
    const auto same = std::find(indents.begin(), indents.end(), blanks);
    if (same != indents.end()) {
        pushDedents(static_cast<std::size_t>(same - indents.begin()) + 1, position);
        return;
    }
    repairIndent(indentation, position);
}

/// Whether the line before ended in a colon.
bool Layout::isBlockDue() const {
    const std::vector<Token>& tokens = tokens_.tokens();
    return tokens.size() > 1 && tokens.back().type == TokenType::NEWLINE &&
           tokens[tokens.size() - 2].type == TokenType::COLON;
}

/// A line that is indented like no block around it. It counts as a line of the innermost block that is indented as far
/// as it, or else a little further; as the first of a block if one is due. In a group it may stand further out than all
/// the others.
void Layout::repairIndent(const Indentation& indentation, std::size_t position) {
    const std::string& blanks = indentation.blanks;
    const std::vector<std::string>& indents = frames_.back().indents;
    const std::size_t width = widthOf(blanks);
    std::size_t remaining = indents.size();
    while (remaining > 1 && widthOf(indents[remaining - 2]) >= width) {
        --remaining;
    }
    pushDedents(remaining, position);
    if (frames_.back().kind == Kind::Group && width < widthOf(indents.front())) {
        return;
    }
    const bool isMixed = !isAlike(blanks, indents.back());
    if (isBlockDue() && width > widthOf(indents.back())) {
        frames_.back().indents.push_back(blanks);
        tokens_.push(TokenType::INDENT, std::to_string(width), position, position);
    }
    tokens_.fault(isMixed ? fault::MIXED_INDENTATION : fault::UNEVEN_INDENTATION, indentation.begin, indentation.end);
}

void Layout::pushDedents(std::size_t remaining, std::size_t position) {
    std::vector<std::string>& indents = frames_.back().indents;
    while (indents.size() > remaining) {
        indents.pop_back();
        tokens_.push(TokenType::DEDENT, std::to_string(widthOf(indents.back())), position, position);
    }
}

void Layout::closeFrame(std::size_t position) {
    // A group on one line has no line ends, no more than the call of a function with the same name.
    const bool hasLines = !frames_.back().indents.empty();
    if (hasLines && !tokens_.isAtLineStart()) {
        pushLineEnd("\n", position);
    }
    pushDedents(1, position);
    frames_.pop_back();
}

void Layout::pushLineEnd(const char* value, std::size_t position) {
    while (!functionWords_.empty() && functionWords_.back() >= frames_.back().depth) {
        functionWords_.pop_back();
    }
    tokens_.push(TokenType::NEWLINE, value, position, position + 1);
}

void Layout::endLine(std::size_t position) {
    if (joinsLines()) {
        if (tokens_.tokens().size() != tokensToFunctionColon_) {
            return;
        }
        openFrame(Kind::Function, blanks_);
    }
    if (!tokens_.isAtLineStart()) {
        pushLineEnd("\n", position);
    } else if (Token* last = tokens_.last(); last != nullptr && last->value == ";") {
        last->value = "\n"; // a semicolon at the end of a line means no more than the line end
    }
}

void Layout::endStatement(std::size_t position) {
    if (!tokens_.isAtLineStart()) {
        pushLineEnd(";", position);
    }
}

void Layout::noteFunctionWord() {
    functionWords_.push_back(brackets_.size());
}

/// The colon of a function value is the first one outside of brackets that are opened after its word.
void Layout::noteColon() {
    while (!functionWords_.empty() && functionWords_.back() > brackets_.size()) {
        functionWords_.pop_back();
    }
    if (!functionWords_.empty() && functionWords_.back() == brackets_.size()) {
        functionWords_.pop_back();
        tokensToFunctionColon_ = tokens_.tokens().size();
    }
}

/// Whether the bracket at hand stands after the visibility word that begins a line.
bool Layout::beginsGroup() const {
    const std::vector<Token>& tokens = tokens_.tokens();
    if (tokens.empty() || joinsLines()) {
        return false;
    }
    const Token& word = tokens.back();
    const bool isVisibility =
        word.type == TokenType::PRIVATE || (word.type == TokenType::KEYWORD && word.value == "பொது");
    return isVisibility && (tokens.size() == 1 || TokenList::isLayout(tokens[tokens.size() - 2].type));
}

void Layout::openBracket(char bracket, std::size_t position) {
    const bool isGroup = bracket == '(' && beginsGroup();
    tokens_.push(typeOf(bracket), std::string(1, bracket), position, position + 1);
    brackets_.push_back({bracket, position, widthOf(blanks_)});
    if (isGroup) {
        frames_.push_back({Kind::Group, brackets_.size(), {}});
    }
}

/// A bracket that is never closed.
void Layout::faultOf(Bracket open) {
    tokens_.fault(fault::OPEN_BRACKET, open.position, open.position + 1,
                  {std::string(1, open.sign), std::string(1, closingOf(open.sign))});
}

void Layout::closeBracket(char bracket, std::size_t position) {
    const auto fits = [&](const Bracket& open) { return closingOf(open.sign) == bracket; };
    if (brackets_.empty()) {
        tokens_.fault(fault::CLOSING_BRACKET, position, position + 1, {std::string(1, bracket)});
        return;
    }
    if (!fits(brackets_.back())) {
        if (std::any_of(brackets_.begin(), brackets_.end(), fits)) {
            faultOf(brackets_.back());
            while (!fits(brackets_.back())) {
                pushClosing(closingOf(brackets_.back().sign), position);
            }
        } else {
            const char fitting = closingOf(brackets_.back().sign);
            tokens_.fault(fault::CLOSING_BRACKET, position, position + 1, {std::string(1, bracket)},
                          otherClosingRemedy(brackets_.back().sign, bracket, fitting));
            bracket = fitting;
        }
    }
    popBracket(position);
    tokens_.push(typeOf(bracket), std::string(1, bracket), position, position + 1);
}

/// A bracket that stands nowhere, for one that somebody forgot.
void Layout::pushClosing(char bracket, std::size_t position) {
    popBracket(position);
    tokens_.push(typeOf(bracket), std::string(1, bracket), position, position);
}

/// Closes the lines that count inside of a bracket together with it.
void Layout::popBracket(std::size_t position) {
    while (frames_.size() > 1 && frames_.back().depth >= brackets_.size()) {
        closeFrame(position);
    }
    brackets_.pop_back();
}

void Layout::abandonBrackets() {
    faultOf(brackets_.back());
    dropBrackets();
}

void Layout::checkBrackets() {
    if (!brackets_.empty()) {
        faultOf(brackets_.back());
    }
}

void Layout::close(std::size_t position) {
    while (frames_.size() > 1) {
        closeFrame(position);
    }
    if (!tokens_.isAtLineStart()) {
        pushLineEnd("\n", position);
    }
    pushDedents(1, position);
    tokens_.push(TokenType::END_OF_FILE, "", position, position);
}

} // namespace pozhil::second
