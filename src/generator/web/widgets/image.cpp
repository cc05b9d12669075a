#include "generator/web/measure/metric_rules.h"
#include "generator/web/write/literals.h"
#include "generator/web/write/sizes.h"
#include "generator/web/write/widget_writer.h"
#include "language/widget_words.h"

namespace pozhil {
namespace {

void emitRectangle(WidgetWriter& image) {
    image.block(R"(
{
    float imgX = std::floor($x); float imgY = std::floor($y);
    float tw = 100.0f; float th = 100.0f; float r = 0.0f;
)");
    emitGivenSize(image, {"style_அகலம்", "அகலம்"}, "tw", "(forcedW > 0.0f ? forcedW : winWidth)");
    emitGivenSize(image, {"style_உயரம்", "உயரம்"}, "th", "(forcedH > 0.0f ? forcedH : winHeight)");
    image.block(R"(
    r = $radius;
    if (forcedW > 0.0f) tw = forcedW;
    if (forcedH > 0.0f) th = forcedH;
    tw = responsiveW(tw, winWidth, 0.0f);
    std::string path = $path;
    bool isGif = path.size() >= 4 && (path.substr(path.size() - 4) == ".gif" || path.substr(path.size() - 4) == ".GIF");
)",
                {{"radius", numberConstant(image.widget(), {"வளைவு"}, 0.0F)},
                 {"path", image.edition().literal(pictureFile(image.widget()))}});
}

/// படம்: a picture from a file, stretched to its box; an animated one is played by the browser.
void emitImage(WidgetWriter& image) {
    emitRectangle(image);
    image.block(R"(
    if (isGif) {
        std::string imgId = $id;
        float mx = pozhil_mouse_x();
        float my = pozhil_mouse_y();
        bool isImgHover = mx >= imgX - 10 && mx <= imgX + tw + 10 && my >= imgY - 10 && my <= imgY + th + 10;
        pozhil_place_gif(imgId.c_str(), path.c_str(), imgX, imgY, tw, th, r, isImgHover);
    } else {
        static int img_$n = -1;
        if (img_$n == -1) {
            if (path.size() >= 4 && path.substr(path.size() - 4) == ".svg") {
                img_$n = loadSVGImage(vg, path.c_str(), tw, th);
            } else {
                img_$n = nvgCreateImage(vg, path.c_str(), NVG_IMAGE_GENERATE_MIPMAPS | NVG_IMAGE_NEAREST);
            }
        }
        if (img_$n > 0) {
            NVGpaint imgPaint = nvgImagePattern(vg, imgX, imgY, tw, th, 0.0f, img_$n, 1.0f);
            nvgBeginPath(vg);
            if (r > 0.1f) {
                nvgRoundedRect(vg, imgX, imgY, tw, th, r);
            } else {
                nvgRect(vg, imgX, imgY, tw, th);
            }
            nvgFillPaint(vg, imgPaint);
            nvgFill(vg);
        }
    }
}
)",
                {{"id", image.nameFrom("\"gif_" + image.number() + "\"")}});
}

} // namespace

extern const WidgetKind IMAGE = {language::widget::IMAGE, emitImage, sized<100>, sized<100>};

} // namespace pozhil
