#include "generator/first/page_analysis.h"

#include "analysis/analysis.h"

namespace pozhil {

void PageAnalysis::visit(const WidgetExpression& slot) {
    Scratch(*this, program_).web.writeExpression(&slot);
}

void PageAnalysis::visit(const WidgetNode& widget) {
    Scratch(*this, program_).web.writeStatement(&widget);
}

void PageAnalysis::visit(const WebAppNode& application) {
    Scratch(*this, program_).web.writeStatement(&application);
}

void PageAnalysis::writeExpression(const Expression* expression) {
    analysis_->analyse(expression);
}

void PageAnalysis::writeStatement(const Statement* statement) {
    analysis_->analyse(statement);
}

void PageAnalysis::writeBody(const StatementList& statements) {
    for (const StatementPtr& statement : statements) {
        analysis_->analyse(statement.get());
    }
}

Fault PageAnalysis::faultWithoutPlace(const std::string& code, std::int32_t line, const std::string& details) const {
    return analysis_->faults().placeless(code, line, details);
}

} // namespace pozhil
