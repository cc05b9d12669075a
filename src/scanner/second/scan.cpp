#include "scanner/second/scan.h"

#include "base/text.h"
#include "language/second/application_words.h"
#include "scanner/second/edition_marker.h"
#include "scanner/second/fault_numbers.h"
#include "scanner/second/normal_form.h"
#include "scanner/second/scanner.h"

#include <algorithm>
#include <iterator>

namespace pozhil::second {
namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
constexpr std::string_view COMMENT = "ஃ";
constexpr std::string_view BLOCK_COMMENT = "ஃஃ";

/// Words that nothing but a statement begins with.
constexpr std::string_view STATEMENT_STARTS[] = {"அச்சிடு", "காத்திரு", "ஒவ்வொன்றாக", "திரும்பு", "நூஇறக்கி"};

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

} // namespace

ScannedSource scanSecondEdition(const SourcePtr& source, SecondFaults& faults) {
    std::set<std::size_t> cutTexts;
    if (const auto invalid = firstInvalidByte(source->text)) {
        TokenList nothing(source);
        nothing.fault(fault::NO_UTF8, *invalid, *invalid + 1);
        nothing.push(TokenType::END_OF_FILE, "", source->text.size(), source->text.size());
        faults = nothing.takeFaults();
        return nothing.takeTokens();
    }
    while (true) {
        Scan scan(source, cutTexts);
        if (scan.run()) {
            faults = scan.takeFaults();
            return scan.takeTokens();
        }
        cutTexts.insert(scan.openText());
    }
}

bool Scan::run() {
    try {
        skipMarker();
        while (!isAtEnd()) {
            scanLine();
        }
        layout_.checkBrackets();
    } catch (const OpenText&) {
        return false;
    } catch (const TokenList::Full&) {
        // Nobody is told of what comes after it.
    }
    layout_.close(position_);
    return true;
}

void Scan::skipMarker() {
    if (startsWith(rest(), BYTE_ORDER_MARK)) {
        position_ += BYTE_ORDER_MARK.size();
    }
    const std::optional<std::string> edition = markedEdition(rest().substr(0, rest().find('\n')));
    isMarked_ = edition == SECOND_EDITION;
    if (edition) {
        skipToLineEnd();
    }
}

void Scan::scanLine() {
    const Indentation indentation = takeIndentation();
    bool isBegun = false;
    while (true) {
        skipBlanksAndComments();
        if (isAtEnd() || peek() == '\n') {
            break;
        }
        if (!isBegun) {
            beginLine(indentation);
            isBegun = true;
        }
        checkBlanks();
        scanToken();
    }
    specialBlank_.reset();
    if (!isAtEnd()) {
        layout_.endLine(position_);
        ++position_;
        ++tokens_.line;
    }
}

/// The blanks and tabs at the beginning of a line; whatever else looks like a blank counts as one.
Indentation Scan::takeIndentation() {
    Indentation indentation{"", position_, position_};
    while (takeBlank()) {
        const char blank = text_[indentation.end];
        indentation.end = position_;
        if (blank != '\r') {
            indentation.blanks += blank == '\t' ? '\t' : ' ';
        }
    }
    return indentation;
}

bool Scan::takeBlank() {
    if (isBlank(peek())) {
        ++position_;
        return true;
    }
    const Character next = character();
    if (!isSpecialBlank(next)) {
        return false;
    }
    if (!specialBlank_) {
        specialBlank_ = position_;
    }
    position_ += next.size;
    return true;
}

void Scan::skipBlanksAndComments() {
    while (true) {
        if (isCommentAhead()) {
            skipComment();
        } else if (!takeBlank()) {
            return;
        }
    }
}

/// The sign of comments also begins names: right before a letter it is a part of one.
bool Scan::isCommentAhead() const {
    if (!startsWith(rest(), COMMENT)) {
        return false;
    }
    const Character next = characterAt(text_, position_ + COMMENT.size());
    return startsWith(rest(), BLOCK_COMMENT) || !isLetter(next);
}

