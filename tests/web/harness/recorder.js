// Runs in the page before its own scripts: keeps the texts of the latest frame, with how many of them the browser was told
// to write, and counts frames. Whoever looks between two frames sees a whole one.

export function recordTexts() {
    const record = { frames: 0, texts: [], written: 0 };
    window.recorded = record;

    const prototype = CanvasRenderingContext2D.prototype;
    const { clearRect, fillText, getTransform } = prototype;
    const read = Object.fromEntries(['font', 'fillStyle', 'textAlign', 'textBaseline', 'globalAlpha'].map(
        name => [name, Object.getOwnPropertyDescriptor(prototype, name).get]));

    /// How the text is written: as the program says, or as the browser's own context has it.
    function styleOf({ font, fillStyle, textAlign, textBaseline, globalAlpha }, scale) {
        // The browser leaves a usual weight out.
        const [, weight = '400', size, family] = /^(?:(\S+) )?([\d.e+-]+)px (.*)$/.exec(font) ?? [];
        return { size: Number(size), weight, family, colour: fillStyle, align: textAlign, baseline: textBaseline,
                 alpha: globalAlpha, scale };
    }

    const isOfTexts = context => context.canvas.id === 'textCanvas';
    let isWatching = false;

    /// What is out of the window the page may keep from the browser.
    function watchProgram() {
        isWatching = true;
        window.pozhilTextCanvas?.watch('fillText', function (text, x, y) {
            const scale = getTransform.call(this).a;
            record.texts.push({ text, x, y, ...styleOf(this, scale) });
        });
    }

    // Each frame begins with clearing the text canvas.
    prototype.clearRect = function (...area) {
        if (isOfTexts(this)) {
            record.texts = [];
            record.written = 0;
            record.frames++;
            if (!isWatching) {
                watchProgram();
            }
        }
        return clearRect.apply(this, area);
    };

    prototype.fillText = function (text, x, y, ...more) {
        if (isOfTexts(this)) {
            record.written++;
            const told = Object.fromEntries(Object.entries(read).map(([name, get]) => [name, get.call(this)]));
            if (window.pozhilTextCanvas) {
                record.texts.pop();
            }
            record.texts.push({ text, x, y, ...styleOf(told, getTransform.call(this).a) });
        }
        return fillText.call(this, text, x, y, ...more);
    };
}
