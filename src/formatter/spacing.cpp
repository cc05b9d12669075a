#include "formatter/spacing.h"

#include <algorithm>
#include <iterator>

namespace pozhil::formatter {
namespace {

constexpr std::string_view APPLICATION = "வலைதளம்";
constexpr std::string_view ARROW = "=>";
constexpr std::string_view MINUS = "கழி";
constexpr std::string_view IF = "எனில்";
constexpr std::string_view OTHERWISE = "இல்லைஎனில்";

/// Words that a bracket after them doesn't belong to: it begins a value, or a group of members.
constexpr std::string_view WORDS_APART[] = {"எனில்",  "இல்லைஎனில்", "இல்லை", "சுற்று", "திரும்பு",
                                            "தேர்வு", "நிலை",     "இல்",   "பொது"};

bool standsApart(const Piece& piece) {
    return piece.type == TokenType::KEYWORD &&
           std::find(std::begin(WORDS_APART), std::end(WORDS_APART), piece.text) != std::end(WORDS_APART);
}

/// Whether a value can end here.
bool endsValue(const Piece* piece) {
    if (piece == nullptr || piece->kind != Piece::Kind::Token) {
        return false;
    }
    switch (piece->type) {
    case TokenType::OPERATOR:
    case TokenType::COMPOUND_ASSIGN:
    case TokenType::ASSIGN:
    case TokenType::ARROW:
    case TokenType::QUESTION:
    case TokenType::COLON:
    case TokenType::COMMA:
    case TokenType::DOT:
    case TokenType::BIT_NOT:
    case TokenType::UNARY_PLUS:
    case TokenType::UNARY_MINUS:
    case TokenType::PRIVATE:
    case TokenType::LPAREN:
    case TokenType::LBRACKET:
    case TokenType::LBRACE: return false;
    default: return !standsApart(*piece);
    }
}

/// One walk over the pieces, which remembers the last two of the code.
class Walk {
public:
    explicit Walk(const Pieces& pieces) : pieces_(pieces) {}

    std::vector<std::size_t> run() {
        std::vector<std::size_t> blanks(pieces_.size(), 0);
        for (std::size_t index = 0; index < pieces_.size(); ++index) {
            const Piece& piece = pieces_[index];
            noteQuestions(piece);
            if (!piece.isLineStart) {
                blanks[index] = between(pieces_[index - 1], piece);
            }
            if (piece.isCode()) {
                last_ = code_;
                code_ = &piece;
            }
        }
        return blanks;
    }

private:
    std::size_t between(const Piece& left, const Piece& right) const {
        if (left.isComment() || right.isComment()) {
            return 1;
        }
        if (right.kind != Piece::Kind::Token || left.kind != Piece::Kind::Token) {
            return right.kind == Piece::Kind::Token ? 1 : 0;
        }
        if (left.isOpeningBracket() || right.isClosingBracket() || right.type == TokenType::COMMA) {
            return 0;
        }
        if (left.type == TokenType::DOT || right.type == TokenType::DOT) {
            return left.type == TokenType::NUMBER ? 1 : 0; // else the point would be a part of the number
        }
        if (right.type == TokenType::COLON) {
            return isOfQuestion_ ? 1 : 0;
        }
        if (right.type == TokenType::LPAREN || right.type == TokenType::LBRACKET) {
            return belongsTo(left) ? 0 : 1;
        }
        return 1;
    }

    /// Whether a bracket calls the piece before it, or counts in it. No sign of a percentage may stand right before one.
    bool belongsTo(const Piece& left) const {
        if (left.type == TokenType::OPERATOR) {
            return isName(left);
        }
        return endsValue(&left) && left.type != TokenType::PERCENT && !isApplication(left);
    }

    /// Whether a word of an operator stands where none can: it is the name of a function then. The minus of the first
    /// edition may also stand before its only operand.
    bool isName(const Piece& word) const {
        const bool beginsStatement = word.isLineStart && questions_.size() == 1;
        const bool isAfterValue = endsValue(last_) && last_->type != TokenType::KEYWORD && !beginsStatement;
        return !isAfterValue && word.text != ARROW && word.text != MINUS;
    }

    /// Whether a piece is the name of an application, or its word where it has none.
    bool isApplication(const Piece& piece) const {
        const bool isNamed = last_ != nullptr && last_->text == APPLICATION && last_->isLineStart;
        return piece.text == APPLICATION || isNamed;
    }

    /// Each question has a colon, which ends no key, or a word in its place. A question may begin with a word too.
    void noteQuestions(const Piece& piece) {
        isOfQuestion_ = false;
        if (piece.kind != Piece::Kind::Token) {
            return;
        }
        if (piece.isOpeningBracket()) {
            questions_.push_back(0);
        } else if (piece.isClosingBracket() && questions_.size() > 1) {
            questions_.pop_back();
        } else if (piece.type == TokenType::QUESTION || isQuestionWord(piece)) {
            ++questions_.back();
        } else if (questions_.back() > 0 && (piece.type == TokenType::COLON || piece.text == OTHERWISE)) {
            --questions_.back();
            isOfQuestion_ = true;
        }
    }

    /// Whether a piece is the word of a condition after its value, as no statement begins.
    bool isQuestionWord(const Piece& piece) const { return !piece.isLineStart && piece.text == IF && endsValue(code_); }

    const Pieces& pieces_;
    /// The last piece of the code, and the one before it.
    const Piece* code_ = nullptr;
    const Piece* last_ = nullptr;
    /// How many questions wait for their colons in each open bracket.
    std::vector<std::size_t> questions_{0};
    /// Whether the piece at hand is such a colon.
    bool isOfQuestion_ = false;
};

} // namespace

std::vector<std::size_t> blanksBefore(const Pieces& pieces) {
    return Walk(pieces).run();
}

} // namespace pozhil::formatter
