// The packed extension, in an editor that is made up. EXTENSION is the folder of the extension, COMMAND the command.

const assert = require('node:assert/strict');
const { chmodSync, mkdtempSync, readFileSync, writeFileSync } = require('node:fs');
const Module = require('node:module');
const { tmpdir } = require('node:os');
const path = require('node:path');
const { test } = require('node:test');

const EXTENSION = process.env.EXTENSION;
const COMMAND = process.env.COMMAND;

/// An editor of which the extension sees what it uses, and what it did to that.
function editor(settings, document) {
    const seen = { warnings: [], diagnostics: new Map(), terminals: [], handlers: {}, saved: null, formatter: null,
                   executed: [] };
    seen.vscode = {
        Range: class {
            constructor(...places) {
                this.places = places;
            }
        },
        Diagnostic: class {
            constructor(range, message, severity) {
                Object.assign(this, { range, message, severity });
            }
        },
        DiagnosticSeverity: { Error: 0, Warning: 1, Information: 2 },
        Uri: { file: fsPath => ({ fsPath }) },
        commands: {
            registerCommand: (name, handler) => (seen.handlers[name] = handler),
            executeCommand: async name => seen.executed.push(name),
        },
        TextEdit: { replace: (range, text) => ({ range, text }) },
        languages: {
            registerDocumentFormattingEditProvider: (_, provider) => (seen.formatter = provider),
            createDiagnosticCollection: () => ({
                clear: () => seen.diagnostics.clear(),
                set: (uri, told) => seen.diagnostics.set(uri.fsPath, told),
            }),
        },
        window: {
            activeTextEditor: document && { document },
            terminals: [],
            showWarningMessage: text => seen.warnings.push(text),
            createTerminal: options => (seen.terminals.push(options), { show() {} }),
        },
        workspace: {
            isTrusted: true,
            getConfiguration: () => ({ get: name => settings[name] }),
            onDidSaveTextDocument: handler => (seen.saved = handler),
        },
    };
    return seen;
}

/// The extension, read anew, as the editor starts it.
async function start(seen) {
    const load = Module._load;
    Module._load = (name, ...rest) => (name === 'vscode' ? seen.vscode : load(name, ...rest));
    try {
        const file = path.join(EXTENSION, 'extension.js');
        delete require.cache[file];
        const extension = require(file);
        await extension.activate({ subscriptions: [] });
        return extension;
    } finally {
        Module._load = load;
    }
}

const program = text => {
    const file = path.join(mkdtempSync(path.join(tmpdir(), 'pozhil-')), 'நிரல்.பொழில்');
    writeFileSync(file, text);
    return { languageId: 'pozhil', isDirty: false, uri: { scheme: 'file', fsPath: file }, save: async () => true };
};

/// The real command, but for its help on the language server.
function commandWithoutServer() {
    const file = path.join(mkdtempSync(path.join(tmpdir(), 'pozhil-')), 'command');
    writeFileSync(file, `#!/bin/sh\n[ "$2" != lsp ] || exit 2\nexec '${COMMAND}' "$@"\n`);
    chmodSync(file, 0o755);
    return file;
}

test('without a command that is said once, in Tamil', async () => {
    const seen = editor({ command: '/there/is/none', checkOnSave: true }, program('அச்சிடு(1)\n'));
    await start(seen);
    await seen.handlers['pozhil.run']();
    await seen.handlers['pozhil.check']();
    assert.equal(seen.warnings.length, 1);
    assert.match(seen.warnings[0], /கட்டளை கிடைக்கவில்லை/);
    assert.deepEqual(seen.terminals, []);
});

