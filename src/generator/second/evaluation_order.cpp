#include "generator/second/evaluation_order.h"

#include "generator/second/possible_faults.h"
#include "generator/second/tree_walk.h"
#include "generator/second/types.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace pozhil::resolved::writer {
namespace {

/// Whether a function outside of the one that evaluates can read and write it.
bool isSeenByOthers(const Variable& variable) {
    return variable.owner == nullptr || variable.isShared || variable.isReference;
}

/// Whether both may be one variable: a மாற்று parameter is the variable that the call gives, as is another one.
bool mayBeSame(const Variable& left, const Variable& right) {
    const bool isReference = left.isReference || right.isReference;
    return &left == &right || (isReference && isSeenByOthers(left) && isSeenByOthers(right));
}

/// Whether the built-in has to do with more than its arguments: input, files, the clock, the next random number.
bool touchesTheWorld(const language::second::Builtin& builtin) {
    constexpr std::string_view WORLDLY[] = {"readLine",   "writeFile",  "appendFile",       "readFile",
                                            "fileExists", "removeFile", "randomNumber",     "now",
                                            "dateText",   "clockText",  "dateAndClockText", "secondsSince1970"};
    return std::find(std::begin(WORLDLY), std::end(WORLDLY), builtin.engineFunction) != std::end(WORLDLY);
}

/// Finds what evaluating an expression does to others, and what it takes from them.
class Effects : public TreeWalk {
public:
    explicit Effects(const Expression& expression) { walk(&expression); }

    /// It reads elements or members.
    bool takesParts() const { return takesParts_; }
    bool changesSomething() const { return runsCode_ || !written_.empty(); }
    bool reads(const Variable& variable) const {
        return has(read_, variable) || (runsCode_ && isSeenByOthers(variable));
    }
    bool changes(const Variable& variable) const {
        return has(written_, variable) || (runsCode_ && isSeenByOthers(variable));
    }

protected:
    void onVariableRead(const VariableRead& read) override { read_.insert(read.variable); }
    void onWrite(const TargetPlace& target) override {
        // What is written into an object can be seen through any variable.
        const Variable* root = rootOf(target);
        runsCode_ = runsCode_ || root == nullptr;
        written_.insert(root);
        read_.insert(root);
    }
    void onExpression(const Expression& expression) override {
        takesParts_ = takesParts_ || dynamic_cast<const ElementRead*>(&expression) != nullptr ||
                      dynamic_cast<const MemberRead*>(&expression) != nullptr;
        if (const auto* builtin = dynamic_cast<const BuiltinCall*>(&expression)) {
            runsCode_ = runsCode_ || touchesTheWorld(*builtin->builtin);
        } else {
            runsCode_ = runsCode_ || dynamic_cast<const FunctionCall*>(&expression) != nullptr ||
                        dynamic_cast<const ValueCall*>(&expression) != nullptr ||
                        dynamic_cast<const MethodCall*>(&expression) != nullptr ||
                        dynamic_cast<const Construction*>(&expression) != nullptr;
        }
    }

private:
    using Variables = std::unordered_set<const Variable*>;

    static bool has(const Variables& variables, const Variable& variable) {
        return std::any_of(variables.begin(), variables.end(),
                           [&](const Variable* one) { return one != nullptr && mayBeSame(*one, variable); });
    }

    /// It runs a function of the program, or does something outside.
    bool runsCode_ = false;
    bool takesParts_ = false;
    Variables read_;
    Variables written_;
};

/// Always the same, whatever happens before.
bool isConstant(const Expression& expression) {
    return dynamic_cast<const WholeLiteral*>(&expression) != nullptr ||
           dynamic_cast<const TextLiteral*>(&expression) != nullptr ||
           dynamic_cast<const DecimalLiteral*>(&expression) != nullptr ||
           dynamic_cast<const TruthLiteral*>(&expression) != nullptr ||
           dynamic_cast<const NothingLiteral*>(&expression) != nullptr;
}

/// The variable, if nothing but its value is read, which can't fail.
const Variable* asPlainRead(const Expression& expression) {
    const auto* read = dynamic_cast<const VariableRead*>(&expression);
    return read != nullptr && !read->isChecked ? read->variable : nullptr;
}

} // namespace

bool mustComeBefore(const Expression& earlier, const Expression& later) {
    if (isConstant(earlier) || isConstant(later)) {
        return false;
    }
    const Variable* earlierVariable = asPlainRead(earlier);
    const Variable* laterVariable = asPlainRead(later);
    if (earlierVariable != nullptr && laterVariable != nullptr) {
        return false;
    }
    if (earlierVariable != nullptr) {
        return mayChange(later, *earlierVariable);
    }
    if (laterVariable != nullptr) {
        return mayChange(earlier, *laterVariable);
    }
    return (mayFail(later) && mayFail(earlier)) || changesSomething(later) || changesSomething(earlier);
}

bool changesSomething(const Expression& expression) {
    return Effects(expression).changesSomething();
}

bool leavesTraces(const Expression& expression) {
    return mayFail(expression) || changesSomething(expression);
}

bool mayChange(const Expression& expression, const Variable& variable) {
    return Effects(expression).changes(variable);
}

bool mayRead(const Expression& expression, const Variable& variable) {
    return Effects(expression).reads(variable);
}

bool mustComeBeforePlace(const Expression& value, const TargetPlace& target) {
    const Variable* root = rootOf(target);
    if (staysTheSame(value)) {
        return false;
    }
    if (const Variable* variable = asPlainRead(value)) {
        return root != nullptr && mayBeSame(*variable, *root);
    }
    const Effects effects(value);
    return root == nullptr ? effects.changesSomething() || effects.takesParts()
                           : effects.changes(*root) || effects.reads(*root);
}

bool mayChangeWhatHolds(const Expression& value, const TargetPlace& target) {
    const Variable* root = rootOf(target);
    const Effects effects(value);
    return root == nullptr ? effects.changesSomething() : effects.changes(*root);
}

bool mayBeMissing(const TargetPlace& target) {
    return target.form != TargetPlace::Form::Variable || target.isChecked;
}

bool staysTheSame(const Expression& expression) {
    const Variable* variable = asPlainRead(expression);
    return isConstant(expression) ||
           (variable != nullptr && variable->owner != nullptr && typeOf(*variable) != Type::Value);
}

const Variable* rootOf(const TargetPlace& target) {
    switch (target.form) {
    case TargetPlace::Form::Variable: return target.variable;
    case TargetPlace::Form::Element: return rootOf(*target.container);
    default: return nullptr;
    }
}

} // namespace pozhil::resolved::writer
