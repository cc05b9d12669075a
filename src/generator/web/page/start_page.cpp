#include "generator/web/page/start_page.h"

#include "parser/syntax_tree.h"

#include <optional>

namespace pozhil {
namespace {

/// The property \p name of \p widget if it is a literal of the class \p Literal, null otherwise.
template <class Literal> const Literal* literalProperty(const WidgetNode& widget, const char* name) {
    const auto property = widget.properties.find(name);
    return property == widget.properties.end() ? nullptr : nodeCast<Literal>(property->second.get());
}

const WidgetNode* headerOf(const WebAppNode* app) {
    return app == nullptr ? nullptr : dynamic_cast<const WidgetNode*>(app->header.get());
}

const StringLiteral* nameOf(const WidgetNode* header) {
    return header == nullptr ? nullptr : literalProperty<StringLiteral>(*header, "பக்கம்");
}

} // namespace

std::string pageName(const WebAppNode& app) {
    const StringLiteral* name = nameOf(headerOf(&app));
    return name == nullptr ? "home" : name->value;
}

std::string findStartPage(const Program& program) {
    std::optional<std::string> startPage;
    for (const StatementPtr& statement : program.statements) {
        const WidgetNode* header = headerOf(nodeCast<WebAppNode>(statement.get()));
        const StringLiteral* name = nameOf(header);
        if (name == nullptr) {
            continue;
        }
        const auto* asks = literalProperty<BooleanLiteral>(*header, "ஆரம்ப_பக்கம்");
        if (!startPage || (asks != nullptr && asks->value == "மெய்")) {
            startPage = name->value;
        }
    }
    return startPage.value_or("home");
}

} // namespace pozhil
