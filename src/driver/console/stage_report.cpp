#include "driver/console/stage_report.h"

#include "driver/console/console_style.h"

#include <iostream>

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

} // namespace

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
