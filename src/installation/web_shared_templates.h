/// The template instantiations that every web program uses, for the precompiled headers of em++. Instantiating them
/// anew, and generating their code, took half of the time in which a program is compiled.
///
/// The native twin lists them by name (உள்ளடக்கம்/shared_templates.h). The library of em++ keeps nearly all members out
/// of explicit instantiation, so here they are used instead; nothing runs these functions. The text stands after that
/// of error_record.h.
///
/// Not to be instantiated here: `any_cast` of a decimal other than from a pointer, which the runtime specialises. What
/// the precompiled headers have instantiated can't be specialised any more, and the program is compiled without them.

#include <algorithm>
#include <any>
#include <chrono>
#include <ctime>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <unordered_map>
#include <utility>
#include <vector>

/// The base of all objects, defined in the emitted runtime.
struct _StructBase;

namespace pozhil_shared {

template <typename Map> void useMap(Map& map, typename Map::key_type key, typename Map::mapped_type value) {
    map[key] = value;
    map[std::move(key)] = std::move(value);
    Map copy(map);
    copy = map;
    copy = std::move(map);
    Map moved(std::move(copy));
    const Map& fixed = moved;
    for (const auto& entry : fixed) {
        moved.count(entry.first);
    }
    for (auto& entry : moved) {
        moved.erase(entry.first);
    }
    if (fixed.find(key) != fixed.end() && moved.find(key) != moved.end() && !fixed.empty() && fixed.size() != 0) {
        moved.erase(moved.find(key));
    }
    moved.clear();
}

template <typename Mapped> void useNames(Mapped value) {
    std::map<std::string, Mapped> map;
    map["name"] = value;
    useMap(map, "name", std::move(value));
}

template <typename Element> void useVector(std::vector<Element> list, Element element) {
    list.push_back(element);
    list.push_back(std::move(element));
    std::vector<Element> copy(list);
    copy = list;
    copy = std::move(list);
    std::vector<Element> moved(std::move(copy));
    const std::vector<Element>& fixed = moved;
    for (const auto& entry : fixed) {
        list.push_back(entry);
    }
    for (auto& entry : moved) {
        list.push_back(std::move(entry));
    }
    list = {fixed[0], fixed.at(0), moved[0], moved.at(0), moved.back()};
    moved.insert(moved.begin(), fixed[0]);
    moved.erase(moved.begin());
    if (!fixed.empty() && fixed.size() != 0) {
        moved.pop_back();
    }
    moved.reserve(list.size());
    moved.clear();
    std::reverse(list.begin(), list.end());
}

template <typename Value> void useAny(std::any& any, Value value) {
    any = value;
    any = std::any(value);
    std::any made(std::move(value));
    any = std::move(made);
    const std::any& fixed = any;
    std::any_cast<Value&>(any) = *std::any_cast<Value>(&any);
    any = *std::any_cast<Value>(&fixed);
    any = std::any_cast<const Value&>(fixed);
    any = std::any_cast<Value>(fixed);
    any = std::any_cast<Value>(any);
    any = std::any_cast<Value>(std::move(any));
}

inline void useDecimal(std::any& any, long double value) {
    any = value;
    any = std::any(value);
    any = std::any(1.0L);
    const std::any& fixed = any;
    any = *std::any_cast<long double>(&fixed) + *std::any_cast<long double>(&any);
}

inline void useContainers(std::any& any, std::map<std::string, std::any>& map, const std::vector<std::any>& list) {
    map = {{"name", any}};
    useNames(any);
    useNames(std::string());
    useNames(true);
    useNames(1);
    useNames(1.0F);
    std::map<int, std::function<void()>> callbacks;
    useMap(callbacks, 1, {});
    std::unordered_map<std::string, float (*)(float)> curves = {{"name", nullptr}};
    curves = std::unordered_map<std::string, float (*)(float)>();
    useMap(curves, "name", nullptr);
    std::unordered_map<std::string, பிழைதகவல்> catalogue;
    useMap(catalogue, "name", {});
    catalogue.at("name") = const_cast<const std::unordered_map<std::string, பிழைதகவல்>&>(catalogue).at("name");
    std::set<std::string> names = {"name"};
    if (names.insert(std::string()).second && names.count("name") != 0 && names.find("name") != names.end()) {
        names.erase("name");
    }
    names.clear();
    useVector(list, any);
    useVector({}, std::function<void()>());
    useVector({}, std::string());
    useVector({}, static_cast<unsigned char>(1));
    std::vector<unsigned char> pixels(list.size());
}

inline void useValues(std::any& any, const std::map<std::string, std::any>& map, const std::vector<std::any>& list) {
    useAny(any, 1LL);
    useAny(any, 1);
    useAny(any, true);
    useAny(any, 'a');
    useAny(any, 1.0);
    useAny(any, 1.0F);
    useDecimal(any, 1.0L);
    useAny(any, std::string());
    useAny(any, list);
    useAny(any, map);
    useAny(any, static_cast<std::tm*>(nullptr));
    useAny(any, std::shared_ptr<_StructBase>());
    useAny(any, std::function<std::any()>());
    useAny(any, std::function<std::any(std::any)>());
    useAny(any, std::function<std::any(std::any, std::any)>());
}

inline void useTexts(std::string text, const char* literal, std::map<std::string, std::any>& map) {
    text = literal;
    text += text + literal + text;
    text = literal + text + (std::move(text) + literal) + (literal + std::move(text));
    text.assign(literal).insert(0, text);
    if (text == literal || text != literal || text == text || text < text) {
        text = std::to_string(1LL) + std::to_string(1) + std::to_string(1.0) + std::to_string(1.0L);
    }
    std::ostringstream stream;
    stream << literal << text << std::fixed << std::setprecision(2) << 1 << 1LL << 1.0 << 1.0L << map.size();
    std::ifstream file(text);
    while (std::getline(file, text)) {
        std::cout << text << literal << stream.str() << std::endl;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

} // namespace pozhil_shared
