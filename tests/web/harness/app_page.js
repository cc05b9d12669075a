// One open page of an application, as a test looks at it.

import assert from 'node:assert/strict';

import { recordTexts } from './recorder.js';

export class AppPage {
    /// What the page wrote on its console, line by line, and its uncaught exceptions.
    console = [];
    errors = [];

    constructor(page) {
        this.page = page;
        page.on('console', message => this.console.push(message.text()));
        page.on('pageerror', error => this.errors.push(String(error)));
    }

    /// Opens the address without waiting for a first frame, which a broken page never draws.
    async visit(address) {
        await this.page.addInitScript(recordTexts);
        await this.page.goto(address);
    }

    async open(address) {
        await this.visit(address);
        await this.ready();
        await this.leave();
    }

    /// Waits for the first frames of a page that has just been loaded.
    async ready() {
        await this.page.waitForFunction(() => window.recorded?.frames >= 3 && !document.hidden, undefined,
                                        { timeout: 60_000 });
    }

    /// How many frames the page has drawn so far.
    drawnFrames() {
        return this.page.evaluate(() => window.recorded.frames);
    }

    /// Waits until the page rests; false if it doesn't within so many milliseconds.
    async rests(limit = 60_000) {
        const end = Date.now() + limit;
        while (Date.now() < end) {
            const before = await this.drawnFrames();
            await this.page.waitForTimeout(400);
            if (await this.drawnFrames() === before) {
                return true;
            }
        }
        return false;
    }

    /// Waits until so many more frames have been drawn: one shows the state of now, the next what it led to.
    async frames(count = 2) {
        const end = await this.drawnFrames() + count;
        await this.page.waitForFunction(last => {
            // A page where nothing happens draws none.
            window.pozhilFrames.wake();
            return window.recorded.frames >= last;
        }, end, { timeout: 60_000 });
    }

    // --- texts ---

    /// The texts of the last frame in the order of drawing.
    async texts() {
        await this.frames();
        return this.page.evaluate(() => window.recorded.texts);
    }

    /// The only text of the last frame that reads so.
    async text(wanted) {
        const all = await this.texts();
        const found = all.filter(({ text }) => text === wanted);
        assert.equal(found.length, 1, `"${wanted}" once among ${JSON.stringify(all.map(({ text }) => text))}`);
        return found[0];
    }

    /// Waits until a text that reads so is drawn. An animation counts frames, and a busy machine draws one a second.
    async waitForText(wanted) {
        await this.page.waitForFunction(text => window.recorded?.texts.some(drawn => drawn.text === text), wanted,
                                        { timeout: 200_000 });
    }

    /// The width that the browser itself gives the text on the text canvas.
    textWidth(text, size) {
        return this.page.evaluate(([content, pixels]) => {
            const context = document.createElement('canvas').getContext('2d');
            context.font = `normal ${pixels}px "Noto Sans Tamil", Arial, sans-serif`;
            return context.measureText(content).width;
        }, [text, size]);
    }

    // --- pixels ---

