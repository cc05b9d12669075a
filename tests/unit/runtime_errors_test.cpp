// The report of a failure at run time, byte for byte, what raises it, and the guard of endless recursion.

#include "child_process.h"
#include "generator/first/runtime/runtime.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace {

using List = std::vector<std::any>;
using Map = std::map<std::string, std::any>;
using std::any;

const std::string RED = "\033[1;31m";
const std::string GOLD = "\033[1;93m";
const std::string RESET = "\033[0m";
const std::string BLUE = "\033[1;34m";
const std::string DIM_GREY = "\033[38;5;242m";
const std::string CYAN = "\033[1;36m";
const std::string GREEN = "\033[1;32m";
const std::string RULE = "------------------------------------------------------------";

/// What a report shows of its place.
struct Place {
    std::string file;
    std::string line;
    std::string padded_line;
    std::string source_text;
};

const std::string SAYING_HEAD = "  " + GOLD + "✨ \"";
const std::string SAYING_TAIL = "\"" + RESET + "\n" + DIM_GREY + "  " + RULE + RESET + "\n\n";

/// The whole report up to the saying.
std::string report_head(const std::string& code, const std::string& description, const Place& place) {
    const std::string thin_rule = DIM_GREY + "  " + RULE + RESET + "\n";
    return "\n" + RED + RULE + RESET + "\n" + "  🚨 [ " + GOLD + code + RESET + " ] :: " + RED +
           "பொருள் பிழை (இயக்கநேரம்)" + RESET + "\n" + RED + RULE + RESET + "\n" + "  " + BLUE + "📂 கோப்பு  " + RESET +
           ": " + place.file + "\n" + "  " + BLUE + "📍 இடம்    " + RESET + ": வரி " + place.line + "\n" + thin_rule +
           CYAN + "  🔍 பிழை கண்டறியப்பட்ட பகுதி:" + RESET + "\n" + "    " + place.padded_line + " |  " +
           place.source_text + "\n" + "       |  " + GOLD + "        ▲" + RESET + "\n" + RED + "       ╰── மச்சி, " +
           description + RESET + "\n" + thin_rule + GREEN + "  💡 சரி செய்யும் முறை:" + RESET + "\n" + "     " +
           பிழை_அகராதி.at(code).தீர்வு + "\n" + thin_rule + "\n";
}

void expect_report(const ChildResult& child, const std::string& code, const std::string& description,
                   const Place& place) {
    EXPECT_EQ(child.exitStatus, 1);
    const std::string head = report_head(code, description, place) + SAYING_HEAD;
    EXPECT_EQ(child.output.substr(0, head.size()), head);
    ASSERT_GT(child.output.size(), head.size() + SAYING_TAIL.size());
    const std::string rest = child.output.substr(head.size());
    const std::string saying = rest.substr(0, rest.size() - SAYING_TAIL.size());
    EXPECT_EQ(rest.substr(saying.size()), SAYING_TAIL);
    const std::vector<std::string>& sayings = ErrorHandler::பொன்மொழிகள்();
    EXPECT_EQ(std::count(sayings.begin(), sayings.end(), saying), 1) << saying;
}

const Place NOWHERE = {"இல்லை.பொழில்", "7", "07", "(கோப்பு கிடைக்கவில்லை)"};

class Report : public testing::Test {
protected:
    void SetUp() override {
        char name[] = "/tmp/runtime-test-XXXXXX";
        const int descriptor = mkstemp(name);
        ASSERT_NE(descriptor, -1);
        close(descriptor);
        source = name;
    }

    void TearDown() override { std::remove(source.c_str()); }

    void write(const std::string& content) const { std::ofstream(source) << content; }

    std::string source;
};

TEST_F(Report, ShowsTheLineOfTheSource) {
    write("முதல்\n  x = [1][5]\nமூன்றாம்\n");
    const ChildResult child = runInChild([this] { pozhil_runtime_error("பொழி-311", source, 2); });
    expect_report(child, "பொழி-311", "பட்டியல் எல்லை மீறல் (Index Out of Bounds).", {source, "2", "02", "  x = [1][5]"});
}

