#include "generator/web/page/web_emitter.h"

#include "generator/web/page/database.h"
#include "generator/web/page/page.h"
#include "generator/web/page/page_text.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/widget_properties.h"

#include <utility>

namespace pozhil {

WebEmitter::WebEmitter(CodeWriter& out, EditionWriter& edition, Application application)
    : out_(out), edition_(edition), application_(std::move(application)), widgets_(out, edition) {}

void WebEmitter::writeDatabaseSetup() {
    for (const WebAppNode* app : application_.pages) {
        emitDatabaseSetup(out_, *app);
    }
}

void WebEmitter::writeProgram() {
    writeFrameHead();
    {
        const CodeWriter::Indented inFrame(out_);
        for (const WebAppNode* app : application_.pages) {
            emitPage(widgets_, *app);
        }
    }
    writeFrameTail();
    writeMain();
}

/// What a parent imposes on a widget passes through the two forced sizes.
void WebEmitter::writeFrameHead() {
    const Filling openAlerts([this] { edition_.writeOpenAlerts(out_); });
    const Filling drawing([this] { edition_.writeDrawing(out_); });
    const Filling windowSize([this] {
        const CodeWriter::Indented inFrame(out_);
        edition_.writeWindowSize(out_);
    });
    out_.block(page_text::frame_head, {{"leastTextScale", edition_.leastTextScale()},
                                       {"openAlerts", openAlerts},
                                       {"drawing", drawing},
                                       {"windowSize", windowSize}});
    out_ << "    float forcedW = -1.0f; float forcedH = -1.0f; float maxW = -1.0f; float maxH = -1.0f;\n"
         << "    " << edition_.frameGuard() << "([&] {\n";
}

void WebEmitter::writeFrameTail() {
    const MessageBar bar = edition_.messageBar();
    out_.block(page_text::frame_tail,
               {{"guard", edition_.frameGuard()},
                {"isShown", bar.isShown},
                {"since", bar.since},
                {"top", bar.top},
                {"moved", bar.moved},
                {"hidden", bar.hidden},
                {"message", bar.message},
                {"shield", edition_.layering().shields({"barX", "barX + barW", "currentY", "currentY + barH"})},
                {"red", bar.red},
                {"green", bar.green},
                {"blue", bar.blue}});
}

void WebEmitter::writeMain() {
    constexpr float DEFAULT_WIDTH = 1280.0F;
    constexpr float DEFAULT_HEIGHT = 720.0F;
    const ScreenConfig& screen = application_.screen;
    out_.block(page_text::main, {{"width", floatConstant(screen.useDefault ? DEFAULT_WIDTH : screen.width)},
                                 {"height", floatConstant(screen.useDefault ? DEFAULT_HEIGHT : screen.height)},
                                 {"title", edition_.literal(application_.windowName)},
                                 {"fontHost", POZHIL_WEB_FONT_HOST}});
}

bool WebEmitter::writeStatement(const Statement* statement) {
    if (const auto* read = nodeCast<RTDBReadStatement>(statement)) {
        emitRead(out_, edition_, *read);
    } else if (const auto* app = nodeCast<WebAppNode>(statement)) {
        emitPage(widgets_, *app);
    } else if (const WidgetNode* widget = asWidget(statement)) {
        widgets_.writeWidgetStatement(*widget);
    } else {
        return false;
    }
    return true;
}

bool WebEmitter::writeExpression(const Expression* expression) {
    if (nodeCast<ColorExpression>(expression) != nullptr) {
        out_ << byteColourText(*colourOf(expression));
    } else if (const auto* insert = nodeCast<RTDBInsertExpression>(expression)) {
        emitInsert(out_, edition_, *insert);
    } else if (const auto* update = nodeCast<RTDBUpdateExpression>(expression)) {
        emitUpdate(out_, edition_, *update);
    } else if (const auto* remove = nodeCast<RTDBDeleteExpression>(expression)) {
        emitDelete(out_, edition_, *remove);
    } else if (const WidgetNode* widget = asWidget(expression)) {
        widgets_.writeWidgetValue(*widget);
    } else {
        return false;
    }
    return true;
}

} // namespace pozhil
