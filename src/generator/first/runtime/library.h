#pragma once

/// The language's library: files, text, time, input, lists, maps and objects.

#include "value_functions.h"

// --- emitted from here ---

// கோப்புகள்
inline bool pozhil_path_refused(const std::string& path) {
    return path.empty() || path.find("//") != std::string::npos || path.find_first_of("*?") != std::string::npos;
}

inline std::any fn_கோப்பு_எழுது(std::string path, std::string content, std::string file, int line) {
    if (pozhil_path_refused(path)) {
        pozhil_runtime_error("பொழி-342", file, line);
    }
    std::ofstream output(path);
    if (!output.is_open()) {
        pozhil_runtime_error("பொழி-343", file, line);
    }
    output << content;
    return std::any();
}

inline std::string fn_கோப்பு_படி(std::string path, std::string file, int line) {
    if (pozhil_path_refused(path)) {
        pozhil_runtime_error("பொழி-342", file, line);
    }
    std::ifstream input(path);
    if (!input.is_open()) {
        pozhil_runtime_error("பொழி-341", file, line);
    }
    std::stringstream content;
    content << input.rdbuf();
    input.peek(); // வாசிப்புத் தோல்வி இங்கேதான் தெரியும்
    if ((input.fail() && !input.eof()) || path == "/dev/null") {
        pozhil_runtime_error("பொழி-344", file, line);
    }
    return content.str();
}

inline std::any fn_கோப்பு_சேர்(std::string path, std::string content, std::string file, int line) {
    if (pozhil_path_refused(path)) {
        pozhil_runtime_error("பொழி-342", file, line);
    }
    std::ofstream output(path, std::ios::app);
    if (!output.is_open()) {
        pozhil_runtime_error("பொழி-343", file, line);
    }
    output << content;
    return std::any();
}

inline bool fn_கோப்பு_அழி(std::string path) {
    return std::remove(path.c_str()) == 0;
}

inline bool fn_கோப்பு_உள்ளதா(std::string path) {
    return std::ifstream(path).good();
}

// உரை
inline std::vector<std::any> fn_பிளவு(std::string s, std::string delim) {
    std::vector<std::any> pieces;
    std::size_t start = 0;
    std::size_t end = 0;
    while ((end = s.find(delim, start)) != std::string::npos) {
        pieces.push_back(std::any(s.substr(start, end - start)));
        start = end + delim.length();
    }
    pieces.push_back(std::any(s.substr(start)));
    return pieces;
}

inline std::string fn_பதில்(std::string s, std::string find, std::string replace) {
    std::string result;
    std::size_t start = 0;
    std::size_t end = 0;
    while ((end = s.find(find, start)) != std::string::npos) {
        result.append(s, start, end - start);
        result.append(replace);
        start = end + find.length();
    }
    result.append(s, start, std::string::npos);
    return result;
}

inline std::string fn_பெரியஎ(std::string s) {
    for (char& c : s) {
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    }
    return s;
}

inline std::string fn_சிறியஎ(std::string s) {
    for (char& c : s) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return s;
}

inline std::string fn_சுத்தம்(std::string s) {
    const char* blanks = " \t\n\r\f\v";
    const std::size_t first = s.find_first_not_of(blanks);
    if (first == std::string::npos) {
        return "";
    }
    return s.substr(first, s.find_last_not_of(blanks) - first + 1);
}

// நேரம்
inline std::string fn_நேரம்_உருவாக்கு(std::tm* t, const char* format) {
    char buffer[80];
    return std::string(buffer, std::strftime(buffer, sizeof(buffer), format, t));
}

inline std::string fn_தேதி(std::tm* t) {
    return fn_நேரம்_உருவாக்கு(t, "%d-%m-%Y");
}

inline std::string fn_நேரம்(std::tm* t) {
    return fn_நேரம்_உருவாக்கு(t, "%H:%M:%S");
}

inline std::string fn_முழுவதும்(std::tm* t) {
    return fn_நேரம்_உருவாக்கு(t, "%d-%m-%Y %H:%M:%S");
}

// உள்ளீடு
inline std::string fn_உள்ளீடு(std::string prompt) {
    std::cout << prompt;
    std::string line;
    std::getline(std::cin, line);
    return line;
}

// பட்டியல், அகராதி
inline int fn_நீளம்(const std::any& val) {
    if (const auto* text = std::any_cast<std::string>(&val)) {
        return static_cast<int>(text->length());
    }
    if (val.type() == typeid(_PozhilChar) || val.type() == typeid(char)) {
        return 1;
    }
    if (const auto* list = std::any_cast<std::vector<std::any>>(&val)) {
        return static_cast<int>(list->size());
    }
    if (const auto* map = std::any_cast<std::map<std::string, std::any>>(&val)) {
        return static_cast<int>(map->size());
    }
    return static_cast<int>(pozhil_number_text(val).length());
}

// மதிப்பையே பெறும் வடிவம். வார்ப்புரு என்பதால் fn_நீளம்(x) எப்போதும் நகலெடுக்காத மேலுள்ள வடிவத்தையே அழைக்கும்.
template <class = void> int fn_நீளம்(std::any val) {
    return fn_நீளம்(static_cast<const std::any&>(val));
}

