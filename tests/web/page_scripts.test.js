// The scripts of the page, run without a browser.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { TextDecoder, TextEncoder } from 'node:util';
import vm from 'node:vm';

const PAGE = new URL('../../உள்ளடக்கம்/page/', import.meta.url);

/// A window with these scripts of the page. `send` hands an event to their listeners, `frame` lets time pass and draws by
/// `draw`; it tells whether the page wants that.
function page(...scripts) {
    const listeners = [];
    const element = {
        addEventListener() {}, matches: () => false, blur() {},
        getBoundingClientRect: () => ({ left: 0, top: 0 }),
    };
    const window = {
        innerWidth: 500, innerHeight: 400, devicePixelRatio: 1, mouseX: 0, mouseY: 0, wheelDelta: 0, wheelDeltaX: 0,
        addEventListener: (type, listener) => { listeners.push([type, listener]); },
        document: { documentElement: element, activeElement: element, getElementById: () => element, addEventListener() {},
                    fonts: { addEventListener() {}, add() {} } },
        GLFW: { active: { buttons: 0 } }, HTMLElement: class {}, now: 0, draw() {},
    };
    window.window = window;
    window.performance = { now: () => window.now };
    vm.createContext(window);
    window.load = name => vm.runInContext(readFileSync(new URL(`${name}.js`, PAGE), 'utf8'), window,
                                          { filename: `${name}.js` });
    scripts.forEach(window.load);
    window.send = (type, event) => {
        const sent = { type, target: element, stopPropagation() {}, stopImmediatePropagation() {}, preventDefault() {},
                       ...event };
        listeners.filter(([wanted]) => wanted === type).forEach(([, listener]) => listener(sent));
    };
    window.frame = milliseconds => {
        window.now += milliseconds;
        const { preMainLoop, postMainLoop } = window.pozhilFrames.hooks;
        const draws = preMainLoop() !== false;
        if (draws) {
            window.draw();
            postMainLoop();
        }
        return draws;
    };
    return window;
}

test('a canvas has whole pixels, and as many points as these take or a little more', () => {
    const { pozhilScreen } = page('frames', 'screen');
    for (const ratio of [1, 1.1, 1.25, 1.5, 1.75, 2, 2.625, 3]) {
        for (let points = 1; points < 2000; points += 7) {
            const size = pozhilScreen.sizeOf(points, ratio, ratio);
            assert.ok(Number.isInteger(size.pixels) && size.pixels >= points * ratio - 1 / 32, `${points} at ${ratio}`);
            assert.ok(size.pixels < points * ratio + 1, `${points} at ${ratio}`);
            // The text canvas takes the whole pixels of these points.
            assert.equal(Math.floor(Math.fround(size.points) * ratio), size.pixels, `${points} at ${ratio}`);
            assert.equal(size.points * 64 % 1, 0);
        }
    }
});

test('a canvas takes no more pixels than can be told apart, held, and drawn', () => {
    const { pozhilScreen } = page('frames', 'screen');
    assert.equal(pozhilScreen.pixelsAPoint(390, 844, 3, 8192), 3);
    assert.equal(pozhilScreen.pixelsAPoint(390, 844, 5, 8192), 3);
    assert.equal(pozhilScreen.pixelsAPoint(390, 844, 0.25, 8192), 0.25);
    assert.equal(pozhilScreen.pixelsAPoint(5000, 100, 2, 8192), 8192 / 5000);
    const huge = pozhilScreen.pixelsAPoint(5000, 5000, 5, 16384);
    assert.ok(huge < 3 && (5000 * huge) ** 2 <= 32 * 1024 * 1024 + 1);
    assert.deepEqual({ ...pozhilScreen.sizeOf(100, 5, 3) }, { pixels: 300, points: 100 });
    assert.deepEqual({ ...pozhilScreen.sizeOf(1, 0.25, 0.1) }, { pixels: 1, points: 1 });
});

const touches = (...points) => points.map(([clientX, clientY]) => ({ clientX, clientY }));

