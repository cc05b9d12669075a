#include "platform/replace_directory.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace pozhil::platform {
namespace {

namespace fs = std::filesystem;

/// In two steps, for devices that can't do it in one: between them there is nothing at the place.
std::error_code replaceInSteps(const fs::path& made, const fs::path& place) {
    const fs::path former = fs::path(made) += "-former";
    std::error_code error;
    fs::rename(place, former, error);
    if (error) {
        return error;
    }
    fs::rename(made, place, error);
    std::error_code ignored;
    fs::rename(former, error ? place : made, ignored);
    return error;
}

} // namespace

std::error_code replaceDirectory(const fs::path& made, const fs::path& place) {
    std::error_code error;
    if (!fs::exists(place, error)) {
        fs::rename(made, place, error);
        return error;
    }
    if (renameat2(AT_FDCWD, made.c_str(), AT_FDCWD, place.c_str(), RENAME_EXCHANGE) == 0) {
        return {};
    }
    if (errno == EINVAL || errno == ENOSYS) {
        return replaceInSteps(made, place);
    }
    return {errno, std::generic_category()};
}

} // namespace pozhil::platform
