// What the marks of a frame are read as, without a browser. Whole widgets are read in reader.test.js.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import vm from 'node:vm';

const context = vm.createContext({});
vm.runInContext(readFileSync(new URL('../../உள்ளடக்கம்/page/shown.js', import.meta.url), 'utf8'), context);

const shape = kind => (x, y, width = 0, height = 0, radius = 0) => ({ kind, x, y, width, height, radius });
const [rect, round, circle, line, measure] = ['rect', 'round', 'circle', 'line', 'measure'].map(shape);
const ask = { kind: 'ask' };
const text = (written, x, y, { size = 16, align = 'left', colour = '#000000' } = {}) => (
    { kind: 'text', text: written, x, y, size, align, colour });

/// The items of the page as words: role, texts or name in quotes, states.
function read(marks, notes) {
    const { page, dialogs } = context.pozhilShown.read(structuredClone(marks), notes);
    const describe = item => [item.role, `"${item.name ?? item.texts.map(one => one.text).join(' ')}"`,
        ...['checked', 'selected', 'expanded', 'current', 'disabled'].filter(state => item[state])].join(' ');
    const flat = items => items.flatMap(item => [describe({ texts: [], ...item }), ...flat(item.children ?? [])]);
    return flat([...page, ...dialogs]);
}

test('what nobody can press is disabled: it does not ask for the pointer', () => {
    const marks = [round(10, 10, 48, 28, 14), rect(20, 7, 34, 34), circle(46, 24, 12)];
    assert.deepEqual(read([rect(0, 0, 500, 400), ask, ...marks]), ['switch "மாற்றி" checked']);
    assert.deepEqual(read([rect(0, 0, 500, 400), ...marks]), ['switch "மாற்றி" checked disabled']);
    assert.deepEqual(read([ask, circle(10, 10, 10), text('ஒன்று', 30, 10)]), ['radio "ஒன்று"']);
    assert.deepEqual(read([circle(10, 10, 10), circle(10, 10, 5), text('ஒன்று', 30, 10)]),
                     ['radio "ஒன்று" checked disabled']);
});

test('a message in a pill and the shadow of a box are no progress', () => {
    assert.deepEqual(read([rect(5, 5, 310, 50), round(10, 10, 300, 40, 20), round(10, 10, 300, 40, 20),
                           text('செய்தி', 160, 22, { align: 'center' })]), ['text "செய்தி"']);
    assert.deepEqual(read([ask, rect(0, 0, 60, 60), round(10, 10, 40, 6, 3), round(10, 10, 40, 6, 3)]), []);
    assert.deepEqual(read([round(10, 10, 200, 6, 3), round(10, 10, 80, 6, 3)]), ['progressbar "முன்னேற்றம்"']);
});

test('an open menu stands after what opened it, with the item that is chosen', () => {
    const menu = [round(10, 54, 200, 80, 6), text('சிவப்பு', 25, 66), rect(10, 94, 200, 40), text('நீலம்', 25, 106)];
    assert.deepEqual(read([ask, round(10, 10, 200, 40, 6), text('நீலம்', 25, 22), line(185, 27), text('பின்', 0, 200),
                           ...menu]),
                     ['button "நீலம்" expanded', 'listbox "நீலம்"', 'option "சிவப்பு"', 'option "நீலம்" selected',
                      'text "பின்"']);
});

test('a bar at the bottom has an item for each label, whether it has an icon or not', () => {
    assert.deepEqual(read([rect(0, 332, 500, 4), rect(0, 336, 500, 64), ask, rect(113, 342, 24, 24),
                           text('முகப்பு', 125, 380, { align: 'center', colour: '#2196f3', size: 11 }),
                           text('தேடல்', 375, 380, { align: 'center', size: 11 }), text('மேல்', 0, 0)]),
                     ['navigation ""', 'button "முகப்பு" current', 'button "தேடல்"', 'text "மேல்"']);
});

test('a search can be cleared', () => {
    assert.deepEqual(read([round(0, 0, 350, 50, 25), circle(18, 23, 6), line(22, 27), line(320, 20), line(330, 20), ask]),
                     ['button "தேடலை அழி"']);
});

const boxes = [ask, round(0, 0, 100, 50), text('அ', 10, 10), ask, round(0, 60, 100, 50), text('ஆ', 10, 70),
    text('வெளியே', 10, 300)];

