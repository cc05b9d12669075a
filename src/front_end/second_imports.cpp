#include "front_end/second_imports.h"

#include "parser/import_loader.h"

#include <algorithm>
#include <filesystem>
#include <ios>
#include <system_error>

namespace pozhil {
namespace {

/// Of a module's directory: texts that the second edition has of its own.
constexpr const char* SECOND_TEXTS = "இரண்டாம்_பதிப்பு";

std::filesystem::path pathOf(const std::string& path) {
    return std::filesystem::u8path(path);
}

} // namespace

SourcePtr SecondImports::load(const std::string& written, const std::string& importer) const {
    static const FileLoader files;
    const SourceLoader& loader = options_.loader == nullptr ? files : *options_.loader;
    const std::filesystem::path path = pathOf(ImportLoader::modulePath(written));
    for (const std::string& directory : directoriesFor(importer)) {
        try {
            if (SourcePtr source = loader.load((pathOf(directory) / path).lexically_normal().u8string())) {
                return source;
            }
        } catch (const std::ios_base::failure&) {
            // What can be opened but not read is as good as missing.
        }
    }
    return nullptr;
}

/// Where a file may be that \p importer imports. Modules import each other where they are looked for themselves, so that
/// one never gets the first edition's text of another that has two.
std::vector<std::string> SecondImports::directoriesFor(const std::string& importer) const {
    const auto secondTexts = [](const std::string& directory) { return (pathOf(directory) / SECOND_TEXTS).u8string(); };
    std::filesystem::path beside = pathOf(importer).parent_path();
    if (beside.filename() == pathOf(SECOND_TEXTS) && isModuleDirectory(beside.parent_path().u8string())) {
        beside = beside.parent_path();
    }
    std::vector<std::string> directories;
    if (isModuleDirectory(beside.u8string())) {
        directories.push_back(secondTexts(beside.u8string()));
    }
    directories.push_back(beside.u8string());
    directories.emplace_back();
    for (const std::string& module : options_.moduleDirectories) {
        directories.push_back(secondTexts(module));
        directories.push_back(module);
    }
    return directories;
}

bool SecondImports::isModuleDirectory(const std::string& directory) const {
    const auto& modules = options_.moduleDirectories;
    return std::any_of(modules.begin(), modules.end(),
                       [&](const std::string& module) { return keyOf(module) == keyOf(directory); });
}

std::string SecondImports::keyOf(const std::string& path) {
    std::error_code ignored;
    const std::filesystem::path whole = std::filesystem::current_path(ignored) / pathOf(path);
    const std::filesystem::path canonical = std::filesystem::weakly_canonical(whole, ignored);
    return (ignored ? whole.lexically_normal() : canonical).u8string();
}

} // namespace pozhil
