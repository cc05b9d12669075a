#include "diagnostics/second_fault.h"

#include "report/catalogue.h"

#include <algorithm>
#include <string_view>

namespace pozhil {

report::Excerpt excerptOf(const SourcePlace& place) {
    const std::string_view text = place.source->text;
    const std::size_t begin = std::min<std::size_t>(place.range.begin, text.size());
    const std::string_view before = text.substr(0, begin);
    const std::size_t lineBegin = before.rfind('\n') + 1; // npos + 1 is the beginning of the text
    const std::size_t lineEnd = std::min(text.find('\n', lineBegin), text.size());
    report::Excerpt excerpt;
    excerpt.file = place.source->path;
    excerpt.line = 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
    excerpt.lineText = std::string(text.substr(lineBegin, lineEnd - lineBegin));
    excerpt.begin = std::min(begin, lineEnd) - lineBegin;
    excerpt.end = std::min<std::size_t>(std::max<std::size_t>(place.range.end, begin), lineEnd) - lineBegin;
    excerpt.end = std::max(excerpt.begin, excerpt.end);
    return excerpt;
}

report::FaultText faultText(const SecondFault& fault) {
    const std::vector<std::string_view> values(fault.values.begin(), fault.values.end());
    report::FaultText text;
    text.code = report::codeOf(fault.number);
    if (const report::Entry* entry = report::findEntry(fault.number)) {
        text.category = entry->category;
        text.message = report::filled(entry->message, values.data(), values.size());
        text.remedy = report::filled(entry->remedy, values.data(), values.size());
    }
    if (!fault.remedy.empty()) {
        text.remedy = fault.remedy;
    }
    text.suggestion = fault.suggestion;
    if (fault.place.source != nullptr) {
        text.excerpt = excerptOf(fault.place);
    }
    return text;
}

} // namespace pozhil
