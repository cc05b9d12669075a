// Pages of an application that says which it has are places of the browser: `#name` in the address. So they are gone back
// from, and links lead to them.
(() => {
    const shownPage = () => Module.ccall('pozhil_page_name', 'string', [], []);
    const hasPage = name => Module.ccall('pozhil_has_page', 'boolean', ['string'], [name]);

    function namedPage() {
        try {
            return decodeURIComponent(location.hash.slice(1));
        } catch {
            return '';
        }
    }

    /// The page that stands at the address without a name; null until the application runs.
    let firstPage = null;
    /// The page at the present address.
    let page = '';

    function goToAddress() {
        const name = namedPage() || firstPage;
        if (firstPage !== null && hasPage(name)) {
            page = name;
            Module.ccall('pozhil_show_page', null, ['string'], [name]);
            pozhilFrames.wake();
        }
    }

    window.addEventListener('popstate', goToAddress);

    // After a frame nobody asks the program, which would wake a page that is about to rest.
    pozhilFrames.before(() => {
        if (firstPage === null) {
            firstPage = page = shownPage();
            goToAddress();
            return;
        }
        const now = shownPage();
        if (now !== page && hasPage(now)) {
            history.pushState(null, '', '#' + encodeURIComponent(now));
            page = now;
        }
    });
})();
