#pragma once

#include "parser/tree/expressions.h"

#include <memory>
#include <utility>

namespace pozhil {

/// நிகழ்நேர.தரவுசேர்: the data is always a MapLiteral.
struct RTDBInsertExpression : Expression {
    RTDBInsertExpression(ExpressionPtr thePath, ExpressionPtr theData)
        : path(std::move(thePath)), data(std::move(theData)) {}

    ExpressionPtr path;
    ExpressionPtr data;
};

/// நிகழ்நேர.தரவுமாற்று.
struct RTDBUpdateExpression : Expression {
    RTDBUpdateExpression(ExpressionPtr thePath, std::unique_ptr<MapLiteral> theData)
        : path(std::move(thePath)), data(std::move(theData)) {}

    ExpressionPtr path;
    std::unique_ptr<MapLiteral> data;
};

/// நிகழ்நேர.தரவுஅழி.
struct RTDBDeleteExpression : Expression {
    explicit RTDBDeleteExpression(ExpressionPtr thePath) : path(std::move(thePath)) {}

    ExpressionPtr path;
};

/// நிகழ்நேர.தரவுபடி: the body runs when the data has arrived.
struct RTDBReadStatement : Statement {
    RTDBReadStatement(ExpressionPtr thePath, StatementList theBody)
        : path(std::move(thePath)), body(std::move(theBody)) {}

    ExpressionPtr path;
    StatementList body;
};

} // namespace pozhil
