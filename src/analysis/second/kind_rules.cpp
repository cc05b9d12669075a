#include "analysis/second/kinds.h"
#include "analysis/second/operator_kinds.h"
#include "analysis/second/structures.h"

#include "analysis/second/resolved/visit.h"

namespace pozhil::second {
namespace {

using language::second::Builtin;
using language::second::BuiltinForm;
using resolved::BinaryOperator;
using resolved::Kind;
using State = Certainty::State;
using Form = resolved::TargetPlace::Form;

unsigned ownerBit(Kind kind) {
    switch (kind) {
    case Kind::Text: return language::second::owner::TEXT;
    case Kind::List: return language::second::owner::LIST;
    case Kind::Map: return language::second::owner::MAP;
    case Kind::Time: return language::second::owner::TIME;
    default: return language::second::owner::NONE;
    }
}

Kind kindOf(language::second::ResultKind result) {
    switch (result) {
    case language::second::ResultKind::Whole: return Kind::Whole;
    case language::second::ResultKind::Decimal: return Kind::Decimal;
    case language::second::ResultKind::Truth: return Kind::Truth;
    case language::second::ResultKind::Text: return Kind::Text;
    case language::second::ResultKind::List: return Kind::List;
    case language::second::ResultKind::Map: return Kind::Map;
    case language::second::ResultKind::Time: return Kind::Time;
    case language::second::ResultKind::Nothing: return Kind::Nothing;
    default: return Kind::Any;
    }
}

/// Whether a child of the structure has a member of its own of this name.
bool isOverridden(const Model& model, const resolved::Structure& structure, const std::string& member) {
    const auto facts = model.structures.find(&structure);
    if (facts == model.structures.end()) {
        return false;
    }
    for (const resolved::Structure* child : facts->second.children) {
        const bool isOwn = findField(*child, member).structure == child ||
                           findMethod(*child, member)->structure == child || isOverridden(model, *child, member);
        if (isOwn) {
            return true;
        }
    }
    return false;
}

/// Finds what is certain of a value, by the class of its node.
class Rules {
public:
    Rules(const Kinds& kinds, const Model& model, bool isMarked) : kinds_(kinds), model_(model), isMarked_(isMarked) {}

    Certainty result() const { return result_; }

    void visit(const resolved::VariableRead& node) {
        result_ = node.variable == nullptr ? Certainty::any() : kinds_.at(node.variable);
    }
    void visit(const resolved::WholeLiteral&) { result_ = Certainty::of(Kind::Whole); }
    void visit(const resolved::DecimalLiteral&) { result_ = Certainty::of(Kind::Decimal); }
    void visit(const resolved::TruthLiteral&) { result_ = Certainty::of(Kind::Truth); }
    void visit(const resolved::TextLiteral&) { result_ = Certainty::of(Kind::Text); }
    void visit(const resolved::NothingLiteral&) { result_ = Certainty::of(Kind::Nothing); }
    void visit(const resolved::ListLiteral&) { result_ = Certainty::of(Kind::List); }
    void visit(const resolved::MapLiteral&) { result_ = Certainty::of(Kind::Map); }
    void visit(const resolved::FunctionValue&) { result_ = Certainty::of(Kind::Function); }
    void visit(const resolved::BuiltinValue&) { result_ = Certainty::of(Kind::Function); }
    void visit(const resolved::Logical&) { result_ = Certainty::of(Kind::Truth); }
    void visit(const resolved::Construction& node) { result_ = Certainty::ofObject(node.structure); }
    void visit(const resolved::FunctionCall& node) { result_ = kinds_.at(node.function); }
    void visit(const resolved::ValueCall&) { result_ = Certainty::any(); }

