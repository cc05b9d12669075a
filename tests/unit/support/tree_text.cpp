#include "support/tree_writer.h"

#include <stdexcept>
#include <typeinfo>

namespace pozhil::test {
namespace {

std::string privacy(bool isPrivate) {
    return isPrivate ? "private" : "";
}

} // namespace

std::string TreeWriter::text(const Expression* node) {
    if (node == nullptr) {
        return "null";
    }
    for (const auto write : {&TreeWriter::literal, &TreeWriter::operation, &TreeWriter::access, &TreeWriter::database,
                             static_cast<std::string (TreeWriter::*)(const Expression*)>(&TreeWriter::secondEdition)}) {
        if (std::string written = (this->*write)(node); !written.empty()) {
            return written;
        }
    }
    throw std::logic_error(std::string("no written form for ") + typeid(*node).name());
}

std::string TreeWriter::literal(const Expression* expression) {
    const std::int32_t line = expression->line;
    if (const auto* number = as<NumberLiteral>(expression)) {
        return node("Number", line, number->value);
    }
    if (const auto* number = as<DoubleLiteral>(expression)) {
        return node("Double", line, number->value);
    }
    if (const auto* string = as<StringLiteral>(expression)) {
        return node("String", line, quoted(string->value));
    }
    if (const auto* character = as<CharLiteral>(expression)) {
        return node("Char", line, character->value);
    }
    if (const auto* boolean = as<BooleanLiteral>(expression)) {
        return node("Boolean", line, boolean->value);
    }
    if (const auto* percentage = as<PercentageLiteral>(expression)) {
        return node("Percentage", line, percentage->value);
    }
    if (const auto* color = as<ColorExpression>(expression)) {
        return node("Color", line, color->isHex ? quoted(color->hexValue) : color->colorName);
    }
    if (const auto* list = as<ListLiteral>(expression)) {
        return node("List", line, list->elements);
    }
    if (const auto* map = as<MapLiteral>(expression)) {
        return text(*map);
    }
    return "";
}

std::string TreeWriter::text(const MapLiteral& map) {
    std::string entries;
    for (const auto& [key, value] : map.entries) {
        append(entries, "(" + quoted(key) + " " + part(value) + ")");
    }
    return node("Map", map.line, entries);
}

std::string TreeWriter::operation(const Expression* expression) {
    const std::int32_t line = expression->line;
    if (const auto* grouping = as<GroupingExpression>(expression)) {
        return node("Grouping", line, grouping->inner);
    }
    if (const auto* unary = as<UnaryExpression>(expression)) {
        return node("Unary", line, unary->op, unary->right);
    }
    if (const auto* binary = as<BinaryExpression>(expression)) {
        return node("Binary", line, binary->left, binary->op, binary->right);
    }
    if (const auto* logical = as<LogicalExpression>(expression)) {
        return node("Logical", line, logical->left, logical->op, logical->right);
    }
    if (const auto* ternary = as<TernaryExpression>(expression)) {
        return node("Ternary", line, ternary->condition, ternary->thenBranch, ternary->elseBranch);
    }
    if (const auto* lambda = as<LambdaExpression>(expression)) {
        return node("Lambda", line, bracketed(lambda->parameters), lambda->body);
    }
    return "";
}

std::string TreeWriter::access(const Expression* expression) {
    const std::int32_t line = expression->line;
    if (const auto* variable = as<VariableAccess>(expression)) {
        return named(variable->name, line);
    }
    if (const auto* assignment = as<AssignmentExpression>(expression)) {
        return node("Assignment", line, assignment->name, assignment->op, assignment->value);
    }
    if (const auto* call = as<CallExpression>(expression)) {
        return node("Call", line, call->callee, call->arguments);
    }
    if (const auto* get = as<GetExpression>(expression)) {
        return node("Get", line, get->object, get->member);
    }
    if (const auto* set = as<SetMemberExpression>(expression)) {
        return node("SetMember", line, set->object, set->member, set->value);
    }
    if (const auto* index = as<IndexExpression>(expression)) {
        return node("Index", line, index->object, index->index);
    }
    return "";
}

std::string TreeWriter::text(const Statement* node) {
    if (node == nullptr) {
        return "null";
    }
    for (const auto write : {&TreeWriter::simpleStatement, &TreeWriter::controlFlow, &TreeWriter::definition,
                             &TreeWriter::application, &TreeWriter::widget,
                             static_cast<std::string (TreeWriter::*)(const Statement*)>(&TreeWriter::secondEdition)}) {
        if (std::string written = (this->*write)(node); !written.empty()) {
            return written;
        }
    }
    throw std::logic_error(std::string("no written form for ") + typeid(*node).name());
}

std::string TreeWriter::simpleStatement(const Statement* statement) {
    const std::int32_t line = statement->line;
    if (const auto* expression = as<ExpressionStatement>(statement)) {
        return node("Expression", line, expression->expression);
    }
    if (const auto* print = as<PrintStatement>(statement)) {
        return node("Print", line, print->arguments);
    }
    if (const auto* wait = as<WaitStatement>(statement)) {
        return node("Wait", line, wait->duration);
    }
    if (const auto* result = as<ReturnStatement>(statement)) {
        return node("Return", line, result->value);
    }
    if (as<PassStatement>(statement) != nullptr) {
        return node("Pass", line);
    }
    if (as<BreakStatement>(statement) != nullptr) {
        return node("Break", line);
    }
    if (as<ContinueStatement>(statement) != nullptr) {
        return node("Continue", line);
    }
    if (as<SetStateStatement>(statement) != nullptr) {
        return node("SetState", line);
    }
    if (const auto* set = as<SetStatement>(statement)) {
        return node("Set", line, set->target, set->value);
    }
    if (const auto* compound = as<CompoundAssignmentStatement>(statement)) {
        return node("CompoundAssignment", line, compound->target, compound->op, compound->value);
    }
    if (const auto* increment = as<IncrementStatement>(statement)) {
        return node("Increment", line, increment->target, increment->op);
    }
    return "";
}

std::string TreeWriter::controlFlow(const Statement* statement) {
    const std::int32_t line = statement->line;
    if (const auto* block = as<BlockStatement>(statement)) {
        return node("Block", line, block->statements);
    }
    if (const auto* choice = as<IfStatement>(statement)) {
        return node("If", line, choice->condition, choice->thenBranch, choice->elseBranch);
    }
    if (const auto* loop = as<WhileStatement>(statement)) {
        return node("While", line, loop->condition, loop->body);
    }
    if (const auto* loop = as<ForStatement>(statement)) {
        return node("For", line, loop->variable, loop->iterable, loop->body);
    }
    if (const auto* choice = as<SwitchStatement>(statement)) {
        return text(*choice);
    }
    if (const auto* attempt = as<TryCatchStatement>(statement)) {
        return node("TryCatch", line, attempt->tryBlock, attempt->catchBlock, attempt->errorName);
    }
    return "";
}

std::string TreeWriter::text(const SwitchStatement& statement) {
    return node("Switch", statement.line, statement.subject, statement.cases, statement.defaultBlock);
}

std::string TreeWriter::definition(const Statement* statement) {
    const std::int32_t line = statement->line;
    if (const auto* variable = as<VarDeclaration>(statement)) {
        const std::string type = std::to_string(static_cast<std::int32_t>(variable->type));
        return node("VarDeclaration", line, privacy(variable->isPrivate), variable->name, variable->initializer, type);
    }
    if (const auto* function = as<FunctionDefinitionStatement>(statement)) {
        return node("FunctionDefinition", line, privacy(function->isPrivate), function->name,
                    bracketed(function->params), function->body);
    }
    if (const auto* structure = as<StructDefinitionStatement>(statement)) {
        return text(*structure);
    }
    if (const auto* structure = as<AbstractStructDefinitionStatement>(statement)) {
        return text(*structure);
    }
    return "";
}

std::string TreeWriter::text(const StructDefinitionStatement& structure) {
    const std::string parent = structure.hasParent ? "< " + structure.parent.value : "";
    return node("StructDefinition", structure.line, structure.name, parent, structure.fields, structure.methods);
}

std::string TreeWriter::text(const AbstractStructDefinitionStatement& structure) {
    return node("AbstractStructDefinition", structure.line, structure.name, structure.methods);
}

std::string treeText(const Expression* expression, Lines lines) {
    return TreeWriter(lines).text(expression);
}

std::string treeText(const Statement* statement, Lines lines) {
    return TreeWriter(lines).text(statement);
}

std::string treeText(const Program& program, Lines lines) {
    std::string joined;
    for (const StatementPtr& statement : program.statements) {
        joined += (joined.empty() ? "" : " ") + treeText(statement.get(), lines);
    }
    return joined;
}

} // namespace pozhil::test
