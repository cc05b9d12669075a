#include "parser/second/widgets.h"

#include "language/property_words.h"
#include "language/widget_words.h"
#include "parser/second/file_parse.h"
#include "parser/second/names.h"
#include "parser/second/suggestion.h"
#include "parser/second/widget_nodes.h"

#include <algorithm>
#include <iterator>

namespace pozhil::second {
namespace {

using language::Widget;
using language::WidgetChildren;
using language::WidgetForm;
using language::WidgetProperty;
using language::WidgetRole;

namespace property = language::property;
namespace widget = language::widget;

/// Whether a widget of the row \p child may stand between the brackets of one of the row \p parent.
/// \param position how many children stand there before it
bool mayHold(const Widget& parent, const Widget& child, std::size_t position) {
    if (child.role == WidgetRole::Style) {
        return parent.form == WidgetForm::Container && child.word == widget::BOX_STYLE;
    }
    if (child.word == language::second::EACH) {
        constexpr std::string_view PARENTS[] = {widget::COLUMN,    widget::ROW,       widget::WRAP,
                                                widget::LIST_VIEW, widget::GRID_VIEW, language::second::EACH};
        return std::find(std::begin(PARENTS), std::end(PARENTS), parent.word) != std::end(PARENTS);
    }
    switch (parent.children) {
    case WidgetChildren::None: return false;
    case WidgetChildren::One: return child.role == WidgetRole::Widget && position == 0;
    case WidgetChildren::Any: return child.role == WidgetRole::Widget;
    case WidgetChildren::Text: return child.word == widget::TEXT;
    case WidgetChildren::TextOrImage: return child.word == widget::TEXT || child.word == widget::IMAGE;
    case WidgetChildren::TabItems: return child.word == widget::TAB_ITEM;
    case WidgetChildren::BottomItems: return child.word == widget::BOTTOM_NAVIGATION_ITEM;
    }
    return false;
}

/// What to do about a widget or style that stands where it can't; empty if that is what the catalogue says.
std::string remedyOfMisplaced(const Widget& child) {
    if (child.role == WidgetRole::Style) {
        return "பாணியை அதன் விட்ஜெட்டோட அடைப்புக்குள்ளேயே எழுது: 'பெட்டி(பெட்டி_பாணி(…), …)' மாதிரி மச்சி!";
    }
    if (child.role == WidgetRole::Item) {
        const std::string bar(child.word == widget::TAB_ITEM ? widget::TAB_BAR : widget::BOTTOM_NAVIGATION);
        return "அதை '" + bar + "( … )' என்பதற்குள்ள வை மச்சி!";
    }
    if (child.word == language::second::EACH) {
        return "அதை 'நெடுவரிசை', 'கிடைவரிசை', 'மடிப்பு', 'பட்டியல்_காட்சி', 'கட்டம்_காட்சி' ஆகியவற்றில் ஒன்றுக்குள்ள வை மச்சி!";
    }
    return "";
}

} // namespace

bool WidgetGrammar::isWidgetWordAhead() const {
    const Widget* const row = language::second::findWidget(tokens_.peek().value);
    return parse_.isInApplication && isWord(tokens_.peek()) && tokens_.peek(1).type == TokenType::LPAREN &&
           row != nullptr && row->role == WidgetRole::Widget;
}

bool WidgetGrammar::isWidgetAhead() const {
    const std::size_t opening = tokens_.position() + 1;
    if (!isWidgetWordAhead() || tokens_.closingOf(opening) == TokenReader::NONE) {
        return false;
    }
    for (std::size_t index = opening + 1; index < tokens_.closingOf(opening); ++index) {
        const TokenType before = tokens_.at(index - 1).type;
        const bool beginsItem = before == TokenType::LPAREN || before == TokenType::COMMA;
        if (beginsItem && isWord(tokens_.at(index)) && tokens_.at(index + 1).type == TokenType::COLON) {
            return true;
        }
        const std::size_t closing = tokens_.closingOf(index);
        index = closing == TokenReader::NONE ? index : closing;
    }
    return false;
}

ExpressionPtr WidgetGrammar::parseWidgetExpression() {
    const std::size_t first = tokens_.position();
    WidgetPtr node = parseWidget();
    return make<WidgetExpression>(first, std::move(node));
}

WidgetPtr WidgetGrammar::parseWidget() {
    enter();
    const std::size_t first = tokens_.position();
    const Widget& row = consumeWord();
    WidgetPtr node = makeWidgetNode(row);
    Draft draft{row, *node, {row.word, language::second::propertiesOf(row, "")}};
    const bool mayBeBare = row.form == WidgetForm::Spacer;
    if (!mayBeBare || tokens_.check(TokenType::LPAREN)) {
        parseItems(draft);
    }
    while (tokens_.check(TokenType::LPAREN)) {
        parseItems(draft);
    }
    place(*node, first);
    checkRequired(draft, first);
    return node;
}

/// What a loop over a list can't do without.
void WidgetGrammar::checkRequired(const Draft& draft, std::size_t first) {
    if (draft.row.word != language::second::EACH) {
        return;
    }
    for (const std::string_view name : {language::second::EACH_LIST, language::second::EACH_ELEMENT}) {
        if (draft.properties.written.count(name) == 0) {
            note(fault::NO_PROPERTY, tokens_.rangeOf(first), {std::string(draft.row.word), std::string(name)});
        }
    }
}

/// The word of a widget.
const Widget& WidgetGrammar::consumeWord() {
    const Token& word = tokens_.peek();
    const Widget* const row = isWord(word) ? language::second::findWidget(word.value) : nullptr;
    if (row != nullptr && (tokens_.peek(1).type == TokenType::LPAREN || row->form == WidgetForm::Spacer)) {
        tokens_.advance();
        return *row;
    }
    const std::size_t position = tokens_.position();
    if (row == nullptr && isWord(word) && tokens_.peek(1).type == TokenType::LPAREN) {
        SecondFault unknown = recovery_.faultAt(fault::UNKNOWN_WIDGET, tokens_.rangeOf(position), {word.value});
        suggestNearest(unknown, word.value, language::second::widgetWords());
        throw SyntaxFault{std::move(unknown)};
    }
    failHere(fault::NO_WIDGET, {tokens_.shown(position)});
}

/// ( properties, styles and children in any order )
void WidgetGrammar::parseItems(Draft& draft) {
    const std::size_t closing = tokens_.closingOf(tokens_.position());
    draft.hasFurtherBracket = closing != TokenReader::NONE && tokens_.at(closing + 1).type == TokenType::LPAREN;
    parse_.properties.parseItems([&] { parseItem(draft); });
}

void WidgetGrammar::parseItem(Draft& draft) {
    if (parse_.styles.isStyleAhead(draft.row)) {
        parse_.styles.parseStyle(draft.row, draft.node);
        return;
    }
    if (parse_.properties.isPropertyAhead()) {
        parseOwnProperty(draft);
        return;
    }
    if (isWord(tokens_.peek()) && tokens_.peek(1).type == TokenType::LPAREN && tryParsePart(draft)) {
        return;
    }
    const bool isWidgetHere = language::second::findWidget(tokens_.peek().value) != nullptr &&
                              draft.row.children != WidgetChildren::None && isWord(tokens_.peek());
    const bool isOtherStyle =
        tokens_.peek(1).type == TokenType::LPAREN && language::second::isStyle(tokens_.peek().value);
    if (!isWidgetHere && !isOtherStyle && takesText(draft)) {
        parseText(draft);
    } else {
        parseChild(draft);
    }
}

/// A handler, style or animation with its bracket.
bool WidgetGrammar::tryParsePart(Draft& draft) {
    const std::string& word = tokens_.peek().value;
    const WidgetProperty* const own = language::second::findProperty(draft.row, "", word);
    if (own != nullptr && own->kind == language::ValueKind::Handler) {
        parseHandler(draft);
    } else if (word == widget::GAP && draft.row.form == WidgetForm::GridView && draft.hasFurtherBracket) {
        parse_.styles.parseStyle(draft.row, draft.node);
    } else if (word == property::ANIMATION) {
        draft.node.animation = parse_.animations.parseAnimation(draft.row);
    } else if (draft.row.form == WidgetForm::TextButton && word == property::TEXT) {
        tokens_.advance();
        const std::size_t opening = tokens_.position();
        tokens_.advance();
        parseText(draft);
        consumeClosingOfOne(TokenType::RPAREN, opening);
    } else {
        return false;
    }
    return true;
}

void WidgetGrammar::parseOwnProperty(Draft& draft) {
    WrittenProperty property = parse_.properties.parseProperty(draft.properties);
    if (property.row != nullptr) {
        keepProperty(draft, std::move(property));
    }
}

void WidgetGrammar::keepProperty(Draft& draft, WrittenProperty property) {
    const WidgetProperty& row = *property.row;
    const bool isAlone = tokens_.check(TokenType::RPAREN) && draft.properties.written.size() == 1;
    if (row.kind == language::ValueKind::Alignment &&
        (hasAlignmentField(draft.row) || (draft.hasFurtherBracket && isAlone))) {
        keepAlignment(draft.node, *property.value);
        return;
    }
    auto* message = dynamic_cast<WidgetExpression*>(property.value.get());
    if (auto* bar = dynamic_cast<SnackBarNode*>(&draft.node); bar != nullptr && message != nullptr) {
        bar->content = message->widget.get();
        bar->children.push_back(std::move(message->widget));
        return;
    }
    if (auto* each = dynamic_cast<EachNode*>(&draft.node); each != nullptr && row.kind == language::ValueKind::Name) {
        notePlace(&each->element, property.valueRange);
    }
    if (!keepField(draft.node, row, *property.value)) {
        parse_.properties.store(draft.node.properties, keyOf(draft.row, row), std::move(property));
    }
}

/// name ( value ) or name ( statements )
void WidgetGrammar::parseHandler(Draft& draft) {
    WrittenProperty property;
    property.nameRange = tokens_.rangeOf(tokens_.position());
    const std::string& name = tokens_.advance().value;
    property.row = language::second::findProperty(draft.row, "", name);
    if (!draft.properties.written.insert(property.row->name).second) {
        note(fault::PROPERTY_TWICE, property.nameRange, {name});
    }
    const std::size_t opening = tokens_.position();
    tokens_.advance();
    StatementList statements = parse_.blocks.parseBracketedOrValue(TokenType::RPAREN, property.value);
    consumeClosing(TokenType::RPAREN, opening);
    if (property.value == nullptr) {
        property.value = asFunction(opening, std::move(statements));
    }
    keepProperty(draft, std::move(property));
}

/// Statements in brackets as a function.
ExpressionPtr WidgetGrammar::asFunction(std::size_t opening, StatementList statements) {
    auto body = std::make_unique<BlockStatement>();
    body->statements = std::move(statements);
    place(*body, opening);
    return make<FunctionExpression>(opening, std::vector<Param>(), std::move(body));
}

/// Whether the widget still lacks the text that it may be given without a name.
bool WidgetGrammar::takesText(const Draft& draft) const {
    const WidgetProperty* const text = language::second::findProperty(draft.row, "", property::TEXT);
    return text != nullptr && draft.properties.written.count(text->name) == 0;
}

/// The text of a widget, a value without a name.
void WidgetGrammar::parseText(Draft& draft) {
    const std::size_t first = tokens_.position();
    WrittenProperty text;
    text.row = language::second::findProperty(draft.row, "", property::TEXT);
    text.value = parse_.expressions.parseInner();
    text.nameRange = tokens_.rangeFrom(first);
    parse_.properties.checkValue(draft.properties, *text.row, *text.value, text.nameRange);
    draft.properties.written.insert(text.row->name);
    keepProperty(draft, std::move(text));
}

/// A style or handler that other widgets have.
void WidgetGrammar::checkOtherPart(const Draft& draft) {
    const Token& word = tokens_.peek();
    const bool isPart = isWord(word) && tokens_.peek(1).type == TokenType::LPAREN &&
                        language::second::findWidget(word.value) == nullptr &&
                        (language::second::isProperty(word.value) || language::second::isStyle(word.value));
    if (!isPart) {
        return;
    }
    SecondFault unknown = recovery_.faultAt(fault::UNKNOWN_PROPERTY, tokens_.rangeOf(tokens_.position()),
                                            {std::string(draft.row.word), word.value});
    if (const std::vector<std::string_view> styles = language::second::stylesOf(draft.row); !styles.empty()) {
        unknown.remedy = "இந்த விட்ஜெட்டின் பாணியை '" + std::string(styles.front()) + "(…)' என்று எழுது மச்சி!";
    }
    throw SyntaxFault{std::move(unknown)};
}

void WidgetGrammar::parseChild(Draft& draft) {
    checkOtherPart(draft);
    const std::size_t first = tokens_.position();
    WidgetPtr child = parseWidget();
    const Widget& row = *language::second::findWidget(tokens_.at(first).value);
    const auto others = static_cast<std::size_t>(draft.node.children.size());
    if (!mayHold(draft.row, row, others)) {
        SecondFault misplaced = recovery_.faultAt(fault::MISPLACED_CHILD, tokens_.rangeOf(first),
                                                  {std::string(draft.row.word), std::string(row.word)});
        misplaced.remedy = remedyOfMisplaced(row);
        recovery_.note(std::move(misplaced));
        return;
    }
    draft.node.children.push_back(std::move(child));
}

} // namespace pozhil::second