    void visit(const resolved::Unary& node) {
        const Certainty operand = part(node.operand);
        const Kind always = resultOf(node.op, Kind::Any);
        const bool isOpen = operand.state == State::Open && always == Kind::Any;
        result_ = isOpen ? operand : Certainty::of(resultOf(node.op, operand.kind));
    }
    void visit(const resolved::Binary& node) { result_ = kinds_.under(node.op, part(node.left), part(node.right)); }
    void visit(const resolved::Conditional& node) { result_ = either(part(node.thenValue), part(node.elseValue)); }
    void visit(const resolved::ElementRead& node) { result_ = element(part(node.container)); }
    void visit(const resolved::AssignmentValue& node) {
        const Certainty value = part(node.value);
        result_ = node.isCompound ? kinds_.under(node.op, at(*node.target), value) : value;
    }
    void visit(const resolved::MemberRead& node) {
        const Certainty object = kinds_.of(node.object.get());
        const Builtin* const member = memberOf(object.kind, BuiltinForm::Part, node.member);
        result_ = object.state == State::Open ? object
                  : member == nullptr         ? Certainty::any()
                                              : resultOf(*member, object);
    }
    void visit(const resolved::MethodCall& node) {
        const Certainty object = kinds_.of(node.object.value.get());
        const Builtin* const member = memberOf(object.kind, BuiltinForm::Method, node.member);
        const resolved::Function* const method = certainMethod(model_, object, node.member);
        if (object.state == State::Open) {
            result_ = object;
        } else if (member != nullptr) {
            result_ = resultOf(*member, object);
        } else {
            result_ = method == nullptr ? Certainty::any() : kinds_.at(method);
        }
    }
    void visit(const resolved::BuiltinCall& node) {
        const bool hasFirst = !node.arguments.empty();
        result_ = resultOf(*node.builtin, hasFirst ? part(node.arguments[0].value) : Certainty::any());
    }

private:
    Certainty part(const resolved::ExpressionPtr& expression) const {
        return isMarked_ ? Certainty::of(expression->kind) : kinds_.of(expression.get());
    }

    static Certainty element(const Certainty& container) {
        if (container.state == State::Open) {
            return container;
        }
        return container.kind == Kind::Text ? Certainty::of(Kind::Text) : Certainty::any();
    }

    /// What is at a place before it is written.
    Certainty at(const resolved::TargetPlace& target) const {
        const bool isVariable = target.form == Form::Variable && target.variable != nullptr;
        return isVariable ? kinds_.at(target.variable) : Certainty::any();
    }

    const Kinds& kinds_;
    const Model& model_;
    bool isMarked_;
    Certainty result_ = Certainty::any();
};

} // namespace

Certainty Kinds::under(BinaryOperator op, const Certainty& left, const Certainty& right) const {
    if (purpose_ == Purpose::Telling && !mayApply(op, left.kind, right.kind)) {
        return Certainty();
    }
    const bool isOpen = left.state == State::Open || right.state == State::Open;
    const Kind result = resultOf(op, left.kind, right.kind);
    return isOpen && result == Kind::Any ? Certainty() : Certainty::of(result);
}

Certainty resultOf(const Builtin& builtin, const Certainty& first) {
    if (builtin.result != language::second::ResultKind::OfFirstArgument) {
        return Certainty::of(kindOf(builtin.result));
    }
    if (first.state == State::Open) {
        return first;
    }
    return isNumber(first.kind) ? Certainty::of(first.kind) : Certainty::any();
}

const Builtin* memberOf(Kind kind, BuiltinForm form, std::string_view name) {
    const unsigned bit = ownerBit(kind);
    const Builtin* const row = bit == 0 ? nullptr : language::second::findBuiltin(form, name);
    return row != nullptr && (row->owners & bit) != 0 ? row : nullptr;
}

const resolved::Function* certainMethod(const Model& model, const Certainty& object, const std::string& member) {
    if (object.state != State::Sure || object.structure == nullptr) {
        return nullptr;
    }
    const resolved::Function* const method = findMethod(*object.structure, member);
    if (method == nullptr || method->body == nullptr || findField(*object.structure, member).field != nullptr) {
        return nullptr;
    }
    return object.mayBeChild && isOverridden(model, *object.structure, member) ? nullptr : method;
}

Certainty Kinds::of(const resolved::Expression* expression) const {
    Rules rules(*this, model_, false);
    resolved::visitExpression(rules, expression);
    return rules.result();
}

Certainty Kinds::ofMarked(const resolved::Expression* expression) const {
    Rules rules(*this, model_, true);
    resolved::visitExpression(rules, expression);
    return rules.result();
}

} // namespace pozhil::second
