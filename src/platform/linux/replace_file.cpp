#include "platform/replace_file.h"
#include "platform/fresh_path.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace pozhil::platform {
namespace {

namespace fs = std::filesystem;

constexpr mode_t ALL_OF_MODE = 07777;
/// Nobody else reads it before it has the mode of the file.
constexpr mode_t MODE_AT_FIRST = 0600;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

bool writeAll(int descriptor, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = write(descriptor, contents.data(), contents.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        contents.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return true;
}

/// Gives an open file owner and mode of another; in this order, since a new owner takes some of the mode away.
bool takeOver(int descriptor, const struct stat& former) {
    struct stat own {};
    if (fstat(descriptor, &own) != 0) {
        return false;
    }
    const bool isOwned = own.st_uid == former.st_uid && own.st_gid == former.st_gid;
    return (isOwned || fchown(descriptor, former.st_uid, former.st_gid) == 0) &&
           fchmod(descriptor, former.st_mode & ALL_OF_MODE) == 0;
}

std::error_code writeLike(const struct stat& former, const fs::path& made, std::string_view contents) {
    const int descriptor = open(made.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, MODE_AT_FIRST);
    if (descriptor < 0) {
        return lastError();
    }
    const bool isWhole = writeAll(descriptor, contents) && takeOver(descriptor, former) && fsync(descriptor) == 0;
    std::error_code error = isWhole ? std::error_code() : lastError();
    if (close(descriptor) != 0 && !error) {
        error = lastError();
    }
    return error;
}

} // namespace

std::error_code replaceFile(const fs::path& file, std::string_view contents) {
    std::error_code error;
    const fs::path target = fs::canonical(file, error);
    struct stat former {};
    if (error) {
        return error;
    }
    if (stat(target.c_str(), &former) != 0 || access(target.c_str(), W_OK) != 0) {
        return lastError();
    }
    const fs::path made = freshBeside(target.parent_path() / ".pozhil");
    error = writeLike(former, made, contents);
    if (!error) {
        fs::rename(made, target, error);
    }
    if (error) {
        unlink(made.c_str());
    }
    return error;
}

} // namespace pozhil::platform
