/// A web program: the frame function with all pages in it, and the start.

#include "emit/emitted_block.h"
#include "generator/first/generator.h"
#include "generator/web/page/frame_text.h"

namespace pozhil {

void Generator::emitWebProgram() {
    const WebAppNode& first = *webApps_.front();
    const auto* header = nodeCast<HeaderNode>(first.header.get());
    const ScreenConfig screen = header == nullptr ? ScreenConfig() : header->screen;
    generateWebBoilerplate();
    ++indentLevel_;
    for (const WebAppNode* app : webApps_) {
        visitWebAppNode(app);
    }
    --indentLevel_;
    writeBlock(out_, frame_text::TAIL, {});
    emitWebMain(screen, first.name);
}

/// The head of the frame function. What a parent imposes on a widget passes through the two forced sizes.
void Generator::generateWebBoilerplate() {
    writeBlock(out_, frame_text::HEAD, {});
    out_ << "    float forcedW = -1.0f; float forcedH = -1.0f; float maxW = -1.0f; float maxH = -1.0f;\n";
}

void Generator::emitWebMain(const ScreenConfig& screen, const std::string& title) {
    constexpr float DEFAULT_WIDTH = 1280.0F;
    constexpr float DEFAULT_HEIGHT = 720.0F;
    writeBlock(out_, frame_text::MAIN,
               {{"width", floatConstant(screen.useDefault ? DEFAULT_WIDTH : screen.width)},
                {"height", floatConstant(screen.useDefault ? DEFAULT_HEIGHT : screen.height)},
                {"title", title},
                {"fontHost", POZHIL_WEB_FONT_HOST}});
}

} // namespace pozhil