test('a finger that shakes presses; one that moves on scrolls by all of its way', () => {
    const tab = page('frames', 'pointer', 'faults', 'touch');
    tab.send('touchstart', { touches: touches([100, 200]), timeStamp: 0 });
    assert.deepEqual([tab.mouseX, tab.mouseY], [100, 200]);
    tab.send('touchmove', { touches: touches([104, 196]), timeStamp: 10 });
    assert.deepEqual([tab.wheelDelta, tab.mouseClicked], [0, undefined]);
    tab.send('touchmove', { touches: touches([104, 170]), timeStamp: 20 });
    assert.equal(tab.wheelDelta, 30);
    tab.send('touchend', { touches: [], timeStamp: 500 });
    assert.equal(tab.mouseClicked, undefined);
    assert.equal(tab.mouseX, -9999);

    tab.send('touchstart', { touches: touches([50, 60]), timeStamp: 600 });
    tab.send('touchend', { touches: [], timeStamp: 900 });
    assert.deepEqual([tab.mouseClicked, tab.mouseX, tab.GLFW.active.buttons], [1, 50, 1]);
    tab.frame(16);
    assert.deepEqual([tab.mouseX, tab.GLFW.active.buttons, tab.mouseDownState], [-9999, 0, 0]);
});

test('a glide goes as far as its speed says, whatever the frames, and ends', () => {
    const ways = [8, 16, 50].map(milliseconds => {
        const tab = page('frames', 'pointer', 'faults', 'touch');
        tab.send('touchstart', { touches: touches([100, 300]), timeStamp: 0 });
        for (let time = 10; time <= 100; time += 10) {
            tab.now = time;
            tab.send('touchmove', { touches: touches([100, 300 - time]), timeStamp: time });
        }
        tab.send('touchend', { touches: [], timeStamp: 100 });
        let way = 0;
        tab.wheelDelta = 0;
        tab.draw = () => {
            way += tab.wheelDelta;
            tab.wheelDelta = 0;
        };
        for (let frames = 0; frames < 3000 / milliseconds; frames++) {
            tab.frame(milliseconds);
        }
        assert.equal(tab.pozhilTouch.isMoving(), false);
        assert.equal(tab.mouseX, -9999);
        return way;
    });
    // A point in a millisecond, which fades with a time of 325.
    ways.forEach(way => assert.ok(way > 310 && way <= 325, String(ways)));
});

test('a finger taken away by the system presses nothing', () => {
    const tab = page('frames', 'pointer', 'faults', 'touch');
    tab.send('touchstart', { touches: touches([100, 200]), timeStamp: 0 });
    tab.send('touchcancel', { touches: [], timeStamp: 10 });
    assert.equal(tab.mouseClicked, undefined);
    assert.equal(tab.mouseX, -9999);
});

test('what browsers do for a mouse after a touch is not done twice', () => {
    const tab = page('frames', 'pointer', 'faults', 'touch');
    const stopped = (type, timeStamp) => {
        let count = 0;
        tab.send(type, { timeStamp, stopImmediatePropagation: () => { count++; } });
        return count > 0;
    };
    assert.equal(stopped('mousedown', 50), false);
    tab.send('touchstart', { touches: touches([100, 200]), timeStamp: 100 });
    tab.send('touchend', { touches: [], timeStamp: 150 });
    assert.deepEqual([stopped('mousedown', 200), stopped('mouseup', 500), stopped('mousedown', 1500)],
                     [true, true, false]);
});

test('a wheel waits three frames for somebody to take it', () => {
    const tab = page('frames', 'pointer');
    tab.wheelDelta = 100;
    tab.frame(16);
    tab.frame(16);
    assert.equal(tab.wheelDelta, 100);
    tab.frame(16);
    assert.equal(tab.wheelDelta, 0);
    assert.equal(tab.wheelDeltaX, 0);
});

/// A page that draws and remembers what `drawn` tells, with the script that lets it rest.
function restingPage(drawn) {
    const tab = page('frames');
    drawn.looks = 0;
    tab.pozhilDrawing = { sum: () => drawn.sum, watchSum(isWanted) { drawn.isWatched = isWanted; } };
    tab.Module = {
        cwrap() {},
        _pozhil_memory_sum() {
            drawn.looks++;
            return drawn.memory?.() ?? 0;
        },
    };
    tab.load('rest');
    tab.pozhilFrames.hooks.onRuntimeInitialized();
    tab.draw = () => {
        drawn.frames++;
        if (drawn.asksForTime) {
            tab.performance.now();
        }
    };
    return tab;
}

