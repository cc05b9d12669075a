#include "tools/check/outcome_report.h"

#include "driver/console/console_style.h"
#include "driver/hint_report.h"

#include <iostream>
#include <string>

namespace pozhil::tools {
namespace {

void printHint(std::ostream& out, const report::FaultText& hint, bool coloured) {
    out << (coloured ? style::GOLD : "") << HINT_TITLE << (coloured ? style::RESET : "")
        << hintText(hint.excerpt.file, static_cast<std::size_t>(hint.excerpt.line), hint.message) << "\n";
}

void printSummary(const Outcome& outcome) {
    const std::size_t faults = countOf(outcome.findings, Finding::Kind::Fault);
    const std::size_t hints = countOf(outcome.findings, Finding::Kind::Hint);
    std::cout << (faults == 0 && outcome.unread.empty() ? "✅ " : "🚨 ") << "சரிபார்த்த கோப்புகள்: " << outcome.checked
              << ", பிழைகள்: " << faults << ", குறிப்புகள்: " << hints << std::endl;
}

} // namespace

void printFindings(std::ostream& out, const Findings& findings, bool coloured) {
    for (const Finding& finding : findings) {
        if (finding.kind == Finding::Kind::Hint) {
            printHint(out, finding.text, coloured);
        } else {
            out << (coloured ? report::faultBox(finding.text) : report::plainFaultBox(finding.text));
        }
    }
}

void reportOutcome(const Outcome& outcome, bool coloured) {
    printFindings(std::cout, outcome.findings, coloured);
    printSummary(outcome);
    reportUnread(outcome.unread);
}

void reportUnread(const std::vector<Unread>& unread) {
    for (const Unread& file : unread) {
        std::cerr << "பிழை: '" << file.path << "': " << file.reason << "!" << std::endl;
    }
}

} // namespace pozhil::tools
