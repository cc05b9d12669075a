let currentVersion = $version;
setInterval(() => {
    fetch('/version')
        .then(response => response.text())
        .then(text => {
            if (parseInt(text) > currentVersion) {
                location.reload();
            }
        })
        .catch(() => {});
}, 500);
