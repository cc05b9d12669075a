// Serves folders that are held in memory, each at an address of its own: what the servers of the tests have in common.

import { createServer } from 'node:http';

const TYPES = {
    css: 'text/css', html: 'text/html; charset=utf-8', js: 'text/javascript', json: 'application/json', svg: 'image/svg+xml',
    txt: 'text/plain; charset=utf-8', wasm: 'application/wasm',
};

export class FolderServer {
    #root;
    #folders = [];
    #server = createServer((request, response) => {
        this.answer(decodeURI(new URL(request.url, 'http://localhost').pathname), response);
    });

    /// All folders are below the path `root`.
    constructor(root = '/') {
        this.#root = root;
    }

    /// Takes a port of its own.
    async start() {
        await new Promise(ready => this.#server.listen(0, '127.0.0.1', ready));
        return this;
    }

    /// Takes the files of a folder, by name, and returns the folder's address.
    add(files) {
        let number = this.#folders.indexOf(files);
        if (number < 0) {
            number = this.#folders.push(files) - 1;
        }
        return `http://127.0.0.1:${this.#server.address().port}${encodeURI(this.#root)}${number}/`;
    }

    /// Sends the file of this path, and returns whether there is one.
    answer(path, response) {
        const [number, file] = path.startsWith(this.#root) ? path.slice(this.#root.length).split('/') : [];
        const name = file || 'index.html';
        const contents = this.#folders[number]?.get(name);
        response.writeHead(contents ? 200 : 404, { 'Content-Type': TYPES[name.split('.').pop()] ?? '' });
        response.end(contents);
        return Boolean(contents);
    }

    stop() {
        this.#server.closeAllConnections();
        this.#server.close();
    }
}
