#include "parser/grammar/message_widgets.h"

#include "base/number_text.h"
#include "language/property_words.h"
#include "language/widget_words.h"
#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {
namespace {

namespace property = language::property;

} // namespace

WidgetPtr MessageGrammar::parseAlert(const Token& /*word*/) {
    auto alert =
        std::make_unique<WidgetNode>(language::widget::DIALOG, PropertyMap(), StatementList(), சீரமைப்பு_வகை::மையம்);
    openBracket();
    SideBySide lists(nesting_);
    parseAlertItems(*alert);
    if (openFurtherBracket()) {
        lists.next();
        parseAlertItems(*alert);
    } else {
        skipLinesAfterList();
    }
    return alert;
}

/// Properties, style and children in any order, up to the closing bracket.
void MessageGrammar::parseAlertItems(WidgetNode& alert) {
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.checkName(property::ALIGNMENT)) {
            parseAlignment(alert);
        } else if (cursor_.checkWord(TokenType::ALERT_STYLE, property::DIALOG_STYLE)) {
            parseStyleBlock(alert, {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::BACKGROUND,
                                    TokenType::RADIUS, TokenType::SHADOW});
        } else if (cursor_.isKeyAhead(
                       {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::BACKGROUND})) {
            parseProperty(alert.properties, cursor_.peek().value);
        } else if (isWidgetToken(cursor_.peek())) {
            alert.children.push_back(parseWidget());
        } else {
            cursor_.advance();
        }
    });
}

WidgetPtr MessageGrammar::parseSnackBar(const Token& /*word*/) {
    auto bar = std::make_unique<SnackBarNode>(StatementList());
    cursor_.atListItem(cursor_.indentation());
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    parseItems(cursor_.indentation(), [&] { parseSnackBarItem(*bar); });
    return bar;
}

void MessageGrammar::parseSnackBarItem(SnackBarNode& bar) {
    if (tryParseAnimation(bar)) {
        return;
    }
    const bool isKey =
        cursor_.checkOneOf({TokenType::IDENTIFIER, TokenType::TEXT, TokenType::BACKGROUND, TokenType::DURATION});
    const std::string& key = cursor_.advance().value;
    if (isKey) {
        cursor_.skipLayout();
        if (cursor_.accept(TokenType::COLON)) {
            cursor_.skipLayout();
            parseSnackBarValue(bar, key);
        }
    }
}

/// The value of a property. A widget as message becomes a child; what the bar itself needs to know is noted besides.
void MessageGrammar::parseSnackBarValue(SnackBarNode& bar, const std::string& key) {
    if (key == property::MESSAGE) {
        if (cursor_.isSectionWord()) {
            cursor_.பிழை("பொழி-204", cursor_.peek().line);
        }
        if (isWidgetToken(cursor_.peek())) {
            WidgetPtr content = parseWidget();
            bar.content = content.get();
            bar.children.push_back(std::move(content));
            return;
        }
    }
    ExpressionPtr value = parseExpression();
    if (const auto* text = key == property::BACKGROUND ? nodeCast<StringLiteral>(value.get()) : nullptr) {
        bar.background = text->value;
    }
    if (const auto* number = key == property::DURATION ? nodeCast<NumberLiteral>(value.get()) : nullptr) {
        bar.durationMs = intOf(number->value);
    }
    bar.properties.insert_or_assign(key, std::move(value));
}

} // namespace pozhil
