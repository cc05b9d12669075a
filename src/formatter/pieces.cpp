#include "formatter/pieces.h"

#include "base/text.h"

#include <algorithm>
#include <utility>

namespace pozhil::formatter {
namespace {

constexpr std::string_view COMMENT = "ஃ";
constexpr std::string_view BLOCK_COMMENT = "ஃஃ";
constexpr std::string_view BLANKS = " \t\r\v\f";
constexpr std::size_t TAB_WIDTH = 4;

class Taking {
public:
    Taking(const ScannedSource& scanned, bool areStatementsIndented)
        : scanned_(scanned), text_(scanned.source->text), areStatementsIndented_(areStatementsIndented) {
        pieces_.reserve(scanned.tokens.size());
    }

    std::optional<Pieces> run() {
        for (std::size_t index = 0; index < scanned_.tokens.size(); ++index) {
            if (!takeToken(scanned_.tokens[index].type, scanned_.places[index])) {
                return std::nullopt;
            }
        }
        if (!takeGap(text_.size())) {
            return std::nullopt;
        }
        add(Piece::Kind::End, text_.size());
        return std::move(pieces_);
    }

private:
    bool takeToken(TokenType type, ByteRange place) {
        if (type == TokenType::INDENT || type == TokenType::DEDENT) {
            next_.edges.push_back(type);
            return true;
        }
        const bool isSemicolon = place.begin < text_.size() && text_[place.begin] == ';';
        if (type == TokenType::END_OF_FILE || (type == TokenType::NEWLINE && !isSemicolon)) {
            return true;
        }
        if (place.begin < position_) {
            return type == TokenType::NEWLINE;
        }
        if (!takeGap(place.begin)) {
            return false;
        }
        next_.type = type;
        add(type == TokenType::NEWLINE ? Piece::Kind::Semicolon : Piece::Kind::Token, place.end);
        return true;
    }

    /// What stands between two tokens.
    bool takeGap(std::size_t end) {
        while (position_ < end) {
            if (text_[position_] == '\n') {
                ++next_.linesBefore;
                next_.width = 0;
                ++position_;
            } else if (BLANKS.find(text_[position_]) != std::string_view::npos) {
                next_.width += text_[position_] == '\t' ? TAB_WIDTH - next_.width % TAB_WIDTH : 1;
                ++position_;
            } else if (!takeComment(end)) {
                return false;
            }
        }
        return position_ == end;
    }

    bool takeComment(std::size_t end) {
        const std::string_view rest = text_.substr(position_);
        if (rest.front() == ';') {
            next_.type = TokenType::NEWLINE;
            add(Piece::Kind::Semicolon, position_ + 1);
        } else if (startsWith(rest, BLOCK_COMMENT)) {
            const std::size_t closing = rest.find(BLOCK_COMMENT, BLOCK_COMMENT.size());
            if (closing == std::string_view::npos) {
                return false;
            }
            add(Piece::Kind::BlockComment, position_ + closing + BLOCK_COMMENT.size());
        } else if (startsWith(rest, COMMENT)) {
            const std::string_view line = rest.substr(0, rest.find('\n'));
            add(Piece::Kind::LineComment, position_ + line.find_last_not_of(BLANKS) + 1);
        } else {
            return false;
        }
        return position_ <= end;
    }

    /// Edges of blocks wait for a piece of code; comments stand where they like.
    void add(Piece::Kind kind, std::size_t end) {
        Piece piece = std::exchange(next_, {});
        piece.kind = kind;
        const bool isAfterSemicolon = !pieces_.empty() && pieces_.back().kind == Piece::Kind::Semicolon;
        piece.isLineStart = pieces_.empty() || piece.linesBefore > 0 || (areStatementsIndented_ && isAfterSemicolon);
        piece.text = text_.substr(position_, end - position_);
        if (piece.isComment()) {
            next_.edges = std::exchange(piece.edges, {});
        }
        pieces_.push_back(std::move(piece));
        position_ = end;
    }

    const ScannedSource& scanned_;
    const std::string_view text_;
    const bool areStatementsIndented_;
    Pieces pieces_;
    std::size_t position_ = 0;
    /// What is known of the piece to come.
    Piece next_;
};

} // namespace

std::optional<Pieces> piecesOf(const ScannedSource& scanned, bool areStatementsIndented) {
    return Taking(scanned, areStatementsIndented).run();
}

} // namespace pozhil::formatter
