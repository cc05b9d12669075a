#pragma once

#include "scanner/second/characters.h"
#include "scanner/second/layout.h"
#include "scanner/second/token_list.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace pozhil::second {

/// One pass over a text.
class Scan {
public:
    /// \param cutTexts where texts begin that nobody closed: they end with their line; outlives the pass
    Scan(const SourcePtr& source, const std::set<std::size_t>& cutTexts)
        : text_(source->text), cutTexts_(cutTexts), tokens_(source), layout_(tokens_) {}

    Scan(const Scan&) = delete;
    Scan& operator=(const Scan&) = delete;

    /// Scans the whole text.
    /// \return false if the text ended in a literal, so that nothing is known but openText
    bool run();

    /// Where the literal begins that was most likely left open, after a run that ended in one.
    std::size_t openText() const { return suspiciousText_.value_or(firstLongText_.value_or(lastText_)); }

    ScannedSource takeTokens() { return tokens_.takeTokens(); }
    SecondFaults takeFaults() { return tokens_.takeFaults(); }

private:
    /// Thrown where the text ends in a literal.
    struct OpenText {};

    // The cursor (scan.cpp).
    Character character() const { return characterAt(text_, position_); }
    char peek() const { return isAtEnd() ? '\0' : text_[position_]; }
    bool isAtEnd() const { return position_ >= text_.size(); }
    std::string_view rest() const { return text_.substr(position_); }
    std::string_view textSince(std::size_t begin) const { return text_.substr(begin, position_ - begin); }
    void push(TokenType type, std::string value, std::size_t begin) {
        tokens_.push(type, std::move(value), begin, position_);
    }
    void fault(int number, std::size_t begin, std::vector<std::string> values = {}, std::string remedy = {},
               Mend mend = {}) {
        tokens_.fault(number, begin, position_, std::move(values), std::move(remedy), std::move(mend));
    }
    void skipLinesSince(std::size_t begin);

    // Lines, blanks, comments (scan.cpp).
    void skipMarker();
    void scanLine();
    Indentation takeIndentation();
    bool takeBlank();
    void skipBlanksAndComments();
    bool isCommentAhead() const;
    void skipComment();
    void checkMarker();
    void skipToLineEnd();
    void checkBlanks();
    void beginLine(const Indentation& indentation);
    bool isStatementAhead(const std::string& blanks) const;
    bool isSectionAhead() const;
    void scanToken();

    // Words (scan_words.cpp).
    std::size_t wordEnd(std::size_t begin) const;
    void scanWord();
    void checkSpelling(std::string_view written, std::size_t begin);
    void checkLetters(std::string_view written, std::size_t begin);

    // Signs (scan_signs.cpp).
    void scanSign();
    bool scanPunctuation();
    bool isForeignBlock() const;
    bool scanForeignBlock();
    bool scanForeignOperator();
    bool scanForeignSign();
    void scanUnknown();
    bool endsOperand() const;

    // Texts and numbers (scan_literals.cpp).
    void scanText();
    void scanLetter();
    void scanCurlyText();
    void takeEscape(std::string& value);
    bool takeOctal(std::string& value);
    void scanNumber();
    bool takeDigit(std::string& digits);
    bool isPercentSign() const;

    const std::string_view text_;
    const std::set<std::size_t>& cutTexts_;
    /// Words whose letters were told to be wrong: each is told once, however often it stands in the source.
    std::set<std::string, std::less<>> toldWords_{};
    std::size_t position_ = 0;
    /// Whether the first line asks for the second edition.
    bool isMarked_ = false;
    TokenList tokens_;
    Layout layout_;
    /// Blocks in braces, as other languages write them, that are open.
    int foreignBlocks_ = 0;
    /// The first blank of another kind on this line, if nothing stood after it so far.
    std::optional<std::size_t> specialBlank_;
    /// The line on which a blank of another kind was found fault with last.
    std::int32_t specialBlankLine_ = 0;

    /// The first text over several lines with a letter right after its end, which is most likely the beginning of another.
    std::optional<std::size_t> suspiciousText_;
    std::optional<std::size_t> firstLongText_;
    std::size_t lastText_ = 0;
};

} // namespace pozhil::second
