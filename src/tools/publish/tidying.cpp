#include "tools/publish/tidying.h"

#include "base/text.h"

#include <cstddef>
#include <sstream>
#include <string_view>

namespace pozhil::tools {

std::string tidiedPage(const std::string& page) {
    std::istringstream lines(page);
    std::string tidied;
    bool isInScript = false;
    for (std::string line; std::getline(lines, line);) {
        line.erase(0, line.find_first_not_of(" \t"));
        isInScript = (isInScript || line.rfind("<script", 0) == 0) && line.find("</script>") == std::string::npos;
        const bool isComment = isInScript && line.rfind("//", 0) == 0;
        if (!line.empty() && !isComment) {
            tidied += line + "\n";
        }
    }
    return tidied;
}

std::string tidiedScript(std::string script) {
    constexpr std::string_view BEFORE = "PACKAGE_NAME=\"";
    constexpr std::string_view NAME = "index.data";
    const std::size_t found = script.find(BEFORE);
    const std::size_t begin = found + BEFORE.size();
    const std::size_t end = found == std::string::npos ? found : script.find('"', begin);
    if (end == std::string::npos || end == begin) {
        return script;
    }
    const std::string place = script.substr(begin, end - begin);
    replaceAll(script, place, NAME);
    return script;
}

} // namespace pozhil::tools
