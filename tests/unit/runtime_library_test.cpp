// Library functions over text, files, time and input, and the state of the page.

#include "child_process.h"
#include "generator/first/runtime/runtime.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace {

using List = std::vector<std::any>;
using std::any;

std::string pieces(const std::string& text, const std::string& delimiter) {
    return fn_any_to_string(any(fn_பிளவு(text, delimiter)));
}

TEST(Split, EveryDelimiterSeparates) {
    EXPECT_EQ(pieces("அ,ஆ,இ", ","), "[அ, ஆ, இ]");
    EXPECT_EQ(pieces("a--b--", "--"), "[a, b, ]");
    EXPECT_EQ(pieces("aXXXb", "XX"), "[a, Xb]") << "left to right";
    EXPECT_EQ(fn_பிளவு("அ,ஆ,", ",").size(), 3U);
    EXPECT_EQ(std::any_cast<std::string>(fn_பிளவு("அ,ஆ,", ",").back()), "");
    EXPECT_EQ(fn_பிளவு(",", ",").size(), 2U);
}

TEST(Split, WithoutTheDelimiterIsOnePiece) {
    EXPECT_EQ(pieces("அம்மா", ","), "[அம்மா]");
    EXPECT_EQ(fn_பிளவு("", ",").size(), 1U);
}

TEST(Split, AnEmptyDelimiterNeverEnds) {
    EXPECT_TRUE(runsOn([] { fn_பிளவு("அ", ""); }, std::chrono::milliseconds(100)));
}

