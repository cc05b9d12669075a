// The published applications. விருந்தினர்_ஏடு is left out: the second edition doesn't have its database yet.

import { expectLikeLook } from '../harness/editions.js';
import * as examples from '../harness/examples.js';
import { webTest } from '../harness/index.js';
import { PHONE, leafThroughGallery, useGallery } from '../harness/tours.js';

for (const name of ['இரு_பக்கங்கள்', 'முகப்புப்_பக்கம்', 'பணிப்_பட்டியல்', 'பதிவுப்_படிவம்', 'ஓவியக்கூடம்',
                    'கடை_நிலவரம்', 'வளைவுகள்', 'காட்சியகம்']) {
    expectLikeLook(name, examples.source(name));
}

// The gallery as the second edition would write it does what the first edition's does.
const gallery = [examples.source('இரண்டாம்_பதிப்பு/காட்சியகம்'), { files: examples.files(), viewport: PHONE }];

webTest('gallery of the second edition: each page leads to the next', ...gallery, leafThroughGallery);

webTest('gallery of the second edition: a form, a dialog and a message', ...gallery, useGallery);
