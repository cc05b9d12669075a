#include "driver/second_translation.h"

#include "analysis/second/analysis.h"
#include "parser/tree/application.h"
#include "scanner/second/fault_numbers.h"

#include <utility>

namespace pozhil {
namespace {

/// Applications can be parsed, but not written yet.
SecondFaults refusedApplications(const SecondProgram& program) {
    SecondFaults faults;
    for (const SecondFile& file : program.files) {
        for (const StatementPtr& statement : file.tree.statements) {
            const auto place = program.places.of(*statement);
            if (nodeCast<WebAppNode>(statement.get()) != nullptr && place) {
                faults.push_back({second::fault::WEB_APPLICATION, *place});
                return faults;
            }
        }
    }
    return faults;
}

} // namespace

SecondTranslation translateSecondEdition(SourcePtr source, const FrontEndOptions& options) {
    SecondTranslation translation;
    SecondProgram program = parseSecondEdition(std::move(source), options);
    if (!program.faults.empty()) {
        translation.faults = std::move(program.faults);
        return translation;
    }
    if (SecondFaults refused = refusedApplications(program); !refused.empty()) {
        translation.faults = std::move(refused);
        return translation;
    }
    SecondMeaning meaning = analyseSecondEdition(program);
    if (!meaning.faults.empty()) {
        translation.faults = std::move(meaning.faults);
        return translation;
    }
    translation.hints = std::move(meaning.hints);
    for (const resolved::File& file : meaning.program.files) {
        translation.sources.push_back(file.source);
    }
    translation.output = writeSecondEdition(meaning.program);
    return translation;
}

} // namespace pozhil
