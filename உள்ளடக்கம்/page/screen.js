// Shapes are drawn at the pixels of the screen, as texts are. The program asks for a window of so many points, each frame
// anew, so a turned phone, a resized window and a zoomed page are drawn right at once.
var pozhilScreen = (() => {
    // More can't be told apart, and takes the memory of many phones.
    const MOST_PIXELS_A_POINT = 3;
    const MOST_PIXELS = 32 * 1024 * 1024;
    // What every WebGL can draw.
    const LONGEST_SIDE = 4096;
    // Browsers place elements by parts of a point.
    const PARTS = 64;

    /// Pixels and points of a canvas for a window of so many points.
    function sizeOf(points, ratio, drawn) {
        if (drawn < ratio) {
            return { pixels: Math.max(1, Math.round(points * drawn)), points };
        }
        // A whole number of pixels, or the browser would stretch them. The part more keeps the text canvas from losing one.
        const pixels = Math.ceil(points * ratio - 1 / PARTS);
        return { pixels, points: Math.ceil(pixels / ratio * PARTS) / PARTS };
    }

    function pixelsAPoint(width, height, ratio, longest) {
        return Math.min(ratio, MOST_PIXELS_A_POINT, Math.max(longest, LONGEST_SIDE) / Math.max(width, height),
                        Math.sqrt(MOST_PIXELS / (width * height)));
    }

    function resize(canvas, across, down) {
        if (canvas.width !== across.pixels || canvas.height !== down.pixels) {
            canvas.width = across.pixels;
            canvas.height = down.pixels;
        }
        canvas.style.width = across.points + 'px';
        canvas.style.height = down.points + 'px';
    }

    // GLFW takes a window of the screen's own size for a wish for full screen, and knows no points.
    pozhilFrames.atStart(() => {
        const shown = new Float32Array(2);
        let longest = 0;

        function measure() {
            const context = Module.ctx;
            longest = context.getParameter(context.MAX_RENDERBUFFER_SIZE);
            // How much of the page the pixels show: a window may end amid one. It is all that is set this way.
            const setPair = context.uniform2fv.bind(context);
            context.uniform2fv = location => setPair(location, shown);
        }

        GLFW.setWindowSize = (id, width, height) => {
            const drawing = GLFW.WindowFromId(id);
            if (!drawing || width === 0 || height === 0) {
                return;
            }
            if (longest === 0) {
                measure();
            }
            const ratio = window.devicePixelRatio || 1;
            const drawn = pixelsAPoint(width, height, ratio, longest);
            const across = sizeOf(width, ratio, drawn);
            const down = sizeOf(height, ratio, drawn);
            resize(Module.canvas, across, down);
            drawing.width = across.pixels;
            drawing.height = down.pixels;
            shown.set([across.pixels / drawn, down.pixels / drawn]);
        };
    });

    return { sizeOf, pixelsAPoint };
})();
