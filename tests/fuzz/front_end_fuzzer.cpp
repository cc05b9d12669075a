/// Feeds mutated programs to scanner, parser, hints and generator of the first edition.

#include "analysis/hints.h"
#include "base/source_text.h"
#include "diagnostics/fault.h"
#include "driver/translation.h"
#include "fuzzer.h"

#include <utility>

namespace {

void compile(std::string text) {
    try {
        const pozhil::ParsedSource parsed = pozhil::parseSource(pozhil::makeSource("சோதனை.பொழில்", std::move(text)), {});
        pozhil::hintsOf(parsed.program, *parsed.parser);
        pozhil::generateText(parsed);
    } catch (const pozhil::Fault&) {
    } catch (const pozhil::StageFailure&) {
    }
}

} // namespace

int main(int argc, char** argv) {
    return runFuzzer(argc, argv, compile);
}
