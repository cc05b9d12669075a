// What becomes of programs where memory is limited. The sanitizers take all addresses for themselves, so that these tests
// are built without them in every preset, upon the archive that programs are linked with.

#include "engine/list.h"
#include "engine_run_support.h"

#include <sys/resource.h>

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace pozhil::engine;
using testing::HasSubstr;
using testing::StartsWith;

const std::string TOLD = "நினைவகம் (Memory) தீர்ந்துவிட்டது.\n";

void limitMemory() {
    const rlimit limit = {256UL << 20U, 256UL << 20U};
    setrlimit(RLIMIT_AS, &limit);
}

[[noreturn]] void growForEver(Value& values) {
    for (;;) {
        append(values, list({1, 2, 3}), "3:0-9");
    }
}

[[noreturn]] void growForEver() {
    Value values = makeList();
    growForEver(values);
}

TEST(WantOfMemory, IsTold) {
    const ChildResult result = resultOf([] { growForEver(); }, limitMemory);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.output, HasSubstr(TOLD));
    EXPECT_THAT(result.output, HasSubstr("வரி 3"));
}

TEST(WantOfMemory, CanBeCaughtAgainAndAgain) {
    const auto start = [] {
        for (int i = 0; i < 3; ++i) {
            try {
                growForEver();
            } catch (const Fault& fault) {
                fault.beginHandler();
                print({fault.message()});
            }
        }
        print({faultOf([] { range(Whole{1} << 60U, "3:0-9"); })});
        Value longer = text("நீளமான உரை");
        print({faultOf([&] {
            for (;;) {
                addTo(longer, longer, "3:0-9");
            }
        })});
    };
    const ChildResult result = resultOf(start, limitMemory);
    EXPECT_EQ(result.output, TOLD + TOLD + TOLD + "641\n641\n");
}

TEST(WantOfMemory, CanBeCaughtWhereItIsDealtWith) {
    const auto start = [] {
        try {
            growForEver();
        } catch (const Fault& fault) {
            fault.beginHandler();
            print({fault.message()});
            try {
                growForEver();
            } catch (const Fault& another) {
                another.beginHandler();
                print({another.message()});
            }
        }
    };
    const ChildResult result = resultOf(start, limitMemory);
    EXPECT_EQ(result.output, TOLD + TOLD);
    EXPECT_EQ(result.exitStatus, 0);
}

/// What the program holds on to, so that nothing becomes free by the fault.
Value kept[3];

TEST(WantOfMemory, IsToldWhileTheProgramHoldsOnToAllOfIt) {
    const auto start = [] {
        for (Value& values : kept) {
            values = makeList();
            try {
                growForEver(values);
            } catch (const Fault&) {
                continue;
            }
        }
        growForEver();
    };
    const ChildResult result = resultOf(start, limitMemory);
    EXPECT_EQ(result.exitStatus, 1);
    EXPECT_THAT(result.output, HasSubstr("நினைவகம் (Memory) தீர்ந்துவிட்டது."));
}

TEST(WantOfMemory, OfTextsInAnotherFormIsTold) {
    const auto start = [] {
        // Signs in two parts need several times their room on the way to one.
        std::string written;
        for (int i = 0; i < 6'000'000; ++i) {
            written += "க\xE0\xAF\x86\xE0\xAE\xBE";
        }
        print({faultOf([&] { makeText(std::move(written)); })});
    };
    EXPECT_EQ(resultOf(start, limitMemory).output, "641\n");
}

TEST(Stacks, FitIntoLimitedMemory) {
    const ChildResult result = resultOf([] { print({depthReached(10'000, "1:0-3")}); }, limitMemory);
    EXPECT_EQ(result.output, "10000\n");
}

} // namespace
