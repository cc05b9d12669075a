#include "engine/list.h"
#include "engine_run_support.h"

#include <cstdlib>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
constexpr bool HAS_SANITIZERS = true;
#else
constexpr bool HAS_SANITIZERS = false;
#endif

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// Gives standard input this text.
void feed(const std::string& text) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    ASSERT_EQ(write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    close(ends[1]);
    dup2(ends[0], STDIN_FILENO);
}

TEST(Run, PrintsAndEndsWell) {
    const ChildResult result = resultOf([] {
        print({text("வணக்கம் "), 5, text(" "), list({1, text("அ")})});
        print({});
        print({true});
    });
    EXPECT_EQ(result.output, "வணக்கம் 5 [1, அ]\n\nமெய்\n");
    EXPECT_EQ(result.exitStatus, 0);
}

TEST(Run, PrintsMuchInOrder) {
    const ChildResult result = resultOf([] {
        for (int i = 0; i < 100'000; ++i) {
            print({i});
        }
    });
    EXPECT_THAT(result.output, StartsWith("0\n1\n2\n"));
    EXPECT_EQ(result.output.substr(result.output.size() - 12), "99998\n99999\n");
}

TEST(Run, ShowsTheFaultThatNobodyCatches) {
    const ChildResult result = resultOf([] {
        print({text("முன்பு")});
        get(list({1}), Value(9), "3:21-27");
        print({text("பிறகு")});
    });
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.output, StartsWith("முன்பு\n\n----"));
    EXPECT_THAT(result.output, Not(HasSubstr("பிறகு")));
    EXPECT_THAT(result.output, HasSubstr("📂 கோப்பு  : பாடம்.பொழில்\n  📍 இடம்    : வரி 3\n"));
    EXPECT_THAT(result.output, HasSubstr("    03 |  அச்சிடு(ப[9])\n"));
    EXPECT_THAT(result.output, HasSubstr("பட்டியலில் 9 என்ற இடம் இல்லை; அதன் நீளம் 1."));
    EXPECT_THAT(result.output, Not(HasSubstr("வந்த வழி")));
    // The sanitizer warns of the stack.
    EXPECT_EQ(HAS_SANITIZERS ? "" : result.errors, "");
}

void inner(Place at) {
    const Frame frame("உள்ளே", at);
    get(list({1}), Value(9), "1/2:29-35");
}
void outer(Place at) {
    const Frame frame("வெளியே", at);
    inner("1/1:0-3");
}

TEST(Run, TellsTheFileThatIsToBlame) {
    const ChildResult result = resultOf([] { outer("3:0-9"); });
    EXPECT_THAT(result.output, HasSubstr("கோப்பு  : பாகம்.பொழில்\n  📍 இடம்    : வரி 2\n"));
    EXPECT_THAT(result.output, HasSubstr("    02 |      திரும்பு ப[9]\n"));
    EXPECT_THAT(result.output, HasSubstr("'உள்ளே' அழைக்கப்பட்ட இடம்: பாகம்.பொழில், வரி 1\n"
                                         "     'வெளியே' அழைக்கப்பட்ட இடம்: பாடம்.பொழில், வரி 3\n"));
}

TEST(Run, FaultsCanBeCaughtAndTheWayIsForgotten) {
    const ChildResult result = resultOf([] {
        try {
            outer("3:0-9");
        } catch (const Fault& fault) {
            print({fault.message()});
        }
        print({Frame::innermost == nullptr});
        inner("3:0-9");
    });
    EXPECT_THAT(result.output, StartsWith("பட்டியலில் 9 என்ற இடம் இல்லை; அதன் நீளம் 1.\nமெய்\n"));
    EXPECT_THAT(result.output, HasSubstr("'உள்ளே'"));
    EXPECT_THAT(result.output, Not(HasSubstr("'வெளியே'")));
}

TEST(Run, StrangePlacesDoNoHarm) {
    const ChildResult result = resultOf([] {
        for (const Place place : {Place(nullptr), "", "7:1-2", "9/1:1-2", "3:50-60", "3:9-2"}) {
            print({messageOf([place] { get(list({}), Value(0), place); }).empty()});
        }
        get(list({}), Value(0), "99999:1-2");
    });
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.output, StartsWith("பொய்\nபொய்\nபொய்\nபொய்\nபொய்\nபொய்\n\n---"));
    EXPECT_THAT(result.output, HasSubstr("வரி 99999"));
}

