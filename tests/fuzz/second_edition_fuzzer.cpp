/// Feeds mutated programs to scanner, parser and analysis of the second edition, and holds them to what they promise.

#include "analysis/second/analysis.h"
#include "base/source_loader.h"
#include "expectation.h"
#include "front_end/second_edition.h"
#include "fuzzer.h"
#include "meaning_check.h"
#include "scanner/second/scanner.h"
#include "support/tree_text.h"

#include <utility>

namespace {

void checkFaults(const pozhil::SecondFaults& faults) {
    expect(faults.size() <= pozhil::MAX_FOUND_FAULTS, "no more faults than anybody asks for");
    std::size_t before = 0;
    for (const pozhil::SecondFault& fault : faults) {
        const pozhil::ByteRange range = fault.place.range;
        expect(range.begin <= range.end && range.end <= fault.place.source->text.size(), "faults stand in their text");
        expect(range.begin >= before, "faults come in the order of the text");
        before = range.begin;
        const pozhil::report::FaultText text = faultText(fault);
        expect(!text.message.empty() && !text.remedy.empty(), "every fault is in the catalogue");
        expect(text.excerpt.begin <= text.excerpt.end && text.excerpt.end <= text.excerpt.lineText.size(),
               "what is underlined stands on its line");
    }
}

void parse(std::string text) {
    const pozhil::MemoryLoader noFiles;
    pozhil::FrontEndOptions options;
    options.loader = &noFiles;
    const pozhil::SourcePtr source = pozhil::makeSource("சோதனை.பொழில்", std::move(text));
    pozhil::SecondFaults markerFaults;
    pozhil::editionOf(source, markerFaults);
    const pozhil::SecondProgram program = pozhil::parseSecondEdition(source, options);
    checkFaults(program.faults);
    pozhil::SecondFaults scanFaults;
    pozhil::second::scanSecondEdition(source, scanFaults);
    expect(scanFaults.empty() || !program.faults.empty(), "what the scanner finds wrong is told");
    for (const pozhil::StatementPtr& statement : program.files.back().tree.statements) {
        const auto place = program.places.of(*statement);
        expect(place && place->range.end <= source->text.size(), "every statement has its place");
        pozhil::test::treeText(statement.get());
    }
    // Also what could be parsed in part, as editors ask.
    pozhil::SecondMeaning meaning = pozhil::analyseSecondEdition(program);
    checkFaults(meaning.faults);
    if (program.faults.empty() && meaning.faults.empty()) {
        checkMeaning(meaning.program);
    }
}

} // namespace

int main(int argc, char** argv) {
    return runFuzzer(argc, argv, parse);
}
