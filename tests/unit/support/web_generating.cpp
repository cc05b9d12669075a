#include "support/web_generating.h"

#include <gtest/gtest.h>

namespace pozhil::test {

std::string app(const std::string& header, const std::string& body, const std::string& logic) {
    return "வலைதளம் கடை (\n    தலைமை (" + header + ")\n    குமரி (" + body + ")\n    வரையறை (\n" + logic + "    )\n)\n";
}

std::string webText(const std::string& source) {
    return ownPart(generatedText(source));
}

namespace {

std::string frameIn(const std::string& text) {
    const std::size_t begin = text.find("float forcedW = -1.0f;");
    return text.substr(begin, text.find("window.savedMouseX", begin) - begin);
}

} // namespace

std::string frameOf(const std::string& widget) {
    return frameIn(webText(app("", widget)));
}

std::string frameOf(std::unique_ptr<WidgetNode> widget) {
    StatementPtr page = make<WebAppNode>("கடை", nullptr, nullptr, std::move(widget), nullptr);
    return frameIn(ownPart(generatedText("", listOf(std::move(page)))));
}

void expectInOrder(const std::string& text, const std::vector<std::string>& pieces) {
    std::size_t position = 0;
    for (const std::string& piece : pieces) {
        const std::size_t found = text.find(piece, position);
        ASSERT_NE(found, std::string::npos) << "missing, or out of order: " << piece << "\nin\n"
                                            << text.substr(position);
        position = found + piece.size();
    }
}

} // namespace pozhil::test
