// What the canvas shows stands in the document as well, transparent and in reading order: for those who can't see it, for
// search and copies, and for those who go from widget to widget by the keyboard.
(() => {
    // What moves by itself is followed at these intervals, in milliseconds, and for so small a part of the time.
    const INTERVAL = 200;
    const PART_OF_TIME = 40;
    // After so many frames in which nothing happens the next change may be far off.
    const QUIET = 2;
    // A slider goes so far at a stroke of a key.
    const STEPS = 20;

    const clock = performance.now.bind(performance);
    const root = document.getElementById('pozhil-shown');
    const page = document.getElementById('pozhil-page');
    const said = document.getElementById('pozhil-said');
    const notes = JSON.parse(document.getElementById('pozhil-widgets').textContent || '{}');

    // --- when to look ---

    let isStale = true;
    let isLooking = false;
    let lastLook = -Infinity;
    let cost = 0;
    /// A dialog has opened or closed: until the page is looked at, fields that can be seen again can't be reached.
    let isUrgent = false;
    let hadDialog = false;
    /// Frames since something has happened or moved.
    let quietFrames = 0;
    let pageBefore = '';
    /// What the last frame has drawn.
    let formerTexts = [];
    let formerShapes = new Float32Array(0);

    function isSameList(one, other) {
        if (one.length !== other.length) {
            return false;
        }
        for (let index = 0; index < one.length; index++) {
            if (one[index] !== other[index]) {
                return false;
            }
        }
        return true;
    }

    function noticeMoves() {
        const texts = pozhilDrawing.texts();
        const shapes = pozhilDrawing.shapes();
        quietFrames++;
        if (!isSameList(texts, formerTexts) || !isSameList(shapes, formerShapes)) {
            isStale = true;
            quietFrames = 0;
            formerShapes = shapes.slice();
        }
        formerTexts = texts;
        const hasDialog = Boolean(window.modalActive);
        if (hasDialog !== hadDialog) {
            hadDialog = hasDialog;
            isStale = isUrgent = true;
        }
    }

    pozhilFrames.whenWoken(() => {
        isStale = true;
        quietFrames = 0;
    });
    pozhilFrames.before(() => {
        // A page that becomes quiet is looked at before it rests.
        const isTime = clock() >= lastLook + Math.max(INTERVAL, PART_OF_TIME * cost);
        isLooking = isStale && (isUrgent || quietFrames >= QUIET || isTime);
        pozhilDrawing.watchMarks(isLooking);
        pageBefore = isLooking ? pageName() : '';
    });
    pozhilFrames.after(() => {
        noticeMoves();
        // A frame in which the page is turned may show a part of either.
        if (isLooking && pageName() === pageBefore) {
            look();
        }
    });

    function look() {
        const begin = clock();
        isStale = isUrgent = false;
        const marks = pozhilDrawing.marks();
        marks.filter(({ kind }) => kind === 'picture').forEach(mark => { mark.file = pozhilPictures.fileOf(mark.radius); });
        const shownNotes = notesOfNow();
        mirror(pozhilShown.read(marks, shownNotes), marks);
        pozhilPictures.nameElements(pozhilShown.pictureNames(shownNotes));
        lastLook = clock();
        cost = lastLook - begin;
        pressWaiting();
    }

    // --- what the compiler has noted, as far as it is there now ---

    let ccall = null;
    pozhilFrames.whenReady(() => { ({ ccall } = Module); });

    const pageName = () => ccall('pozhil_page_name', 'string', [], []);

    function notesOfNow() {
        const shows = atFirst => name => ccall('pozhil_shows', 'number', ['string', 'number'], [name, atFirst]) !== 0;
        return (notes[pageName()] ?? []).filter(
            ({ unlessHidden = [], onceShown = [] }) => unlessHidden.every(shows(1)) && onceShown.every(shows(0)));
    }

    // --- elements ---

    /// What was shown by each element.
    const itemOf = new WeakMap();

    const textOf = item => item.texts.map(({ text }) => text).join(' ');
    const isPressed = ({ role, disabled }) => ['button', 'link', 'switch', 'checkbox', 'radio', 'tab', 'option',
        'slider'].includes(role) && !disabled;

    function setAttribute(element, name, value) {
        if (value === undefined || value === null || value === false) {
            element.removeAttribute(name);
        } else if (element.getAttribute(name) !== String(value)) {
            element.setAttribute(name, value);
        }
    }

    function setStyle(element, name, value) {
        const known = element.pozhilStyle ??= {};
        if (known[name] !== value) {
            known[name] = value;
            if (name.startsWith('--')) {
                element.style.setProperty(name, value);
            } else {
                element.style[name] = value;
            }
        }
    }

    const ALIGNMENTS = { center: 'translateX(-50%)', right: 'translateX(-100%)' };
    // Glyphs stand in the middle of their line.
    const LINE_HEIGHT = 1.3;

    function showText(element, text, left = 0, top = 0) {
        if (element.textContent !== text.text) {
            element.textContent = text.text;
        }
        setStyle(element, 'font', text.font);
        setStyle(element, 'left', text.x - left + 'px');
        setStyle(element, 'top', text.y - top - ((text.lineHeight ?? LINE_HEIGHT * text.size) - text.size) / 2 + 'px');
        setStyle(element, 'transform', ALIGNMENTS[text.align] ?? '');
        const isBlock = text.lineHeight !== undefined;
        element.classList.toggle('pozhil-lines', isBlock);
        setStyle(element, 'width', isBlock ? Math.ceil(text.width) + 'px' : '');
        setStyle(element, 'textAlign', isBlock ? text.lineAlign : '');
        setStyle(element, '--line-height', isBlock ? String(text.lineHeight / text.size) : '');
    }

    function makeText() {
        const element = document.createElement('span');
        element.className = 'pozhil-text';
        return element;
    }

    function showTexts(element, item) {
        while (element.children.length > item.texts.length) {
            element.lastChild.remove();
        }
        item.texts.forEach((text, place) => {
            showText(element.children[place] ?? element.appendChild(makeText()), text, item.x, item.y);
        });
    }

    const stateOf = item => ({
        'aria-label': item.name, 'aria-checked': item.checked !== undefined && item.role !== 'button' && item.role !== 'link'
            ? Boolean(item.checked) + '' : null,
        'aria-selected': item.role === 'tab' || item.role === 'option' ? item.selected + '' : null,
        'aria-expanded': item.opens ? item.expanded + '' : null, 'aria-haspopup': item.opens,
        'aria-modal': item.role === 'dialog' ? 'true' : null, 'aria-current': item.current ? 'page' : null, 'aria-disabled': item.disabled ? 'true' : null,
        ...valueOf(item),
    });

    function valueOf({ ratio, least = 0, largest = 100 }) {
        if (ratio === undefined) {
            return { 'aria-valuemin': null, 'aria-valuemax': null, 'aria-valuenow': null };
        }
        return { 'aria-valuemin': least, 'aria-valuemax': largest,
                 'aria-valuenow': ratio === null ? null : Math.round((least + ratio * (largest - least)) * 100) / 100 };
    }

    function make(item) {
        if (item.role === 'text') {
            return makeText();
        }
        const element = document.createElement('div');
        element.setAttribute('role', item.role);
        if (!item.children) {
            element.className = 'pozhil-widget';
        }
        return element;
    }

    function show(element, item) {
        itemOf.set(element, item);
        if (item.role === 'text') {
            showText(element, item.texts[0]);
            return;
        }
        for (const [name, value] of Object.entries(stateOf(item))) {
            setAttribute(element, name, value);
        }
        setAttribute(element, 'role', item.role);
        if (item.children) {
            showAll(element, item.children);
            return;
        }
        setAttribute(element, 'tabindex', isPressed(item) ? 0 : null);
        for (const [name, side] of [['left', 'x'], ['top', 'y'], ['width', 'width'], ['height', 'height']]) {
            setStyle(element, name, item[side] + 'px');
        }
        showTexts(element, item);
    }

    // --- lists of elements ---

    const keyOf = item => item.element ?? item.role + ' ' + (item.name ?? '') + ' ' + textOf(item);
    const kindOf = item => item.children ? item.role : item.role === 'text' ? 'text' : 'widget';

    /// For each item the element that showed it before, else one of its kind that shows nothing any more, else a new one.
    function elementsFor(parent, items) {
        const free = [...parent.children].filter(element => itemOf.has(element));
        const byKey = new Map();
        for (const element of free) {
            const key = keyOf(itemOf.get(element));
            byKey.set(key, [...byKey.get(key) ?? [], element]);
        }
        const chosen = items.map(item => item.element ?? byKey.get(keyOf(item))?.shift());
        const taken = new Set(chosen);
        const byKind = {};
        for (const element of free.filter(other => !taken.has(other))) {
            (byKind[kindOf(itemOf.get(element))] ??= []).push(element);
        }
        return chosen.map((element, place) => element ?? byKind[kindOf(items[place])]?.shift() ?? make(items[place]));
    }

    function showAll(parent, items) {
        const elements = elementsFor(parent, items);
        const kept = new Set(elements);
        [...parent.children].filter(element => itemOf.has(element) && !kept.has(element)).forEach(element => {
            element.remove();
        });
        let before = null;
        for (let place = items.length - 1; place >= 0; place--) {
            const element = elements[place];
            // Whoever types in a field would be torn from it.
            if ((element.parentNode !== parent || element.nextSibling !== before) && element !== document.activeElement) {
                parent.insertBefore(element, before);
            }
            if (element.parentNode === parent) {
                before = element;
            }
            if (!items[place].element) {
                show(element, items[place]);
            }
        }
    }

    // --- fields, which are elements of their own ---

    const topLeftOf = item => item.texts?.[0] && item.x === undefined ? item.texts[0] : item;

    /// Where an element without a shape stands in the list: before what is below it, or further along its line.
    function placeAmong(items, { x, y, width, height }) {
        const place = items.findIndex(item => {
            const { x: left, y: top } = topLeftOf(item);
            return top >= y + height || (top >= y && left >= x + width);
        });
        return place < 0 ? items.length : place;
    }

    /// Puts each field among the items after the shape that it lies on.
    function addFields({ page: items, dialogs }, marks) {
        for (const element of document.querySelectorAll('.pozhil-input')) {
            if (element.style.display === 'none') {
                continue;
            }
            const [x, y, width, height] = ['left', 'top', 'width', 'height'].map(side => parseFloat(element.style[side]));
            const field = { role: 'field', element, texts: [], x, y, width, height };
            field.index = marks.findLastIndex(mark => mark.kind === 'round' && x + 1 >= mark.x && y + 1 >= mark.y
                && x <= mark.x + mark.width && y <= mark.y + mark.height);
            const list = dialogs.findLast(dialog => dialog.index < field.index)?.children ?? items;
            const next = list.findIndex(item => item.index > field.index);
            const place = element instanceof HTMLImageElement ? placeAmong(list, field) : next < 0 ? list.length : next;
            list.splice(place, 0, field);
        }
    }

    /// A field is called by the text beside or above it, else by its hint.
    function nameFields(items) {
        items.forEach(({ element, children }, place) => {
            if (children) {
                nameFields(children);
            } else if (element && !(element instanceof HTMLImageElement)) {
                setAttribute(element, 'aria-label', pozhilShown.labelOf(items, place) || element.placeholder || 'உரைபெட்டி');
            }
        });
    }

    // --- dialogs ---

    let layers = [page];
    /// What had the focus before each of the dialogs came.
    const left = [];

    /// Only what lies on top can be reached. Whoever goes by the keyboard goes on there, and comes back.
    function leadFocus(hasOpened) {
        const active = document.activeElement;
        const isOurs = root.contains(active);
        layers.forEach((layer, place) => { layer.inert = place < layers.length - 1; });
        if (hasOpened) {
            left.push(isOurs ? active : null);
            if (isOurs) {
                layers.at(-1).querySelector('.pozhil-widget[tabindex], .pozhil-input')?.focus();
            }
        } else {
            left.splice(layers.length - 1)[0]?.focus();
        }
    }

    let mirroredPage = null;

    /// Whoever goes by the keyboard begins a page at its top.
    function leadToTop() {
        if (mirroredPage !== null && mirroredPage !== pageName() && page.contains(document.activeElement)) {
            root.focus({ preventScroll: true });
        }
        mirroredPage = pageName();
    }

    function mirror(shown, marks) {
        leadToTop();
        addFields(shown, marks);
        nameFields([...shown.page, ...shown.dialogs]);
        const former = layers.length;
        showAll(page, shown.page);
        showAll(root, shown.dialogs);
        layers = [page, ...[...root.children].filter(element => itemOf.has(element))];
        if (layers.length !== former) {
            leadFocus(layers.length > former);
        }
        const message = shown.messages.map(textOf).join(' ');
        if (said.textContent !== message) {
            said.textContent = message;
        }
    }

    // --- the keyboard ---

    /// What is to be pressed as soon as it is known where it stands now, and how far along.
    let waiting = null;

    function press(element, ratio = 0.5) {
        waiting = { element, ratio };
        lastLook = -Infinity;
        cost = 0;
        pozhilFrames.wake();
    }

    function pressWaiting() {
        if (waiting?.element.isConnected) {
            const { x, y, width, height } = itemOf.get(waiting.element);
            pozhilPointer.moveTo(x + width * waiting.ratio, y + height / 2);
            pozhilPointer.tap({ x, y, width, height });
            pozhilFrames.wake();
        }
        waiting = null;
    }

    const STROKES = {
        ArrowLeft: ratio => ratio - 1 / STEPS, ArrowDown: ratio => ratio - 1 / STEPS,
        ArrowRight: ratio => ratio + 1 / STEPS, ArrowUp: ratio => ratio + 1 / STEPS, Home: () => 0, End: () => 1,
    };

    root.addEventListener('keydown', event => {
        const item = itemOf.get(event.target);
        if (!item || !isPressed(item) || event.ctrlKey || event.altKey || event.metaKey) {
            return;
        }
        const stroke = item.role === 'slider' && STROKES[event.key];
        if (stroke) {
            press(event.target, Math.max(0, Math.min(1, stroke(item.ratio))));
        } else if (item.role !== 'slider' && (event.key === 'Enter' || event.key === ' ')) {
            press(event.target);
        } else {
            return;
        }
        event.preventDefault();
    });

    // Screen readers press without a pointer. A real one presses what is drawn.
    root.addEventListener('click', event => {
        const widget = event.target.closest('.pozhil-widget');
        if (event.detail === 0 && widget && isPressed(itemOf.get(widget))) {
            press(widget);
        }
    });

    // A drag that begins on a text may lead to a slider.
    root.addEventListener('mousedown', event => {
        if (event.button === 0 && event.target.matches('.pozhil-text')) {
            pozhilPointer.hold(true);
        }
    });
})();
