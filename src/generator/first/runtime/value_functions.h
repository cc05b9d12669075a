#pragma once

/// What is done with values whose kind is known only at run time: comparison, arithmetic and conversion. The generator
/// puts the path of the source file in place of the marker.

#include "value_texts.h"

// --- emitted from here ---

// எண் மதிப்பானால் அதைப் படித்து true தரும்.
inline bool pozhil_read_number(const std::any& val, long double& number) {
    if (const auto* whole = std::any_cast<long long>(&val)) {
        number = static_cast<long double>(*whole);
    } else if (const auto* decimal = std::any_cast<long double>(&val)) {
        number = *decimal;
    } else if (const auto* count = std::any_cast<int>(&val)) {
        number = static_cast<long double>(*count);
    } else if (const auto* clock_reading = std::any_cast<double>(&val)) {
        number = static_cast<long double>(*clock_reading);
    } else {
        return false;
    }
    return true;
}

inline long double fn_get_double(const std::any& a) {
    long double number = 0.0L;
    pozhil_read_number(a, number);
    return number;
}

// ஒப்பீட்டுச் சொல்லின் குறி: '=', '!', '>', '<', 'G' (>=), 'L' (<=); வேறு சொல்லானால் 0.
// ஒவ்வோர் ஒப்பீட்டிலும் நடப்பதால், நீளமும் முதல் எழுத்தின் கடைசி பைட்டும் சுட்டும் ஒரே சொல்லோடு மட்டுமே ஒப்பிடுகிறது.
inline char pozhil_comparison_sign(const char* op) {
    const std::size_t length = std::strlen(op);
    const char* word = "";
    char sign = 0;
    switch (length) {
    case 1:
        word = op[0] == '>' ? ">" : "<";
        sign = word[0];
        break;
    case 2:
        word = op[0] == '=' ? "==" : op[0] == '!' ? "!=" : op[0] == '>' ? ">=" : "<=";
        sign = op[0] == '>' ? 'G' : op[0] == '<' ? 'L' : op[0];
        break;
    case sizeof("சமம்") - 1:
        word = "சமம்";
        sign = '=';
        break;
    case sizeof("சமமில்லை") - 1:
        word = "சமமில்லை";
        sign = '!';
        break;
    case sizeof("சிறிது") - 1:
        word = op[2] == '\x9A' ? "சிறிது" : "பெரிது";
        sign = op[2] == '\x9A' ? '<' : '>';
        break;
    case sizeof("சிறிதுசமம்") - 1:
        word = op[2] == '\x9A' ? "சிறிதுசமம்" : "பெரிதுசமம்";
        sign = op[2] == '\x9A' ? 'L' : 'G';
        break;
    default: return 0;
    }
    return std::memcmp(op, word, length) == 0 ? sign : '\0';
}

template <class Number> bool pozhil_numbers_compare(Number left, Number right, char sign) {
    switch (sign) {
    case '=': return left == right;
    case '!': return left != right;
    case '>': return left > right;
    case '<': return left < right;
    case 'G': return left >= right;
    case 'L': return left <= right;
    default: return false;
    }
}

// ஒப்பீடு. எண்ணோடு எண், உரையோடு உரை, நிலையோடு நிலை; மற்ற இணைகள் எல்லா ஒப்பீட்டிலும் பொய்.
inline bool fn_compare_any(const std::any& left, const std::any& right, const char* op) {
    const char sign = pozhil_comparison_sign(op);
    long double left_number = 0.0L, right_number = 0.0L;
    if (pozhil_read_number(left, left_number)) {
        return pozhil_read_number(right, right_number) && pozhil_numbers_compare(left_number, right_number, sign);
    }
    std::string left_byte, right_byte;
    const std::string* left_text = pozhil_text_view(left, left_byte);
    const std::string* right_text = pozhil_text_view(right, right_byte);
    if (left_text && right_text) {
        return (sign == '=' && *left_text == *right_text) || (sign == '!' && *left_text != *right_text);
    }
    const auto* left_truth = std::any_cast<bool>(&left);
    const auto* right_truth = std::any_cast<bool>(&right);
    if (left_truth && right_truth) {
        return (sign == '=' && *left_truth == *right_truth) || (sign == '!' && *left_truth != *right_truth);
    }
    return false;
}

inline bool fn_compare_any(const std::any& left, const std::any& right, std::string op) {
    return fn_compare_any(left, right, op.c_str());
}

// பட்டியல் குறியீடாகவும் சுழற்சி எல்லையாகவும் பயன்படும் முழு எண்
inline long long fn_index(long long val) {
    return val;
}

