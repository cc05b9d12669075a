// Starts Chromium so that it draws WebGL without a graphics card and leaves the network alone.

import { chromium } from 'playwright-core';

const FLAGS = [
    '--no-sandbox', '--use-gl=angle', '--use-angle=swiftshader', '--enable-unsafe-swiftshader',
    '--disable-background-networking', '--disable-component-update', '--disable-sync', '--no-first-run',
    '--disable-quic', '--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1',
];

export async function launch(flags = []) {
    const executablePath = process.env.POZHIL_CHROMIUM || '/usr/bin/chromium';
    return chromium.launch({ executablePath, args: [...FLAGS, ...flags] });
}
