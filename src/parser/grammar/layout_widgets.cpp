#include "parser/grammar/layout_widgets.h"

#include "base/number_text.h"
#include "language/property_words.h"
#include "language/widget_words.h"
#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {
namespace {

namespace property = language::property;

constexpr std::initializer_list<TokenType> SIZED_KEYS = {TokenType::IDENTIFIER, TokenType::HEIGHT, TokenType::WIDTH};

std::unique_ptr<WidgetNode> emptyWidget(const Token& word) {
    return std::make_unique<WidgetNode>(word.value, PropertyMap(), StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
}

/// A list view has no alignment and takes whatever stands in it for a child.
bool isListView(const WidgetNode& widget) {
    return nodeCast<ListViewNode>(&widget) != nullptr;
}

void setFlex(FlexibleNode& widget, const Expression& value) {
    if (const auto* number = nodeCast<NumberLiteral>(&value)) {
        widget.flex = intOf(number->value);
    }
}

} // namespace

WidgetPtr LayoutGrammar::parseColumn(const Token& word) {
    auto column = std::make_unique<ColumnNode>(StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    parseLayout(*column, word);
    return column;
}

WidgetPtr LayoutGrammar::parseRow(const Token& word) {
    auto row = std::make_unique<RowNode>(StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    parseLayout(*row, word);
    return row;
}

WidgetPtr LayoutGrammar::parseListView(const Token& word) {
    auto list = std::make_unique<ListViewNode>(StatementList());
    parseLayout(*list, word);
    return list;
}

WidgetPtr LayoutGrammar::parsePlainLayout(const Token& word) {
    auto widget = emptyWidget(word);
    parseLayout(*widget, word);
    return widget;
}

/// word ( properties ) [ ( children ) ], or word ( children ). The first token tells which.
void LayoutGrammar::parseLayout(WidgetNode& widget, const Token& word) {
    openBracket();
    const int level = cursor_.indentation();
    cursor_.atListItem(level);
    const auto isAlignment = [&] { return !isListView(widget) && cursor_.checkName(property::ALIGNMENT); };
    if (!isAlignment() && !cursor_.checkWord(TokenType::ANIMATION, property::ANIMATION) &&
        !cursor_.isKeyAhead(SIZED_KEYS)) {
        parseChildren(widget, word.line, level);
        return;
    }
    SideBySide lists(nesting_);
    parseItems(level, [&] {
        if (isAlignment()) {
            parseAlignment(widget);
        } else if (cursor_.isKeyAhead(SIZED_KEYS)) {
            parseProperty(widget.properties, cursor_.peek().value);
        } else if (!tryParseAnimation(widget)) {
            cursor_.advance();
        }
    });
    if (openFurtherBracket()) {
        lists.next();
        parseChildren(widget, word.line, cursor_.indentation());
    } else {
        skipLinesAfterList();
    }
}

/// Widgets up to the closing bracket.
/// \param line of the word of the widget that they stand in
/// \param level of the line that opened the list
void LayoutGrammar::parseChildren(WidgetNode& widget, std::int32_t line, int level) {
    parseItems(level, [&] {
        if (!isListView(widget) && cursor_.isSectionWord()) {
            cursor_.பிழை("பொழி-204", widget.children.empty() ? line : widget.children.back()->line);
        }
        widget.children.push_back(parseWidget());
    });
}

WidgetPtr LayoutGrammar::parseGridView(const Token& word) {
    auto grid = std::make_unique<GridViewNode>(StatementList());
    openBracket();
    SideBySide lists(nesting_);
    parseItems(cursor_.indentation(), [&] { parseGridProperty(*grid); });
    cursor_.skipLayout();
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    lists.next();
    parseChildren(*grid, word.line, cursor_.indentation());
    return grid;
}

void LayoutGrammar::parseGridProperty(GridViewNode& grid) {
    if (tryParseAnimation(grid)) {
        return;
    }
    if (cursor_.check(TokenType::CROSS_AXIS_COUNT)) {
        parseProperty(grid.properties, "cols");
    } else if (cursor_.check(TokenType::PADDING)) {
        parseGridGaps(grid);
    } else if (cursor_.checkWord(TokenType::WIDTH, property::WIDTH)) {
        parseProperty(grid.properties, "width");
    } else if (cursor_.checkWord(TokenType::HEIGHT, property::HEIGHT)) {
        parseProperty(grid.properties, "height");
    } else if (cursor_.checkName("cols") || cursor_.isKeyAhead({TokenType::IDENTIFIER})) {
        parseProperty(grid.properties, cursor_.peek().value);
    } else {
        cursor_.advance();
    }
}

/// இவெ ( உயரம் : value, அகலம் : value ), the gaps between rows and between columns.
void LayoutGrammar::parseGridGaps(GridViewNode& grid) {
    cursor_.advance();
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.checkWord(TokenType::HEIGHT, property::HEIGHT)) {
            parseProperty(grid.properties, "v_gap");
        } else if (cursor_.checkWord(TokenType::WIDTH, property::WIDTH)) {
            parseProperty(grid.properties, "h_gap");
        } else {
            cursor_.advance();
        }
    });
}

