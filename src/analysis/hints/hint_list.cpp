#include "analysis/hints/hint_list.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace pozhil {

void HintList::add(HintKind kind, const Expression& node, std::string text, Mend mend) {
    addAtNode(kind, node, std::move(text), std::move(mend));
}

void HintList::add(HintKind kind, const Statement& node, std::string text) {
    addAtNode(kind, node, std::move(text), {});
}

template <class Node> void HintList::addAtNode(HintKind kind, const Node& node, std::string text, Mend mend) {
    const SourcePlace place = parser_.places().of(node).value_or(SourcePlace{parser_.scanned().source, {}});
    const std::int32_t line = node.line > 0 ? node.line : lineOf(place);
    hints_.push_back({kind, place, line, std::move(text), std::move(mend)});
}

void HintList::addAtToken(HintKind kind, std::size_t token, std::string text, Mend mend) {
    const ScannedSource& scanned = parser_.scanned();
    const ByteRange range = token < scanned.places.size() ? scanned.places[token] : ByteRange{};
    hints_.push_back({kind, {scanned.source, range}, scanned.tokens[token].line, std::move(text), std::move(mend)});
}

/// Tokens know best, since line ends inside a text don't count; those of imported files are gone.
std::int32_t HintList::lineOf(const SourcePlace& place) {
    const ScannedSource& scanned = parser_.scanned();
    if (place.source == scanned.source) {
        const auto token =
            std::lower_bound(scanned.places.begin(), scanned.places.end(), place.range.begin,
                             [](const ByteRange& range, std::uint32_t position) { return range.begin < position; });
        return token == scanned.places.end()
                   ? 1
                   : scanned.tokens[static_cast<std::size_t>(std::distance(scanned.places.begin(), token))].line;
    }
    const std::vector<std::uint32_t>& ends = lineEndsOf(*place.source);
    const auto next = std::lower_bound(ends.begin(), ends.end(), place.range.begin);
    return 1 + static_cast<std::int32_t>(std::distance(ends.begin(), next));
}

const std::vector<std::uint32_t>& HintList::lineEndsOf(const SourceText& source) {
    const auto [known, isNew] = lineEnds_.try_emplace(&source);
    if (isNew) {
        for (std::size_t end = source.text.find('\n'); end != std::string::npos;
             end = source.text.find('\n', end + 1)) {
            known->second.push_back(static_cast<std::uint32_t>(end));
        }
    }
    return known->second;
}

std::vector<Hint> HintList::take() {
    const SourcePtr& own = parser_.scanned().source;
    const auto order = [&](const Hint& hint) {
        return std::tuple(hint.place.source != own, std::string_view(hint.place.source->path), hint.line,
                          hint.place.range.begin);
    };
    std::stable_sort(hints_.begin(), hints_.end(), [&](const Hint& a, const Hint& b) { return order(a) < order(b); });
    std::vector<Hint> kept;
    std::size_t lineStart = 0;
    for (Hint& hint : hints_) {
        const bool isNewLine =
            kept.empty() || kept.back().line != hint.line || kept.back().place.source != hint.place.source;
        lineStart = isNewLine ? kept.size() : lineStart;
        const auto begin = kept.begin() + static_cast<std::ptrdiff_t>(lineStart);
        if (std::none_of(begin, kept.end(), [&](const Hint& one) { return one.kind == hint.kind; })) {
            kept.push_back(std::move(hint));
        }
    }
    hints_.clear();
    return kept;
}

} // namespace pozhil
