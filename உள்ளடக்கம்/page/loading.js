// The card that is shown while the program is on its way, and in its place where it can't run.
var pozhilLoading = (() => {
    const find = selector => document.querySelector(selector);
    const status = find('#pozhil-status');
    let parts = 0;
    let failed = false;
    let isReady = false;

    find('#pozhil-title').textContent = document.title;

    function progress(fraction) {
        const percent = Math.max(8, Math.round(fraction * 100));
        find('.pozhil-bar').style.width = percent + '%';
        find('.pozhil-track').setAttribute('aria-valuenow', percent);
    }

    // The first failure is the cause of those behind it.
    function fail(text) {
        if (!failed) {
            failed = true;
            find('#pozhil-text').textContent = text;
            status.classList.add('pozhil-failed');
            status.hidden = false;
        }
    }

    // What the program died of, by the browser's words for it. Of an exception it tells no more than that it is one.
    function causeOf(fault) {
        const words = String(fault);
        if (/(divide|division|remainder) by zero/i.test(words)) {
            return 'ஒரு முழு எண்ணைச் சுழியத்தால் (0) வகுக்கவோ, மீதி காணவோ முயன்றது.';
        }
        if (/call stack|recursion/i.test(words)) {
            return 'ஒன்றுக்குள் ஒன்றாக நடந்தவை மிக ஆழமாகி, அடுக்கு நினைவகம் தீர்ந்துவிட்டது.';
        }
        return 'யாரும் பிடிக்காத ஒரு பிழை நேர்ந்தது; பெரும்பாலும் ஒரு மதிப்பு, அது பயன்படும் இடத்துக்கு ஏற்ற '
            + 'வகையில் இருக்காது, அல்லது வகுக்கும் எண் சுழியமாக (0) இருக்கும்.';
    }

    const INCOMPLETE = 'நிரலின் கோப்புகள் முழுமையாக வந்து சேரவில்லை. பக்கத்தைப் புதுப்பிக்கவும்; மீண்டும் இப்படியே நேர்ந்தால் '
        + 'சேவையகத்தில் உள்ள கோப்புகளைச் சரிபார்க்கவும்.';

    function die(fault) {
        if (!isReady) {
            fail(INCOMPLETE);
            return;
        }
        const word = 'நிரல் இடையிலேயே நின்றுவிட்டது: ' + causeOf(fault);
        if (!failed) {
            console.error('🚨 ' + word);
        }
        fail(word);
    }

    function hasWebGL() {
        const context = document.createElement('canvas').getContext('webgl');
        const release = context && context.getExtension('WEBGL_lose_context');
        if (release) {
            release.loseContext();
        }
        return Boolean(context);
    }

    /// Without its program: the server of the compiler has not built this version. It reloads the page for a later one; once
    /// it is built, this one is. A page that another host serves has no such server, as its last script tells.
    function missProgram() {
        if (typeof currentVersion !== 'number') {
            fail(INCOMPLETE);
            return;
        }
        fail('நிரல் கிடைக்கவில்லை. தொகுப்பு வெற்றியடைந்ததா என்று முனையத்தில் பார்க்கவும்; '
            + 'பிழையைத் திருத்தியதும் இந்தப் பக்கம் தானாகப் புதுப்பிக்கப்படும்.');
        currentVersion--;
    }

    function whenRead(act) {
        if (document.readyState === 'loading') {
            document.addEventListener('DOMContentLoaded', act);
        } else {
            act();
        }
    }

    window.addEventListener('error', event => {
        if (event.target instanceof HTMLScriptElement && event.target.src.endsWith('/index.js')) {
            whenRead(missProgram);
        } else if (event instanceof ErrorEvent && !isReady) {
            fail(INCOMPLETE);
        }
    }, true);

    /// The files that the program reads come as one of this size. Cut by its host, it would leave the program with files that
    /// end early or are empty. index.js sets the function that makes each of them, and may call it before all other work.
    function expectFiles(size) {
        let create = null;
        Object.defineProperty(Module, 'FS_createDataFile', {
            set(given) { create = given; },
            get: () => (folder, name, data, ...more) => {
                if (data.buffer.byteLength < size) {
                    abort(INCOMPLETE);
                }
                return create(folder, name, data, ...more);
            },
        });
    }

    pozhilFrames.whenReady(() => {
        isReady = true;
        status.hidden = !failed;
    });

    if (typeof WebAssembly !== 'object') {
        fail('இந்த உலாவியில் WebAssembly இல்லை. உலாவியின் புதிய பதிப்பில் இந்தப் பக்கத்தைத் திறக்கவும்.');
    } else if (!hasWebGL()) {
        fail('இந்த உலாவியில் WebGL இயங்கவில்லை. உலாவியின் அமைப்பில் வன்பொருள் முடுக்கம் '
            + '(hardware acceleration) இயங்குகிறதா என்று பார்க்கவும், அல்லது வேறு உலாவியில் திறக்கவும்.');
    }

    return {
        fail,
        // What index.js looks for in Module.
        hooks: {
            noInitialRun: failed,
            setStatus(text) {
                const counts = /\((\d+(?:\.\d+)?)\/(\d+)\)/.exec(text);
                if (counts && Number(counts[2]) > 0) {
                    progress(counts[1] / counts[2]);
                }
            },
            monitorRunDependencies(left) {
                parts = Math.max(parts, left);
                if (parts > 0) {
                    progress((parts - left) / parts);
                }
            },
            onAbort: die,
            // Asked for the files of the program before they are fetched.
            getPreloadedPackage(name, size) {
                expectFiles(size);
                return null;
            },
            quit(code, reason) {
                if (!reason || reason.name !== 'ExitStatus') {
                    die(reason);
                } else if (code !== 0) {
                    fail('நிரல் பிழையோடு முடிந்தது. காரணத்தை உலாவியின் பணியகத்தில் (console) காணலாம்.');
                }
                throw reason;
            },
        },
    };
})();
