#include "tools/publish/site_build.h"

#include "base/text.h"
#include "base/whole_file.h"
#include "driver/output_stage.h"
#include "driver/web/page_template.h"
#include "driver/web/page_values.h"
#include "driver/web/web_assets.h"
#include "driver/web/web_compiler.h"
#include "driver/web/web_messages.h"
#include "platform/paths.h"
#include "tools/publish/compression.h"
#include "tools/publish/licences.h"
#include "tools/publish/messages.h"
#include "tools/publish/packed_fonts.h"
#include "tools/publish/tidying.h"

#include <fstream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

/// What makes the program smallest over the wire. It only runs in pages.
std::vector<std::string> optimisationOf(const WebText& text) {
    std::vector<std::string> arguments = {"-Oz", "-s", "ENVIRONMENT=web"};
    if (text.edition == Edition::Second) {
        arguments.emplace_back("-DPOZHIL_PUBLISHED"); // leaves out what only newer builds need
    }
    return arguments;
}

bool write(const fs::path& file, const std::string& text) {
    std::ofstream out(file, std::ios::binary);
    out << text;
    out.close();
    return static_cast<bool>(out);
}

/// The page as any host serves it: without the scripts that ask for newer builds.
std::optional<std::string> pageOf(const Application& application, const fs::path& appDirectory) {
    auto page = readTemplate(appDirectory);
    if (!page) {
        printMissingTemplate(appDirectory);
        return std::nullopt;
    }
    return tidiedPage(fillTemplate(std::move(*page), pageValuesOf(application)));
}

bool tidyScript(const fs::path& file) {
    std::optional<std::string> script = readFile(file);
    return script && write(file, tidiedScript(std::move(*script)));
}

/// What em++ packs. Of two files for the same place it takes the first.
std::vector<std::string> packingOf(const Application& application, const fs::path& measuredFont) {
    std::vector<std::string> packing = packingArguments(application);
    if (!measuredFont.empty()) {
        std::string file = measuredFont.u8string();
        replaceAll(file, "@", "@@");
        packing.insert(packing.begin(), {"--preload-file", file + "@" + MEASURED_FONT});
    }
    return packing;
}

BuildResult compileProgram(const WebText& text, std::vector<std::string> packing, const fs::path& workFolder,
                           const fs::path& folder) {
    const fs::path source = workFolder / "வலை_வெளியீடு.cpp";
    if (!writeOutput(source, text.output)) {
        return BuildResult::Failed;
    }
    const WebCompiler compiler(platform::executableDirectory(), source, folder);
    WebCall call = {text.linking, std::move(packing), {}, optimisationOf(text)};
    platform::CommandResult compiled = platform::captureCommand(compiler.command(call));
    if (compiled.status == 0) {
        return BuildResult::Done;
    }
    if (compiler.toldCause(text.linking)) {
        return BuildResult::Failed;
    }
    call.isUsers = false;
    const WebFailure failure =
        text.reportFailure({source.u8string(), std::move(compiled), compiler.command(call), false, false});
    return failure.isOfMachine ? BuildResult::Failed : BuildResult::Refused;
}

} // namespace

BuildResult buildSite(const WebText& text, const fs::path& workFolder, const fs::path& folder) {
    const auto page = pageOf(text.application, platform::executableDirectory());
    if (!page) {
        return BuildResult::Failed;
    }
    printStep("தொகுக்கப்படுகிறது; சில வினாடிகள் ஆகும்");
    const auto measuredFont = packedMeasuredFont(text.output);
    const fs::path fontFile = measuredFont ? workFolder / "measured.ttf" : fs::path();
    if (measuredFont && !write(fontFile, *measuredFont)) {
        printUnfinished(folder);
        return BuildResult::Failed;
    }
    const BuildResult compiled = compileProgram(text, packingOf(text.application, fontFile), workFolder, folder);
    if (compiled != BuildResult::Done) {
        return compiled;
    }
    printStep("சுருக்கப்படுகிறது");
    const std::string licences = licencesOf(applicationFiles(text.application), measuredFont ? MEASURED_FONT : "");
    const bool isWritten = write(folder / "index.html", *page) && tidyScript(folder / "index.js") &&
                           (licences.empty() || write(folder / "licences.txt", licences)) && compressFiles(folder);
    if (!isWritten) {
        printUnfinished(folder);
        return BuildResult::Failed;
    }
    return BuildResult::Done;
}

} // namespace pozhil::tools
