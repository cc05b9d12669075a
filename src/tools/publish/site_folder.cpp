#include "tools/publish/site_folder.h"

#include "platform/paths.h"
#include "platform/replace_directory.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <set>
#include <system_error>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* MARKER = "pozhil-site.txt";
/// The first line of that file; the names of all others follow, a line each.
constexpr const char* MARKER_HEAD = "பொழில் வெளியிட்ட கோப்புறை. மீண்டும் வெளியிடும்போது இந்தக் கோப்புகள் மாற்றப்படும்:";

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().u8string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// What we have put into a folder; nothing if it isn't ours.
std::optional<std::set<std::string>> ownNames(const fs::path& folder) {
    std::ifstream marker(folder / MARKER);
    std::string line;
    if (!std::getline(marker, line) || line != MARKER_HEAD) {
        return std::nullopt;
    }
    std::set<std::string> names = {MARKER};
    while (std::getline(marker, line)) {
        names.insert(line);
    }
    return names;
}

/// The nearest folder above \p path that is there.
fs::path existingFolder(const fs::path& path) {
    std::error_code ignored;
    fs::path folder = path.parent_path();
    while (!fs::exists(folder, ignored) && folder != folder.parent_path()) {
        folder = folder.parent_path();
    }
    return folder;
}

/// A name that nobody else has thought of.
fs::path freshFolder(const fs::path& parent) {
    std::random_device random;
    fs::path folder;
    do {
        folder = parent / (".pozhil-" + std::to_string(random()));
    } while (!fs::create_directory(folder));
    return folder;
}

} // namespace

SiteFolder::SiteFolder(const fs::path& place) : place_(fs::weakly_canonical(fs::absolute(place))) {
    if (place_.filename().empty()) {
        place_ = place_.parent_path(); // a slash at the end
    }
}

std::optional<FolderProblem> SiteFolder::problem() const {
    std::error_code error;
    const fs::path parent = existingFolder(place_);
    if (!platform::isWritableDirectory(parent)) {
        return FolderProblem{FolderProblem::Kind::Unwritable, parent};
    }
    if (!fs::exists(fs::symlink_status(place_, error))) {
        return std::nullopt;
    }
    if (!fs::is_directory(place_, error)) {
        return FolderProblem{FolderProblem::Kind::NotOurs, place_};
    }
    if (!platform::isWritableDirectory(place_)) {
        return FolderProblem{FolderProblem::Kind::Unwritable, place_};
    }
    const std::vector<std::string> present = namesIn(place_);
    const auto own = ownNames(place_);
    if (present.empty()) {
        return std::nullopt;
    }
    if (!own) {
        return FolderProblem{FolderProblem::Kind::NotOurs, place_};
    }
    const auto foreign = std::find_if(present.begin(), present.end(), [&](const std::string& name) {
        return own->count(name) == 0 || fs::is_directory(place_ / fs::u8path(name), error);
    });
    return foreign == present.end()
               ? std::nullopt
               : std::optional(FolderProblem{FolderProblem::Kind::ForeignFile, place_ / fs::u8path(*foreign)});
}

void SiteFolder::replaceWith(const fs::path& made) const {
    std::ofstream marker;
    marker.exceptions(std::ios::failbit | std::ios::badbit);
    const std::vector<std::string> names = namesIn(made);
    marker.open(made / MARKER, std::ios::binary);
    marker << MARKER_HEAD << "\n";
    for (const std::string& name : names) {
        marker << name << "\n";
    }
    marker.close();
    if (const std::error_code error = platform::replaceDirectory(made, place_)) {
        throw fs::filesystem_error("", made, place_, error);
    }
}

Workshop::Workshop(const fs::path& neighbour) {
    fs::create_directories(neighbour.parent_path());
    folder_ = freshFolder(neighbour.parent_path());
    removal_.emplace(folder_);
}

Workshop::~Workshop() {
    removal_.reset();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

} // namespace pozhil::tools
