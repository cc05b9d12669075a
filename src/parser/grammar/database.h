#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// The forms of the realtime database.
class DatabaseGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// A form that is a value, null if none begins here.
    ExpressionPtr parseDatabaseExpression();

    /// நிகழ்நேர.தரவுபடி ( path ) { statements }
    StatementPtr parseRTDBReadStatement();

private:
    ExpressionPtr parseDatabasePath(std::int32_t line);
    template <class Node> ExpressionPtr parseRTDBWrite();
    ExpressionPtr parseRTDBDeleteExpression();
};

} // namespace pozhil
