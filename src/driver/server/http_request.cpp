#include "driver/server/http_request.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace pozhil {
namespace {

constexpr std::string_view LINE_END = "\r\n";

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    const std::size_t last = text.find_last_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first, last - first + 1);
}

std::vector<std::string_view> splitAt(char separator, std::string_view text) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.push_back(trimmed(text.substr(0, end)));
        if (end == std::string_view::npos) {
            return parts;
        }
        text.remove_prefix(end + 1);
    }
}

/// The values of a header, one for each line that has its name. A last line without an end may have lost some of its own.
/// \param name in small letters
std::vector<std::string_view> valuesOf(std::string_view name, std::string_view headers) {
    std::vector<std::string_view> values;
    for (std::size_t end = headers.find(LINE_END); end != std::string_view::npos && end > 0;
         end = headers.find(LINE_END)) {
        const std::string_view line = headers.substr(0, end);
        const std::size_t colon = line.find(':');
        if (colon != std::string_view::npos && lowered(line.substr(0, colon)) == name) {
            values.push_back(trimmed(line.substr(colon + 1)));
        }
        headers.remove_prefix(end + LINE_END.size());
    }
    return values;
}

std::optional<std::string> onlyOne(const std::vector<std::string_view>& values) {
    return values.size() == 1 ? std::optional<std::string>(values.front()) : std::nullopt;
}

/// Whether a weight, such as "q=0.5", is more than nothing. So is what isn't a weight.
bool hasWeight(const std::vector<std::string_view>& parts) {
    return std::none_of(parts.begin() + 1, parts.end(), [](std::string_view part) {
        const bool isWeight = part.size() > 2 && lower(part[0]) == 'q' && part[1] == '=';
        return isWeight && part.find_first_not_of("0.", 2) == std::string_view::npos;
    });
}

bool takesGzip(const std::vector<std::string_view>& acceptedEncodings) {
    bool takesAny = false;
    for (const std::string_view header : acceptedEncodings) {
        for (const std::string_view encoding : splitAt(',', header)) {
            const auto parts = splitAt(';', encoding);
            const std::string name = lowered(parts.front());
            if (name == "gzip" || name == "x-gzip") {
                return hasWeight(parts);
            }
            takesAny = takesAny || (name == "*" && hasWeight(parts));
        }
    }
    return takesAny;
}

void readHeaders(std::string_view headers, HttpRequest& request) {
    request.acceptsGzip = takesGzip(valuesOf("accept-encoding", headers));
    request.host = onlyOne(valuesOf("host", headers));
    const auto origins = valuesOf("origin", headers);
    request.hasOrigin = !origins.empty();
    request.origin = onlyOne(origins);
    // Nothing that the client could compare with was ever sent along, so what it has kept is of another file.
    if (valuesOf("if-range", headers).empty() && !request.isHead) {
        request.range = onlyOne(valuesOf("range", headers)).value_or("");
    }
}

} // namespace

std::string urlDecode(const std::string& text) {
    constexpr std::size_t DIGITS = 2;
    constexpr int HEXADECIMAL = 16;
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '+') {
            decoded += ' ';
        } else if (text[i] == '%' && i + DIGITS < text.size()) {
            try {
                decoded += static_cast<char>(std::stoi(text.substr(i + 1, DIGITS), nullptr, HEXADECIMAL));
                i += DIGITS;
            } catch (const std::invalid_argument&) {
                decoded += '%';
            }
        } else {
            decoded += text[i];
        }
    }
    return decoded;
}

std::optional<HttpRequest> readRequest(std::string_view received) {
    const std::string_view text = received.substr(0, received.find('\0'));
    const std::size_t before = text.find(' ');
    const std::size_t after = before == std::string_view::npos ? before : text.find(' ', before + 1);
    if (after == std::string_view::npos) {
        return std::nullopt;
    }
    HttpRequest request;
    request.path = urlDecode(std::string(text.substr(before + 1, after - before - 1)));
    request.isHead = text.substr(0, before) == "HEAD";
    const std::size_t lineEnd = text.find(LINE_END, after);
    if (lineEnd != std::string_view::npos) {
        readHeaders(text.substr(lineEnd + LINE_END.size()), request);
    }
    return request;
}

} // namespace pozhil
