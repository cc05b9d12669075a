#include "generator/first/first_edition.h"

namespace pozhil {

FirstEdition::FirstEdition(const Program& program, const FunctionTable& functions, const StructTable& structures,
                           const AbstractStructTable& abstracts, const std::string& path, std::string_view source)
    : pages_(program), analysis_(functions, structures, abstracts, path, source, pages_),
      web_(out_, *this, readApplication(program)),
      emission_{out_, analysis_.facts(), analysis_.structures(), functions, path, web_}, expressions_(emission_),
      statements_(emission_, expressions_) {
    pages_.setAnalysis(analysis_);
}

/// A widget inside an expression asks for its own expressions while the outer one is written. They have been analysed
/// with it.
template <class Analyse, class Write> void FirstEdition::writeUnit(Analyse analyse, Write write) {
    if (isInUnit_) {
        write();
        return;
    }
    analysis_.facts().clear();
    analyse();
    isInUnit_ = true;
    write();
    isInUnit_ = false;
}

void FirstEdition::writeStructure(const StructDefinitionStatement& structure) {
    writeUnit([&] { analysis_.analyse(structure); }, [&] { statements_.writeStructure(structure); });
}

void FirstEdition::writeExpression(const Expression* expression) {
    writeUnit([&] { analysis_.analyse(expression); },
              [&] {
                  const CodeWriter::For origin(out_, expression);
                  expressions_.write(expression);
              });
}

void FirstEdition::writeStatement(const Statement* statement) {
    writeUnit([&] { analysis_.analyse(statement); }, [&] { statements_.write(statement); });
}

/// The scope is a matter of analysis, which has seen the body as a part of its statement.
void FirstEdition::writeBody(const StatementList& statements) {
    for (const StatementPtr& statement : statements) {
        writeStatement(statement.get());
    }
}

Fault FirstEdition::faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const {
    return analysis_.faults().placeless(code, line, details);
}

} // namespace pozhil
