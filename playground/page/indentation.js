// How far a new line is indented: the rules of the extension for VS Code.

import configuration from '../../editors/vscode/language-configuration.json';

const patternOf = ({ pattern, flags }) => new RegExp(pattern, flags);
const INCREASE = patternOf(configuration.indentationRules.increaseIndentPattern);
const DECREASE = patternOf(configuration.indentationRules.decreaseIndentPattern);
const DECREASE_AFTER = configuration.onEnterRules.map(({ beforeText }) => patternOf(beforeText));

/// The last line before `from` that isn't blank, null if there is none.
function lineBefore(context, from) {
    while (from > 0) {
        const line = context.lineAt(from - 1, -1);
        if (line.text.trim() !== '') {
            return line.text;
        }
        from = line.from;
    }
    return null;
}

/// The columns that CodeMirror is to indent the line at `position` by.
export function indentationAt(context, position) {
    const line = context.lineAt(position);
    const before = lineBefore(context, line.from);
    if (before === null) {
        return 0;
    }
    const less = DECREASE.test(line.text) || DECREASE_AFTER.some(rule => rule.test(before));
    const columns = before.match(/^ */)[0].length + (INCREASE.test(before) ? context.unit : 0);
    return Math.max(columns - (less ? context.unit : 0), 0);
}
