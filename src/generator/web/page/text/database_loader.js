if (!window.firebaseInitialized) {
    window.firebaseInitialized = true;
    var app = document.createElement('script');
    app.src = '$host/firebasejs/10.0.0/firebase-app-compat.js';
    app.onload = function() {
        var database = document.createElement('script');
        database.src = '$host/firebasejs/10.0.0/firebase-database-compat.js';
        database.onload = function() {
            var cfg = {
                apiKey: '$api_key',
                authDomain: '$auth_domain',
                databaseURL: '$database_url',
                projectId: '$project_id',
                storageBucket: '$storage_bucket',
                messagingSenderId: '$messaging_sender_id',
                appId: '$app_id'
            };
            if (!firebase.apps.length) {
                firebase.initializeApp(cfg);
            }
            window.db = firebase.database();
            console.log('🔥 பொழில்: பயர்பேஸ் தரவுத்தளம் வெற்றிகரமாக இணைக்கப்பட்டது!');
        };
        document.head.appendChild(database);
    };
    document.head.appendChild(app);
}
