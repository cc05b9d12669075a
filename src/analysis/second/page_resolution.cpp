#include "analysis/second/control_bindings.h"
#include "analysis/second/fault_numbers.h"
#include "analysis/second/page_walk.h"
#include "analysis/second/resolution.h"
#include "analysis/second/suggestions.h"
#include "analysis/second/unread_properties.h"

#include <utility>
#include <vector>

namespace pozhil::second {
namespace {

constexpr const char* NO_PLACE_OF_CONTROL =
    "விட்ஜெட் மாறும்போது புதிய மதிப்பை வைக்க ஒரு மாறி, உறுப்பு (ப[0], பட்டியல்[இடம்]) அல்லது பண்பு (ப.பெயர்) வேணும்; அதை எழுது மச்சி!";

/// Makes a statement of every value that the widgets of a page take from the program.
class PageMaker : public PageWalk {
public:
    explicit PageMaker(const Resolution& resolution) { open(resolution); }

    resolved::BlockPtr take() { return std::move(parts_.back().block); }

protected:
    void onValue(const Expression& value) override { add(&value, resolveValue(now(), &value)); }

    void enterEach(const EachNode& each) override { open({now().model, *now().model.scopeOf.at(&each)}); }

    void leaveEach(const EachNode& each) override {
        now().model.program.elements[&each] = now().scope.function;
        now().scope.function->body = take();
        parts_.pop_back();
    }

    void onBinding(const std::string& property, const Expression& place, bool isOptional) override {
        onValue(place);
        if (resolveBoundPlace(now(), place) == nullptr) {
            if (!isOptional) {
                now().model.faults.add(fault::NO_PLACE, now().placeOf(&place), {}, {}, NO_PLACE_OF_CONTROL);
            }
            return;
        }
        const resolved::Function* const function = now().model.scopeOf.at(&property)->function;
        add(&property, functionValue(now(), function, now().placeOf(&place)));
    }

    void onVariableName(const StringLiteral& name) override {
        const resolved::Place place = now().placeOf(&name);
        const Meaning meaning = now().meaningOf(name.value, Use::Read);
        // What the elements of a list hold isn't known outside of it, where the names of all that is shown are kept.
        if (meaning.variable == nullptr || isOfElement(*meaning.variable)) {
            tellUnknownName(now(), name.value, place);
            return;
        }
        auto read = makeNode<resolved::VariableRead>(place);
        read->variable = meaning.variable;
        add(&name, std::move(read));
    }

    /// By the text of the name, since the name itself is a value too.
    void onStateName(const StringLiteral& name) override {
        const auto& variables = now().model.fileScopes[now().scope.file]->variables;
        auto read = makeNode<resolved::VariableRead>(now().placeOf(&name));
        read->variable = variables.at(name.value);
        add(&name.value, std::move(read));
    }

    void onWidgetName(const std::string&) override {}

private:
    /// The page itself, or what each element of a list shows.
    struct Part {
        Resolution resolution;
        resolved::BlockPtr block = std::make_unique<resolved::Block>();
    };

    void open(const Resolution& resolution) { parts_.push_back({resolution}); }

    Resolution& now() { return parts_.back().resolution; }

    void add(const void* node, resolved::ExpressionPtr value) {
        auto evaluation = makeNode<resolved::Evaluation>(value->place);
        evaluation->value = std::move(value);
        now().model.program.pageValues[node] = {evaluation.get(), now().scope.function};
        parts_.back().block->statements.push_back(std::move(evaluation));
    }

    std::vector<Part> parts_;
};

} // namespace

/// What a user has typed into a field looks like a member, and is none.
resolved::TargetPtr resolveBoundPlace(Resolution& resolution, const Expression& place) {
    const auto* const member = nodeCast<GetExpression>(&place);
    const bool isTyped = member != nullptr && resolveFieldPart(resolution, *member) != nullptr;
    return isTyped || !isPlainPlace(place) ? nullptr : placeIfAny(resolution, &place);
}

resolved::BlockPtr resolvePage(Resolution& resolution, const WebAppNode& page) {
    PageMaker maker(resolution);
    maker.walk(page);
    tellUnreadProperties(resolution, page);
    resolution.model.program.pages.push_back({&page, resolution.scope.function});
    auto body = maker.take();
    body->place = resolution.placeOf(&page);
    return body;
}

} // namespace pozhil::second
