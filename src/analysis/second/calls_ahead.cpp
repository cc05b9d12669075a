#include "analysis/second/calls_ahead.h"

#include "analysis/second/structures.h"
#include "analysis/second/walk.h"

namespace pozhil::second {

/// Notes the deeds of one body.
class CallsAhead::Gathering : public Walk<Gathering> {
public:
    explicit Gathering(Deeds& deeds) : deeds_(deeds) {}

    using Walk::visit;

    void visit(resolved::VariableRead& node) { read(node.variable); }
    void visit(resolved::TargetPlace& node) {
        read(node.variable);
        Walk::visit(node);
    }
    void visit(resolved::FunctionCall& node) {
        deeds_.functions.push_back(node.function);
        Walk::visit(node);
    }
    void visit(resolved::Construction& node) {
        deeds_.structures.push_back(node.structure);
        Walk::visit(node);
    }
    void visit(resolved::MethodCall& node) {
        deeds_.members.push_back(node.member);
        Walk::visit(node);
    }
    void visit(resolved::ValueCall& node) {
        deeds_.callsValues = true;
        Walk::visit(node);
    }

private:
    void read(resolved::Variable* variable) {
        if (variable != nullptr && variable->owner == nullptr) {
            deeds_.reads.push_back(variable);
        }
    }

    Deeds& deeds_;
};

CallsAhead::CallsAhead(Model& model) : model_(model) {
    for (const auto& function : model.program.functions) {
        Gathering(deeds_[function.get()]).walk(function->body);
    }
    for (const auto& structure : model.program.structures) {
        Deeds& deeds = deeds_[structure.get()];
        for (resolved::Field& field : structure->fields) {
            Gathering(deeds).walk(field.initializer);
            fields_.insert(field.name);
        }
        for (const resolved::Function* method : structure->methods) {
            methods_[method->name].push_back(method);
        }
        if (structure->parent != nullptr) {
            deeds.structures.push_back(structure->parent);
        }
        if (const auto* constructor = findMethod(*structure, CONSTRUCTOR)) {
            deeds.functions.push_back(constructor);
        }
    }
}

void CallsAhead::call(const resolved::Function* function, const Tell& tell) {
    follow(function, tell);
}

void CallsAhead::construct(const resolved::Structure* structure, const Tell& tell) {
    follow(structure, tell);
}

/// A method of that name, or the function that a field holds.
void CallsAhead::callMember(std::string_view member, const Tell& tell) {
    if (!followedMembers_.insert(member).second) {
        return;
    }
    for (const resolved::Function* method : methods_[member]) {
        follow(method, tell);
    }
    if (fields_.count(member) != 0) {
        callValue(tell);
    }
}

void CallsAhead::callValue(const Tell& tell) {
    if (areValuesFollowed_) {
        return;
    }
    areValuesFollowed_ = true;
    for (const auto& function : model_.program.functions) {
        if (function->isValue || function->structure != nullptr) {
            follow(function.get(), tell);
        }
    }
}

/// One after the other, not one inside the other: ways of calls may be long.
void CallsAhead::follow(const void* key, const Tell& tell) {
    const bool isFirst = waiting_.empty();
    waiting_.push_back(key);
    if (!isFirst) {
        return;
    }
    for (std::size_t index = 0; index < waiting_.size(); ++index) {
        Deeds& deeds = deeds_[waiting_[index]];
        if (deeds.isFollowed) {
            continue;
        }
        deeds.isFollowed = true;
        for (resolved::Variable* variable : deeds.reads) {
            tell(variable);
        }
        waiting_.insert(waiting_.end(), deeds.functions.begin(), deeds.functions.end());
        waiting_.insert(waiting_.end(), deeds.structures.begin(), deeds.structures.end());
        for (const std::string_view member : deeds.members) {
            callMember(member, tell);
        }
        if (deeds.callsValues) {
            callValue(tell);
        }
    }
    waiting_.clear();
}

} // namespace pozhil::second
