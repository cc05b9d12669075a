// The pages of an application as places of the browser.

import { MARKER } from './harness/editions.js';
import { assert, webTest } from './harness/index.js';

const page = (name, body, header = '', logic = '') => `வலைதளம் ${name}(
    தலைமை(பக்கம்: "${name}"${header})
    குமரி(
        நெடுவரிசை(
            உரை("இது " இணை முகவரி()),
            ${body}
        )
    )
    வரையறை(${logic})
)
`;
const to = name => `பொத்தான்(உரை: "${name} செல்", பொ_பாணி(அகலம்: 200, உயரம்: 40), அழுத்தினால்: () => செல்க("${name}"))`;
const PLACES = MARKER + page('முதல்', `${to('இரண்டு')},\n            ${to('மூன்று')}`, ', ஆரம்ப_பக்கம்: மெய்')
    + page('இரண்டு', to('மூன்று')) + page('மூன்று', to('முதல்'));

const nameOf = async ({ page: tab }) => decodeURIComponent(new URL(tab.url()).hash);

webTest('pages have addresses, which back, forward and links lead to', PLACES, async page => {
    await page.text('இது முதல்');
    assert.equal(await nameOf(page), '');
    await page.click(100, 36);
    await page.waitForText('இது இரண்டு');
    assert.equal(await nameOf(page), '#இரண்டு');
    await page.click(100, 36);
    await page.waitForText('இது மூன்று');
    assert.equal(await nameOf(page), '#மூன்று');

    await page.page.goBack();
    await page.waitForText('இது இரண்டு');
    await page.page.goBack();
    await page.waitForText('இது முதல்');
    assert.equal(await nameOf(page), '');
    await page.page.goForward();
    await page.waitForText('இது இரண்டு');
    // Who has gone back and goes on from there leaves what came after.
    await page.click(100, 36);
    await page.waitForText('இது மூன்று');
    await page.page.goBack();
    await page.waitForText('இது இரண்டு');

    await page.page.evaluate(() => { location.hash = 'மூன்று'; });
    await page.waitForText('இது மூன்று');
    // No such page: the one that is shown stays.
    await page.page.evaluate(() => { location.hash = 'நான்கு'; });
    await page.text('இது மூன்று');
});

webTest('a link leads into an application, and a page stays when it is loaded anew', PLACES, { open: false }, async page => {
    await page.open(page.address + '#' + encodeURIComponent('இரண்டு'));
    await page.text('இது இரண்டு');
    await page.page.reload();
    await page.waitForText('இது இரண்டு');
    assert.equal(await nameOf(page), '#இரண்டு');
    await page.open(page.address + '#%E0%A');
    await page.waitForText('இது முதல்');
});

const FIRST = PLACES.replace(MARKER, '').replaceAll('முகவரி()', '"இங்கே"');

webTest('pages of the first edition have no addresses of their own', FIRST, async page => {
    await page.click(100, 36);
    await page.frames(5);
    assert.equal(await nameOf(page), '');
});
