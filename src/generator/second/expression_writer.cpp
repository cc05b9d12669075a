#include "generator/second/expression_writer.h"

#include "analysis/second/resolved/visit.h"
#include "base/scoped_increment.h"
#include "generator/second/assignment_writer.h"
#include "generator/second/call_writer.h"
#include "generator/second/literals.h"
#include "generator/second/operators.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace pozhil::resolved::writer {

std::string ExpressionWriter::write(const Expression& expression) {
    text_.clear();
    visitExpression(*this, &expression);
    return std::move(text_);
}

std::string ExpressionWriter::write(const Expression& expression, Wanted wanted) {
    const Type from = typeOf(expression);
    const auto* whole = dynamic_cast<const WholeLiteral*>(&expression);
    if (whole != nullptr && wanted == Wanted::Decimal) {
        return decimalLiteral(static_cast<double>(whole->value));
    }
    return converted(write(expression), from, typeWanted(expression, wanted));
}

Type ExpressionWriter::typeWanted(const Expression& expression, Wanted wanted) {
    const Type type = typeOf(expression);
    switch (wanted) {
    case Wanted::AsIs: return type;
    case Wanted::NumberOrValue: return type == Type::Truth ? Type::Value : type;
    case Wanted::WholeOrValue: return type == Type::Whole ? Type::Whole : Type::Value;
    case Wanted::Whole: return Type::Whole;
    case Wanted::Decimal: return Type::Decimal;
    case Wanted::Truth: return Type::Truth;
    default: return Type::Value;
    }
}

std::string ExpressionWriter::condition(const Expression& expression, const char* function) {
    if (typeOf(expression) == Type::Truth) {
        return write(expression);
    }
    return std::string(function) + "(" + write(expression, Wanted::Value) + ", " + placeOf(expression.place) + ")";
}

std::string ExpressionWriter::wholeNumber(const Expression& expression) {
    if (typeOf(expression) == Type::Whole) {
        return write(expression);
    }
    return "whole(" + write(expression, Wanted::Value) + ", " + placeOf(expression.place) + ")";
}

std::string ExpressionWriter::statement(const Assignment& assignment) {
    return AssignmentWriter(*this).statement(assignment);
}

std::string ExpressionWriter::memberArguments(const std::string& member, const Place& place, const Structure* inside) {
    const std::string structure = inside == nullptr ? "" : ", &" + tables_.names.of(*inside);
    return tables_.members.of(member) + ", " + placeOf(place) + structure;
}

std::string ExpressionWriter::cellOf(const Variable& variable) const {
    // What the elements of lists show stands inside of what shows the lists.
    if (variable.owner == scope_.function || scope_.function->isPage) {
        return cellName(nameOf(variable)) + ".cell()";
    }
    const std::vector<Variable*>& captures = scope_.function->captures;
    const auto found = std::find(captures.begin(), captures.end(), &variable);
    return "captured(own, " + std::to_string(found - captures.begin()) + ")";
}

std::string ExpressionWriter::functionValue(const Function& function) {
    std::string cells;
    for (const Variable* captured : function.captures) {
        cells += (cells.empty() ? "" : ", ") + cellOf(*captured);
    }
    return "function(" + tables_.names.of(function, "info_") + (cells.empty() ? "" : ", {" + cells + "}") + ")";
}

void ExpressionWriter::visit(const WholeLiteral& literal) {
    text_ = wholeLiteral(literal.value);
}

void ExpressionWriter::visit(const DecimalLiteral& literal) {
    text_ = decimalLiteral(literal.value);
}

void ExpressionWriter::visit(const TruthLiteral& literal) {
    text_ = literal.value ? "true" : "false";
}

void ExpressionWriter::visit(const TextLiteral& literal) {
    text_ = "texts[" + std::to_string(tables_.texts.numberOf(literal.value)) + "]";
}

void ExpressionWriter::visit(const NothingLiteral&) {
    text_ = "Value()";
}

/// [a, b]  ->  list({a, b})
void ExpressionWriter::visit(const ListLiteral& list) {
    const ScopedIncrement inside(openBraces_);
    std::vector<std::string> elements;
    for (const ExpressionPtr& element : list.elements) {
        elements.push_back(write(*element));
    }
    text_ = braced("list(", "addElements(all, ", elements, ")");
}

/// {a: b}  ->  map({Entry{a, b}}, place)
void ExpressionWriter::visit(const MapLiteral& map) {
    const ScopedIncrement inside(openBraces_);
    std::vector<std::string> entries;
    for (const auto& [key, value] : map.entries) {
        const std::string keyText = write(*key);
        entries.push_back("Entry{" + keyText + ", " + write(*value) + "}");
    }
    text_ = braced("map(", "addEntries(all, ", entries, ", " + placeOf(map.place) + ")");
}

std::string ExpressionWriter::braced(const std::string& make, const std::string& add,
                                     const std::vector<std::string>& items, const std::string& ending) const {
    constexpr std::size_t ITEMS = 64;
    constexpr int LEVELS = 16;
    const auto part = [&](std::size_t begin) {
        std::string text;
        for (std::size_t index = begin; index < std::min(begin + ITEMS, items.size()); ++index) {
            text += (text.empty() ? "{" : ", ") + items[index];
        }
        return (text.empty() ? "{" : text) + "}" + ending;
    };
    if (items.size() <= ITEMS) {
        const std::string text = make + part(0);
        return openBraces_ % LEVELS == 0 ? "[&]() -> Value { return " + text + "; }()" : text;
    }
    std::string text = "[&]() -> Value { Value all = " + make + part(0) + "; ";
    for (std::size_t begin = ITEMS; begin < items.size(); begin += ITEMS) {
        text += "[&] { " + add + part(begin) + "; }(); ";
    }
    return text + "return all; }()";
}

