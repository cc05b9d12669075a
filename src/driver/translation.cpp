#include "driver/translation.h"

#include "generator/first/generator.h"

#include <utility>

namespace pozhil {

OutputText generateText(const ParsedSource& parsed) {
    return runStage(Stage::Generate, [&] {
        Generator generator(parsed.program, parsed.parser->functions(), parsed.parser->structs(),
                            parsed.parser->abstractStructs(), parsed.source->text, parsed.source->path);
        std::string text = generator.generate();
        return OutputText{std::move(text), generator.runtimeLength(), generator.origins()};
    });
}

} // namespace pozhil
