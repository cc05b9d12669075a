#include "analysis/second/analysis.h"

#include "analysis/second/captures.h"
#include "analysis/second/collector.h"
#include "analysis/second/constants.h"
#include "analysis/second/declarations.h"
#include "analysis/second/definite_assignment.h"
#include "analysis/second/hints.h"
#include "analysis/second/kind_faults.h"
#include "analysis/second/kind_marks.h"
#include "analysis/second/kinds.h"
#include "analysis/second/names.h"
#include "analysis/second/resolution.h"
#include "analysis/second/structures.h"
#include "analysis/second/test_calls.h"
#include "front_end/second_edition.h"

#include <algorithm>
#include <cstddef>

namespace pozhil {
namespace {

void openFiles(second::Model& model) {
    const auto& files = model.source.files;
    model.fileScopes.resize(files.size());
    model.applications.resize(files.size());
    model.own.resize(files.size());
    model.visible.resize(files.size());
    model.program.files.resize(files.size());
    for (std::size_t file = 0; file < files.size(); ++file) {
        model.program.files[file].source = files[file].source;
        second::Collector(model, file).collect();
    }
}

/// Hands every variable to who has it.
void handOutVariables(second::Model& model) {
    for (const auto& variable : model.program.variables) {
        if (variable->owner == nullptr) {
            model.program.files[variable->file].variables.push_back(variable.get());
            continue;
        }
        resolved::Function& owner = *model.scopeOfFunction.at(variable->owner)->function;
        const bool isParameter = std::any_of(owner.parameters.begin(), owner.parameters.end(),
                                             [&](const auto& one) { return one.variable == variable.get(); });
        if (!isParameter) {
            owner.variables.push_back(variable.get());
        }
    }
}

void tellWhatIsCertain(second::Model& model, const second::WayFacts& ways) {
    const second::Kinds kinds(model, ways, second::Purpose::Telling);
    second::markKinds(model, kinds);
    second::tellKindFaults(model, kinds);
}

} // namespace

SecondMeaning analyseSecondEdition(const SecondProgram& program) {
    SecondMeaning meaning;
    second::Model model(program, meaning.program);
    openFiles(model);
    model.doubt.find(model);
    second::linkImports(model);
    second::declareVariables(model);
    second::resolveStructures(model);
    second::findCaptures(model);
    second::resolveBodies(model);
    second::callTests(model);
    handOutVariables(model);
    second::checkConstants(model);
    const second::WayFacts ways = second::findDefiniteAssignments(model);
    tellWhatIsCertain(model, ways);
    if (model.faults.isEmpty() && !model.doubt.isAny()) {
        const second::Kinds kinds(model, ways, second::Purpose::Writing);
        second::markKinds(model, kinds);
        second::makeCallsDirect(model, kinds);
        meaning.hints = second::findHints(model);
    }
    meaning.faults = model.faults.found(model.doubt);
    return meaning;
}

} // namespace pozhil
