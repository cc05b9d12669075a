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

std::string toldOf(void (*report)(const StageFailure&), const Fault& fault) {
    testing::internal::CaptureStderr();
    report(StageFailure(Stage::Generate, fault));
    return testing::internal::GetCapturedStderr();
}

const Fault NOT_A_FUNCTION = {பிழைவகை::பொருள்_பிழை, "பொழி-332",           "நிரல்.பொழில்", 12,          "விவரம்",
                              "  கூடு(1)",         FaultForm::StageLine, nullptr,      "நீ நினைச்சது"};

std::string red(const std::string& text) {
    return "\x1b[1;31m" + text + "\x1b[0m\n";
}

/// The only thing that the scanner fails at without a fault.
const std::string LAST_LINE =
    "  ╰── கோப்பின் கடைசி வரி டேப்பில் தொடங்குகிறது; அதைப் படித்து முடிக்க முடியவில்லை.\n"
    "\x1b[1;93m  💡 கடைசி வரியோட தொடக்கத்துல இருக்கிற டேப்பை எடுத்துட்டு, இடைவெளிகளால உள்-தள்ளு மச்சி!\x1b[0m\n";

TEST(StageFailures, OfTheFirstCompileTellTheStage) {
    EXPECT_EQ(told(reportFirstFailure, Stage::Scan),
              red("🚨 (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!") + LAST_LINE);
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
              red("🚨 லெக்சர் பிழை (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!") + LAST_LINE);
    EXPECT_EQ(told(reportWebWatchFailure, Stage::Parse),
              red("🚨 பார்சர் பிழை (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!"));
    EXPECT_EQ(told(reportWebWatchFailure, Stage::Generate),
              red("🚨 ஜெனரேட்டர் பிழை (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!"));
}

TEST(StageFailures, TellTheFaultAfterTheLineOfTheFirstCompile) {
    const std::string place = "  📍 \x1b[1;36mநிரல்.பொழில்\x1b[0m, வரி 12\n     12 |  கூடு(1)\n";
    const std::string fault =
        "  ╰── பொழி-332: அழைக்க முடியாத பொருள் (Not a Function). (விவரம்)\n  ╰── நீ நினைச்சது\n"
        "\x1b[1;93m  💡 அந்தப் பெயர்ல ஒரு செயலோ வினையோ இருக்கான்னு பாரு மச்சி; இருந்தா, கொடுக்கிற மதிப்புகளோட எண்ணிக்கையும் வகையும், உள்ளே நடக்கிற கணக்கும் சரியான்னு பாரு!\x1b[0m\n";
    EXPECT_EQ(toldOf(reportFirstFailure, NOT_A_FUNCTION),
              red("🚨 (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!") + place + fault);
    EXPECT_EQ(toldOf(reportWebWatchFailure, NOT_A_FUNCTION),
              red("🚨 ஜெனரேட்டர் பிழை (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!") + place + fault);
}

TEST(StageFailures, TellThePlaceAfterTheMessageWhileAConsoleProgramIsWatched) {
    EXPECT_EQ(toldOf(reportWatchFailure, NOT_A_FUNCTION),
              "ஜெனரேட்டர் பிழை: " + messageOf(NOT_A_FUNCTION) +
                  "\n  📍 \x1b[1;36mநிரல்.பொழில்\x1b[0m, வரி 12\n     12 |  கூடு(1)\n  ╰── நீ நினைச்சது\n");
}

TEST(StageFailures, WithoutALineNameTheFileAlone) {
    Fault fault = NOT_A_FUNCTION;
    fault.line = 0;
    fault.hint.clear();
    EXPECT_EQ(toldOf(reportWatchFailure, fault),
              "ஜெனரேட்டர் பிழை: " + messageOf(fault) + "\n  📍 \x1b[1;36mநிரல்.பொழில்\x1b[0m\n");
}

TEST(StageFailures, ShowNotMoreOfALineThanIsReadAtAGlance) {
    Fault fault = NOT_A_FUNCTION;
    fault.lineText = std::string(1000000, 'a');
    EXPECT_LT(toldOf(reportWatchFailure, fault).size(), 1000U);
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
