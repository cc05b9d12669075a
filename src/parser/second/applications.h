#pragma once

#include "parser/second/property_values.h"
#include "parser/tree/application.h"

namespace pozhil::second {

/// Applications and their sections.
class ApplicationGrammar : public Grammar {
public:
    using Grammar::Grammar;

    /// Whether an application begins here: outside of all blocks, with its bracket.
    bool isApplicationAhead() const;

    /// வலைதளம் [ name ] ( sections )
    /// \throws SyntaxFault
    StatementPtr parseApplication();

private:
    void parseSection(WebAppNode& app, std::vector<std::string_view>& written);
    void checkSections(std::size_t first, const std::vector<std::string_view>& written);
    StatementPtr parseHeader();
    StatementPtr parseInterface();
    StatementPtr parseDefinition();
    StatementPtr parseDatabaseManager();
    StatementPtr parseConnection();
    PropertyMap parseProperties(std::string_view owner, language::Rows<language::WidgetProperty> rows);
};

} // namespace pozhil::second
