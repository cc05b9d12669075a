#include "engine_support.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

using namespace pozhil::engine;

namespace {

Value read(const std::string& written) {
    return number(makeText(written), "1:0-1");
}

int faultOfReading(const std::string& written) {
    return faultOf([&] { read(written); });
}

std::string printed(const char* format, double number) {
    char text[64];
    std::snprintf(text, sizeof(text), format, number);
    return text;
}

TEST(Decimals, PrintInTheirShortestForm) {
    EXPECT_EQ(form(0.1 + 0.2), "0.3");
    EXPECT_EQ(form(187.0 / 3), "62.3333333333333");
    EXPECT_EQ(form(2.0), "2");
    EXPECT_EQ(form(-0.0), "0");
    EXPECT_EQ(form(-1.5), "-1.5");
    EXPECT_EQ(form(0.0001), "0.0001");
    EXPECT_EQ(form(0.00001), "1e-05");
    EXPECT_EQ(form(999999999999999.0), "999999999999999");
    EXPECT_EQ(form(1e15), "1e+15");
    EXPECT_EQ(form(1e20), "1e+20");
    EXPECT_EQ(form(123456789.125), "123456789.125");
    EXPECT_EQ(form(std::numeric_limits<double>::infinity()), "முடிவிலி");
    EXPECT_EQ(form(-std::numeric_limits<double>::infinity()), "-முடிவிலி");
}

TEST(Decimals, PrintAsPrintfDoes) {
    std::mt19937_64 random(1);
    for (int round = 0; round < 200'000; ++round) {
        double decimal = 0;
        if (round % 2 == 0) {
            const std::uint64_t bits = random();
            std::memcpy(&decimal, &bits, sizeof(decimal));
        } else {
            // Around whole numbers, and with few digits.
            decimal = std::ldexp(static_cast<double>(static_cast<std::int32_t>(random())),
                                 static_cast<int>(random() % 24) - 12);
        }
        if (std::isfinite(decimal) && decimal != 0) {
            ASSERT_EQ(form(decimal), printed("%.15g", decimal));
        }
    }
}

TEST(WholeNumbers, PrintPlainly) {
    EXPECT_EQ(form(0), "0");
    EXPECT_EQ(form(std::numeric_limits<Whole>::min()), "-9223372036854775808");
    EXPECT_EQ(form(std::numeric_limits<Whole>::max()), "9223372036854775807");
}

TEST(ReadNumbers, AreWholeOrDecimal) {
    EXPECT_TRUE(read("12").is(Tag::Whole));
    EXPECT_EQ(read("012").whole(), 12);
    EXPECT_EQ(read("-12").whole(), -12);
    EXPECT_EQ(read("+7").whole(), 7);
    EXPECT_TRUE(read("12.0").is(Tag::Decimal));
    EXPECT_EQ(read("12.5").decimal(), 12.5);
    EXPECT_EQ(read("-.5").decimal(), -0.5);
    EXPECT_EQ(read("5.").decimal(), 5.0);
    EXPECT_EQ(read("1e3").decimal(), 1000.0);
    EXPECT_EQ(read("1.5E-2").decimal(), 0.015);
    EXPECT_EQ(read(" \t12\r\n").whole(), 12);
    EXPECT_EQ(read("\u00A012\u3000").whole(), 12);
}

TEST(ReadNumbers, MayBeWrittenInTamilDigits) {
    EXPECT_EQ(read("௧௨").whole(), 12);
    EXPECT_EQ(read("-௦௯.௫").decimal(), -9.5);
    EXPECT_EQ(read("௧2").whole(), 12);
}

TEST(ReadNumbers, KeepToTheLimits) {
    EXPECT_EQ(read("9223372036854775807").whole(), std::numeric_limits<Whole>::max());
    EXPECT_EQ(read("-9223372036854775808").whole(), std::numeric_limits<Whole>::min());
    EXPECT_EQ(faultOfReading("9223372036854775808"), 613);
    EXPECT_EQ(faultOfReading("-9223372036854775809"), 613);
    EXPECT_EQ(faultOfReading("1e400"), 623);
    EXPECT_EQ(read("1e-400").decimal(), 0);
    EXPECT_EQ(read("9223372036854775808.0").decimal(), 9223372036854775808.0);
}

TEST(ReadNumbers, AreTheWholeText) {
    for (const char* const written : {"",      " ",    "abc", "12a", "1 2",   "--1", "+", ".",   "e5", "1e",    "1e+",
                                      "1.2.3", "0x10", "inf", "nan", "1,000", "௧௰",  "௱", "1௧a", "௺",  "\uFFFD"}) {
        EXPECT_EQ(faultOfReading(written), 612) << written;
    }
    EXPECT_EQ(faultOfReading(std::string("1\0", 2)), 612);
    EXPECT_EQ(messageOf([] { read("பன்னிரண்டு"); }), "\"பன்னிரண்டு\" என்ற உரை ஓர் எண் அல்ல.");
    // A long text is told by its beginning.
    const std::string message = messageOf([] { read(std::string(1'000, 'x')); });
    EXPECT_LT(message.size(), 200U);
}

TEST(ReadNumbers, AreThemselves) {
    EXPECT_EQ(number(5, nullptr).whole(), 5);
    EXPECT_EQ(number(5.5, nullptr).decimal(), 5.5);
    EXPECT_EQ(faultOf([] { number(true, nullptr); }), 614);
    EXPECT_EQ(faultOf([] { number(list({}), nullptr); }), 614);
    EXPECT_EQ(messageOf([] { number(Value(), nullptr); }), "வெறுமை என்பதை எண்ணாக மாற்ற முடியாது.");
}

TEST(ReadNumbers, AgreeWithTheCLibrary) {
    std::mt19937 random(2);
    const std::string characters = "0123456789+-.e ";
    int numbers = 0;
    for (int round = 0; round < 300'000; ++round) {
        std::string written;
        for (std::size_t count = random() % 6 + 1; count > 0; --count) {
            written += characters[random() % characters.size()];
        }
        const std::size_t last = written.find_last_not_of(' ');
        const std::string core = last == std::string::npos ? "" : written.substr(0, last + 1);
        char* end = nullptr;
        const double expected = std::strtod(core.c_str(), &end);
        if (core.empty() || *end != '\0') {
            ASSERT_EQ(faultOfReading(written), 612) << written;
            continue;
        }
        // Five digits of an exponent may be too many.
        if (std::isinf(expected)) {
            ASSERT_EQ(faultOfReading(written), 623) << written;
            continue;
        }
        ++numbers;
        const Value value = read(written);
        ASSERT_EQ(value.is(Tag::Decimal), core.find_first_of(".e") != std::string::npos) << written;
        ASSERT_EQ(value.is(Tag::Decimal) ? value.decimal() : static_cast<double>(value.whole()), expected) << written;
    }
    EXPECT_GT(numbers, 10'000);
}

TEST(ReadNumbers, ReadBackWhatIsPrinted) {
    std::mt19937_64 random(3);
    for (int round = 0; round < 50'000; ++round) {
        const auto whole = static_cast<Whole>(random());
        ASSERT_EQ(read(form(whole)).whole(), whole);
        const std::uint64_t bits = random();
        double decimal = 0;
        std::memcpy(&decimal, &bits, sizeof(decimal));
        if (std::isfinite(decimal)) {
            ASSERT_EQ(form(read(form(decimal))), form(decimal));
        }
    }
}

} // namespace
