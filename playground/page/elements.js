// Elements of the page.

/// The element of this id.
export const byId = id => document.getElementById(id);

/// A new element with a class (or none), and in it texts and other elements.
export function element(name, className, ...children) {
    const made = document.createElement(name);
    if (className) {
        made.className = className;
    }
    made.append(...children);
    return made;
}

/// A word in English, small beside the Tamil one.
export function english(text) {
    const made = element('small', '', text);
    made.lang = 'en';
    return made;
}

/// A button that does something.
export function button(className, onPress, ...children) {
    const made = element('button', className, ...children);
    made.type = 'button';
    made.addEventListener('click', onPress);
    return made;
}
