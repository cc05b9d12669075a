#include "layout_mangler.h"

#include "front_end/second_edition.h"
#include "scanner/lexer.h"
#include "scanner/second/scanner.h"

#include <algorithm>
#include <cstddef>

using namespace pozhil;

namespace {

constexpr std::size_t STEP = 4;
constexpr std::string_view BLOCK_COMMENT = "ஃஃ";

bool isLayout(TokenType type) {
    return type == TokenType::INDENT || type == TokenType::DEDENT || type == TokenType::NEWLINE ||
           type == TokenType::END_OF_FILE;
}

/// Whether no blank may come between two tokens, or none may go.
bool isBound(TokenType type) {
    return type == TokenType::NUMBER || type == TokenType::DOT || type == TokenType::PERCENT;
}

} // namespace

std::size_t LayoutMangler::below(std::size_t bound) {
    return random_() % bound;
}

std::string LayoutMangler::blanks(std::size_t least, std::size_t most) {
    return std::string(least + below(most - least + 1), ' ');
}

std::string LayoutMangler::indentation(std::size_t width) {
    std::string text;
    for (std::size_t level = 0; level < width / STEP; ++level) {
        text += step_;
    }
    return text + std::string(width % STEP, ' ');
}

/// Lines of comments in another indentation; what stands before the first line end stays.
std::string LayoutMangler::indentedAnew(std::string_view gap) {
    std::string text;
    std::size_t position = std::min(gap.find('\n'), gap.size());
    text += gap.substr(0, position);
    while (position < gap.size()) {
        const std::size_t begin = std::min(gap.find_first_not_of(' ', position + 1), gap.size());
        const std::size_t end = std::min(gap.find('\n', position + 1), gap.size());
        text += '\n' + indentation(begin - position - 1);
        text += gap.substr(begin, end - begin);
        position = end;
    }
    return text;
}

/// Blanks between tokens.
void LayoutMangler::addGap(std::string_view gap, bool isFixed, std::string& text) {
    if (isFixed) {
        text += gap;
        return;
    }
    if (gap.find_first_not_of(" \n") != std::string_view::npos) {
        text += indentedAnew(gap);
        return;
    }
    const std::size_t lastLine = gap.rfind('\n');
    if (lastLine == std::string_view::npos) {
        text += blanks(gap.empty() ? 0 : 1, gap.empty() ? 1 : 3);
        return;
    }
    const auto lines = static_cast<std::size_t>(std::count(gap.begin(), gap.end(), '\n'));
    text += blanks(0, 2) + std::string(lines, '\n');
    if (lines > 1) {
        text += std::string(below(3), '\n');
    }
    text += indentation(gap.size() - lastLine - 1);
}

std::string LayoutMangler::mangled(const SourcePtr& source) {
    SecondFaults faults;
    const bool isSecond = editionOf(source, faults) == Edition::Second;
    const ScannedSource scanned = isSecond ? second::scanSecondEdition(source, faults) : Lexer(source).scan();
    const std::vector<std::string> steps =
        isSecond ? std::vector<std::string>{"\t", " ", "   ", "      "} : std::vector<std::string>{" ", "  ", "      "};
    // Comments over lines keep their blanks, and so does what stands beside them.
    const bool hasComments = source->text.find(BLOCK_COMMENT) != std::string::npos;
    step_ = hasComments ? std::string(STEP, ' ') : steps[below(steps.size())];
    const std::string_view all = source->text;
    std::string text;
    std::size_t position = 0;
    TokenType before = TokenType::NUMBER;
    for (std::size_t index = 0; index < scanned.tokens.size(); ++index) {
        const TokenType type = scanned.tokens[index].type;
        const ByteRange place = scanned.places[index];
        if (isLayout(type) || place.begin < position) {
            continue;
        }
        const std::string_view gap = all.substr(position, place.begin - position);
        const bool isFixed = gap.find(';') != std::string_view::npos ||
                             gap.find(BLOCK_COMMENT) != std::string_view::npos ||
                             (gap.find('\n') == std::string_view::npos && (isBound(before) || isBound(type)));
        addGap(gap, isFixed, text);
        text += all.substr(place.begin, place.end - place.begin);
        position = place.end;
        before = type;
    }
    return text + std::string(all.substr(position));
}