    /// What the screen shows, as a base64 text: the frame of now, however long the picture takes.
    async #screenshot(scale) {
        await this.page.evaluate(() => {
            const { recorded, pozhilFrames } = window;
            if (recorded.isHeld === undefined) {
                pozhilFrames?.drawWhen(() => !recorded.isHeld);
            }
            recorded.isHeld = true;
        });
        try {
            return await this.#capture(scale);
        } finally {
            await this.page.evaluate(() => { window.recorded.isHeld = false; });
        }
    }

    async #capture(scale) {
        if (scale === 'device' && this.isRescaled) {
            // Playwright goes on counting in the pixels that the window began with.
            return (await (await this.devtools()).send('Page.captureScreenshot')).data;
        }
        return (await this.page.screenshot({ scale })).toString('base64');
    }

    async devtools() {
        this.session ??= await this.page.context().newCDPSession(this.page);
        return this.session;
    }

    /// The colours, [red, green, blue], of pixels of the screen, counted in CSS pixels.
    async pixels(points) {
        await this.frames();
        const image = await this.#screenshot('css');
        return this.page.evaluate(async ([data, wanted]) => {
            const blob = await (await fetch(`data:image/png;base64,${data}`)).blob();
            const bitmap = await createImageBitmap(blob);
            const context = new OffscreenCanvas(bitmap.width, bitmap.height).getContext('2d');
            context.drawImage(bitmap, 0, 0);
            return wanted.map(([x, y]) => Array.from(context.getImageData(x, y, 1, 1).data.slice(0, 3)));
        }, [image, points]);
    }

    async pixel(x, y) {
        return (await this.pixels([[x, y]]))[0];
    }

    /// The smallest rectangle that holds all pixels of the screen of exactly this colour; null if there are none. It is
    /// counted in CSS pixels, or in those of the device with the scale 'device'.
    async area(colour, scale = 'css') {
        await this.frames();
        const image = await this.#screenshot(scale);
        return this.page.evaluate(async ([data, [red, green, blue]]) => {
            const blob = await (await fetch(`data:image/png;base64,${data}`)).blob();
            const bitmap = await createImageBitmap(blob);
            const { width, height } = bitmap;
            const context = new OffscreenCanvas(width, height).getContext('2d');
            context.drawImage(bitmap, 0, 0);
            const bytes = context.getImageData(0, 0, width, height).data;
            let [left, top, right, bottom] = [width, height, -1, -1];
            for (let at = 0; at < bytes.length; at += 4) {
                if (bytes[at] === red && bytes[at + 1] === green && bytes[at + 2] === blue) {
                    const x = (at / 4) % width;
                    const y = Math.floor(at / 4 / width);
                    [left, right] = [Math.min(left, x), Math.max(right, x)];
                    [top, bottom] = [Math.min(top, y), Math.max(bottom, y)];
                }
            }
            return right < 0 ? null : { x: left, y: top, width: right - left + 1, height: bottom - top + 1 };
        }, [image, colour]);
    }

    /// The colours of a row of pixels of the device.
    async deviceRow(y) {
        await this.frames();
        const image = await this.#screenshot('device');
        return this.page.evaluate(async ([data, row]) => {
            const blob = await (await fetch(`data:image/png;base64,${data}`)).blob();
            const bitmap = await createImageBitmap(blob);
            const context = new OffscreenCanvas(bitmap.width, 1).getContext('2d');
            context.drawImage(bitmap, 0, -row);
            const bytes = Array.from(context.getImageData(0, 0, bitmap.width, 1).data);
            return Array.from({ length: bitmap.width }, (_, x) => bytes.slice(4 * x, 4 * x + 3));
        }, [image, y]);
    }

    // --- the user's hands ---

    /// Puts the pointer where it is over nothing, in the lower right corner; it begins in the upper left one.
    async leave() {
        const { width, height } = this.page.viewportSize();
        await this.moveTo(width - 1, height - 1);
    }

    async moveTo(x, y) {
        await this.page.mouse.move(x, y);
        await this.frames();
    }

    /// Presses and releases; the page has seen the press in a frame of its own.
    async click(x, y) {
        await this.moveTo(x, y);
        await this.page.mouse.down();
        await this.frames();
        await this.page.mouse.up();
        await this.frames();
    }

    async wheel(deltaX, deltaY) {
        await this.page.mouse.wheel(deltaX, deltaY);
        // The browser hands the wheel on after the mouse, and the page acts in the frame behind it.
        await this.frames(4);
    }

    async #touch(type, points) {
        await (await this.devtools()).send('Input.dispatchTouchEvent',
                                           { type, touchPoints: points.map(([x, y], id) => ({ x, y, id })) });
    }

    /// Puts fingers down at these points; `moveFingers` moves them, `liftFingers` takes them away.
    async putFingers(...points) {
        await this.#touch('touchStart', points);
    }

    async moveFingers(...points) {
        await this.#touch('touchMove', points);
    }

    async liftFingers() {
        await this.#touch('touchEnd', []);
    }

    async tap(x, y) {
        await this.putFingers([x, y]);
        await this.liftFingers();
        await this.frames(3);
    }

    /// Moves a finger in steps and leaves it there for a moment, so that nothing glides.
    async swipe([fromX, fromY], [toX, toY], { steps = 5, rest = 150 } = {}) {
        await this.putFingers([fromX, fromY]);
        for (let step = 1; step <= steps; step++) {
            await this.moveFingers([fromX + (toX - fromX) * step / steps, fromY + (toY - fromY) * step / steps]);
            await this.page.waitForTimeout(16);
        }
        await this.page.waitForTimeout(rest);
        await this.liftFingers();
        await this.frames(3);
    }

    async resize(width, height) {
        await this.page.setViewportSize({ width, height });
        await this.page.waitForFunction(size => innerWidth === size[0] && innerHeight === size[1], [width, height]);
        await this.frames(3);
    }

    /// The window as browsers leave it when the user zooms the page, moves it to another screen, or turns a phone.
    async rescale(width, height, scale) {
        this.isRescaled = true;
        await (await this.devtools()).send('Emulation.setDeviceMetricsOverride',
                                           { width, height, deviceScaleFactor: scale, mobile: false });
        await this.page.waitForFunction(
            wanted => innerWidth === wanted[0] && innerHeight === wanted[1] && devicePixelRatio === wanted[2],
            [width, height, scale]);
        await this.frames(3);
    }

    // --- the document ---

    cursor() {
        return this.page.evaluate(() => document.body.style.cursor);
    }

    /// A property of `window`.
    window(name) {
        return this.page.evaluate(key => window[key], name);
    }

    /// Tag, text, place and the wanted style properties of an element; null if there is none.
    element(selector, ...styles) {
        return this.page.evaluate(([wanted, names]) => {
            const found = document.querySelector(wanted);
            if (!found) {
                return null;
            }
            const { x, y, width, height } = found.getBoundingClientRect();
            const computed = getComputedStyle(found);
            return { tag: found.tagName, id: found.id, type: found.type, value: found.value, hint: found.placeholder,
                     shown: found.style.display !== 'none', x, y, width, height,
                     ...Object.fromEntries(names.map(name => [name, computed[name]])) };
        }, [selector, styles]);
    }

    elements(selector) {
        return this.page.evaluate(wanted => [...document.querySelectorAll(wanted)].map(
            ({ id, value, style }) => ({ id, value, shown: style.display !== 'none' })), selector);
    }
}
