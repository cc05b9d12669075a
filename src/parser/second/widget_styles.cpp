#include "parser/second/widget_styles.h"

#include "language/property_words.h"
#include "language/widget_words.h"
#include "parser/second/file_parse.h"
#include "parser/second/names.h"
#include "parser/second/widget_nodes.h"

#include <algorithm>

namespace pozhil::second {
namespace {

namespace property = language::property;

} // namespace

bool StyleGrammar::isStyleAhead(const language::Widget& widget) const {
    const bool hasKey = tokens_.peek().value == language::second::STYLE_KEY && tokens_.peek(1).type == TokenType::COLON;
    const std::size_t offset = hasKey ? 2 : 0;
    const std::string& word = tokens_.peek(offset).value;
    const std::vector<std::string_view> styles = language::second::stylesOf(widget);
    return isWord(tokens_.peek(offset)) && tokens_.peek(offset + 1).type == TokenType::LPAREN &&
           word != language::widget::GAP && std::find(styles.begin(), styles.end(), word) != styles.end();
}

void StyleGrammar::parseStyle(const language::Widget& widget, WidgetNode& node) {
    if (tokens_.peek(1).type == TokenType::COLON) {
        tokens_.advance();
        tokens_.advance();
    }
    const std::string& word = tokens_.advance().value;
    PropertyList list{word, language::second::propertiesOf(widget, word)};
    parse_.properties.parseItems([&] { parseProperty(widget, node, list); });
}

void StyleGrammar::parseProperty(const language::Widget& widget, WidgetNode& node, PropertyList& list) {
    WrittenProperty written = parse_.properties.parseProperty(list);
    if (written.row == nullptr) {
        return;
    }
    if (list.owner == property::TEXT_STYLE && keepTextStyle(node.style, *written.row, *written.value)) {
        notePlace(written.row->name == property::FONT ? &node.style.font : &node.style.color, written.nameRange);
        return;
    }
    const std::string key = keyOf(widget, *written.row);
    parse_.properties.store(node.properties, key, std::move(written));
}

} // namespace pozhil::second
