// What scripts/build-playground does to the folder that it is given.

import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { copyFileSync, mkdirSync, mkdtempSync, readFileSync, readdirSync, rmSync, symlinkSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { test } from 'node:test';

import { ROOT } from './site.js';

/// What em++ makes is there already.
const NOTHING_TO_COMPILE = { emcmake: 'exit 0', cmake: 'exit 0' };

/// Builds into a folder with these files in it, with some commands replaced by scripts, and tells how it ended and what is
/// there then.
function build(files, commands) {
    const work = mkdtempSync(path.join(tmpdir(), 'playground-'));
    try {
        const site = path.join(work, 'sites', 'my site');
        mkdirSync(site, { recursive: true });
        Object.entries(files).forEach(([name, text]) => writeFileSync(path.join(site, name), text));
        const bin = path.join(work, 'bin');
        mkdirSync(bin);
        Object.entries(commands).forEach(([name, script]) => {
            writeFileSync(path.join(bin, name), `#!/bin/sh\n${script}\n`, { mode: 0o755 });
        });
        const { status, stderr } = spawnSync(path.join(ROOT, 'scripts/build-playground'), [site], {
            encoding: 'utf8', env: { ...process.env, PATH: `${bin}:${process.env.PATH}` },
        });
        const texts = Object.fromEntries(readdirSync(site).map(name => [name, readFileSync(path.join(site, name), 'utf8')]));
        return { status, stderr, texts, beside: readdirSync(path.dirname(site)) };
    } finally {
        rmSync(work, { recursive: true });
    }
}

test('leaves a folder alone that is no playground', () => {
    const files = { 'index.html': 'my own page', '.hidden': '' };
    for (const own of [files, { '.hidden': '' }]) {
        const { status, stderr, texts, beside } = build(own, NOTHING_TO_COMPILE);
        assert.equal(status, 1);
        assert.match(stderr, /This isn't a former playground/);
        assert.deepEqual(texts, own);
        assert.deepEqual(beside, ['my site']);
    }
});

test('leaves the former playground where the new one fails', () => {
    const former = { 'compiler.wasm': 'old', 'index.html': 'old' };
    const { status, texts, beside } = build(former, { ...NOTHING_TO_COMPILE, node: 'exit 1' });
    assert.equal(status, 1);
    assert.deepEqual(texts, former);
    assert.deepEqual(beside, ['my site']);
});

test('replaces a former playground, and fills an empty folder', () => {
    for (const former of [{ 'compiler.wasm': 'old', 'old.js': 'old' }, {}]) {
        const { status, stderr, texts, beside } = build(former, NOTHING_TO_COMPILE);
        assert.equal(status, 0, stderr);
        assert.equal('old.js' in texts, false);
        assert.notEqual(texts['compiler.wasm'], 'old');
        assert.equal(texts['index.html'], readFileSync(path.join(ROOT, 'playground/page/index.html'), 'utf8'));
        assert.deepEqual(beside, ['my site']);
    }
});

test('passes nothing on without its licence', () => {
    const work = mkdtempSync(path.join(tmpdir(), 'playground-'));
    try {
        for (const name of ['editors', 'third_party', 'தொகுப்புகள்', 'எடுத்துக்காட்டுகள்']) {
            symlinkSync(path.join(ROOT, name), path.join(work, name));
        }
        const unlicensed = path.join(work, 'playground/node_modules/@some/part');
        mkdirSync(unlicensed, { recursive: true });
        for (const name of ['gather.mjs', 'samples.txt', 'தொடக்கம்.பொழில்']) {
            copyFileSync(path.join(ROOT, 'playground', name), path.join(work, 'playground', name));
        }
        const gather = () => spawnSync('node', [path.join(work, 'playground/gather.mjs'), work], { encoding: 'utf8' });
        writeFileSync(path.join(unlicensed, 'README.md'), 'a part');
        const refused = gather();
        assert.equal(refused.status, 1);
        assert.match(refused.stderr, /No licence: @some\/part/);
        writeFileSync(path.join(unlicensed, 'COPYING'), 'as you like');
        assert.equal(gather().status, 0);
        assert.match(readFileSync(path.join(work, 'licences.txt'), 'utf8'), /^@some\/part\n\nas you like\n/);
    } finally {
        rmSync(work, { recursive: true });
    }
});
