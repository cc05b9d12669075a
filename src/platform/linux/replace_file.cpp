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

/// Whether another file may take the place of one: its other names would go on leading to the old one, and a new file may
/// not be given to any owner.
bool canStandFor(int descriptor, const struct stat& former) {
    return former.st_nlink == 1 && takeOver(descriptor, former);
}

/// \param stands whether the new file can take the place of the former one
std::error_code writeNew(const fs::path& made, std::string_view contents, const struct stat& former, bool& stands) {
    const int descriptor = open(made.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, MODE_AT_FIRST);
    if (descriptor < 0) {
        return lastError();
    }
    const bool isWhole = writeAll(descriptor, contents);
    std::error_code error = isWhole ? std::error_code() : lastError();
    stands = canStandFor(descriptor, former);
    if (!error && fsync(descriptor) != 0) {
        error = lastError();
    }
    if (close(descriptor) != 0 && !error) {
        error = lastError();
    }
    return error;
}

/// Takes the room for so many bytes, so that a full disk is known before anything is lost.
/// \return false if there is none, the file being as it was
bool takeRoom(int descriptor, off_t size, const struct stat& former) {
    const int failure = size > 0 ? posix_fallocate(descriptor, 0, size) : 0;
    if (failure != 0 && ftruncate(descriptor, former.st_size) == 0) {
        errno = failure;
    }
    return failure == 0;
}

/// \param isHarmed whether the file is neither what it was nor what it should be
std::error_code writeOver(const fs::path& target, std::string_view contents, const struct stat& former,
                          bool& isHarmed) {
    // Some file systems read where room is taken.
    const int descriptor = open(target.c_str(), O_RDWR | O_CLOEXEC);
    if (descriptor < 0) {
        return lastError();
    }
    const auto size = static_cast<off_t>(contents.size());
    const bool hasRoom = takeRoom(descriptor, size, former);
    const bool isWhole =
        hasRoom && writeAll(descriptor, contents) && ftruncate(descriptor, size) == 0 && fsync(descriptor) == 0;
    std::error_code error = isWhole ? std::error_code() : lastError();
    if (close(descriptor) != 0 && !error) {
        error = lastError();
    }
    isHarmed = hasRoom && error;
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
    bool stands = false;
    bool isHarmed = false;
    error = writeNew(made, contents, former, stands);
    if (!error && stands) {
        fs::rename(made, target, error);
    } else if (!error) {
        error = writeOver(target, contents, former, isHarmed);
    }
    if ((error || !stands) && !isHarmed) {
        unlink(made.c_str());
    }
    return error;
}

} // namespace pozhil::platform
