// Writing to and reading from the realtime database, through its real libraries.

import { DatabaseService } from './database_service.js';
import { assert, webTest } from './harness/index.js';

const CONFIGURATION = 'api_key: "திறவு", database_url: "https://pozhil.example.com", project_id: "pozhil", app_id: 5';
const CONNECTED = '🔥 பொழில்: பயர்பேஸ் தரவுத்தளம் வெற்றிகரமாக இணைக்கப்பட்டது!';
const NOT_CONNECTED = '🔥 பொழில் இயக்கநேரப் பிழை (WASM): Firebase Database இணைக்கப்படவில்லை!';
const INSERTED = '✅ தரவு வெற்றிகரமாக சேமிக்கப்பட்டது!';
const UPDATED = '✅ தரவு வெற்றிகரமாக மாற்றப்பட்டது!';
const DELETED = '✅ தரவு வெற்றிகரமாக அழிக்கப்பட்டது!';
const REFUSED = '❌ ஃபயர்பேஸ் பிழை:';

/// An application with a database, whose buttons run statements.
function databaseApplication(presses, { logic = '', configuration = CONFIGURATION } = {}) {
    const buttons = Object.entries(presses).map(([label, statements]) => `
            பொத்தான்(உரை: "${label}", அழுத்தினால்(
                ${statements.replace(/\n\s*/g, '\n                ')}
            ))`);
    return `வலைதளம் தளம்(
    தரவுத்தளமேலாண்மை(பயர்பேசு_அமைப்பு(${configuration}))
    தலைமை()
    குமரி(
        நெடுவரிசை(${[...buttons, '            உரை(செய்தி)'].join(',')})
    )
    வரையறை(
        செய்தி = "-"
${logic}
    )
)
`;
}

async function press(page, label) {
    const { x, y } = await page.text(label);
    await page.click(x, y + 5);
}

async function until(holds, what) {
    for (const end = Date.now() + 30_000; !holds();) {
        assert.ok(Date.now() < end, `waited in vain for ${what}`);
        await new Promise(resolve => setTimeout(resolve, 20));
    }
}

const saidOf = page => page.console.filter(line => !line.includes('எழுத்துருவை'));
const waitForLine = (page, text, times = 1) => until(
    () => page.console.filter(line => line.startsWith(text)).length >= times, `the line ${text}`);

/// A test whose page is connected to a `DatabaseService` that holds `data`.
function databaseTest(name, source, data, check) {
    webTest(name, source, { open: false }, async page => {
        const service = new DatabaseService(structuredClone(data));
        await service.attach(page.page);
        await page.open(page.address);
        await waitForLine(page, CONNECTED);
        await check(page, service);
    });
}

const writing = databaseApplication({
    சேர்: `நிகழ்நேர.தரவுசேர்("ஏடு" இணை "/1") {
        "உரை": "வணக்கம்", எண்: 5, "பின்னம்": 2.5, கணக்கு: 2 கூட்டு 3, உண்மை: மெய், மாறி: அளவு
    }`,
    மாற்று: 'நிகழ்நேர.தரவுமாற்று("ஏடு/1") { "உரை": "மாறியது", எண்: 5, பின்னம்: 2.5, கணக்கு: அளவு கூட்டு 1, எண்ணுரை: "7" }',
    அழி: 'நிகழ்நேர.தரவுஅழி("ஏடு/1")',
    வெற்று: 'நிகழ்நேர.தரவுசேர்("ஏடு/1") {}',
}, { logic: '        அளவு = 41' });

databaseTest('the libraries load one behind the other and once, with the configuration of the source', writing, {},
             async (page, service) => {
    assert.deepEqual(service.loaded, ['firebase-app-compat.js', 'firebase-database-compat.js']);
    const [version, ...apps] = await page.page.evaluate(
        () => [firebase.SDK_VERSION, ...firebase.apps.map(({ options }) => options)]);
    assert.equal(version, '10.0.0');
    assert.deepEqual(apps, [{ apiKey: 'திறவு', authDomain: '', databaseURL: 'https://pozhil.example.com',
                              projectId: 'pozhil', storageBucket: '', messagingSenderId: '', appId: '' }]);
    assert.equal(await page.window('firebaseInitialized'), true);
    assert.deepEqual(saidOf(page), [CONNECTED]);
});

