// The TextMate grammar on whole programs: TOOLS is a folder of packages, GRAMMAR the grammar, SOURCES a list of programs
// without faults, WORDS one of words that mean what they say wherever they stand in these; both as JSON.

const assert = require('node:assert/strict');
const { readFileSync } = require('node:fs');
const path = require('node:path');
const { before, test } = require('node:test');

const tool = name => require(path.join(process.env.TOOLS, name));
const oniguruma = tool('vscode-oniguruma');
const textmate = tool('vscode-textmate');
const words = new Set(JSON.parse(process.env.WORDS));
const OUTSIDE_OF_WORDS = /[^\p{L}\p{M}\p{N}_]+/u;
// What stays open at the end of a program of the second edition: the program itself.
const OPEN_AT_END = 2;

let grammar = null;

before(async () => {
    await oniguruma.loadWASM(readFileSync(path.join(process.env.TOOLS, 'vscode-oniguruma/release/onig.wasm')).buffer);
    const registry = new textmate.Registry({
        onigLib: Promise.resolve({
            createOnigScanner: patterns => new oniguruma.OnigScanner(patterns),
            createOnigString: text => new oniguruma.OnigString(text),
        }),
        loadGrammar: async () => textmate.parseRawGrammar(readFileSync(process.env.GRAMMAR, 'utf8'), process.env.GRAMMAR),
    });
    grammar = await registry.loadGrammar('source.pozhil');
});

for (const file of JSON.parse(process.env.SOURCES)) {
    test(path.basename(file), () => {
        let stack = textmate.INITIAL;
        const plain = [];
        for (const line of readFileSync(file, 'utf8').split('\n')) {
            const { tokens, ruleStack } = grammar.tokenizeLine(line, stack);
            stack = ruleStack;
            const uncoloured = tokens.filter(({ scopes }) => scopes.length === 1);
            const pieces = uncoloured.flatMap(({ startIndex, endIndex }) => line.slice(startIndex, endIndex).split(OUTSIDE_OF_WORDS));
            plain.push(...pieces.filter(piece => words.has(piece)).map(piece => `${piece}: ${line}`));
        }
        assert.deepEqual(plain, []);
        assert.ok(stack.depth <= OPEN_AT_END, 'a text or comment stays open');
    });
}
