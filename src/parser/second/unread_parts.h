#pragma once

#include "base/line_index.h"
#include "diagnostics/second_fault.h"
#include "parser/second/token_reader.h"
#include "parser/second/unread.h"

#include <cstddef>
#include <vector>

namespace pozhil::second {

/// Gathers what could not be read while a file is parsed, so that nothing is told of its meaning that may come of that.
class UnreadParts {
public:
    /// \param scanFaults what the scanner found wrong with the text; outlives the object
    /// \param[out] unread takes the parts
    UnreadParts(const TokenReader& tokens, const LineIndex& lines, const SecondFaults& scanFaults, Unread& unread);

    UnreadParts(const UnreadParts&) = delete;
    UnreadParts& operator=(const UnreadParts&) = delete;

    /// How many of the statements and items that are tried stand in each other.
    class Attempt {
    public:
        Attempt(UnreadParts& parts, std::size_t first) : parts_(parts), first_(first), wasBroken_(parts.isBroken_) {
            parts_.isBroken_ = false;
            ++parts_.depth_;
        }
        ~Attempt() {
            --parts_.depth_;
            parts_.isBroken_ = wasBroken_;
        }
        Attempt(const Attempt&) = delete;
        Attempt& operator=(const Attempt&) = delete;

        /// It reaches up to the next token.
        void finish() { parts_.finishAttempt(first_); }

    private:
        UnreadParts& parts_;
        const std::size_t first_;
        const bool wasBroken_;
    };

    /// A fault was found in what is tried at hand.
    void noteFault(int number);

    /// The next token is an indentation that begins no block. What stands there may belong to the statement before it.
    void noteStrayIndent();

    /// The file is parsed.
    void finish();

private:
    void finishAttempt(std::size_t first);
    bool takeScanFaults(std::size_t first, std::size_t end);
    std::size_t endOfLostBlock() const;
    std::size_t endOfIndentation(std::size_t indent) const;
    bool mayNameMore(std::size_t first) const;
    void add(std::size_t first, std::size_t end, bool namesMore);

    const TokenReader& tokens_;
    const LineIndex& lines_;
    const SecondFaults& scanFaults_;
    Unread& unread_;
    /// Of each fault of the scanner, whether a part has it.
    std::vector<bool> isTaken_;
    bool isBroken_ = false;
    bool hasLostBlock_ = false;
    bool hasLostHead_ = false;
    int depth_ = 0;
    /// The first token of what was tried last.
    std::size_t last_ = 0;
};

} // namespace pozhil::second
