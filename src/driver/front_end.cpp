#include "driver/front_end.h"

#include "diagnostics/fault.h"
#include "driver/console/console_style.h"
#include "generator/first/generator.h"
#include "scanner/lexer.h"

#include <algorithm>
#include <iostream>
#include <utility>

namespace pozhil {
namespace {

/// What is told of a failed stage.
struct StageTexts {
    const char* first;
    const char* watch;
    const char* webWatch;
};

StageTexts textsOf(Stage stage) {
    switch (stage) {
    case Stage::Scan:
        return {"🚨 (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!",
                "லெக்சர் பிழை: ", "🚨 லெக்சர் பிழை (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!"};
    case Stage::Parse:
        return {"🚨 (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!",
                "பார்சர் பிழை: ", "🚨 பார்சர் பிழை (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!"};
    case Stage::Generate: break;
    }
    return {"🚨 (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!",
            "ஜெனரேட்டர் பிழை: ", "🚨 ஜெனரேட்டர் பிழை (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!"};
}

/// Runs one stage; what leaves it without a box tells which stage it was.
template <class Work> auto runStage(Stage stage, Work work) {
    try {
        return work();
    } catch (const Fault& fault) {
        if (fault.form == FaultForm::Box) {
            throw;
        }
        throw StageFailure(stage, messageOf(fault));
    } catch (const std::exception& exception) {
        throw StageFailure(stage, exception.what());
    }
}

} // namespace

void parseSource(SourceFile& source, const std::vector<std::string>& moduleDirectories) {
    std::vector<Token> tokens = runStage(Stage::Scan, [&] { return Lexer(source.text, source.path).tokenize(); });
    runStage(Stage::Parse, [&] {
        source.parser = std::make_unique<Parser>(std::move(tokens), source.text, source.path, moduleDirectories);
        source.program = source.parser->parse();
    });
}

OutputText generateText(const SourceFile& source) {
    return runStage(Stage::Generate, [&] {
        Generator generator(source.program, source.parser->functions(), source.parser->structs(),
                            source.parser->abstractStructs(), source.text, source.path);
        std::string text = generator.generate();
        return OutputText{std::move(text), generator.runtimeLength()};
    });
}

bool isWebProgram(const Program& program) {
    return std::any_of(program.statements.begin(), program.statements.end(), [](const StatementPtr& statement) {
        return dynamic_cast<const WebAppNode*>(statement.get()) != nullptr;
    });
}

void reportFirstFailure(const StageFailure& failure) {
    std::cerr << style::RED << textsOf(failure.stage).first << style::RESET << "\n";
}

void reportWatchFailure(const StageFailure& failure) {
    std::cerr << textsOf(failure.stage).watch << failure.what() << std::endl;
}

void reportWebWatchFailure(const StageFailure& failure) {
    std::cerr << style::RED << textsOf(failure.stage).webWatch << style::RESET << "\n";
}

} // namespace pozhil
