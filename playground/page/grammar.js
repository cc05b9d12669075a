// The colours of programs: the grammar of the extension for VS Code, by the same engine, as a language of CodeMirror.

import { HighlightStyle, StreamLanguage, syntaxHighlighting } from '@codemirror/language';
import { Tag } from '@lezer/highlight';
import oniguruma from 'vscode-oniguruma';
import textmate from 'vscode-textmate';

const SCOPE = 'source.pozhil';
/// Scopes of the grammar, and by which class the style sheet knows them.
const CLASSES = {
    'comment': 'comment', 'string': 'string', 'constant.character.escape': 'escape', 'constant.numeric': 'number',
    'constant.language': 'constant', 'keyword.control': 'control', 'keyword.operator': 'operator', 'storage.type': 'storage',
    'support.class': 'class', 'support.type': 'property', 'support.function': 'function', 'entity.name.function': 'function',
    'entity.name.type': 'class',
};
const TAGS = Object.fromEntries([...new Set(Object.values(CLASSES))].map(name => [name, Tag.define()]));

/// The class of the innermost scope that has one, null for plain text.
function classOf(scopes) {
    for (let at = scopes.length - 1; at >= 0; at -= 1) {
        const known = Object.keys(CLASSES).find(scope => scopes[at] === scope || scopes[at].startsWith(`${scope}.`));
        if (known !== undefined) {
            return CLASSES[known];
        }
    }
    return null;
}

/// A line at a time: what the grammar makes of it, and which piece of it comes next.
function tokenizer(grammar) {
    const take = (state, line) => {
        const { tokens, ruleStack } = grammar.tokenizeLine(line, state.stack);
        state.stack = ruleStack;
        state.pieces = tokens;
    };
    return {
        startState: () => ({ stack: textmate.INITIAL, pieces: [] }),
        copyState: state => ({ ...state }),
        blankLine: state => take(state, ''),
        token: (stream, state) => {
            if (stream.sol()) {
                take(state, stream.string);
            }
            const piece = state.pieces.find(({ endIndex }) => endIndex > stream.pos);
            if (piece === undefined) {
                stream.skipToEnd();
                return null;
            }
            stream.pos = Math.min(piece.endIndex, stream.string.length);
            return classOf(piece.scopes);
        },
    };
}

/// The language of the editor: `grammar` as text, `engine` the WebAssembly of its regular expressions.
export async function loadLanguage({ grammar, engine }) {
    await oniguruma.loadWASM(engine);
    const registry = new textmate.Registry({
        onigLib: Promise.resolve({
            createOnigScanner: patterns => new oniguruma.OnigScanner(patterns),
            createOnigString: text => new oniguruma.OnigString(text),
        }),
        loadGrammar: async () => textmate.parseRawGrammar(grammar, 'pozhil.json'),
    });
    const styles = Object.entries(TAGS).map(([name, tag]) => ({ tag, class: `word-${name}` }));
    return [
        StreamLanguage.define({ name: 'pozhil', tokenTable: TAGS, ...tokenizer(await registry.loadGrammar(SCOPE)) }),
        syntaxHighlighting(HighlightStyle.define(styles)),
    ];
}
