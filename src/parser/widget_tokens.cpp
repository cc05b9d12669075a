#include "parser/widget_tokens.h"

#include <map>
#include <set>

namespace pozhil {
namespace {

using language::WidgetForm;
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

/// The form of the widgets whose tokens are of a kind of their own.
const std::map<TokenType, WidgetForm>& formsOfKinds() {
    static const std::map<TokenType, WidgetForm> forms = [] {
        std::map<TokenType, WidgetForm> found;
        for (const language::Widget& widget : language::widgets()) {
            if (widget.token != TokenType::IDENTIFIER) {
                found.emplace(widget.token, widget.form);
            }
        }
        return found;
    }();
    return forms;
}

} // namespace

bool isWidgetToken(const Token& token) {
    if (token.type != TokenType::IDENTIFIER) {
        return widgetKinds().count(token.type) != 0;
    }
    const language::Widget* widget = language::findWidget(token.value);
    return widget != nullptr && (widget->start == WidgetStart::Name || widget->start == WidgetStart::KindOrName);
}

language::WidgetForm widgetForm(const Token& word) {
    if (word.type == TokenType::IDENTIFIER) {
        const language::Widget* widget = language::findWidget(word.value);
        return widget == nullptr ? WidgetForm::General : widget->form;
    }
    const auto found = formsOfKinds().find(word.type);
    return found == formsOfKinds().end() ? WidgetForm::General : found->second;
}

} // namespace pozhil
