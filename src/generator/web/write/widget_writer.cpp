#include "generator/web/write/widget_writer.h"

#include "generator/first/generator.h"

#include <algorithm>
#include <utility>

namespace pozhil {
namespace {

/// Deeper widgets are indented no further, so that the text stays linear in the source.
constexpr std::int32_t DEEPEST_LEVEL = 12;

bool isZeroText(const std::string& text) {
    return text == "0.0f" || text == "0" || text == "0.0";
}

} // namespace

WidgetWriter::WidgetWriter(Generator& generator, const WidgetNode& widget, std::string x, std::string y,
                           std::uint64_t number)
    : generator_(generator), widget_(widget), x_(std::move(x)), y_(std::move(y)), number_(number) {}

std::string WidgetWriter::partNumber() const {
    return std::to_string(++generator_.widgetCount_);
}

bool WidgetWriter::isRoot() const {
    return isZeroText(x_);
}

bool WidgetWriter::isAtTop() const {
    return isZeroText(y_);
}

void WidgetWriter::block(std::string_view text, Holes holes) const {
    holes.insert(holes.end(), {{"x", x_}, {"y", y_}, {"n", number()}});
    writeBlock(generator_.out_, text, holes, generator_.indentation());
}

float WidgetWriter::widthOf(const WidgetNode& widget) const {
    return generator_.metrics_.calculateWidgetWidth(&widget);
}

float WidgetWriter::heightOf(const WidgetNode& widget) const {
    return generator_.metrics_.calculateWidgetHeight(&widget);
}

Filling WidgetWriter::expression(const Expression* expression) const {
    return std::function<void()>([this, expression] { generator_.visitExpression(expression); });
}

Filling WidgetWriter::blocks(std::function<void()> write) const {
    return std::function<void()>([this, write = std::move(write)] {
        const std::int32_t outerLevel = generator_.indentLevel_;
        generator_.indentLevel_ = std::min(outerLevel + 1, std::max(outerLevel, DEEPEST_LEVEL));
        write();
        generator_.indentLevel_ = outerLevel;
    });
}

Filling WidgetWriter::statements(const StatementList& statements) const {
    return blocks([this, &statements] {
        for (const StatementPtr& statement : statements) {
            generator_.visitStatement(statement.get());
        }
    });
}

void WidgetWriter::child(const WidgetNode& widget, const std::string& x, const std::string& y) const {
    generator_.generateWidgetCode(&widget, x, y);
}

/// WebAssembly takes no function with as many locals as the children of a large layout would need.
void WidgetWriter::eachChild(const std::vector<const WidgetNode*>& children,
                             const std::function<void(const WidgetNode&)>& write) const {
    constexpr std::size_t MOST_IN_A_FUNCTION = 32;
    const bool isSplit = children.size() > MOST_IN_A_FUNCTION;
    for (std::size_t index = 0; index < children.size(); ++index) {
        if (isSplit && index % MOST_IN_A_FUNCTION == 0) {
            block(index == 0 ? "    [&] {\n" : "    }();\n    [&] {\n");
        }
        write(*children[index]);
    }
    if (isSplit) {
        block("    }();\n");
    }
}

void WidgetWriter::placelessFault(const std::string& code, std::int32_t line, const std::string& details) const {
    generator_.placelessFault(code, line, details);
}

const Expression* findProperty(const WidgetNode& widget, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        const auto property = widget.properties.find(name);
        if (property != widget.properties.end()) {
            return property->second.get();
        }
    }
    return nullptr;
}

std::vector<const WidgetNode*> childWidgets(const WidgetNode& widget) {
    std::vector<const WidgetNode*> children;
    for (const StatementPtr& child : widget.children) {
        if (const WidgetNode* one = asWidget(child.get())) {
            children.push_back(one);
        }
    }
    return children;
}

std::vector<const WidgetNode*> childrenOfKind(const WidgetNode& widget, std::string_view kind) {
    auto children = childWidgets(widget);
    children.erase(
        std::remove_if(children.begin(), children.end(), [&](const WidgetNode* child) { return child->kind != kind; }),
        children.end());
    return children;
}

const WidgetNode* childOfKind(const WidgetNode& widget, std::string_view kind) {
    for (const WidgetNode* child : childWidgets(widget)) {
        if (child->kind == kind) {
            return child;
        }
    }
    return nullptr;
}

const WidgetNode* asWidget(const Expression* expression) {
    const auto* slot = nodeCast<WidgetExpression>(expression);
    return slot == nullptr ? nullptr : slot->widget.get();
}

const WidgetNode* asWidget(const Statement* statement) {
    return dynamic_cast<const WidgetNode*>(statement);
}

} // namespace pozhil
