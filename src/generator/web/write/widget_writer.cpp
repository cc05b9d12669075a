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
    : context_(context), widget_(widget), x_(std::move(x)), y_(std::move(y)), number_(number),
      depthOfEach_(context.depthOfEach()) {}

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

Extent WidgetWriter::widthOf(const WidgetNode& widget) const {
    return context_.widthOf(widget);
}

Extent WidgetWriter::heightOf(const WidgetNode& widget) const {
    return context_.heightOf(widget);
}

Room WidgetWriter::roomAcross(const std::vector<const WidgetNode*>& children) const {
    return context_.roomAcross(children);
}

Room WidgetWriter::roomDown(const std::vector<const WidgetNode*>& children) const {
    return context_.roomDown(children);
}

bool WidgetWriter::holdsWrappedText(const WidgetNode& widget) const {
    return context_.holdsWrappedText(widget);
}

EditionWriter& WidgetWriter::edition() const {
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

void WidgetWriter::eachChild(const std::vector<const WidgetNode*>& children, const WriteChild& write) {
    inParts(children, [&](const WidgetNode& child) { writeChild(child, write); });
}

void WidgetWriter::eachChildAlong(const std::vector<const WidgetNode*>& children, const std::string& position,
                                  const std::string& end, const StepOf& stepOf, const WriteChild& write) {
    inParts(children, [&](const WidgetNode& child) {
        const auto* each = dynamic_cast<const EachNode*>(&child);
        const std::optional<Extent> step = each == nullptr ? std::nullopt : stepOfElement(*each, stepOf);
        if (step) {
            const Course course = {position, step->text(), end};
            writeEach(*each, write, &course);
        } else {
            writeChild(child, write);
        }
    });
}

/// How far an element moves what the children stand along, if all do so by the same.
std::optional<Extent> WidgetWriter::stepOfElement(const EachNode& each, const StepOf& stepOf) {
    Extent whole;
    for (const WidgetNode* child : childWidgets(each)) {
        const bool isAlwaysThere =
            dynamic_cast<const EachNode*>(child) == nullptr && edition().shownWhile(*child).empty();
        const std::optional<Extent> step = isAlwaysThere ? stepOf(*child) : std::nullopt;
        if (!step || !step->isConstant()) {
            return std::nullopt;
        }
        whole += *step;
    }
    return whole;
}

/// WebAssembly takes no function with as many locals as the children of a large layout would need.
void WidgetWriter::inParts(const std::vector<const WidgetNode*>& children, const WriteChild& write) {
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

void WidgetWriter::writeChild(const WidgetNode& child, const WriteChild& write) {
    if (const auto* each = dynamic_cast<const EachNode*>(&child)) {
        writeEach(*each, write, nullptr);
    } else {
        whileShown(child, write);
    }
}

void WidgetWriter::writeEach(const EachNode& each, const WriteChild& write, const Course* course) {
    const std::string number = partNumber();
    edition().writeEach(*this, each, number, blocks([&] {
        const WidgetContext::InEach inside(context_, edition().elementScope(number));
        eachChild(childWidgets(each), write);
    }),
                        course);
}

void WidgetWriter::whileShown(const WidgetNode& widget, const WriteChild& write) {
    const std::string condition = edition().shownWhile(widget);
    if (condition.empty()) {
        write(widget);
        return;
    }
    block("    if ($condition) {\n$shown\n    }\n",
          {{"condition", condition}, {"shown", blocks([&] { write(widget); })}});
}

void WidgetWriter::slot(const WidgetNode& widget, const std::string& x, const std::string& y) {
    whileShown(widget, [&](const WidgetNode& shown) { child(shown, x, y); });
}

std::string WidgetWriter::elementScopes() const {
    return context_.elementScopes(depthOfEach_);
}

bool WidgetWriter::isInOwnEach() const {
    return context_.depthOfEach() > depthOfEach_;
}

Filling WidgetWriter::state(const std::string& type, const std::string& name, const Filling& first) const {
    return isInEach() ? edition().elementState(type, name, first)
                      : Filling(std::vector<Filling>{"static " + type + " " + name + " = ", first});
}

std::string WidgetWriter::nameFrom(const std::string& name) const {
    return isInEach() ? edition().elementName(name) : name;
}

std::string WidgetWriter::key() const {
    const std::string key = number() + "ULL";
    return isInEach() ? edition().elementKey(key) : key;
}

Fault WidgetWriter::faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const {
    return context_.edition().faultWithoutPlace(code, line, details);
}

} // namespace pozhil
