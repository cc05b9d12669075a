#include "generator/web/page/page.h"

#include "generator/web/page/application.h"
#include "generator/web/write/colours.h"
#include "generator/web/write/widget_context.h"
#include "generator/web/write/widget_writer.h"

namespace pozhil {
namespace {

/// The page's colour, as far as the compiler can tell it.
void emitBackgroundColour(WidgetWriter& page) {
    const Expression* background = findProperty(page.widget(), {"பின்னணி"});
    if (background == nullptr) {
        return;
    }
    const std::optional<Colour> colour = colourOf(background);
    if (colour) {
        page.block(R"(
    nvgFillColor(vg, $colour);
    nvgFill(vg);
    bgSet = true;
)",
                   {{"colour", floatColour(*colour)}});
    }
}

void emitBackgroundImage(WidgetWriter& page) {
    const Expression* path = findProperty(page.widget(), {"பின்னணிபடம்"});
    if (path == nullptr) {
        return;
    }
    page.block(R"(
    static int bgImgHandle = -1;
    if (bgImgHandle == -1) {
        bgImgHandle = nvgCreateImage(vg, $path.c_str(), 0);
    }
    if (bgImgHandle > 0) {
        nvgBeginPath(vg);
        nvgRect(vg, 0, 0, winWidth, winHeight);
        nvgFillPaint(vg, nvgImagePattern(vg, 0, 0, winWidth, winHeight, 0.0f, bgImgHandle, 1.0f));
        nvgFill(vg);
        bgSet = true;
    }
)",
               {{"path", page.edition().text(path, "")}});
}

/// How a value reads that is no text.
std::string sourceText(const Expression* value) {
    if (const auto* colour = nodeCast<ColorExpression>(value)) {
        return colour->isHex ? colour->hexValue : colour->colorName;
    }
    if (const auto* number = nodeCast<NumberLiteral>(value)) {
        return number->value;
    }
    const auto* variable = nodeCast<VariableAccess>(value);
    return variable == nullptr ? "" : variable->name;
}

/// A video behind the transparent canvas. It plays on when the page is left, behind pages that fill their background.
void emitBackgroundVideo(WidgetWriter& page) {
    const Expression* path = findProperty(page.widget(), {"பின்னணிகாணொளி"});
    if (path == nullptr) {
        return;
    }
    const auto* literal = nodeCast<StringLiteral>(path);
    if (literal == nullptr) {
        throw page.faultWithoutPlace("பொழி-254", path->line,
                                     "ஊடகப் பிழை: காணொளியின் முகவரி சரியாக இல்லை (" + sourceText(path) + ")");
    }
    page.block(R"(
    static bool videoInit_$n = false;
    if (!videoInit_$n) {
        videoInit_$n = true;
        EM_ASM({
            try {
                var content = FS.readFile(UTF8ToString($0));
                var blob = new Blob([content.buffer], ({ type: 'video/mp4' }));
                var url = URL.createObjectURL(blob);
                var video = document.getElementById('pozhilVideo');
                if (!video) {
                    video = document.createElement('video');
                    video.id = 'pozhilVideo';
                    video.style.position = 'fixed';
                    video.style.top = '0';
                    video.style.left = '0';
                    video.style.width = '100vw';
                    video.style.height = '100vh';
                    video.style.objectFit = 'cover';
                    video.style.zIndex = '-1';
                    video.muted = true;
                    video.autoplay = true;
                    video.loop = true;
                    document.body.appendChild(video);
                }
                video.src = url;
                console.log("காணொளி வெற்றிகரமாக லோட் செய்யப்பட்டது!");
            } catch (e) {
                console.error("காணொளி பிழை:", e);
            }
        }, $path);
    }
    nvgFillColor(vg, nvgRGBA(0, 0, 0, 0));
    bgSet = true;
)",
               {{"path", page.edition().literal(literal->value)}});
}

void emitTitle(WidgetWriter& page) {
    if (const Expression* title = findProperty(page.widget(), {"இணைய_தலைப்பு"})) {
        page.block(R"(
#ifdef __EMSCRIPTEN__
    emscripten::val::global("document").set("title", emscripten::val($title));
#endif
)",
                   {{"title", page.edition().text(title, "")}});
    }
}

/// The root of a page stands at the texts "0.0f", by which layouts know that they are one.
void emitRoot(WidgetContext& context, WidgetWriter& page, const Statement* root) {
    if (const WidgetNode* widget = asWidget(root)) {
        context.beginPage(*widget);
        page.slot(*widget, "0.0f", "0.0f");
    }
}

} // namespace

void emitPage(WidgetContext& context, const WebAppNode& app) {
    static const WidgetNode NO_HEADER("தலைமை", {}, {}, சீரமைப்பு_வகை::மேல்_இடது);
    const WidgetNode* header = asWidget(app.header.get());
    WidgetWriter page(context, header == nullptr ? NO_HEADER : *header, "0.0f", "0.0f", context.nextNumber());
    page.block(R"(
if (g_currentPage == $name) {
    nvgBeginPath(vg);
    nvgRect(vg, 0, 0, winWidth, winHeight);
    bool bgSet = false;
)",
               {{"name", page.edition().literal(pageName(app))}});
    page.edition().writePageSettings(page);
    emitBackgroundColour(page);
    emitBackgroundImage(page);
    emitBackgroundVideo(page);
    page.block(R"(
    if (!bgSet) {
        nvgFillColor(vg, nvgRGBA(245, 245, 245, 255));
    }
    nvgFill(vg);
)");
    emitTitle(page);
    page.block("$body\n}\n", {{"body", page.blocks([&] { emitRoot(context, page, app.uiBody.get()); })}});
}

} // namespace pozhil
