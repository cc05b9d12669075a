// What a frame shows, read off what it drew: each kind of widget has shapes that no other has. What shapes don't tell (what
// a press on a box does, the range of a slider) the compiler has noted in the page.
var pozhilShown = (() => {
    // Positions are single precision.
    const PRECISION = 0.05;
    const near = (left, right) => Math.abs(left - right) < PRECISION;
    const isSame = (one, other) => near(one.x, other.x) && near(one.y, other.y) && near(one.width, other.width)
        && near(one.height, other.height);
    const middleOf = ({ x, y, width, height }) => ({ x: x + width / 2, y: y + height / 2 });
    const areaOf = ({ x, y, width, height }) => ({ x, y, width, height });

    // --- widgets by their shapes; each reader looks at the marks from `index` on and tells an item and how many it took ---

    /// A border repeats the shape that it is around.
    const borderOf = (mark, shape) => mark?.kind === 'round' && isSame(mark, shape) ? 1 : 0;

    function readButton(marks, index) {
        let next = index + 1;
        while (marks[next]?.kind === 'ask' || (marks[next]?.kind === 'rect' && marks[next + 1]?.kind === 'round')) {
            next++;
        }
        const [shadow, body] = [marks[next], marks[next + 1]];
        if (shadow?.kind !== 'round' || body?.kind !== 'round' || !near(shadow.x - 1, body.x) || !near(shadow.y - 2, body.y)
            || !near(shadow.width, body.width)) {
            return null;
        }
        next += 2 + borderOf(marks[next + 2], body);
        const label = marks[next]?.kind === 'text' && near(marks[next].x, middleOf(body).x) ? [marks[next++]] : [];
        return { took: next - index, item: { kind: 'பொத்தான்', role: 'button', ...areaOf(body), texts: label } };
    }

    function readTextButton(marks, index) {
        const HEIGHT = 40;
        const PADDING = 16;
        const [measure, ask, text] = marks.slice(index, index + 3);
        if (ask?.kind !== 'ask' || text?.kind !== 'text' || text.align !== 'center') {
            return null;
        }
        const width = measure.width + PADDING;
        const middle = text.y + text.size / 2 - 2;
        return { took: 3, item: { kind: 'உரைபொத்தான்', role: 'button', x: text.x - width / 2, y: middle - HEIGHT / 2, width,
                                  height: HEIGHT, texts: [text] } };
    }

    function readSwitch(marks, index) {
        const [track, shadow, thumb] = marks.slice(index, index + 3);
        if (!near(track.width, 48) || !near(track.height, 28) || shadow?.kind !== 'rect'
            || thumb?.kind !== 'circle' || !near(thumb.width, 12)) {
            return null;
        }
        return { took: 3, item: { kind: 'மாற்றி', role: 'switch', ...areaOf(track), isNameless: true,
                                  checked: thumb.x > middleOf(track).x, disabled: marks[index - 1]?.kind !== 'ask' } };
    }

    function readSlider(marks, index) {
        const THUMB = 10;
        const [track, done] = marks.slice(index, index + 2);
        const isTrack = mark => mark?.kind === 'round' && near(mark.height, 4) && near(mark.radius, 2);
        if (!isTrack(track) || !isTrack(done) || !near(track.x, done.x) || !near(track.y, done.y)) {
            return null;
        }
        let next = index + 2;
        while (marks[next]?.kind === 'circle' && near(marks[next].x, done.x + done.width)) {
            next++;
        }
        if (next === index + 2) {
            return null;
        }
        return { took: next - index,
                 item: { kind: 'அளவி', role: 'slider', x: track.x, y: track.y + 2 - THUMB, width: track.width,
                         height: 2 * THUMB, isNameless: true, ratio: done.width / track.width,
                         disabled: marks[index - 1]?.kind !== 'ask' } };
    }

    function readProgress(marks, index) {
        const [track, done] = marks.slice(index, index + 2);
        const isBar = mark => mark?.kind === 'round' && near(mark.radius, mark.height / 2);
        if (!isBar(track) || !isBar(done) || !near(track.y, done.y) || !near(track.height, done.height)
            || done.x < track.x - PRECISION || done.x + done.width > track.x + track.width + PRECISION
            || marks[index - 1]?.kind === 'rect') {
            return null;
        }
        const isKnown = near(track.x, done.x);
        return { took: 2, item: { role: 'progressbar', ...areaOf(track), isNameless: true,
                                  ratio: isKnown ? done.width / track.width : null } };
    }

    function readRadio(marks, index) {
        const ring = marks[index];
        if (!near(ring.width, 10)) {
            return null;
        }
        const dot = marks[index + 1];
        const isSelected = dot?.kind === 'circle' && near(dot.width, 5) && near(dot.x, ring.x);
        const label = marks[index + (isSelected ? 2 : 1)];
        if (label?.kind !== 'text' || !near(label.x, ring.x + 20)) {
            return null;
        }
        return { took: isSelected ? 3 : 2,
                 item: { kind: 'வட்டத்தேர்வு', role: 'radio', x: ring.x - 10, y: ring.y - 10, width: 20, height: 20,
                         texts: [label], checked: isSelected, disabled: marks[index - 1]?.kind !== 'ask' } };
    }

    function readDropdown(marks, index) {
        const [box, shown, arrow] = marks.slice(index, index + 3);
        if (shown?.kind !== 'text' || arrow?.kind !== 'line' || !near(shown.x, box.x + 15)
            || !near(arrow.x, box.x + box.width - 25)) {
            return null;
        }
        return { took: 3, item: { kind: 'கீழ்வரி', role: 'button', opens: 'listbox', expanded: false, ...areaOf(box),
                                  texts: [shown], disabled: marks[index - 1]?.kind !== 'ask' } };
    }

    /// The menu of one of the dropdowns that have been read.
    function readMenu(marks, index, openers) {
        const ROW = 40;
        const box = marks[index];
        const owner = openers.find(item => near(item.x, box.x) && near(item.y + item.height + 4, box.y)
            && near(item.width, box.width));
        if (!owner) {
            return null;
        }
        let next = index + 1;
        const children = [];
        for (let y = box.y; y < box.y + box.height - PRECISION; y += ROW) {
            while (marks[next]?.kind === 'rect') {
                next++;
            }
            if (marks[next]?.kind === 'text') {
                const text = marks[next++];
                children.push({ role: 'option', x: box.x, y, width: box.width, height: ROW, texts: [text],
                                selected: text.text === owner.texts[0].text });
            }
        }
        owner.expanded = true;
        return { took: next - index, item: { role: 'listbox', name: owner.texts[0].text, children } };
    }

    function readTabs(marks, index) {
        const [bar, shadow] = marks.slice(index, index + 2);
        if (!near(bar.height, 50) || shadow?.kind !== 'rect' || !near(shadow.y, bar.y + 50)
            || !near(shadow.height, 6) || marks[index + 2]?.kind !== 'ask') {
            return null;
        }
        let next = index + 3;
        while (marks[next]?.kind === 'circle') {
            next++;
        }
        const selected = marks[next++];
        const count = Math.round(bar.width / (selected?.width || bar.width));
        const width = bar.width / count;
        const children = marks.slice(next, next + count).map((text, tab) => ({
            role: 'tab', x: bar.x + tab * width, y: bar.y, width, height: bar.height, texts: [text],
            selected: near(selected.x, bar.x + tab * width),
        }));
        return { took: next + count - index, item: { role: 'tablist', children } };
    }

    function readNavigation(marks, index) {
        const [shadow, bar] = marks.slice(index, index + 2);
        if (!near(shadow.height, 4) || bar?.kind !== 'rect' || !near(bar.height, 64)
            || !near(bar.y, shadow.y + 4) || marks[index + 2]?.kind !== 'ask') {
            return null;
        }
        const LABEL = 44;
        let next = index + 3;
        const texts = [];
        while (['circle', 'rect', 'picture', 'text'].includes(marks[next]?.kind) && marks[next].y > bar.y
            && (marks[next].kind !== 'text' || near(marks[next].y, bar.y + LABEL))) {
            texts.push(...marks[next].kind === 'text' ? [marks[next]] : []);
            next++;
        }
        const width = bar.width / Math.max(1, texts.length);
        const children = texts.map((text, place) => ({
            role: 'button', x: place * width, y: bar.y, width, height: bar.height, texts: [text],
            current: text.colour === '#2196f3',
        }));
        return { took: next - index, item: { role: 'navigation', children } };
    }

    function readClearing(marks, index) {
        const SIZE = 20;
        const [one, other, ask] = marks.slice(index, index + 3);
        if (other?.kind !== 'line' || !near(other.x, one.x + 10) || !near(other.y, one.y)
            || ask?.kind !== 'ask') {
            return null;
        }
        return { took: 3, item: { role: 'button', name: 'தேடலை அழி', x: one.x - 5, y: one.y - 5, width: SIZE,
                                  height: SIZE } };
    }

    /// A box, a tile or a box to tick, which only the compiler's notes tell apart.
    function readBox(marks, index) {
        let next = index + 1;
        if (marks[next]?.kind === 'rect' && marks[next + 1]?.kind === 'round') {
            next += 2;
        }
        const body = marks[next];
        if (body?.kind !== 'round') {
            return null;
        }
        if (marks[next + 1]?.kind === 'picture') {
            return { took: next + 2 - index, item: { kind: 'பெட்டி', role: 'box', ...areaOf(body), checked: false } };
        }
        const tick = marks[next + 1];
        const isTicked = tick?.kind === 'line' && near(tick.x, body.x + body.width / 4)
            && near(tick.y, body.y + body.height / 2);
        return { took: next + (isTicked ? 2 : 1) - index,
                 item: { kind: 'பெட்டி', role: 'box', ...areaOf(body), checked: isTicked } };
    }

    function readPicture(marks, index) {
        const { file } = marks[index];
        return { took: 1, item: { role: 'img', file, ...areaOf(marks[index]) } };
    }

    /// By the kind of a widget's first mark.
    const READERS = {
        measure: [readButton, readTextButton], rect: [readTabs, readNavigation], circle: [readRadio], line: [readClearing],
        round: [readSwitch, readSlider, readProgress, readDropdown, readMenu], ask: [readBox], picture: [readPicture],
        text: [], dim: [], message: [],
    };

    function readMark(marks, index, openers) {
        for (const reader of READERS[marks[index].kind]) {
            const found = reader(marks, index, openers);
            if (found) {
                return found;
            }
        }
        const { kind } = marks[index];
        if (kind === 'text') {
            return { took: 1, item: { role: 'text', texts: [marks[index]] } };
        }
        if (kind === 'dim') {
            return { took: 1, item: { role: 'dialog', children: [] } };
        }
        if (kind === 'message' && marks[index + 1]?.kind === 'text') {
            return { took: 2, item: { role: 'message', texts: [marks[index + 1]] } };
        }
        return { took: 1, item: null };
    }

    function readItems(marks) {
        const items = [];
        const openers = [];
        for (let index = 0; index < marks.length;) {
            // A widget with shapes of its own asks where the pointer is before it draws them.
            const isAsking = marks[index].kind === 'ask' && ['round', 'circle'].includes(marks[index + 1]?.kind)
                && readMark(marks, index + 1, openers).item;
            const { took, item } = isAsking ? { took: 1, item: null } : readMark(marks, index, openers);
            if (item) {
                const { disabled } = marks[index];
                (item.children ?? []).forEach(child => { child.disabled ||= disabled; });
                items.push({ texts: [], ...item, index, disabled: item.disabled || disabled });
            }
            if (item?.opens) {
                openers.push(items.at(-1));
            }
            index += took;
        }
        return items;
    }

    // --- what the compiler has noted ---

    const BOXES = ['பெட்டி', 'பட்டியல்_உருப்படி', 'தேர்வுபெட்டி'];

    /// Hands each item of these kinds its note, if there are as many of them.
    function note(items, notes, kinds) {
        const noted = items.filter(item => kinds.includes(item.kind));
        const wanted = notes.filter(({ kind }) => kinds.includes(kind));
        if (noted.length === wanted.length) {
            noted.forEach((item, place) => { item.note = wanted[place]; });
        }
    }

    /// A box to tick has its label beside it, all others within.
    function becomeWhatIsNoted(item) {
        const { note: noted, role, width, height } = item;
        const isTick = noted ? noted.kind === 'தேர்வுபெட்டி' : item.checked || (width === 24 && height === 24);
        if (role === 'box') {
            item.role = isTick ? 'checkbox' : noted?.use === 'link' ? 'link' : noted?.use ? 'button' : 'plain';
        } else if (noted?.use === 'link') {
            item.role = 'link';
        }
        if (noted && 'least' in noted) {
            item.least = noted.least;
            item.largest = noted.largest;
        }
    }

    /// Calls each picture what is noted of its file. Of one that only adorns nothing is noted, or that it has no name.
    function pictureNames(notes) {
        const names = new Map();
        for (const { file, name } of notes.filter(noted => noted.file)) {
            names.set(file, [...names.get(file) ?? [], name]);
        }
        return file => {
            const left = names.get(file) ?? [''];
            return left.length > 1 ? left.shift() : left[0];
        };
    }

    // --- texts and pictures that belong to something ---

    const holds = ({ x, y, width, height }, text) => text.x >= x - PRECISION && text.x <= x + width + PRECISION
        && text.y >= y - text.size && text.y <= y + height;
    const standsBeside = ({ x, y, width, height }, text) => near(text.x, x + width + 12) && text.y >= y - height
        && text.y <= y + height;

    const isWithin = ({ x, y, width, height }, middle) => middle.x > x && middle.x < x + width && middle.y > y
        && middle.y < y + height;

    function owns(owner, item) {
        if (item.role === 'img') {
            return isWithin(owner, middleOf(item));
        }
        const [text] = item.texts;
        return item.role === 'text' && (owner.role === 'checkbox'
            ? owner.texts.length === 0 && standsBeside(owner, text) : holds(owner, text));
    }

    /// Gives boxes that can be pressed the texts and pictures in them, and boxes to tick the text beside them.
    function gatherParts(items) {
        const kept = [];
        let owner = null;
        for (const item of items) {
            if (owner && owns(owner, item)) {
                owner.texts.push(...item.texts);
                owner.pictured = [owner.pictured, item.name].filter(Boolean).join(' ');
            } else {
                kept.push(item);
            }
            if (['button', 'link', 'checkbox'].includes(item.role) && BOXES.includes(item.kind)) {
                owner = item;
            } else if (owner && item.role === 'dialog') {
                owner = null;
            }
        }
        return kept;
    }

    const centreOf = text => ({
        x: text.x + (text.align === 'center' ? 0 : 0.3 * text.size * text.text.length), y: text.y + text.size / 2,
    });

    // So far a label may stand beside what it is for, and above it.
    const REACH_ACROSS = 600;
    const REACH_DOWN = 60;

    /// The text that most likely says what the item at this place is: beside it, else above it.
    function labelOf(items, place) {
        const AROUND = 4;
        const { x: left, y: top, width, height } = items[place];
        const middle = middleOf(items[place]);
        let best = { text: null, distance: REACH_ACROSS };
        for (let other = Math.max(0, place - AROUND); other < Math.min(items.length, place + AROUND); other++) {
            const [text] = items[other].role === 'text' ? items[other].texts : [];
            if (!text || text.isLabel || text.text.trim() === '') {
                continue;
            }
            const centre = centreOf(text);
            const isBeside = Math.abs(centre.y - middle.y) < Math.max(height, text.size) / 2;
            const across = Math.max(0, left - text.x - 2 * (centre.x - text.x), text.x - left - width);
            const isAbove = centre.y < top && across === 0;
            const distance = isBeside ? across : Math.max(0, top - text.y - text.size);
            if (distance < best.distance && (isBeside || (isAbove && distance < REACH_DOWN))) {
                best = { text, distance };
            }
        }
        if (best.text) {
            best.text.isLabel = true;
        }
        return best.text?.text ?? '';
    }

    const USUAL_NAMES = { switch: 'மாற்றி', slider: 'அளவி', progressbar: 'முன்னேற்றம்', checkbox: 'தேர்வுபெட்டி',
                          button: 'பொத்தான்', link: 'இணைப்பு' };

    function nameAll(items) {
        items.forEach((item, place) => {
            const isNamed = item.name || item.texts.some(({ text }) => text.trim() !== '');
            if (item.role in USUAL_NAMES && !isNamed) {
                item.name = (item.isNameless && labelOf(items, place)) || item.pictured || USUAL_NAMES[item.role];
            }
        });
    }

    /// Menus stand after what opened them, and what a dialog holds stands in it.
    function nest(items) {
        const page = [];
        const dialogs = [];
        for (const item of items) {
            if (item.role === 'dialog') {
                dialogs.push(item);
            } else if (item.role === 'listbox') {
                const list = (dialogs.at(-1)?.children ?? page);
                const owner = list.findIndex(other => other.opens && other.expanded);
                list.splice(owner + 1 || list.length, 0, item);
            } else if (item.role !== 'plain' && item.role !== 'message') {
                (dialogs.at(-1)?.children ?? page).push(item);
            }
        }
        dialogs.forEach(dialog => {
            dialog.name = dialog.children.find(({ texts }) => texts.length > 0)?.texts[0].text ?? 'உரையாடல்';
        });
        return { page, dialogs, messages: items.filter(({ role }) => role === 'message') };
    }

    /// What the marks of a frame show: the items of the page and of each dialog in reading order, and messages.
    ///
    /// \param marks what was drawn, in order: { kind, x, y, width, height, radius } for shapes; texts have text, size, align
    ///     and colour as well, pictures their file
    /// \param notes what the compiler has noted of the widgets that are shown
    function read(marks, notes = []) {
        const items = readItems(marks);
        note(items, notes, BOXES);
        ['பொத்தான்', 'உரைபொத்தான்', 'அளவி'].forEach(kind => note(items, notes, [kind]));
        items.forEach(becomeWhatIsNoted);
        const nameOf = pictureNames(notes);
        items.filter(({ role }) => role === 'img').forEach(item => { item.name = nameOf(item.file); });
        const gathered = gatherParts(items.filter(({ role, name }) => role !== 'img' || name));
        nameAll(gathered);
        return nest(gathered);
    }

    return { read, labelOf, pictureNames };
})();
