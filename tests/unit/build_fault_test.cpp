#include "driver/server/build_fault.h"

#include <chrono>
#include <future>
#include <thread>

#include <gmock/gmock.h>

using namespace pozhil;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

const BuildFault FAULT = {"பொழி-203", "அ \"ஆ\".பொழில்", 4, "முதல்\nவரி"};

class Telling : public testing::Test {
protected:
    void TearDown() override {
        tellPagesOfSuccess();
        answerToPage();
    }
};

TEST_F(Telling, AllIsWellAtFirst) {
    EXPECT_EQ(answerToPage(), "{}");
}

TEST_F(Telling, FaultIsToldUntilThereIsAGoodBuild) {
    tellPages(FAULT);
    const std::string told = answerToPage();
    EXPECT_THAT(told, testing::HasSubstr(R"("code": "பொழி-203")"));
    EXPECT_THAT(told, testing::HasSubstr(R"("file": "அ \"ஆ\".பொழில்")"));
    EXPECT_THAT(told, testing::HasSubstr(R"("line": 4)"));
    EXPECT_THAT(told, testing::HasSubstr(R"("description": "முதல்\u000aவரி")"));
    EXPECT_EQ(answerToPage(), told);
    tellPagesOfSuccess();
    EXPECT_EQ(answerToPage(), "{}");
}

TEST_F(Telling, WaitingEndsWhenAPageHasAsked) {
    answerToPage(); // a page is open
    tellPages(FAULT);
    const auto begin = Clock::now();
    std::thread page([] {
        std::this_thread::sleep_for(100ms);
        answerToPage();
    });
    waitForPages(10s);
    const auto waited = Clock::now() - begin;
    page.join();
    EXPECT_GE(waited, 90ms);
    EXPECT_LT(waited, 5s);
}

TEST_F(Telling, WaitingEndsAfterItsTime) {
    answerToPage();
    tellPages(FAULT);
    const auto begin = Clock::now();
    waitForPages(50ms);
    EXPECT_GE(Clock::now() - begin, 50ms);
}

TEST_F(Telling, NobodyWaitsForWhatIsToldAlready) {
    tellPages(FAULT);
    answerToPage();
    const auto begin = Clock::now();
    waitForPages(10s);
    EXPECT_LT(Clock::now() - begin, 5s);
}

} // namespace
