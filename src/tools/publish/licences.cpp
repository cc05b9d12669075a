#include "tools/publish/licences.h"

#include "base/whole_file.h"
#include "tools/publish/font_licence.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <system_error>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

/// What licences want to be told of a font that isn't what its maker made.
constexpr const char* MEASURED =
    "    மாற்றப்பட்டது: எழுத்துகளின் அளவுகள் மட்டும் இந்தத் தளத்தில் உள்ளன; அவற்றின் வடிவங்களும் எழுத்துருவின் பெயரும் இல்லை.\n"
    "    Changed: this site holds the sizes of its letters alone, without their shapes and without the font's name.\n";

bool isFontFile(const fs::path& path) {
    const std::string ending = path.extension().u8string();
    return ending == ".ttf" || ending == ".otf" || ending == ".woff" || ending == ".woff2";
}

bool isLicence(const fs::path& path) {
    constexpr std::array<const char*, 4> BEGINNINGS = {"OFL", "LICENSE", "LICENCE", "COPYING"};
    const std::string name = path.filename().u8string();
    return std::any_of(BEGINNINGS.begin(), BEGINNINGS.end(),
                       [&](const char* beginning) { return name.rfind(beginning, 0) == 0; });
}

std::set<fs::path> fontsIn(const std::vector<std::string>& places) {
    std::set<fs::path> fonts;
    for (const std::string& name : places) {
        const fs::path place = fs::u8path(name);
        std::error_code error;
        if (isFontFile(place) && fs::is_regular_file(place, error)) {
            fonts.insert(place);
        }
        for (fs::recursive_directory_iterator entry(place, error), end; !error && entry != end;
             entry.increment(error)) {
            if (isFontFile(entry->path())) {
                fonts.insert(entry->path());
            }
        }
    }
    return fonts;
}

std::set<fs::path> licencesBeside(const std::set<fs::path>& fonts) {
    std::set<fs::path> licences;
    for (const fs::path& font : fonts) {
        const fs::path folder = font.has_parent_path() ? font.parent_path() : fs::path(".");
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
            std::error_code ignored;
            if (isLicence(entry->path()) && entry->is_regular_file(ignored)) {
                licences.insert(entry->path());
            }
        }
    }
    return licences;
}

std::string described(const fs::path& font, bool isMeasured) {
    std::string text = font.u8string() + "\n";
    if (const auto licence = readFontLicence(readFile(font).value_or(""))) {
        for (const std::string& line : {licence->name, licence->copyright, licence->licence, licence->address}) {
            text += line.empty() ? "" : "    " + line + "\n";
        }
    }
    return text + (isMeasured ? MEASURED : "") + "\n";
}

} // namespace

std::string licencesOf(const std::vector<std::string>& files, const std::string& measured) {
    const std::set<fs::path> fonts = fontsIn(files);
    if (fonts.empty()) {
        return {};
    }
    std::string text = "எழுத்துருக்களின் உரிமங்கள் · Licences of the fonts\n\n";
    for (const fs::path& font : fonts) {
        text += described(font, font == fs::u8path(measured));
    }
    for (const fs::path& licence : licencesBeside(fonts)) {
        text += "--- " + licence.u8string() + "\n\n" + readFile(licence).value_or("") + "\n";
    }
    return text;
}

} // namespace pozhil::tools
