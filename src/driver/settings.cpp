#include "driver/settings.h"

#include "platform/environment.h"
#include "platform/process.h"

#include <algorithm>

namespace pozhil::settings {
namespace {

constexpr const char* DEFAULT_MODULES = "/home/pozhiluser/Pozhil/தொகுப்புகள்";

} // namespace

std::chrono::milliseconds animationDelay() {
    constexpr std::chrono::milliseconds DEFAULT_DELAY{20};
    constexpr std::size_t MOST_DIGITS = 6;
    const std::string text = platform::environmentVariable("POZHIL_ANIMATION_MS").value_or("");
    const bool isNumber = !text.empty() && text.size() <= MOST_DIGITS &&
                          std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    return isNumber ? std::chrono::milliseconds(std::stoi(text)) : DEFAULT_DELAY;
}

std::vector<std::string> cxxFlags() {
    return platform::splitWords(platform::environmentVariable("POZHIL_CXXFLAGS").value_or(""));
}

std::vector<std::string> emFlags() {
    return platform::splitWords(platform::environmentVariable("POZHIL_EMFLAGS").value_or(""));
}

ToolchainWords toolchainWords() {
    const std::string text = platform::environmentVariable("POZHIL_SHOW_CXX").value_or("");
    if (text == "0") {
        return ToolchainWords::Hidden;
    }
    return text == "1" ? ToolchainWords::Shown : ToolchainWords::Default;
}

bool showsHints() {
    return platform::environmentVariable("POZHIL_HINTS").value_or("") != "0";
}

bool allowsColours() {
    return platform::environmentVariable("NO_COLOR").value_or("").empty();
}

std::string serverHost() {
    const std::string host = platform::environmentVariable("POZHIL_HOST").value_or("");
    return host == "localhost" ? "127.0.0.1" : host;
}

bool isServerStrict() {
    return platform::environmentVariable("POZHIL_STRICT") == "1";
}

std::vector<std::string> moduleDirectories(const std::string& appDirectory) {
    return {platform::environmentVariable("POZHIL_MODULES").value_or(DEFAULT_MODULES), appDirectory + "/தொகுப்புகள்"};
}

} // namespace pozhil::settings
