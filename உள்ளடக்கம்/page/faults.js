// Faults of a running program that nobody caught stand in a card on the page, which goes on.
var pozhilFaults = (() => {
    let told = 0;

    function element(name, className, text) {
        const made = document.createElement(name);
        made.className = className;
        made.textContent = text;
        return made;
    }

    /// Whose line is "function\tfile\tline".
    function callText(call) {
        const [name, file, line] = call.split('\t');
        return `'${name}' அழைக்கப்பட்ட இடம்: ` + (line === '0' ? 'தெரியவில்லை' : `${file}, வரி ${line}`);
    }

    function card() {
        const made = element('section', '', '');
        made.id = 'pozhil-program-fault';
        made.setAttribute('role', 'alert');
        made.addEventListener('keydown', event => event.key === 'Escape' && close());
        // What is under the card isn't meant.
        for (const happening of ['mousedown', 'wheel']) {
            made.addEventListener(happening, event => event.stopPropagation());
        }
        return made;
    }

    function close() {
        document.getElementById('pozhil-program-fault')?.remove();
        told = 0;
    }

    function closeButton() {
        const button = element('button', 'pozhil-close', 'மூடு');
        button.type = 'button';
        button.addEventListener('click', close);
        return button;
    }

    /// Shows a fault: { code, category, message, remedy, suggestion, file, line, lineText, way }, where way has a line for each
    /// call. The first one is what the others may come of, so it stays until the user closes it.
    function tell(fault) {
        told++;
        const open = document.getElementById('pozhil-program-fault');
        if (open) {
            open.querySelector('.pozhil-more').textContent = told === 2
                ? 'மேலும் ஒரு பிழை; அதுவும் உலாவியின் பணியகத்தில் உள்ளது.'
                : `மேலும் ${told - 1} பிழைகள்; அனைத்தும் உலாவியின் பணியகத்தில் உள்ளன.`;
            return;
        }
        const shown = card();
        const place = [fault.file, fault.line > 0 ? `வரி ${fault.line}` : ''].filter(Boolean).join(' · ');
        shown.append(closeButton(), element('h1', '', `🚨 ${fault.code} :: ${fault.category}`),
                     element('p', 'pozhil-place', place), element('pre', '', fault.lineText.trim()),
                     element('p', '', fault.message), element('p', '', fault.suggestion),
                     element('p', '', fault.remedy && `💡 ${fault.remedy}`),
                     element('p', 'pozhil-way', fault.way && '🧭 ' + fault.way.trim().split('\n').map(callText).join('\n')),
                     element('p', 'pozhil-more', ''));
        document.body.appendChild(shown);
    }

    /// Whether it is a part of the card.
    function isOf(target) {
        return target instanceof HTMLElement && target.closest('#pozhil-program-fault') !== null;
    }

    return { tell, isOf };
})();
