#include "worker.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;

constexpr std::size_t FIRST = 10;
constexpr std::size_t BAD = 13;
constexpr std::size_t END = 20;
constexpr unsigned SECONDS = 2;

/// Does nothing for any input but one.
template <class Action> std::optional<Failure> runWithOneBadInput(Action action) {
    std::size_t input = FIRST;
    return runInWorker(
        FIRST, END,
        [&] {
            if (input++ == BAD) {
                action();
            }
        },
        SECONDS);
}

/// Whether the test is built with the address sanitizer, which alone finds what these tests let go wrong.
constexpr bool SANITIZED =
#if defined(__SANITIZE_ADDRESS__)
    true;
#else
    false;
#endif

template <class Action> void expectFailure(Action action, const std::string& reason) {
    const auto failure = runWithOneBadInput(action);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->input, BAD);
    EXPECT_THAT(failure->reason, HasSubstr(reason));
}

TEST(Worker, DoesAllInputs) {
    EXPECT_FALSE(runWithOneBadInput([] {}));
}

TEST(Worker, NamesTheInputThatEndsBySignal) {
    expectFailure([] { std::raise(SIGKILL); }, "signal 9");
}

TEST(Worker, NamesTheInputThatLeavesTheProcess) {
    expectFailure([] { std::_Exit(1); }, "exit with status 1");
}

TEST(Worker, TakesNoEarlyExitForAGoodEnd) {
    expectFailure([] { std::_Exit(0); }, "exit with status 0");
}

TEST(Worker, NamesTheInputThatNeverEnds) {
    expectFailure(
        [] {
            for (volatile bool forever = true; forever;) {
            }
        },
        "no end in time");
}

TEST(Worker, NamesTheInputThatLeavesAnException) {
    expectFailure([] { throw 1; }, "signal 6");
}

TEST(Worker, NamesTheInputThatReadsWhatIsFreed) {
    if (!SANITIZED) {
        GTEST_SKIP() << "built without sanitizers";
    }
    expectFailure(
        [] {
            auto* numbers = new std::vector<int>(3, 1);
            volatile int* freed = numbers->data();
            delete numbers;
            std::_Exit(*freed);
        },
        "finding of the sanitizers");
}

TEST(Worker, NamesTheInputThatOverflowsANumber) {
    if (!SANITIZED) {
        GTEST_SKIP() << "built without sanitizers";
    }
    expectFailure(
        [] {
            volatile int number = std::numeric_limits<int>::max();
            number = number + 1;
        },
        "finding of the sanitizers");
}

TEST(Worker, NamesTheInputThatLeaks) {
    if (!SANITIZED) {
        GTEST_SKIP() << "built without sanitizers";
    }
    expectFailure(
        [] {
            // Of several, a copy of the last address may still lie somewhere, but not of all.
            for (int round = 0; round < 10; ++round) {
                static_cast<void>(std::make_unique<std::vector<int>>(1000).release());
            }
        },
        "leak");
}

} // namespace
