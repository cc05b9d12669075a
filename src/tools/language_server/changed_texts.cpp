#include "tools/language_server/changed_texts.h"

#include "front_end/second_imports.h"

#include <algorithm>
#include <utility>

namespace pozhil::language_server {

ChangedTexts::ChangedTexts(const Workspace& workspace) : workspace_(workspace) {
    for (const SourcePtr& open : workspace.openSources()) {
        texts_.set(SecondImports::keyOf(open->path), open);
    }
}

SourcePtr ChangedTexts::change(const SourcePtr& source, std::vector<ByteRange> places, const std::string& text) {
    // From the end, so that what comes before keeps its place.
    std::sort(places.begin(), places.end(), [](ByteRange one, ByteRange other) { return one.begin > other.begin; });
    std::string changed = source->text;
    for (const ByteRange& place : places) {
        changed.replace(place.begin, place.end - place.begin, text);
    }
    SourcePtr result = makeSource(source->path, std::move(changed));
    texts_.set(SecondImports::keyOf(source->path), result);
    return result;
}

FrontEndOptions ChangedTexts::options() const {
    FrontEndOptions options = workspace_.frontEndOptions();
    options.loader = &texts_;
    return options;
}

} // namespace pozhil::language_server
