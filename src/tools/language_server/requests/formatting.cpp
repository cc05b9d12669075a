#include "tools/language_server/requests/formatting.h"

#include "base/source_text.h"
#include "base/text.h"
#include "formatter/formatter.h"
#include "tools/language_server/names.h"
#include "tools/language_server/protocol.h"

#include <string>

namespace pozhil::language_server {

Json formatting(const Workspace& workspace, const Json& params) {
    const Document* document = nullptr;
    const NamedSource file = askedSource(workspace, params, document);
    // The client counts a line there, which the source doesn't have.
    if (hasLoneCarriageReturns(document->text().text())) {
        return nullptr;
    }
    const FormattedSource formatted = formatSource(file.source, workspace.frontEndOptions());
    if (formatted.result != FormatResult::Formatted) {
        return nullptr;
    }
    if (formatted.text == file.source->text) {
        return Json::array();
    }
    std::string text = formatted.text;
    if (document->text().text().find("\r\n") != std::string::npos) {
        replaceAll(text, "\n", "\r\n");
    }
    const ByteRange whole{0, static_cast<std::uint32_t>(file.source->text.size())};
    return Json::array({{{"range", jsonOf(document->rangeOf(whole))}, {"newText", text}}});
}

} // namespace pozhil::language_server
