/* What is filled in a frame: where it hides texts that were written before, of which this library knows nothing. The page
 * takes them back there. For web_drawing.c, which tells of shapes and fills. */

#include <stdlib.h>

#include <emscripten.h>

/* A rectangle, maybe with round corners, as far as it lies in what it is cut to, and how much of what lies under it it
 * hides: from 0 to 1. */
struct Cover {
    float x;
    float y;
    float width;
    float height;
    float radius;
    float strength;
    struct Area shown;
};

/* Those of the current frame in the order of drawing. */
static struct {
    int count;
    struct Cover* first;
} covers;
static int most_covers = 0;

/* Where the page reads them. */
EMSCRIPTEN_KEEPALIVE const void* pozhil_drawn_covers(void) {
    return &covers;
}

/* The path that is being made: how many shapes it has, and the last of them. */
static struct {
    int shapes;
    struct Cover last;
} path;

static void beginPath(void) {
    path.shapes = 0;
}

static void addToPath(float x, float y, float width, float height, float radius) {
    ++path.shapes;
    path.last = (struct Cover){.x = x, .y = y, .width = width, .height = height, .radius = radius};
}

/* Adds what isn't a rectangle. */
static void addLineToPath(void) {
    path.shapes += 2;
}

static int isTurned(const NVGstate* state) {
    static const float UPRIGHT[] = {1, 0, 0, 1, 0, 0};
    return memcmp(state->xform, UPRIGHT, sizeof UPRIGHT) != 0;
}

/* Shadows, which go from one colour to another, hide nothing. */
static float strengthOf(const NVGstate* state) {
    const NVGpaint* fill = &state->fill;
    const int isPlain = memcmp(&fill->innerColor, &fill->outerColor, sizeof fill->innerColor) == 0;
    return isPlain ? fill->innerColor.a * state->alpha : 0;
}

static void noteCover(NVGcontext* context) {
    const NVGstate* state = nvg__getState(context);
    const float strength = strengthOf(state);
    if (path.shapes != 1 || strength <= 0 || isTurned(state)) {
        return;
    }
    if (covers.count == most_covers) {
        const int more = most_covers == 0 ? 1024 : 2 * most_covers;
        struct Cover* first = realloc(covers.first, (size_t)more * sizeof *first);
        if (first == NULL) {
            return;
        }
        covers.first = first;
        most_covers = more;
    }
    struct Cover cover = path.last;
    cover.strength = strength;
    cover.shown = shownArea(context);
    covers.first[covers.count++] = cover;
}
