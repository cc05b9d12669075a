#include "parser/grammar/widgets.h"

#include "parser/file_parse.h"
#include "parser/widget_tokens.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace pozhil {

namespace {

using WidgetRule = WidgetPtr (*)(FileParse& parse, const Token& word);

/// A rule of a family, called on the parse that the family belongs to.
template <auto family, auto rule> WidgetPtr ruleOf(FileParse& parse, const Token& word) {
    return ((parse.*family).*rule)(word);
}

/// The rule for the widget that \p word begins.
WidgetRule widgetRule(const Token& word) {
    struct Row {
        TokenType type;
        std::string_view word;
        WidgetRule rule;
    };
    static constexpr std::array<Row, 18> rows = {{
        {TokenType::WRAP, "மடிப்பு", ruleOf<&FileParse::layouts, &LayoutGrammar::parsePlainLayout>},
        {TokenType::EXPANDED, "விரிவாக்கம்", ruleOf<&FileParse::layouts, &LayoutGrammar::parseExpanded>},
        {TokenType::FLEXIBLE, "நெகிழ்வு", ruleOf<&FileParse::layouts, &LayoutGrammar::parseFlexible>},
        {TokenType::FLEX_SHARE, "பங்கு", ruleOf<&FileParse::layouts, &LayoutGrammar::parseFlexible>},
        {TokenType::SPACER, "வெற்றிடம்", ruleOf<&FileParse::layouts, &LayoutGrammar::parseSpacer>},
        {TokenType::LIST_VIEW, "பட்டியல்_காட்சி", ruleOf<&FileParse::layouts, &LayoutGrammar::parseListView>},
        {TokenType::GRID_VIEW, "கட்டம்_காட்சி", ruleOf<&FileParse::layouts, &LayoutGrammar::parseGridView>},
        {TokenType::CONTAINER, "பெட்டி", ruleOf<&FileParse::boxes, &BoxGrammar::parseContainer>},
        {TokenType::INNER_PADDING, "உள்_இவெ", ruleOf<&FileParse::layouts, &LayoutGrammar::parsePadding>},
        {TokenType::INNER_PADDING, "உள்_இவே", ruleOf<&FileParse::layouts, &LayoutGrammar::parsePadding>},
        {TokenType::COLUMN, "நெடுவரிசை", ruleOf<&FileParse::layouts, &LayoutGrammar::parseColumn>},
        {TokenType::ROW, "கிடைவரிசை", ruleOf<&FileParse::layouts, &LayoutGrammar::parseRow>},
        {TokenType::STACK, "அடுக்கி", ruleOf<&FileParse::layouts, &LayoutGrammar::parsePlainLayout>},
        {TokenType::TEXT_BUTTON, "உரைபொத்தான்", ruleOf<&FileParse::boxes, &BoxGrammar::parseTextButton>},
        {TokenType::SNACKBAR, "அறிவிப்பு_பட்டை", ruleOf<&FileParse::messages, &MessageGrammar::parseSnackBar>},
        {TokenType::CARD, "அட்டை", ruleOf<&FileParse::boxes, &BoxGrammar::parseCard>},
        {TokenType::LIST_TILE, "பட்டியல்_உருப்படி", ruleOf<&FileParse::boxes, &BoxGrammar::parseListTile>},
        {TokenType::ALERT, "எச்சரிக்கை", ruleOf<&FileParse::messages, &MessageGrammar::parseAlert>},
    }};
    const auto* found = std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
        return word.type == row.type || (word.type == TokenType::IDENTIFIER && word.value == row.word);
    });
    return found == rows.end() ? ruleOf<&FileParse::genericWidgets, &GenericWidgetGrammar::parseGenericWidget>
                               : found->rule;
}

} // namespace

WidgetPtr WidgetGrammar::parseWidget() {
    nesting_.enter();
    const std::size_t first = cursor_.position();
    const Token& word = cursor_.advance();
    WidgetPtr widget = widgetRule(word)(parse_, word);
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
