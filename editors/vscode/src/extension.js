// The extension: commands; faults and formatting by the language server, or, where the command has none, by its other words.

const vscode = require('vscode');

const { check } = require('./check.js');
const { findCommand, hasServer } = require('./command.js');
const { format } = require('./format.js');
const { startServer } = require('./server.js');

const LANGUAGE = 'pozhil';
const TERMINAL = 'பொழில்';
const NO_COMMAND = "'பொழில்' கட்டளை கிடைக்கவில்லை; நிறங்களும் துணுக்குகளும் மட்டும் இருக்கும். கட்டளையை நிறுவவும், " +
    "அல்லது அதன் பாதையை 'pozhil.command' அமைப்பில் கொடுக்கவும்.";
const NO_FILE = 'நிரலை முதலில் ஒரு கோப்பாகச் சேமிக்கவும்.';

let client = null;
let saidMissing = false;

const settings = () => vscode.workspace.getConfiguration(LANGUAGE);

/// The command; where there is none, the user is told, once.
async function commandOrWord() {
    const command = await findCommand(settings().get('command'));
    if (command === null && !saidMissing) {
        saidMissing = true;
        vscode.window.showWarningMessage(NO_COMMAND);
    }
    return command;
}

/// The file of the program in front, saved; null if it has none.
async function savedFile() {
    const document = vscode.window.activeTextEditor?.document;
    const isFile = document?.languageId === LANGUAGE && document.uri.scheme === 'file';
    if (!isFile || (document.isDirty && !await document.save())) {
        vscode.window.showWarningMessage(NO_FILE);
        return null;
    }
    return document.uri.fsPath;
}

/// Runs the program in a terminal, of which no shell reads its path.
async function run() {
    const command = await commandOrWord();
    const file = command && await savedFile();
    if (file) {
        vscode.window.terminals.filter(({ name }) => name === TERMINAL).forEach(terminal => terminal.dispose());
        vscode.window.createTerminal({ name: TERMINAL, shellPath: command, shellArgs: ['run', file] }).show();
    }
}

function diagnosticOf({ begin, end, message, code, isFault }) {
    const range = new vscode.Range(begin.line, begin.character, end.line, end.character);
    const severity = isFault ? vscode.DiagnosticSeverity.Error : vscode.DiagnosticSeverity.Information;
    const diagnostic = new vscode.Diagnostic(range, message, severity);
    diagnostic.source = TERMINAL;
    diagnostic.code = code ?? undefined;
    return diagnostic;
}

/// Checks a file and shows what was found, in it and in what it imports.
async function showFindings(command, file, shown) {
    const findings = await check(command, file);
    if (findings) {
        shown.clear();
        for (const [path, told] of findings) {
            shown.set(vscode.Uri.file(path), told.map(diagnosticOf));
        }
    }
}

async function checkNow(shown) {
    const command = await commandOrWord();
    const file = command && await savedFile();
    if (file && !client) {
        await showFindings(command, file, shown);
    }
    if (file) {
        await vscode.commands.executeCommand('workbench.actions.view.problems');
    }
}

/// Without a server: checks what is saved.
function checkOnSave(command, context, shown) {
    context.subscriptions.push(vscode.workspace.onDidSaveTextDocument(async document => {
        if (document.languageId === LANGUAGE && document.uri.scheme === 'file' && settings().get('checkOnSave')) {
            await showFindings(command, document.uri.fsPath, shown);
        }
    }));
}

/// Without a server: sets programs in the one style when asked to.
function offerFormatting(command, context) {
    context.subscriptions.push(vscode.languages.registerDocumentFormattingEditProvider({ language: LANGUAGE }, {
        async provideDocumentFormattingEdits(document) {
            const formatted = await format(command, document.getText());
            const whole = new vscode.Range(0, 0, document.lineCount, 0);
            return formatted === null ? [] : [vscode.TextEdit.replace(whole, formatted)];
        },
    }));
}

async function activate(context) {
    const shown = vscode.languages.createDiagnosticCollection(LANGUAGE);
    context.subscriptions.push(
        shown,
        vscode.commands.registerCommand('pozhil.run', run),
        vscode.commands.registerCommand('pozhil.check', () => checkNow(shown)),
    );
    const command = vscode.workspace.isTrusted ? await commandOrWord() : null;
    if (command === null) {
        return;
    }
    if (await hasServer(command)) {
        client = await startServer(command);
    } else {
        checkOnSave(command, context, shown);
        offerFormatting(command, context);
    }
}

async function deactivate() {
    await client?.stop();
}

module.exports = { activate, deactivate };
