#include "formatter/line_columns.h"

#include <algorithm>
#include <optional>

namespace pozhil::formatter {
namespace {

constexpr std::size_t STEP = 4;

/// What is open around a line: a block, or a bracket.
struct Enclosure {
    bool isBracket;
    /// Column of the lines in it.
    std::size_t inside;
    /// Column of the line that it begins on.
    std::size_t outside;
    /// How far its first line is indented as written, if there is one.
    std::optional<std::size_t> written{};
};

/// One walk over the pieces, line by line.
class Walk {
public:
    Walk(const Pieces& pieces, InBrackets inBrackets)
        : pieces_(pieces), inBrackets_(inBrackets), columns_(pieces.size(), 0) {}

    std::vector<std::size_t> run() {
        std::size_t begin = 0;
        while (begin < pieces_.size()) {
            std::size_t end = begin + 1;
            while (end < pieces_.size() && !pieces_[end].isLineStart && pieces_[end].kind != Piece::Kind::End) {
                ++end;
            }
            takeLine(begin, end);
            begin = end;
        }
        return std::move(columns_);
    }

private:
    void takeLine(std::size_t begin, std::size_t end) {
        std::size_t first = begin;
        while (first < end && pieces_[first].isComment()) {
            ++first;
        }
        if (first == end) {
            comments_.push_back(begin);
            return;
        }
        const std::vector<Enclosure> before = comments_.empty() ? std::vector<Enclosure>() : enclosures_;
        takeEdges(pieces_[first]);
        column_ = columnOf(pieces_[first]);
        columns_[begin] = column_;
        placeComments(before, pieces_[first]);
        if (!enclosures_.empty() && !enclosures_.back().written && !pieces_[first].isClosingBracket()) {
            enclosures_.back().written = pieces_[begin].width;
        }
        for (std::size_t index = first; index < end; ++index) {
            if (index > first) {
                takeEdges(pieces_[index]);
            }
            takeBracket(pieces_[index]);
        }
    }

    /// Where the line that begins with this piece stands.
    std::size_t columnOf(const Piece& leader) const {
        if (leader.kind == Piece::Kind::End) {
            return 0;
        }
        if (inBrackets_ == InBrackets::Lines) {
            return edges_.size() * STEP;
        }
        if (leader.isClosingBracket()) {
            const auto bracket = std::find_if(enclosures_.rbegin(), enclosures_.rend(),
                                              [](const Enclosure& enclosure) { return enclosure.isBracket; });
            return bracket == enclosures_.rend() ? 0 : bracket->outside;
        }
        return enclosures_.empty() ? 0 : enclosures_.back().inside;
    }

    /// Blocks that begin or end. In brackets of the first edition lines may be indented as one likes; there a block is
    /// what comes after a colon.
    void takeEdges(const Piece& piece) {
        for (const TokenType edge : piece.edges) {
            if (edge == TokenType::INDENT) {
                const bool isBlock = enclosures_.empty() || !enclosures_.back().isBracket || isAfterColon_;
                edges_.push_back(isBlock ? enclosures_.size() : NO_BLOCK);
                if (isBlock) {
                    enclosures_.push_back({false, column_ + STEP, column_});
                }
            } else if (!edges_.empty()) {
                closeBlock(edges_.back());
                edges_.pop_back();
            }
        }
    }

    /// A line after the block of a function in brackets would belong to that block if it stood further in than the line
    /// that the function begins on.
    void closeBlock(std::size_t block) {
        const bool isOpen = block != NO_BLOCK && block + 1 == enclosures_.size() && !enclosures_.back().isBracket;
        if (!isOpen) {
            return;
        }
        const std::size_t outside = enclosures_.back().outside;
        enclosures_.pop_back();
        if (!enclosures_.empty() && enclosures_.back().isBracket && outside < enclosures_.back().inside) {
            enclosures_.back().inside = outside;
            enclosures_.back().written.reset();
        }
    }

    void takeBracket(const Piece& piece) {
        if (!piece.isCode()) {
            return;
        }
        isAfterColon_ = piece.type == TokenType::COLON;
        if (piece.isOpeningBracket()) {
            enclosures_.push_back({true, column_ + STEP, column_});
        } else if (piece.isClosingBracket()) {
            while (!enclosures_.empty() && !enclosures_.back().isBracket) {
                enclosures_.pop_back();
            }
            if (!enclosures_.empty()) {
                enclosures_.pop_back();
            }
        }
    }

    /// Lines of comments before a line of code stand with it; but where that leaves blocks or brackets, each stands with the
    /// innermost of them that it is indented as far as.
    void placeComments(const std::vector<Enclosure>& before, const Piece& leader) {
        const bool closesBracket = leader.isClosingBracket() && !before.empty();
        for (const std::size_t comment : comments_) {
            columns_[comment] = column_;
            if (inBrackets_ == InBrackets::Lines) {
                continue;
            }
            if (closesBracket) {
                columns_[comment] = lastBracket(before).inside;
            }
            const auto with = std::find_if(before.rbegin(), before.rend(), [&](const Enclosure& one) {
                return one.written && *one.written <= pieces_[comment].width;
            });
            if (with != before.rend()) {
                columns_[comment] = std::max(columns_[comment], with->inside);
            }
        }
        comments_.clear();
    }

    static const Enclosure& lastBracket(const std::vector<Enclosure>& enclosures) {
        const auto found = std::find_if(enclosures.rbegin(), enclosures.rend(),
                                        [](const Enclosure& enclosure) { return enclosure.isBracket; });
        return found == enclosures.rend() ? enclosures.back() : *found;
    }

    static constexpr std::size_t NO_BLOCK = static_cast<std::size_t>(-1);

    const Pieces& pieces_;
    const InBrackets inBrackets_;
    std::vector<std::size_t> columns_;
    std::vector<Enclosure> enclosures_;
    /// For each open INDENT the number of its block among the enclosures.
    std::vector<std::size_t> edges_;
    /// Of the line at hand.
    std::size_t column_ = 0;
    bool isAfterColon_ = false;
    /// Where the lines of comments begin that wait for the next line of code.
    std::vector<std::size_t> comments_;
};

} // namespace

std::vector<std::size_t> lineColumns(const Pieces& pieces, InBrackets inBrackets) {
    return Walk(pieces, inBrackets).run();
}

} // namespace pozhil::formatter
