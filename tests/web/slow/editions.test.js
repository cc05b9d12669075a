// The published applications that are built into larger pages; the smallest is compared in second_edition.test.js.
// விருந்தினர்_ஏடு is left out: the second edition doesn't have its database yet.

import { expectLikeLook } from '../harness/editions.js';

for (const name of ['முகப்புப்_பக்கம்', 'பணிப்_பட்டியல்', 'பதிவுப்_படிவம்', 'ஓவியக்கூடம்', 'கடை_நிலவரம்', 'வளைவுகள்',
                    'காட்சியகம்']) {
    expectLikeLook(name);
}