/// How many frames are drawn in so many offers.
function framesIn(tab, drawn, offers, milliseconds = 16) {
    const before = drawn.frames;
    for (let offer = 0; offer < offers; offer++) {
        tab.frame(milliseconds);
    }
    return drawn.frames - before;
}

test('a page rests after a few frames of the same, at any speed, until something happens', () => {
    for (const milliseconds of [7, 16, 300, 5000]) {
        const drawn = { sum: 1, frames: 0 };
        const tab = restingPage(drawn);
        const count = framesIn(tab, drawn, 100, milliseconds);
        assert.ok(count >= 5 && count < 12, `${count} frames`);
        assert.equal(framesIn(tab, drawn, 100, milliseconds), 0);
        for (const happen of [() => tab.send('keydown', {}), tab.pozhilFrames.wake]) {
            happen();
            const more = framesIn(tab, drawn, 100, milliseconds);
            assert.ok(more >= 5 && more < 12, `${more} frames`);
        }
        assert.equal(framesIn(tab, drawn, 10, milliseconds), 0);
    }
});

test('a program that counts on in silence is drawn until it has done so, at any speed', () => {
    for (const milliseconds of [7, 16, 300]) {
        const drawn = { sum: 1, frames: 0, memory: () => Math.min(drawn.frames, 400) };
        const tab = restingPage(drawn);
        assert.equal(framesIn(tab, drawn, 400, milliseconds), 400);
        const rest = framesIn(tab, drawn, 400, milliseconds);
        assert.ok(rest < 150, `${rest} frames`);
        assert.ok(drawn.looks < 50, `${drawn.looks} looks`);
    }
});

test('a program whose memory goes in a circle rests', () => {
    const drawn = { sum: 1, frames: 0, memory: () => drawn.frames % 7 };
    const tab = restingPage(drawn);
    const count = framesIn(tab, drawn, 400);
    assert.ok(count > 7 && count < 30, `${count} frames`);
});

test('only frames that drew the same count for the circle', () => {
    // The memory returns though something else was drawn in between, as by a call of the program.
    const drawn = { sum: 1, frames: 0, memory: () => drawn.frames };
    const tab = restingPage(drawn);
    framesIn(tab, drawn, 20);
    drawn.sum = 2;
    framesIn(tab, drawn, 1);
    drawn.memory = () => 10;
    assert.ok(framesIn(tab, drawn, 20) >= 5);
});

test('a move of the pointer to where it is wakes nobody', () => {
    const drawn = { sum: 1, frames: 0 };
    const tab = restingPage(drawn);
    tab.send('mousemove', { clientX: 5, clientY: 6 });
    framesIn(tab, drawn, 100);
    tab.send('mousemove', { clientX: 5, clientY: 6 });
    assert.equal(framesIn(tab, drawn, 100), 0);
    tab.send('mousemove', { clientX: 5, clientY: 7 });
    assert.ok(framesIn(tab, drawn, 100) > 0);
});

test('what changes, and what asks for the time, keeps a page awake', () => {
    const changing = { sum: 1, frames: 0 };
    let tab = restingPage(changing);
    for (let frame = 0; frame < 300; frame++) {
        changing.sum++;
        assert.equal(tab.frame(16), true);
    }
    const asking = { sum: 1, frames: 0, asksForTime: true };
    tab = restingPage(asking);
    assert.equal(framesIn(tab, asking, 300), 300);
});

test('frames are compared only while nothing happens', () => {
    const drawn = { sum: 1, frames: 0 };
    const tab = restingPage(drawn);
    tab.frame(16);
    assert.equal(drawn.isWatched, false);
    tab.frame(16);
    assert.equal(drawn.isWatched, true);
    tab.send('wheel', {});
    tab.frame(16);
    assert.equal(drawn.isWatched, false);
});

/// A page whose program holds texts as bytes; `put` writes one there, `reads` counts those that were read anew.
function readingPage() {
    const tab = page('frames');
    tab.HEAPU8 = new Uint8Array(4096);
    tab.reads = 0;
    tab.UTF8ToString = (begin, most = Infinity) => {
        tab.reads++;
        const end = Math.min(tab.HEAPU8.indexOf(0, begin), begin + most);
        return begin ? new TextDecoder().decode(tab.HEAPU8.subarray(begin, end)) : '';
    };
    tab.put = (begin, text) => {
        const bytes = new TextEncoder().encode(text);
        tab.HEAPU8.set([...bytes, 0], begin);
    };
    tab.load('letters');
    tab.pozhilFrames.hooks.preRun.forEach(start => start());
    return tab;
}

