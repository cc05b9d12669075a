#include "analysis/second/captures.h"

#include "analysis/second/names.h"
#include "language/second/builtins.h"

#include <algorithm>
#include <vector>

namespace pozhil::second {
namespace {

class CaptureSearch {
public:
    explicit CaptureSearch(Model& model) : model_(model) {}

    void search() {
        for (Scope& scope : model_.scopes) {
            if (scope.isLambda) {
                scope.function->isValue = true;
            }
            for (const Mention& mention : scope.mentions) {
                follow(scope, mention);
            }
        }
        // Each function that comes to share something may make those share it that name it.
        std::size_t next = 0;
        while (next < sharing_.size()) {
            holdInVariable(sharing_[next++]);
        }
        noteMutableParameters();
    }

private:
    /// A call of something that isn't known before the program runs may take these arguments as places.
    void noteMutableParameters() {
        for (const auto& function : model_.program.functions) {
            const std::size_t count = function->parameters.size();
            const std::size_t object = function->structure != nullptr ? 1 : 0;
            for (std::size_t index = object; index < count; ++index) {
                if (!function->parameters[index].isMutable || (object == 0 && !function->isValue)) {
                    continue;
                }
                model_.mutableInValues.emplace(count - object, index - object);
                if (object != 0) {
                    model_.mutableInMethods.emplace(function->name, index - object);
                }
            }
        }
    }

    void follow(Scope& scope, const Mention& mention) {
        const Meaning meaning = meaningOf(model_, scope, mention.name, mention.use);
        if (meaning.variable != nullptr) {
            share(scope.function, meaning.variable);
        } else if (meaning.function != nullptr) {
            meaning.function->isValue |= mention.use != Use::Call;
            if (meaning.function->enclosing != nullptr) {
                mentionedBy_[meaning.function].push_back(&scope);
            }
        } else if (meaning.isUnknown() && mention.use == Use::Read) {
            noteBuiltin(mention.name);
        }
    }

    /// A function that comes with the language and writes to its first argument does so as a value too.
    void noteBuiltin(std::string_view name) {
        const auto* const builtin = language::second::findBuiltin(language::second::BuiltinForm::Call, name);
        if (builtin != nullptr && builtin->writesFirst) {
            model_.mutableInValues.emplace(static_cast<std::size_t>(builtin->fewestArguments), 0);
        }
    }

    /// \p user and all functions between it and the variable's owner take the variable with them.
    void share(resolved::Function* user, resolved::Variable* variable) {
        if (variable->owner == nullptr || user == variable->owner) {
            return;
        }
        variable->isShared = true;
        for (resolved::Function* one = user; one != variable->owner; one = mutableOf(one->enclosing)) {
            auto& captures = one->captures;
            if (std::find(captures.begin(), captures.end(), variable) != captures.end()) {
                return;
            }
            captures.push_back(variable);
            if (captures.size() == 1) {
                sharing_.push_back(one);
            }
        }
    }

    resolved::Function* mutableOf(const resolved::Function* function) {
        return function == nullptr ? nullptr : model_.scopeOfFunction.at(function)->function;
    }

    /// A lambda needs no variable; a function with a name lives in one of the function that it stands in.
    void holdInVariable(resolved::Function* function) {
        Scope& home = *model_.scopeOfFunction.at(function)->outer;
        const auto named = home.functions.find(function->name);
        if (named == home.functions.end() || named->second != function) {
            return;
        }
        resolved::Variable* const holder = model_.addVariable(home, function->name, function->place);
        function->isValue = true;
        model_.holders[function] = holder;
        for (const Scope* user : mentionedBy_[function]) {
            share(user->function, holder);
        }
    }

    Model& model_;
    std::unordered_map<const resolved::Function*, std::vector<const Scope*>> mentionedBy_;
    std::vector<resolved::Function*> sharing_;
};

} // namespace

void findCaptures(Model& model) {
    CaptureSearch(model).search();
}

} // namespace pozhil::second
