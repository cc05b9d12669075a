#include "driver/web/web_assets.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <string_view>
#include <system_error>

namespace pozhil {
namespace {

constexpr std::string_view ASSET_DIRECTORY = "assets";

/// The text of a property that is a string, null for any other.
const std::string* textProperty(const WidgetNode& widget, const std::string& key) {
    const auto property = widget.properties.find(key);
    if (property == widget.properties.end()) {
        return nullptr;
    }
    const auto* text = nodeCast<StringLiteral>(property->second.get());
    return text != nullptr ? &text->value : nullptr;
}

bool fileExists(std::string_view path) {
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::u8path(path), ignored);
}

bool isPackable(std::string_view path) {
    constexpr std::array<std::string_view, 9> ENDINGS = {".png", ".jpg", ".jpeg", ".mp4",  ".gif",
                                                         ".ttf", ".otf", ".woff", ".woff2"};
    return std::any_of(ENDINGS.begin(), ENDINGS.end(), [&](std::string_view ending) {
        return path.size() >= ending.size() && path.substr(path.size() - ending.size()) == ending;
    });
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
        std::cerr << "\n⚠️ எச்சரிக்கை: " << path << " என்ற கோப்பு காணப்படவில்லை! \n";
    }
}

} // namespace

std::string extractHeaderProperty(const Program& program, const std::string& key) {
    for (const StatementPtr& statement : program.statements) {
        const auto* application = dynamic_cast<const WebAppNode*>(statement.get());
        const auto* header =
            application != nullptr ? dynamic_cast<const WidgetNode*>(application->header.get()) : nullptr;
        if (header == nullptr) {
            continue;
        }
        if (const std::string* text = textProperty(*header, key)) {
            return *text;
        }
        const auto property = header->properties.find(key);
        if (property == header->properties.end()) {
            continue;
        }
        if (const auto* colour = nodeCast<ColorExpression>(property->second.get())) {
            return colour->isHex ? colour->hexValue : colour->colorName;
        }
    }
    return "";
}

void collectImagePaths(const Statement* statement, std::set<std::string>& paths) {
    if (const auto* application = dynamic_cast<const WebAppNode*>(statement)) {
        collectImagePaths(application->header.get(), paths);
        collectImagePaths(application->uiBody.get(), paths);
    }
    const auto* widget = dynamic_cast<const WidgetNode*>(statement);
    if (widget == nullptr) {
        return;
    }
    const std::string* image = widget->kind == "படம்" ? textProperty(*widget, "பாதை") : nullptr;
    for (const std::string* path : {image, textProperty(*widget, "சின்னம்")}) {
        if (path != nullptr) {
            paths.insert(*path);
        }
    }
    if (!widget->style.font.empty()) {
        paths.insert(widget->style.font);
    }
    for (const StatementPtr& child : widget->children) {
        collectImagePaths(child.get(), paths);
    }
}

std::vector<std::string> packingArguments(const Program& program) {
    std::set<std::string> paths;
    for (const StatementPtr& statement : program.statements) {
        collectImagePaths(statement.get(), paths);
    }
    std::vector<std::string> arguments;
    if (fileExists(ASSET_DIRECTORY)) {
        addFile(arguments, ASSET_DIRECTORY);
    }
    for (const std::string& path : paths) {
        const bool isInDirectory = path.rfind("assets/", 0) == 0;
        if (!isInDirectory && isPackable(path) && fileExists(path)) {
            addFile(arguments, path);
        }
    }
    addVideo(arguments, extractHeaderProperty(program, "பின்னணிகாணொளி"));
    return arguments;
}

} // namespace pozhil
