#include "generator/first/generator.h"

#include <algorithm>
#include <array>

namespace pozhil {

/// A statement that writes its own indentation and line ends.
template <class Node> bool Generator::visitOwn(const Statement* statement, void (Generator::*visit)(const Node*)) {
    const auto* node = nodeCast<Node>(statement);
    if (node == nullptr) {
        return false;
    }
    (this->*visit)(node);
    return true;
}

/// A statement that is one line of the text: its visit writes what stands between the indentation and the semicolon.
template <class Node> bool Generator::visitFramed(const Statement* statement, void (Generator::*visit)(const Node*)) {
    const auto* node = nodeCast<Node>(statement);
    if (node == nullptr) {
        return false;
    }
    out_.indent();
    (this->*visit)(node);
    out_ << ";\n";
    return true;
}

void Generator::visitStatement(const Statement* statement) {
    const bool isVisited =
        visitFramed(statement, &Generator::visitPrintStatement) ||
        visitFramed(statement, &Generator::visitVarDeclaration) ||
        visitFramed(statement, &Generator::visitCompoundAssignmentStatement) ||
        visitFramed(statement, &Generator::visitIncrementStatement) ||
        visitOwn(statement, &Generator::visitIfStatement) || visitOwn(statement, &Generator::visitTryCatchStatement) ||
        visitOwn(statement, &Generator::visitWhileStatement) ||
        visitFramed(statement, &Generator::visitWaitStatement) ||
        visitOwn(statement, &Generator::visitSwitchStatement) || visitOwn(statement, &Generator::visitForStatement) ||
        visitFramed(statement, &Generator::visitBreakStatement) ||
        visitFramed(statement, &Generator::visitContinueStatement) ||
        visitFramed(statement, &Generator::visitSetStatement) ||
        visitFramed(statement, &Generator::visitExpressionStatement) ||
        visitFramed(statement, &Generator::visitPassStatement) ||
        visitOwn(statement, &Generator::visitSetStateStatement) ||
        visitOwn(statement, &Generator::visitNestedDefinition<AbstractStructDefinitionStatement>) ||
        visitOwn(statement, &Generator::visitNestedDefinition<StructDefinitionStatement>) ||
        visitOwn(statement, &Generator::visitFunctionDefinitionStatement) ||
        visitFramed(statement, &Generator::visitReturnStatement) ||
        visitOwn(statement, &Generator::visitBlockStatement) || web_.writeStatement(statement) ||
        visitOwn(statement, &Generator::visitLogicBlockNode);
    if (!isVisited) {
        placelessFault("பொழி-399", 0, "Unknown statement type in generator");
    }
}

/// A structure counts only outside all blocks, where it has been emitted already.
template <class Node> void Generator::visitNestedDefinition(const Node*) {}

void Generator::visitBlockStatement(const BlockStatement* block) {
    for (const StatementPtr& statement : block->statements) {
        if (statement != nullptr) {
            visitStatement(statement.get());
        }
    }
}

/// A block one level deeper.
void Generator::emitBody(const BlockStatement* block) {
    const CodeWriter::Indented deeper(out_);
    visitBlockStatement(block);
}

/// A condition: comparisons and logic are native already, any other value must hold a truth value.
void Generator::emitCondition(const Expression* condition) {
    const bool isNative =
        nodeCast<BinaryExpression>(condition) != nullptr || nodeCast<LogicalExpression>(condition) != nullptr;
    if (isNative) {
        visitExpression(condition);
        return;
    }
    out_ << "std::any_cast<bool>(";
    emitCastOperand(condition);
    out_ << ")";
}

/// அச்சிடு a, b  ->  std::cout << fn_any_to_string(a) << fn_any_to_string(b) << std::endl
void Generator::visitPrintStatement(const PrintStatement* node) {
    out_ << "std::cout";
    for (const ExpressionPtr& argument : node->arguments) {
        out_ << " << fn_any_to_string(";
        visitExpression(argument.get());
        out_ << ")";
    }
    out_ << " << std::endl";
}

/// எனில் a: ... இல்லை: ...  ->  if (a) { ... } else { ... }
void Generator::visitIfStatement(const IfStatement* node) {
    out_.indent();
    out_ << "if (";
    emitCondition(node->condition.get());
    out_ << ") {\n";
    emitBody(node->thenBranch.get());
    out_.indent();
    out_ << "}";
    if (const auto* elseIf = nodeCast<IfStatement>(node->elseBranch.get())) {
        out_ << " else ";
        visitIfStatement(elseIf);
    } else if (const auto* elseBlock = nodeCast<BlockStatement>(node->elseBranch.get())) {
        out_ << " else {\n";
        emitBody(elseBlock);
        out_.indent();
        out_ << "}\n";
    } else {
        out_ << "\n";
    }
}

/// சுற்று a: ...  ->  while (a) { ... }
void Generator::visitWhileStatement(const WhileStatement* node) {
    out_.indent();
    out_ << "while (";
    emitCondition(node->condition.get());
    out_ << ") {\n";
    emitBody(node->body.get());
    out_.indent();
    out_ << "}\n";
}

/// தேர்வு a: நிலை b: ... மற்றவை: ...  ->  a chain of comparisons, so that நிறுத்து leaves the loop around it
void Generator::visitSwitchStatement(const SwitchStatement* node) {
    out_.indent();
    out_ << "{\n";
    {
        const CodeWriter::Indented deeper(out_);
        emitCases(node);
    }
    out_.indent();
    out_ << "}\n";
}

void Generator::emitCases(const SwitchStatement* node) {
    out_.indent();
    out_ << "auto _switch_val = ";
    visitExpression(node->subject.get());
    out_ << ";\n";
    bool isFirst = true;
    for (const CaseBlock& caseBlock : node->cases) {
        out_.indent();
        out_ << (isFirst ? "if (" : "else if (") << "fn_compare_any(_switch_val, ";
        emitAny(caseBlock.value.get());
        out_ << ", \"==\")) {\n";
        visitBlockStatement(caseBlock.body.get());
        out_.indent();
        out_ << "}\n";
        isFirst = false;
    }
    if (node->defaultBlock != nullptr) {
        out_.indent();
        out_ << (isFirst ? "{\n" : "else {\n");
        visitBlockStatement(node->defaultBlock.get());
        out_.indent();
        out_ << "}\n";
    }
}

/// முயற்சி: ... பிடி (e): ...  ->  try { ... } catch; the message always lands in a global variable
void Generator::visitTryCatchStatement(const TryCatchStatement* node) {
    out_.indent();
    out_ << "try {\n";
    emitBody(node->tryBlock.get());
    out_.indent();
    out_ << "} catch (const std::exception& e) {\n";
    {
        const CodeWriter::Indented deeper(out_);
        out_.indent();
        out_ << "global_vars[\"" << node->errorName << "\"] = std::any(std::string(e.what()));\n";
        visitBlockStatement(node->catchBlock.get());
    }
    out_.indent();
    out_ << "}\n";
}

void Generator::visitWaitStatement(const WaitStatement* node) {
    out_ << "std::this_thread::sleep_for(std::chrono::milliseconds(static_cast<long long>(fn_get_double(";
    visitExpression(node->duration.get());
    out_ << ") * 1000)))";
}

void Generator::visitReturnStatement(const ReturnStatement* node) {
    checkReturnType(node);
    if (currentFunction_.empty()) {
        out_ << "return 0; // C++ main requires int";
    } else if (node->value == nullptr) {
        out_ << "return std::any()";
    } else {
        out_ << "return ";
        emitAny(node->value.get());
    }
}

/// A function whose name ends in _எண், _உரை or _பட்டியல் promises that kind of value.
void Generator::checkReturnType(const ReturnStatement* node) {
    if (currentFunction_.empty() || node->value == nullptr) {
        return;
    }
    const auto promises = [&](const std::string& kind) {
        return currentFunction_ == kind || currentFunction_.find("_" + kind) != std::string::npos;
    };
    const VarType type = inferExpressionType(node->value.get());
    const auto isOneOf = [&](std::initializer_list<VarType> types) {
        return std::find(types.begin(), types.end(), type) != types.end();
    };
    const std::string name = "'" + currentFunction_ + "'";
    if (promises("எண்")) {
        if (isOneOf({VarType::Text, VarType::List, VarType::Map, VarType::Object})) {
            பிழை("பொழி-334", node->value->line, name + " ஒரு 'எண்' (Number)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது.");
        }
    } else if (promises("உரை")) {
        if (isOneOf({VarType::Integer, VarType::Double, VarType::List, VarType::Map})) {
            பிழை("பொழி-334", node->value->line,
                 name + " ஒரு 'உரை' (String)-ஐ அனுப்ப வேண்டும், ஆனால் வேறொன்றை அனுப்பியுள்ளது.");
        }
    } else if (promises("பட்டியல்") && !isOneOf({VarType::List, VarType::Any})) {
        பிழை("பொழி-334", node->value->line, name + " ஒரு 'பட்டியல்' (List)-ஐ அனுப்ப வேண்டும்.");
    }
}

void Generator::visitBreakStatement(const BreakStatement*) {
    out_ << "break";
}

void Generator::visitContinueStatement(const ContinueStatement*) {
    out_ << "continue";
}

void Generator::visitPassStatement(const PassStatement*) {
    out_ << "(void)0";
}

void Generator::visitSetStateStatement(const SetStateStatement*) {
    out_.indent();
    out_ << "// UI-ஐப் புதுப்பித்தல்\n";
    out_.indent();
    out_ << "updateUI();\n";
}

/// A member write that is a statement of its own brings its own line; everything else stays within the frame.
void Generator::visitExpressionStatement(const ExpressionStatement* node) {
    const auto* write = nodeCast<SetMemberExpression>(node->expression.get());
    if (write == nullptr) {
        visitExpression(node->expression.get());
        return;
    }
    out_.indent();
    visitSetMemberExpression(write);
    out_ << ";\n";
}

} // namespace pozhil
