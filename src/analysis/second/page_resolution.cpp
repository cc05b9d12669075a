#include "analysis/second/page_walk.h"
#include "analysis/second/resolution.h"
#include "analysis/second/suggestions.h"

#include <utility>

namespace pozhil::second {
namespace {

/// Makes a statement of every value that the widgets of a page take from the program.
class PageMaker : public PageWalk {
public:
    explicit PageMaker(Resolution& resolution) : resolution_(resolution) {}

    resolved::BlockPtr take() { return std::move(block_); }

protected:
    void onValue(const Expression& value) override { add(&value, resolveValue(resolution_, &value)); }

    void onHandler(const WidgetNode& widget) override {
        const resolved::Function* const function = resolution_.model.scopeOf.at(&widget.eventStatements)->function;
        add(&widget.eventStatements, functionValue(resolution_, function, resolution_.placeOf(&widget)));
    }

    void onVariableName(const StringLiteral& name) override {
        const resolved::Place place = resolution_.placeOf(&name);
        const Meaning meaning = resolution_.meaningOf(name.value, Use::Read);
        if (meaning.variable == nullptr) {
            tellUnknownName(resolution_, name.value, place);
            return;
        }
        auto read = makeNode<resolved::VariableRead>(place);
        read->variable = meaning.variable;
        add(&name, std::move(read));
    }

    void onStateName(const StringLiteral&) override {}
    void onWidgetName(const std::string&) override {}

private:
    void add(const void* node, resolved::ExpressionPtr value) {
        auto evaluation = makeNode<resolved::Evaluation>(value->place);
        evaluation->value = std::move(value);
        resolution_.model.program.pageValues[node] = {evaluation.get(), resolution_.scope.function};
        block_->statements.push_back(std::move(evaluation));
    }

    Resolution& resolution_;
    resolved::BlockPtr block_ = std::make_unique<resolved::Block>();
};

} // namespace

resolved::BlockPtr resolvePage(Resolution& resolution, const WebAppNode& page) {
    PageMaker maker(resolution);
    maker.walk(page);
    resolution.model.program.pages.push_back({&page, resolution.scope.function});
    auto body = maker.take();
    body->place = resolution.placeOf(&page);
    return body;
}

} // namespace pozhil::second
