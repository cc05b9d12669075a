#include "parser/second/unread_parts.h"

#include "base/text.h"
#include "language/second/application_words.h"
#include "parser/second/names.h"
#include "scanner/second/fault_numbers.h"
#include "scanner/second/words.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace pozhil::second {
namespace {

/// Words that begin a definition with a name.
constexpr std::string_view DEFINITIONS[] = {"செயல்", "கட்டமைப்பு", "வடிவமைப்பு", "வகை"};

/// Words that begin a statement which gives no name a meaning.
constexpr std::string_view PLAIN_STATEMENTS[] = {"அச்சிடு", "காத்திரு", "திரும்பு", "நிறுத்து", "தொடர்", "விடு"};

/// Whether a word that begins a statement stands there, or the torn off beginning of one.
bool beginsStatementWord(std::string_view beginning) {
    const auto& words = statementWords();
    return startsWith(language::second::application::APPLICATION, beginning) ||
           std::any_of(words.begin(), words.end(), [&](std::string_view word) { return startsWith(word, beginning); });
}

bool isTextOfLines(const Token& token) {
    return token.type == TokenType::STRING && token.value.find('\n') != std::string::npos;
}

bool hasTextOfLines(const TokenReader& tokens) {
    std::size_t index = 0;
    while (tokens.at(index).type != TokenType::END_OF_FILE && !isTextOfLines(tokens.at(index))) {
        ++index;
    }
    return tokens.at(index).type != TokenType::END_OF_FILE;
}

template <std::size_t SIZE> bool isOneOf(const std::string_view (&words)[SIZE], const Token& token) {
    return token.type == TokenType::KEYWORD &&
           std::find(std::begin(words), std::end(words), token.value) != std::end(words);
}

bool isLayout(TokenType type) {
    return type == TokenType::NEWLINE || type == TokenType::INDENT || type == TokenType::DEDENT;
}

bool isIndentationFault(int number) {
    return number == fault::MIXED_INDENTATION || number == fault::UNEVEN_INDENTATION;
}

} // namespace

UnreadParts::UnreadParts(const TokenReader& tokens, const LineIndex& lines, const SecondFaults& scanFaults,
                         Unread& unread)
    : tokens_(tokens), lines_(lines), scanFaults_(scanFaults), unread_(unread), isTaken_(scanFaults.size()) {
    const bool isLost = std::any_of(scanFaults.begin(), scanFaults.end(), [&](const SecondFault& one) {
        return one.number == fault::NO_UTF8 || one.number == fault::OPEN_COMMENT ||
               (one.number == fault::OPEN_TEXT && hasTextOfLines(tokens));
    });
    unread_.hasRest = unread_.hasRest || isLost || scanFaults.size() >= MAX_FOUND_FAULTS;
}

void UnreadParts::noteFault(int number) {
    isBroken_ = true;
    hasLostBlock_ = hasLostBlock_ || number == fault::NO_BLOCK;
    // The head of a function that is gone may have been one.
    hasLostHead_ = hasLostHead_ || number == fault::NO_MEMBER;
}

void UnreadParts::finishAttempt(std::size_t first) {
    const bool isScannedWrong = !isTaken_.empty() && takeScanFaults(first, tokens_.position());
    if (isBroken_ || isScannedWrong) {
        const bool namesMore = std::exchange(hasLostHead_, false) || mayNameMore(first);
        // An item before it on its line may be a piece of it.
        const bool followsPiece = last_ < first && tokens_.at(last_).line == tokens_.at(first).line;
        add(followsPiece ? last_ : first, std::exchange(hasLostBlock_, false) ? endOfLostBlock() : tokens_.position(),
            namesMore);
    }
    last_ = first;
}

/// Faults of the scanner belong to the innermost statement; those of indentation to the outermost, since blocks may end
/// elsewhere than they were meant to.
bool UnreadParts::takeScanFaults(std::size_t first, std::size_t end) {
    const auto lineOf = [&](std::size_t index) { return lines_.lineAt(tokens_.rangeOf(index).begin); };
    const bool beginsLine = first == 0 || lineOf(first - 1) != lineOf(first);
    const std::size_t from = beginsLine ? lines_.beginOf(lineOf(first)) : tokens_.rangeOf(first).begin;
    const std::size_t to = tokens_.isAtEnd() ? TokenReader::NONE : tokens_.rangeOf(end).begin;
    bool isAny = false;
    for (std::size_t index = 0; index < scanFaults_.size(); ++index) {
        const std::size_t at = scanFaults_[index].place.range.begin;
        const bool isHere = at >= from && at < to && (depth_ == 1 || !isIndentationFault(scanFaults_[index].number));
        if (isHere && !isTaken_[index]) {
            isTaken_[index] = true;
            isAny = true;
        }
    }
    return isAny;
}

