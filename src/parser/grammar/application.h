#pragma once

#include "parser/grammar/grammar.h"

namespace pozhil {

/// Applications and their sections.
class ApplicationGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// வலைதளம் [ name ] ( properties and sections ); of several equal sections the last one counts.
    StatementPtr parseWebApp();

private:
    StatementPtr parseHeader();
    void parseHeaderItem(PropertyMap& properties);
    StatementPtr parseUIBody();
    StatementPtr parseDefinition();
    StatementPtr parseDatabaseManager();
    StatementPtr parseFirebaseConfig();
};

} // namespace pozhil
