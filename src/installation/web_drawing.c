/* What web programs draw with: compiled once, into nanovg_web.o, instead of anew in every program. Such a program asks
 * for the code of these headers itself; those of the installation then only declare. With headers from elsewhere the
 * program has the code too, so what both would define gives way here. */

#include "nanovg.c"

#pragma weak nsvgParse
#pragma weak nsvgParseFromFile
#pragma weak nsvgDuplicatePath
#pragma weak nsvgDelete
#pragma weak nsvg__colors
#define NANOSVG_IMPLEMENTATION
#include "nanosvg.h"

#pragma weak nsvgCreateRasterizer
#pragma weak nsvgRasterize
#pragma weak nsvgDeleteRasterizer
#define NANOSVGRAST_IMPLEMENTATION
#include "nanosvgrast.h"

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
