#include "tools/publish/packed_fonts.h"

#include "base/whole_file.h"
#include "tools/publish/measuring_font.h"

#include <cstddef>
#include <filesystem>
#include <system_error>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

/// Where it is packed, pages draw with it and never with the other one (page/fonts.js).
constexpr const char* DRAWN_FONT = "assets/font/Tamil-Regular.ttf";

/// Whether em++ packs a file of the current directory under this very path: where links lead elsewhere, it doesn't.
bool isPackedAs(const char* path) {
    std::error_code error;
    const fs::path place = fs::canonical(path, error);
    return !error && place == fs::current_path() / path && fs::is_regular_file(place, error);
}

/// Each program names the font once, to measure with it. Texts and buttons that have a font of their own name that too.
bool isOnlyMeasuredWith(std::string_view output) {
    constexpr std::string_view NAME = "Coiny-Regular.ttf";
    const std::size_t first = output.find(NAME);
    return first != std::string_view::npos && output.find(NAME, first + NAME.size()) == std::string_view::npos;
}

} // namespace

std::optional<std::string> packedMeasuredFont(std::string_view output) {
    if (!isOnlyMeasuredWith(output) || !isPackedAs(MEASURED_FONT) || !isPackedAs(DRAWN_FONT)) {
        return std::nullopt;
    }
    return measuringFont(readFile(MEASURED_FONT).value_or(""));
}

} // namespace pozhil::tools
