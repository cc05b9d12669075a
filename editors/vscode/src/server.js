// The language server, which the command is.

const WORD = 'மொழிச்சேவை';

/// Starts the server and the client that talks to it. \return the client, which is stopped with the extension
async function startServer(command) {
    // Read here alone: without a server nothing of it is needed.
    const vscode = require('vscode');
    const { LanguageClient, TransportKind } = require('vscode-languageclient/node');
    const server = { command, args: [WORD], transport: TransportKind.stdio };
    const client = new LanguageClient('pozhil', 'பொழில்', server, {
        documentSelector: [{ language: 'pozhil', scheme: 'file' }, { language: 'pozhil', scheme: 'untitled' }],
        // What a program imports may change without being open.
        synchronize: { fileEvents: vscode.workspace.createFileSystemWatcher('**/*.பொழில்') },
    });
    await client.start();
    return client;
}

module.exports = { startServer };
