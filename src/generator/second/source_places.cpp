#include "generator/second/source_places.h"

#include <algorithm>
#include <filesystem>

namespace pozhil::resolved::writer {

SourcePlaces::SourcePlaces(const resolved::Program& program) {
    for (const resolved::File& file : program.files) {
        files_.push_back({file.source.get(), LineIndex(file.source->text)});
    }
}

std::string_view SourcePlaces::lineText(const File& file, std::size_t line) {
    const std::string_view rest = std::string_view(file.source->text).substr(file.lines.beginOf(line));
    return rest.substr(0, rest.find('\n'));
}

std::string SourcePlaces::literal(const resolved::Place& place) const {
    const File& file = fileOf(place);
    const std::size_t line = file.lines.lineAt(place.range.begin);
    const std::size_t lineBegin = file.lines.beginOf(line);
    const std::size_t begin = place.range.begin - lineBegin;
    const std::size_t end = std::min<std::size_t>(place.range.end - lineBegin, lineText(file, line).size());
    const std::string number = isOwn(place) ? "" : std::to_string(place.file + 1) + "/";
    return "\"" + number + std::to_string(line) + ":" + std::to_string(begin) + "-" +
           std::to_string(std::max(begin, end)) + "\"";
}

std::size_t SourcePlaces::lineOf(const resolved::Place& place) const {
    return fileOf(place).lines.lineAt(place.range.begin);
}

std::string SourcePlaces::description(const resolved::Place& place) const {
    const std::size_t line = lineOf(place);
    std::string_view text = lineText(fileOf(place), line);
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    const std::string file =
        isOwn(place) ? "" : std::filesystem::u8path(fileOf(place).source->path).filename().u8string() + " ";
    return file + std::to_string(line) + ": " + std::string(text);
}

std::vector<const SourceText*> SourcePlaces::sources() const {
    std::vector<const SourceText*> sources;
    if (!files_.empty()) {
        sources.push_back(files_.back().source);
    }
    for (std::size_t index = 0; index + 1 < files_.size(); ++index) {
        sources.push_back(files_[index].source);
    }
    return sources;
}

} // namespace pozhil::resolved::writer
