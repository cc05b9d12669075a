#pragma once

#include "analysis/analysis.h"
#include "emit/code_writer.h"
#include "generator/first/emission.h"
#include "generator/first/page_analysis.h"
#include "generator/first/statement_writer.h"
#include "generator/first/web_edition.h"
#include "generator/web/page/web_emitter.h"

#include <string>
#include <string_view>

namespace pozhil {

/// The program in the first edition of the language: each definition, statement and expression is analysed, then
/// written, before the next one is looked at.
class FirstEdition : public WebEdition {
public:
    /// Everything outlives the edition. \p path is the source path as the user gave it, \p source its text.
    FirstEdition(const Program& program, const FunctionTable& functions, const StructTable& structures,
                 const AbstractStructTable& abstracts, const std::string& path, std::string_view source);

    CodeWriter& out() { return out_; }
    WebEmitter& web() { return web_; }

    /// A structure outside all blocks.
    /// \throws Fault, as the others do
    void writeStructure(const StructDefinitionStatement& structure);

    void writeStatement(const Statement* statement) override;
    void writeBody(const StatementList& statements) override;
    Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const override;

protected:
    void writeExpression(const Expression* expression) override;

private:
    template <class Analyse, class Write> void writeUnit(Analyse analyse, Write write);

    CodeWriter out_;
    PageAnalysis pages_;
    Analysis analysis_;
    WebEmitter web_;
    Emission emission_;
    ExpressionWriter expressions_;
    StatementWriter statements_;
    /// Whether what is written is part of something that has been analysed as a whole.
    bool isInUnit_ = false;
};

} // namespace pozhil
