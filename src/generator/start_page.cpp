#include "generator/start_page.h"

#include "parser/syntax_tree.h"

namespace pozhil {
namespace {

/// The property \p name of \p widget if it is a literal of the class \p Literal, null otherwise.
template <class Literal> const Literal* literalProperty(const WidgetNode& widget, const char* name) {
    const auto property = widget.properties.find(name);
    return property == widget.properties.end() ? nullptr : nodeCast<Literal>(property->second.get());
}

} // namespace

std::string findStartPage(const Program& program) {
    std::string startPage;
    for (const StatementPtr& statement : program.statements) {
        const auto* app = nodeCast<WebAppNode>(statement.get());
        const auto* header = app == nullptr ? nullptr : dynamic_cast<const WidgetNode*>(app->header.get());
        const auto* name = header == nullptr ? nullptr : literalProperty<StringLiteral>(*header, "பக்கம்");
        if (name == nullptr) {
            continue;
        }
        const auto* asks = literalProperty<BooleanLiteral>(*header, "ஆரம்ப_பக்கம்");
        if (startPage.empty() || (asks != nullptr && asks->value == "மெய்")) {
            startPage = name->value;
        }
    }
    return startPage.empty() ? "home" : startPage;
}

} // namespace pozhil