TEST(Run, CallsNestDeeply) {
    const ChildResult result = resultOf([] { print({depthReached(50'000, "1:0-3")}); });
    EXPECT_EQ(result.output, "50000\n");
    EXPECT_EQ(result.exitStatus, 0);
}

TEST(Run, EndlessCallsAreTold) {
    const ChildResult result = resultOf([] { depthReached(-1, "1:0-3"); });
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.output, HasSubstr("'ஆழம்' செயல்"));
    EXPECT_THAT(result.output, HasSubstr("நடுவில் இன்னும்"));
    EXPECT_THAT(result.output, HasSubstr("'ஆழம்' அழைக்கப்பட்ட இடம்: பாடம்.பொழில், வரி 1\n"));
}

TEST(Run, EndlessCallsCanBeCaughtAgainAndAgain) {
    const ChildResult result = resultOf([] {
        for (int i = 0; i < 2; ++i) {
            try {
                depthReached(-1, "1:0-3");
            } catch (const Fault&) {
                print({text("பிடித்தேன்")});
            }
        }
        print({depthReached(1000, "1:0-3")});
    });
    EXPECT_EQ(result.output, "பிடித்தேன்\nபிடித்தேன்\n1000\n");
}

TEST(Run, ReadsLines) {
    const ChildResult result = resultOf([] {
        feed("ஒன்று\r\n\nக\xE0\xAF\x86\xE0\xAE\xBE\nகடைசி");
        const Place here = "1:0-1";
        print({readLine(text("யார்? "), here), text("|"), readLine(5, here), text("|")});
        print({equal(readLine(here), text("கொ"))});
        print({readLine(here), text("|"), readLine(here), text("|"), readLine(here)});
    });
    EXPECT_EQ(result.output, "யார்? 5ஒன்று||\nமெய்\nகடைசி||\n");
}

TEST(Run, FlushesBeforeItWaitsForInput) {
    int question[2];
    ASSERT_EQ(pipe(question), 0);
    const ChildResult result = runInChild([&] {
        dup2(question[1], STDOUT_FILENO);
        int input[2];
        if (pipe(input) != 0) {
            _exit(3);
        }
        dup2(input[0], STDIN_FILENO);
        const pid_t asker = fork();
        if (asker == 0) {
            // Answers only once it has read the whole question.
            char seen[2] = {};
            const bool isAsked = read(question[0], seen, 2) == 2;
            const ssize_t answered = isAsked ? write(input[1], "a\n", 2) : -1;
            _exit(answered == 2 ? 0 : 1);
        }
        _exit(run(programOf([] { readLine(text("? "), "1:0-1"); })));
    });
    EXPECT_EQ(result.exitStatus, 0);
}

void printNumbers() {
    for (int i = 0; i < 5; ++i) {
        print({randomNumber(1, 1'000'000, "1:0-1")});
    }
}

TEST(Run, ChanceIsRepeatedForThoseWhoAskForIt) {
    const auto chooseSeed = [] { setenv("POZHIL_SEED", "15", 1); };
    const auto chooseAnother = [] { setenv("POZHIL_SEED", "16", 1); };
    const std::string numbers = resultOf(printNumbers, chooseSeed).output;
    EXPECT_EQ(resultOf(printNumbers, chooseSeed).output, numbers);
    EXPECT_NE(resultOf(printNumbers, chooseAnother).output, numbers);
    EXPECT_NE(resultOf(printNumbers).output, resultOf(printNumbers).output);
}

TEST(Run, TellsMistakesOfOursAsOurs) {
    const ChildResult result = resultOf([] { throw std::runtime_error("oops"); });
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.output, HasSubstr("பொழி-699"));
}

/// NOLINTNEXTLINE(bugprone-exception-escape): it is what the test is about
void throwWhereNobodyMay() noexcept {
    get(list({}), Value(0), "3:0-9");
}

TEST(Run, TellsWhatCannotBeCaught) {
    const ChildResult result = resultOf([] {
        print({text("முன்பு")});
        throwWhereNobodyMay();
    });
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.output, StartsWith("முன்பு\n\n---"));
    EXPECT_THAT(result.output, HasSubstr("பொழி-699"));
    EXPECT_THAT(result.errors, Not(HasSubstr("terminate called")));
}

} // namespace
