// The realtime database as the page sees it: its real libraries from npm, and a service that speaks their protocol.

import { readFile } from 'node:fs/promises';
import { createRequire } from 'node:module';
import path from 'node:path';

const LIBRARIES = path.dirname(createRequire(import.meta.url).resolve('firebase/package.json'));

/// A database that lives as long as one page. Whatever the page asks of it is kept in `requests`.
export class DatabaseService {
    /// [operation, path, data] of every request; the operations are put, merge and listen.
    requests = [];
    /// Names of the library files in the order in which the page asked for them.
    loaded = [];
    /// Paths that nobody may read or write.
    refused = new Set();
    /// While true, answers to reads wait for `release`.
    holdsReads = false;
    #held = [];

    constructor(data = {}) {
        this.data = data;
    }

    /// Stands in for the vendor's hosts. `libraries: false` is a page without a network.
    async attach(page, { libraries = true } = {}) {
        await page.route('**/firebasejs/10.0.0/*', async route => {
            const name = path.basename(new URL(route.request().url()).pathname);
            this.loaded.push(name);
            await this.gate;
            if (libraries) {
                await route.fulfill({ contentType: 'text/javascript', body: await readFile(path.join(LIBRARIES, name)) });
            } else {
                await route.abort();
            }
        });
        await page.routeWebSocket(url => url.pathname === '/.ws', socket => this.#serve(socket));
    }

    /// From now on the page gets no library file until the returned function is called.
    holdLibraries() {
        let open;
        this.gate = new Promise(resolve => { open = resolve; });
        return open;
    }

    /// Answers the reads that wait, in the order given by their paths.
    release(...paths) {
        for (const wanted of paths) {
            this.#held.splice(this.#held.findIndex(({ path: held }) => held === wanted), 1)[0].answer();
        }
    }

    get waiting() {
        return this.#held.map(({ path: held }) => held);
    }

    /// What was written, without the reads.
    get writes() {
        return this.requests.filter(([operation]) => operation !== 'listen');
    }

    at(name) {
        return name.split('/').filter(Boolean).reduce((value, key) => value?.[key] ?? null, this.data);
    }

    #put(name, value) {
        const keys = name.split('/').filter(Boolean);
        const last = keys.pop();
        const parent = keys.reduce((tree, key) => (tree[key] ??= {}), this.data);
        if (value === null) {
            delete parent[last];
        } else {
            parent[last] = value;
        }
    }

    #serve(socket) {
        const send = message => socket.send(JSON.stringify(message));
        const handshake = { ts: Date.now(), v: '5', h: new URL(socket.url()).host, s: 'session' };
        socket.onMessage(text => {
            // A bare number is a sign of life.
            const message = JSON.parse(text);
            if (message.t === 'd') {
                this.#answer(message.d, send);
            }
        });
        send({ t: 'c', d: { t: 'h', d: handshake } });
    }

    #answer({ r: number, a: action, b: { p: name, d: data } }, send) {
        const operation = { p: 'put', m: 'merge', q: 'listen' }[action];
        const reply = (status = 'ok') => send({ t: 'd', d: { r: number, b: { s: status, d: '' } } });
        if (!operation) {
            reply();
            return;
        }
        this.requests.push(operation === 'listen' ? [operation, name] : [operation, name, data]);
        if (this.refused.has(name)) {
            reply('permission_denied');
        } else if (operation === 'listen') {
            const answer = () => {
                send({ t: 'd', d: { a: 'd', b: { p: name.slice(1), d: this.at(name) } } });
                reply();
            };
            if (this.holdsReads) {
                this.#held.push({ path: name, answer });
            } else {
                answer();
            }
        } else {
            for (const [key, value] of operation === 'put' ? [['', data]] : Object.entries(data)) {
                this.#put(`${name}/${key}`, value);
            }
            reply();
        }
    }
}
