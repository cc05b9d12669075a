#include "driver/native/death_report.h"

#include "base/whole_file.h"
#include "driver/console/explanation.h"
#include "driver/native/trace_lines.h"
#include "driver/output_places.h"

#include <iostream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

std::string symbolsOf(const fs::path& program) {
    return platform::captureCommand({{"nm", "--defined-only", program.u8string()}, {}}).output;
}

/// The lines of the output text that the program was in, the innermost first.
std::vector<std::size_t> outputLines(const RunProgram& run, const std::string& trace) {
    if (platform::captureCommand(run.traceableBuild).status != 0) {
        return {};
    }
    const std::vector<std::string> addresses =
        translateAddresses(trace, symbolsOf(run.program), symbolsOf(run.traceable));
    if (addresses.empty()) {
        return {};
    }
    platform::Command command{{"addr2line", "--inlines", "-e", run.traceable.u8string()}, {}};
    command.arguments.insert(command.arguments.end(), addresses.begin(), addresses.end());
    return linesOfOutputText(platform::captureCommand(command).output);
}

/// The statements that stand on different lines, the innermost first.
std::vector<ShownPlace> statementsOf(OutputPlaces& places, const std::vector<std::size_t>& lines) {
    constexpr std::size_t MOST_SHOWN = 3;
    std::vector<ShownPlace> statements;
    for (const std::size_t line : lines) {
        const auto statement = places.find(line);
        if (!statement) {
            continue;
        }
        ShownPlace shown = shownPlace(*statement);
        const bool isNew =
            statements.empty() || statements.back().line != shown.line || statements.back().file != shown.file;
        if (isNew && statements.size() < MOST_SHOWN) {
            statements.push_back(std::move(shown));
        }
    }
    return statements;
}

} // namespace

void reportDeath(const ParsedSource& source, const OutputText& output, const RunProgram& run) {
    const std::string trace = readFile(run.trace).value_or("");
    if (trace.empty()) {
        return;
    }
    OutputPlaces places(source, output);
    const char* title = "🔎 பிழை நேர்ந்த இடம்:";
    for (const ShownPlace& statement : statementsOf(places, outputLines(run, trace))) {
        std::cerr << title << "\n";
        printPlace(statement);
        title = "  ╰── அதை அழைத்த இடம்:";
    }
    std::error_code ignored;
    fs::remove(run.trace, ignored);
    fs::remove(run.traceable, ignored);
}

} // namespace pozhil