/// The lines of a block that couldn't be found may follow without indentation, up to the next definition.
std::size_t UnreadParts::endOfLostBlock() const {
    int level = 0;
    std::size_t index = tokens_.position();
    for (; tokens_.at(index).type != TokenType::END_OF_FILE; ++index) {
        const Token& token = tokens_.at(index);
        level += token.type == TokenType::INDENT ? 1 : token.type == TokenType::DEDENT ? -1 : 0;
        const TokenType before = tokens_.at(index == 0 ? 0 : index - 1).type;
        const bool beginsLine = before == TokenType::NEWLINE || before == TokenType::DEDENT;
        if (level < 0 || (level == 0 && beginsLine && isOneOf(DEFINITIONS, token))) {
            break;
        }
    }
    return index;
}

void UnreadParts::noteStrayIndent() {
    add(std::min(last_, tokens_.position()), endOfIndentation(tokens_.position()), true);
}

std::size_t UnreadParts::endOfIndentation(std::size_t indent) const {
    int level = 0;
    std::size_t index = indent;
    do {
        level += tokens_.at(index).type == TokenType::INDENT ? 1 : 0;
        level -= tokens_.at(index).type == TokenType::DEDENT ? 1 : 0;
        ++index;
    } while (level > 0 && tokens_.at(index).type != TokenType::END_OF_FILE);
    return index;
}

/// Whether the statement may give a meaning to names that are missing from it. What was cut off a line can't be known;
/// but a statement that begins as an assignment, a call or a named definition hardly went on to name anything else.
bool UnreadParts::mayNameMore(std::size_t first) const {
    const Token& begin = tokens_.at(first);
    if (isOneOf(PLAIN_STATEMENTS, begin)) {
        return false;
    }
    const Token& next = tokens_.at(first + 1);
    if (isOneOf(DEFINITIONS, begin)) {
        const TokenType afterName = tokens_.at(first + 2).type;
        return !isWord(next) || afterName == TokenType::NEWLINE || afterName == TokenType::END_OF_FILE;
    }
    switch (next.type) {
    case TokenType::ASSIGN:
    case TokenType::COMPOUND_ASSIGN:
    case TokenType::LBRACKET:
    case TokenType::LPAREN:
    case TokenType::DOT: return begin.type != TokenType::IDENTIFIER || beginsStatementWord(begin.value);
    default: return true;
    }
}

void UnreadParts::add(std::size_t first, std::size_t end, bool namesMore) {
    while (end > first + 1 && isLayout(tokens_.at(end - 1).type)) {
        --end;
    }
    const std::uint32_t begin = tokens_.rangeOf(first).begin;
    UnreadPart part{{begin, end > first ? tokens_.rangeOf(end - 1).end : begin}, {}, {}, namesMore};
    for (std::size_t index = first; index < end; ++index) {
        const Token& token = tokens_.at(index);
        if (!isWord(token) && token.type != TokenType::STRING) {
            continue;
        }
        // After a quotation mark too many a text may hold what is none.
        unread_.hasRest = unread_.hasRest || isTextOfLines(token);
        part.words.push_back(token.value);
        const Token& next = tokens_.at(index + 1);
        const bool endsLine = next.type == TokenType::NEWLINE || next.line != token.line;
        const bool isBeforeBracket =
            next.type == TokenType::LPAREN && tokens_.rangeOf(index + 1).begin == tokens_.rangeOf(index).end;
        if (isWord(token) && (endsLine || isBeforeBracket || next.type == TokenType::END_OF_FILE)) {
            part.beginnings.push_back(token.value);
        }
    }
    unread_.parts.push_back(std::move(part));
}

/// What no statement has: the scanner left out whatever stood there.
void UnreadParts::finish() {
    for (std::size_t index = 0; index < scanFaults_.size(); ++index) {
        if (!isTaken_[index]) {
            unread_.parts.push_back({scanFaults_[index].place.range, {}, {}, true});
        }
    }
}

} // namespace pozhil::second
