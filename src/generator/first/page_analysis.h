#pragma once

#include "analysis/walk.h"
#include "emit/code_writer.h"
#include "generator/first/web_edition.h"
#include "generator/web/page/web_emitter.h"

#include <memory>

namespace pozhil {

class Analysis;

/// Visits widgets that stand inside expressions and statements: writes them to nowhere, with the analysis of their
/// expressions in place of these, since only the emission of a widget knows the order of what it emits.
class PageAnalysis : public WidgetWalk, private WebEdition {
public:
    explicit PageAnalysis(const Program& program) : program_(program) {}

    /// What analyses the expressions; it outlives the object.
    void setAnalysis(Analysis& analysis) { analysis_ = &analysis; }

    void visit(const WidgetExpression& slot) override;
    void visit(const WidgetNode& widget) override;
    void visit(const WebAppNode& application) override;

private:
    /// A text that nobody reads, and what writes it.
    struct Scratch {
        explicit Scratch(EditionWriter& edition, const Program& program)
            : web(out, edition, readApplication(program)) {}

        CodeWriter out;
        WebEmitter web;
    };

    void writeExpression(const Expression* expression) override;
    void writeStatement(const Statement* statement) override;
    void writeBody(const StatementList& statements) override;
    Fault faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const override;

    const Program& program_;
    Analysis* analysis_ = nullptr;
};

} // namespace pozhil
