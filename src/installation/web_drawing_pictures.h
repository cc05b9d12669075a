/* Pictures, part of web_drawing.c: of which file each is, so that the page can tell readers of it, and drawings in the
 * pixels of the screen. A program draws them in points, which a screen may have several pixels for. */

#pragma once

/* By the numbers of the pictures; NULL for one of which no file is known. */
static struct {
    int count;
    char** first;
} picture_files;

/* Of the drawing that was read last: its file, and what it was drawn into. It is made a picture before it is deleted. */
static struct {
    char file[4096];
    NSVGrasterizer* rasterizer;
    NSVGimage* image;
    float scale;
    const unsigned char* pixels;
} drawing;

static void note_file(int picture, const char* file) {
    if (picture <= 0) {
        return;
    }
    if (picture >= picture_files.count) {
        const int more = 2 * picture + 64;
        char** first = realloc(picture_files.first, (size_t)more * sizeof *first);
        if (first == NULL) {
            return;
        }
        memset(first + picture_files.count, 0, (size_t)(more - picture_files.count) * sizeof *first);
        picture_files.first = first;
        picture_files.count = more;
    }
    free(picture_files.first[picture]);
    picture_files.first[picture] = strdup(file);
}

/* Where the page reads it. */
EMSCRIPTEN_KEEPALIVE const char* pozhil_picture_file(int picture) {
    const char* file = picture > 0 && picture < picture_files.count ? picture_files.first[picture] : NULL;
    return file == NULL ? "" : file;
}

int nvgCreateImage(NVGcontext* context, const char* file, int flags) {
    const int picture = pozhilCreateImage(context, file, flags);
    note_file(picture, file);
    return picture;
}

/* As large as the screen shows it; 0 if there is no memory for that. */
static int sharp_picture(NVGcontext* context, int width, int height, int flags) {
    const int across = (int)ceilf((float)width * screen_ratio);
    const int down = (int)ceilf((float)height * screen_ratio);
    unsigned char* pixels = malloc(4 * (size_t)across * (size_t)down);
    if (pixels == NULL) {
        return 0;
    }
    const float scale = drawing.scale * (float)across / (float)width;
    pozhilRasterize(drawing.rasterizer, drawing.image, 0, 0, scale, pixels, across, down, 4 * across);
    const int picture = pozhilCreateImageRGBA(context, across, down, flags, pixels);
    free(pixels);
    return picture;
}

int nvgCreateImageRGBA(NVGcontext* context, int width, int height, int flags, const unsigned char* pixels) {
    int picture = 0;
    const int isDrawing = drawing.pixels != NULL && drawing.pixels == pixels;
    if (isDrawing && screen_ratio > 1) {
        picture = sharp_picture(context, width, height, flags);
    }
    if (picture <= 0) {
        picture = pozhilCreateImageRGBA(context, width, height, flags, pixels);
    }
    if (isDrawing) {
        note_file(picture, drawing.file);
    }
    drawing.pixels = NULL;
    return picture;
}

#pragma weak nsvgParseFromFile
NSVGimage* nsvgParseFromFile(const char* file, const char* units, float dpi) {
    strncpy(drawing.file, file, sizeof drawing.file - 1);
    return pozhilParseFromFile(file, units, dpi);
}

#pragma weak nsvgRasterize
void nsvgRasterize(NSVGrasterizer* rasterizer, NSVGimage* image, float left, float top, float scale,
                   unsigned char* pixels, int width, int height, int stride) {
    drawing.rasterizer = rasterizer;
    drawing.image = image;
    drawing.scale = scale;
    drawing.pixels = pixels;
    pozhilRasterize(rasterizer, image, left, top, scale, pixels, width, height, stride);
}
