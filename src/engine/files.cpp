#include "engine/library.h"
#include "engine/raise.h"
#include "engine/running_faults.h"
#include "engine/text.h"
#include "engine/text_scan.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

namespace pozhil::engine {
namespace {

/// Why the operating system refuses, in the user's language.
const char* reasonOf(int error) {
    switch (error) {
    case ENOENT: return "அப்படி ஒரு கோப்போ அடைவோ இல்லை";
    case ENOTDIR: return "பாதையில் அடைவு அல்லாத ஒன்று நடுவில் உள்ளது";
    case EISDIR: return "அது ஓர் அடைவு";
    case EACCES:
    case EPERM: return "அனுமதி இல்லை";
    case EROFS: return "அங்கே படிக்க மட்டுமே முடியும்";
    case ENOSPC:
    case EDQUOT: return "வட்டில் இடம் தீர்ந்துவிட்டது";
    case ENAMETOOLONG: return "பெயர் மிக நீளமாக உள்ளது";
    case EMFILE:
    case ENFILE: return "மிகப் பல கோப்புகள் திறந்துள்ளன";
    default: return "இயங்குதளம் மறுத்துவிட்டது";
    }
}

const std::string& pathText(const Value& path, Place place) {
    if (!path.is(Tag::Text)) {
        raise(PATH_NOT_TEXT, place, {kindWord(path)});
    }
    return textBlock(path).bytes;
}

/// The path of a file that is to be read or written.
const std::string& checkedPath(const Value& path, Place place) {
    const std::string& text = pathText(path, place);
    const bool isRefused = text.empty() || text.find("//") != std::string::npos ||
                           text.find_first_of(std::string_view("*?\0", 3)) != std::string::npos;
    if (isRefused) {
        raise(BAD_PATH, place, {shortened(text)});
    }
    return text;
}

/// The path as the operating system takes it: what holds a zero byte names no file, rather than the one before it.
const char* systemPath(const Value& path, Place place) {
    const std::string& text = pathText(path, place);
    return text.find('\0') == std::string::npos ? text.c_str() : "";
}

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

Value write(const Value& path, const Value& value, const char* mode, Place place) {
    const std::string& name = checkedPath(path, place);
    const std::string content = textForm(value);
    File file(std::fopen(name.c_str(), mode));
    if (!file) {
        raise(FILE_NOT_WRITTEN, place, {name, reasonOf(errno)});
    }
    const bool isWritten = std::fwrite(content.data(), 1, content.size(), file.get()) == content.size();
    const int error = errno;
    // What is still buffered is written only now.
    if (std::fclose(file.release()) != 0 || !isWritten) {
        raise(FILE_NOT_WRITTEN, place, {name, reasonOf(isWritten ? errno : error)});
    }
    return Value();
}

} // namespace

Value writeFile(const Value& path, const Value& value, Place place) {
    return write(path, value, "w", place);
}

Value appendFile(const Value& path, const Value& value, Place place) {
    return write(path, value, "a", place);
}

Value readFile(const Value& path, Place place) {
    const std::string& name = checkedPath(path, place);
    const File file(std::fopen(name.c_str(), "r"));
    if (!file) {
        raise(FILE_NOT_OPENED, place, {name, reasonOf(errno)});
    }
    constexpr std::size_t PIECE = std::size_t{1} << 16U;
    std::string content;
    std::size_t size = 0;
    std::size_t read = 0;
    do {
        content.resize(size + PIECE);
        read = std::fread(content.data() + size, 1, PIECE, file.get());
        size += read;
    } while (read == PIECE);
    if (std::ferror(file.get()) != 0) {
        raise(FILE_NOT_READ, place, {name, reasonOf(errno)});
    }
    content.resize(size);
    return makeText(std::move(content));
}

bool fileExists(const Value& path, Place place) {
    return File(std::fopen(systemPath(path, place), "r")) != nullptr;
}

bool removeFile(const Value& path, Place place) {
    return std::remove(systemPath(path, place)) == 0;
}

} // namespace pozhil::engine
