#include "analysis/second/kind_faults.h"

#include "analysis/second/constants.h"
#include "analysis/second/fault_numbers.h"
#include "analysis/second/member_faults.h"
#include "analysis/second/names.h"
#include "analysis/second/operator_kinds.h"
#include "analysis/second/structures.h"
#include "analysis/second/walk.h"
#include "base/scoped_increment.h"
#include "report/catalogue.h"
#include "report/remedies.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::second {
namespace {

using resolved::Kind;
using Form = resolved::TargetPlace::Form;

bool isOrdering(resolved::BinaryOperator op) {
    return op == resolved::BinaryOperator::Less || op == resolved::BinaryOperator::LessEqual ||
           op == resolved::BinaryOperator::Greater || op == resolved::BinaryOperator::GreaterEqual;
}

bool isTextWithNumber(Kind left, Kind right) {
    return (left == Kind::Text && isNumber(right)) || (isNumber(left) && right == Kind::Text);
}

bool isComparison(const resolved::Expression& value) {
    const auto* const binary = nodeCast<resolved::Binary>(&value);
    return binary != nullptr && (isOrdering(binary->op) || binary->op == resolved::BinaryOperator::Equal ||
                                 binary->op == resolved::BinaryOperator::NotEqual);
}

/// A number and a text meet: the number may stand in the text.
std::string numberSuggestion(Kind left, Kind right) {
    return isTextWithNumber(left, right) ? "உரையில் உள்ள எண்ணோடு கணக்கிட 'எண்(…)' என்று எழுது." : "";
}

/// What to do about a variable that is called, and whose name hides a function of the language; empty if it hides none.
std::string hidingRemedy(const resolved::Expression& callee) {
    const auto* const read = nodeCast<resolved::VariableRead>(&callee);
    const bool hides = read != nullptr && read->variable != nullptr && isOfLanguage(read->variable->name);
    return hides ? report::filled(report::remedy::HIDDEN_FUNCTION, {read->variable->name}) : "";
}

/// Whether objects of some structure have a member of this name.
bool isMemberOfStructure(const Model& model, const std::string& name) {
    const auto& structures = model.program.structures;
    return std::any_of(structures.begin(), structures.end(), [&](const auto& one) {
        return findMethod(*one, name) != nullptr || findField(*one, name).field != nullptr;
    });
}

class Checking : public Walk<Checking> {
public:
    Checking(Model& model, const Kinds& kinds) : model_(model), kinds_(kinds) {}

    using Walk::visit;
    using Walk::walk;

    void walk(resolved::Argument& argument) {
        walk(argument.value);
        walk(argument.target);
    }

    void visit(resolved::If& node) {
        checkCondition(node.condition);
        Walk::visit(node);
    }
    void visit(resolved::While& node) {
        checkCondition(node.condition);
        Walk::visit(node);
    }
    void visit(resolved::Conditional& node) {
        checkCondition(node.condition, node.mayBeReversed ? report::remedy::REVERSED_CHOICE : "");
        Walk::visit(node);
    }
    void visit(resolved::Logical& node) {
        checkCondition(node.left);
        checkCondition(node.right, isComparison(*node.left) ? report::remedy::HALF_COMPARISON : "");
        Walk::visit(node);
    }
    void visit(resolved::Unary& node) {
        Walk::visit(node);
        if (node.op == resolved::UnaryOperator::Not) {
            checkCondition(node.operand, node.deniesComparison ? report::remedy::DENIED_VALUE : "");
        } else if (!mayApply(node.op, node.operand->kind)) {
            tell(fault::WRONG_OPERAND, node.place, {wordOf(node.op), wordOf(node.operand->kind)});
        }
    }
    void visit(resolved::Binary& node) {
        Walk::visit(node);
        checkOperands(node.op, node.left->kind, node.right->kind, node.place);
    }
    void visit(resolved::Assignment& node) { checkAssignment(node); }
    void visit(resolved::AssignmentValue& node) { checkAssignment(node); }