test('what is saved is checked, with places in units of UTF-16', async () => {
    const document = program('ஃ பொழில் 2\nசொல் = "😀" இணை காணாத_பெயர்\nஅச்சிடு(சொல்)\n');
    const seen = editor({ command: commandWithoutServer(), checkOnSave: true }, document);
    await start(seen);
    await seen.saved(document);
    const [told] = seen.diagnostics.get(document.uri.fsPath);
    const line = 'சொல் = "😀" இணை காணாத_பெயர்';
    assert.deepEqual(told.range.places, [1, line.indexOf('காணாத'), 1, line.length]);
    assert.equal(told.severity, seen.vscode.DiagnosticSeverity.Error);
    assert.match(told.message, /^'காணாத_பெயர்' [^\n]+\n[^\n]*காணாத_பெயர்/);
    assert.match(told.code, /^பொழி-5\d\d$/);

    writeFileSync(document.uri.fsPath, 'ஃ பொழில் 2\nஅச்சிடு(1)\n');
    await seen.saved(document);
    assert.equal(seen.diagnostics.size, 0);
});

test('nothing is checked on saving where the settings say so', async () => {
    const document = program('அச்சிடு(\n');
    const seen = editor({ command: commandWithoutServer(), checkOnSave: false }, document);
    await start(seen);
    await seen.saved(document);
    assert.equal(seen.diagnostics.size, 0);
    await seen.handlers['pozhil.check']();
    assert.equal(seen.diagnostics.size, 1);
    assert.deepEqual(seen.executed, ['workbench.actions.view.problems']);
});

test('programs are set in the one style, those with faults left alone', async () => {
    const seen = editor({ command: commandWithoutServer(), checkOnSave: true });
    await start(seen);
    const edits = text => seen.formatter.provideDocumentFormattingEdits({ getText: () => text, lineCount: 3 });
    assert.deepEqual(await edits('எனில் மெய்:\n  அச்சிடு( 1 )\n'), [
        { range: new seen.vscode.Range(0, 0, 3, 0), text: 'எனில் மெய்:\n    அச்சிடு(1)\n' },
    ]);
    assert.deepEqual(await edits('எனில் மெய்:\n    அச்சிடு(1)\n'), []);
    assert.deepEqual(await edits('அச்சிடு( 1\n'), []);
});

test('a program runs in a terminal, without a shell that would read its path', async () => {
    const document = program('அச்சிடு(1)\n');
    const command = commandWithoutServer();
    const seen = editor({ command, checkOnSave: true }, document);
    await start(seen);
    await seen.handlers['pozhil.run']();
    assert.deepEqual(seen.terminals, [{ name: 'பொழில்', shellPath: command, shellArgs: ['run', document.uri.fsPath] }]);
});

test('in folders that are not trusted no command is started', async () => {
    const seen = editor({ command: '/there/is/none', checkOnSave: true });
    seen.vscode.workspace.isTrusted = false;
    await start(seen);
    assert.deepEqual([seen.warnings, seen.saved], [[], null]);
});

const configuration = JSON.parse(readFileSync(path.join(EXTENSION, 'language-configuration.json'), 'utf8'));
const expression = ({ pattern, flags }, more = '') => new RegExp(pattern, (flags ?? '') + more);

test('Tamil words are one word each', () => {
    const words = 'தான்.வட்டி_சேர்(௧௨, 5.25) ஃபாரன்'.match(expression(configuration.wordPattern, 'g'));
    assert.deepEqual(words, ['தான்', 'வட்டி_சேர்', '௧௨', '5.25', 'ஃபாரன்']);
});

test('lines after a block begins are one level deeper, branches as deep as their condition', () => {
    const { increaseIndentPattern, decreaseIndentPattern } = configuration.indentationRules;
    const deeper = line => expression(increaseIndentPattern).test(line);
    const higher = line => expression(decreaseIndentPattern).test(line);
    assert.deepEqual(['எனில் அ:', 'அச்சிடு(', 'எனில் அ: ஃ குறிப்பு', 'உரை("(:"):'].map(deeper), [true, true, true, true]);
    assert.deepEqual(['ஃ எனில் அ:', 'அச்சிடு("அ:")', 'அ = {}', '"எனில்:'].map(deeper), [false, false, false, false]);
    assert.deepEqual(['    இல்லை:', 'இல்லை எனில் அ:', '  )', 'பிடி:'].map(higher), [true, true, true, true]);
    assert.deepEqual(['இல்லை அ', 'இல்லைஎன்ற:', 'பிடித்தம் = 1'].map(higher), [false, false, false]);
});
