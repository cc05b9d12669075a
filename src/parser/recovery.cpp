#include "parser/recovery.h"

#include <algorithm>

namespace pozhil {

/// A fault of the grammar on a line that the scanner found fault with is most likely its echo, and isn't noted.
void Recovery::note(const Fault& fault) {
    const ByteRange range = cursor_.rangeOnLine(fault.line);
    noteScanFaultsBefore(range.end);
    const bool isEcho = std::any_of(scanned_.faults.begin(), scanned_.faults.end(),
                                    [&](const FoundFault& found) { return found.fault.line == fault.line; });
    if (!isEcho) {
        log_->add({fault, {scanned_.source, range}});
    }
}

void Recovery::noteScanFaults() {
    noteScanFaultsBefore(cursor_.rangeFrom(cursor_.position()).end);
}

void Recovery::noteScanFaultsBefore(std::uint32_t end) {
    while (log_ != nullptr && notedScanFaults_ < scanned_.faults.size() &&
           scanned_.faults[notedScanFaults_].place.range.begin <= end) {
        log_->add(scanned_.faults[notedScanFaults_++]);
    }
}

/// A statement ends with its line, or with the block that is indented below it, and at the bracket that closes the
/// statements around it.
void Recovery::skipStatement(std::size_t first, int level, Enclosure enclosure) {
    int open = cursor_.openBrackets(first);
    while (!cursor_.isAtEnd()) {
        const bool isClosed = enclosure == Enclosure::Brackets && open <= 0 && cursor_.checkClosingBracket();
        if (cursor_.position() > first && (isClosed || atNextStatement(level))) {
            return;
        }
        const std::size_t taken = cursor_.position();
        cursor_.advance();
        open += cursor_.openBrackets(taken);
    }
}

/// Lines that begin with a closing bracket still belong to the statement before.
bool Recovery::atNextStatement(int level) const {
    if (cursor_.indentation() != level) {
        return cursor_.indentation() < level;
    }
    const TokenType last = cursor_.previous().type;
    const bool isLineStart = last == TokenType::NEWLINE || last == TokenType::DEDENT;
    return cursor_.check(TokenType::DEDENT) ||
           (isLineStart && !cursor_.checkLayout() && !cursor_.checkClosingBracket());
}

/// An item ends at a comma or a line end outside its brackets, and at the list's own bracket.
void Recovery::skipItem(std::size_t first, int level) {
    int open = cursor_.openBrackets(first);
    while (!cursor_.isAtEnd()) {
        const bool isListEnd = cursor_.check(TokenType::DEDENT) && cursor_.indentation() <= level;
        const bool isItemEnd = open <= 0 && (cursor_.checkClosingBracket() || cursor_.check(TokenType::COMMA) ||
                                             cursor_.check(TokenType::NEWLINE));
        if (isListEnd || (isItemEnd && cursor_.position() > first)) {
            return;
        }
        const std::size_t taken = cursor_.position();
        cursor_.advance();
        open += cursor_.openBrackets(taken);
    }
}

} // namespace pozhil
