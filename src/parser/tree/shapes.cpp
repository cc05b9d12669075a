#include "parser/tree/shapes.h"

#include "language/operators.h"
#include "parser/tree/expressions.h"

namespace pozhil {

const Expression* withoutBrackets(const Expression* expression) {
    while (const auto* const group = nodeCast<GroupingExpression>(expression)) {
        expression = group->inner.get();
    }
    return expression;
}

bool isComparison(const Expression& expression) {
    const auto* const binary = nodeCast<BinaryExpression>(&expression);
    return binary != nullptr && language::findOperator(binary->op.value, language::OperatorKind::Comparison) != nullptr;
}

} // namespace pozhil