    void visit(resolved::ElementRead& node) {
        Walk::visit(node);
        checkElement(node.container->kind, *node.index, node.container->place);
    }
    void visit(resolved::TargetPlace& node) {
        Walk::visit(node);
        if (node.form == Form::Element) {
            const auto& container = *node.container;
            const bool isVariable = container.form == Form::Variable && container.variable != nullptr;
            checkElement(isVariable ? container.variable->kind : Kind::Any, *node.index, container.place);
        } else if (node.form == Form::Member) {
            checkMember(model_, kinds_.of(node.object.get()), {node.member, memberPlace(node), node.inside});
        }
    }
    void visit(resolved::EachLoop& node) {
        if (!mayHaveElements(node.iterable->kind)) {
            tell(fault::NOTHING_TO_GO_OVER, node.iterable->place, {wordOf(node.iterable->kind)});
        }
        Walk::visit(node);
    }
    void visit(resolved::CountingLoop& node) {
        checkBound(node.first);
        checkBound(node.last);
        checkBound(node.step);
        Walk::visit(node);
    }
    void visit(resolved::ValueCall& node) {
        const Kind callee = node.callee->kind;
        if (callee != Kind::Any && callee != Kind::Function) {
            tell(fault::NO_FUNCTION, node.callee->place, {wordOf(callee)}, "", hidingRemedy(*node.callee));
        }
        Walk::visit(node);
    }
    void visit(resolved::MemberRead& node) {
        Walk::visit(node);
        if (!isGuarded()) {
            checkMember(model_, kinds_.of(node.object.get()), {node.member, memberPlace(node), node.inside});
        }
    }
    void visit(resolved::MethodCall& node) {
        Walk::visit(node);
        checkConstantObject(node);
        if (!isGuarded()) {
            const Member member{node.member, memberPlace(node), node.inside};
            checkMethodCall(model_, kinds_.of(node.object.value.get()), member, node);
        }
    }
    void visit(resolved::Try& node) {
        {
            const ScopedIncrement guarded(guards_);
            walk(node.body);
        }
        walk(node.handler);
    }

private:
    bool isGuarded() const { return guards_ > 0; }

    void tell(int number, resolved::Place place, std::vector<std::string> values, std::string suggestion = {},
              std::string remedy = {}) {
        if (!isGuarded()) {
            model_.faults.add(number, place, std::move(values), std::move(suggestion), std::move(remedy));
        }
    }

    /// \param remedy what to do if it is none, if that isn't what the catalogue says
    void checkCondition(const resolved::ExpressionPtr& condition, const char* remedy = "") {
        const Kind kind = condition->kind;
        if (kind != Kind::Any && kind != Kind::Truth) {
            const bool isContainer = kind == Kind::Text || kind == Kind::List || kind == Kind::Map;
            tell(fault::NO_TRUTH, condition->place, {wordOf(kind)}, "",
                 *remedy == '\0' && isContainer ? report::remedy::CONTAINER_AS_CONDITION : remedy);
        }
    }

    void checkOperands(resolved::BinaryOperator op, Kind left, Kind right, resolved::Place place) {
        if (!mayApply(op, left, right)) {
            tell(isOrdering(op) ? fault::WRONG_ORDERING : fault::WRONG_OPERANDS, place,
                 {wordOf(op), wordOf(left), wordOf(right)}, numberSuggestion(left, right),
                 op == resolved::BinaryOperator::Multiply && isTextWithNumber(left, right)
                     ? report::remedy::REPEATED_TEXT
                     : "");
        }
    }

    template <class Node> void checkAssignment(Node& node) {
        Walk::visit(node);
        const bool isVariable = node.target->form == Form::Variable && node.target->variable != nullptr;
        if (node.isCompound) {
            const Kind before = isVariable ? node.target->variable->kind : Kind::Any;
            checkOperands(node.op, before, node.value->kind, node.value->place);
        }
    }

    void checkElement(Kind container, const resolved::Expression& index, resolved::Place place) {
        if (!mayHaveElements(container)) {
            tell(fault::NO_ELEMENTS, place, {wordOf(container)});
        } else if (!mayBeIndex(container, index.kind)) {
            tell(fault::WRONG_INDEX, index.place, {wordOf(container), wordOf(index.kind)});
        }
    }

    /// Methods such as சேர் change what holds the list, unless they are a structure's own.
    void checkConstantObject(const resolved::MethodCall& node) {
        const resolved::Variable* const constant = constantAtRoot(node.object.value.get());
        const auto* const builtin = findBuiltin(language::second::BuiltinForm::Method, node.member);
        if (constant == nullptr || builtin == nullptr || !builtin->writesFirst) {
            return;
        }
        const bool isCertain = memberOf(node.object.value->kind, builtin->form, node.member) != nullptr;
        if (isCertain || !isMemberOfStructure(model_, node.member)) {
            model_.faults.add(fault::CHANGED_CONSTANT, node.object.value->place, {constant->name});
        }
    }

    void checkBound(const resolved::ExpressionPtr& bound) {
        if (bound != nullptr && bound->kind != Kind::Any && !isNumber(bound->kind)) {
            tell(fault::WRONG_BOUND, bound->place, {wordOf(bound->kind)});
        }
    }

    /// The place of the member alone, which ends its node's text or stands before the bracket of a call.
    template <class Node> resolved::Place memberPlace(const Node& node) const {
        return model_.locations.wordAfter(node.place, objectEnd(node), node.member);
    }
    static std::uint32_t objectEnd(const resolved::MethodCall& node) { return node.object.value->place.range.end; }
    template <class Node> static std::uint32_t objectEnd(const Node& node) { return node.object->place.range.end; }

    Model& model_;
    const Kinds& kinds_;
    /// How many முயற்சி are around.
    int guards_ = 0;
};

} // namespace

void tellKindFaults(Model& model, const Kinds& kinds) {
    Checking checking(model, kinds);
    walkProgram(checking, model.program);
}

} // namespace pozhil::second
