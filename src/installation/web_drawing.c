/* What web programs draw with: compiled once, into nanovg_web.o, instead of anew in every program. Such a program asks
 * for the code of these headers itself; those of the installation then only declare. With headers from elsewhere the
 * program has the code too, so what both would define gives way here. */

/* What is drawn is noted down on the way, for the page: by the shapes of a frame it tells those who can't see them what
 * stands where. What nobody can see is noted down alone. */
#define nvgBeginFrame pozhilBeginFrame
#define nvgBeginPath pozhilBeginPath
#define nvgRect pozhilRect
#define nvgRoundedRect pozhilRoundedRect
#define nvgCircle pozhilCircle
#define nvgMoveTo pozhilMoveTo
#define nvgTextBounds pozhilTextBounds
#define nvgFillPaint pozhilFillPaint
#define nvgCreateImage pozhilCreateImage
#define nvgCreateImageRGBA pozhilCreateImageRGBA
#define nvgFill pozhilFill
#define nvgStroke pozhilStroke
#include "nanovg.c"
#undef nvgBeginFrame
#undef nvgBeginPath
#undef nvgRect
#undef nvgRoundedRect
#undef nvgCircle
#undef nvgMoveTo
#undef nvgTextBounds
#undef nvgFillPaint
#undef nvgCreateImage
#undef nvgCreateImageRGBA
#undef nvgFill
#undef nvgStroke

#include "web_drawing_window.h"

#include "web_drawing_covers.h"

#include <emscripten.h>

/* A circle has its centre in x and y and its radius in width, a line its beginning in x and y, a measured text its width.
 * A picture follows the shape that it fills, and has its number as the radius. */
enum ShapeKind { RECT, ROUNDED_RECT, CIRCLE, LINE, MEASURED_TEXT, PICTURE };

struct Shape {
    float kind;
    float x;
    float y;
    float width;
    float height;
    float radius;
};

/* Those of the current frame in the order of drawing. */
static struct {
    int count;
    struct Shape* first;
} shapes;
static int most_shapes = 0;

/* Pixels a point of the frame. */
static float screen_ratio = 1;

/* Where the page reads them. */
EMSCRIPTEN_KEEPALIVE const void* pozhil_drawn_shapes(void) {
    return &shapes;
}

static void note(struct Shape shape) {
    if (shapes.count == most_shapes) {
        const int more = most_shapes == 0 ? 1024 : 2 * most_shapes;
        struct Shape* first = realloc(shapes.first, (size_t)more * sizeof shape);
        if (first == NULL) {
            return;
        }
        shapes.first = first;
        most_shapes = more;
    }
    shapes.first[shapes.count++] = shape;
}

void nvgBeginFrame(NVGcontext* context, float width, float height, float ratio) {
    shapes.count = 0;
    covers.count = 0;
    screen_ratio = ratio;
    window.width = width;
    window.height = height;
    pozhilBeginFrame(context, width, height, ratio);
}

void nvgBeginPath(NVGcontext* context) {
    beginPath();
    pozhilBeginPath(context);
}

void nvgRect(NVGcontext* context, float x, float y, float width, float height) {
    note((struct Shape){RECT, x, y, width, height, 0});
    addToPath(x, y, width, height, 0);
    pozhilRect(context, x, y, width, height);
}

void nvgRoundedRect(NVGcontext* context, float x, float y, float width, float height, float radius) {
    note((struct Shape){ROUNDED_RECT, x, y, width, height, radius});
    addToPath(x, y, width, height, radius);
    pozhilRoundedRect(context, x, y, width, height, radius);
}

void nvgCircle(NVGcontext* context, float x, float y, float radius) {
    note((struct Shape){CIRCLE, x, y, radius, 0, 0});
    addToPath(x - radius, y - radius, 2 * radius, 2 * radius, radius);
    pozhilCircle(context, x, y, radius);
}

void nvgMoveTo(NVGcontext* context, float x, float y) {
    note((struct Shape){LINE, x, y, 0, 0, 0});
    addLineToPath();
    pozhilMoveTo(context, x, y);
}

float nvgTextBounds(NVGcontext* context, float x, float y, const char* text, const char* end, float* bounds) {
    const float advance = pozhilTextBounds(context, x, y, text, end, bounds);
    note((struct Shape){MEASURED_TEXT, x, y, bounds == NULL ? advance : bounds[2] - bounds[0], 0, 0});
    return advance;
}

void nvgFillPaint(NVGcontext* context, NVGpaint paint) {
    if (paint.image > 0) {
        note((struct Shape){PICTURE, paint.xform[4], paint.xform[5], paint.extent[0], paint.extent[1],
                            (float)paint.image});
    }
    pozhilFillPaint(context, paint);
}

void nvgFill(NVGcontext* context) {
    if (isPathInWindow(context, fillReach(context))) {
        noteCover(context);
        pozhilFill(context);
    }
}

void nvgStroke(NVGcontext* context) {
    if (isPathInWindow(context, strokeReach(context))) {
        pozhilStroke(context);
    }
}

#pragma weak nsvgParse
#pragma weak nsvgDuplicatePath
#pragma weak nsvgDelete
#pragma weak nsvg__colors
#define NANOSVG_IMPLEMENTATION
#define nsvgParseFromFile pozhilParseFromFile
#include "nanosvg.h"
#undef nsvgParseFromFile

#pragma weak nsvgCreateRasterizer
#pragma weak nsvgDeleteRasterizer
#define NANOSVGRAST_IMPLEMENTATION
#define nsvgRasterize pozhilRasterize
#include "nanosvgrast.h"
#undef nsvgRasterize

#include "web_drawing_pictures.h"

#include <GLES2/gl2.h>
#pragma weak nvgCreateGLES2
#pragma weak nvgDeleteGLES2
#pragma weak nvglCreateImageFromHandleGLES2
#pragma weak nvglImageHandleGLES2
/* Programs ask for NanoVG's debugging aid, which asks for WebGL's error at every shape. Each such question waits until
 * all that was drawn before is done; browsers tell of errors in their console without being asked. */
#define glGetError() GL_NO_ERROR
#define NANOVG_GLES2_IMPLEMENTATION
#include "nanovg_gl.h"
