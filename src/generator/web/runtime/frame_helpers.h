#pragma once

/// What the widgets of a page call in each frame: the progress of their animations, and the digits of a counting text.
/// The generator fences it off from the native compiler; nothing in it needs a browser.

#include "animation_engine.h"

// --- emitted from here ---

// உரையில் எண் நிற்கும் இடத்துக்கு முன்னும் பின்னும் உள்ளவை
struct TextParts {
    std::string prefix;
    std::string suffix;
};

inline TextParts splitText(const std::string& text) {
    const char* digits = "0123456789";
    const std::size_t first = text.find_first_of(digits);
    if (first == std::string::npos) {
        return {text, ""};
    }
    return {text.substr(0, first), text.substr(text.find_last_of(digits) + 1)};
}

// ஒரு சட்டத்துக்கு ஒருமுறை அழைக்கப்படும்; நொடிக்கு அறுபது சட்டங்கள்
inline float updateProgress(unsigned long long id, std::string condition, bool active, float y, float winH,
                            float durationMs) {
    const float step = durationMs > 0.0f ? (1.0f / 60.0f) / (durationMs / 1000.0f) : 1.0f;
    AnimationState& state = pozhil_animation_state(id);
    bool runs = active;
    if (condition == "தானாக" || condition == "auto") {
        // கீழ்விளிம்புக்குச் சற்று மேலே வந்ததும் தொடங்கும்; ஒருமுறை தெரிந்தால் போதும்
        const bool in_view = y > 0.0f && y < winH - 50.0f;
        state.hasTriggered = state.hasTriggered || in_view;
        runs = state.hasTriggered;
    }
    state.currentProgress =
        runs ? std::min(1.0f, state.currentProgress + step) : std::max(0.0f, state.currentProgress - step);
    return state.currentProgress;
}

inline float getCurveValue(std::string name, float t) {
    return getEasingFunction(std::move(name))(t);
}
