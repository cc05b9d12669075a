#pragma once

#include "base/line_index.h"
#include "base/scoped_value.h"
#include "parser/second/syntax_fault.h"
#include "parser/second/token_reader.h"
#include "parser/second/unread_parts.h"

#include <cstddef>
#include <string>
#include <vector>

namespace pozhil::second {

/// Goes on after faults, and sees to it that one mistake is told once.
class Recovery {
public:
    /// Thrown when nobody is to be told of more faults.
    struct Done {};

    /// \param scanFaults what the scanner found wrong with the text
    /// \param[out] faults takes those of scanner and parser in the order of the text
    /// \param[out] unread takes what could not be read for them
    Recovery(TokenReader& tokens, SecondFaults scanFaults, SecondFaults& faults, Unread& unread)
        : tokens_(tokens), lines_(tokens.source()->text), scanFaults_(std::move(scanFaults)), faults_(faults),
          unread_(unread), unreadParts_(tokens, lines_, scanFaults_, unread) {}

    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    /// Runs \p parse for the statement that comes next. After a fault the next statement of the same block comes next, or
    /// the end of the block.
    template <class Parse> void attempt(const Parse& parse) {
        const std::size_t first = tokens_.position();
        const int level = tokens_.indentation();
        const ScopedValue<std::size_t> statement(statement_, first);
        UnreadParts::Attempt reading(unreadParts_, first);
        try {
            parse();
        } catch (const SyntaxFault& caught) {
            note(caught.fault);
            skipStatement(first, level);
        }
        reading.finish();
    }

    /// Runs \p parse for the next item of a bracketed list. After a fault comes what is after the next comma, or the end of
    /// the list.
    template <class Parse> void attemptItem(const Parse& parse) {
        const std::size_t first = tokens_.position();
        const ScopedValue<std::size_t> statement(statement_, first);
        UnreadParts::Attempt reading(unreadParts_, first);
        try {
            parse();
        } catch (const SyntaxFault& caught) {
            note(caught.fault);
            skipItem(first);
        }
        reading.finish();
    }

    /// Keeps a fault that the parse goes on after.
    void note(SecondFault fault);

    /// Keeps a fault after which nothing is told any more.
    /// \throws Done
    [[noreturn]] void noteLast(SecondFault fault);

    /// The fault of this number at the text of a range of tokens.
    SecondFault faultAt(int number, ByteRange range, std::vector<std::string> values = {}) const {
        return {number, {tokens_.source(), range}, std::move(values)};
    }

    /// The next token is an indentation that begins no block.
    void noteStrayIndent() { unreadParts_.noteStrayIndent(); }

    /// The file is parsed: keeps what the scanner found and nobody was told yet.
    void finish();

    /// The parse gave up: nothing is known of the rest of the file.
    void giveUp() { unread_.hasRest = true; }

private:
    void add(SecondFault fault);
    void addScanFaultsBefore(std::size_t end);
    bool isEcho(const SecondFault& fault) const;
    void suggestFor(SecondFault& fault) const;
    void skipStatement(std::size_t first, int level);
    void skipItem(std::size_t first);
    bool isAtItemEnd(std::size_t first) const;
    bool isAtNextStatement(int level) const;
    bool isPartOfStatement() const;

    TokenReader& tokens_;
    const LineIndex lines_;
    const SecondFaults scanFaults_;
    SecondFaults& faults_;
    Unread& unread_;
    UnreadParts unreadParts_;
    std::size_t addedScanFaults_ = 0;
    /// The first token of the statement that is parsed.
    std::size_t statement_ = 0;
};

} // namespace pozhil::second
