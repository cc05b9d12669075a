#include "base/number_text.h"
#include "parser/bracketed_list.h"
#include "parser/parser.h"
#include "parser/siblings.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {

/// எச்சரிக்கை ( items ) [ ( items ) ]
Parser::WidgetPtr Parser::parseAlert(const Token& /*word*/) {
    auto alert = std::make_unique<WidgetNode>("எச்சரிக்கை", PropertyMap(), StatementList(), சீரமைப்பு_வகை::மையம்);
    openBracket();
    Siblings lists(*this);
    parseAlertItems(*alert);
    if (openFurtherBracket()) {
        lists.next();
        parseAlertItems(*alert);
    }
    return alert;
}

/// Properties, style and children in any order, up to the closing bracket.
void Parser::parseAlertItems(WidgetNode& alert) {
    parseItems(indentation_, [&] {
        if (checkName("சீரமைப்பு")) {
            parseAlignment(alert);
        } else if (checkWord(TokenType::ALERT_STYLE, "எச்சரிக்கை_பாணி")) {
            parseStyleBlock(alert, {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::BACKGROUND,
                                    TokenType::RADIUS, TokenType::SHADOW});
        } else if (isKeyAhead({TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::BACKGROUND})) {
            parseProperty(alert.properties, peek().value);
        } else if (isWidgetToken(peek())) {
            alert.children.push_back(parseWidget());
        } else {
            advance();
        }
    });
}

/// அறிவிப்பு_பட்டை ( properties )
Parser::WidgetPtr Parser::parseSnackBar(const Token& /*word*/) {
    auto bar = std::make_unique<SnackBarNode>(StatementList());
    atListItem(indentation_);
    consume(TokenType::LPAREN, "பொழி-203");
    parseItems(indentation_, [&] {
        if (parsedAnimation(*bar)) {
            return;
        }
        const bool isKey =
            checkOneOf({TokenType::IDENTIFIER, TokenType::TEXT, TokenType::BACKGROUND, TokenType::DURATION});
        const std::string& key = advance().value;
        if (isKey) {
            skipLayout();
            if (accept(TokenType::COLON)) {
                skipLayout();
                parseSnackBarValue(*bar, key);
            }
        }
    });
    return bar;
}

/// The value of a property. A widget as message becomes a child; what the bar itself needs to know is noted besides.
void Parser::parseSnackBarValue(SnackBarNode& bar, const std::string& key) {
    if (key == "செய்தி") {
        if (isSectionWord()) {
            பிழை("பொழி-204", peek().line);
        }
        if (isWidgetToken(peek())) {
            WidgetPtr content = parseWidget();
            bar.content = content.get();
            bar.children.push_back(std::move(content));
            return;
        }
    }
    ExpressionPtr value = parseExpression();
    if (const auto* text = key == "பின்னணி" ? nodeCast<StringLiteral>(value.get()) : nullptr) {
        bar.background = text->value;
    }
    if (const auto* number = key == "காலம்" ? nodeCast<NumberLiteral>(value.get()) : nullptr) {
        bar.durationMs = intOf(number->value);
    }
    bar.properties.insert_or_assign(key, std::move(value));
}

} // namespace pozhil
