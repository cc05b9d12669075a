#include "engine/list.h"
#include "engine/page.h"
#include "engine/running_faults.h"
#include "engine/stopping.h"
#include "engine/value_faults.h"
#include "engine_run_support.h"

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr Place HERE = "3:21-27";

/// What the page was told.
std::vector<ReportedFault> told;

void note(const ReportedFault& fault) {
    told.push_back(fault);
}

class Page : public testing::Test {
protected:
    Page() {
        told.clear();
        tellFaultsBy(note);
    }
    ~Page() override { tellFaultsBy(nullptr); }
    void SetUp() override {
        ASSERT_TRUE(startPage(program));
        ASSERT_THAT(told, IsEmpty());
    }

    /// The running program outlives the test that starts it.
    inline static const ProgramInfo program = programOf([] {});
};

Value inner(Place at) {
    const Frame frame("உள்ளே", at);
    return get(list({1}), Value(9), HERE);
}

Value fails(const Closure& /*own*/, Value* /*none*/, Place place) {
    const Frame frame("வெளியே", place);
    return inner("2:0-5");
}
constexpr FunctionInfo FAILS = {"வெளியே", fails, 0, 0};

/// What handlers of these tests note.
Value noted;

Value notes(const Closure& /*own*/, Value* arguments, Place /*place*/) {
    noted = arguments[0];
    return Value();
}
constexpr FunctionInfo NOTES = {"குறி", notes, 1, 0};

Value countsUp(const Closure& /*own*/, Value* /*none*/, Place place) {
    noted = add(noted, 1, place);
    return Value();
}
constexpr FunctionInfo COUNTS_UP = {"கூட்டு", countsUp, 0, 0};

Value twoWanted(const Closure& /*own*/, Value* /*arguments*/, Place /*place*/) {
    return Value();
}
constexpr FunctionInfo WANTS_TWO = {"இரண்டு", twoWanted, 2, 0};

TEST_F(Page, TellsAFaultInPartsAndWhole) {
    EXPECT_FALSE(guarded([] { callHandler(function(FAILS), "1:0-4"); }));
    ASSERT_EQ(told.size(), 1U);
    const ReportedFault& fault = told.front();
    EXPECT_EQ(fault.number, NO_SUCH_INDEX);
    EXPECT_EQ(fault.text.code, "பொழி-642");
    EXPECT_EQ(fault.text.message, "பட்டியலில் 9 என்ற இடம் இல்லை; அதன் நீளம் 1.");
    EXPECT_EQ(fault.text.excerpt.file, "பாடம்.பொழில்");
    EXPECT_EQ(fault.text.excerpt.line, 3);
    EXPECT_EQ(fault.text.excerpt.lineText, "அச்சிடு(ப[9])");
    ASSERT_EQ(fault.text.way.size(), 2U);
    EXPECT_EQ(fault.text.way[0].function, "உள்ளே");
    EXPECT_EQ(fault.text.way[1].function, "வெளியே");
    EXPECT_EQ(fault.text.way[1].line, 1);
}

TEST_F(Page, WithoutTextsOfItsSourcesTellsWhereAFaultIs) {
    constexpr Source NAMES_ALONE[] = {{"பாடம்.பொழில்", nullptr, 0}, {"பாகம்.பொழில்", nullptr, 0}};
    ProgramInfo published = programOf([] {});
    published.sources = NAMES_ALONE;
    ASSERT_TRUE(startPage(published));
    guarded([] { callHandler(function(FAILS), "1:0-4"); });
    ASSERT_EQ(told.size(), 1U);
    const pozhil::report::Excerpt& excerpt = told.front().text.excerpt;
    EXPECT_EQ(excerpt.file, "பாடம்.பொழில்");
    EXPECT_EQ(excerpt.line, 3);
    EXPECT_EQ(excerpt.lineText, "");
    EXPECT_TRUE(excerpt.isHidden);
    EXPECT_EQ(told.front().text.way[1].line, 1);
}

TEST_F(Page, TellsTheBoxOfTheConsoleWithoutColours) {
    guarded([] { callHandler(function(FAILS), "1:0-4"); });
    const ChildResult console = resultOf([] { callHandler(function(FAILS), "1:0-4"); });
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().box, console.output);
    EXPECT_THAT(told.front().box, HasSubstr("'வெளியே' அழைக்கப்பட்ட இடம்: பாடம்.பொழில், வரி 1\n"));
}

