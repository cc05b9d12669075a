#include "parser/grammar/box_widgets.h"

#include "language/property_words.h"
#include "language/widget_words.h"
#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {
namespace {

namespace property = language::property;

/// Types of the keys for the look of a box.
constexpr std::initializer_list<TokenType> CARD_KEYS = {TokenType::IDENTIFIER, TokenType::WIDTH,      TokenType::HEIGHT,
                                                        TokenType::ELEVATION,  TokenType::BACKGROUND, TokenType::RADIUS,
                                                        TokenType::SHADOW};
constexpr std::initializer_list<TokenType> CONTAINER_KEYS = {
    TokenType::IDENTIFIER,       TokenType::WIDTH,  TokenType::HEIGHT, TokenType::BACKGROUND,
    TokenType::BACKGROUND_IMAGE, TokenType::RADIUS, TokenType::SHADOW};
constexpr std::initializer_list<TokenType> LIST_TILE_KEYS = {TokenType::IDENTIFIER, TokenType::TITLE,
                                                             TokenType::WIDTH,      TokenType::HEIGHT,
                                                             TokenType::BACKGROUND, TokenType::RADIUS};

} // namespace

WidgetPtr BoxGrammar::parseContainer(const Token& /*word*/) {
    auto container = std::make_unique<ContainerNode>(StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    int level = cursor_.indentation();
    cursor_.atListItem(level);
    if (cursor_.checkName(property::ALIGNMENT)) {
        parseAlignment(*container);
        cursor_.atListItem(level);
        cursor_.consume(TokenType::RPAREN, "பொழி-204");
        if (!openFurtherBracket()) {
            cursor_.பிழை("பொழி-203", cursor_.peek().line);
        }
        level = cursor_.indentation();
    }
    parseItems(level, [&] { parseContainerItem(*container); });
    return container;
}

/// One item. பெட்டி_பாணி is a child as well, which the box takes its look from.
void BoxGrammar::parseContainerItem(ContainerNode& container) {
    if (isWidgetToken(cursor_.peek()) || cursor_.check(TokenType::PAGE)) {
        container.children.push_back(parseWidget());
    } else if (cursor_.checkWord(TokenType::ASPECT_RATIO, property::ASPECT_RATIO)) {
        parseProperty(container.properties, "ratio");
    } else if (tryParseAnimation(container)) {
        return;
    } else if (cursor_.checkWord(TokenType::ON_PRESS, property::ON_PRESS)) {
        parsePressHandler(container, PressForm::ValueFreelyClosed);
    } else if (cursor_.isKeyAhead({TokenType::BOX_BACKGROUND})) {
        parseProperty(container.properties, property::BACKGROUND);
    } else if (cursor_.isKeyAhead(CONTAINER_KEYS)) {
        parseProperty(container.properties, cursor_.peek().value);
    } else {
        cursor_.advance();
    }
}

WidgetPtr BoxGrammar::parseCard(const Token& /*word*/) {
    auto card =
        std::make_unique<WidgetNode>(language::widget::CARD, PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.checkWord(TokenType::CARD_STYLE, language::widget::CARD_STYLE)) {
            parseStyleBlock(*card, CARD_KEYS);
        } else if (cursor_.checkName(property::ALIGNMENT)) {
            parseAlignment(*card);
        } else if (cursor_.isKeyAhead(CARD_KEYS)) {
            parseProperty(card->properties, cursor_.peek().value);
        } else if (isWidgetToken(cursor_.peek()) || cursor_.check(TokenType::PAGE)) {
            card->children.push_back(parseWidget());
        } else {
            cursor_.advance();
        }
    });
    return card;
}

WidgetPtr BoxGrammar::parseListTile(const Token& word) {
    auto tile = std::make_unique<WidgetNode>(word.value, PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.checkWord(TokenType::ON_PRESS, property::ON_PRESS)) {
            parsePressHandler(*tile, PressForm::ValueOrStatements);
        } else if (cursor_.isKeyAhead(LIST_TILE_KEYS)) {
            parseProperty(tile->properties, cursor_.peek().value);
        } else {
            cursor_.advance();
        }
    });
    return tile;
}

WidgetPtr BoxGrammar::parseTextButton(const Token& /*word*/) {
    auto button = std::make_unique<WidgetNode>(language::widget::TEXT_BUTTON, PropertyMap(), StatementList(),
                                               சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    parseItems(cursor_.indentation(), [&] { parseTextButtonItem(*button); });
    return button;
}

void BoxGrammar::parseTextButtonItem(WidgetNode& button) {
    if (cursor_.isSectionWord()) {
        cursor_.பிழை("பொழி-204", cursor_.peek().line);
    } else if (tryParseAnimation(button)) {
        return;
    } else if (cursor_.checkWord(TokenType::ON_PRESS, property::ON_PRESS)) {
        parsePressHandler(button, PressForm::Value);
    } else if (cursor_.checkWord(TokenType::TEXT, language::widget::TEXT)) {
        button.properties.insert_or_assign(std::string(property::TEXT), parseTextButtonText());
    } else if (cursor_.check(TokenType::STRING)) {
        button.properties.insert_or_assign(std::string(property::TEXT), parseExpression());
    } else if (isTextButtonStyleAhead()) {
        cursor_.advance();
        cursor_.advance();
        parseTextButtonStyle(button);
    } else if (cursor_.isKeyAhead({TokenType::IDENTIFIER})) {
        parseProperty(button.properties, cursor_.peek().value);
    } else {
        cursor_.advance();
    }
}

/// உரை ( value ), உரை : value or உரை value
ExpressionPtr BoxGrammar::parseTextButtonText() {
    cursor_.advance();
    if (!cursor_.accept(TokenType::LPAREN)) {
        cursor_.accept(TokenType::COLON);
        return parseExpression();
    }
    const int level = cursor_.indentation();
    cursor_.atListItem(level);
    ExpressionPtr value = parseExpression();
    cursor_.atListItem(level);
    cursor_.consume(TokenType::RPAREN, "பொழி-204");
    return value;
}

/// Whether பாணி : உரைபொ_பாணி stands here.
bool BoxGrammar::isTextButtonStyleAhead() const {
    const Token& style = cursor_.peekAhead(2);
    return cursor_.isKeyAhead({TokenType::STYLE}) &&
           (style.type == TokenType::TEXT_BUTTON_STYLE ||
            (style.type == TokenType::IDENTIFIER && style.value == property::TEXT_BUTTON_STYLE));
}

/// உரைபொ_பாணி ( properties ), whose keys are whatever stands before a colon.
void BoxGrammar::parseTextButtonStyle(WidgetNode& button) {
    cursor_.advance();
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    parseItems(cursor_.indentation(), [&] {
        if (!cursor_.peek().value.empty() && cursor_.peekAhead(1).type == TokenType::COLON) {
            parseProperty(button.properties, "style_" + cursor_.peek().value);
        } else {
            cursor_.advance();
        }
    });
}

} // namespace pozhil
