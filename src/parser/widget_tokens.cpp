#include "parser/widget_tokens.h"

#include "language/widgets.h"

#include <set>

namespace pozhil {
namespace {

using language::WidgetStart;

/// The kinds of tokens that begin a widget.
const std::set<TokenType>& widgetKinds() {
    static const std::set<TokenType> kinds = [] {
        std::set<TokenType> found;
        for (const language::Widget& widget : language::widgets()) {
            if (widget.start == WidgetStart::Kind || widget.start == WidgetStart::KindOrName) {
                found.insert(widget.token);
            }
        }
        return found;
    }();
    return kinds;
}

} // namespace

bool isWidgetToken(const Token& token) {
    if (token.type != TokenType::IDENTIFIER) {
        return widgetKinds().count(token.type) != 0;
    }
    const language::Widget* widget = language::findWidget(token.value);
    return widget != nullptr && (widget->start == WidgetStart::Name || widget->start == WidgetStart::KindOrName);
}

} // namespace pozhil
