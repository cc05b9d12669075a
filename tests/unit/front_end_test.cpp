#include "driver/console/stage_report.h"
#include "front_end/front_end.h"
#include "support/generating.h"

#include <string>

#include <gtest/gtest.h>

using namespace pozhil;

namespace {

std::string told(void (*report)(const StageFailure&), Stage stage) {
    testing::internal::CaptureStderr();
    report(StageFailure(stage, "காரணம்"));
    return testing::internal::GetCapturedStderr();
}

std::string red(const std::string& text) {
    return "\x1b[1;31m" + text + "\x1b[0m\n";
}

TEST(StageFailures, OfTheFirstCompileTellTheStage) {
    EXPECT_EQ(told(reportFirstFailure, Stage::Scan),
              red("🚨 (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!"));
    EXPECT_EQ(told(reportFirstFailure, Stage::Parse), red("🚨 (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!"));
    EXPECT_EQ(told(reportFirstFailure, Stage::Generate), red("🚨 (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!"));
}

TEST(StageFailures, WhileAConsoleProgramIsWatchedTellTheCauseToo) {
    EXPECT_EQ(told(reportWatchFailure, Stage::Scan), "லெக்சர் பிழை: காரணம்\n");
    EXPECT_EQ(told(reportWatchFailure, Stage::Parse), "பார்சர் பிழை: காரணம்\n");
    EXPECT_EQ(told(reportWatchFailure, Stage::Generate), "ஜெனரேட்டர் பிழை: காரணம்\n");
}

TEST(StageFailures, WhileAnApplicationIsWatchedTellTheStage) {
    EXPECT_EQ(told(reportWebWatchFailure, Stage::Scan),
              red("🚨 லெக்சர் பிழை (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!"));
    EXPECT_EQ(told(reportWebWatchFailure, Stage::Parse),
              red("🚨 பார்சர் பிழை (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!"));
    EXPECT_EQ(told(reportWebWatchFailure, Stage::Generate),
              red("🚨 ஜெனரேட்டர் பிழை (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!"));
}

TEST(WebProgram, IsOneThatDeclaresAnApplicationAtTopLevel) {
    Program program;
    EXPECT_FALSE(isWebProgram(program));
    program.statements.push_back(nullptr);
    program.statements.push_back(test::assignment("அ", test::number("1")));
    EXPECT_FALSE(isWebProgram(program));
    program.statements.push_back(test::make<WebAppNode>("செயலி", nullptr, nullptr, nullptr, nullptr));
    EXPECT_TRUE(isWebProgram(program));
}

} // namespace
