// Scripts that the compiler puts into pages, run without a browser: each as the compiler fills it.

import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import vm from 'node:vm';

const text = (path, holes) => Object.entries(holes).reduce(
    (script, [name, value]) => script.replaceAll(`$${name}`, value),
    readFileSync(new URL(`../../src/${path}`, import.meta.url), 'utf8'));

/// The reload script of version 5 on a page whose server gives `answer`; tells how often the page reloads.
async function reloads(answer) {
    const page = { count: 0, polled: [] };
    const context = vm.createContext({
        setInterval: (poll, milliseconds) => { page.poll = poll; page.milliseconds = milliseconds; },
        fetch: async address => {
            page.polled.push(address);
            return { text: async () => answer() };
        },
        location: { reload: () => { page.count++; } },
        parseInt,
    });
    vm.runInContext(text('driver/web/text/reload.js', { version: 5 }), context);
    page.poll();
    await new Promise(resolve => { setImmediate(resolve); });
    return page;
}

test('a page asks for the version twice a second', async () => {
    const { milliseconds, polled } = await reloads(() => '5');
    assert.equal(milliseconds, 500);
    assert.deepEqual(polled, ['/version']);
});

test('a page reloads for a later version alone', async () => {
    for (const [answer, count] of [['5', 0], ['4', 0], ['6', 1], ['10', 1], ['', 0], ['<html>', 0]]) {
        assert.equal((await reloads(() => answer)).count, count, answer);
    }
});

/// A page with the script that keeps state, in a tab that stores `stored`. `program` is its Module, missing what it lacks.
function stateOf(stored, program) {
    const page = { stored, taken: [], warnings: [], frames: [] };
    const context = vm.createContext({
        location: { pathname: '/' },
        sessionStorage: {
            getItem: () => page.stored,
            removeItem: () => { page.stored = null; },
            setItem: (key, value) => { page.stored = value; },
        },
        console: { warn: line => { page.warnings.push(line); } },
        pozhilFrames: { before: work => { page.frames.push(work); } },
        Module: { ...program, ccall: (name, type, types, given) => (
            name === 'pozhil_take_state' ? page.taken.push(...given) : 'நிலை') },
    });
    context.globalThis = context;
    vm.runInContext(text('driver/web/text/kept_state.js', {}), context);
    page.draw = () => page.frames.forEach(work => work());
    page.keep = () => context.pozhilState.keep();
    return page;
}
const KEEPING = { _pozhil_take_state: () => {}, _pozhil_kept_state: () => {} };

test('what was kept is given back once, before the first frame, and is nobody else\'s', () => {
    const page = stateOf('பழையது', KEEPING);
    assert.equal(page.stored, null);
    page.draw();
    page.draw();
    assert.deepEqual(page.taken, ['பழையது']);
    page.keep();
    assert.equal(page.stored, 'நிலை');
});

test('the program learns what it begins with, if nothing was kept too', () => {
    const page = stateOf(null, KEEPING);
    page.draw();
    assert.deepEqual(page.taken, ['']);
});

test('a page that is replaced before its first frame hands on what was kept', () => {
    const page = stateOf('பழையது', KEEPING);
    page.keep();
    assert.equal(page.stored, 'பழையது');
});

test('a program that keeps nothing is asked nothing', () => {
    const page = stateOf('பழையது', {});
    page.draw();
    page.keep();
    assert.deepEqual(page.taken, []);
    assert.equal(page.stored, null);
});

test('a page outlives its server', async () => {
    assert.equal((await reloads(() => { throw new Error('gone'); })).count, 0);
});

const KEYS = { api_key: 'க', auth_domain: 'ங', database_url: 'ச', project_id: 'ஞ', storage_bucket: 'ட',
               messaging_sender_id: 'ண', app_id: 'த' };

/// A page that has run the loader of the database `times` times.
function loaded(times, apps = []) {
    const page = { scripts: [], configured: [], lines: [] };
    const context = vm.createContext({
        document: { createElement: name => ({ name }), head: { appendChild: script => { page.scripts.push(script); } } },
        console: { log: line => { page.lines.push(line); } },
        firebase: { apps, initializeApp: config => { page.configured.push({ ...config }); }, database: () => 'தளம்' },
    });
    context.window = context;
    page.window = context;
    for (let time = 0; time < times; time++) {
        vm.runInContext(text('generator/web/page/text/database_loader.js', { host: 'https://host.example', ...KEYS }),
                        context);
    }
    return page;
}

test('the libraries of the database come one after the other, once', () => {
    const page = loaded(2);
    assert.deepEqual(page.scripts.map(({ src }) => src), ['https://host.example/firebasejs/10.0.0/firebase-app-compat.js']);
    page.scripts[0].onload();
    assert.deepEqual(page.scripts.map(({ src }) => src.split('/').at(-1)),
                     ['firebase-app-compat.js', 'firebase-database-compat.js']);
    assert.equal(page.window.db, undefined);
    page.scripts[1].onload();
    assert.equal(page.window.db, 'தளம்');
    assert.deepEqual(page.configured, [{ apiKey: 'க', authDomain: 'ங', databaseURL: 'ச', projectId: 'ஞ',
                                         storageBucket: 'ட', messagingSenderId: 'ண', appId: 'த' }]);
    assert.equal(page.lines.length, 1);
});

test('a database that is ready is not made ready again', () => {
    const page = loaded(1, ['ஒன்று']);
    page.scripts[0].onload();
    page.scripts[1].onload();
    assert.deepEqual(page.configured, []);
    assert.equal(page.window.db, 'தளம்');
});
