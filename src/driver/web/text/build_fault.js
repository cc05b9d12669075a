// Tells in the open page that a change of the source could not be built: what is shown is still the last good version.
setInterval(() => {
    fetch('/version/fault')
        .then(response => response.json())
        .then(fault => {
            const id = 'pozhil-fault';
            const banner = document.getElementById(id) || document.createElement('div');
            if (!fault.description) {
                banner.remove();
                return;
            }
            const line = fault.line > 0 ? 'வரி ' + fault.line : '';
            const place = [fault.code, fault.file, line].filter(Boolean).join(' · ');
            banner.id = id;
            banner.setAttribute('role', 'alert');
            const text = '🚨 ' + (place ? place + ': ' : '') + fault.description
                + '\nபக்கம் பழைய வடிவிலேயே இருக்கிறது; பிழையைத் திருத்திச் சேமித்ததும் புதுப்பிக்கப்படும்.';
            if (banner.textContent !== text) {
                banner.textContent = text;
                document.body.appendChild(banner);
            }
        })
        .catch(() => {});
}, 500);
