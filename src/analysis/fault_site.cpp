#include "analysis/fault_site.h"

#include "base/source_text.h"

#include <utility>

namespace pozhil {

FaultSite::FaultSite(std::string path, std::string_view text) : path_(std::move(path)), text_(text) {}

void FaultSite::raise(const std::string& code, std::int32_t line, const std::string& details) const {
    throw fault(code, line, details);
}

void FaultSite::raise(const std::string& code, const Expression& node, const std::string& details) const {
    Fault raised = fault(code, node.line, details);
    raised.node = &node;
    throw raised;
}

void FaultSite::raisePlaceless(const std::string& code, const Expression* node, const std::string& details,
                               std::string hint, Mend mend) const {
    Fault raised = placeless(code, node == nullptr ? 0 : node->line, details);
    raised.node = node;
    raised.hint = std::move(hint);
    raised.mend = std::move(mend);
    throw raised;
}

Fault FaultSite::placeless(const std::string& code, std::int32_t line, const std::string& details) const {
    Fault placed = fault(code, line, details);
    placed.form = FaultForm::StageLine;
    return placed;
}

Fault FaultSite::fault(const std::string& code, std::int32_t line, const std::string& details) const {
    return {பிழைவகை::பொருள்_பிழை, code, path_, line, details, std::string(lineOf(text_, line))};
}

} // namespace pozhil