databaseTest('an insert replaces what stands there, and sends every value as a text', writing,
             { ஏடு: { 1: { பழையது: 1 }, 2: { உரை: 'இன்னொன்று' } } }, async (page, service) => {
    await press(page, 'சேர்');
    await waitForLine(page, INSERTED);
    const sent = { உரை: 'வணக்கம்', எண்: '5', பின்னம்: '2.500000', கணக்கு: '5', உண்மை: 'மெய்', மாறி: '41' };
    assert.deepEqual(service.requests, [['put', '/ஏடு/1', sent]]);
    assert.deepEqual(service.at('ஏடு'), { 1: sent, 2: { உரை: 'இன்னொன்று' } });
    assert.deepEqual(saidOf(page), [CONNECTED, INSERTED]);
});

databaseTest('an update keeps numbers, and what it doesn\'t name', writing, { ஏடு: { 1: { பழையது: 1, எண்: 2 } } },
             async (page, service) => {
    await press(page, 'மாற்று');
    await waitForLine(page, UPDATED);
    const sent = { உரை: 'மாறியது', எண்: 5, பின்னம்: 2.5, கணக்கு: 42, எண்ணுரை: '7' };
    assert.deepEqual(service.requests, [['merge', '/ஏடு/1', sent]]);
    assert.deepEqual(service.at('ஏடு/1'), { பழையது: 1, ...sent });
});

databaseTest('a deletion removes the path, and so does an insert of nothing', writing, { ஏடு: { 1: { எண்: 2 }, 2: 3 } },
             async (page, service) => {
    await press(page, 'அழி');
    await waitForLine(page, DELETED);
    assert.deepEqual(service.requests, [['put', '/ஏடு/1', null]]);
    assert.deepEqual(service.at('ஏடு'), { 2: 3 });
    await press(page, 'வெற்று');
    await waitForLine(page, INSERTED);
    assert.deepEqual(service.requests[1], ['put', '/ஏடு/1', null]);
});

databaseTest('what the database refuses is told, and the page goes on', writing, {}, async (page, service) => {
    service.refused.add('/ஏடு/1');
    for (const [number, label] of ['சேர்', 'மாற்று', 'அழி'].entries()) {
        await press(page, label);
        await waitForLine(page, REFUSED, number + 1);
    }
    const told = saidOf(page).filter(line => line.startsWith(REFUSED));
    assert.equal(told.length, 3);
    assert.ok(told.every(line => line.includes('PERMISSION_DENIED')), told.join('\n'));
    assert.deepEqual(page.errors, []);
    await page.frames();
});

const reading = databaseApplication({
    படி: 'நிகழ்நேர.தரவுபடி("ஏடு") { அச்சிடு("வந்தது: ", தரவு)  செய்தி = "வந்தது" } அச்சிடு("பின்")',
    வகை: `நிகழ்நேர.தரவுபடி("ஏடு") {
        அச்சிடு(தரவு["பெயர்"] இணை "!")
        அச்சிடு(தரவு["எண்"] கூட்டு 0.25)
        அச்சிடு(தரவு["பின்னம்"] பெருக்கு 2.0)
        அச்சிடு(தரவு["உண்மை"], " ", தரவு["பொய்மை"])
    }`,
    இரண்டு: `நிகழ்நேர.தரவுபடி("அ") { அச்சிடு("அ: ", தரவு) }
        நிகழ்நேர.தரவுபடி("ஆ") { அச்சிடு("ஆ: ", தரவு) }`,
    இல்லாதது: 'நிகழ்நேர.தரவுபடி("எங்குமில்லை") { அச்சிடு("வெறுமை: ", தரவு)  செய்தி = "வெறுமை" }',
    சொல்: 'நிகழ்நேர.தரவுபடி("ஏடு/எண்") { அச்சிடு("சொல்: ", தரவு) }',
    செயல்: 'எழுது("ஏடு")',
}, { logic: `        செயல் எழுது(இடம்):
            முன் = "முன்"
            நிகழ்நேர.தரவுபடி(இடம்) {
                முன் = முன் இணை தரவு["பெயர்"]
                எனில் முன் சமம் "முன்கயல்":
                    அச்சிடு(இடம், " ", முன்)
                    திரும்பு முன்
                அச்சிடு("வேறு")
            }
            அச்சிடு(முன்)
            திரும்பு முன்` });
