#include "analysis/hints/recursion_hints.h"

#include "analysis/hints/tree_parts.h"
#include "analysis/structures.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace pozhil {
namespace {

/// A name in the text of one function.
struct LocalName {
    int assignments = 0;
    bool isNative = false;
};

using LocalNames = std::unordered_map<std::string_view, LocalName>;

/// Finds what is assigned in a function, and which names are native there.
class LocalNameWalk {
public:
    explicit LocalNameWalk(LocalNames& names) : names_(names) {}

    void operator()(const Expression* node) { visitExpression(*this, node); }
    void operator()(const Statement* node) { visitStatement(*this, node); }

    template <class Node> void visit(const Node& node) { TreeParts(*this).visit(node); }
    void visit(const AssignmentExpression& node) {
        ++names_[node.name].assignments;
        TreeParts(*this).visit(node);
    }
    void visit(const ForStatement& node) {
        names_[node.variable.value].isNative = true;
        TreeParts(*this).visit(node);
    }
    void visit(const LambdaExpression& node) {
        for (const Token& parameter : node.parameters) {
            names_[parameter.value].isNative = true;
        }
        TreeParts(*this).visit(node);
    }
    void visit(const FunctionDefinitionStatement& node) {
        names_[node.name.value].isNative = true;
        for (const Param& param : node.params) {
            names_[param.name.value].isNative = true;
        }
        TreeParts(*this).visit(node);
    }

private:
    LocalNames& names_;
};

/// Whether a value may be another one each time the function is called.
class VariesWalk {
public:
    VariesWalk(const FunctionDefinitionStatement& function, const LocalNames& names)
        : function_(function), names_(names) {}

    bool varies(const Expression* value) {
        (*this)(value);
        return varies_;
    }

    void operator()(const Expression* node) { visitExpression(*this, node); }
    void operator()(const Statement*) {}

    template <class Node> void visit(const Node& node) { TreeParts(*this).visit(node); }
    void visit(const VariableAccess& node) { varies_ = varies_ || names_.count(node.name) != 0; }
    void visit(const CallExpression& node) {
        varies_ = varies_ || isSelfCall(node, function_);
        TreeParts(*this).visit(node);
    }
    /// What is empty is going to be filled.
    void visit(const ListLiteral& node) {
        varies_ = varies_ || node.elements.empty();
        TreeParts(*this).visit(node);
    }
    void visit(const MapLiteral& node) {
        varies_ = varies_ || node.entries.empty();
        TreeParts(*this).visit(node);
    }

private:
    const FunctionDefinitionStatement& function_;
    const LocalNames& names_;
    bool varies_ = false;
};

/// Whether what stands after the block is carried out after it.
bool isFollowed(const BlockStatement& block) {
    const Statement* last = block.statements.empty() ? nullptr : block.statements.back().get();
    return nodeCast<ReturnStatement>(last) == nullptr && nodeCast<BreakStatement>(last) == nullptr &&
           nodeCast<ContinueStatement>(last) == nullptr;
}

/// Goes through a function in the order in which it is carried out.
class SharedNameWalk {
public:
    SharedNameWalk(const FunctionDefinitionStatement& function, const NameUses& names, HintList& found)
        : function_(function), names_(names), found_(found) {
        LocalNameWalk walk(locals_);
        for (const Param& param : function.params) {
            locals_[param.name.value].isNative = true;
        }
        walk(function.body.get());
    }

    void find() { visit(*function_.body); }

    /// Only what an earlier statement has called is certain to come before what this one reads.
    void operator()(const Statement* node) {
        callsBefore_ = calls_;
        visitStatement(*this, node);
    }
    void operator()(const Expression* node) { visitExpression(*this, node); }

    template <class Node> void visit(const Node& node) { TreeParts(*this).visit(node); }

    void visit(const VariableAccess& node) { noteRead(node.name, node); }

    void visit(const AssignmentExpression& node) {
        const std::size_t before = reads_;
        (*this)(node.value.get());
        if (node.op.type != TokenType::ASSIGN) {
            noteRead(node.name, node);
            return;
        }
        Value& value = values_[node.name];
        if (value.lastRead <= before && mayBeTakenForOwn(node)) {
            value.isKnown = true;
            value.calls = calls_;
            log_.push_back(&value);
        }
    }

    void visit(const CallExpression& node) {
        TreeParts(*this).visit(node);
        calls_ += isSelfCall(node, function_) ? 1 : 0;
    }

    /// Both are carried out later, if at all.
    void visit(const LambdaExpression&) {}
    void visit(const FunctionDefinitionStatement&) {}

