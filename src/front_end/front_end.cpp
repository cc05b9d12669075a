#include "front_end/front_end.h"

#include "scanner/lexer.h"

#include <algorithm>
#include <utility>

namespace pozhil {
namespace {

const SourceLoader& loaderOf(const FrontEndOptions& options) {
    static const FileLoader files;
    return options.loader == nullptr ? files : *options.loader;
}

} // namespace

SourcePtr loadSource(const std::string& path, const FrontEndOptions& options) {
    return loaderOf(options).load(path);
}

ParsedSource parseSource(SourcePtr source, const FrontEndOptions& options) {
    ParsedSource parsed;
    parsed.source = std::move(source);
    ScannedSource scanned = runStage(Stage::Scan, [&] { return Lexer(parsed.source).scan(options.maxFaults); });
    FaultLog log(std::max<std::size_t>(options.maxFaults, 1));
    runStage(Stage::Parse, [&] {
        FaultLog* faults = options.maxFaults == 0 ? nullptr : &log;
        parsed.parser = std::make_unique<Parser>(std::move(scanned),
                                                 ParseOptions{loaderOf(options), options.moduleDirectories, faults});
        try {
            parsed.program = parsed.parser->parse();
        } catch (const FaultLog::Full&) {
            // What is known is enough for whoever asked; the tree stays empty.
        }
    });
    parsed.faults = log.take();
    return parsed;
}

bool isWebProgram(const Program& program) {
    return std::any_of(program.statements.begin(), program.statements.end(), [](const StatementPtr& statement) {
        return dynamic_cast<const WebAppNode*>(statement.get()) != nullptr;
    });
}

} // namespace pozhil
