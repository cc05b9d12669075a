// Serves folders from a path below its root, as any web host does, and tells what was asked for in vain.

import { createServer } from 'node:http';

const TYPES = { html: 'text/html; charset=utf-8', js: 'text/javascript', wasm: 'application/wasm' };
const FOLDER = '/எங்கள் தளம்/செயலிகள்/';

export class StaticServer {
    missing = [];
    #folders = [];
    #server = createServer((request, response) => this.#answer(decodeURI(request.url), response));

    async start() {
        await new Promise(ready => this.#server.listen(0, '127.0.0.1', ready));
        return this;
    }

    /// Takes the files of a site, by name, and returns the site's address.
    add(files) {
        let number = this.#folders.indexOf(files);
        if (number < 0) {
            number = this.#folders.push(files) - 1;
        }
        return `http://127.0.0.1:${this.#server.address().port}${encodeURI(FOLDER)}${number}/`;
    }

    #answer(url, response) {
        const [number, name] = url.startsWith(FOLDER) ? url.slice(FOLDER.length).split('/') : [];
        const contents = this.#folders[number]?.get(name || 'index.html');
        if (!contents) {
            this.missing.push(url);
        }
        response.writeHead(contents ? 200 : 404, { 'Content-Type': TYPES[(name || 'index.html').split('.').pop()] ?? '' });
        response.end(contents);
    }

    stop() {
        this.#server.closeAllConnections();
        this.#server.close();
    }
}
