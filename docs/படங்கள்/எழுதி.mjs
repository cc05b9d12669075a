// An editor in a page: Monaco, which VS Code is made of, with the grammar and configuration of the extension.

import * as monaco from 'monaco-editor/esm/vs/editor/editor.api.js';
import 'monaco-editor/esm/vs/editor/contrib/hover/browser/hoverContribution.js';
import 'monaco-editor/esm/vs/editor/contrib/bracketMatching/browser/bracketMatching.js';
import 'monaco-editor/esm/vs/editor/contrib/folding/browser/folding.js';
import oniguruma from 'vscode-oniguruma';
import textmate from 'vscode-textmate';

const LANGUAGE = 'pozhil';
const COLOURS = {
    comment: '6A9955', string: 'CE9178', 'constant.character.escape': 'D7BA7D', 'constant.numeric': 'B5CEA8',
    'constant.language': '569CD6', 'keyword.control': 'C586C0', 'keyword.operator': 'D4D4D4', 'storage.type': '569CD6',
    'support.class': '4EC9B0', 'support.type': '9CDCFE', 'support.function': 'DCDCAA', 'entity.name.function': 'DCDCAA',
    'entity.name.type': '4EC9B0',
};

/// The grammar as Monaco wants it: a line at a time, each piece with its innermost scope.
function tokensBy(grammar) {
    const state = stack => ({ stack, clone: () => state(stack), equals: other => other.stack === stack });
    return {
        getInitialState: () => state(textmate.INITIAL),
        tokenize: (line, { stack }) => {
            const { tokens, ruleStack } = grammar.tokenizeLine(line, stack);
            const told = tokens.map(({ startIndex, scopes }) => ({ startIndex, scopes: scopes[scopes.length - 1] }));
            return { tokens: told, endState: state(ruleStack) };
        },
    };
}

/// Opens an editor with a program and what was found of it. \p wasm the engine of regular expressions, in base64
window.openEditor = async ({ grammar, wasm, source, findings, fontFamily }) => {
    await oniguruma.loadWASM(Uint8Array.from(atob(wasm), one => one.charCodeAt(0)));
    const registry = new textmate.Registry({
        onigLib: Promise.resolve({
            createOnigScanner: patterns => new oniguruma.OnigScanner(patterns),
            createOnigString: text => new oniguruma.OnigString(text),
        }),
        loadGrammar: async () => textmate.parseRawGrammar(grammar, 'pozhil.json'),
    });
    monaco.languages.register({ id: LANGUAGE });
    monaco.languages.setTokensProvider(LANGUAGE, tokensBy(await registry.loadGrammar('source.pozhil')));
    const rules = Object.entries(COLOURS).map(([token, foreground]) => ({ token, foreground }));
    monaco.editor.defineTheme(LANGUAGE, { base: 'vs-dark', inherit: true, rules, colors: {} });
    const editor = monaco.editor.create(document.body, {
        value: source, language: LANGUAGE, theme: LANGUAGE, fontSize: 17, lineHeight: 28, fontFamily, minimap: { enabled: false },
        unicodeHighlight: { ambiguousCharacters: false }, renderLineHighlight: 'none', scrollBeyondLastLine: false,
        hover: { above: false },
    });
    monaco.editor.setModelMarkers(editor.getModel(), LANGUAGE, findings.map(({ begin, end, message, code, isFault }) => ({
        startLineNumber: begin.line + 1, startColumn: begin.character + 1, endLineNumber: end.line + 1,
        endColumn: end.character + 1, message, code, source: 'பொழில்',
        severity: isFault ? monaco.MarkerSeverity.Error : monaco.MarkerSeverity.Info,
    })));
    return new Promise(resolve => setTimeout(resolve, 1000));
};
