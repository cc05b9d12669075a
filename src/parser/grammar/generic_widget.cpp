#include "parser/grammar/generic_widget.h"

#include "language/property_words.h"
#include "language/widget_words.h"
#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pozhil {
namespace {

namespace property = language::property;

/// The words of பொ_பாணி. The first one isn't kept under its own name.
constexpr std::array<std::string_view, 9> BUTTON_STYLE_WORDS = {
    property::BUTTON_BACKGROUND,
    property::TEXT_COLOUR,
    property::RADIUS,
    property::SHADOW,
    property::WIDTH,
    property::HEIGHT,
    property::HOVER_COLOUR,
    property::BORDER_COLOUR,
    property::BORDER_SIZE,
};

/// Types of the keys that a widget of the general form has.
constexpr std::initializer_list<TokenType> GENERIC_KEYS = {
    TokenType::IDENTIFIER,
    TokenType::TITLE,
    TokenType::TEXT,
    TokenType::HEIGHT,
    TokenType::WIDTH,
    TokenType::HINT,
    TokenType::TAB_SELECT,
    TokenType::BACKGROUND,
    TokenType::BOTTOM_NAV_SELECT,
    TokenType::BOX_BACKGROUND,
    TokenType::SELECTED_COLOR,
    TokenType::UNSELECTED_COLOR,
    TokenType::RADIUS,
    TokenType::SHADOW,
    TokenType::ASPECT_RATIO,
    TokenType::BORDER_SIZE,
    TokenType::BORDER_COLOR,
    TokenType::PAGE,
    TokenType::TEXT_COLOR,
    TokenType::SEARCH_HINT,
    TokenType::SEARCH_ICON,
    TokenType::CLEAR_ICON,
    TokenType::FONT_SIZE,
    TokenType::FIELD_BACKGROUND,
    TokenType::BUTTON_BACKGROUND,
    TokenType::BACKGROUND_IMAGE,
};

} // namespace

WidgetPtr GenericWidgetGrammar::parseGenericWidget(const Token& word) {
    auto widget = std::make_unique<WidgetNode>(word.value, PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    cursor_.skipNewlines();
    cursor_.consume(TokenType::LPAREN, "பொழி-203", word.line);
    int positionals = 0;
    parseItems(
        cursor_.indentation(), [&] { parseGenericItem(*widget, positionals); }, word.line);
    return widget;
}

/// One item. A value without a key is the widget's text; further ones are numbered.
void GenericWidgetGrammar::parseGenericItem(WidgetNode& widget, int& positionals) {
    if (tryParseGenericStyle(widget) || tryParseAnimation(widget)) {
        return;
    }
    if (cursor_.checkWord(TokenType::ON_PRESS, property::ON_PRESS)) {
        parsePressHandler(widget, PressForm::ValueOrStatements);
    } else if (cursor_.checkName(property::ALIGNMENT)) {
        parseAlignment(widget);
    } else if (cursor_.isKeyAhead(GENERIC_KEYS) || cursor_.checkName(property::ID)) {
        parseProperty(widget.properties, cursor_.peek().value);
    } else if (isWidgetToken(cursor_.peek()) ||
               cursor_.checkOneOf({TokenType::HEADER, TokenType::UI_BODY, TokenType::PAGE})) {
        widget.children.push_back(parseWidget());
    } else {
        const std::string key = positionals == 0 ? std::string(property::TEXT) : "arg" + std::to_string(positionals);
        ++positionals;
        widget.properties.insert_or_assign(key, parseExpression());
    }
}

/// Takes a style block if one stands here.
bool GenericWidgetGrammar::tryParseGenericStyle(WidgetNode& widget) {
    if (cursor_.checkWord(TokenType::STYLE, property::TEXT_STYLE)) {
        parseTextStyle(widget);
    } else if (cursor_.check(TokenType::BUTTON_STYLE)) {
        parseButtonStyle(widget);
    } else if (cursor_.checkWord(TokenType::SEARCH_STYLE, language::widget::SEARCH_STYLE)) {
        parseStyleBlock(widget, {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT,
                                 TokenType::FIELD_BACKGROUND, TokenType::FONT_SIZE, TokenType::RADIUS});
    } else if (cursor_.checkWord(TokenType::ALERT_STYLE, property::DIALOG_STYLE)) {
        parseStyleBlock(widget, {TokenType::IDENTIFIER, TokenType::WIDTH, TokenType::HEIGHT, TokenType::BACKGROUND,
                                 TokenType::RADIUS, TokenType::SHADOW});
    } else {
        return false;
    }
    return true;
}

/// பொ_பாணி ( properties of the button's look ). Other words are passed over.
void GenericWidgetGrammar::parseButtonStyle(WidgetNode& widget) {
    cursor_.advance();
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    parseItems(cursor_.indentation(), [&] {
        const Token& word = cursor_.peek();
        const bool isKey =
            word.type != TokenType::STRING &&
            std::find(BUTTON_STYLE_WORDS.begin(), BUTTON_STYLE_WORDS.end(), word.value) != BUTTON_STYLE_WORDS.end();
        if (isKey) {
            const std::string_view name = word.value == property::BUTTON_BACKGROUND ? property::BACKGROUND : word.value;
            parseProperty(widget.properties, "style_" + std::string(name));
        } else {
            cursor_.advance();
        }
    });
}

} // namespace pozhil
