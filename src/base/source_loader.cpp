#include "base/source_loader.h"

#include <utility>

namespace pozhil {

SourcePtr FileLoader::load(const std::string& path) const {
    auto text = readSourceText(path);
    return text ? makeSource(path, std::move(*text)) : nullptr;
}

void MemoryLoader::set(const std::string& path, std::string text) {
    sources_[path] = makeSource(path, std::move(text));
}

SourcePtr MemoryLoader::load(const std::string& path) const {
    const auto found = sources_.find(path);
    if (found != sources_.end()) {
        return found->second;
    }
    return next_ == nullptr ? nullptr : next_->load(path);
}

} // namespace pozhil
