#include "generator/web/page/database.h"

#include "generator/web/page/page_text.h"

#include <array>

namespace pozhil {
namespace {

constexpr std::string_view LIBRARY_HOST = "https://www.gstatic.com";

/// A configuration value, empty if the source gives none or no text.
std::string configured(const FirebaseConfigNode& config, const char* key) {
    const auto property = config.properties.find(key);
    const auto* text = property == config.properties.end() ? nullptr : nodeCast<StringLiteral>(property->second.get());
    return text == nullptr ? "" : text->value;
}

/// An operation as an expression without a value: \p script stands after the path and the data, if there are any.
template <class WriteData>
void emitOperation(CodeWriter& out, EditionWriter& edition, const Expression* path, WriteData writeData,
                   const Block& script) {
    out << "[&]() -> " << edition.valueType()
        << " {\n#ifdef __EMSCRIPTEN__\n    std::string path_str = " << edition.text(path, "") << ";\n";
    writeData();
    out.blockAtMargin(script);
    out << "#endif\n    return " << edition.valueType() << "();\n}()";
}

/// The data as JSON. A number that is changed stays one, while new values are all sent as texts.
void emitEntries(CodeWriter& out, EditionWriter& edition, const MapLiteral& data, bool keepsNumbers) {
    out << "    std::string json_data = \"{\";\n";
    bool isFirst = true;
    for (const auto& [key, value] : data.entries) {
        const bool isQuoted = !keepsNumbers || nodeCast<StringLiteral>(value.get()) != nullptr;
        const std::string_view quote = isQuoted ? "\\\"" : "";
        out << "    json_data += \"" << (isFirst ? "" : ", ") << "\\\"" << key << "\\\": " << quote << "\" + "
            << edition.text(value.get(), "") << " + \"" << quote << "\";\n";
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
    const Filling script = std::function<void()>([&] {
        const CodeWriter::Indented deeper(out);
        out.block(page_text::database_loader, holes);
    });
    out.blockAtMargin(page_text::database_setup, {{"script", script}});
}

void emitInsert(CodeWriter& out, EditionWriter& edition, const RTDBInsertExpression& insert) {
    static const MapLiteral NO_ENTRIES({});
    const auto* data = nodeCast<MapLiteral>(insert.data.get());
    const auto writeData = [&] { emitEntries(out, edition, data == nullptr ? NO_ENTRIES : *data, false); };
    emitOperation(out, edition, insert.path.get(), writeData, page_text::database_insert);
}

void emitUpdate(CodeWriter& out, EditionWriter& edition, const RTDBUpdateExpression& update) {
    const auto writeData = [&] { emitEntries(out, edition, *update.data, true); };
    emitOperation(out, edition, update.path.get(), writeData, page_text::database_update);
}

void emitDelete(CodeWriter& out, EditionWriter& edition, const RTDBDeleteExpression& remove) {
    const auto writeNoData = [] {};
    emitOperation(out, edition, remove.path.get(), writeNoData, page_text::database_delete);
}

void emitRead(CodeWriter& out, EditionWriter& edition, const RTDBReadStatement& read) {
    const Filling body = std::function<void()>([&] {
        const CodeWriter::Indented deeper(out, 2);
        edition.writeBody(read.body);
    });
    out.block(page_text::database_read,
              {{"path", edition.text(read.path.get(), "")}, {"value", edition.valueType()}, {"body", body}});
}

} // namespace pozhil
