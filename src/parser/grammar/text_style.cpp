#include "parser/grammar/generic_widget.h"

#include "base/number_text.h"
#include "language/property_words.h"
#include "parser/file_parse.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pozhil {
namespace {

namespace property = language::property;

/// Keys that describe the widget's box rather than its text.
constexpr std::array<std::string_view, 5> BOX_KEYS = {property::WIDTH, property::HEIGHT, property::RADIUS,
                                                      property::BACKGROUND, property::SHADOW};

const std::string* textOf(const Expression& value) {
    const auto* text = nodeCast<StringLiteral>(&value);
    return text == nullptr ? nullptr : &text->value;
}

const std::string* wordOf(const Expression& value) {
    const auto* variable = nodeCast<VariableAccess>(&value);
    return variable == nullptr ? textOf(value) : &variable->name;
}

void setColor(TextStyle& style, const Expression& value) {
    if (const auto* color = nodeCast<ColorExpression>(&value)) {
        style.color = color->isHex ? color->hexValue : color->colorName;
    } else if (const std::string* word = wordOf(value)) {
        style.color = *word;
    }
}

void setSize(TextStyle& style, const Expression& value) {
    if (const auto* whole = nodeCast<NumberLiteral>(&value)) {
        style.size = floatOf(whole->value);
    } else if (const auto* number = nodeCast<DoubleLiteral>(&value)) {
        style.size = floatOf(number->value);
    }
}

void setWeight(TextStyle& style, const Expression& value) {
    if (const std::string* text = textOf(value)) {
        style.weight = *text == "தடிமனான" || *text == "bold" ? "700" : "400";
    } else if (const auto* number = nodeCast<NumberLiteral>(&value)) {
        style.weight = number->value;
    }
}

void setAlignment(TextStyle& style, const Expression& value) {
    if (const auto* get = nodeCast<GetExpression>(&value)) {
        style.align = get->member.value;
    } else if (const std::string* word = wordOf(value)) {
        style.align = *word;
    }
}

void setFont(TextStyle& style, const Expression& value) {
    if (const std::string* path = textOf(value)) {
        style.font = *path;
    }
}

void setUnderline(TextStyle& style, const Expression& value) {
    if (const auto* boolean = nodeCast<BooleanLiteral>(&value)) {
        style.underline = boolean->value == "மெய்";
    }
}

struct StyleKey {
    std::string_view key;
    /// Passes over values of other kinds.
    void (*set)(TextStyle& style, const Expression& value);
};

constexpr std::array<StyleKey, 7> STYLE_KEYS = {{
    {property::COLOUR, setColor},
    {property::SIZE, setSize},
    {property::WEIGHT, setWeight},
    {property::ALIGNMENT, setAlignment},
    {property::TEXT_ALIGNMENT, setAlignment},
    {property::FONT, setFont},
    {property::UNDERLINE, setUnderline},
}};

void storeStyle(WidgetNode& widget, const std::string& key, ExpressionPtr value) {
    if (std::find(BOX_KEYS.begin(), BOX_KEYS.end(), key) != BOX_KEYS.end()) {
        widget.properties.insert_or_assign("style_" + key, std::move(value));
        return;
    }
    const auto* found =
        std::find_if(STYLE_KEYS.begin(), STYLE_KEYS.end(), [&](const StyleKey& row) { return row.key == key; });
    if (found != STYLE_KEYS.end()) {
        found->set(widget.style, *value);
    }
}

} // namespace

/// பாணி ( keys with values ), under any of its words. Keys without a meaning are dropped with their values.
void GenericWidgetGrammar::parseTextStyle(WidgetNode& widget) {
    cursor_.advance();
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    parseItems(cursor_.indentation(), [&] {
        if (!cursor_.checkOneOf({TokenType::IDENTIFIER, TokenType::STYLE, TokenType::NUMBER, TokenType::BACKGROUND,
                                 TokenType::HEIGHT, TokenType::SOURCE, TokenType::WIDTH, TokenType::RADIUS,
                                 TokenType::SHADOW})) {
            cursor_.பிழை("பொழி-252", cursor_.peek().line);
        }
        const std::string& key = cursor_.advance().value;
        cursor_.skipNewlines();
        cursor_.consume(TokenType::COLON, "பொழி-202");
        cursor_.skipNewlines();
        storeStyle(widget, key, parseExpression());
    });
}

} // namespace pozhil
