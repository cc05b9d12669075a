#include "analysis/hints/token_hints.h"

#include "analysis/hints/name_spelling.h"
#include "language/operators.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace pozhil {
namespace {

constexpr std::size_t NONE = std::string_view::npos;

/// The word of the calculation that a compound assignment is named for: கூட்டு of கூட்டிசேர்.
std::string_view calculationOf(const std::string& compound) {
    const std::string_view symbol = language::compoundArithmetic(compound);
    for (const language::Operator& row : language::operators()) {
        const bool calculates =
            row.kind == language::OperatorKind::Arithmetic || row.kind == language::OperatorKind::Bitwise;
        if (calculates && row.symbol == symbol) {
            return row.word;
        }
    }
    return {};
}

std::string overwriteText(const std::string& compound, const char* where, const std::string& target) {
    return std::string(where) + " '" + compound + "' எதையும் கணக்கிடாது, புதிய மதிப்பை மட்டும் வைக்கும்; '" + target + " = " +
           target + " " + std::string(calculationOf(compound)) + " 10' என்பது போல எழுதவும்.";
}

/// What stands before a compound assignment is an element or a field; anything else but a name is refused.
void findOverwrites(const std::vector<Token>& tokens, HintList& found) {
    for (std::size_t index = 2; index < tokens.size(); ++index) {
        if (tokens[index].type != TokenType::COMPOUND_ASSIGN) {
            continue;
        }
        const std::string& word = tokens[index].value;
        if (tokens[index - 1].type == TokenType::RBRACKET) {
            found.addAtToken(HintKind::CompoundOverwrite, index, overwriteText(word, "பட்டியல், அகராதி உறுப்பில்", "அ[0]"));
        } else if (tokens[index - 2].type == TokenType::DOT) {
            found.addAtToken(HintKind::CompoundOverwrite, index, overwriteText(word, "பொருளின் பண்பில்", "பொருள்.பண்பு"));
        }
    }
}

/// Whether a letter that names can hold by mistake stands anywhere in the text; most programs have none.
bool mayHoldOddLetters(std::string_view text) {
    constexpr std::string_view FIRST_BYTES = "\xC2\xE2\xE3\xEF";
    return std::any_of(FIRST_BYTES.begin(), FIRST_BYTES.end(), [&](char byte) { return text.find(byte) != NONE; });
}

void findOddLetters(const ScannedSource& scanned, HintList& found) {
    if (!mayHoldOddLetters(scanned.source->text)) {
        return;
    }
    for (std::size_t index = 0; index < scanned.tokens.size(); ++index) {
        const Token& token = scanned.tokens[index];
        if (token.type != TokenType::IDENTIFIER) {
            continue;
        }
        if (holdsCurlyQuote(token.value)) {
            found.addAtToken(
                HintKind::CurlyQuote, index,
                "வளைந்த மேற்கோள் குறி (“ ” ‘ ’) உரையைத் தொடங்காது, பெயரின் பகுதியாகிவிடும்; நேரான குறியை (\") எழுதவும்.");
        } else if (holdsOddBlank(token.value)) {
            found.addAtToken(
                HintKind::OddBlank, index,
                "கண்ணுக்குத் தெரியாத சிறப்பு இடைவெளி (non-breaking space) பெயரின் பகுதியாகிவிட்டது; அதை அழித்துவிட்டு "
                "இடைவெளி விசையை அழுத்தவும்.");
        }
    }
}

/// The first token after the letters that the tabs at \p tab eat, which is four less the tab itself for each. NONE where
/// tabs are only part of a text or comment, and where they eat nothing but blanks.
std::size_t tokenAfterEaten(const ScannedSource& scanned, std::size_t tab) {
    constexpr std::size_t TAB_WIDTH = 4;
    constexpr std::string_view BLOCK_COMMENT = "ஃஃ";
    const std::string_view text = scanned.source->text;
    const std::size_t tabsEnd = std::min(text.find_first_not_of('\t', tab), text.size());
    const std::size_t eatenEnd = tab + (tabsEnd - tab) * TAB_WIDTH;
    if (eatenEnd > text.size() || text.substr(tabsEnd, eatenEnd - tabsEnd).find_first_not_of(" \n") == NONE) {
        return NONE;
    }
    const std::size_t lineEnd = std::min(text.find('\n', eatenEnd), text.size());
    const auto isBefore = [](const ByteRange& range, std::size_t position) { return range.begin < position; };
    const auto next = std::lower_bound(scanned.places.begin(), scanned.places.end(), eatenEnd, isBefore);
    const bool isInText = next != scanned.places.begin() && std::prev(next)->end > tab;
    const bool isInComment = text.substr(tab, lineEnd - tab).find(BLOCK_COMMENT) != NONE;
    if (isInText || isInComment || next == scanned.places.end() || next->begin >= lineEnd) {
        return NONE;
    }
    return static_cast<std::size_t>(std::distance(scanned.places.begin(), next));
}

void findTabs(const ScannedSource& scanned, HintList& found) {
    const std::string_view text = scanned.source->text;
    std::size_t tab = text.find('\t');
    while (tab != NONE) {
        const bool beginsLine = tab == 0 || text[tab - 1] == '\n';
        const std::size_t token = beginsLine ? tokenAfterEaten(scanned, tab) : NONE;
        if (token != NONE) {
            found.addAtToken(HintKind::Tab, token,
                             "வரியின் தொடக்கத்தில் உள்ள தத்தல் (Tab) அடுத்துள்ள எழுத்தை விழுங்கிவிடும்; இடைவெளிகளை மட்டும் எழுதவும்.");
        }
        tab = text.find('\t', std::min(text.find_first_not_of('\t', tab), text.size()));
    }
}

} // namespace

void findTokenHints(const ScannedSource& scanned, HintList& found) {
    findOverwrites(scanned.tokens, found);
    if (scanned.places.size() == scanned.tokens.size()) {
        findOddLetters(scanned, found);
        findTabs(scanned, found);
    }
}

} // namespace pozhil