test('boxes are what the notes say, and hold the texts in them', () => {
    assert.deepEqual(read(boxes, [{ kind: 'பெட்டி', use: 'link' }, { kind: 'பட்டியல்_உருப்படி', use: 'press' }]),
                     ['link "அ"', 'button "ஆ"', 'text "வெளியே"']);
    assert.deepEqual(read(boxes, [{ kind: 'பெட்டி' }, { kind: 'பெட்டி', use: 'press' }]),
                     ['text "அ"', 'button "ஆ"', 'text "வெளியே"']);
});

test('notes of which there are more or fewer than boxes are not believed', () => {
    for (const notes of [[], [{ kind: 'பெட்டி', use: 'link' }], Array(3).fill({ kind: 'பெட்டி', use: 'link' })]) {
        assert.deepEqual(read(boxes, notes), ['text "அ"', 'text "ஆ"', 'text "வெளியே"']);
    }
});

test('a button in a box that can be pressed is a button of its own', () => {
    assert.deepEqual(read([ask, round(0, 0, 300, 200), text('அ', 10, 10), measure(0, 0, 40), ask, round(11, 52, 80, 36, 8),
                           round(10, 50, 80, 36, 8), text('ஆ', 50, 60, { align: 'center' })],
                          [{ kind: 'பெட்டி', use: 'press' }, { kind: 'பொத்தான்', use: 'press' }]),
                     ['button "அ"', 'button "ஆ"']);
});

test('of controls in a row each is called by the text on its left, and no text names two', () => {
    const control = x => [ask, round(x, 10, 48, 28, 14), rect(x, 7, 34, 34), circle(x + 14, 24, 12)];
    assert.deepEqual(read([text('ஒன்று', 0, 14), ...control(60), text('இரண்டு', 130, 14), ...control(200), ...control(260)]),
                     ['text "ஒன்று"', 'switch "ஒன்று"', 'text "இரண்டு"', 'switch "இரண்டு"', 'switch "மாற்றி"']);
});

test('a label may stand at the other end of the line, but one above is nearer', () => {
    const control = [ask, round(400, 10, 48, 28, 14), rect(400, 7, 34, 34), circle(414, 24, 12)];
    assert.deepEqual(read([text('ஒலி', 0, 14), ...control]), ['text "ஒலி"', 'switch "ஒலி"']);
    assert.deepEqual(read([text('வேறு', 0, 14), text('ஒலி', 400, -20), ...control]),
                     ['text "வேறு"', 'text "ஒலி"', 'switch "ஒலி"']);
    assert.deepEqual(read([text('ஒலி', 400, -100), ...control]), ['text "ஒலி"', 'switch "மாற்றி"']);
});

const picture = (file, x, y, width = 40, height = 40) => ({ kind: 'picture', file, x, y, width, height, radius: 1 });

test('a picture is called what is noted of its file, in turn where several show one', () => {
    const marks = [picture('அ', 0, 0), rect(0, 50, 40, 40), picture('அ', 0, 50), picture('ஆ', 0, 100), picture('இ', 0, 150)];
    const noted = [{ kind: 'படம்', file: 'அ', name: 'ஒன்று' }, { kind: 'படம்', file: 'அ', name: 'இரண்டு' },
        { kind: 'படம்', file: 'ஆ', name: '' }];
    assert.deepEqual(read(marks, noted), ['img "ஒன்று"', 'img "இரண்டு"']);
    assert.deepEqual(read([...marks, picture('அ', 0, 200)], noted), ['img "ஒன்று"', 'img "இரண்டு"', 'img "இரண்டு"']);
    assert.deepEqual(read(marks), []);
});

test('a picture in a box that can be pressed names it, unless a text does', () => {
    const box = [ask, round(0, 0, 100, 50), rect(5, 5, 40, 40), picture('அ', 5, 5)];
    const notes = [{ kind: 'பெட்டி', use: 'press' }, { kind: 'படம்', file: 'அ', name: 'கொடி' }];
    assert.deepEqual(read(box, notes), ['button "கொடி"']);
    assert.deepEqual(read([...box, text('ஏற்று', 50, 10)], notes), ['button "ஏற்று"']);
    assert.deepEqual(read([...box, picture('அ', 5, 300)], notes), ['button "கொடி"', 'img "கொடி"']);
    assert.deepEqual(read([ask, round(0, 0, 100, 50), picture('அ', 0, 0, 100, 50)], notes), ['button "பொத்தான்"']);
});
