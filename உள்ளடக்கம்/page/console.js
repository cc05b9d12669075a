// What programs say on the console of the browser by the words of its programmers is said in those of its users.
(() => {
    const WORDS = {
        'Copied to clipboard: ': 'நகலெடுக்கப்பட்டது: ',
        'Could not copy text: ': 'உரையை நகலெடுக்க முடியவில்லை: ',
        'FS Font check failed, using URL:': 'எழுத்துருக் கோப்பைப் படிக்க முடியவில்லை; அதன் முகவரி பயன்படுகிறது:',
        'FS image check failed, using URL:': 'படக் கோப்பைப் படிக்க முடியவில்லை; அதன் முகவரி பயன்படுகிறது:',
        'Font load error:': 'எழுத்துருவை ஏற்ற முடியவில்லை:',
    };
    for (const method of ['log', 'warn', 'error']) {
        const say = console[method].bind(console);
        console[method] = (first, ...more) => say(Object.hasOwn(WORDS, first) ? WORDS[first] : first, ...more);
    }
})();
