#include "parser/bracketed_list.h"
#include "parser/parser.h"
#include "parser/widget_tokens.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace pozhil {
namespace {

/// Words of the alignments in the order of their values.
constexpr std::array<std::string_view, 9> ALIGNMENT_WORDS = {
    "மேல்_இடது", "மேல்_மையம்", "மேல்_வலது", "மைய_இடது", "மையம்", "மைய_வலது", "கீழ்_இடது", "கீழ்_மையம்", "கீழ்_வலது",
};

/// The word that an alignment is given by: a plain name, or the last of several joined by dots. A text is none.
std::string_view alignmentWord(const Expression& value) {
    if (const auto* get = nodeCast<GetExpression>(&value)) {
        return get->member.value;
    }
    const auto* variable = nodeCast<VariableAccess>(&value);
    return variable == nullptr ? std::string_view() : std::string_view(variable->name);
}

} // namespace

/// The parser of the widget that \p word begins.
Parser::WidgetParser Parser::widgetParser(const Token& word) {
    struct Row {
        TokenType type;
        std::string_view word;
        WidgetParser parse;
    };
    static constexpr std::array<Row, 18> rows = {{
        {TokenType::WRAP, "மடிப்பு", &Parser::parsePlainLayout},
        {TokenType::EXPANDED, "விரிவாக்கம்", &Parser::parseExpanded},
        {TokenType::FLEXIBLE, "நெகிழ்வு", &Parser::parseFlexible},
        {TokenType::FLEX_SHARE, "பங்கு", &Parser::parseFlexible},
        {TokenType::SPACER, "வெற்றிடம்", &Parser::parseSpacer},
        {TokenType::LIST_VIEW, "பட்டியல்_காட்சி", &Parser::parseListView},
        {TokenType::GRID_VIEW, "கட்டம்_காட்சி", &Parser::parseGridView},
        {TokenType::CONTAINER, "பெட்டி", &Parser::parseContainer},
        {TokenType::INNER_PADDING, "உள்_இவெ", &Parser::parsePadding},
        {TokenType::INNER_PADDING, "உள்_இவே", &Parser::parsePadding},
        {TokenType::COLUMN, "நெடுவரிசை", &Parser::parseColumn},
        {TokenType::ROW, "கிடைவரிசை", &Parser::parseRow},
        {TokenType::STACK, "அடுக்கி", &Parser::parsePlainLayout},
        {TokenType::TEXT_BUTTON, "உரைபொத்தான்", &Parser::parseTextButton},
        {TokenType::SNACKBAR, "அறிவிப்பு_பட்டை", &Parser::parseSnackBar},
        {TokenType::CARD, "அட்டை", &Parser::parseCard},
        {TokenType::LIST_TILE, "பட்டியல்_உருப்படி", &Parser::parseListTile},
        {TokenType::ALERT, "எச்சரிக்கை", &Parser::parseAlert},
    }};
    const auto* found = std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
        return word.type == row.type || (word.type == TokenType::IDENTIFIER && word.value == row.word);
    });
    return found == rows.end() ? &Parser::parseGenericWidget : found->parse;
}

/// A widget, whatever its first token: what has no parser of its own has the general form.
Parser::WidgetPtr Parser::parseWidget() {
    enterNesting();
    const Token& word = advance();
    WidgetPtr widget = (this->*widgetParser(word))(word);
    widget->line = word.line;
    return widget;
}

/// Whether a word stands here that begins a widget where a value is expected: only with its bracket, which may follow on
/// a later line.
bool Parser::isWidgetAhead() const {
    const bool isWord = checkOneOf({TokenType::HEADER, TokenType::UI_BODY, TokenType::STYLE, TokenType::ON_PRESS,
                                    TokenType::WIDTH, TokenType::HEIGHT}) ||
                        (isWidgetToken(peek()) && !check(TokenType::IDENTIFIER));
    if (!isWord) {
        return false;
    }
    std::size_t offset = 1;
    while (peekBehind(offset).type == TokenType::NEWLINE) {
        ++offset;
    }
    return peekBehind(offset).type == TokenType::LPAREN;
}

