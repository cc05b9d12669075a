#include "parser/second/recovery.h"

#include "base/text.h"
#include "parser/second/foreign_habits.h"
#include "parser/second/names.h"
#include "parser/second/suggestion.h"
#include "scanner/second/fault_numbers.h"
#include "scanner/second/words.h"

#include <algorithm>
#include <utility>

namespace pozhil::second {
namespace {

/// Faults that a misspelt word of the language brings about.
bool mayComeOfSlip(int number) {
    switch (number) {
    case fault::NO_SIGN:
    case fault::NO_VALUE:
    case fault::NO_STATEMENT_END:
    case fault::VALUE_ALONE:
    case fault::NO_MEMBER:
    case fault::NO_CASE: return true;
    default: return false;
    }
}

/// Faults that tell of something that can't stand where it stands.
bool mayComeOfHabit(int number) {
    return mayComeOfSlip(number) || number == fault::NO_COMMA || number == fault::NO_NAME ||
           number == fault::PART_WITHOUT_STATEMENT;
}

} // namespace

void Recovery::note(SecondFault fault) {
    unreadParts_.noteFault(fault.number);
    addScanFaultsBefore(fault.place.range.begin);
    if (isEcho(fault)) {
        return;
    }
    if (mayComeOfHabit(fault.number)) {
        setHabitRemedy(tokens_, statement_, fault);
    }
    if (fault.remedy.empty() && mayComeOfSlip(fault.number)) {
        suggestFor(fault);
    }
    add(std::move(fault));
}

/// Told for certain: nobody is left to tell what it might be the echo of.
void Recovery::noteLast(SecondFault fault) {
    addScanFaultsBefore(fault.place.range.begin);
    add(std::move(fault));
    throw Done();
}

void Recovery::add(SecondFault fault) {
    if (faults_.size() < MAX_FOUND_FAULTS) {
        faults_.push_back(std::move(fault));
    }
    if (faults_.size() >= MAX_FOUND_FAULTS) {
        throw Done();
    }
}

void Recovery::addScanFaultsBefore(std::size_t end) {
    while (addedScanFaults_ < scanFaults_.size() && scanFaults_[addedScanFaults_].place.range.begin <= end) {
        add(scanFaults_[addedScanFaults_++]);
    }
}

void Recovery::finish() {
    unreadParts_.finish();
    addScanFaultsBefore(TokenReader::NONE);
}

/// What can't be parsed in a statement that the scanner found fault with is most likely the same mistake, unless the
/// statement is foreign from its first word on. So are parts of a statement whose block couldn't be found.
bool Recovery::isEcho(const SecondFault& fault) const {
    const bool isAfterMissingBlock = !faults_.empty() && faults_.back().number == fault::NO_BLOCK;
    if (fault.number == fault::PART_WITHOUT_STATEMENT && isAfterMissingBlock) {
        return true;
    }
    // A bracket around one that was left open isn't closed either.
    const bool isAroundOpen =
        fault.number == fault::OPEN_BRACKET &&
        std::any_of(scanFaults_.begin(), scanFaults_.end(), [&](const SecondFault& found) {
            return found.number == fault::OPEN_BRACKET && found.place.range.begin > fault.place.range.begin;
        });
    if (isAroundOpen) {
        return true;
    }
    if (beginsForeign(tokens_, statement_)) {
        return false;
    }
    const std::size_t lastLine = lines_.lineAt(fault.place.range.begin);
    const std::size_t begin = lines_.beginOf(lines_.lineAt(tokens_.rangeOf(statement_).begin));
    const std::size_t end = lastLine < lines_.count() ? lines_.beginOf(lastLine + 1) : TokenReader::NONE;
    return std::any_of(scanFaults_.begin(), scanFaults_.end(), [&](const SecondFault& found) {
        return found.place.range.begin >= begin && found.place.range.begin < end;
    });
}

/// Notes the word that may have been meant by the first word of the statement, or by those around the fault.
void Recovery::suggestFor(SecondFault& fault) const {
    std::size_t faulty = statement_;
    while (tokens_.rangeOf(faulty).begin < fault.place.range.begin &&
           tokens_.at(faulty).type != TokenType::END_OF_FILE) {
        ++faulty;
    }
    for (const std::size_t index : {statement_, faulty, faulty == 0 ? 0 : faulty - 1}) {
        const Token& token = tokens_.at(index);
        if (token.type != TokenType::IDENTIFIER) {
            continue;
        }
        if (startsWith(token.value, "ஃ")) {
            fault.suggestion = "குறிப்பு எழுத நினைத்தால், 'ஃ'-க்குப் பின் ஓர் இடைவெளி விடு மச்சி!";
            return;
        }
        if (suggestNearest(fault, token.value, statementWords())) {
            return;
        }
    }
}

/// A statement ends with its line, or with the blocks that are indented below it.
void Recovery::skipStatement(std::size_t first, int level) {
    int open = tokens_.openBrackets(first);
    while (!tokens_.isAtEnd()) {
        if (open <= 0 && tokens_.position() > first && isAtNextStatement(level) && !isPartOfStatement()) {
            return;
        }
        const std::size_t taken = tokens_.position();
        tokens_.advance();
        open += tokens_.openBrackets(taken);
    }
}

/// An item ends with its comma, with the bracket around it, or where another begins on a line of its own.
void Recovery::skipItem(std::size_t first) {
    int open = tokens_.openBrackets(first);
    while (!tokens_.isAtEnd()) {
        if (open <= 0 && isAtItemEnd(first)) {
            return;
        }
        const std::size_t taken = tokens_.position();
        tokens_.advance();
        open += tokens_.openBrackets(taken);
    }
}

bool Recovery::isAtItemEnd(std::size_t first) const {
    if (tokens_.check(TokenType::COMMA) || tokens_.check(TokenType::RPAREN)) {
        return true;
    }
    const bool beginsLine = tokens_.position() > first && tokens_.peek().line != tokens_.previous().line;
    const TokenType next = tokens_.peek(1).type;
    return beginsLine && isWord(tokens_.peek()) && (next == TokenType::COLON || next == TokenType::LPAREN);
}

/// Whether a statement of this level comes next, or what ends its block.
bool Recovery::isAtNextStatement(int level) const {
    if (tokens_.indentation() != level) {
        return tokens_.indentation() < level;
    }
    switch (tokens_.peek().type) {
    case TokenType::DEDENT:
    case TokenType::RPAREN:
    case TokenType::RBRACKET:
    case TokenType::RBRACE: return true;
    case TokenType::INDENT:
    case TokenType::NEWLINE: return false;
    default: return tokens_.isAfterLineEnd();
    }
}

/// Whether a part comes next that belongs to the statement that was skipped, such as இல்லை.
bool Recovery::isPartOfStatement() const {
    const bool hasColon = tokens_.peek(1).type == TokenType::COLON;
    return tokens_.checkWord("இல்லைஎனில்") || (hasColon && (tokens_.checkWord("இல்லை") || tokens_.checkWord("பிடி"))) ||
           (tokens_.checkWord("பிடி") && tokens_.peek(1).type == TokenType::LPAREN);
}

} // namespace pozhil::second