// x[key] என்ற வாசிப்பு. பட்டியல் முழுவதையும் நகலெடுக்காமல் ஓர் உறுப்பை மட்டும் தரும்.
inline std::any fn_எடு(const std::any& obj, const std::any& key, const char* file, int line) {
    if (const auto* index = std::any_cast<long long>(&key)) {
        if (const auto* text = std::any_cast<std::string>(&obj)) {
            if (*index < 0 || *index >= static_cast<long long>(text->length())) {
                return std::any(std::string());
            }
            return std::any(_PozhilChar{std::string(1, (*text)[static_cast<std::size_t>(*index)])});
        }
        if (const auto* list = std::any_cast<std::vector<std::any>>(&obj)) {
            if (*index < 0 || *index >= static_cast<long long>(list->size())) {
                pozhil_runtime_error("பொழி-311", file, line);
                return std::any();
            }
            return (*list)[static_cast<std::size_t>(*index)];
        }
    }
    if (const auto* map = std::any_cast<std::map<std::string, std::any>>(&obj)) {
        if (const auto* name = std::any_cast<std::string>(&key)) {
            const auto found = map->find(*name);
            if (found == map->end()) {
                pozhil_runtime_error("பொழி-312", file, line);
                return std::any();
            }
            return found->second;
        }
    }
    pozhil_runtime_error("பொழி-313", file, line);
    return std::any();
}

inline std::any fn_எடு(std::any obj, std::any key, std::string file, int line) {
    return fn_எடு(obj, key, file.c_str(), line);
}

// x[key] = மதிப்பு என்ற எழுத்து. அகராதியில் இல்லாத சாவி புதிதாகச் சேரும்.
inline std::any& fn_index_ref(std::any& obj, const std::any& key, const char* file, int line) {
    static std::any dummy;
    if (auto* list = std::any_cast<std::vector<std::any>>(&obj)) {
        const long long index = fn_index(key);
        if (index < 0 || index >= static_cast<long long>(list->size())) {
            pozhil_runtime_error("பொழி-311", file, line);
            return dummy;
        }
        return (*list)[static_cast<std::size_t>(index)];
    }
    if (auto* map = std::any_cast<std::map<std::string, std::any>>(&obj)) {
        const auto* name = std::any_cast<std::string>(&key);
        return (*map)[name ? *name : fn_any_to_string(key)];
    }
    pozhil_runtime_error("பொழி-313", file, line);
    return dummy;
}

inline std::any& fn_index_ref(std::any& obj, std::any&& key) {
    return fn_index_ref(obj, key, "", 0);
}

inline std::any& fn_index_ref(std::any& obj, const std::any& key, std::string file = "", int line = 0) {
    return fn_index_ref(obj, key, file.c_str(), line);
}

inline std::any fn_index_ref(std::any&& obj, const std::any& key, std::string file = "", int line = 0) {
    return fn_index_ref(obj, key, file.c_str(), line);
}

// பொருளின் பண்புகள்
inline std::any fn_get_property(const std::shared_ptr<_StructBase>& obj, const char* prop, const char* file, int line) {
    const std::map<std::string, std::any>& properties = obj->properties;
    const auto found = properties.find(prop);
    if (found == properties.end()) {
        pozhil_runtime_error("பொழி-324", file, line);
        return std::any();
    }
    return found->second;
}

inline std::any fn_get_property(std::shared_ptr<_StructBase> obj, std::string prop, std::string file, int line) {
    return fn_get_property(obj, prop.c_str(), file.c_str(), line);
}

inline std::any fn_set_property(const std::any& obj, const char* prop, const std::any& val, const char* file,
                                int line) {
    const auto* object = std::any_cast<std::shared_ptr<_StructBase>>(&obj);
    if (!object) {
        pozhil_runtime_error("பொழி-324", file, line);
        return std::any();
    }
    (*object)->properties[prop] = val;
    return val;
}

inline std::any fn_set_property(std::any obj, std::string prop, std::any val, std::string file, int line) {
    return fn_set_property(obj, prop.c_str(), val, file.c_str(), line);
}

inline long long fn_மேல்எண்(long double val) {
    return static_cast<long long>(std::ceil(val));
}

inline long long fn_கீழ்எண்(long double val) {
    return static_cast<long long>(std::floor(val));
}

inline std::any fn_நீக்கு(std::any& lst_any, const std::any& item, std::string file, int line) {
    auto* list = std::any_cast<std::vector<std::any>>(&lst_any);
    if (!list) {
        pozhil_runtime_error("பொழி-304", file, line);
        return std::any();
    }
    for (auto element = list->begin(); element != list->end(); ++element) {
        if (fn_compare_any(*element, item, "==")) {
            list->erase(element);
            return std::any();
        }
    }
    pozhil_runtime_error("பொழி-314", file, line);
    return std::any();
}

inline std::any fn_நீக்கு(std::any&& lst_any, const std::any& item, std::string file, int line) {
    return fn_நீக்கு(lst_any, item, file, line);
}
