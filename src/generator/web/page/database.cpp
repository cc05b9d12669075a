#include "generator/web/page/database.h"

#include <array>

namespace pozhil {
namespace {

constexpr std::string_view LIBRARY_HOST = "https://www.gstatic.com";

constexpr Block LOADER = R"block(
#ifdef __EMSCRIPTEN__
    pozhil_run_script(R"script(
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
    )script");
#endif
)block";

constexpr Block INSERT = R"block(
    std::string script = "try { if (typeof window.db === 'undefined') throw Error('Firebase Database இணைக்கப்படவில்லை!');"
        " var data = JSON.parse('" + json_data + "');"
        " window.db.ref('" + path_str + "').set(data)"
        ".then(() => { console.log('✅ தரவு வெற்றிகரமாக சேமிக்கப்பட்டது!'); })"
        ".catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', error); }); }"
        " catch (error) { console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', error.message); }";
    pozhil_run_script(script);
)block";

constexpr Block UPDATE = R"block(
    std::string script = "try { var data = JSON.parse('" + json_data + "');"
        " window.db.ref('" + path_str + "').update(data)"
        ".then(() => { console.log('✅ தரவு வெற்றிகரமாக மாற்றப்பட்டது!'); })"
        ".catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', error); }); }"
        " catch (error) { console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', error.message); }";
    pozhil_run_script(script);
)block";

constexpr Block DELETE = R"block(
    std::string script = "window.db.ref('" + path_str + "').remove()"
        ".then(() => { console.log('✅ தரவு வெற்றிகரமாக அழிக்கப்பட்டது!'); })"
        ".catch((error) => { console.error('❌ ஃபயர்பேஸ் பிழை:', error); });";
    pozhil_run_script(script);
)block";

constexpr Block READ = R"block(
{
#ifdef __EMSCRIPTEN__
    std::string path_str = fn_any_to_string($path);
    int cb_id = ++g_rtdb_cb_counter;
    g_rtdb_callbacks[cb_id] = [=]() mutable -> std::any {
        $body
        return std::any();
    };
    std::string script = "window.db.ref('" + path_str + "').once('value').then((snapshot) => {"
        " var data = snapshot.val();"
        " Module.ccall('rtdb_clear_temp', null, [], []);"
        " if (data) { for (var k in data) { var v = data[k];"
        " if (typeof v === 'string') Module.ccall('rtdb_add_temp_str', null, ['string', 'string'], [k, v]);"
        " else if (typeof v === 'number') Module.ccall('rtdb_add_temp_num', null, ['string', 'number'], [k, v]);"
        " else if (typeof v === 'boolean') Module.ccall('rtdb_add_temp_bool', null, ['string', 'number'], [k, v ? 1 : 0]);"
        " } }"
        " Module.ccall('rtdb_execute_callback', null, ['number'], [" + std::to_string(cb_id) + "]);"
        " }).catch((error) => { console.error('🔥 பொழில் இயக்கநேரப் பிழை (WASM):', error.message); });";
    pozhil_run_script(script);
#endif
}
)block";

/// A configuration value, empty if the source gives none or no text.
std::string configured(const FirebaseConfigNode& config, const char* key) {
    const auto property = config.properties.find(key);
    const auto* text = property == config.properties.end() ? nullptr : nodeCast<StringLiteral>(property->second.get());
    return text == nullptr ? "" : text->value;
}

/// An operation as an expression without a value: \p script stands after the path and the data, if there are any.
template <class WriteData>
void emitOperation(CodeWriter& out, Edition& edition, const Expression* path, WriteData writeData,
                   const Block& script) {
    out << "[&]() -> std::any {\n#ifdef __EMSCRIPTEN__\n    std::string path_str = fn_any_to_string(";
    edition.writeExpression(path);
    out << ");\n";
    writeData();
    out.blockAtMargin(script);
    out << "#endif\n    return std::any();\n}()";
}

/// The data as JSON. A number that is changed stays one, while new values are all sent as texts.
void emitEntries(CodeWriter& out, Edition& edition, const MapLiteral& data, bool keepsNumbers) {
    out << "    std::string json_data = \"{\";\n";
    bool isFirst = true;
    for (const auto& [key, value] : data.entries) {
        const bool isQuoted = !keepsNumbers || nodeCast<StringLiteral>(value.get()) != nullptr;
        const std::string_view quote = isQuoted ? "\\\"" : "";
        out << "    json_data += \"" << (isFirst ? "" : ", ") << "\\\"" << key << "\\\": " << quote
            << "\" + fn_any_to_string(";
        edition.writeExpression(value.get());
        out << ") + \"" << quote << "\";\n";
        isFirst = false;
    }
    out << "    json_data += \"}\";\n";
}

} // namespace

void emitDatabaseSetup(CodeWriter& out, const WebAppNode& app) {
    constexpr std::array<const char*, 7> KEYS = {"api_key",        "auth_domain",         "database_url", "project_id",
                                                 "storage_bucket", "messaging_sender_id", "app_id"};
    const auto* manager = nodeCast<DatabaseManagerNode>(app.databaseManager.get());
    const auto* config = manager == nullptr ? nullptr : nodeCast<FirebaseConfigNode>(manager->firebaseConfig.get());
    if (config == nullptr) {
        return;
    }
    Holes holes = {{"host", std::string(LIBRARY_HOST)}};
    for (const char* key : KEYS) {
        holes.emplace_back(key, configured(*config, key));
    }
    out.blockAtMargin(LOADER, holes);
}

void emitInsert(CodeWriter& out, Edition& edition, const RTDBInsertExpression& insert) {
    static const MapLiteral NO_ENTRIES({});
    const auto* data = nodeCast<MapLiteral>(insert.data.get());
    const auto writeData = [&] { emitEntries(out, edition, data == nullptr ? NO_ENTRIES : *data, false); };
    emitOperation(out, edition, insert.path.get(), writeData, INSERT);
}

void emitUpdate(CodeWriter& out, Edition& edition, const RTDBUpdateExpression& update) {
    const auto writeData = [&] { emitEntries(out, edition, *update.data, true); };
    emitOperation(out, edition, update.path.get(), writeData, UPDATE);
}

void emitDelete(CodeWriter& out, Edition& edition, const RTDBDeleteExpression& remove) {
    const auto writeNoData = [] {};
    emitOperation(out, edition, remove.path.get(), writeNoData, DELETE);
}

void emitRead(CodeWriter& out, Edition& edition, const RTDBReadStatement& read) {
    const Filling path = std::function<void()>([&] { edition.writeExpression(read.path.get()); });
    const Filling body = std::function<void()>([&] {
        const CodeWriter::Indented deeper(out, 2);
        edition.writeBody(read.body);
    });
    out.block(READ, {{"path", path}, {"body", body}});
}

} // namespace pozhil
