#include "tools/check/seen_sources.h"

#include "front_end/second_imports.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace pozhil::tools {

SourcePtr SeenSources::load(const std::string& path) const {
    // Before it is read: what is written meanwhile counts as a change.
    times_[path] = timeOfChangeIfThere(std::filesystem::u8path(path));
    SourcePtr source = FileLoader().load(path);
    if (source != nullptr) {
        read_.insert(SecondImports::keyOf(path));
    }
    return source;
}

std::set<std::string> SeenSources::takeRead() {
    return std::exchange(read_, {});
}

void SeenSources::forget() {
    times_.clear();
    read_.clear();
}

bool SeenSources::haveChanged() const {
    return std::any_of(times_.begin(), times_.end(), [](const auto& seen) {
        return timeOfChangeIfThere(std::filesystem::u8path(seen.first)) != seen.second;
    });
}

} // namespace pozhil::tools
