/* What of a path can be seen: long pages consist mostly of what is above or below the window, and so do lists of what is
 * scrolled away. For web_drawing.c, which holds the drawing library and so knows its paths. */

struct Area {
    float left;
    float top;
    float right;
    float bottom;
};

/* In the points of the page. */
static struct {
    float width;
    float height;
} window;

/* How far the soft edge of a shape, or of what it is cut to, may stand out; at sharp corners that is more than its width.
 * It covers the part of a point by which the canvas may be larger than the window, too. */
static float softEdge(const NVGcontext* context) {
    return 4.0F * context->fringeWidth;
}

static float fillReach(const NVGcontext* context) {
    return softEdge(context);
}

static float strokeReach(NVGcontext* context) {
    const NVGstate* state = nvg__getState(context);
    const float width = state->strokeWidth * nvg__getAverageScale(nvg__getState(context)->xform);
    return nvg__maxf(2.0F, state->miterLimit) * width + softEdge(context);
}

/* Curves stay between the points that steer them. */
static struct Area areaOfPath(const NVGcontext* context) {
    static const int POINTS[] = {[NVG_MOVETO] = 1, [NVG_LINETO] = 1, [NVG_BEZIERTO] = 3};
    struct Area area = {1e6F, 1e6F, -1e6F, -1e6F};
    const float* command = context->commands;
    const float* end = command + context->ncommands;
    while (command < end) {
        const int kind = (int)*command++;
        if (kind == NVG_WINDING) {
            ++command;
        } else if (kind != NVG_CLOSE) {
            for (int point = 0; point < POINTS[kind]; ++point, command += 2) {
                area.left = nvg__minf(area.left, command[0]);
                area.top = nvg__minf(area.top, command[1]);
                area.right = nvg__maxf(area.right, command[0]);
                area.bottom = nvg__maxf(area.bottom, command[1]);
            }
        }
    }
    return area;
}

/* The window, or what shapes are cut to if that is less. */
static struct Area shownArea(NVGcontext* context) {
    struct Area area = {0, 0, window.width, window.height};
    const NVGscissor* scissor = &nvg__getState(context)->scissor;
    if (scissor->extent[0] >= 0) {
        const float* turned = scissor->xform;
        const float across = scissor->extent[0] * nvg__absf(turned[0]) + scissor->extent[1] * nvg__absf(turned[2]);
        const float down = scissor->extent[0] * nvg__absf(turned[1]) + scissor->extent[1] * nvg__absf(turned[3]);
        area.left = nvg__maxf(area.left, turned[4] - across);
        area.top = nvg__maxf(area.top, turned[5] - down);
        area.right = nvg__minf(area.right, turned[4] + across);
        area.bottom = nvg__minf(area.bottom, turned[5] + down);
    }
    return area;
}

/* \param reach how far what is drawn of the path may stand out from it */
static int isPathInWindow(NVGcontext* context, float reach) {
    const struct Area path = areaOfPath(context);
    const struct Area shown = shownArea(context);
    return path.right + reach >= shown.left && path.left - reach <= shown.right && path.bottom + reach >= shown.top &&
           path.top - reach <= shown.bottom;
}
