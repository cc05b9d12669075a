#pragma once

/// What the tests share that run whole programs on the engine.

#include "child_process.h"
#include "engine_support.h"

#include <regex>
#include <string>
#include <string_view>

inline constexpr std::string_view MAIN_TEXT = "முதல் வரி\nஇரண்டாம் வரி\nஅச்சிடு(ப[9])\n";
inline constexpr std::string_view PART_TEXT = "ஒன்று\r\n    திரும்பு ப[9]\r\n";
inline constexpr pozhil::engine::Source SOURCES[] = {{"பாடம்.பொழில்", MAIN_TEXT.data(), MAIN_TEXT.size()},
                                                     {"பாகம்.பொழில்", PART_TEXT.data(), PART_TEXT.size()}};

inline pozhil::engine::ProgramInfo programOf(void (*start)()) {
    return {start, SOURCES, 2, nullptr, 0, nullptr, 0};
}

/// What the program writes, without colours, and its exit status.
/// \param prepare is done before the program runs
inline ChildResult resultOf(
    void (*start)(), void (*prepare)() = [] {}) {
    ChildResult result = runInChild([&] {
        prepare();
        _exit(pozhil::engine::run(programOf(start)));
    });
    result.output = std::regex_replace(result.output, std::regex("\033\\[[0-9;]*m"), "");
    return result;
}

/// Calls itself so many times inside each other, for ever if \p wanted is negative.
/// NOLINTNEXTLINE(misc-no-recursion): it is what its tests are about
inline pozhil::engine::Whole depthReached(pozhil::engine::Whole wanted, pozhil::engine::Place at) {
    const pozhil::engine::Frame frame("ஆழம்", at);
    const pozhil::engine::Value somethingToHold = pozhil::engine::list({wanted});
    return wanted == 0 ? 0 : 1 + depthReached(wanted - 1, "2:0-5");
}
