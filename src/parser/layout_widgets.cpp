#include "base/number_text.h"
#include "parser/bracketed_list.h"
#include "parser/parser.h"
#include "parser/siblings.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {
namespace {

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

Parser::WidgetPtr Parser::parseColumn(const Token& word) {
    auto column = std::make_unique<ColumnNode>(StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    parseLayout(*column, word);
    return column;
}

Parser::WidgetPtr Parser::parseRow(const Token& word) {
    auto row = std::make_unique<RowNode>(StatementList(), சீரமைப்பு_வகை::மேல்_இடது);
    parseLayout(*row, word);
    return row;
}

Parser::WidgetPtr Parser::parseListView(const Token& word) {
    auto list = std::make_unique<ListViewNode>(StatementList());
    parseLayout(*list, word);
    return list;
}

/// அடுக்கி and மடிப்பு, which have no class of their own.
Parser::WidgetPtr Parser::parsePlainLayout(const Token& word) {
    auto widget = emptyWidget(word);
    parseLayout(*widget, word);
    return widget;
}

/// word ( properties ) [ ( children ) ], or word ( children ). The first token tells which.
void Parser::parseLayout(WidgetNode& widget, const Token& word) {
    openBracket();
    const int level = indentation_;
    atListItem(level);
    const auto isAlignment = [&] { return !isListView(widget) && checkName("சீரமைப்பு"); };
    if (!isAlignment() && !checkWord(TokenType::ANIMATION, "அசைவூட்டம்") && !isKeyAhead(SIZED_KEYS)) {
        parseChildren(widget, word.line, level);
        return;
    }
    Siblings lists(*this);
    parseItems(level, [&] {
        if (isAlignment()) {
            parseAlignment(widget);
        } else if (isKeyAhead(SIZED_KEYS)) {
            parseProperty(widget.properties, peek().value);
        } else if (!parsedAnimation(widget)) {
            advance();
        }
    });
    if (openFurtherBracket()) {
        lists.next();
        parseChildren(widget, word.line, indentation_);
    }
}

/// Widgets up to the closing bracket.
/// \param line of the word of the widget that they stand in
/// \param level of the line that opened the list
void Parser::parseChildren(WidgetNode& widget, std::int32_t line, int level) {
    parseItems(level, [&] {
        if (!isListView(widget) && isSectionWord()) {
            பிழை("பொழி-204", widget.children.empty() ? line : widget.children.back()->line);
        }
        widget.children.push_back(parseWidget());
    });
}

/// கட்டம்_காட்சி ( properties ) ( children )
Parser::WidgetPtr Parser::parseGridView(const Token& word) {
    auto grid = std::make_unique<GridViewNode>(StatementList());
    openBracket();
    Siblings lists(*this);
    parseItems(indentation_, [&] { parseGridProperty(*grid); });
    skipLayout();
    consume(TokenType::LPAREN, "பொழி-203");
    lists.next();
    parseChildren(*grid, word.line, indentation_);
    return grid;
}

void Parser::parseGridProperty(GridViewNode& grid) {
    if (parsedAnimation(grid)) {
        return;
    }
    if (check(TokenType::CROSS_AXIS_COUNT)) {
        parseProperty(grid.properties, "cols");
    } else if (check(TokenType::PADDING)) {
        parseGridGaps(grid);
    } else if (checkWord(TokenType::WIDTH, "அகலம்")) {
        parseProperty(grid.properties, "width");
    } else if (checkWord(TokenType::HEIGHT, "உயரம்")) {
        parseProperty(grid.properties, "height");
    } else if (checkName("cols") || isKeyAhead({TokenType::IDENTIFIER})) {
        parseProperty(grid.properties, peek().value);
    } else {
        advance();
    }
}

/// இவெ ( உயரம் : value, அகலம் : value ), the gaps between rows and between columns.
void Parser::parseGridGaps(GridViewNode& grid) {
    advance();
    consume(TokenType::LPAREN, "பொழி-203");
    parseItems(indentation_, [&] {
        if (checkWord(TokenType::HEIGHT, "உயரம்")) {
            parseProperty(grid.properties, "v_gap");
        } else if (checkWord(TokenType::WIDTH, "அகலம்")) {
            parseProperty(grid.properties, "h_gap");
        } else {
            advance();
        }
    });
}

Parser::WidgetPtr Parser::parseExpanded(const Token& /*word*/) {
    auto expanded = std::make_unique<ExpandedNode>(StatementList());
    parseFlexItems(*expanded, [&] {
        const bool isShare = checkWord(TokenType::FLEX_SHARE, "பங்கு");
        if (isShare) {
            parseProperty(expanded->properties, "flex");
        }
        return isShare;
    });
    return expanded;
}

Parser::WidgetPtr Parser::parseFlexible(const Token& /*word*/) {
    auto flexible = std::make_unique<FlexibleNode>(1, StatementList());
    parseFlexItems(*flexible, [&] {
        const bool isShare = checkWord(TokenType::FLEX_SHARE, "பங்கு") || isKeyAhead({TokenType::ASPECT_RATIO});
        if (isShare) {
            advance();
            setFlex(*flexible, *parsePropertyValue());
        }
        return isShare;
    });
    return flexible;
}

/// word ( properties and children in any order )
/// \param parsedShare takes the share of the free space if it stands at the cursor
template <class ParsedShare> void Parser::parseFlexItems(WidgetNode& widget, const ParsedShare& parsedShare) {
    openBracket();
    parseItems(indentation_, [&] {
        if (parsedAnimation(widget) || parsedShare()) {
            return;
        }
        if (isKeyAhead({TokenType::IDENTIFIER})) {
            parseProperty(widget.properties, peek().value);
        } else if (isWidgetToken(peek()) || check(TokenType::PAGE)) {
            widget.children.push_back(parseWidget());
        } else {
            advance();
        }
    });
}

/// வெற்றிடம் [ ( properties ) ]
Parser::WidgetPtr Parser::parseSpacer(const Token& word) {
    auto spacer = emptyWidget(word);
    if (!accept(TokenType::LPAREN)) {
        return spacer;
    }
    const auto parseItem = [&] {
        if (isSectionWord()) {
            பிழை("பொழி-204", word.line);
        } else if (parsedAnimation(*spacer)) {
            return;
        } else if (checkWord(TokenType::FLEX_SHARE, "பங்கு")) {
            parseProperty(spacer->properties, "flex");
        } else if (checkWord(TokenType::HEIGHT, "உயரம்")) {
            parseProperty(spacer->properties, "உயரம்");
        } else if (checkWord(TokenType::WIDTH, "அகலம்")) {
            parseProperty(spacer->properties, "அகலம்");
        } else if (isKeyAhead({TokenType::IDENTIFIER})) {
            parseProperty(spacer->properties, peek().value);
        } else {
            advance();
        }
    };
    parseItems(indentation_, parseItem, word.line);
    return spacer;
}

/// word ( [ அளவு : value ] ) [ ( child ) ]. The kind keeps the spelling of its word, since only one of them draws.
Parser::WidgetPtr Parser::parsePadding(const Token& word) {
    auto padding = std::make_unique<PaddingNode>();
    padding->kind = word.value;
    consume(TokenType::LPAREN, "பொழி-203");
    Siblings lists(*this);
    parseItems(indentation_, [&] {
        const std::string& key = peek().value;
        const bool isSize = checkWord(TokenType::HEIGHT, "அளவு") && key == "அளவு";
        if (!isSize && !isKeyAhead({TokenType::IDENTIFIER})) {
            பிழை("பொழி-204", peek().line);
        }
        parseProperty(padding->properties, key);
        if (const auto* number = isSize ? nodeCast<NumberLiteral>(padding->properties[key].get()) : nullptr) {
            padding->padding = floatOf(number->value);
        }
    });
    if (openFurtherBracket()) {
        lists.next();
        const int level = indentation_;
        atListItem(level);
        padding->children.push_back(parseWidget());
        atListItem(level);
        consume(TokenType::RPAREN, "பொழி-204");
    }
    return padding;
}

} // namespace pozhil
