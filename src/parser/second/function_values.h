#pragma once

#include "parser/second/grammar.h"

namespace pozhil::second {

/// Functions without a name, and the parameters of all functions.
class FunctionValueGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// name => value, or ( names ) => value
    /// \throws SyntaxFault
    ExpressionPtr parseArrowFunction();

    /// வினை ( names ) : and a value, or a block on the lines below.
    /// \throws SyntaxFault
    ExpressionPtr parseWordFunction();

    /// ( [ [மாற்று] name { , [மாற்று] name } ] )
    /// \throws SyntaxFault
    std::vector<Param> parseParameters();

private:
    /// Parameters, and where their names stand.
    struct Parameters {
        std::vector<Param> params;
        std::vector<ByteRange> ranges;
    };

    Parameters parseList(TokenType end);
    void parseParameter(Parameters& parameters);
    ExpressionPtr parseBody(std::size_t first, Parameters parameters);
    ExpressionPtr makeLambda(std::size_t first, Parameters parameters, ExpressionPtr body);
    ExpressionPtr makeFunction(std::size_t first, Parameters parameters, BlockPtr block);
    StatementPtr parseStatementBody();
};

} // namespace pozhil::second
