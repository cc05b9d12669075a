#include "tools/language_server/requests/folding.h"

#include "base/line_index.h"
#include "base/text.h"
#include "tools/language_server/names.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <vector>

namespace pozhil::language_server {
namespace {

constexpr std::string_view COMMENT_SIGN = "ஃ";

/// Collects ranges of lines, counted from 0; of those that begin on one line the longest.
class Folding {
public:
    explicit Folding(const NamedSource& file) : outline_(*file.outline), text_(file.source->text), lines_(text_) {}

    Json find() {
        findBlocks();
        findComments();
        Json ranges = Json::array();
        for (const auto& [begin, fold] : folds_) {
            Json range = {{"startLine", begin}, {"endLine", fold.end}};
            if (fold.isComment) {
                range["kind"] = "comment";
            }
            ranges.push_back(std::move(range));
        }
        return ranges;
    }

private:
    struct Fold {
        std::size_t end = 0;
        bool isComment = false;
    };

    std::size_t lineOf(std::size_t offset) const { return lines_.lineAt(offset) - 1; }

    void add(std::size_t begin, std::size_t end, bool isComment) {
        if (begin < end && folds_[begin].end < end) {
            folds_[begin] = {end, isComment};
        }
    }

    void findBlocks() {
        std::vector<std::size_t> begins;
        std::size_t last = 0;
        for (std::size_t i = 0; i < outline_.scanned.tokens.size(); ++i) {
            const TokenType type = outline_.token(i).type;
            const bool isBracket =
                type == TokenType::LPAREN || type == TokenType::LBRACKET || type == TokenType::LBRACE;
            const bool isEnd = type == TokenType::RPAREN || type == TokenType::RBRACKET || type == TokenType::RBRACE;
            if (type == TokenType::INDENT) {
                begins.push_back(last);
            } else if (isBracket) {
                begins.push_back(outline_.placeOf(i).begin);
            } else if ((type == TokenType::DEDENT || isEnd) && !begins.empty()) {
                add(lineOf(begins.back()), lineOf(type == TokenType::DEDENT ? last : outline_.placeOf(i).begin), false);
                begins.pop_back();
            }
            const bool isLayout = type == TokenType::NEWLINE || type == TokenType::INDENT ||
                                  type == TokenType::DEDENT || type == TokenType::END_OF_FILE;
            if (!isLayout && outline_.placeOf(i).end > 0) {
                last = outline_.placeOf(i).end - 1;
            }
        }
    }

    void findComments() {
        std::size_t begin = 0;
        bool isOpen = false;
        for (std::size_t line = 0; line <= lines_.count(); ++line) {
            const bool isComment = line < lines_.count() && startsWith(lineText(line), COMMENT_SIGN);
            if (isComment && !isOpen) {
                begin = line;
            } else if (!isComment && isOpen) {
                add(begin, line - 1, true);
            }
            isOpen = isComment;
        }
    }

    std::string_view lineText(std::size_t line) const {
        std::string_view text = std::string_view(text_).substr(lines_.beginOf(line + 1));
        text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
        return text;
    }

    const Outline& outline_;
    const std::string& text_;
    const LineIndex lines_;
    std::map<std::size_t, Fold> folds_;
};

} // namespace

Json foldingRanges(const Workspace& workspace, const Json& params) {
    const Document* document = nullptr;
    return Folding(askedSource(workspace, params, document)).find();
}

} // namespace pozhil::language_server