void ExpressionWriter::visit(const VariableRead& read) {
    text_ = nameOf(*read.variable);
    if (read.isChecked) {
        text_ = "checked(" + text_ + ", " + textLiteral(read.variable->name) + ", " + placeOf(read.place) + ")";
    }
}

void ExpressionWriter::visit(const FunctionValue& value) {
    text_ = functionValue(*value.function);
}

void ExpressionWriter::visit(const BuiltinValue& value) {
    text_ = "function(builtin_" + std::to_string(tables_.builtinValues.numberOf(value.builtin)) + ")";
}

/// குறை a  ->  minus(a, place)
void ExpressionWriter::visit(const Unary& unary) {
    const std::string place = placeOf(unary.place);
    switch (unary.op) {
    case UnaryOperator::Not:
        text_ = "!" + condition(*unary.operand, unary.deniesComparison ? "deniedTruth" : "truth");
        break;
    case UnaryOperator::BitNot: text_ = "bitNot(" + write(*unary.operand) + ", " + place + ")"; break;
    case UnaryOperator::Plus:
        text_ = "plus(" + write(*unary.operand, Wanted::NumberOrValue) + ", " + place + ")";
        break;
    case UnaryOperator::Minus: {
        const auto* whole = dynamic_cast<const WholeLiteral*>(unary.operand.get());
        const auto* decimal = dynamic_cast<const DecimalLiteral*>(unary.operand.get());
        if (whole != nullptr && whole->value != std::numeric_limits<std::int64_t>::min()) {
            text_ = wholeLiteral(-whole->value);
        } else if (decimal != nullptr) {
            text_ = decimalLiteral(-decimal->value);
        } else {
            text_ = "minus(" + write(*unary.operand, Wanted::NumberOrValue) + ", " + place + ")";
        }
        break;
    }
    }
}

/// a கூட்டு b  ->  add(a, b, place)
void ExpressionWriter::visit(const Binary& binary) {
    if (binary.op == BinaryOperator::Join) {
        const std::vector<const Expression*> pieces = joinedPieces(binary);
        if (pieces.size() > 2) {
            std::string texts;
            for (const Expression* piece : pieces) {
                texts += (texts.empty() ? "" : ", ") + write(*piece);
            }
            text_ = "join({" + texts + "}, " + placeOf(binary.place) + ")";
            return;
        }
    }
    Operands operands(*this);
    const auto [left, right] = wantedOperands(binary);
    operands.add(*binary.left, left);
    operands.add(*binary.right, right);
    operands.evaluate();
    text_ = operands.whole(operation(binary.op, operands.list(), placeOf(binary.place)));
}

/// a மற்றும் b  ->  (a && b)
void ExpressionWriter::visit(const Logical& logical) {
    const std::string left = condition(*logical.left);
    text_ = "(" + left + (logical.isAnd ? " && " : " || ") + condition(*logical.right) + ")";
}

void ExpressionWriter::visit(const Conditional& conditional) {
    const Wanted wanted = wantedAs(typeOf(conditional));
    const std::string test = condition(*conditional.condition, conditional.mayBeReversed ? "choiceTruth" : "truth");
    const std::string thenText = write(*conditional.thenValue, wanted);
    const std::string elseText = write(*conditional.elseValue, wanted);
    // g++ 12 fails in a list in braces that holds a choice between a constant and itself.
    text_ = thenText == elseText ? "(static_cast<void>(" + test + "), " + thenText + ")"
                                 : "(" + test + " ? " + thenText + " : " + elseText + ")";
}

/// a[b]  ->  get(a, b, place)
void ExpressionWriter::visit(const ElementRead& read) {
    Operands operands(*this);
    operands.add(*read.container, Wanted::AsIs);
    operands.add(*read.index, Wanted::WholeOrValue);
    operands.evaluate();
    text_ = operands.whole("get(" + operands.list() + ", " + placeOf(read.place) + ")");
}

/// a.b  ->  member(a, m_b, place)
void ExpressionWriter::visit(const MemberRead& read) {
    const std::string object = write(*read.object);
    text_ = "member(" + object + ", " + memberArguments(read.member, read.place, read.inside) + ")";
}

void ExpressionWriter::visit(const AssignmentValue& assignment) {
    text_ = AssignmentWriter(*this).value(assignment);
}

void ExpressionWriter::visit(const FunctionCall& call) {
    text_ = CallWriter(*this).write(call);
}

void ExpressionWriter::visit(const ValueCall& call) {
    text_ = CallWriter(*this).write(call);
}

void ExpressionWriter::visit(const MethodCall& call) {
    text_ = CallWriter(*this).write(call);
}

void ExpressionWriter::visit(const Construction& construction) {
    text_ = CallWriter(*this).write(construction);
}

void ExpressionWriter::visit(const BuiltinCall& call) {
    text_ = CallWriter(*this).write(call);
}

} // namespace pozhil::resolved::writer
