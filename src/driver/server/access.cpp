#include "driver/server/access.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace pozhil {
namespace {

namespace fs = std::filesystem;

/// The name of a host without the port behind it.
std::string_view nameOf(std::string_view host) {
    const std::size_t colon = host.find(':');
    const bool isPort =
        colon != std::string_view::npos && host.find_first_not_of("0123456789", colon + 1) == std::string_view::npos;
    return isPort ? host.substr(0, colon) : host;
}

bool isThisMachine(std::string_view host) {
    constexpr std::array<std::string_view, 2> NAMES = {"127.0.0.1", "localhost"};
    return std::find(NAMES.begin(), NAMES.end(), nameOf(host)) != NAMES.end();
}

/// Whether a path goes down only, one part after the other.
bool goesDown(const fs::path& path) {
    return std::all_of(path.begin(), path.end(), [](const fs::path& part) {
        return !part.empty() && part != "." && part != ".." && part != "/";
    });
}

/// Whether \p file is \p place or lies in it.
bool isIn(const fs::path& file, const fs::path& place) {
    return std::mismatch(place.begin(), place.end(), file.begin(), file.end()).first == place.end();
}

bool isOf(const fs::path& requested, const fs::path& place) {
    std::error_code error;
    if (!goesDown(place) || !isIn(requested, place)) {
        return false;
    }
    return isIn(fs::weakly_canonical(requested, error), fs::weakly_canonical(place, error)) && !error;
}

} // namespace

bool comesFromOwnPage(const HttpRequest& request) {
    if (!request.host || !isThisMachine(*request.host)) {
        return false;
    }
    return !request.hasOrigin || request.origin == "http://" + *request.host;
}

bool isApplicationFile(const std::string& path, const std::vector<std::string>& files) {
    if (path.size() < 2 || path.front() != '/') {
        return false;
    }
    const fs::path requested = fs::u8path(path.substr(1));
    return goesDown(requested) && std::any_of(files.begin(), files.end(), [&](const std::string& file) {
               return isOf(requested, fs::u8path(file).lexically_normal());
           });
}

} // namespace pozhil
