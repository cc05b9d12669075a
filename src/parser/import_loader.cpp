#include "parser/import_loader.h"

#include "base/text.h"

#include <utility>

namespace pozhil {
namespace {

/// The web module has a short name.
constexpr std::string_view WEB_MODULE = "வலைதளம்";
constexpr std::string_view WEB_MODULE_PATH = "தொகுப்புகள்/வலைதளம்/வலைதளம்.பொழில்";

} // namespace

ImportLoader::ImportLoader(const SourceLoader& loader, std::vector<std::string> moduleDirectories)
    : loader_(loader), moduleDirectories_(std::move(moduleDirectories)) {}

std::string ImportLoader::modulePath(std::string_view written) {
    std::string path(written == WEB_MODULE ? WEB_MODULE_PATH : written);
    if (!endsWith(path, ".pozhil") && !endsWith(path, ".பொழில்")) {
        path += ".பொழில்";
    }
    return path;
}

bool ImportLoader::isFirstImport(const std::string& path) {
    return importedPaths_.insert(path).second;
}

SourcePtr ImportLoader::load(const std::string& path) const {
    if (SourcePtr source = loader_.load(path)) {
        return source;
    }
    for (const std::string& directory : moduleDirectories_) {
        std::string candidate = directory;
        candidate.append("/").append(path);
        if (SourcePtr source = loader_.load(candidate)) {
            return source;
        }
    }
    return nullptr;
}

} // namespace pozhil
