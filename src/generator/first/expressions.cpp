#include "base/number_text.h"
#include "generator/first/generator.h"
#include "generator/first/names.h"

#include <cerrno>
#include <cstdlib>

namespace pozhil {

template <class Node> bool Generator::visitAs(const Expression* expression, void (Generator::*visit)(const Node*)) {
    const auto* node = nodeCast<Node>(expression);
    if (node == nullptr) {
        return false;
    }
    (this->*visit)(node);
    return true;
}

/// Writes an expression at the current position, without line breaks of its own but for constructions.
void Generator::visitExpression(const Expression* expression) {
    const bool isVisited =
        visitAs(expression, &Generator::visitNumberLiteral) || visitAs(expression, &Generator::visitDoubleLiteral) ||
        visitAs(expression, &Generator::visitStringLiteral) || visitAs(expression, &Generator::visitCharLiteral) ||
        visitAs(expression, &Generator::visitAssignmentExpression) ||
        visitAs(expression, &Generator::visitSetMemberExpression) ||
        visitAs(expression, &Generator::visitVariableAccess) || visitAs(expression, &Generator::visitBooleanLiteral) ||
        visitAs(expression, &Generator::visitTernaryExpression) ||
        visitAs(expression, &Generator::visitGetExpression) || visitAs(expression, &Generator::visitListLiteral) ||
        visitAs(expression, &Generator::visitMapLiteral) || visitAs(expression, &Generator::visitIndexExpression) ||
        visitAs(expression, &Generator::visitLambdaExpression) ||
        visitAs(expression, &Generator::visitCallExpression) ||
        visitAs(expression, &Generator::visitBinaryExpression) ||
        visitAs(expression, &Generator::visitLogicalExpression) ||
        visitAs(expression, &Generator::visitUnaryExpression) ||
        visitAs(expression, &Generator::visitGroupingExpression) || web_.writeExpression(expression);
    if (!isVisited) {
        placelessFault("பொழி-399", expression == nullptr ? 0 : expression->line,
                       "Unknown expression type in generator");
    }
}

/// std::any( expr )
void Generator::emitAny(const Expression* expression) {
    out_ << "std::any(";
    visitExpression(expression);
    out_ << ")";
}

/// Arguments, each in std::any( ), joined by commas.
void Generator::emitAnyList(const ExpressionList& expressions) {
    bool isFirst = true;
    for (const ExpressionPtr& expression : expressions) {
        out_ << (isFirst ? "" : ", ");
        emitAny(expression.get());
        isFirst = false;
    }
}

/// The operand of a std::any_cast. A literal zero, in parentheses too, would be taken for a null pointer there.
void Generator::emitCastOperand(const Expression* expression) {
    const Expression* inner = expression;
    while (const auto* grouping = nodeCast<GroupingExpression>(inner)) {
        inner = grouping->inner.get();
    }
    const auto* number = nodeCast<NumberLiteral>(inner);
    const bool isZero = number != nullptr && toAsciiDigits(number->value).find_first_not_of('0') == std::string::npos;
    if (isZero) {
        emitAny(expression);
    } else {
        visitExpression(expression);
    }
}

void Generator::visitNumberLiteral(const NumberLiteral* node) {
    const std::string digits = toAsciiDigits(node->value);
    errno = 0;
    std::strtoull(digits.c_str(), nullptr, 10);
    if (errno == ERANGE) {
        பிழை("பொழி-305", node->line, "");
    }
    out_ << digits << "LL";
}

void Generator::visitDoubleLiteral(const DoubleLiteral* node) {
    out_ << toAsciiDigits(node->value) << "L";
}

void Generator::visitStringLiteral(const StringLiteral* node) {
    out_ << "std::string(u8\"" << node->value << "\")";
}

void Generator::visitCharLiteral(const CharLiteral* node) {
    out_ << "_PozhilChar{std::string(u8\"" << node->value << "\")}";
}

void Generator::visitBooleanLiteral(const BooleanLiteral* node) {
    out_ << (node->value == "மெய்" ? "true" : "false");
}

void Generator::visitListLiteral(const ListLiteral* node) {
    out_ << "std::vector<std::any>({";
    emitAnyList(node->elements);
    out_ << "})";
}

void Generator::visitMapLiteral(const MapLiteral* node) {
    out_ << "std::map<std::string, std::any>({";
    bool isFirst = true;
    for (const auto& [key, value] : node->entries) {
        out_ << (isFirst ? "" : ", ") << "{\"" << key << "\", ";
        emitAny(value.get());
        out_ << "}";
        isFirst = false;
    }
    out_ << "})";
}

void Generator::visitGroupingExpression(const GroupingExpression* node) {
    out_ << "(";
    visitExpression(node->inner.get());
    out_ << ")";
}

/// A native variable of the function being emitted, or an entry of the one global map.
void Generator::visitVariableAccess(const VariableAccess* node) {
    if (isSelfName(node->name) && currentStruct_.empty()) {
        பிழை("பொழி-325", node->line, "");
    }
    if (localVars_.count(node->name) != 0) {
        out_ << node->name;
    } else {
        out_ << "global_vars[\"" << node->name << "\"]";
    }
}

void Generator::visitTernaryExpression(const TernaryExpression* node) {
    out_ << "(";
    visitExpression(node->condition.get());
    out_ << " ? ";
    visitExpression(node->thenBranch.get());
    out_ << " : ";
    visitExpression(node->elseBranch.get());
    out_ << ")";
}

/// (a) => a  ->  std::function<std::any(std::any)>([=](std::any a) { return std::any(a); })
void Generator::visitLambdaExpression(const LambdaExpression* node) {
    const std::size_t outerLocals = localsLog_.size();
    std::string declarations;
    for (const Token& parameter : node->parameters) {
        setLocal(parameter.value);
        declarations += (declarations.empty() ? "std::any " : ", std::any ") + parameter.value;
    }
    out_ << "std::function<std::any(" << anyTypes(node->parameters.size()) << ")>([=](" << declarations
         << ") { return ";
    emitAny(node->body.get());
    out_ << "; })";
    dropLocalsBehind(outerLocals);
}

/// a[i]  ->  fn_எடு(a, std::any(i), file, line)
void Generator::visitIndexExpression(const IndexExpression* node) {
    out_ << "fn_எடு(";
    visitExpression(node->object.get());
    out_ << ", ";
    emitAny(node->index.get());
    out_ << ", \"" << fileName_ << "\", " << node->line << ")";
}

} // namespace pozhil
