#include "driver/output_stage.h"

#include <cerrno>
#include <fstream>
#include <iostream>
#include <system_error>

namespace pozhil {

std::filesystem::path prepareTemporaryDirectory() {
    std::filesystem::path directory = std::filesystem::current_path() / ".நிலையற்ற";
    std::error_code ignored; // whoever can't make it can't open the output either, and is told so then
    std::filesystem::create_directories(directory, ignored);
    return directory;
}

std::filesystem::path outputPath(const std::filesystem::path& temporaryDirectory) {
    return temporaryDirectory / "generated.cpp";
}

bool createOutput(const std::filesystem::path& path) {
    const std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file.is_open()) {
        std::cerr << "Error: " << path.u8string() << " என்ற கோப்பை உருவாக்க முடியவில்லை!" << std::endl;
    }
    return file.is_open();
}

bool writeOutput(const std::filesystem::path& path, const std::string& text) {
    std::error_code ignored; // while a source is watched, the directory may have been tidied away
    std::filesystem::create_directories(path.parent_path(), ignored);
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) {
        const bool isTooLarge = errno == static_cast<int>(std::errc::file_too_large);
        std::cerr << "பிழை: '" << path.u8string() << "' கோப்பில் எழுத முடியவில்லை! "
                  << (isTooLarge ? "கோப்புகளின் அளவுக்குக் கணினி வைத்த வரம்பை மீறுகிறது; அதை உயர்த்தவும் (ulimit -f)."
                                 : "வட்டில் இடம் இருக்கிறதா என்று பார்க்கவும்.")
                  << std::endl;
    }
    return static_cast<bool>(file);
}

} // namespace pozhil
