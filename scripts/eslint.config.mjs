// What JavaScript of the repository is held against: the tests of pages, and the scripts that pages are served with.

const RULES = {
    'no-undef': 'error',
    'no-unused-vars': ['error', { caughtErrors: 'none' }],
    'no-unreachable': 'error',
    'no-redeclare': 'error',
    'no-dupe-keys': 'error',
    'no-dupe-args': 'error',
    'no-fallthrough': 'error',
    'no-self-assign': 'error',
    'no-self-compare': 'error',
    'no-cond-assign': 'error',
    'no-constant-condition': ['error', { checkLoops: false }],
    'no-unsafe-finally': 'error',
    'no-unsafe-negation': 'error',
    'no-empty': ['error', { allowEmptyCatch: true }],
    'no-implicit-globals': 'error',
    'array-callback-return': 'error',
    'use-isnan': 'error',
    'valid-typeof': 'error',
    eqeqeq: 'error',
};

const readonly = names => Object.fromEntries(names.map(name => [name, 'readonly']));

const COMMON = readonly(['URL', 'console', 'fetch', 'performance', 'setInterval', 'setTimeout']);
const NODE = readonly(['AbortController', 'Buffer', 'process', 'setImmediate']);
// Functions that a test hands to its page run there.
const PAGE = readonly(['CanvasRenderingContext2D', 'Event', 'FS', 'FontFace', 'HTMLElement', 'Image', 'Module',
    'MutationObserver', 'Node', 'OffscreenCanvas', 'Path2D', 'Touch', 'TouchEvent', 'WheelEvent', 'atob', 'createImageBitmap',
    'devicePixelRatio', 'document', 'firebase', 'getComputedStyle', 'getSelection', 'innerHeight', 'innerWidth',
    'location', 'navigator', 'requestAnimationFrame', 'sessionStorage', 'structuredClone', 'visualViewport', 'window']);
// What scripts of a page use beside: of the browser, of what em++ makes, and of each other.
const PAGE_SCRIPTS = {
    ...readonly(['Browser', 'ErrorEvent', 'GL', 'GLFW', 'HEAP32', 'HEAPF32', 'HEAPU8', 'HTMLCanvasElement',
        'HTMLImageElement', 'HTMLScriptElement', 'TextDecoder', 'WebAssembly', 'abort', 'history',
        'pozhilCanvasProperties', 'pozhilDrawing', 'pozhilFaults', 'pozhilFrames', 'pozhilLoading', 'pozhilPictures', 'pozhilPointer', 'pozhilShown',
        'pozhilTextCanvas', 'pozhilWidths']),
    UTF8ToString: 'writable',
    currentVersion: 'writable',
};

// What the page of the playground and its worker ask of browsers.
const PLAYGROUND = readonly(['Blob', 'CompressionStream', 'DecompressionStream', 'Response', 'TextDecoder', 'TextEncoder', 'WebAssembly',
    'Worker', 'addEventListener', 'atob', 'btoa', 'clearTimeout', 'document', 'history', 'localStorage', 'location', 'navigator',
    'self']);

export default [
    { ignores: ['build/**', 'third_party/**', '**/node_modules/**', '**/வெளியீடு/**'] },
    {
        files: ['tests/web/**/*.js', 'tests/language_server/*.js', 'benchmarks/*.mjs', 'docs/**/*.mjs', 'playground/*.mjs',
                'scripts/*.mjs'],
        languageOptions: { ecmaVersion: 2022, sourceType: 'module', globals: { ...COMMON, ...NODE, ...PAGE } },
        rules: RULES,
    },
    {
        files: ['tests/playground/*.js'],
        languageOptions: {
            ecmaVersion: 2022, sourceType: 'module', globals: { ...COMMON, ...NODE, ...PAGE, ...PLAYGROUND },
        },
        rules: RULES,
    },
    {
        files: ['playground/page/*.js'],
        languageOptions: { ecmaVersion: 2022, sourceType: 'module', globals: { ...COMMON, ...PLAYGROUND } },
        rules: RULES,
    },
    {
        files: ['editors/vscode/src/*.js', 'tests/editors/*.cjs'],
        languageOptions: {
            ecmaVersion: 2022, sourceType: 'commonjs', globals: { ...COMMON, ...NODE, ...readonly(['module', 'require']) },
        },
        rules: RULES,
    },
    {
        files: ['src/**/*.js'],
        languageOptions: { ecmaVersion: 2022, sourceType: 'script' },
        // A hole looks like a name, and what stands in a <script> is global.
        rules: { ...RULES, 'no-undef': 'off', 'no-implicit-globals': 'off' },
    },
    {
        // They share the page with each other and with what em++ makes: what they define is global on purpose.
        files: ['உள்ளடக்கம்/page/*.js'],
        languageOptions: {
            ecmaVersion: 2022, sourceType: 'script', globals: { ...COMMON, ...PAGE, ...PAGE_SCRIPTS },
        },
        rules: { ...RULES, 'no-redeclare': 'off', 'no-implicit-globals': 'off',
                 'no-unused-vars': ['error', { caughtErrors: 'none', varsIgnorePattern: '^(Module|pozhil)' }] },
    },
];
