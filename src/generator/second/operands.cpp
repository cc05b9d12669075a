#include "generator/second/operands.h"

#include "generator/second/evaluation_order.h"
#include "generator/second/expression_writer.h"
#include "generator/second/literals.h"

#include <algorithm>

namespace pozhil::resolved::writer {

Wanted wantedAs(Type type) {
    switch (type) {
    case Type::Whole: return Wanted::Whole;
    case Type::Decimal: return Wanted::Decimal;
    case Type::Truth: return Wanted::Truth;
    default: return Wanted::Value;
    }
}

std::size_t Operands::add(const Expression& expression, Wanted wanted, bool isKept) {
    operands_.push_back({&expression, wanted, isKept, {}, false});
    return operands_.size() - 1;
}

/// \param whole the place that \p target is a part of
void Operands::addPlaceWithin(const TargetPlace& target, const TargetPlace& whole, bool isKept) {
    if (target.form == TargetPlace::Form::Element) {
        addPlaceWithin(*target.container, whole, isKept);
        add(*target.index, Wanted::AsIs, isKept || mustComeBeforePlace(*target.index, whole));
    } else if (target.form == TargetPlace::Form::Member) {
        add(*target.object, Wanted::AsIs, isKept);
    }
}

bool Operands::needsTemporary(std::size_t number) const {
    const Operand& operand = operands_[number];
    if (operand.isKept && !staysTheSame(*operand.expression)) {
        return true;
    }
    const bool isInBraces = number >= bracesFrom_;
    return !isInBraces &&
           std::any_of(operands_.begin() + static_cast<std::ptrdiff_t>(number) + 1, operands_.end(),
                       [&](const Operand& later) { return mustComeBefore(*operand.expression, *later.expression); });
}

void Operands::evaluate() {
    for (; evaluated_ < operands_.size(); ++evaluated_) {
        Operand& operand = operands_[evaluated_];
        operand.text = writer_.write(*operand.expression, operand.wanted);
        if (needsTemporary(evaluated_)) {
            const std::string name = writer_.temporary();
            const Type type = writer_.typeWanted(*operand.expression, operand.wanted);
            operand.isValueTemporary = type == Type::Value;
            before((type == Type::Value ? "" : "const ") + std::string(nameOf(type)) + " " + name + " = " +
                   operand.text + ";");
            operand.text = name;
        }
    }
}

std::string Operands::takenText(std::size_t number) const {
    const Operand& operand = operands_[number];
    return operand.isValueTemporary ? "moved(" + operand.text + ")" : operand.text;
}

std::string Operands::list(std::size_t first) const {
    std::string texts;
    for (std::size_t number = first; number < operands_.size(); ++number) {
        texts += (number == first ? "" : ", ") + operands_[number].text;
    }
    return texts;
}

std::string Operands::place(const TargetPlace& target, std::size_t first, bool isNew) const {
    return placeFrom(target, first, isNew, !isNew);
}

std::string Operands::placeFoundFirst(const TargetPlace& target, std::size_t first, bool isLookedUpAgain) {
    evaluate();
    std::string found = place(target, first);
    if (isLookedUpAgain) {
        before(found + ";");
        return found;
    }
    std::string reference = writer_.temporary();
    before("Value& " + reference + " = " + found + ";");
    return reference;
}

std::string Operands::valueOf(const TargetPlace& target, std::size_t first) const {
    return valueFrom(target, first);
}

std::string Operands::variable(const TargetPlace& target, bool isRead) const {
    const std::string& name = writer_.nameOf(*target.variable);
    return isRead && target.isChecked ? "checked(" + name + ", " + textLiteral(target.variable->name) + ", " +
                                            writer_.placeOf(target.place) + ")"
                                      : name;
}

std::string Operands::valueFrom(const TargetPlace& target, std::size_t& next) const {
    if (target.form == TargetPlace::Form::Variable) {
        return variable(target, true);
    }
    const bool isElement = target.form == TargetPlace::Form::Element;
    const std::string holder = isElement ? valueFrom(*target.container, next) : "";
    const std::string& operand = operands_[next++].text;
    if (isElement) {
        return "get(" + holder + ", " + operand + ", " + writer_.placeOf(target.place) + ")";
    }
    return "member(" + operand + ", " + writer_.memberArguments(target.member, target.place, target.inside) + ")";
}

/// \param isRead what the place holds is read, so it must hold something
std::string Operands::placeFrom(const TargetPlace& target, std::size_t& next, bool isNew, bool isRead) const {
    const std::string place = writer_.placeOf(target.place);
    switch (target.form) {
    case TargetPlace::Form::Variable: return variable(target, isRead);
    case TargetPlace::Form::Element: {
        const std::string container = placeFrom(*target.container, next, false, true);
        const std::string& index = operands_[next++].text;
        return (isNew ? "slot(" : "element(") + container + ", " + index + ", " + place + ")";
    }
    default: {
        const std::string& object = operands_[next++].text;
        const std::string field =
            "field(" + object + ", " + writer_.memberArguments(target.member, target.place, target.inside) + ")";
        return isRead ? "checked(" + field + ", " + textLiteral(target.member) + ", " + place + ")" : field;
    }
    }
}

std::string Operands::whole(const std::string& operation) const {
    return before_.empty() ? operation : "({ " + before_ + operation + "; })";
}

std::string Operands::statement(const std::string& operation) const {
    return before_.empty() ? operation + ";" : "{ " + before_ + operation + "; }";
}

} // namespace pozhil::resolved::writer