TEST_F(Report, ShowsTheLastLineWithoutALineEnd) {
    write("முதல்\nகடைசி");
    const ChildResult child = runInChild([this] { pozhil_runtime_error("பொழி-324", source, 2); });
    expect_report(child, "பொழி-324", "செயல் முறை அல்லது பண்பு கிடைக்கவில்லை (Method/Property Not Found).",
                  {source, "2", "02", "கடைசி"});
}

TEST_F(Report, PastTheEndTheTextIsEmpty) {
    write("முதல்\nகடைசி");
    expect_report(runInChild([this] { pozhil_runtime_error("பொழி-311", source, 3); }), "பொழி-311",
                  "பட்டியல் எல்லை மீறல் (Index Out of Bounds).", {source, "3", "03", ""});
    expect_report(runInChild([this] { pozhil_runtime_error("பொழி-311", source, 120); }), "பொழி-311",
                  "பட்டியல் எல்லை மீறல் (Index Out of Bounds).", {source, "120", "120", ""});
    write("முதல்\nகடைசி\n");
    expect_report(runInChild([this] { pozhil_runtime_error("பொழி-311", source, 12); }), "பொழி-311",
                  "பட்டியல் எல்லை மீறல் (Index Out of Bounds).", {source, "12", "12", ""});
    write("");
    expect_report(runInChild([this] { pozhil_runtime_error("பொழி-311", source, 1); }), "பொழி-311",
                  "பட்டியல் எல்லை மீறல் (Index Out of Bounds).", {source, "1", "01", ""});
}

TEST_F(Report, OfADeletedSourceSaysSo) {
    std::remove(source.c_str());
    const ChildResult child = runInChild([this] { pozhil_runtime_error("பொழி-302", source, 10); });
    expect_report(child, "பொழி-302", "வகை மாற்றப் பிழை", {source, "10", "10", "(கோப்பு கிடைக்கவில்லை)"});
}

TEST_F(Report, KeepsThePrecedingOutputInOrder) {
    const ChildResult child = runInChild([] {
        std::cout << "முன்" << std::endl;
        pozhil_runtime_error("பொழி-302", NOWHERE.file, 7);
    });
    EXPECT_EQ(child.output.substr(0, child.output.find('\n') + 1), "முன்\n");
    expect_report({child.output.substr(child.output.find('\n') + 1), child.exitStatus}, "பொழி-302", "வகை மாற்றப் பிழை",
                  NOWHERE);
}

TEST_F(Report, OfAnUnknownCodeIsAnException) {
    EXPECT_THROW(pozhil_runtime_error("பொழி-000", "f", 1), std::out_of_range);
}

struct Failure {
    const char* title;
    std::string code;
    std::string description;
    std::function<void()> action;
};

class RuntimeFailure : public testing::TestWithParam<Failure> {};

TEST_P(RuntimeFailure, EndsTheProgramWithItsReport) {
    const Failure& failure = GetParam();
    expect_report(runInChild(failure.action), failure.code, failure.description, NOWHERE);
}

any list_of_one() {
    return List{any(1LL)};
}

any map_of_one() {
    return Map{{"அ", any(1LL)}};
}

any text(const char* literal) {
    return std::string(literal);
}

const char* const FILE_NAME = "இல்லை.பொழில்";

void read_index(const any& object, const any& key) {
    fn_எடு(object, key, FILE_NAME, 7);
}

void write_index(any object, const any& key) {
    fn_index_ref(object, key, FILE_NAME, 7) = any(5LL);
}

Failure boundary(const char* title, std::function<void()> action) {
    return {title, "பொழி-311", "பட்டியல் எல்லை மீறல் (Index Out of Bounds).", std::move(action)};
}

Failure missing_key(const char* title, std::function<void()> action) {
    return {title, "பொழி-312", "அகராதி சாவி (Map Key) கிடைக்கவில்லை.", std::move(action)};
}

Failure no_container(const char* title, std::function<void()> action) {
    return {title, "பொழி-313", "வெற்றுப் பொருளை அணுக முயற்சி (Null Access).", std::move(action)};
}

Failure no_property(const char* title, std::function<void()> action) {
    return {title, "பொழி-324", "செயல் முறை அல்லது பண்பு கிடைக்கவில்லை (Method/Property Not Found).", std::move(action)};
}