    /// What a block assigns may not have been assigned after it.
    void visit(const BlockStatement& node) {
        const std::size_t outer = log_.size();
        TreeParts(*this).visit(node);
        for (; log_.size() > outer; log_.pop_back()) {
            log_.back()->isKnown = false;
        }
    }

    void visit(const IfStatement& node) {
        (*this)(node.condition.get());
        Branches branches(*this);
        branches.take(*node.thenBranch);
        if (const auto* elseIf = nodeCast<IfStatement>(node.elseBranch.get())) {
            branches.take(*elseIf, true);
        } else if (const auto* elseBlock = nodeCast<BlockStatement>(node.elseBranch.get())) {
            branches.take(*elseBlock);
        }
    }

    void visit(const SwitchStatement& node) {
        (*this)(node.subject.get());
        Branches branches(*this);
        for (const CaseBlock& one : node.cases) {
            branches.test(*one.value);
            branches.take(*one.body);
        }
        if (node.defaultBlock != nullptr) {
            branches.take(*node.defaultBlock);
        }
    }

private:
    /// What a name was last given.
    struct Value {
        /// How many calls of itself the function had made by then
        std::size_t calls = 0;
        std::size_t lastRead = 0;
        bool isKnown = false;
        bool isTold = false;
    };

    /// Blocks of which one is carried out: none comes after the calls of another.
    class Branches {
    public:
        explicit Branches(SharedNameWalk& walk)
            : walk_(walk), callsBefore_(walk.callsBefore_), before_(walk.calls_), after_(walk.calls_) {}
        ~Branches() { walk_.calls_ = after_; }
        Branches(const Branches&) = delete;
        Branches& operator=(const Branches&) = delete;

        /// What decides about the next block: it comes before that and all later ones, and after none.
        void test(const Expression& value) {
            walk_.calls_ = before_;
            walk_.callsBefore_ = callsBefore_;
            walk_(&value);
            before_ = walk_.calls_;
            after_ = std::max(after_, before_);
        }
        void take(const BlockStatement& block) { take(block, isFollowed(block)); }
        void take(const Statement& branch, bool goesOn) {
            walk_.calls_ = before_;
            walk_(&branch);
            after_ = goesOn ? std::max(after_, walk_.calls_) : after_;
        }

    private:
        SharedNameWalk& walk_;
        const std::size_t callsBefore_;
        std::size_t before_;
        std::size_t after_;
    };

    void noteRead(const std::string& name, const Expression& node) {
        ++reads_;
        Value& value = values_[name];
        value.lastRead = reads_;
        if (!value.isKnown || callsBefore_ <= value.calls || value.isTold) {
            return;
        }
        value.isTold = true;
        found_.add(HintKind::SharedInRecursion, node,
                   "'" + name + "' ஒரு பொது மாறி; '" + function_.name.value +
                       "' தன்னையே அழைக்கும்போது அதன் மதிப்பு மாறிவிடும். அதைப் பராமீட்டராக்கவும்.");
    }

    /// Whether the function assigns a variable as if it were its own: nobody else names it, and each call may give it
    /// another value.
    bool mayBeTakenForOwn(const AssignmentExpression& node) const {
        const NameUse* use = names_.find(node.name);
        const auto local = locals_.find(node.name);
        if (use == nullptr || use->isShared || local->second.isNative) {
            return false;
        }
        return local->second.assignments > 1 || VariesWalk(function_, locals_).varies(node.value.get());
    }

    const FunctionDefinitionStatement& function_;
    const NameUses& names_;
    HintList& found_;
    LocalNames locals_;
    std::unordered_map<std::string_view, Value> values_;
    /// Values that are known, in the order of their assignments.
    std::vector<Value*> log_;
    std::size_t calls_ = 0;
    std::size_t callsBefore_ = 0;
    std::size_t reads_ = 0;
};

} // namespace

bool isSelfCall(const CallExpression& call, const FunctionDefinitionStatement& function) {
    if (const auto* name = nodeCast<VariableAccess>(call.callee.get())) {
        return name->name == function.name.value;
    }
    const auto* method = nodeCast<GetExpression>(call.callee.get());
    const auto* object = method == nullptr ? nullptr : nodeCast<VariableAccess>(method->object.get());
    return object != nullptr && isSelfName(object->name) && method->member.value == function.name.value;
}

void findSharedInRecursion(const FunctionDefinitionStatement& function, const NameUses& names, HintList& found) {
    SharedNameWalk(function, names, found).find();
}

} // namespace pozhil
