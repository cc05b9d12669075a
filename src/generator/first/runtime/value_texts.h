#pragma once

/// What values whose kind is known only at run time look like: their text, their form in JavaScript, the name of their
/// type.

#include "error_box.h"

// --- emitted from here ---

#include <cstring>

// கடிகார நேரம் 64-பிட் மதிப்பாக உள்ளது; கழித்தல், பெருக்கல் ஆகியவை எழுதும் any_cast அதையும் தசம எண்ணாகப் படிக்கும்.
namespace std {
template <> inline long double any_cast<long double>(const any& val) {
    if (const auto* decimal = any_cast<long double>(&val)) {
        return *decimal;
    }
    if (const auto* clock_reading = any_cast<double>(&val)) {
        return *clock_reading;
    }
    throw bad_any_cast();
}
template <> inline long double any_cast<long double>(any& val) {
    return any_cast<long double>(static_cast<const any&>(val));
}
template <> inline long double any_cast<long double>(any&& val) {
    return any_cast<long double>(static_cast<const any&>(val));
}
} // namespace std

inline std::string fn_முழுவதும்(std::tm* t);

// உரை, எழுத்து, பைட் ஆகியவற்றின் எழுத்துகள்; உரை அல்லாத மதிப்புக்கு nullptr
inline const std::string* pozhil_text_view(const std::any& val, std::string& byte_text) {
    if (const auto* text = std::any_cast<std::string>(&val)) {
        return text;
    }
    if (const auto* letter = std::any_cast<_PozhilChar>(&val)) {
        return &letter->val;
    }
    if (const auto* byte = std::any_cast<char>(&val)) {
        byte_text.assign(1, *byte);
        return &byte_text;
    }
    return nullptr;
}

// முழு எண், தசம எண் ஆகியவற்றின் உரை; எண் அல்லாத மதிப்புக்கு வெற்று உரை
inline std::string pozhil_number_text(const std::any& val) {
    if (const auto* whole = std::any_cast<long long>(&val)) {
        return std::to_string(*whole);
    }
    if (const auto* count = std::any_cast<int>(&val)) {
        return std::to_string(*count);
    }
    if (const auto* decimal = std::any_cast<long double>(&val)) {
        return std::to_string(*decimal);
    }
    return "";
}

// பட்டியலின் உறுப்புகளை ஒவ்வொன்றாக எழுதும் வடிவம்
inline std::string pozhil_list_text(const std::vector<std::any>& list, std::string (*text_of)(const std::any&)) {
    std::string text = "[";
    const char* separator = "";
    for (const std::any& item : list) {
        text += separator;
        text += text_of(item);
        separator = ", ";
    }
    return text + "]";
}

// அச்சிடும் வடிவம்
inline std::string fn_any_to_string(const std::any& val) {
    std::string byte_text;
    if (const std::string* text = pozhil_text_view(val, byte_text)) {
        return *text;
    }
    std::string number = pozhil_number_text(val);
    if (!number.empty()) {
        return number;
    }
    if (const auto* truth = std::any_cast<bool>(&val)) {
        return *truth ? "மெய்" : "பொய்";
    }
    if (const auto* clock_reading = std::any_cast<double>(&val)) {
        return std::to_string(*clock_reading);
    }
    if (const auto* time = std::any_cast<std::tm*>(&val)) {
        return fn_முழுவதும்(*time);
    }
    if (const auto* list = std::any_cast<std::vector<std::any>>(&val)) {
        return pozhil_list_text(*list, fn_any_to_string);
    }
    if (const auto* map = std::any_cast<std::map<std::string, std::any>>(&val)) {
        std::string text = "{";
        const char* separator = "";
        for (const auto& entry : *map) {
            text += separator;
            text += "\"" + entry.first + "\": ";
            text += fn_any_to_string(entry.second);
            separator = ", ";
        }
        return text + "}";
    }
    const std::type_info& type = val.type();
    if (type == typeid(std::function<std::any(std::any)>) ||
        type == typeid(std::function<std::any(std::any, std::any)>) ||
        type == typeid(std::function<std::any(std::any, std::any, std::any)>) ||
        type == typeid(std::function<std::any()>)) {
        return "[வினை]";
    }
    if (type == typeid(std::shared_ptr<_StructBase>)) {
        return "[பொருள்]";
    }
    return "[தெரியாத வகை]";
}

// தற்காலிக உரைக்கு: மதிப்பாக மாற்றி நகலெடுக்கத் தேவையில்லை.
template <class Text> std::enable_if_t<std::is_same_v<Text, std::string>, std::string> fn_any_to_string(Text&& text) {
    return std::move(text);
}

// JavaScript உரைக்குள் எழுதும் வடிவம்
inline std::string pozhil_script_escape(const std::string& text, bool line_ends) {
    std::string escaped;
    for (char c : text) {
        if (c == '\'' || c == '"' || c == '\\') {
            escaped += '\\';
            escaped += c;
        } else if (line_ends && c == '\n') {
            escaped += "\\n";
        } else if (line_ends && c == '\r') {
            escaped += "\\r";
        } else {
            escaped += c;
        }
    }
    return escaped;
}

// மதிப்பை JavaScript கோவையாக எழுதும் வடிவம்
inline std::string fn_any_to_json(const std::any& val) {
    std::string number = pozhil_number_text(val);
    if (!number.empty()) {
        return number;
    }
    if (const auto* text = std::any_cast<std::string>(&val)) {
        return "'" + pozhil_script_escape(*text, true) + "'";
    }
    std::string byte_text;
    if (const std::string* text = pozhil_text_view(val, byte_text)) {
        return "'" + *text + "'";
    }
    if (const auto* truth = std::any_cast<bool>(&val)) {
        return *truth ? "true" : "false";
    }
    if (const auto* list = std::any_cast<std::vector<std::any>>(&val)) {
        return pozhil_list_text(*list, fn_any_to_json);
    }
    if (const auto* map = std::any_cast<std::map<std::string, std::any>>(&val)) {
        std::string text = "{";
        const char* separator = "";
        for (const auto& entry : *map) {
            text += separator;
            text += "'" + pozhil_script_escape(entry.first, false) + "': ";
            text += fn_any_to_json(entry.second);
            separator = ", ";
        }
        return text + "}";
    }
    return "null";
}

// மதிப்பின் வகைப் பெயர்
inline std::string என்னவகை_கண்டுபிடி(const std::any& மதிப்பு) {
    const std::type_info& type = மதிப்பு.type();
    if (type == typeid(long long) || type == typeid(int)) {
        return "எண் ";
    }
    if (type == typeid(long double) || type == typeid(double)) {
        return "தசம_எண்";
    }
    if (type == typeid(std::string)) {
        return "உரை";
    }
    if (type == typeid(_PozhilChar) || type == typeid(char)) {
        return "எழுத்து";
    }
    if (type == typeid(bool)) {
        return "நிலை ";
    }
    if (type == typeid(std::vector<std::any>)) {
        return "பட்டியல்";
    }
    if (type == typeid(std::map<std::string, std::any>)) {
        return "அகராதி";
    }
    if (type == typeid(std::tm*)) {
        return "நேரம் ";
    }
    if (type == typeid(std::shared_ptr<_StructBase>)) {
        return "பொருள் ";
    }
    if (std::string(type.name()).find("function") != std::string::npos) {
        return "வினை";
    }
    return "தெரியாத_வகை (Unknown)";
}