inline long long fn_index(int val) {
    return val;
}

inline long long fn_index(const std::any& val) {
    if (const auto* whole = std::any_cast<long long>(&val)) {
        return *whole;
    }
    if (const auto* count = std::any_cast<int>(&val)) {
        return *count;
    }
    if (const auto* decimal = std::any_cast<long double>(&val)) {
        return static_cast<long long>(*decimal);
    }
    throw std::runtime_error("பொருந்தாத தரவு வகை (Type Mismatch)!");
}

inline std::any fn_div_any(const std::any& left, const std::any& right) {
    const auto* left_whole = std::any_cast<long long>(&left);
    const auto* right_whole = std::any_cast<long long>(&right);
    if (left_whole && right_whole && *right_whole != 0) {
        return std::any(*left_whole / *right_whole);
    }
    long double dividend = 0.0L, divisor = 0.0L;
    const bool right_is_number = pozhil_read_number(right, divisor);
    if (right_is_number && divisor == 0.0L) {
        throw std::runtime_error("சுழியத்தால் (0) வகுக்க முடியாது!");
    }
    if (!right_is_number || !pozhil_read_number(left, dividend)) {
        throw std::bad_any_cast();
    }
    return std::any(dividend / divisor);
}

// கூட்டல்; இரண்டும் எண்கள் இல்லையென்றால் உரைகளாக இணைக்கும்.
inline std::any fn_add_any(const std::any& left, const std::any& right) {
    const auto* left_whole = std::any_cast<long long>(&left);
    const auto* right_whole = std::any_cast<long long>(&right);
    if (left_whole && right_whole) {
        return std::any(*left_whole + *right_whole);
    }
    long double left_number = 0.0L, right_number = 0.0L;
    if (pozhil_read_number(left, left_number) && pozhil_read_number(right, right_number)) {
        return std::any(left_number + right_number);
    }
    return std::any(fn_any_to_string(left) + fn_any_to_string(right));
}

// தொகுப்பின் கோப்பு: முதலில் நடப்புக் கோப்புறை, பிறகு பொதுத் தொகுப்புகள்
inline std::string fn_resolve_module_path(const std::string& module_name) {
    std::string file_name = module_name + ".பொழில்";
    if (std::ifstream(file_name).good()) {
        return file_name;
    }
    std::string system_path = "/usr/local/lib/Pozhil/தொகுப்புகள்/" + file_name;
    if (std::ifstream(system_path).good()) {
        return system_path;
    }
    throw std::runtime_error("தொகுப்பு (Module) கிடைக்கவில்லை!");
}

// உரையை எண்ணாக்கும்; உரை முழுவதும் எண்ணாக இருக்க வேண்டும்.
inline std::any fn_cast_to_number(const std::any& val, int line_num) {
    if (const auto* text = std::any_cast<std::string>(&val)) {
        std::size_t used = 0;
        try {
            const long long whole = std::stoll(*text, &used);
            if (used == text->size()) {
                return std::any(whole);
            }
        } catch (const std::exception&) {
            // முழு எண் அல்ல; தசம எண்ணாக இருக்கலாம்
        }
        try {
            const long double decimal = std::stold(*text, &used);
            if (used == text->size()) {
                return std::any(decimal);
            }
        } catch (const std::exception&) {
            // எண்ணே அல்ல
        }
    } else if (val.type() == typeid(long long) || val.type() == typeid(long double) || val.type() == typeid(int)) {
        return val;
    } else if (const auto* clock_reading = std::any_cast<double>(&val)) {
        return std::any(static_cast<long double>(*clock_reading));
    }
    pozhil_runtime_error("பொழி-302", "@SOURCE_PATH@", line_num);
    return std::any();
}

inline std::any fn_logic_not(const std::any& val) {
    if (const auto* truth = std::any_cast<bool>(&val)) {
        return std::any(!*truth);
    }
    if (const auto* whole = std::any_cast<long long>(&val)) {
        return std::any(*whole == 0);
    }
    if (const auto* count = std::any_cast<int>(&val)) {
        return std::any(*count == 0);
    }
    if (const auto* decimal = std::any_cast<long double>(&val)) {
        return std::any(*decimal == 0.0L);
    }
    if (const auto* text = std::any_cast<std::string>(&val)) {
        return std::any(text->empty());
    }
    if (const auto* letter = std::any_cast<_PozhilChar>(&val)) {
        return std::any(letter->val.empty());
    }
    if (const auto* byte = std::any_cast<char>(&val)) {
        return std::any(*byte == 0);
    }
    return std::any(false);
}