test('a text of the program that comes again isn\'t read again, wherever it stands', () => {
    const tab = readingPage();
    tab.put(8, 'தமிழ்');
    tab.put(800, 'தமிழ்');
    for (const begin of [8, 800, 8]) {
        assert.equal(tab.UTF8ToString(begin), 'தமிழ்');
    }
    assert.equal(tab.reads, 1);
});

test('another text in the place of one is another, however alike', () => {
    const tab = readingPage();
    for (const text of ['வரி 1', 'வரி 2', 'வரி 1', 'வரி', 'வரி 12', '', 'அ'.repeat(300), 'அ'.repeat(299) + 'ஆ']) {
        tab.put(8, text);
        assert.equal(tab.UTF8ToString(8), text);
    }
    // More of them than can be remembered, so that some take the places of others.
    for (const round of [0, 1]) {
        for (let number = 0; number < 30000; number++) {
            tab.put(8, `${number}`);
            assert.equal(tab.UTF8ToString(8), `${number}`, `round ${round}`);
        }
    }
});

test('what is asked for in another way is read as ever, and so is what comes after the memory has grown', () => {
    const tab = readingPage();
    tab.put(8, 'abc');
    assert.deepEqual([tab.UTF8ToString(8, 2), tab.UTF8ToString(8), tab.UTF8ToString(0)], ['ab', 'abc', '']);
    const grown = new Uint8Array(8192);
    grown.set(tab.HEAPU8);
    tab.HEAPU8 = grown;
    tab.put(5000, 'வளர்');
    assert.deepEqual([tab.UTF8ToString(8), tab.UTF8ToString(5000)], ['abc', 'வளர்']);
});

/// A page with the script that remembers widths; `measured(text)` tells whether the browser was asked anew.
function measuringPage() {
    const tab = page('frames');
    const listeners = [];
    Object.assign(tab.document.fonts, {
        size: 1, status: 'loaded', delete() {}, clear() {},
        addEventListener: (type, listener) => { listeners.push([type, listener]); },
    });
    tab.tell = type => listeners.filter(([wanted]) => wanted === type).forEach(([, listener]) => listener());
    tab.load('text_widths');
    tab.measured = (text, font = '16px serif') => {
        let count = 0;
        tab.pozhilWidths.of(font, text, () => ({ width: ++count }));
        return count > 0;
    };
    tab.frame(16);
    return tab;
}

test('a text is measured once in each font', () => {
    const tab = measuringPage();
    const asked = [['அ'], ['அ'], ['ஆ'], ['அ', '17px serif'], ['அ']].map(([text, font]) => tab.measured(text, font));
    tab.frame(16);
    assert.deepEqual([...asked, tab.measured('அ')], [true, false, true, true, false, false]);
});

test('all are measured anew when the fonts or the screen change', () => {
    const CHANGES = {
        'a font is added': tab => tab.document.fonts.add({}),
        'a font is taken away': tab => tab.document.fonts.delete({}),
        'all are taken away': tab => tab.document.fonts.clear(),
        'a font has come': tab => tab.tell('loadingdone'),
        'a style names more fonts': tab => { tab.document.fonts.size++; tab.frame(16); },
        'the page is zoomed': tab => { tab.devicePixelRatio = 1.25; tab.frame(16); },
    };
    for (const [change, make] of Object.entries(CHANGES)) {
        const tab = measuringPage();
        tab.measured('அ');
        make(tab);
        assert.ok(tab.measured('அ'), change);
        assert.ok(!tab.measured('அ'), change);
    }
});

test('while fonts are on their way nothing is remembered beyond a frame', () => {
    const tab = measuringPage();
    tab.document.fonts.status = 'loading';
    for (let frame = 0; frame < 3; frame++) {
        tab.frame(16);
        assert.ok(tab.measured('அ'));
    }
    tab.document.fonts.status = 'loaded';
    tab.frame(16);
    assert.deepEqual([tab.measured('அ'), tab.measured('அ')], [true, false]);
});

test('without a size nothing is drawn', () => {
    const tab = page('frames');
    assert.equal(tab.frame(16), true);
    tab.innerHeight = 0;
    assert.equal(tab.frame(16), false);
});
