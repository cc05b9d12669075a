// Runs in the page before its own scripts: keeps the texts of the latest frame, and counts frames. Whoever looks
// between two frames sees a whole one.

export function recordTexts() {
    const record = { frames: 0, texts: [] };
    window.recorded = record;

    const prototype = CanvasRenderingContext2D.prototype;
    const { clearRect, fillText } = prototype;

    // Each frame begins with clearing the text canvas.
    prototype.clearRect = function (...area) {
        if (this.canvas.id === 'textCanvas') {
            record.texts = [];
            record.frames++;
        }
        return clearRect.apply(this, area);
    };

    prototype.fillText = function (text, x, y, ...more) {
        if (this.canvas.id === 'textCanvas') {
            // The browser leaves a usual weight out.
            const [, weight = '400', size, family] = /^(?:(\S+) )?([\d.e+-]+)px (.*)$/.exec(this.font) ?? [];
            record.texts.push({ text, x, y, size: Number(size), weight, family, colour: this.fillStyle,
                                align: this.textAlign, baseline: this.textBaseline, alpha: this.globalAlpha,
                                scale: this.getTransform().a });
        }
        return fillText.call(this, text, x, y, ...more);
    };
}