TEST_F(Page, GoesOnAfterAFault) {
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(guarded([] { inner("1:0-4"); }));
    }
    EXPECT_EQ(told.size(), 3U);
    EXPECT_EQ(told.back().text.way.size(), 1U) << "the calls of earlier faults are over";
    noted = 1;
    EXPECT_TRUE(guarded([] { callHandler(function(COUNTS_UP), HERE); }));
    EXPECT_EQ(form(noted), "2");
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(Page, TellsWhateverIsThrown) {
    EXPECT_FALSE(guarded([] { throw std::bad_alloc(); }));
    EXPECT_FALSE(guarded([] { throw std::length_error("too long"); }));
    EXPECT_FALSE(guarded([] { throw std::runtime_error("ours"); }));
    EXPECT_FALSE(guarded([] { throw 7; }));
    ASSERT_EQ(told.size(), 4U);
    EXPECT_EQ(told[0].number, OUT_OF_MEMORY);
    EXPECT_EQ(told[1].number, OUT_OF_MEMORY);
    EXPECT_EQ(told[2].number, FAULT_OF_OURS);
    EXPECT_THAT(told[2].box, HasSubstr("ours"));
    EXPECT_EQ(told[3].number, FAULT_OF_OURS);
}

TEST_F(Page, LeavesAFaultThatIsCaughtAlone) {
    EXPECT_TRUE(guarded([] {
        try {
            const Attempt attempt;
            inner(HERE);
        } catch (const Fault& fault) {
            noted = fault.message();
        }
    }));
    EXPECT_THAT(told, IsEmpty());
    EXPECT_THAT(form(noted), HasSubstr("9 என்ற இடம் இல்லை"));
}

TEST_F(Page, WorkInsideOfWorkHasItsOwnFaults) {
    EXPECT_TRUE(guarded([] {
        const Attempt attempt;
        const Frame frame("வரை", "1:0-4");
        EXPECT_FALSE(guarded([] { inner("2:0-5"); }));
        EXPECT_EQ(Frame::innermost, &frame);
        EXPECT_EQ(Attempt::running, 1);
    }));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().text.way.size(), 1U) << "neither the outer calls nor an outer attempt are its own";
}

TEST_F(Page, ForgetsCallsThatNeverReturned) {
    // As a trap of the processor leaves them.
    alignas(Frame) unsigned char left[sizeof(Frame)];
    new (left) Frame("மறைந்தது", HERE);
    Attempt::running = 1;
    EXPECT_FALSE(guarded([] { inner("2:0-5"); }));
    Attempt::running = 0;
    Frame::innermost = nullptr;
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().text.way.size(), 1U);
}

TEST_F(Page, EndlessCallsAreTold) {
    EXPECT_FALSE(guarded([] { depthReached(-1, "1:0-3"); }));
    EXPECT_TRUE(guarded([] { EXPECT_EQ(depthReached(10'000, "1:0-3"), 10'000); }));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().number, TOO_DEEP);
}

/// Takes steps for ever, and catches whatever the language can catch.
void goOnForEver(Place place) {
    const Frame frame("முடிவிலி", "1:0-4");
    for (;;) {
        try {
            const Attempt attempt;
            step(place);
        } catch (const Fault& fault) {
            noted = fault.message();
        }
    }
}

TEST_F(Page, AFaultInAPartLeavesTheRestAlone) {
    noted = 0;
    EXPECT_TRUE(guarded([] {
        guardedPart([] {
            const Frame frame("பகுதி", "1:0-4");
            inner("2:0-5");
        });
        EXPECT_EQ(Frame::innermost, nullptr);
        guardedPart([] { throw std::bad_alloc(); });
        guardedPart([] { guardedPart([] { throw 7; }); });
        guardedPart([] { noted = 1; });
    }));
    EXPECT_EQ(form(noted), "1");
    ASSERT_EQ(told.size(), 3U);
    EXPECT_EQ(told[0].number, NO_SUCH_INDEX);
    EXPECT_EQ(told[0].text.way.size(), 2U);
    EXPECT_EQ(told[1].number, OUT_OF_MEMORY);
    EXPECT_EQ(told[2].number, FAULT_OF_OURS);
}

class Patience : public Page {
protected:
    Patience() { setPatience(0.05); }
    ~Patience() override { setPatience(5); }
};

TEST_F(Patience, WorkThatNeverEndsIsStopped) {
    noted = Value();
    EXPECT_FALSE(guarded([] { goOnForEver(HERE); }));
    EXPECT_TRUE(noted.is(Tag::Nothing)) << "nothing catches it";
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().number, ENDLESS_WORK);
    EXPECT_TRUE(told.front().isStop);
    EXPECT_EQ(told.front().text.excerpt.line, 3);
    ASSERT_EQ(told.front().text.way.size(), 1U) << "although somebody attempts it";
    EXPECT_EQ(told.front().text.way[0].function, "முடிவிலி");
    EXPECT_EQ(Attempt::running, 0);
    EXPECT_FALSE(guarded([] { inner("2:0-5"); }));
    EXPECT_FALSE(told.back().isStop);
}

