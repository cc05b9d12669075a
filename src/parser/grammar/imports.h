#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Imports of other files.
class ImportGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// நூஇறக்கி "path": parses the file now and keeps its statements for the front of the program.
    /// \throws Fault
    StatementPtr parseImportStatement();

    /// The statements of all imported files so far, in the order of their imports.
    StatementList takeStatements();

private:
    void parseImportedFile(const SourcePtr& source);

    StatementList statements_;
};

} // namespace pozhil