Failure refused_path(const char* title, std::function<void()> action) {
    return {title, "பொழி-342", "தவறான கோப்புப் பாதை (Invalid Path).", std::move(action)};
}

INSTANTIATE_TEST_SUITE_P(
    Containers, RuntimeFailure,
    testing::Values(
        boundary("list index at the size", [] { read_index(list_of_one(), any(1LL)); }),
        boundary("negative list index", [] { read_index(list_of_one(), any(-1LL)); }),
        boundary("by the form that takes values", [] { fn_எடு(list_of_one(), any(1LL), std::string(FILE_NAME), 7); }),
        missing_key("missing key", [] { read_index(map_of_one(), text("ஆ")); }),
        no_container("short integer as list index", [] { read_index(list_of_one(), any(0)); }),
        no_container("decimal as list index", [] { read_index(list_of_one(), any(0.0L)); }),
        no_container("text as list index", [] { read_index(list_of_one(), text("0")); }),
        no_container("number as map key", [] { read_index(map_of_one(), any(1LL)); }),
        no_container("letter as map key", [] { read_index(map_of_one(), any(_PozhilChar{"அ"})); }),
        no_container("short integer as text index", [] { read_index(text("abc"), any(0)); }),
        no_container("index of a number", [] { read_index(any(5LL), any(0LL)); }),
        no_container("index of a letter", [] { read_index(any(_PozhilChar{"அ"}), any(0LL)); }),
        no_container("index of nothing", [] { read_index(any(), any(0LL)); }),
        boundary("write at the size", [] { write_index(list_of_one(), any(1LL)); }),
        boundary("write at a negative index", [] { write_index(list_of_one(), any(-1LL)); }),
        no_container("write into text", [] { write_index(text("abc"), any(0LL)); }),
        no_container("write into nothing", [] { write_index(any(), any(0LL)); }),
        boundary("write into a temporary", [] { fn_index_ref(list_of_one(), any(1LL), FILE_NAME, 7); }),
        no_container("write into a temporary text", [] { fn_index_ref(text("abc"), any(1LL), FILE_NAME, 7); }),
        Failure{"remove of an absent element", "பொழி-314", "பட்டியலில்லாத உறுப்பை நீக்க முயற்சி (Item Not Found).",
                [] {
                    any list = list_of_one();
                    fn_நீக்கு(list, text("1"), FILE_NAME, 7);
                }},
        Failure{"remove of a list from itself", "பொழி-314", "பட்டியலில்லாத உறுப்பை நீக்க முயற்சி (Item Not Found).",
                [] { fn_நீக்கு(List{list_of_one()}, list_of_one(), FILE_NAME, 7); }},
        Failure{"remove from text", "பொழி-304", "தவறான கணிதச் செயல்பாடு.",
                [] {
                    any object = text("abc");
                    fn_நீக்கு(object, text("a"), FILE_NAME, 7);
                }},
        Failure{"remove from a map", "பொழி-304", "தவறான கணிதச் செயல்பாடு.",
                [] { fn_நீக்கு(map_of_one(), text("அ"), FILE_NAME, 7); }}),
    [](const testing::TestParamInfo<Failure>& failure) { return std::to_string(failure.index); });

INSTANTIATE_TEST_SUITE_P(
    Objects, RuntimeFailure,
    testing::Values(no_property("read of a missing property",
                                [] { fn_get_property(std::make_shared<_StructBase>(), "வயது", FILE_NAME, 7); }),
                    no_property("write into a map",
                                [] { fn_set_property(map_of_one(), "வயது", any(1LL), FILE_NAME, 7); }),
                    no_property("write into nothing", [] { fn_set_property(any(), "வயது", any(1LL), FILE_NAME, 7); })),
    [](const testing::TestParamInfo<Failure>& failure) { return std::to_string(failure.index); });