TEST_F(Patience, EachPieceOfWorkHasItsOwnTime) {
    const auto workFor = [](double seconds) {
        const double end = secondsSince1970(HERE) + seconds;
        while (secondsSince1970(HERE) < end) {
            step(HERE);
        }
    };
    setPatience(0.5);
    for (int piece = 0; piece < 3; ++piece) {
        EXPECT_TRUE(guarded([&] { workFor(0.2); }));
    }
    EXPECT_TRUE(guarded([&] {
        workFor(0.2);
        EXPECT_TRUE(guarded([&] { workFor(0.2); }));
        EXPECT_FALSE(guarded([] { goOnForEver(HERE); }));
        workFor(0.2);
    })) << "what it waits for isn't its own work";
    EXPECT_EQ(told.size(), 1U);
}

TEST_F(Patience, EachPartHasItsOwnTime) {
    EXPECT_TRUE(guarded([] {
        for (int part = 0; part < 3; ++part) {
            guardedPart([] {
                const double end = secondsSince1970(HERE) + 0.03;
                while (secondsSince1970(HERE) < end) {
                    step(HERE);
                }
            });
        }
        EXPECT_THAT(told, IsEmpty());
        guardedPart([] { goOnForEver(HERE); });
        guardedPart([] { inner("2:0-5"); });
    }));
    ASSERT_EQ(told.size(), 2U);
    EXPECT_TRUE(told[0].isStop);
    EXPECT_EQ(told[1].number, NO_SUCH_INDEX);
}

TEST_F(Patience, FewStepsThatTakeLongAreWorkAsWell) {
    EXPECT_FALSE(guarded([] {
        for (int turn = 0; turn < 100000; ++turn) {
            step(HERE);
        }
        for (;;) {
            const double end = secondsSince1970(HERE) + 0.0001;
            while (secondsSince1970(HERE) < end) {
            }
            step(HERE);
        }
    }));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told.front().number, ENDLESS_WORK);
}

TEST_F(Page, HandlersGetTheNewValueIfTheyWantIt) {
    noted = 1;
    callHandler(function(COUNTS_UP), Value(99), HERE);
    EXPECT_EQ(form(noted), "2") << "it takes no value";
    callHandler(function(NOTES), text("புதிது"), HERE);
    EXPECT_EQ(form(noted), "புதிது");
    EXPECT_EQ(faultOf([] { callHandler(function(NOTES), HERE); }), WRONG_COUNT);
    EXPECT_EQ(faultOf([] { callHandler(function(WANTS_TWO), 1, HERE); }), WRONG_COUNT);
}

TEST_F(Page, HandlersAreFunctions) {
    for (const Value& wrong : {Value(), Value(5), text("கூட்டு"), list({})}) {
        EXPECT_EQ(faultOf([&] { callHandler(wrong, HERE); }), NOT_A_FUNCTION);
        EXPECT_EQ(faultOf([&] { callHandler(wrong, 1, HERE); }), NOT_A_FUNCTION);
    }
}

TEST_F(Page, ShowsValuesAsPrinted) {
    EXPECT_EQ(pageText(text("வணக்கம்")), "வணக்கம்");
    EXPECT_EQ(pageText(0.1 + 0.2), "0.3");
    EXPECT_EQ(pageText(list({1, text("அ"), true})), "[1, அ, மெய்]");
}

TEST_F(Page, PropertiesTakeTheirKindsOnly) {
    EXPECT_EQ(pageNumber(5, HERE), 5.0);
    EXPECT_EQ(pageNumber(2.5, HERE), 2.5);
    for (const Value& wrong : {Value(), Value(true), text("5"), list({5})}) {
        EXPECT_EQ(faultOf([&] { pageNumber(wrong, HERE); }), NUMBER_EXPECTED);
    }
    EXPECT_EQ(messageOf([] { pageNumber(text("5"), HERE); }), "இங்கே எண் வேண்டும்; கிடைத்தது உரை.");
}

TEST_F(Page, ComparesAsTheLanguageDoes) {
    EXPECT_TRUE(pageEqual(1, 1.0));
    EXPECT_TRUE(pageEqual(list({1, text("அ")}), list({1, text("அ")})));
    EXPECT_FALSE(pageEqual(1, text("1")));
}

TEST(PageStart, TellsAFaultOfTheStatementsAndGoesOn) {
    const ChildResult result = runInChild([] {
        static const ProgramInfo program = programOf([] {
            print({text("முன்பு")});
            inner("1:0-4");
        });
        const bool isStarted = startPage(program);
        const bool goesOn = guarded([] { print({text("பிறகு")}); });
        _exit(!isStarted && goesOn ? 0 : 1);
    });
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(result.output, "முன்பு\nபிறகு\n");
    EXPECT_THAT(result.errors, HasSubstr("பொழி-642")) << "without a teller the console is told";
    EXPECT_THAT(result.errors, Not(HasSubstr("\033")));
}

TEST(PageStart, TellsEvenWhatEndsThePage) {
    const ChildResult result = runInChild([] {
        static const ProgramInfo program = programOf([] {});
        startPage(program);
        guarded([]() noexcept { inner(HERE); });
    });
    EXPECT_NE(result.exitStatus, 0);
    EXPECT_THAT(result.errors, HasSubstr("பொழி-699"));
}

} // namespace
