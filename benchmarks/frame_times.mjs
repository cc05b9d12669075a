// How long an application takes to draw a frame in headless Chromium: node benchmarks/frame_times.mjs [widgets]
//
// Pages of a thousand widgets in one column, of two kinds. Without a graphics card the processor draws what WebGL is
// told, in a process of its own; the figures are of the page's own thread, which does all that the language makes.

import { launch } from '../tests/web/harness/browser.js';
import { buildPage } from '../tests/web/harness/compiler.js';
import { PageServer } from '../tests/web/harness/page_server.js';

const WIDGETS = Number(process.argv[2] ?? 1000);
const FRAMES = 300;
const WINDOW = { width: 1280, height: 800 };
// Of the profile, in microseconds.
const INTERVAL = 200;

const text = number => `உரை("வரி ${number}")`;
const box = number => `பெட்டி(அகலம்: 300, உயரம்: 40, வளைவு: 8, பின்னணி: "#DBEAFE", உரை("பெட்டி ${number}"))`;
const card = number => `அட்டை(அகலம்: 300, உயரம்: 80, நிழல்: 3, உரை("அட்டை ${number}"))`;
const tile = number => `பட்டியல்_உருப்படி(தலைப்பு: "உருப்படி ${number}", துணைத்தலைப்பு: "விளக்கம்")`;

const pages = {
    'உரைகள், பெட்டிகள் · texts and boxes': [text, box],
    'பெட்டிகள், அட்டைகள், உருப்படிகள் · boxes, cards and list tiles': [text, box, card, tile],
};

function application(kinds) {
    const widgets = Array.from({ length: WIDGETS }, (_, number) => kinds[number % kinds.length](number));
    const column = `நெடுவரிசை(இடைவெளி: 4)(\n            ${widgets.join(',\n            ')}\n        )`;
    return `வலைதளம் தளம்(\n    தலைமை()\n    குமரி(\n        ${column}\n    )\n    வரையறை(\n    )\n)\n`;
}

/// In the page: the milliseconds that its callback of each of the next frames takes.
function timeFrames(count) {
    return new Promise(done => {
        const times = [];
        const original = window.requestAnimationFrame;
        window.requestAnimationFrame = callback => original(now => {
            // A page where nothing happens would draw nothing.
            window.pozhilFrames.wake();
            const begin = performance.now();
            callback(now);
            times.push(performance.now() - begin);
            if (times.length === count) {
                window.requestAnimationFrame = original;
                done(times);
            }
        });
        window.pozhilFrames.wake();
    });
}

/// What a sample of the profile was taken in.
function partOf({ functionName, url }) {
    const isOfCanvas = /^(fillText|measureText|clearRect|save|restore|setTransform|scale|(set|get) \w+)$/;
    if (functionName === '(idle)') {
        return null;
    }
    if (url.includes('wasm')) {
        return /^(nvg|glnvg)/.test(functionName) ? 'NanoVG' : 'நிரல் · program';
    }
    if (url.endsWith('index.js')) {
        return 'JavaScript';
    }
    return isOfCanvas.test(functionName) ? 'உரைத்தளம் · text canvas' : 'உலாவி · browser';
}

/// The milliseconds of processor time that the scripts of the page take in a frame, however busy the machine is.
async function processorTime(tab, session) {
    await session.send('Performance.enable', { timeDomain: 'threadTicks' });
    const spent = async () => {
        const { metrics } = await session.send('Performance.getMetrics');
        return 1000 * metrics.find(({ name }) => name === 'ScriptDuration').value;
    };
    const begin = await spent();
    await tab.evaluate(timeFrames, FRAMES);
    return (await spent() - begin) / FRAMES;
}

async function profile(tab, session) {
    await session.send('Profiler.enable');
    await session.send('Profiler.setSamplingInterval', { interval: INTERVAL });
    await session.send('Profiler.start');
    await tab.evaluate(timeFrames, FRAMES);
    const { profile: taken } = await session.send('Profiler.stop');
    const frameOf = new Map(taken.nodes.map(node => [node.id, node.callFrame]));
    const parts = new Map();
    const functions = new Map();
    taken.samples.forEach((id, index) => {
        const callFrame = frameOf.get(id);
        const part = partOf(callFrame);
        if (part !== null) {
            const milliseconds = taken.timeDeltas[index] / 1000 / FRAMES;
            parts.set(part, (parts.get(part) ?? 0) + milliseconds);
            const name = `${part}: ${callFrame.functionName}`;
            functions.set(name, (functions.get(name) ?? 0) + milliseconds);
        }
    });
    return { parts, functions };
}

const greatest = map => [...map].sort((one, other) => other[1] - one[1]);
const quantile = (times, share) => times.sort((a, b) => a - b)[Math.floor(share * (times.length - 1))];

const server = new PageServer();
await server.start();
const browser = await launch();
try {
    for (const [name, kinds] of Object.entries(pages)) {
        const address = server.add(await buildPage(application(kinds), { emFlags: ['--profiling-funcs'] }));
        const context = await browser.newContext({ viewport: WINDOW });
        const tab = await context.newPage();
        await tab.goto(address);
        await tab.waitForSelector('#textCanvas', { state: 'attached' });
        await tab.waitForTimeout(2000);
        const times = await tab.evaluate(timeFrames, FRAMES);
        const session = await context.newCDPSession(tab);
        const spent = await processorTime(tab, session);
        const { parts, functions } = await profile(tab, session);
        console.log(`${name}, ${WIDGETS}\n| ms | |\n| --- | ---: |`);
        console.log(`| நடு · median | ${quantile(times, 0.5).toFixed(2)} |\n| 95 % | ${quantile(times, 0.95).toFixed(2)} |`);
        console.log(`| செயலி நேரம் · processor time | ${spent.toFixed(2)} |`);
        for (const [part, milliseconds] of [...greatest(parts), ...greatest(functions).slice(0, 15)]) {
            console.log(`| ${part} | ${milliseconds.toFixed(2)} |`);
        }
        await context.close();
    }
} finally {
    await browser.close();
    server.stop();
}
