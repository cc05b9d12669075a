// What a page does with the engine: each part prints what came of it.

#include "engine/page.h"
#include "engine/program.h"

#include <stdexcept>
#include <string>

using namespace pozhil::engine;

namespace {

constexpr const char TEXT[] = "முதல் வரி\nஅச்சிடு(ப[9])\n";
constexpr Source SOURCES[] = {{"பக்கம்.பொழில்", TEXT, sizeof TEXT - 1}};

void say(const std::string& line) {
    print({text(line.c_str(), line.size())});
}

void tell(const ReportedFault& fault) {
    say("told " + std::to_string(fault.number) + " line " + std::to_string(fault.text.excerpt.line) + " way " +
        std::to_string(fault.text.way.size()));
}

Value fails(const Closure& /*own*/, Value* /*none*/, Place place) {
    const Frame frame("தவறு", place);
    return get(list({1}), Value(9), "2:21-27");
}
constexpr FunctionInfo FAILS = {"தவறு", fails, 0, 0};

Value shows(const Closure& /*own*/, Value* arguments, Place /*place*/) {
    print({arguments[0]});
    return Value();
}
constexpr FunctionInfo SHOWS = {"காட்டு", shows, 1, 0};

/// More calls than any stack takes.
constexpr Whole MANY = 1'000'000'000;

/// Uses little of the program's own stack and much of the browser's.
Whole lean(Whole depth, Place at) {
    const Frame frame("ஒல்லி", at);
    return depth == 0 ? 0 : 1 + lean(depth - 1, "1:0-3");
}

/// The other way round.
Whole stout(Whole depth, Place at) {
    const Frame frame("பருமன்", at);
    Value held[8];
    held[depth % 8] = depth;
    return depth == 0 ? 0 : held[depth % 8].whole() - depth + 1 + stout(depth - 1, "1:0-3");
}

void callDeeply() {
    guarded([] { print({stout(800, "1:0-3"), text(" "), lean(1000, "1:0-3")}); });
    for (int i = 0; i < 3; ++i) {
        guarded([] { stout(MANY, "1:0-3"); });
        guarded([] { lean(MANY, "1:0-3"); });
    }
}

const ProgramInfo PROGRAM = {[] { say("start"); }, SOURCES, 1, nullptr, 0, nullptr, 0};

} // namespace

int main() {
    tellFaultsBy(tell);
    startPage(PROGRAM);
    const Value failing = function(FAILS);
    guarded([&] { callHandler(failing, "1:0-3"); });
    guarded([] { callHandler(function(SHOWS), text("புதிது"), "1:0-3"); });
    guarded([] { callHandler(5, "1:0-3"); });
    guarded([] { throw std::runtime_error("ours"); });
    guarded([] { throw 7; });
    guarded([] { guarded([] { callHandler(function(FAILS), "1:0-3"); }); });
    callDeeply();
    say(guarded([] {}) ? "well" : "ill");
    return 0;
}