const BOOK = { ஏடு: { பெயர்: 'கயல்', எண்: 3, பின்னம்: 1.5, உண்மை: true, பொய்மை: false, உள்ளே: { ஆழம்: 1 },
                    பட்டியல்: [1, 2] }, அ: { ஒன்று: 1 }, ஆ: { இரண்டு: 'இ' } };

databaseTest('a read brings the top level in தரவு, after what stands behind it', reading, BOOK, async (page, service) => {
    await press(page, 'படி');
    await waitForLine(page, 'வந்தது: ');
    const [after, printed] = saidOf(page).slice(1);
    assert.equal(after, 'பின்');
    for (const part of ['பெயர்', 'கயல்', 'எண்', '3', 'பின்னம்', '1.5', 'உண்மை', 'பொய்மை']) {
        assert.ok(printed.includes(part), `${part} in ${printed}`);
    }
    assert.ok(!/உள்ளே|ஆழம்|பட்டியல்/.test(printed), printed);
    assert.deepEqual(service.requests, [['listen', '/ஏடு']]);
    // What the body sets is drawn.
    await page.text('வந்தது');
});

databaseTest('texts, numbers and truths that are read can be worked with', reading, BOOK, async page => {
    await press(page, 'வகை');
    await waitForLine(page, 'மெய் பொய்');
    assert.deepEqual(saidOf(page).slice(1), ['கயல்!', '3.250000', '3.000000', 'மெய் பொய்']);
});

databaseTest('two reads in flight don\'t mix, whichever is answered first', reading, BOOK, async (page, service) => {
    service.holdsReads = true;
    await press(page, 'இரண்டு');
    await until(() => service.waiting.length === 2, 'both reads');
    assert.deepEqual(saidOf(page), [CONNECTED]);
    service.release('/ஆ', '/அ');
    await waitForLine(page, 'அ: ');
    const [first, second] = saidOf(page).slice(1);
    assert.ok(first.startsWith('ஆ: ') && first.includes('இரண்டு') && !first.includes('ஒன்று'), first);
    assert.ok(second.startsWith('அ: ') && second.includes('ஒன்று') && !second.includes('இரண்டு'), second);
});

databaseTest('a body runs once for each read', reading, BOOK, async page => {
    for (const times of [1, 2]) {
        await press(page, 'படி');
        await waitForLine(page, 'வந்தது: ', times);
    }
    assert.deepEqual(saidOf(page).map(line => line.slice(0, 6)), [CONNECTED, 'பின்', 'வந்தது', 'பின்', 'வந்தது']
        .map(line => line.slice(0, 6)));
});

databaseTest('a read of an empty path gives an empty map', reading, BOOK, async page => {
    await press(page, 'இல்லாதது');
    await waitForLine(page, 'வெறுமை: ');
    assert.equal(saidOf(page)[1], 'வெறுமை: {}');
    await page.text('வெறுமை');
});

databaseTest('a body in a function keeps a copy of its arguments, and may return early', reading, BOOK, async page => {
    await press(page, 'செயல்');
    await waitForLine(page, 'ஏடு முன்கயல்');
    assert.deepEqual(saidOf(page).slice(1), ['முன்', 'ஏடு முன்கயல்']);
});

databaseTest('a read that is refused tells so, and the next one is answered', reading, BOOK, async (page, service) => {
    service.refused.add('/எங்குமில்லை');
    await press(page, 'இல்லாதது');
    await waitForLine(page, '🔥 பொழில் இயக்கநேரப் பிழை (WASM):');
    assert.match(saidOf(page).find(line => line.includes('WASM')), /permission_denied/i);
    await press(page, 'படி');
    await waitForLine(page, 'வந்தது: ');
    await page.text('வந்தது');
});

// --- without a connection ---

const everything = databaseApplication({
    சேர்: 'நிகழ்நேர.தரவுசேர்("அ") { எண்: 1 }  செய்தி = "சேர்த்தது"',
    மாற்று: 'நிகழ்நேர.தரவுமாற்று("அ") { எண்: 1 }  செய்தி = "மாற்றியது"',
    அழி: 'நிகழ்நேர.தரவுஅழி("அ")  செய்தி = "அழித்தது"',
    படி: 'நிகழ்நேர.தரவுபடி("அ") { அச்சிடு("வந்தது") }  செய்தி = "படித்தது"',
    எண்ணு: 'செய்தி = "எண்ணியது"',
});

