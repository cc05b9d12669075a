#include "analysis/statement_analysis.h"

#include "analysis/program_order.h"
#include "parser/tree/visit.h"

#include <algorithm>
#include <utility>

namespace pozhil {
namespace {

/// The body of a container loop is emitted twice, so each one inside another doubles the text.
constexpr int MOST_CONTAINER_LOOPS = 12;

/// A number that grows inside and is back to what it was at the end of the scope.
class Deeper {
public:
    explicit Deeper(int& depth) : depth_(depth) { ++depth_; }
    ~Deeper() { --depth_; }
    Deeper(const Deeper&) = delete;
    Deeper& operator=(const Deeper&) = delete;

private:
    int& depth_;
};

} // namespace

void StatementAnalysis::analyse(const Statement* statement) {
    if (!visitStatement(*this, statement)) {
        walk_.faults.raisePlaceless("பொழி-399", nullptr, "Unknown statement type in generator");
    }
}

void StatementAnalysis::visit(const BlockStatement& node) {
    for (const StatementPtr& statement : node.statements) {
        if (statement != nullptr) {
            analyse(statement.get());
        }
    }
}

void StatementAnalysis::visit(const LogicBlockNode& node) {
    for (const Statement* statement : carriedOut(node)) {
        analyse(statement);
    }
}

void StatementAnalysis::visit(const ExpressionStatement& node) {
    expressions_.analyse(node.expression.get());
}

void StatementAnalysis::visit(const PrintStatement& node) {
    expressions_.analyse(node.arguments);
}

void StatementAnalysis::visit(const SetStatement& node) {
    if (const auto* element = nodeCast<IndexExpression>(node.target.get())) {
        expressions_.analyse(element->object.get());
        expressions_.analyse(element->index.get());
        expressions_.analyse(node.value.get());
        return;
    }
    const auto* get = nodeCast<GetExpression>(node.target.get());
    if (get == nullptr) {
        return;
    }
    const VarType kind = walk_.kinds.of(get->object.get());
    if (kind == VarType::Time) {
        walk_.faults.raise("பொழி-322", *get);
    }
    if (kind != VarType::Object) {
        walk_.faults.raise("பொழி-304", *get, "'.' operator-ஐ இந்தப் பொருளில் பயன்படுத்த முடியாது.");
    }
    expressions_.checkPrivacy(get->object.get(), get->member, get->line);
    expressions_.analyse(get->object.get());
    expressions_.analyse(node.value.get());
}

/// The target is written twice, as what is read and as what is written.
void StatementAnalysis::visit(const CompoundAssignmentStatement& node) {
    expressions_.analyse(node.target.get());
    expressions_.analyse(node.target.get());
    expressions_.checkOperator(node.op.value);
    expressions_.analyse(node.value.get());
}

void StatementAnalysis::visit(const IncrementStatement& node) {
    expressions_.analyse(node.target.get());
    expressions_.analyse(node.target.get());
    expressions_.checkOperator(node.op.value);
}

void StatementAnalysis::visit(const IfStatement& node) {
    expressions_.analyse(node.condition.get());
    visit(*node.thenBranch);
    if (const auto* elseIf = nodeCast<IfStatement>(node.elseBranch.get())) {
        visit(*elseIf);
    } else if (const auto* elseBlock = nodeCast<BlockStatement>(node.elseBranch.get())) {
        visit(*elseBlock);
    }
}

void StatementAnalysis::visit(const WhileStatement& node) {
    expressions_.analyse(node.condition.get());
    visit(*node.body);
}

void StatementAnalysis::visit(const ForStatement& node) {
    if (const CallExpression* range = asRange(node)) {
        if (range->arguments.empty() || range->arguments.size() > 2) {
            walk_.faults.raisePlaceless("பொழி-331", range, "'வரம்பு' 1 அல்லது 2 arguments-ஐ மட்டுமே ஏற்கும்.");
        }
        expressions_.analyse(range->arguments);
        analyseLoopBody(node);
        return;
    }
    const Deeper loop(containerLoops_);
    if (containerLoops_ > MOST_CONTAINER_LOOPS) {
        walk_.faults.raise("பொழி-291", node.variable.line);
    }
    expressions_.analyse(node.iterable.get());
    // Once for a list and once for a map.
    analyseLoopBody(node);
    analyseLoopBody(node);
}

/// The loop variable is a native variable, at top level too.
void StatementAnalysis::analyseLoopBody(const ForStatement& loop) {
    const std::string& variable = loop.variable.value;
    const bool isNew = !walk_.scope.isNative(variable);
    walk_.scope.addNative(variable);
    visit(*loop.body);
    if (isNew) {
        walk_.scope.removeNative(variable);
    }
}

void StatementAnalysis::visit(const SwitchStatement& node) {
    expressions_.analyse(node.subject.get());
    for (const CaseBlock& caseBlock : node.cases) {
        expressions_.analyse(caseBlock.value.get());
        visit(*caseBlock.body);
    }
    if (node.defaultBlock != nullptr) {
        visit(*node.defaultBlock);
    }
}

void StatementAnalysis::visit(const TryCatchStatement& node) {
    visit(*node.tryBlock);
    visit(*node.catchBlock);
}

void StatementAnalysis::visit(const WaitStatement& node) {
    expressions_.analyse(node.duration.get());
}

void StatementAnalysis::visit(const ReturnStatement& node) {
    if (walk_.function.empty() || node.value == nullptr) {
        return;
    }
    checkReturnKind(node);
    expressions_.analyse(node.value.get());
}

bool StatementAnalysis::promises(const std::string& kind) const {
    return walk_.function == kind || walk_.function.find("_" + kind) != std::string::npos;
}

/// A function whose name ends in _எண், _உரை or _பட்டியல் promises that kind of value.
void StatementAnalysis::checkReturnKind(const ReturnStatement& node) const {
    const VarType kind = walk_.kinds.of(node.value.get());
    const auto isOneOf = [&](std::initializer_list<VarType> kinds) {
        return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
    };
    const auto refuse = [&](const char* details) {
        walk_.faults.raise("பொழி-334", *node.value, "'" + walk_.function + "' " + details);
    };
    if (promises("எண்")) {
        if (isOneOf({VarType::Text, VarType::List, VarType::Map, VarType::Object})) {
            refuse("ஒரு 'எண்' (Number)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது.");
        }
    } else if (promises("உரை")) {
        if (isOneOf({VarType::Integer, VarType::Double, VarType::List, VarType::Map})) {
            refuse("ஒரு 'உரை' (String)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது.");
        }
    } else if (promises("பட்டியல்") && !isOneOf({VarType::List, VarType::Any})) {
        refuse("ஒரு 'பட்டியல்' (List)-ஐ அனுப்ப வேண்டும்.");
    }
}

/// The body runs when the data has arrived, with variables of its own.
void StatementAnalysis::visit(const RTDBReadStatement& node) {
    expressions_.analyse(node.path.get());
    const std::size_t outer = walk_.scope.depth();
    for (const StatementPtr& statement : node.body) {
        analyse(statement.get());
    }
    walk_.scope.leave(outer);
}

/// Only a declaration that an assignment could not take over arrives here; fields of structures go their own way.
void StatementAnalysis::visit(const VarDeclaration& node) {
    const std::string& name = node.name;
    const bool isInFunction = !walk_.function.empty();
    DeclarationFact fact{};
    fact.isNew = isInFunction && !walk_.scope.isNative(name) && !walk_.scope.isAssigned(name);
    if (fact.isNew) {
        walk_.scope.addNative(name);
    }
    const VarType kind = node.type == VarType::Auto ? walk_.kinds.of(node.initializer.get()) : node.type;
    if (!isInFunction || kind == VarType::Map || kind == VarType::List) {
        walk_.scope.assign(name, kind);
    }
    fact.place = isInFunction && !walk_.scope.isAssigned(name) ? Place::Native : Place::Global;
    fact.isEmptied = kind == VarType::Object;
    const auto* call = nodeCast<CallExpression>(node.initializer.get());
    const auto* callee = call == nullptr ? nullptr : nodeCast<VariableAccess>(call->callee.get());
    fact.isConstruction = fact.isEmptied && callee != nullptr && walk_.structures.isDefined(callee->name);
    if (fact.isConstruction) {
        walk_.facts.declarations.add(&node, fact);
        analyseObjectDeclaration(node, *call, callee->name);
        return;
    }
    const VarType value = walk_.kinds.of(node.initializer.get());
    fact.isBare = kind == VarType::Time || value == VarType::Time || isContainer(value);
    walk_.facts.declarations.add(&node, fact);
    expressions_.analyse(node.initializer.get());
}

/// Unlike the expression form, only a constructor of the structure itself is called.
void StatementAnalysis::analyseObjectDeclaration(const VarDeclaration& node, const CallExpression& call,
                                                 const std::string& structure) {
    walk_.scope.assign(node.name, VarType::Object);
    expressions_.calls().analyseFields(structure);
    const StructDefinitionStatement& definition = walk_.structures.definition(structure);
    expressions_.calls().analyseConstructor(ownsConstructor(definition) ? &definition : nullptr, structure,
                                            call.arguments, node.line);
}

void StatementAnalysis::analyseStructure(const StructDefinitionStatement& structure, Structures& structures) {
    const std::string& name = structure.name.value;
    structures.define(name);
    static_cast<void>(structures.baseOf(structure));
    walk_.scope.assign(name, VarType::Object);
    walk_.kinds.setInStructure(true);
    for (const auto& method : structure.methods) {
        visit(*method);
    }
    walk_.kinds.setInStructure(false);
    walk_.scope.changeMeanings();
}

void StatementAnalysis::visit(const FunctionDefinitionStatement& node) {
    if (walk_.function.empty()) {
        analyseFunction(node);
    } else {
        analyseNestedFunction(node);
    }
}

void StatementAnalysis::analyseFunction(const FunctionDefinitionStatement& node) {
    walk_.function = node.name.value;
    walk_.scope.leave(0);
    for (const Param& param : node.params) {
        walk_.scope.addNative(param.name.value);
    }
    visit(*node.body);
    walk_.function.clear();
    walk_.scope.leave(0);
}

/// A closure over copies of the outer variables, held by a native variable.
void StatementAnalysis::analyseNestedFunction(const FunctionDefinitionStatement& node) {
    std::string outerFunction = std::exchange(walk_.function, node.name.value);
    const std::size_t outer = walk_.scope.depth();
    for (const Param& param : node.params) {
        walk_.scope.addNative(param.name.value);
    }
    visit(*node.body);
    walk_.function = std::move(outerFunction);
    walk_.scope.leave(outer);
    walk_.scope.addNative(node.name.value);
}

} // namespace pozhil
