#include "emit/placeholder.h"

#include <stdexcept>

namespace pozhil {

std::string withPlaceholder(std::string_view text, std::string_view placeholder, std::string_view value) {
    const std::size_t position = text.find(placeholder);
    if (position == std::string_view::npos) {
        throw std::logic_error("no placeholder " + std::string(placeholder));
    }
    std::string filled(text);
    filled.replace(position, placeholder.size(), value);
    return filled;
}

} // namespace pozhil
