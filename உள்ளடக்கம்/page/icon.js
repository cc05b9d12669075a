// A page without an icon of its own would name a file that isn't there.
(() => {
    const LEAF = `<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 32 32"><rect width="32" height="32" rx="8" fill="#1f8a5b"/>
        <path d="M7 25C6 12 14 6 26 6c0 12-6 19-17 18M7 27c3-8 8-12 13-15" fill="none" stroke="#fff" stroke-width="2.5"
        stroke-linecap="round" stroke-linejoin="round"/></svg>`;
    const link = document.querySelector('link[rel=icon]');
    if (!link.getAttribute('href').startsWith('data:')) {
        link.href = 'data:image/svg+xml,' + encodeURIComponent(LEAF);
    }
})();
