#include "generator/second/last_uses.h"

#include "generator/second/evaluation_order.h"
#include "generator/second/tree_walk.h"
#include "generator/second/types.h"

#include <unordered_map>

namespace pozhil::resolved::writer {
namespace {

/// The variables of one expression, with the read of each that is read once and not written.
class SingleReads : public TreeWalk {
public:
    explicit SingleReads(const Expression& expression) { walk(&expression); }

    const std::unordered_map<const Variable*, const VariableRead*>& reads() const { return reads_; }

protected:
    void onVariableRead(const VariableRead& read) override {
        const auto [known, isFirst] = reads_.emplace(read.variable, &read);
        if (!isFirst) {
            known->second = nullptr;
        }
    }
    void onWrite(const TargetPlace& target) override { reads_[rootOf(target)] = nullptr; }

private:
    std::unordered_map<const Variable*, const VariableRead*> reads_;
};

class LastUses : public TreeWalk {
public:
    explicit LastUses(const Function& function) : function_(function) { walk(function.body.get()); }

    std::unordered_set<const VariableRead*> found() { return std::move(found_); }

protected:
    void onStatement(const Statement& statement) override {
        if (dynamic_cast<const Try*>(&statement) != nullptr) {
            ++attempts_;
        } else if (const auto* result = dynamic_cast<const Return*>(&statement)) {
            note(result->value.get(), nullptr);
        } else if (const auto* assignment = dynamic_cast<const Assignment*>(&statement)) {
            if (!assignment->isCompound && assignment->target->form == TargetPlace::Form::Variable) {
                note(assignment->value.get(), assignment->target->variable);
            }
        }
    }
    void afterStatement(const Statement& statement) override {
        if (dynamic_cast<const Try*>(&statement) != nullptr) {
            --attempts_;
        }
    }

private:
    /// \param overwritten the variable that loses its value afterwards; null if all do
    void note(const Expression* value, const Variable* overwritten) {
        if (value == nullptr || attempts_ > 0) {
            return;
        }
        const SingleReads single(*value);
        for (const auto& [variable, read] : single.reads()) {
            if (read != nullptr && (overwritten == nullptr || variable == overwritten) && dies(*variable)) {
                found_.insert(read);
            }
        }
    }
    /// Whether the variable ends with the call.
    bool dies(const Variable& variable) const {
        return variable.owner == &function_ && !variable.isShared && typeOf(variable) == Type::Value &&
               !variable.isReference;
    }

    const Function& function_;
    /// How many முயற்சி stand around.
    int attempts_ = 0;
    std::unordered_set<const VariableRead*> found_;
};

} // namespace

std::unordered_set<const VariableRead*> lastUses(const Function& function) {
    return LastUses(function).found();
}

} // namespace pozhil::resolved::writer
