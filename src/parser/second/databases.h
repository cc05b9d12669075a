#pragma once

#include "parser/second/grammar.h"
#include "parser/tree/database.h"

namespace pozhil::second {

/// Calls of the realtime database, which applications have: நிகழ்நேர.word ( path ), some with braces after it.
class DatabaseGrammar : public Grammar {
public:
    using Grammar::Grammar;

    bool isReadAhead() const;
    bool isWriteAhead() const;

    /// Whether \p value is what parseWrite makes.
    static bool isWrite(const Expression& value);

    /// நிகழ்நேர.தரவுபடி ( path ) { statements }
    /// \throws SyntaxFault
    StatementPtr parseRead();

    /// நிகழ்நேர.தரவுசேர் and நிகழ்நேர.தரவுமாற்று ( path ) { entries }, நிகழ்நேர.தரவுஅழி ( path )
    /// \throws SyntaxFault
    ExpressionPtr parseWrite();

private:
    bool isCallAhead(std::string_view word) const;
    ExpressionPtr parsePath();
    void consumeBrace();
    std::unique_ptr<MapLiteral> parseEntries();
};

} // namespace pozhil::second