/// Every operation fails, and each leaves a page that still draws and hears.
async function checkUnconnected(page) {
    await press(page, 'சேர்');
    await page.text('சேர்த்தது');
    assert.deepEqual(saidOf(page).filter(line => line.includes('WASM')), [NOT_CONNECTED]);
    await press(page, 'மாற்று');
    await page.text('மாற்றியது');
    const told = saidOf(page).filter(line => line.includes('WASM'));
    assert.equal(told.length, 2);
    assert.match(told[1], /undefined/);
    for (const [label, times] of [['அழி', 1], ['படி', 2]]) {
        await press(page, label);
        await until(() => page.errors.length === times, 'the browser\'s own error');
        assert.match(page.errors.at(-1), /undefined/);
        await press(page, 'எண்ணு');
        await page.text('எண்ணியது');
    }
}

webTest('before the libraries have arrived operations fail one by one, and succeed afterwards', everything,
        { open: false }, async page => {
    const service = new DatabaseService({ அ: { எண்: 2 } });
    const arrive = service.holdLibraries();
    await service.attach(page.page);
    await page.visit(page.address);
    await page.ready();
    await checkUnconnected(page);
    assert.deepEqual(service.loaded, ['firebase-app-compat.js']);
    arrive();
    await waitForLine(page, CONNECTED);
    await press(page, 'படி');
    await waitForLine(page, 'வந்தது');
    assert.deepEqual(service.requests, [['listen', '/அ']]);
});

webTest('without a network the page works', everything, { open: false }, async page => {
    const service = new DatabaseService();
    await service.attach(page.page, { libraries: false });
    await page.open(page.address);
    await checkUnconnected(page);
});

for (const [what, configuration] of [['no address', 'api_key: "k"'],
                                     ['an address that is none', 'database_url: "எங்கோ"'],
                                     ['an apostrophe', `database_url: "https://a.example.com", api_key: "'"`]]) {
    const source = databaseApplication({ எண்ணு: 'செய்தி = "எண்ணியது"' }, { configuration });
    webTest(`a configuration with ${what} leaves the page working`, source, { open: false }, async page => {
        const service = new DatabaseService();
        await service.attach(page.page);
        await page.open(page.address);
        await until(() => page.errors.length === 1, 'the browser\'s own error');
        await press(page, 'எண்ணு');
        await page.text('எண்ணியது');
        assert.ok(!page.console.includes(CONNECTED));
        assert.deepEqual(service.requests, []);
    });
}

// --- data that breaks the script ---

const harmful = databaseApplication({
    மேற்கோள்: `நிகழ்நேர.தரவுசேர்("அ") { "உரை": "அவன்'இவன்" }  செய்தி = "1"`,
    வரி: 'நிகழ்நேர.தரவுசேர்("அ") { "உரை": "ஒன்று\\nஇரண்டு" }  செய்தி = "சொல்"',
    உரையெண்: 'நிகழ்நேர.தரவுமாற்று("அ") { "உரை": செய்தி }  செய்தி = "3"',
    நலம்: 'நிகழ்நேர.தரவுசேர்("அ") { "உரை": "நலம்" }',
});

databaseTest('data that breaks the script is not sent, and the page goes on', harmful, {}, async (page, service) => {
    for (const [number, label] of ['மேற்கோள்', 'வரி'].entries()) {
        await press(page, label);
        await until(() => page.errors.length === number + 1, 'the browser\'s own error');
    }
    // Without quotes the text of a variable is no JSON, which the script itself notices.
    await press(page, 'உரையெண்');
    await page.text('3');
    assert.equal(page.errors.length, 2);
    assert.match(saidOf(page).at(-1), /^🔥 பொழில் இயக்கநேரப் பிழை \(WASM\): .*JSON/);
    assert.deepEqual(service.requests, []);
    await press(page, 'நலம்');
    await waitForLine(page, INSERTED);
    assert.deepEqual(service.requests, [['put', '/அ', { உரை: 'நலம்' }]]);
});
