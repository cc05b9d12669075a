#include "parser/grammar/widgets.h"

#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <utility>

namespace pozhil {

namespace {

using language::WidgetForm;
using WidgetRule = WidgetPtr (*)(FileParse& parse, const Token& word);

/// A rule of a family, called on the parse that the family belongs to.
template <auto family, auto rule> WidgetPtr ruleOf(FileParse& parse, const Token& word) {
    return ((parse.*family).*rule)(word);
}

constexpr auto LAYOUTS = &FileParse::layouts;
constexpr auto BOXES = &FileParse::boxes;
constexpr auto MESSAGES = &FileParse::messages;

/// The rule for what stands between the brackets of a widget.
WidgetRule widgetRule(WidgetForm form) {
    switch (form) {
    case WidgetForm::General: break;
    case WidgetForm::Column: return ruleOf<LAYOUTS, &LayoutGrammar::parseColumn>;
    case WidgetForm::Row: return ruleOf<LAYOUTS, &LayoutGrammar::parseRow>;
    case WidgetForm::PlainLayout: return ruleOf<LAYOUTS, &LayoutGrammar::parsePlainLayout>;
    case WidgetForm::ListView: return ruleOf<LAYOUTS, &LayoutGrammar::parseListView>;
    case WidgetForm::GridView: return ruleOf<LAYOUTS, &LayoutGrammar::parseGridView>;
    case WidgetForm::Expanded: return ruleOf<LAYOUTS, &LayoutGrammar::parseExpanded>;
    case WidgetForm::Flexible: return ruleOf<LAYOUTS, &LayoutGrammar::parseFlexible>;
    case WidgetForm::Spacer: return ruleOf<LAYOUTS, &LayoutGrammar::parseSpacer>;
    case WidgetForm::Padding: return ruleOf<LAYOUTS, &LayoutGrammar::parsePadding>;
    case WidgetForm::Container: return ruleOf<BOXES, &BoxGrammar::parseContainer>;
    case WidgetForm::Card: return ruleOf<BOXES, &BoxGrammar::parseCard>;
    case WidgetForm::ListTile: return ruleOf<BOXES, &BoxGrammar::parseListTile>;
    case WidgetForm::TextButton: return ruleOf<BOXES, &BoxGrammar::parseTextButton>;
    case WidgetForm::Dialog: return ruleOf<MESSAGES, &MessageGrammar::parseAlert>;
    case WidgetForm::SnackBar: return ruleOf<MESSAGES, &MessageGrammar::parseSnackBar>;
    }
    return ruleOf<&FileParse::genericWidgets, &GenericWidgetGrammar::parseGenericWidget>;
}

} // namespace

WidgetPtr WidgetGrammar::parseWidget() {
    nesting_.enter();
    const std::size_t first = cursor_.position();
    const Token& word = cursor_.advance();
    WidgetPtr widget = widgetRule(widgetForm(word))(parse_, word);
    widget->line = word.line;
    return placed(first, std::move(widget));
}

bool WidgetGrammar::isWidgetAhead() const {
    const bool isWord = cursor_.checkOneOf({TokenType::HEADER, TokenType::UI_BODY, TokenType::STYLE,
                                            TokenType::ON_PRESS, TokenType::WIDTH, TokenType::HEIGHT}) ||
                        (isWidgetToken(cursor_.peek()) && !cursor_.check(TokenType::IDENTIFIER));
    if (!isWord) {
        return false;
    }
    std::size_t offset = 1;
    while (cursor_.peekAhead(offset).type == TokenType::NEWLINE) {
        ++offset;
    }
    return cursor_.peekAhead(offset).type == TokenType::LPAREN;
}

ExpressionPtr WidgetGrammar::parseWidgetExpression() {
    const std::size_t first = cursor_.position();
    const std::int32_t line = cursor_.peek().line;
    return makeNode<WidgetExpression>(first, line, parseWidget());
}

} // namespace pozhil
