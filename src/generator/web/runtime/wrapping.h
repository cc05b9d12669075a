#pragma once

/// The room that texts wrap in, and where their lines end. Nothing in it needs a browser: who uses it tells what fits.

#include "page_headers.h"

// --- emitted from here ---

// சூழ்ந்த விட்ஜெட் தரும் அகலமும், அது திணிக்கும் அகலமும்; எதையும் திணிக்காவிட்டால் -1
float pozhil_room_width = 0.0f;
float pozhil_imposed_width = -1.0f;

// ஒரு விட்ஜெட்டுக்கு இருக்கும் இடம், அதை வரையும்போதும் அளக்கும்போதும்
class PozhilRoom {
public:
    PozhilRoom(float width, float imposed) : width_(pozhil_room_width), imposed_(pozhil_imposed_width) {
        pozhil_room_width = width;
        pozhil_imposed_width = imposed;
    }
    ~PozhilRoom() {
        pozhil_room_width = width_;
        pozhil_imposed_width = imposed_;
    }
    PozhilRoom(const PozhilRoom&) = delete;
    PozhilRoom& operator=(const PozhilRoom&) = delete;

private:
    float width_;
    float imposed_;
};

template <class Size> float pozhil_in_room(float width, float imposed, Size size) {
    const PozhilRoom room(width, imposed);
    return size();
}

// விட்ஜெட்டின் அகலம்: திணிக்கப்பட்டது, இல்லையெனில் தரப்பட்டது
inline float pozhil_own_width(float given) {
    return pozhil_imposed_width > 0.0f ? pozhil_imposed_width : given;
}

// மற்றவை போக மீதியில் ஒரு பங்கு
inline float pozhil_share_of_room(float whole, float taken, float shares) {
    return std::max(0.0f, whole - taken) / std::max(1.0f, shares);
}

// கட்டத்தின் ஓர் அறை; குறுகிய சாளரத்தில் அறைகள் குறைவு
inline float pozhil_grid_cell(float whole, int columns, float gap, float windowWidth) {
    if (columns >= 3 && windowWidth <= 768.0f) {
        columns = 2;
    }
    if (windowWidth <= 480.0f) {
        columns = 1;
    }
    return (whole - (float)(columns - 1) * gap) / (float)columns;
}

// உரையின் ஒரு வரி: எந்த பைட்டிலிருந்து எதுவரை
struct TextLine {
    std::size_t begin;
    std::size_t end;
};

// உரையை வரிகளாக உடைக்கும்: இடைவெளிகளில்; வரியில் அடங்காத சொல்லை எழுத்துகளுக்கு இடையில்.
// fits(begin, end): அப்பகுதி ஒரு வரியில் அடங்குமா? letterEnd(begin): அங்கே தொடங்கும் எழுத்து எங்கே முடிகிறது?
template <class Fits, class LetterEnd> class LineBreaker {
public:
    LineBreaker(const std::string& text, Fits fits, LetterEnd letterEnd)
        : text_(text), fits_(fits), letterEnd_(letterEnd) {}

    std::vector<TextLine> lines() {
        std::size_t begin = 0;
        for (std::size_t end = text_.find('\n'); end != std::string::npos; end = text_.find('\n', begin)) {
            breakParagraph(begin, end);
            begin = end + 1;
        }
        breakParagraph(begin, text_.size());
        return std::move(lines_);
    }

private:
    static constexpr std::size_t NONE = (std::size_t)-1;

    bool isSpace(std::size_t at) const { return text_[at] == ' ' || text_[at] == '\t' || text_[at] == '\r'; }

    std::size_t skipSpaces(std::size_t at, std::size_t end) const {
        while (at < end && isSpace(at)) {
            ++at;
        }
        return at;
    }

    std::vector<std::size_t> wordEnds(std::size_t begin, std::size_t end) const {
        std::vector<std::size_t> ends;
        for (std::size_t at = skipSpaces(begin, end); at < end; at = skipSpaces(at, end)) {
            while (at < end && !isSpace(at)) {
                ++at;
            }
            ends.push_back(at);
        }
        return ends;
    }

    std::vector<std::size_t> letterEnds(std::size_t begin, std::size_t end) const {
        std::vector<std::size_t> ends;
        for (std::size_t at = begin; at < end;) {
            at = std::min(end, std::max(at + 1, letterEnd_(at)));
            ends.push_back(at);
        }
        return ends;
    }

    // begin-இல் தொடங்கும் வரி முடியக்கூடிய கடைசி இடம்; ends[from] வரையே அடங்காவிட்டால் NONE
    std::size_t lastFitting(std::size_t begin, const std::vector<std::size_t>& ends, std::size_t from) const {
        if (!fits_(begin, ends[from])) {
            return NONE;
        }
        std::size_t last = from;
        std::size_t step = 1;
        while (last + step < ends.size() && fits_(begin, ends[last + step])) {
            last += step;
            step *= 2;
        }
        for (; step > 0; step /= 2) {
            if (last + step < ends.size() && fits_(begin, ends[last + step])) {
                last += step;
            }
        }
        return last;
    }

    void breakParagraph(std::size_t begin, std::size_t end) {
        const std::vector<std::size_t> ends = wordEnds(begin, end);
        if (ends.empty()) {
            lines_.push_back({begin, begin});
        }
        for (std::size_t word = 0; word < ends.size();) {
            const std::size_t last = lastFitting(begin, ends, word);
            if (last != NONE) {
                lines_.push_back({begin, ends[last]});
                word = last + 1;
                begin = skipSpaces(ends[last], end);
                continue;
            }
            begin = breakWord(begin, ends[word]);
            if (begin == ends[word]) {
                ++word;
                begin = skipSpaces(begin, end);
            }
        }
    }

    // முழு வரிகள் போக மீதி தொடங்கும் இடம். ஒரு வரியில் ஓர் எழுத்தாவது நிற்கும்
    std::size_t breakWord(std::size_t begin, std::size_t end) {
        const std::vector<std::size_t> ends = letterEnds(begin, end);
        for (std::size_t letter = 0; letter < ends.size(); ++letter) {
            const std::size_t last = lastFitting(begin, ends, letter);
            if (last + 1 == ends.size()) {
                return begin;
            }
            letter = last == NONE ? letter : last;
            lines_.push_back({begin, ends[letter]});
            begin = ends[letter];
        }
        return begin;
    }

    const std::string& text_;
    Fits fits_;
    LetterEnd letterEnd_;
    std::vector<TextLine> lines_;
};
