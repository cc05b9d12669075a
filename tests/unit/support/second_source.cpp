#include "support/second_source.h"

#include "diagnostics/second_fault.h"
#include "scanner/second/scanner.h"
#include "support/scanning.h"
#include "support/tree_text.h"

namespace pozhil::test {
namespace {

SecondProgram parse(const std::string& text) {
    return parseSecondEdition(makeSource("நிரல்.பொழில்", text), {});
}

} // namespace

std::string secondTokens(const std::string& text) {
    SecondFaults faults;
    const ScannedSource scanned = second::scanSecondEdition(makeSource("நிரல்.பொழில்", text), faults);
    std::string written;
    for (const std::string& fault : faultTexts(faults)) {
        written += fault + "\n";
    }
    return written + tokenText(scanned.tokens);
}

std::string secondTree(const std::string& text) {
    const SecondProgram program = parse(text);
    if (program.faults.empty()) {
        return treeText(program.files.back().tree);
    }
    std::string faults;
    for (const std::string& fault : faultTexts(program.faults)) {
        faults += fault + "\n";
    }
    return faults;
}

std::string partialTree(const std::string& text) {
    return treeText(parse(text).files.back().tree);
}

std::vector<std::string> secondFaults(const std::string& text) {
    return faultTexts(parse(text).faults);
}

std::vector<std::string> faultTexts(const SecondFaults& faults) {
    std::vector<std::string> texts;
    for (const SecondFault& fault : faults) {
        const report::FaultText text = faultText(fault);
        const report::Excerpt& excerpt = text.excerpt;
        std::string written = std::to_string(fault.number) + " " + std::to_string(excerpt.line) + " '" +
                              excerpt.lineText.substr(excerpt.begin, excerpt.end - excerpt.begin) + "'";
        if (!text.suggestion.empty()) {
            written += " → " + text.suggestion;
        }
        texts.push_back(std::move(written));
    }
    return texts;
}

} // namespace pozhil::test
