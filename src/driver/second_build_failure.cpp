#include "driver/second_build_failure.h"

#include "base/line_index.h"
#include "diagnostics/refusals/toolchain_errors.h"
#include "driver/console/console_style.h"

#include <cstdint>
#include <iostream>
#include <vector>

namespace pozhil {
namespace {

/// Where in the source the statement stands whose text was refused first. What is the same in all programs has no place.
ShownPlace placeOf(const SecondTranslation& translation, const std::vector<ToolchainError>& errors) {
    for (const ToolchainError& error : errors) {
        if (error.line == 0 || error.line > translation.output.origins.size()) {
            continue;
        }
        const resolved::Place& place = translation.output.origins[error.line - 1];
        if (place.range.begin == place.range.end) {
            continue;
        }
        const SourcePtr& source = translation.sources[place.file];
        const auto line = static_cast<std::int32_t>(LineIndex(source->text).lineAt(place.range.begin));
        return {source->path, line, lineOf(source->text, line)};
    }
    return {};
}

/// Nothing that a compiler says tells that for certain, so it is tried.
bool isFaultOfFlags(const FailedBuild& build) {
    return build.plainCall && platform::captureCommand(*build.plainCall).status == 0;
}

void tellRefusal(const FailedBuild& build, const ShownPlace& place) {
    const std::string compiler(build.compiler.name);
    std::cerr << style::RED << "பிழை: " << OUR_FAULT << ": உருவான C++ உரையை " << compiler << " ஏற்கவில்லை."
              << style::RESET << std::endl;
    const std::string text = build.isTextKept ? "உருவான C++ உரை: '" + build.file + "'" : "";
    const std::string sent = build.isTextKept ? "உன் நிரலையும் அந்த C++ உரையையும்" : "உன் நிரலைப்";
    printExplanation({place,
                      {text, compiler + " சொன்னதைப் பார்க்க: POZHIL_SHOW_CXX=1 என்று வைத்து மீண்டும் ஓட்டு."},
                      sent + " பொழில் குழுவுக்கு அனுப்பு மச்சி; அதுவரை அந்தக் கூற்றை வேறு விதமா எழுதிப் பாரு!"});
}

} // namespace

BuildBlame reportBuildFailure(const SecondTranslation& translation, const FailedBuild& build) {
    if (const auto obstacle = findObstacle(build.compiler, build.result)) {
        tellObstacle(build.compiler, *obstacle);
        return {true};
    }
    if (isFaultOfFlags(build)) {
        tellObstacle(build.compiler, obstacleOfFlags(build.compiler));
        return {true};
    }
    const ShownPlace place = placeOf(translation, readToolchainErrors(build.result.errors, build.file));
    tellRefusal(build, place);
    return {false, place};
}

} // namespace pozhil
