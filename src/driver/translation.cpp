#include "driver/translation.h"

#include "base/line_index.h"
#include "generator/first/generator.h"

#include <cstdint>
#include <utility>

namespace pozhil {
namespace {

/// Analysis only knows the file of the program itself; the node may stand in one that it imports.
void notePlace(Fault& fault, const ParsedSource& parsed) {
    const auto place = parsed.parser->places().ofAddress(fault.node);
    if (fault.form == FaultForm::StageLine && place) {
        fault.file = place->source->path;
        fault.line = static_cast<std::int32_t>(LineIndex(place->source->text).lineAt(place->range.begin));
        fault.lineText = lineOf(place->source->text, fault.line);
    }
}

} // namespace

OutputText generateText(const ParsedSource& parsed) {
    return runStage(Stage::Generate, [&] {
        Generator generator(parsed.program, parsed.parser->functions(), parsed.parser->structs(),
                            parsed.parser->abstractStructs(), parsed.source->text, parsed.source->path);
        try {
            std::string text = generator.generate();
            return OutputText{std::move(text), generator.runtimeLength(), generator.origins()};
        } catch (Fault& fault) {
            notePlace(fault, parsed);
            throw;
        }
    });
}

} // namespace pozhil
