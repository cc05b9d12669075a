#include "driver/web/web_assets.h"

#include "base/text.h"
#include "driver/web/web_messages.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <sstream>
#include <string_view>
#include <system_error>

namespace pozhil {
namespace {

constexpr std::string_view ASSET_DIRECTORY = "assets";

bool fileExists(std::string_view path) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::u8path(path), ignored);
}

bool isPackable(std::string_view path) {
    constexpr std::array<std::string_view, 9> ENDINGS = {".png", ".jpg", ".jpeg", ".mp4",  ".gif",
                                                         ".ttf", ".otf", ".woff", ".woff2"};
    return std::any_of(ENDINGS.begin(), ENDINGS.end(), [&](std::string_view ending) { return endsWith(path, ending); });
}

/// A path is cut at its blanks, as in any list of flags; it is the user's to choose a name without.
void addFile(std::vector<std::string>& arguments, std::string_view path) {
    arguments.emplace_back("--preload-file");
    std::istringstream words{std::string(path)};
    for (std::string word; words >> word;) {
        arguments.push_back(word);
    }
}

void addVideo(std::vector<std::string>& arguments, const std::string& path) {
    if (path.empty()) {
        return;
    }
    if (fileExists(path)) {
        addFile(arguments, path);
    } else {
        printMissingVideo(path);
    }
}

/// Of the files that widgets show, those that are packed one by one.
std::vector<std::string> singleFiles(const Application& application) {
    std::vector<std::string> files;
    for (const std::string& path : application.files) {
        const bool isInDirectory = path.rfind("assets/", 0) == 0;
        if (!isInDirectory && isPackable(path) && fileExists(path)) {
            files.push_back(path);
        }
    }
    return files;
}

} // namespace

bool hasFilesToPack(const Application& application) {
    const bool hasVideo = !application.video.empty() && fileExists(application.video);
    return hasVideo || fileExists(ASSET_DIRECTORY) || !singleFiles(application).empty();
}

std::vector<std::string> applicationFiles(const Application& application) {
    std::vector<std::string> files = singleFiles(application);
    files.emplace_back(ASSET_DIRECTORY);
    for (const std::string& path : {application.video, application.icon}) {
        if (!path.empty()) {
            files.push_back(path);
        }
    }
    return files;
}

std::vector<std::string> packingArguments(const Application& application) {
    std::vector<std::string> arguments;
    if (fileExists(ASSET_DIRECTORY)) {
        addFile(arguments, ASSET_DIRECTORY);
    }
    for (const std::string& path : singleFiles(application)) {
        addFile(arguments, path);
    }
    addVideo(arguments, application.video);
    return arguments;
}

} // namespace pozhil
