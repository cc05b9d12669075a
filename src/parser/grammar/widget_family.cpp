#include "parser/grammar/widget_family.h"

#include "language/alignments.h"
#include "language/property_words.h"
#include "parser/file_parse.h"

#include <iterator>
#include <utility>

namespace pozhil {
namespace {

namespace property = language::property;

/// The word that an alignment is given by: a plain name, or the last of several joined by dots. A text is none.
std::string_view alignmentWord(const Expression& value) {
    if (const auto* get = nodeCast<GetExpression>(&value)) {
        return get->member.value;
    }
    const auto* variable = nodeCast<VariableAccess>(&value);
    return variable == nullptr ? std::string_view() : std::string_view(variable->name);
}

} // namespace

void WidgetFamily::openBracket() {
    cursor_.skipNewlines();
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
}

bool WidgetFamily::openFurtherBracket() {
    std::size_t offset = 0;
    for (TokenType type = cursor_.peek().type;
         type == TokenType::NEWLINE || type == TokenType::INDENT || type == TokenType::DEDENT;
         type = cursor_.peekAhead(offset).type) {
        ++offset;
    }
    if (cursor_.peekAhead(offset).type != TokenType::LPAREN) {
        return false;
    }
    const TokenCursor::FreeLayout lines(cursor_);
    cursor_.skipLayout();
    return cursor_.accept(TokenType::LPAREN);
}

void WidgetFamily::skipLinesAfterList() {
    if (isInList_) {
        const TokenCursor::FreeLayout lines(cursor_);
        cursor_.skipLayout();
    }
}

void WidgetFamily::parseAlignment(WidgetNode& widget) {
    cursor_.advance();
    const ExpressionPtr value = parsePropertyValue();
    if (const language::Alignment* alignment = language::findAlignment(alignmentWord(*value))) {
        widget.alignment = static_cast<சீரமைப்பு_வகை>(std::distance(language::alignments().begin(), alignment));
    }
}

bool WidgetFamily::tryParseAnimation(WidgetNode& widget) {
    if (!cursor_.checkWord(TokenType::ANIMATION, property::ANIMATION)) {
        return false;
    }
    cursor_.advance();
    widget.animation = parse_.animations.parseAnimation();
    return true;
}

void WidgetFamily::parseStyleBlock(WidgetNode& widget, TokenKinds kinds) {
    cursor_.advance();
    cursor_.consume(TokenType::LPAREN, "பொழி-203");
    parseItems(cursor_.indentation(), [&] {
        if (cursor_.isKeyAhead(kinds)) {
            parseProperty(widget.properties, "style_" + cursor_.peek().value);
        } else {
            cursor_.advance();
        }
    });
}

void WidgetFamily::parsePressHandler(WidgetNode& widget, PressForm form) {
    cursor_.advance();
    if (!cursor_.accept(TokenType::LPAREN)) {
        widget.properties.insert_or_assign(std::string(property::ON_PRESS), parsePropertyValue());
        return;
    }
    const int level = cursor_.indentation();
    const TokenCursor::FreeLayout handler(cursor_);
    cursor_.atListItem(level);
    const bool isStatement = form == PressForm::ValueOrStatements &&
                             cursor_.checkOneOf({TokenType::KEYWORD, TokenType::RTDB_INSERT, TokenType::RTDB_UPDATE,
                                                 TokenType::RTDB_READ, TokenType::RTDB_DELETE});
    if (!isStatement) {
        widget.properties.insert_or_assign(std::string(property::ON_PRESS), parseExpression());
        form == PressForm::ValueFreelyClosed ? cursor_.skipLayout() : static_cast<void>(cursor_.atListItem(level));
    }
    SideBySide siblings(nesting_);
    while (isStatement && cursor_.atListItem(level)) {
        siblings.next();
        const auto parseEntry = [&] {
            if (StatementPtr statement = parseStatement(false)) {
                widget.eventStatements.push_back(std::move(statement));
            }
        };
        recovery_.attemptStatement(parseEntry, Recovery::Enclosure::Brackets);
    }
    cursor_.consume(TokenType::RPAREN, "பொழி-204");
}

} // namespace pozhil
