#include "driver/second_translation.h"

#include "analysis/second/analysis.h"

#include <utility>

namespace pozhil {

SecondTranslation translateSecondEdition(SourcePtr source, const FrontEndOptions& options) {
    SecondTranslation translation;
    translation.program = parseSecondEdition(std::move(source), options);
    if (!translation.program.faults.empty()) {
        translation.faults = std::move(translation.program.faults);
        return translation;
    }
    SecondMeaning meaning = analyseSecondEdition(translation.program);
    if (!meaning.faults.empty()) {
        translation.faults = std::move(meaning.faults);
        return translation;
    }
    translation.hints = std::move(meaning.hints);
    for (const resolved::File& file : meaning.program.files) {
        translation.sources.push_back(file.source);
    }
    for (const resolved::Function* test : meaning.program.tests) {
        translation.tests.push_back(test->name);
    }
    if (!meaning.program.pages.empty()) {
        std::vector<const WebAppNode*> pages;
        for (const resolved::Page& page : meaning.program.pages) {
            pages.push_back(page.tree);
        }
        translation.application = readApplication(std::move(pages));
    }
    translation.output = writeSecondEdition(meaning.program);
    return translation;
}

} // namespace pozhil