WidgetPtr LayoutGrammar::parseExpanded(const Token& /*word*/) {
    auto expanded = std::make_unique<ExpandedNode>(StatementList());
    parseFlexItems(*expanded, [&] {
        const bool isShare = cursor_.checkWord(TokenType::FLEX_SHARE, language::widget::SHARE);
        if (isShare) {
            parseProperty(expanded->properties, "flex");
        }
        return isShare;
    });
    return expanded;
}

WidgetPtr LayoutGrammar::parseFlexible(const Token& /*word*/) {
    auto flexible = std::make_unique<FlexibleNode>(1, StatementList());
    parseFlexItems(*flexible, [&] {
        const bool isShare = cursor_.checkWord(TokenType::FLEX_SHARE, language::widget::SHARE) ||
                             cursor_.isKeyAhead({TokenType::ASPECT_RATIO});
        if (isShare) {
            cursor_.advance();
            setFlex(*flexible, *parsePropertyValue());
        }
        return isShare;
    });
    return flexible;
}

/// word ( properties and children in any order )
/// \param parsedShare takes the share of the free space if it stands at the cursor
template <class TryParseShare>
void LayoutGrammar::parseFlexItems(WidgetNode& widget, const TryParseShare& tryParseShare) {
    openBracket();
    parseItems(cursor_.indentation(), [&] {
        if (tryParseAnimation(widget) || tryParseShare()) {
            return;
        }
        if (cursor_.isKeyAhead({TokenType::IDENTIFIER})) {
            parseProperty(widget.properties, cursor_.peek().value);
        } else if (isWidgetToken(cursor_.peek()) || cursor_.check(TokenType::PAGE)) {
            widget.children.push_back(parseWidget());
        } else {
            cursor_.advance();
        }
    });
}

WidgetPtr LayoutGrammar::parseSpacer(const Token& word) {
    auto spacer = emptyWidget(word);
    if (!cursor_.accept(TokenType::LPAREN)) {
        return spacer;
    }
    parseItems(
        cursor_.indentation(), [&] { parseSpacerItem(*spacer, word.line); }, word.line);
    return spacer;
}

/// \param line of the word of the widget
void LayoutGrammar::parseSpacerItem(WidgetNode& spacer, std::int32_t line) {
    if (cursor_.isSectionWord()) {
        cursor_.பிழை("பொழி-204", line);
    } else if (tryParseAnimation(spacer)) {
        return;
    } else if (cursor_.checkWord(TokenType::FLEX_SHARE, language::widget::SHARE)) {
        parseProperty(spacer.properties, "flex");
    } else if (cursor_.checkWord(TokenType::HEIGHT, property::HEIGHT)) {
        parseProperty(spacer.properties, property::HEIGHT);
    } else if (cursor_.checkWord(TokenType::WIDTH, property::WIDTH)) {
        parseProperty(spacer.properties, property::WIDTH);
    } else if (cursor_.isKeyAhead({TokenType::IDENTIFIER})) {
        parseProperty(spacer.properties, cursor_.peek().value);
    } else {
        cursor_.advance();
    }
}

WidgetPtr LayoutGrammar::parsePadding(const Token& word) {
    auto padding = std::make_unique<PaddingNode>();
    padding->kind = word.value;
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    SideBySide lists(nesting_);
    parseItems(cursor_.indentation(), [&] { parsePaddingItem(*padding); });
    if (openFurtherBracket()) {
        lists.next();
        const int level = cursor_.indentation();
        cursor_.atListItem(level);
        const ScopedValue<bool> inList(isInList_, true);
        padding->children.push_back(parseWidget());
        cursor_.atListItem(level);
        cursor_.consume(TokenType::RPAREN, "பொழி-204");
    }
    return padding;
}

void LayoutGrammar::parsePaddingItem(PaddingNode& padding) {
    const std::string& key = cursor_.peek().value;
    const bool isSize = cursor_.checkWord(TokenType::HEIGHT, property::SIZE) && key == property::SIZE;
    if (!isSize && !cursor_.isKeyAhead({TokenType::IDENTIFIER})) {
        cursor_.பிழை("பொழி-204", cursor_.peek().line);
    }
    parseProperty(padding.properties, key);
    if (const auto* number = isSize ? nodeCast<NumberLiteral>(padding.properties[key].get()) : nullptr) {
        padding.padding = floatOf(number->value);
    }
}

} // namespace pozhil
