#include "analysis/second/resolution.h"

#include "analysis/second/fault_numbers.h"
#include "analysis/second/suggestions.h"
#include "language/operators.h"
#include "parser/tree/shapes.h"

#include <map>
#include <string>

namespace pozhil::second {
namespace {

using Form = resolved::TargetPlace::Form;

/// The variable at the root of the elements of a place, null for a member or no place.
const VariableAccess* rootOf(const Expression* expression) {
    expression = withoutBrackets(expression);
    while (const auto* element = nodeCast<IndexExpression>(expression)) {
        expression = withoutBrackets(element->object.get());
    }
    return nodeCast<VariableAccess>(expression);
}

bool isElement(const Expression* expression) {
    return nodeCast<IndexExpression>(withoutBrackets(expression)) != nullptr;
}

void markInLoops(Resolution& resolution, const resolved::Variable* variable) {
    for (OpenLoop& loop : resolution.loops) {
        loop.isVariableAssigned |= loop.variable == variable;
    }
}

/// Makes the place; the expression is known to be one.
resolved::TargetPtr makeTarget(Resolution& resolution, const Expression* expression) {
    expression = withoutBrackets(expression);
    auto target = std::make_unique<resolved::TargetPlace>();
    target->place = resolution.placeOf(expression);
    if (const auto* element = nodeCast<IndexExpression>(expression)) {
        target->form = Form::Element;
        target->container = makeTarget(resolution, element->object.get());
        target->index = resolveValue(resolution, element->index.get());
    } else if (const auto* member = nodeCast<GetExpression>(expression)) {
        target->form = Form::Member;
        target->object = resolveValue(resolution, member->object.get());
        target->member = member->member.value;
        target->inside = resolution.inside;
    } else if (const auto* name = nodeCast<VariableAccess>(expression)) {
        target->variable = resolution.meaningOf(name->name, Use::Write).variable;
        markInLoops(resolution, target->variable);
        if (target->variable == nullptr) {
            tellUnknownName(resolution, name->name, target->place);
        }
    }
    return target;
}

/// A constant holds what it was first given, also what its elements are.
bool changesConstant(const Expression* expression) {
    const auto* const root = rootOf(expression);
    return root != nullptr && isConstantName(root->name);
}

/// The element of a list that a page shows, or its index, is a copy for as long as it is drawn.
bool changesElement(const Resolution& resolution, const Expression* expression) {
    const auto* const root = rootOf(expression);
    const auto* const variable = root == nullptr ? nullptr : resolution.meaningOf(root->name, Use::Write).variable;
    return variable != nullptr && isOfElement(*variable);
}

} // namespace

bool isPlace(const Resolution& resolution, const Expression* expression) {
    expression = withoutBrackets(expression);
    if (const auto* name = nodeCast<VariableAccess>(expression)) {
        const Meaning meaning = resolution.meaningOf(name->name, Use::Write);
        return meaning.variable != nullptr || (meaning.isUnknown() && !isOfLanguage(name->name));
    }
    if (const auto* element = nodeCast<IndexExpression>(expression)) {
        return isPlace(resolution, element->object.get());
    }
    const auto* const member = nodeCast<GetExpression>(expression);
    if (member == nullptr) {
        return false;
    }
    const auto* const object = nodeCast<VariableAccess>(withoutBrackets(member->object.get()));
    const Meaning meaning = object == nullptr ? Meaning() : resolution.meaningOf(object->name, Use::Read);
    return meaning.structure == nullptr && meaning.enumeration == nullptr;
}

resolved::TargetPtr resolveTarget(Resolution& resolution, const Expression* expression) {
    if (!isPlace(resolution, expression)) {
        resolution.model.faults.add(fault::NO_PLACE, resolution.placeOf(expression));
        return std::make_unique<resolved::TargetPlace>();
    }
    if (isElement(expression) && changesConstant(expression)) {
        resolution.model.faults.add(fault::CHANGED_CONSTANT, resolution.placeOf(expression),
                                    {rootOf(expression)->name});
    }
    if (changesElement(resolution, expression)) {
        resolution.model.faults.add(fault::CHANGED_ELEMENT, resolution.placeOf(expression), {rootOf(expression)->name});
    }
    return makeTarget(resolution, expression);
}

resolved::TargetPtr placeIfAny(Resolution& resolution, const Expression* expression) {
    const bool mayChange =
        isPlace(resolution, expression) && !changesConstant(expression) && !changesElement(resolution, expression);
    return mayChange ? makeTarget(resolution, expression) : nullptr;
}

bool isCompound(const PlaceAssignment& assignment) {
    return assignment.op.type != TokenType::ASSIGN;
}

resolved::BinaryOperator compoundOperator(const PlaceAssignment& assignment) {
    return binaryOperator(language::compoundArithmetic(assignment.op.value));
}

resolved::ExpressionPtr assignedValue(Resolution& resolution, const PlaceAssignment& assignment) {
    if (assignment.value != nullptr) {
        return resolveValue(resolution, assignment.value.get());
    }
    auto one = makeNode<resolved::WholeLiteral>(resolution.placeOf(&assignment));
    one->value = 1;
    return one;
}

resolved::ExpressionPtr resolveAssignmentValue(Resolution& resolution, const PlaceAssignment& assignment) {
    auto result = makeNode<resolved::AssignmentValue>(resolution.placeOf(&assignment));
    result->target = resolveTarget(resolution, assignment.target.get());
    result->isCompound = isCompound(assignment);
    if (result->isCompound) {
        result->op = compoundOperator(assignment);
    }
    result->value = assignedValue(resolution, assignment);
    return result;
}

} // namespace pozhil::second
