#include "generator/second/assignment_writer.h"

#include "generator/second/evaluation_order.h"
#include "generator/second/operators.h"
#include "generator/second/possible_faults.h"

#include <algorithm>
#include <vector>

namespace pozhil::resolved::writer {
namespace {

bool growsInPlace(BinaryOperator op) {
    return op == BinaryOperator::Add || op == BinaryOperator::Join;
}

/// What கூட்டிசேர் and its kin are made of.
bool isArithmetic(BinaryOperator op) {
    return op == BinaryOperator::Add || op == BinaryOperator::Subtract || op == BinaryOperator::Multiply ||
           op == BinaryOperator::Divide || op == BinaryOperator::Remainder || op == BinaryOperator::Join;
}

const char* growingFunction(BinaryOperator op) {
    return op == BinaryOperator::Add ? "addTo" : "joinTo";
}

bool isReadOf(const Expression& expression, const Variable& variable) {
    const auto* read = dynamic_cast<const VariableRead*>(&expression);
    return read != nullptr && read->variable == &variable;
}

/// Whether the emitted text of an expression is the variable itself, and no value of its own.
bool isVariableItself(const Expression& expression) {
    return dynamic_cast<const VariableRead*>(&expression) != nullptr ||
           dynamic_cast<const AssignmentValue*>(&expression) != nullptr ||
           dynamic_cast<const Conditional*>(&expression) != nullptr;
}

/// Whether an expression can be written twice and means the same: a literal, or the value of a variable.
bool isRepeatable(const Expression& expression) {
    const auto* read = dynamic_cast<const VariableRead*>(&expression);
    return staysTheSame(expression) || (read != nullptr && !read->isChecked);
}

/// Whether a variable holds what the expression gives, so that it is still there after the statement.
bool isHeldByVariable(const Expression& expression) {
    if (const auto* element = dynamic_cast<const ElementRead*>(&expression)) {
        return isRepeatable(*element->index) && isHeldByVariable(*element->container);
    }
    const auto* member = dynamic_cast<const MemberRead*>(&expression);
    return member != nullptr ? isHeldByVariable(*member->object)
                             : dynamic_cast<const VariableRead*>(&expression) != nullptr;
}

/// Whether the place may be gone with the statement that looks it up: it stands in an object that nobody else holds.
bool isPassing(const TargetPlace& place) {
    switch (place.form) {
    case TargetPlace::Form::Variable: return false;
    case TargetPlace::Form::Element: return isPassing(*place.container);
    default: return !isHeldByVariable(*place.object);
    }
}

bool isSameOperand(const Expression& left, const Expression& right) {
    const auto* leftRead = dynamic_cast<const VariableRead*>(&left);
    const auto* leftWhole = dynamic_cast<const WholeLiteral*>(&left);
    const auto* leftText = dynamic_cast<const TextLiteral*>(&left);
    if (leftRead != nullptr && isRepeatable(left)) {
        return isReadOf(right, *leftRead->variable);
    }
    if (leftWhole != nullptr) {
        const auto* whole = dynamic_cast<const WholeLiteral*>(&right);
        return whole != nullptr && whole->value == leftWhole->value;
    }
    const auto* text = dynamic_cast<const TextLiteral*>(&right);
    return leftText != nullptr && text != nullptr && text->value == leftText->value;
}

/// Whether an expression reads the very place that is written.
bool isReadOf(const Expression& expression, const TargetPlace& place) {
    if (place.form == TargetPlace::Form::Variable) {
        return isReadOf(expression, *place.variable);
    }
    if (place.form == TargetPlace::Form::Element) {
        const auto* element = dynamic_cast<const ElementRead*>(&expression);
        return element != nullptr && isSameOperand(*place.index, *element->index) &&
               isReadOf(*element->container, *place.container);
    }
    const auto* member = dynamic_cast<const MemberRead*>(&expression);
    return member != nullptr && member->member == place.member && isSameOperand(*place.object, *member->object);
}

/// What a chain of one operator appends to a place.
struct Growth {
    /// The place as the chain begins with it; null if it doesn't.
    const Expression* grown = nullptr;
    std::vector<const Expression*> appended{};
};

/// x = x கூட்டு a கூட்டு b  ->  x; a, b
Growth growthOf(const TargetPlace& place, const Binary& chain) {
    Growth growth;
    const Binary* link = &chain;
    while (true) {
        growth.appended.push_back(link->right.get());
        if (isReadOf(*link->left, place)) {
            growth.grown = link->left.get();
            std::reverse(growth.appended.begin(), growth.appended.end());
            return growth;
        }
        const auto* next = dynamic_cast<const Binary*>(link->left.get());
        if (next == nullptr || next->op != chain.op) {
            return {};
        }
        link = next;
    }
}

} // namespace

std::string AssignmentWriter::statement(const Assignment& assignment) {
    const std::string last =
        write({*assignment.target, assignment.isCompound, assignment.op, *assignment.value, assignment.place});
    return operands_.statement(last);
}

std::string AssignmentWriter::value(const AssignmentValue& assignment) {
    const TargetPlace& target = *assignment.target;
    const Step step{target, assignment.isCompound, assignment.op, *assignment.value, assignment.place};
    if (target.form == TargetPlace::Form::Variable) {
        const std::string last = write(step);
        const std::string& name = writer_.nameOf(*target.variable);
        return operands_.whole("(" + last + ", " + name + ")");
    }
    if (assignment.isCompound) {
        const std::string last = compoundPlace(step, true);
        operands_.before(last + ";");
        return operands_.whole(operands_.place(target, 0));
    }
    operands_.addPlace(target);
    const std::size_t number = operands_.add(*assignment.value, Wanted::Value, true);
    operands_.evaluate();
    operands_.before(operands_.place(target, 0, true) + " = " + operands_.text(number) + ";");
    return operands_.whole(operands_.text(number));
}

std::string AssignmentWriter::write(const Step& step) {
    const bool isVariable = step.target.form == TargetPlace::Form::Variable;
    if (step.isCompound) {
        return isVariable ? compoundVariable(step) : compoundPlace(step);
    }
    std::string growth = grow(step);
    if (!growth.empty()) {
        return growth;
    }
    if (isVariable) {
        return assignVariable(step);
    }
    // a[i] = a[i] கழி b: what stands in the place needn't be taken out.
    const auto* operation = dynamic_cast<const Binary*>(&step.value);
    if (operation != nullptr && isArithmetic(operation->op) && isReadOf(*operation->left, step.target)) {
        return compoundPlace({step.target, true, operation->op, *operation->right, operation->place});
    }
    return assignPlace(step);
}

/// x = a  ->  v_x = a
std::string AssignmentWriter::assignVariable(const Step& step) {
    const Type type = typeOf(*step.target.variable);
    const Wanted wanted = type == Type::Value ? Wanted::AsIs : wantedAs(type);
    return writer_.nameOf(*step.target.variable) + " = " + writer_.write(step.value, wanted);
}

/// a[i] = b  ->  slot(v_a, i, place) = b
std::string AssignmentWriter::assignPlace(const Step& step) {
    operands_.addPlace(step.target);
    const std::size_t number = operands_.add(step.value, Wanted::AsIs, mustComeBeforePlace(step.value, step.target));
    operands_.evaluate();
    return operands_.place(step.target, 0, true) + " = " + operands_.takenText(number);
}

/// x கூட்டிசேர் a  ->  addTo(v_x, a, place), or v_x = add(v_x, a, place) where x is a native number
std::string AssignmentWriter::compoundVariable(const Step& step) {
    const Variable& variable = *step.target.variable;
    const Type type = typeOf(variable);
    const std::string place = writer_.placeOf(step.place);
    const std::string target = operands_.place(step.target, 0);
    const std::string& name = writer_.nameOf(variable);
    const bool isChanged = mayChange(step.value, variable);
    if (step.target.isChecked && !isChanged && leavesTraces(step.value)) {
        operands_.before(target + ";");
    }
    if (type == Type::Value && growsInPlace(step.op) && !isChanged) {
        const bool isAlias = isVariableItself(step.value) && mayRead(step.value, variable);
        const std::string text = writer_.write(step.value);
        return std::string(growingFunction(step.op)) + "(" + target + ", " + (isAlias ? "Value(" + text + ")" : text) +
               ", " + place + ")";
    }
    std::string old = target;
    if (isChanged) {
        old = writer_.temporary();
        operands_.before("const " + std::string(nameOf(type)) + " " + old + " = " + target + ";");
    }
    const Wanted wanted = step.op == BinaryOperator::Join ? Wanted::AsIs : Wanted::NumberOrValue;
    const std::string result = operation(step.op, old + ", " + writer_.write(step.value, wanted), place);
    const Type resultType = typeOfOperation(step.op, type, ExpressionWriter::typeWanted(step.value, wanted));
    return name + " = " + (type == Type::Value ? result : converted(result, resultType, type));
}

/// a[i] கூட்டிசேர் b  ->  addTo(element(v_a, i, place), b, place). A place that was found before the value can be written
/// afterwards, unless the value is a list that holds it.
std::string AssignmentWriter::compoundPlace(const Step& step, bool isNeededAgain) {
    if (mayChangeWhatHolds(step.value, step.target)) {
        return compoundChangedPlace(step);
    }
    const std::string place = writer_.placeOf(step.place);
    const bool isLate = mustComeBeforePlace(step.value, step.target);
    const bool isFoundFirst = leavesTraces(step.value);
    const bool isLookedUpAgain = isLate && changesSomething(step.value);
    operands_.addPlace(step.target, isNeededAgain || isFoundFirst || isPassing(step.target));
    std::string target;
    if (isFoundFirst) {
        target = operands_.placeFoundFirst(step.target, 0, isLookedUpAgain);
    }
    const Wanted wanted = growsInPlace(step.op) ? Wanted::AsIs : Wanted::NumberOrValue;
    const std::size_t number = operands_.add(step.value, wanted, isLate);
    operands_.evaluate();
    if (!isFoundFirst) {
        target = operands_.place(step.target, 0);
    }
    const std::string& text = operands_.text(number);
    if (growsInPlace(step.op)) {
        const bool mayHoldPlace = isFoundFirst && isLate && !isLookedUpAgain && typeOf(step.value) == Type::Value;
        return std::string(growingFunction(step.op)) + "(" +
               (mayHoldPlace ? "isContainer(" + text + ") ? " + operands_.place(step.target, 0) + " : " : "") + target +
               ", " + text + ", " + place + ")";
    }
    if (!isFoundFirst || isLookedUpAgain) {
        const std::string reference = writer_.temporary();
        operands_.before("Value& " + reference + " = " + target + ";");
        target = reference;
    }
    return target + " = " + operation(step.op, target + ", " + text, place);
}

/// What stood in the place before the value was evaluated counts.
std::string AssignmentWriter::compoundChangedPlace(const Step& step) {
    operands_.addPlace(step.target, true);
    operands_.evaluate();
    const std::string old = writer_.temporary();
    operands_.before("Value " + old + " = " + operands_.place(step.target, 0) + ";");
    const std::string result = writer_.temporary();
    const std::string value = writer_.write(step.value, Wanted::Value);
    operands_.before("Value " + result + " = " + operation(step.op, old + ", " + value, writer_.placeOf(step.place)) +
                     ";");
    return operands_.place(step.target, 0, true) + " = moved(" + result + ")";
}

std::string AssignmentWriter::grow(const Step& step) {
    const bool isVariable = step.target.form == TargetPlace::Form::Variable;
    const auto* chain = dynamic_cast<const Binary*>(&step.value);
    const bool isNative = isVariable && typeOf(*step.target.variable) != Type::Value;
    if (isNative || chain == nullptr || !growsInPlace(chain->op)) {
        return {};
    }
    const auto [grown, appended] = growthOf(step.target, *chain);
    if (grown == nullptr) {
        return {};
    }
    const bool isApart = std::none_of(appended.begin(), appended.end(), [&step](const Expression* piece) {
        return mustComeBeforePlace(*piece, step.target);
    });
    // What is no text may refuse the second piece when it has taken the first.
    const bool isSeveral = appended.size() > 1;
    const bool isText = isVariable && step.target.variable->kind == Kind::Text;
    if (!isApart || (isSeveral && chain->op != BinaryOperator::Join && !isText)) {
        return {};
    }
    std::string name = growingPlace(step, *grown, appended);
    const std::string place = writer_.placeOf(chain->place);
    std::string last;
    for (std::size_t number = operands_.count() - appended.size(); number < operands_.count(); ++number) {
        if (!last.empty()) {
            operands_.before(last + ";");
        }
        last = growingFunction(chain->op);
        last.append("(")
            .append(name)
            .append(", ")
            .append(operands_.text(number))
            .append(", ")
            .append(place)
            .append(")");
    }
    return last;
}

/// Writes what is appended.
/// \param grown the read of the place that the chain begins with
/// \return what grows
std::string AssignmentWriter::growingPlace(const Step& step, const Expression& grown,
                                           const std::vector<const Expression*>& appended) {
    const TargetPlace& target = step.target;
    const bool isVariable = target.form == TargetPlace::Form::Variable;
    const bool isSeveral = appended.size() > 1;
    const bool isFoundFirst = mayFail(grown) && std::any_of(appended.begin(), appended.end(),
                                                            [](const Expression* one) { return leavesTraces(*one); });
    operands_.addPlace(target, isFoundFirst);
    std::string place;
    if (isFoundFirst && isVariable) {
        operands_.before(writer_.write(grown) + ";");
    } else if (isFoundFirst) {
        place = operands_.placeFoundFirst(target, 0, false);
    }
    for (const Expression* piece : appended) {
        operands_.add(*piece, Wanted::AsIs, isSeveral);
    }
    operands_.evaluate();
    if (isVariable) {
        return isFoundFirst ? writer_.nameOf(*target.variable) : writer_.write(grown);
    }
    if (!isFoundFirst) {
        place = isSeveral ? operands_.placeFoundFirst(target, 0, false) : operands_.place(target, 0);
    }
    return place;
}

} // namespace pozhil::resolved::writer
