#pragma once

#include "diagnostics/second_fault.h"
#include "scanner/scanned_source.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::second {

/// What a scan has made so far: the tokens, and what is wrong with the text.
class TokenList {
public:
    /// Thrown when as many faults are found as anybody is told.
    struct Full {};

    explicit TokenList(const SourcePtr& source) : scanned_{source, {}, {}, {}} {}

    void push(TokenType type, std::string value, std::size_t begin, std::size_t end) {
        scanned_.tokens.push_back({type, std::move(value), line});
        scanned_.places.push_back(range(begin, end));
    }

    /// Keeps a fault of the text from \p begin to \p end.
    /// \param remedy what to do about it, if that isn't what the catalogue says
    /// \throws Full if nobody asks for more
    void fault(int number, std::size_t begin, std::size_t end, std::vector<std::string> values = {},
               std::string remedy = {}, Mend mend = {}) {
        faults_.push_back(
            {number, {scanned_.source, range(begin, end)}, std::move(values), "", std::move(remedy), std::move(mend)});
        if (faults_.size() == MAX_FOUND_FAULTS) {
            throw Full();
        }
    }

    /// The last token; null if there is none.
    Token* last() { return scanned_.tokens.empty() ? nullptr : &scanned_.tokens.back(); }
    const std::vector<Token>& tokens() const { return scanned_.tokens; }

    /// Whether nothing of a logical line stands after the last line end.
    bool isAtLineStart() const { return scanned_.tokens.empty() || isLayout(scanned_.tokens.back().type); }

    ScannedSource takeTokens() { return std::move(scanned_); }
    /// The faults in the order of the text.
    SecondFaults takeFaults() {
        std::stable_sort(faults_.begin(), faults_.end(), [](const SecondFault& a, const SecondFault& b) {
            return a.place.range.begin < b.place.range.begin;
        });
        return std::move(faults_);
    }

    /// The line of the next token.
    std::int32_t line = 1;

    static bool isLayout(TokenType type) {
        return type == TokenType::NEWLINE || type == TokenType::INDENT || type == TokenType::DEDENT;
    }

private:
    static ByteRange range(std::size_t begin, std::size_t end) {
        return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)};
    }

    ScannedSource scanned_;
    SecondFaults faults_;
};

} // namespace pozhil::second
