let currentVersion = $version;
setInterval(() => {
    fetch('/version')
        .then(response => response.text())
        .then(text => {
            if (parseInt(text) > currentVersion) {
                globalThis.pozhilState?.keep();
                location.reload();
            }
        })
        .catch(() => {
            // A server that comes back counts anew; before its first good build it tells a 1.
            currentVersion = 1;
        });
}, 500);
