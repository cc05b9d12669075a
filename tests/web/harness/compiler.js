// Starts the compiler on a web application, and keeps the page that it built.

import { spawn } from 'node:child_process';
import { createHash } from 'node:crypto';
import { once } from 'node:events';
import { existsSync } from 'node:fs';
import { mkdir, mkdtemp, readFile, readdir, rename, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import path from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { fileURLToPath } from 'node:url';

const REPOSITORY = path.resolve(path.dirname(fileURLToPath(import.meta.url)), '../../..');
const STAGED = path.join(REPOSITORY, 'build/release/பொழில்/பொழி');
const PORT = 6931;
const SOURCE = 'செயலி.பொழில்';
const OUTPUT = 'வெளியீடு';
const SECOND_EDITION = 'ஃ பொழில் 2\n';

// The compiler's port is one for all tests, of other languages too: whoever has this lock may use it.
const PORT_LOCK = path.join(tmpdir(), 'pozhil-port.lock');

const PORT_TAKEN = 'சர்வரைத் தொடங்க முடியவில்லை';

const BUILD_TIME = 120_000;

// Whatever ends the tests ends their compilers.
const running = new Set();
process.on('exit', () => running.forEach(killGroup));
for (const signal of ['SIGINT', 'SIGTERM']) {
    process.once(signal, () => process.exit(1));
}

function killGroup(leader) {
    try {
        process.kill(-leader.pid, 'SIGKILL');
    } catch {
        // has ended by itself
    }
}

export const address = `http://127.0.0.1:${PORT}`;

export function compilerPath() {
    const found = path.resolve(process.env.POZHIL_COMPILER || STAGED);
    if (!existsSync(found)) {
        throw new Error(`no compiler at ${found}: build it first, or name one in POZHIL_COMPILER`);
    }
    return found;
}

function environment(home, changes) {
    const kept = Object.entries(process.env).filter(([name]) => !/^(POZHIL_|NODE_|XDG_CACHE_HOME$)/.test(name));
    return { ...Object.fromEntries(kept), HOME: home, POZHIL_ANIMATION_MS: '0', BROWSER: 'none', ...changes };
}

class PortTaken extends Error {
    constructor() {
        super(`another program serves on port ${PORT}`);
    }
}

/// A compiler that builds, serves and watches one application. At most one runs at a time on a machine.
export class Compiler {
    /// `files`: contents by the name under which they stand beside the source. `tools`: shell texts by the name of the
    /// program that each stands in for. `variables` join its environment.
    static async start(source, { files = {}, tools = {}, variables = {} } = {}) {
        const folder = await mkdtemp(path.join(tmpdir(), 'pozhil-web-'));
        const compiler = new Compiler(folder, source, variables);
        for (const [name, contents] of Object.entries({ [SOURCE]: source, ...files })) {
            await compiler.write(name, contents);
        }
        for (const [name, text] of Object.entries(tools)) {
            await compiler.standIn(name, text);
        }
        compiler.#run();
        return compiler;
    }

    stdout = '';
    stderr = '';
    /// The exit status, once the process has ended by itself.
    status = null;
    #process = null;
    #variables;

    constructor(folder, source, variables) {
        this.folder = folder;
        this.output = path.join(folder, OUTPUT, source.startsWith(SECOND_EDITION) ? SOURCE : '');
        this.#variables = variables;
        this.tools = path.join(folder, '.tools');
    }

    async write(name, contents) {
        const file = path.join(this.folder, name);
        await mkdir(path.dirname(file), { recursive: true });
        await writeFile(file, contents);
    }

    /// Puts a program of this name in front of the machine's own.
    async standIn(name, text) {
        await mkdir(this.tools, { recursive: true });
        await writeFile(path.join(this.tools, name), `#!/bin/sh\n${text}\n`, { mode: 0o755 });
    }

    /// From now on the machine's own program is found again.
    async removeStandIn(name) {
        await rm(path.join(this.tools, name));
    }

    /// Saves another text of the application at one stroke, as editors do.
    async edit(source) {
        await this.write('.new', source);
        await rename(path.join(this.folder, '.new'), path.join(this.folder, SOURCE));
    }

    #run() {
        const env = environment(this.folder, { PATH: `${this.tools}:${process.env.PATH}`, ...this.#variables });
        const command = ['--no-fork', PORT_LOCK, compilerPath(), SOURCE];
        // A group of its own, so that nothing it started outlives the test.
        this.#process = spawn('flock', command, { cwd: this.folder, env, detached: true,
                                                  stdio: ['ignore', 'pipe', 'pipe'] });
        running.add(this.#process);
        for (const stream of ['stdout', 'stderr']) {
            this.#process[stream].setEncoding('utf8').on('data', text => { this[stream] += text; });
        }
        this.#process.on('close', status => { this.status = status; });
    }

    /// Returns once `holds()` is true. What the compiler needs before it says its first word is waiting for the port.
    async waitUntil(holds, what, limit = BUILD_TIME) {
        let end = Infinity;
        while (!(await holds())) {
            if (end === Infinity && this.stdout) {
                end = Date.now() + limit;
            }
            if (this.stderr.includes(PORT_TAKEN)) {
                throw new PortTaken();
            }
            if (Date.now() > end || (this.status !== null && !(await holds()))) {
                throw new Error(`waited in vain for ${what}; exit status ${this.status}\n`
                    + `--- standard output\n${this.stdout}\n--- standard error\n${this.stderr}`);
            }
            await pause(50);
        }
    }

    async waitForVersion(number) {
        await this.waitUntil(async () => await this.version() >= number, `version ${number}`);
        const own = await readFile(path.join(this.output, 'index.wasm'));
        if (!own.equals(await served('/index.wasm'))) {
            throw new PortTaken();
        }
    }

    async waitForOutput(text) {
        await this.waitUntil(() => this.stdout.includes(text), `the output ${text}`);
    }

    async waitForEnd() {
        await this.waitUntil(() => this.status !== null, 'the end');
        return this.status;
    }

    /// What the server answers on /version; 0 while there is none, since it comes up behind the first build.
    async version() {
        if (!this.stdout.includes(address)) {
            return 0;
        }
        try {
            return Number(await (await fetch(`${address}/version`)).text());
        } catch {
            return 0;
        }
    }

    /// Ends the process; what it made stays.
    async stop() {
        killGroup(this.#process);
        running.delete(this.#process);
        while (this.#process.exitCode === null && this.#process.signalCode === null) {
            await pause(5);
        }
    }

    async end() {
        await this.stop();
        await rm(this.folder, { recursive: true, force: true });
    }
}

const built = new Map();

/// The files of the page that `source` becomes, by name; the same source is built once.
export function buildPage(source, options = {}) {
    const key = createHash('sha256').update(JSON.stringify([source, options])).digest('hex');
    if (!built.has(key)) {
        built.set(key, build(source, options));
    }
    return built.get(key);
}

async function served(name) {
    return Buffer.from(await (await fetch(address + name)).arrayBuffer());
}

// Notes how em++ was called, and lets the compiler go on. The result tells its place, and so whose server it is on.
// What is precompiled for a later version is none of the page's.
const NOTE_THE_CALL = `
case $* in *c++-header*) exit 1 ;; esac
printf '%s\\0' "$@" > "$0.call"
env -0 > "$0.env"
while [ "$1" != -o ]; do shift; done
echo > "$2"
echo "$0" > "\${2%.js}.wasm"`;

/// The compiler fills the page and says how em++ is to be called; then em++ itself runs. Unlike the compiler's server,
/// several of them can do so at a time, and what it says is seen.
async function build(source, options, attempts = 20) {
    // The script beside em++ is how the compiler knows the one that takes precompiled headers.
    const compiler = await Compiler.start(source, { ...options, tools: { 'em++': NOTE_THE_CALL, 'em++.py': '' } });
    try {
        await compiler.waitForVersion(2);
        const html = await served('/');
        await compiler.stop();
        await runNotedCall(compiler, options.emFlags ?? []);
        const page = new Map([['index.html', html]]);
        for (const name of await readdir(compiler.output)) {
            page.set(name, await readFile(path.join(compiler.output, name)));
        }
        return page;
    } catch (error) {
        if (!(error instanceof PortTaken) || attempts === 0) {
            throw error;
        }
    } finally {
        await compiler.end();
    }
    await pause(3000);
    return build(source, options, attempts - 1);
}

async function runNotedCall(compiler, flags) {
    const noted = async kind => {
        const words = await readFile(path.join(compiler.tools, `em++.${kind}`), 'utf8');
        return words.split('\0').slice(0, -1);
    };
    const pairs = (await noted('env')).map(line => /^(.*?)=(.*)$/s.exec(line).slice(1));
    const env = { ...Object.fromEntries(pairs), PATH: process.env.PATH };
    const call = [...await noted('call'), ...flags];
    const tool = spawn('em++', call, { cwd: compiler.folder, env, stdio: ['ignore', 'pipe', 'pipe'] });
    let said = '';
    for (const stream of [tool.stdout, tool.stderr]) {
        stream.setEncoding('utf8').on('data', text => { said += text; });
    }
    const [status] = await once(tool, 'close');
    if (status !== 0) {
        throw new Error(`em++ ended with ${status}\n${said}`);
    }
}

const published = new Map();

/// The files of the site that `source` is published as, by name; the same source is published once.
export function publishPage(source, options = {}) {
    const key = JSON.stringify([source, Object.keys(options.files ?? {})]);
    if (!published.has(key)) {
        published.set(key, publish(source, options));
    }
    return published.get(key);
}

async function publish(source, { files = {} }) {
    const folder = await mkdtemp(path.join(tmpdir(), 'pozhil-site-'));
    try {
        for (const [name, contents] of Object.entries({ [SOURCE]: source, ...files })) {
            await mkdir(path.dirname(path.join(folder, name)), { recursive: true });
            await writeFile(path.join(folder, name), contents);
        }
        const command = path.join(path.dirname(compilerPath()), 'பொழில்');
        const tool = spawn(command, ['வெளியிடு', SOURCE, '--அடைவு', 'தளம்'],
                           { cwd: folder, env: environment(folder, {}), stdio: ['ignore', 'inherit', 'inherit'] });
        const [status] = await once(tool, 'close');
        if (status !== 0) {
            throw new Error(`publishing ended with ${status}`);
        }
        const site = new Map();
        for (const name of await readdir(path.join(folder, 'தளம்'))) {
            site.set(name, await readFile(path.join(folder, 'தளம்', name)));
        }
        return site;
    } finally {
        await rm(folder, { recursive: true, force: true });
    }
}
