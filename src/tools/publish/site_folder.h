#pragma once

#include "platform/interrupt.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace pozhil::tools {

/// Why a folder can't be published to.
struct FolderProblem {
    enum class Kind {
        NotOurs,     ///< there is something that this command hasn't made
        ForeignFile, ///< it is ours, but somebody has put something into it
        Unwritable   ///< the system doesn't let us
    };

    Kind kind;
    std::filesystem::path path;
};

/// A folder that holds a published application. A file in it tells that it is one, and what it was made of.
class SiteFolder {
public:
    /// \param place where it is to be, or is already
    explicit SiteFolder(const std::filesystem::path& place);

    const std::filesystem::path& place() const { return place_; }

    /// What keeps it from being made or replaced; nothing if all is well.
    std::optional<FolderProblem> problem() const;

    /// Puts a finished folder in its place, with the file that tells what it is. The former is then where \p made was.
    /// \throws std::filesystem::filesystem_error
    void replaceWith(const std::filesystem::path& made) const;

private:
    std::filesystem::path place_;
};

/// A folder beside another, where it is made before anyone sees it. It goes with the object, and with the process.
class Workshop {
public:
    /// \throws std::filesystem::filesystem_error if it can't be made
    explicit Workshop(const std::filesystem::path& neighbour);
    ~Workshop();
    Workshop(const Workshop&) = delete;
    Workshop& operator=(const Workshop&) = delete;

    const std::filesystem::path& folder() const { return folder_; }

    /// From now on nothing in it is removed by a signal: it is about to be moved away.
    void close() { removal_.reset(); }

private:
    std::filesystem::path folder_;
    std::optional<platform::EndingRemoval> removal_;
};

} // namespace pozhil::tools