void Scan::skipComment() {
    if (!startsWith(rest(), BLOCK_COMMENT)) {
        checkMarker();
        skipToLineEnd();
        return;
    }
    const std::size_t begin = position_;
    position_ += BLOCK_COMMENT.size();
    const std::size_t closing = text_.find(BLOCK_COMMENT, position_);
    if (closing == std::string_view::npos) {
        fault(fault::OPEN_COMMENT, begin);
        skipToLineEnd();
        return;
    }
    position_ = closing + BLOCK_COMMENT.size();
    skipLinesSince(begin);
}

/// Whether the comment at hand has its line for itself, and asks for the edition once more.
void Scan::checkMarker() {
    const std::size_t begin = text_.rfind('\n', position_) + 1;
    const std::size_t end = std::min(text_.find('\n', position_), text_.size());
    if (isMarked_ && markedEdition(text_.substr(begin, end - begin)) == SECOND_EDITION) {
        tokens_.fault(fault::EDITION_TWICE, position_, end);
    }
}

/// Counts the lines of what was taken.
void Scan::skipLinesSince(std::size_t begin) {
    const std::string_view taken = textSince(begin);
    tokens_.line += static_cast<std::int32_t>(std::count(taken.begin(), taken.end(), '\n'));
}

void Scan::skipToLineEnd() {
    position_ = std::min(text_.find('\n', position_), text_.size());
}

/// Blanks of another kind are told once a line, where something stands after them.
void Scan::checkBlanks() {
    if (specialBlank_ && specialBlankLine_ != tokens_.line) {
        specialBlankLine_ = tokens_.line;
        const std::size_t end = *specialBlank_ + characterAt(text_, *specialBlank_).size;
        tokens_.fault(fault::SPECIAL_BLANK, *specialBlank_, end);
    }
    specialBlank_.reset();
}

/// A bracket joins lines, but not with one that is the beginning of a statement beyond doubt.
void Scan::beginLine(const Indentation& indentation) {
    if (layout_.isAmongItems()) {
        if (isSectionAhead()) {
            layout_.closeSection(position_);
        }
    } else if (layout_.joinsLines() && isStatementAhead(indentation.blanks)) {
        layout_.abandonBrackets();
        layout_.endLine(position_);
    }
    const bool isClosing = peek() == ')' || peek() == ']' || peek() == '}';
    layout_.beginLine(indentation, position_, isClosing);
}

/// Whether a section of an application begins here.
bool Scan::isSectionAhead() const {
    const std::size_t end = wordEnd(position_);
    const std::size_t next = std::min(text_.find_first_not_of(" \t", end), text_.size());
    return startsWith(text_.substr(next), "(") &&
           language::second::isSection(normalForm(text_.substr(position_, end - position_)));
}

/// Whether a statement begins here that can't be a part of a value. An assignment is one if it isn't indented. After an
/// arrow a function is still without its body, which may be a statement.
bool Scan::isStatementAhead(const std::string& blanks) const {
    if (!tokens_.tokens().empty() && tokens_.tokens().back().type == TokenType::ARROW) {
        return false;
    }
    const std::size_t end = wordEnd(position_);
    const std::string word = normalForm(text_.substr(position_, end - position_));
    const auto nextAfter = [&](std::size_t position) {
        return std::min(text_.find_first_not_of(" \t", position), text_.size());
    };
    const std::size_t next = nextAfter(end);
    if (word == "செயல்") {
        const std::size_t nameEnd = wordEnd(next);
        return nameEnd > next && startsWith(text_.substr(nextAfter(nameEnd)), "(");
    }
    const std::string_view after = text_.substr(next);
    if (end > position_ && startsWith(after, "=") && !startsWith(after, "=>") && !startsWith(after, "==")) {
        return Layout::widthOf(blanks) <= layout_.joinedWidth();
    }
    const bool isStart =
        std::find(std::begin(STATEMENT_STARTS), std::end(STATEMENT_STARTS), word) != std::end(STATEMENT_STARTS);
    return isStart && !startsWith(after, ":"); // a key of a map may be any word
}

void Scan::scanToken() {
    const Character next = character();
    const char c = peek();
    if (c == '"') {
        scanText();
    } else if (c == '\'') {
        scanLetter();
    } else if (isCurlyQuote(next)) {
        scanCurlyText();
    } else if (isDigitOfNumbers(next)) {
        scanNumber();
    } else if (isLetter(next) || isSign(next) || isInvisible(next) || c == '_') {
        scanWord();
    } else {
        scanSign();
    }
}

} // namespace pozhil::second