INSTANTIATE_TEST_SUITE_P(
    Files, RuntimeFailure,
    testing::Values(refused_path("write to an empty path", [] { fn_கோப்பு_எழுது("", "x", FILE_NAME, 7); }),
                    refused_path("write with a double slash", [] { fn_கோப்பு_எழுது("a//b", "x", FILE_NAME, 7); }),
                    refused_path("write with a star", [] { fn_கோப்பு_எழுது("a*", "x", FILE_NAME, 7); }),
                    refused_path("write with a question mark", [] { fn_கோப்பு_எழுது("a?", "x", FILE_NAME, 7); }),
                    refused_path("append to an empty path", [] { fn_கோப்பு_சேர்("", "x", FILE_NAME, 7); }),
                    refused_path("append with a question mark", [] { fn_கோப்பு_சேர்("?", "x", FILE_NAME, 7); }),
                    refused_path("read of an empty path", [] { fn_கோப்பு_படி("", FILE_NAME, 7); }),
                    refused_path("read with a double slash", [] { fn_கோப்பு_படி("//dev/null", FILE_NAME, 7); }),
                    Failure{"write into a missing folder", "பொழி-343", "கோப்பில் எழுத முடியவில்லை.",
                            [] { fn_கோப்பு_எழுது("/tmp/இல்லாத_கோப்புறை/a", "x", FILE_NAME, 7); }},
                    Failure{"append into a missing folder", "பொழி-343", "கோப்பில் எழுத முடியவில்லை.",
                            [] { fn_கோப்பு_சேர்("/tmp/இல்லாத_கோப்புறை/a", "x", FILE_NAME, 7); }},
                    Failure{"read of a missing file", "பொழி-341", "கோப்பு திறக்க முடியவில்லை (File Open Error).",
                            [] { fn_கோப்பு_படி("/tmp/இல்லாத_கோப்பு", FILE_NAME, 7); }},
                    Failure{"read of the null device", "பொழி-344", "கோப்பு வாசிப்புப் பிழை.",
                            [] { fn_கோப்பு_படி("/dev/null", FILE_NAME, 7); }},
                    Failure{"read of a folder", "பொழி-344", "கோப்பு வாசிப்புப் பிழை.",
                            [] { fn_கோப்பு_படி("/tmp", FILE_NAME, 7); }}),
    [](const testing::TestParamInfo<Failure>& failure) { return std::to_string(failure.index); });

// This report names the compiled source itself; here its marker stands, which no file is called.
TEST(ToNumberFailure, WhatIsNoNumber) {
    const Place place = {"@SOURCE_PATH@", "7", "07", "(கோப்பு கிடைக்கவில்லை)"};
    const std::vector<any> values = {text("12அ"), text(""),      text("12 "), text("எண்"), any(_PozhilChar{"5"}),
                                     any(true),   list_of_one(), any('5'),    any()};
    for (const any& value : values) {
        expect_report(runInChild([&] { fn_cast_to_number(value, 7); }), "பொழி-302", "வகை மாற்றப் பிழை", place);
    }
}

TEST(IndexWriteFailure, WithoutAPlaceShowsNone) {
    const ChildResult child = runInChild([] { fn_index_ref(list_of_one(), any(1LL)) = any(1LL); });
    expect_report(child, "பொழி-311", "பட்டியல் எல்லை மீறல் (Index Out of Bounds).", {"", "0", "00", "(கோப்பு கிடைக்கவில்லை)"});
}

int nested_calls(int count) {
    CallTracker _tracker(FILE_NAME);
    g_current_call_line = 7;
    return count <= 1 ? g_call_depth : nested_calls(count - 1);
}

TEST(CallGuard, LetsAHundredAndFiftyCallsNest) {
    EXPECT_EQ(nested_calls(150), 150);
    EXPECT_EQ(g_call_depth, 0) << "every call gives its level back";
    EXPECT_EQ(nested_calls(150), 150);
}

TEST(CallGuard, StopsTheNextOneAtTheLineOfTheLatestCall) {
    expect_report(runInChild([] { nested_calls(151); }), "பொழி-335", "முடிவில்லாத சுழற்சி செயல் (Infinite Recursion).",
                  NOWHERE);
}

TEST(CallGuard, AnExceptionGivesTheLevelBack) {
    const auto failing = [] {
        CallTracker _tracker(FILE_NAME);
        throw std::runtime_error("அ");
    };
    EXPECT_THROW(failing(), std::runtime_error);
    EXPECT_EQ(g_call_depth, 0);
}

} // namespace
