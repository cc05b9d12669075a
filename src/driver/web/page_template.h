#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace pozhil {

/// What an application puts into the page template; an empty text stands for the default.
struct PageValues {
    std::string title;
    /// Path of the icon
    std::string icon;
    /// A colour of CSS
    std::string background;
    /// Whether files are packed beside the program
    bool hasData = false;
    /// What the page is told of its widgets, as JSON
    std::string widgets = "{}";
    /// The number that the server tells once this build is in place; nothing for a page that is served by others
    std::optional<int> version{};
};

/// The page template of an installation with the scripts that it names (\c page/<name>, beside it) inside it; nothing if
/// any of these files can't be read.
std::optional<std::string> readTemplate(const std::filesystem::path& appDirectory);

/// Fills the placeholders of a page template, and adds the scripts that ask the server, if it is one that knows of builds:
/// whether there is a newer one, and what is wrong with it.
std::string fillTemplate(std::string page, const PageValues& values);

/// An icon as an address that holds the whole image, so that the page needs no further file; that of a file of the
/// server's if the icon can't be read.
std::string embeddedIcon(const std::string& path);

/// Base64 text of \p bytes, with padding.
std::string base64_encode_logo(std::string_view bytes);

} // namespace pozhil
