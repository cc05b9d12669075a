#include "generator/web/write/widget_writer.h"

#include "generator/web/write/widget_context.h"

#include <utility>

namespace pozhil {
namespace {

/// Deeper widgets are indented no further, so that the text stays linear in the source.
constexpr std::int32_t DEEPEST_LEVEL = 12;

bool isZeroText(const std::string& text) {
    return text == "0.0f" || text == "0" || text == "0.0";
}

} // namespace

WidgetWriter::WidgetWriter(WidgetContext& context, const WidgetNode& widget, std::string x, std::string y,
                           std::uint64_t number)
    : context_(context), widget_(widget), x_(std::move(x)), y_(std::move(y)), number_(number) {}

std::string WidgetWriter::partNumber() {
    return std::to_string(context_.nextNumber());
}

bool WidgetWriter::isRoot() const {
    return isZeroText(x_);
}

bool WidgetWriter::isAtTop() const {
    return isZeroText(y_);
}

void WidgetWriter::block(const Block& block, const Holes& holes) {
    context_.out().block(block, holes, {{"x", x_}, {"y", y_}, {"n", number()}});
}

float WidgetWriter::widthOf(const WidgetNode& widget) const {
    return context_.widthOf(widget);
}

float WidgetWriter::heightOf(const WidgetNode& widget) const {
    return context_.heightOf(widget);
}

Edition& WidgetWriter::edition() const {
    return context_.edition();
}

Filling WidgetWriter::blocks(std::function<void()> write) {
    return std::function<void()>([this, write = std::move(write)] {
        CodeWriter& out = context_.out();
        const CodeWriter::Indented deeper(out, out.level() < DEEPEST_LEVEL ? 1 : 0);
        write();
    });
}

Filling WidgetWriter::statements(const StatementList& statements) {
    return blocks([this, &statements] {
        for (const StatementPtr& statement : statements) {
            context_.edition().writeStatement(statement.get());
        }
    });
}

void WidgetWriter::child(const WidgetNode& widget, const std::string& x, const std::string& y) {
    context_.writeWidget(widget, x, y);
}

/// WebAssembly takes no function with as many locals as the children of a large layout would need.
void WidgetWriter::eachChild(const std::vector<const WidgetNode*>& children,
                             const std::function<void(const WidgetNode&)>& write) {
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

Fault WidgetWriter::faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const {
    return context_.edition().faultWithoutPlace(code, line, details);
}

} // namespace pozhil