ExpressionPtr Parser::parseWidgetExpression() {
    const std::int32_t line = peek().line;
    auto slot = std::make_unique<WidgetExpression>(parseWidget());
    slot->line = line;
    return slot;
}

/// The bracket of a widget's list.
void Parser::openBracket() {
    skipNewlines();
    consume(TokenType::LPAREN, "பொழி-203");
}

/// Takes the bracket of a further list of the same widget if it stands here or on a later line. If it doesn't, the lines
/// in between are left to whatever the widget stands in.
bool Parser::openFurtherBracket() {
    std::size_t offset = 0;
    for (TokenType type = peek().type;
         type == TokenType::NEWLINE || type == TokenType::INDENT || type == TokenType::DEDENT;
         type = peekBehind(offset).type) {
        ++offset;
    }
    if (peekBehind(offset).type != TokenType::LPAREN) {
        return false;
    }
    for (; offset > 0; --offset) {
        advance();
    }
    return accept(TokenType::LPAREN);
}

bool Parser::checkName(std::string_view text) const {
    return (check(TokenType::IDENTIFIER) || check(TokenType::KEYWORD)) && peek().value == text;
}

/// Whether a token of this type stands here, or the word where it arrives as a plain name.
bool Parser::checkWord(TokenType type, std::string_view text) const {
    return check(type) || checkName(text);
}

bool Parser::checkOneOf(TokenKinds kinds) const {
    return !is_at_end() && std::find(kinds.begin(), kinds.end(), peek().type) != kinds.end();
}

/// Whether a key of one of these types stands here with its colon.
bool Parser::isKeyAhead(TokenKinds kinds) const {
    return checkOneOf(kinds) && peekBehind(1).type == TokenType::COLON;
}

/// The sections of an application: where one begins inside a widget, the widget's bracket was left open.
bool Parser::isSectionWord() const {
    return checkOneOf({TokenType::DEFINITION, TokenType::UI_BODY, TokenType::HEADER});
}

/// The colon and value behind a key.
ExpressionPtr Parser::parsePropertyValue() {
    consume(TokenType::COLON, "பொழி-202");
    return parseExpression();
}

/// The key at the cursor, its colon and value, kept under \p name.
void Parser::parseProperty(PropertyMap& properties, const std::string& name) {
    advance();
    properties.insert_or_assign(name, parsePropertyValue());
}

/// சீரமைப்பு : word. Any other value leaves the alignment as it was.
void Parser::parseAlignment(WidgetNode& widget) {
    advance();
    const ExpressionPtr value = parsePropertyValue();
    const auto* found = std::find(ALIGNMENT_WORDS.begin(), ALIGNMENT_WORDS.end(), alignmentWord(*value));
    if (found != ALIGNMENT_WORDS.end()) {
        widget.alignment = static_cast<சீரமைப்பு_வகை>(std::distance(ALIGNMENT_WORDS.begin(), found));
    }
}

/// Takes அசைவூட்டம் and its block if they stand here.
bool Parser::parsedAnimation(WidgetNode& widget) {
    if (!checkWord(TokenType::ANIMATION, "அசைவூட்டம்")) {
        return false;
    }
    advance();
    widget.animation = parseAnimation();
    return true;
}

/// The word of a style at the cursor and its block. Keys of these types are kept as style_key, anything else is passed
/// over.
void Parser::parseStyleBlock(WidgetNode& widget, TokenKinds kinds) {
    advance();
    consume(TokenType::LPAREN, "பொழி-203");
    parseItems(indentation_, [&] {
        if (isKeyAhead(kinds)) {
            parseProperty(widget.properties, "style_" + peek().value);
        } else {
            advance();
        }
    });
}

} // namespace pozhil