TEST(Replace, GoesOnBehindTheInsertedText) {
    EXPECT_EQ(fn_பதில்("அ-ஆ-இ", "-", "+"), "அ+ஆ+இ");
    EXPECT_EQ(fn_பதில்("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(fn_பதில்("aaaa", "aa", "a"), "aa");
    EXPECT_EQ(fn_பதில்("abc", "b", ""), "ac");
    EXPECT_EQ(fn_பதில்("abc", "x", "y"), "abc");
    EXPECT_EQ(fn_பதில்("", "x", "y"), "");
}

TEST(Replace, AnEmptySearchNeverEnds) {
    EXPECT_TRUE(runsOn([] { fn_பதில்("அ", "", ""); }, std::chrono::milliseconds(100)));
}

TEST(LetterCase, LeavesTamilUnchanged) {
    EXPECT_EQ(fn_பெரியஎ("aZ9 அம்மா"), "AZ9 அம்மா");
    EXPECT_EQ(fn_சிறியஎ("aZ9 அம்மா"), "az9 அம்மா");
}

TEST(Trim, AllSixBlanksAtBothEnds) {
    EXPECT_EQ(fn_சுத்தம்(" \t\n\r\f\vஅ ஆ\v\f\r\n\t "), "அ ஆ");
    EXPECT_EQ(fn_சுத்தம்("அ"), "அ");
    EXPECT_EQ(fn_சுத்தம்(" \t "), "");
    EXPECT_EQ(fn_சுத்தம்(""), "");
}

TEST(Time, Formats) {
    std::tm time{};
    time.tm_year = 109;
    time.tm_mon = 11;
    time.tm_mday = 3;
    time.tm_hour = 23;
    time.tm_min = 4;
    time.tm_sec = 5;
    EXPECT_EQ(fn_தேதி(&time), "03-12-2009");
    EXPECT_EQ(fn_நேரம்(&time), "23:04:05");
    EXPECT_EQ(fn_முழுவதும்(&time), "03-12-2009 23:04:05");
    EXPECT_EQ(fn_நேரம்_உருவாக்கு(&time, "%Y/%m"), "2009/12");
    EXPECT_EQ(fn_நேரம்_உருவாக்கு(&time, ""), "");
}

TEST(Time, ClockReadingOfAProgram) {
    const auto now = std::any([]() {
        static std::time_t t;
        t = std::time(nullptr);
        return std::localtime(&t);
    }());
    EXPECT_EQ(fn_any_to_string(now).size(), std::string("03-12-2009 23:04:05").size());
}

TEST(Input, PromptStaysOnTheLineOfTheAnswer) {
    std::istringstream answers("மலர்\n\nகடைசி");
    std::ostringstream screen;
    std::streambuf* const keyboard = std::cin.rdbuf(answers.rdbuf());
    std::streambuf* const terminal = std::cout.rdbuf(screen.rdbuf());
    const std::string first = fn_உள்ளீடு("பெயர்: ");
    const std::string second = fn_உள்ளீடு("");
    const std::string third = fn_உள்ளீடு("> ");
    std::cin.rdbuf(keyboard);
    std::cout.rdbuf(terminal);
    EXPECT_EQ(first, "மலர்");
    EXPECT_EQ(second, "");
    EXPECT_EQ(third, "கடைசி");
    EXPECT_EQ(screen.str(), "பெயர்: > ");
}

class InTemporaryFolder : public testing::Test {
protected:
    void SetUp() override {
        char name[] = "/tmp/runtime-test-XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        folder = name;
        before = std::filesystem::current_path();
        std::filesystem::current_path(folder);
    }

    void TearDown() override {
        std::filesystem::current_path(before);
        std::filesystem::remove_all(folder);
    }

    static void write(const std::string& path, const std::string& content) { std::ofstream(path) << content; }

    std::filesystem::path folder;
    std::filesystem::path before;
};

using Files = InTemporaryFolder;
using Modules = InTemporaryFolder;

TEST_F(Files, WriteReadAppend) {
    EXPECT_FALSE(fn_கோப்பு_எழுது("குறிப்பு.txt", "முதல்\n", "f", 1).has_value());
    EXPECT_FALSE(fn_கோப்பு_சேர்("குறிப்பு.txt", "இரண்டு", "f", 2).has_value());
    EXPECT_EQ(fn_கோப்பு_படி("குறிப்பு.txt", "f", 3), "முதல்\nஇரண்டு");
    fn_கோப்பு_எழுது("குறிப்பு.txt", "புதிது", "f", 4);
    EXPECT_EQ(fn_கோப்பு_படி("குறிப்பு.txt", "f", 5), "புதிது") << "writing replaces the old content";
    fn_கோப்பு_சேர்("புதியது.txt", "அ", "f", 6);
    EXPECT_EQ(fn_கோப்பு_படி("புதியது.txt", "f", 7), "அ") << "appending makes a missing file";
}

TEST_F(Files, ReadKeepsEveryByte) {
    const std::string content("\r\n\0\xFF \n", 6);
    write("bytes", content);
    EXPECT_EQ(fn_கோப்பு_படி("bytes", "f", 1), content);
    write("empty", "");
    EXPECT_EQ(fn_கோப்பு_படி("empty", "f", 1), "");
    EXPECT_EQ(fn_கோப்பு_படி("./empty", "f", 1), "");
}

TEST_F(Files, DeleteTellsSuccess) {
    write("a", "x");
    EXPECT_TRUE(fn_கோப்பு_உள்ளதா("a"));
    EXPECT_TRUE(fn_கோப்பு_அழி("a"));
    EXPECT_FALSE(fn_கோப்பு_உள்ளதா("a"));
    EXPECT_FALSE(fn_கோப்பு_அழி("a"));
}

TEST_F(Modules, CurrentFolderFirst) {
    write("கணிதம்.பொழில்", "");
    std::filesystem::create_directory("உள்");
    write("உள்/கணிதம்.பொழில்", "");
    EXPECT_EQ(fn_resolve_module_path("கணிதம்"), "கணிதம்.பொழில்");
    EXPECT_EQ(fn_resolve_module_path("உள்/கணிதம்"), "உள்/கணிதம்.பொழில்");
}

TEST_F(Modules, MissingModuleThrows) {
    try {
        fn_resolve_module_path("இல்லாத_தொகுப்பு_பெயர்");
        ADD_FAILURE() << "no exception";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "தொகுப்பு (Module) கிடைக்கவில்லை!");
    }
}

TEST(Page, StartsWhereTheGeneratorSaysAndSwitches) {
    EXPECT_EQ(g_currentPage, "@START_PAGE@") << "the generator's marker";
    செல்க("இரண்டாம்");
    EXPECT_EQ(g_currentPage, "இரண்டாம்");
}

TEST(Scrolling, TakesTheIdOfText) {
    EXPECT_EQ(g_scrollToId, "");
    நகர்த்து("தலைப்பு");
    EXPECT_EQ(g_scrollToId, "தலைப்பு");
    EXPECT_FALSE(fn_நகர்த்து(any(std::string("அடி"))).has_value());
    EXPECT_EQ(g_scrollToId, "அடி");
}

TEST(Scrolling, IgnoresEverythingElse) {
    நகர்த்து("அடி");
    EXPECT_FALSE(fn_நகர்த்து(any(5LL)).has_value());
    EXPECT_FALSE(fn_நகர்த்து(any(_PozhilChar{"அ"})).has_value());
    EXPECT_FALSE(fn_நகர்த்து(any()).has_value());
    EXPECT_EQ(g_scrollToId, "அடி");
}

TEST(GlobalState, StartValues) {
    EXPECT_TRUE(global_vars.empty());
    EXPECT_FALSE(global_vars["இல்லாதது"].has_value()) << "an undeclared variable is empty";
    EXPECT_FALSE(g_block_background_clicks);
    EXPECT_FALSE(g_inside_overlay);
    EXPECT_EQ(திரை_அகலம், 1280.0f);
    EXPECT_EQ(திரை_உயரம், 720.0f);
    EXPECT_EQ(g_call_depth, 0);
    EXPECT_EQ(g_current_call_line, 0);
    EXPECT_EQ(MAX_CALL_DEPTH, 150);
    g_widgetPositions["தலைப்பு"] = {(float)(1.5), (float)(2)};
    EXPECT_EQ(g_widgetPositions["தலைப்பு"].y, 2.0f);
    updateUI();
}

} // namespace
