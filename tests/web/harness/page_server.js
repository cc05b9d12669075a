// Serves built pages from memory on a port of its own, so that tests in a browser don't wait for the compiler's port.

import { createServer } from 'node:http';

const TYPES = { html: 'text/html; charset=utf-8', js: 'text/javascript', wasm: 'application/wasm' };

export class PageServer {
    #server = null;
    #pages = [];

    async start() {
        this.#server = createServer((request, response) => this.#answer(request.url, response));
        await new Promise(ready => this.#server.listen(0, '127.0.0.1', ready));
    }

    /// Takes the files of a page, by name, and returns the page's address.
    add(files) {
        let number = this.#pages.indexOf(files);
        if (number < 0) {
            number = this.#pages.push(files) - 1;
        }
        return `http://127.0.0.1:${this.#server.address().port}/${number}/`;
    }

    #answer(url, response) {
        const [, number, name] = new URL(url, 'http://localhost').pathname.split('/');
        if (number === 'version' && name === 'fault') {
            response.end('{}');
            return;
        }
        if (number === 'version') {
            // What stands in every page after its first build: nothing has changed since.
            response.end('2');
            return;
        }
        const contents = this.#pages[number]?.get(name || 'index.html');
        response.writeHead(contents ? 200 : 404, { 'Content-Type': TYPES[name?.split('.').pop() || 'html'] ?? '' });
        response.end(contents);
    }

    stop() {
        this.#server.closeAllConnections();
        this.#server.close();
    }
}
