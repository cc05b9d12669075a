#include "driver/output_stage.h"

#include "platform/fresh_path.h"

#include <cerrno>
#include <fstream>
#include <iostream>
#include <system_error>

namespace pozhil {
namespace {

void tellNoOutput(const std::filesystem::path& path) {
    std::cerr << "Error: " << path.u8string() << " என்ற கோப்பை உருவாக்க முடியவில்லை!" << std::endl;
}

/// \param shownPath the file that the user is told of
bool writeFile(const std::filesystem::path& path, const std::filesystem::path& shownPath, std::string_view text) {
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) {
        const bool isTooLarge = errno == static_cast<int>(std::errc::file_too_large);
        std::cerr << "பிழை: '" << shownPath.u8string() << "' கோப்பில் எழுத முடியவில்லை! "
                  << (isTooLarge ? "கோப்புகளின் அளவுக்குக் கணினி வைத்த வரம்பை மீறுகிறது; அதை உயர்த்தவும் (ulimit -f)."
                                 : "வட்டில் இடம் இருக்கிறதா என்று பார்க்கவும்.")
                  << std::endl;
    }
    return static_cast<bool>(file);
}

} // namespace

std::filesystem::path prepareTemporaryDirectory() {
    std::filesystem::path directory = std::filesystem::current_path() / ".நிலையற்ற";
    std::error_code ignored; // whoever can't make it can't open the output either, and is told so then
    std::filesystem::create_directories(directory, ignored);
    return directory;
}

std::filesystem::path directoryOfSource(const std::filesystem::path& temporaryDirectory, const std::string& source) {
    const std::filesystem::path path = std::filesystem::absolute(std::filesystem::u8path(source)).lexically_normal();
    const std::filesystem::path below = path.lexically_relative(std::filesystem::current_path());
    const bool isOutside = below.empty() || *below.begin() == "..";
    return temporaryDirectory / (isOutside ? path.relative_path() : below);
}

bool createDirectory(const std::filesystem::path& path) {
    std::error_code failure;
    std::filesystem::create_directories(path, failure);
    if (failure) {
        tellNoOutput(path);
    }
    return !failure;
}

std::filesystem::path outputPath(const std::filesystem::path& temporaryDirectory) {
    return temporaryDirectory / "generated.cpp";
}

bool createOutput(const std::filesystem::path& path) {
    const std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file.is_open()) {
        tellNoOutput(path);
    }
    return file.is_open();
}

bool writeOutput(const std::filesystem::path& path, std::string_view text) {
    std::error_code ignored; // while a source is watched, the directory may have been tidied away
    std::filesystem::create_directories(path.parent_path(), ignored);
    return writeFile(path, path, text);
}

bool replaceOutput(const std::filesystem::path& path, std::string_view text) {
    std::error_code failure;
    std::filesystem::create_directories(path.parent_path(), failure);
    const std::filesystem::path fresh = platform::freshBeside(path);
    if (failure || !std::ofstream(fresh).is_open()) {
        tellNoOutput(path);
        return false;
    }
    const bool isWhole = writeFile(fresh, path, text);
    if (isWhole) {
        std::filesystem::rename(fresh, path, failure);
        if (failure) {
            tellNoOutput(path);
        }
    }
    if (!isWhole || failure) {
        std::error_code ignored;
        std::filesystem::remove(fresh, ignored);
    }
    return isWhole && !failure;
}

} // namespace pozhil
