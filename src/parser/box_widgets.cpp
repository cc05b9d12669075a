#include "parser/bracketed_list.h"
#include "parser/parser.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {
namespace {

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

/// பெட்டி ( items ), or பெட்டி ( சீரமைப்பு : word ) ( items )
Parser::WidgetPtr Parser::parseContainer(const Token& /*word*/) {
    auto container = std::make_unique<ContainerNode>(StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    int level = indentation_;
    atListItem(level);
    if (checkName("சீரமைப்பு")) {
        parseAlignment(*container);
        atListItem(level);
        consume(TokenType::RPAREN, "பொழி-204");
        if (!openFurtherBracket()) {
            பிழை("பொழி-203", peek().line);
        }
        level = indentation_;
    }
    parseItems(level, [&] { parseContainerItem(*container); });
    return container;
}

/// One item. பெட்டி_பாணி is a child as well, which the box takes its look from.
void Parser::parseContainerItem(ContainerNode& container) {
    if (isWidgetToken(peek()) || check(TokenType::PAGE)) {
        container.children.push_back(parseWidget());
    } else if (checkWord(TokenType::ASPECT_RATIO, "விகிதம்")) {
        parseProperty(container.properties, "ratio");
    } else if (parsedAnimation(container)) {
        return;
    } else if (checkWord(TokenType::ON_PRESS, "அழுத்தினால்")) {
        parsePressHandler(container, PressForm::Value);
    } else if (isKeyAhead({TokenType::BOX_BACKGROUND})) {
        parseProperty(container.properties, "பின்னணி");
    } else if (isKeyAhead(CONTAINER_KEYS)) {
        parseProperty(container.properties, peek().value);
    } else {
        advance();
    }
}

/// அட்டை ( properties, style and children in any order )
Parser::WidgetPtr Parser::parseCard(const Token& /*word*/) {
    auto card = std::make_unique<WidgetNode>("அட்டை", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    parseItems(indentation_, [&] {
        if (checkWord(TokenType::CARD_STYLE, "அட்டை_பாணி")) {
            parseStyleBlock(*card, CARD_KEYS);
        } else if (checkName("சீரமைப்பு")) {
            parseAlignment(*card);
        } else if (isKeyAhead(CARD_KEYS)) {
            parseProperty(card->properties, peek().value);
        } else if (isWidgetToken(peek()) || check(TokenType::PAGE)) {
            card->children.push_back(parseWidget());
        } else {
            advance();
        }
    });
    return card;
}

/// பட்டியல்_உருப்படி ( properties and a press handler ). Its parts are widgets that stand as values of properties.
Parser::WidgetPtr Parser::parseListTile(const Token& word) {
    auto tile = std::make_unique<WidgetNode>(word.value, PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    parseItems(indentation_, [&] {
        if (checkWord(TokenType::ON_PRESS, "அழுத்தினால்")) {
            parsePressHandler(*tile, PressForm::ValueOrStatements);
        } else if (isKeyAhead(LIST_TILE_KEYS)) {
            parseProperty(tile->properties, peek().value);
        } else {
            advance();
        }
    });
    return tile;
}

/// உரைபொத்தான் ( properties, style and text )
Parser::WidgetPtr Parser::parseTextButton(const Token& /*word*/) {
    auto button = std::make_unique<WidgetNode>("உரைபொத்தான்", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    openBracket();
    parseItems(indentation_, [&] { parseTextButtonItem(*button); });
    return button;
}

void Parser::parseTextButtonItem(WidgetNode& button) {
    if (isSectionWord()) {
        பிழை("பொழி-204", peek().line);
    } else if (parsedAnimation(button)) {
        return;
    } else if (checkWord(TokenType::ON_PRESS, "அழுத்தினால்")) {
        parsePressHandler(button, PressForm::Value);
    } else if (checkWord(TokenType::TEXT, "உரை")) {
        button.properties.insert_or_assign("உரை", parseTextButtonText());
    } else if (check(TokenType::STRING)) {
        button.properties.insert_or_assign("உரை", parseExpression());
    } else if (isTextButtonStyleAhead()) {
        advance();
        advance();
        parseTextButtonStyle(button);
    } else if (isKeyAhead({TokenType::IDENTIFIER})) {
        parseProperty(button.properties, peek().value);
    } else {
        advance();
    }
}

/// உரை ( value ), உரை : value or உரை value
ExpressionPtr Parser::parseTextButtonText() {
    advance();
    if (!accept(TokenType::LPAREN)) {
        accept(TokenType::COLON);
        return parseExpression();
    }
    const int level = indentation_;
    atListItem(level);
    ExpressionPtr value = parseExpression();
    atListItem(level);
    consume(TokenType::RPAREN, "பொழி-204");
    return value;
}

/// Whether பாணி : உரைபொ_பாணி stands here.
bool Parser::isTextButtonStyleAhead() const {
    const Token& style = peekBehind(2);
    return isKeyAhead({TokenType::STYLE}) && (style.type == TokenType::TEXT_BUTTON_STYLE ||
                                              (style.type == TokenType::IDENTIFIER && style.value == "உரைபொ_பாணி"));
}

/// உரைபொ_பாணி ( properties ), whose keys are whatever stands before a colon.
void Parser::parseTextButtonStyle(WidgetNode& button) {
    advance();
    consume(TokenType::LPAREN, "பொழி-203");
    parseItems(indentation_, [&] {
        if (!peek().value.empty() && peekBehind(1).type == TokenType::COLON) {
            parseProperty(button.properties, "style_" + peek().value);
        } else {
            advance();
        }
    });
}

} // namespace pozhil
