#include "driver/web/page_template.h"

#include "base/text.h"
#include "base/whole_file.h"
#include "driver/web/driver_text.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view SCRIPT = R"(<script async type="text/javascript" src="index.js"></script>)";
constexpr std::string_view DATA_PRELOAD = R"(<link rel="preload" href="index.data" as="fetch" crossorigin>)";
constexpr std::string_view END_OF_BODY = "</body>";

bool replaceFirst(std::string& text, std::string_view placeholder, std::string_view value) {
    const std::size_t position = text.find(placeholder);
    if (position != std::string::npos) {
        text.replace(position, placeholder.size(), value);
    }
    return position != std::string::npos;
}

void insertBeforeEndOfBody(std::string& page, const std::string& text) {
    const std::size_t position = page.find(END_OF_BODY);
    if (position != std::string::npos) {
        page.insert(position, text);
    }
}

/// Puts the scripts that a template names in the place of their names, so that the page comes as one file.
/// \return nothing if one of them can't be read
std::optional<std::string> withScripts(std::string page, const fs::path& directory) {
    constexpr std::string_view BEFORE = R"(<script src="page/)";
    constexpr std::string_view AFTER = R"("></script>)";
    for (std::size_t begin = page.find(BEFORE); begin != std::string::npos; begin = page.find(BEFORE, begin)) {
        const std::size_t name = begin + BEFORE.size();
        const std::size_t end = page.find(AFTER, name);
        if (end == std::string::npos) {
            break;
        }
        const auto script = readFile(directory / "page" / fs::u8path(page.substr(name, end - name)));
        if (!script) {
            return std::nullopt;
        }
        const std::string text = "<script>\n" + *script + "</script>";
        page.replace(begin, end + AFTER.size() - begin, text);
        begin += text.size();
    }
    return page;
}

std::string servedScript(const Block& text, const Holes& holes) {
    constexpr std::size_t INDENTATION = 12;
    std::ostringstream script;
    script << "\n        <script>\n";
    writeBlock(script, text, holes, INDENTATION);
    script << "        </script>\n            ";
    return script.str();
}

/// \p text as the value of an attribute.
std::string escaped(std::string text) {
    replaceAll(text, "&", "&amp;");
    replaceAll(text, "\"", "&quot;");
    replaceAll(text, "<", "&lt;");
    return text;
}

/// JSON that can stand in a script of its own: nothing in it ends that.
std::string scriptData(std::string json) {
    replaceAll(json, "<", "\\u003c");
    return json;
}

std::string imageType(const std::string& path) {
    if (endsWith(path, ".svg")) {
        return "image/svg+xml";
    }
    return endsWith(path, ".jpg") || endsWith(path, ".jpeg") ? "image/jpeg" : "image/png";
}

} // namespace

std::optional<std::string> readTemplate(const fs::path& appDirectory) {
    const fs::path directory = appDirectory / "உள்ளடக்கம்";
    auto page = readFile(directory / "template.html");
    return page ? withScripts(std::move(*page), directory) : std::nullopt;
}

std::string fillTemplate(std::string page, const PageValues& values) {
    const std::string title = values.title.empty() ? "பொழில் தளம்" : values.title;
    replaceFirst(page, "{{{ விளக்கம் }}}", escaped(title));
    replaceFirst(page, "{{{ தரவு_முன்னேற்றம் }}}", values.hasData ? DATA_PRELOAD : "");
    replaceFirst(page, "{{{ இணைய_தலைப்பு }}}", title);
    replaceFirst(page, "{{{ சின்னம் }}}", embeddedIcon(values.icon));
    replaceFirst(page, "{{{ விட்ஜெட்டுகள் }}}", scriptData(values.widgets));
    replaceAll(page, "{{{ பின்னணி_நிறம் }}}", values.background.empty() ? "#ffffff" : values.background);
    if (!replaceFirst(page, "{{{ SCRIPT }}}", SCRIPT)) {
        insertBeforeEndOfBody(page, std::string(SCRIPT) + "\n");
    }
    if (values.version) {
        insertBeforeEndOfBody(page, servedScript(driver_text::reload, {{"version", std::to_string(*values.version)}}));
        insertBeforeEndOfBody(page, servedScript(driver_text::build_fault, {}));
        insertBeforeEndOfBody(page, servedScript(driver_text::kept_state, {}));
    }
    return page;
}

std::string embeddedIcon(const std::string& path) {
    const auto bytes = path.empty() ? std::nullopt : readFile(fs::u8path(path));
    return bytes ? "data:" + imageType(path) + ";base64," + base64_encode_logo(*bytes) : "file-icon.png";
}

std::string base64_encode_logo(std::string_view bytes) {
    constexpr std::string_view TABLE = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    constexpr std::size_t GROUP = 3;
    std::string text;
    text.reserve((bytes.size() + GROUP - 1) / GROUP * (GROUP + 1));
    for (std::size_t start = 0; start < bytes.size(); start += GROUP) {
        const std::size_t count = std::min(GROUP, bytes.size() - start);
        unsigned int group = 0;
        for (std::size_t offset = 0; offset < GROUP; ++offset) {
            group = group << 8U | (offset < count ? static_cast<unsigned char>(bytes[start + offset]) : 0U);
        }
        for (std::size_t digit = 0; digit <= GROUP; ++digit) {
            text += digit <= count ? TABLE[group >> (18U - 6U * digit) & 63U] : '=';
        }
    }
    return text;
}

} // namespace pozhil
