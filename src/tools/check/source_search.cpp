#include "tools/check/source_search.h"

#include "base/text.h"
#include "front_end/second_imports.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

namespace pozhil::tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* SOURCE_ENDING = ".பொழில்";

class Search {
public:
    void add(const std::string& given) {
        const fs::path path = fs::u8path(given);
        std::error_code ignored;
        if (fs::is_directory(path, ignored)) {
            walk(path);
        } else {
            addSource(path);
        }
    }

    FoundSources take() { return std::move(found_); }

private:
    void addSource(const fs::path& path) {
        const std::string shown = path.u8string();
        if (seen_.insert(SecondImports::keyOf(shown)).second) {
            found_.paths.push_back(shown);
        }
    }

    /// The folder and all below it; a list of what is still to be walked, since folders nest deeper than calls.
    void walk(const fs::path& top) {
        std::vector<fs::path> folders = {top};
        while (!folders.empty()) {
            const fs::path folder = folders.back();
            folders.pop_back();
            if (!seen_.insert(SecondImports::keyOf(folder.u8string())).second) {
                continue;
            }
            std::vector<fs::path> below;
            for (const fs::path& entry : entriesOf(folder)) {
                std::error_code ignored;
                if (fs::is_directory(entry, ignored)) {
                    below.push_back(entry);
                } else if (endsWith(entry.native(), SOURCE_ENDING)) {
                    addSource(entry);
                }
            }
            folders.insert(folders.end(), below.rbegin(), below.rend());
        }
    }

    /// What isn't hidden in a folder, in the order of the names' bytes.
    std::vector<fs::path> entriesOf(const fs::path& folder) {
        std::vector<fs::path> entries;
        std::error_code error;
        for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator(); at.increment(error)) {
            const fs::path name = at->path().filename();
            if (!startsWith(name.native(), ".")) {
                entries.push_back(folder == "." ? name : at->path());
            }
        }
        if (error) {
            found_.unread.push_back({folder.u8string(), "இந்த அடைவைப் படிக்க முடியவில்லை"});
        }
        std::sort(entries.begin(), entries.end());
        return entries;
    }

    FoundSources found_;
    /// What tells files and folders apart.
    std::set<std::string> seen_;
};

} // namespace

FoundSources findSources(const std::vector<std::string>& given) {
    Search search;
    for (const std::string& path : given) {
        search.add(path);
    }
    return search.take();
}

} // namespace pozhil::tools
