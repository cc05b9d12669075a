#include "tools/language_server/document.h"

#include "base/text.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace pozhil::language_server {
namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

/// What reading a source from a file drops.
std::vector<std::size_t> droppedBytes(std::string_view text) {
    std::vector<std::size_t> dropped;
    if (startsWith(text, BYTE_ORDER_MARK)) {
        dropped = {0, 1, 2};
    }
    for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at + 1)) {
        dropped.push_back(at);
    }
    return dropped;
}

std::string without(std::string_view text, const std::vector<std::size_t>& dropped) {
    std::string kept;
    kept.reserve(text.size() - dropped.size());
    std::size_t begin = 0;
    for (const std::size_t at : dropped) {
        kept += text.substr(begin, at - begin);
        begin = at + 1;
    }
    kept += text.substr(begin);
    return kept;
}

} // namespace

Document::Document(std::string uri, std::string path, ClientText text, std::int64_t version)
    : uri_(std::move(uri)), path_(std::move(path)), text_(std::move(text)), version_(version) {
    set(text_, version);
}

void Document::set(ClientText text, std::int64_t version) {
    text_ = std::move(text);
    version_ = version;
    dropped_ = droppedBytes(text_.text());
    sourcePlacesOfDropped_ = dropped_;
    for (std::size_t i = 0; i < sourcePlacesOfDropped_.size(); ++i) {
        sourcePlacesOfDropped_[i] -= i;
    }
    source_ = makeSource(path_, without(text_.text(), dropped_));
}

Range Document::rangeOf(ByteRange range) const {
    return {positionOf(range.begin), positionOf(std::max(range.begin, range.end))};
}

Position Document::positionOf(std::size_t sourceOffset) const {
    // The first dropped byte that stands after it, counted in bytes of the source.
    const auto after = std::upper_bound(sourcePlacesOfDropped_.begin(), sourcePlacesOfDropped_.end(), sourceOffset);
    std::size_t at = sourceOffset + static_cast<std::size_t>(std::distance(sourcePlacesOfDropped_.begin(), after));
    // The end of a line stands before its carriage return.
    const std::string& text = text_.text();
    if (at > 0 && at < text.size() && text[at] == '\n' && text[at - 1] == '\r') {
        --at;
    }
    return text_.positionAt(at);
}

std::size_t Document::sourceOffsetAt(Position position) const {
    const std::size_t at = text_.offsetAt(position);
    const auto before = std::lower_bound(dropped_.begin(), dropped_.end(), at);
    return at - static_cast<std::size_t>(std::distance(dropped_.begin(), before));
}

} // namespace pozhil::language_server
