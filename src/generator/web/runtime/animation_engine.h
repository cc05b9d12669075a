#pragma once

/// Easing curves and the progress of animations.
///
/// The curves are plain functions found through one table: a table of closures would more than double the time that
/// the user's program takes to compile.

#include "page_headers.h"
#include "web_text_layer.h"

// --- emitted from here ---

inline float lerp(float a, float b, float t) {
    return a + (b - a) * t;
}

inline float easeLinear(float t) {
    return t;
}

inline float easeInQuad(float t) {
    return t * t;
}

inline float easeOutQuad(float t) {
    return t * (2.0f - t);
}

inline float easeInOutQuad(float t) {
    return t < 0.5f ? 2.0f * t * t : (4.0f - 2.0f * t) * t - 1.0f;
}

inline float easeInCubic(float t) {
    return t * t * t;
}

inline float easeOutCubic(float t) {
    const float u = t - 1.0f;
    return u * u * u + 1.0f;
}

inline float easeInOutCubic(float t) {
    const float u = 2.0f * t - 2.0f;
    return t < 0.5f ? 4.0f * t * t * t : (t - 1.0f) * u * u + 1.0f;
}

// ஓர் அசைவூட்டத்தின் நிலை
struct AnimationState {
    double startTime = 0.0;
    bool isRunning = false;
    float currentProgress = 0.0f;
    bool hasTriggered = false;
};

std::map<unsigned long long, AnimationState> g_animationStates;

// அசைவூட்ட வளைவுகள்: t என்பது 0 முதல் 1 வரையான முன்னேற்றம்
namespace PozhilCurves {

const float PI = 3.14159265358979323846f;

inline float bounceOut(float t) {
    if (t < 1.0f / 2.75f) {
        return 7.5625f * t * t;
    }
    if (t < 2.0f / 2.75f) {
        t -= 1.5f / 2.75f;
        return 7.5625f * t * t + 0.75f;
    }
    if (t < 2.5f / 2.75f) {
        t -= 2.25f / 2.75f;
        return 7.5625f * t * t + 0.9375f;
    }
    t -= 2.625f / 2.75f;
    return 7.5625f * t * t + 0.984375f;
}

inline float bounceIn(float t) {
    return 1.0f - bounceOut(1.0f - t);
}

inline float bounceInOut(float t) {
    return t < 0.5f ? bounceIn(t * 2.0f) * 0.5f : bounceOut(t * 2.0f - 1.0f) * 0.5f + 0.5f;
}

inline float elasticIn(float t) {
    if (t == 0.0f || t == 1.0f) {
        return t;
    }
    return -std::pow(2.0f, 10.0f * t - 10.0f) * std::sin((10.0f * t - 10.75f) * 2.0f * PI / 3.0f);
}

inline float elasticOut(float t) {
    return std::pow(2.0f, -10.0f * t) * std::sin((10.0f * t - 0.75f) * 2.0f * PI / 3.0f) + 1.0f;
}

inline float elasticInOut(float t) {
    return t < 0.5f ? elasticIn(t * 2.0f) * 0.5f : elasticOut(t * 2.0f - 1.0f) * 0.5f + 0.5f;
}

inline float smoothStep(float t) {
    return t * t * (3.0f - 2.0f * t);
}

inline float quadOut(float t) {
    return 1.0f - (1.0f - t) * (1.0f - t);
}

inline float quadInOut(float t) {
    return t < 0.5f ? 2.0f * t * t : 1.0f - std::pow(-2.0f * t + 2.0f, 2.0f) / 2.0f;
}

inline float quadMiddle(float t) {
    return t < 0.5f ? t * t * 2.0f : 1.0f - std::pow(1.0f - t, 2.0f) * 2.0f;
}

inline float sineIn(float t) {
    return 1.0f - std::cos((t * PI) / 2.0f);
}

inline float sineOut(float t) {
    return std::sin((t * PI) / 2.0f);
}

inline float sineInOut(float t) {
    return -(std::cos(PI * t) - 1.0f) / 2.0f;
}

inline float cubicOut(float t) {
    return 1.0f - std::pow(1.0f - t, 3.0f);
}

inline float cubicInOut(float t) {
    return t < 0.5f ? 4.0f * t * t * t : 1.0f - std::pow(-2.0f * t + 2.0f, 3.0f) / 2.0f;
}

inline float quartIn(float t) {
    return t * t * t * t;
}

inline float quartOut(float t) {
    return 1.0f - std::pow(1.0f - t, 4.0f);
}

inline float quartInOut(float t) {
    return t < 0.5f ? 8.0f * t * t * t * t : 1.0f - std::pow(-2.0f * t + 2.0f, 4.0f) / 2.0f;
}

inline float quintIn(float t) {
    return t * t * t * t * t;
}

inline float quintOut(float t) {
    return 1.0f - std::pow(1.0f - t, 5.0f);
}

inline float quintInOut(float t) {
    return t < 0.5f ? 16.0f * std::pow(t, 5.0f) : 1.0f - std::pow(-2.0f * t + 2.0f, 5.0f) / 2.0f;
}

inline float expoIn(float t) {
    return t == 0.0f ? 0.0f : std::pow(2.0f, 10.0f * t - 10.0f);
}

inline float expoOut(float t) {
    return t == 1.0f ? 1.0f : 1.0f - std::pow(2.0f, -10.0f * t);
}

inline float expoInOut(float t) {
    if (t == 0.0f || t == 1.0f) {
        return t;
    }
    return t < 0.5f ? std::pow(2.0f, 20.0f * t - 10.0f) / 2.0f : (2.0f - std::pow(2.0f, -20.0f * t + 10.0f)) / 2.0f;
}

inline float circleIn(float t) {
    return 1.0f - std::sqrt(1.0f - std::pow(t, 2.0f));
}

inline float circleOut(float t) {
    return std::sqrt(1.0f - std::pow(t - 1.0f, 2.0f));
}

inline float circleInOut(float t) {
    return t < 0.5f ? (1.0f - std::sqrt(1.0f - std::pow(2.0f * t, 2.0f))) / 2.0f
                    : (std::sqrt(1.0f - std::pow(-2.0f * t + 2.0f, 2.0f)) + 1.0f) / 2.0f;
}

inline float backIn(float t) {
    const float s = 1.70158f;
    return t * t * ((s + 1.0f) * t - s);
}

inline float backOut(float t) {
    const float s = 1.70158f;
    t -= 1.0f;
    return t * t * ((s + 1.0f) * t + s) + 1.0f;
}

inline float backInOut(float t) {
    const float s = 1.70158f * 1.525f;
    t *= 2.0f;
    if (t < 1.0f) {
        return 0.5f * (t * t * ((s + 1.0f) * t - s));
    }
    t -= 2.0f;
    return 0.5f * (t * t * ((s + 1.0f) * t + s) + 2.0f);
}

inline float lightning(float t) {
    return std::pow(t, 2.5f);
}

inline float surge(float t) {
    return std::pow(t, 4.0f);
}

} // namespace PozhilCurves

using PozhilCurve = float (*)(float);

inline std::unordered_map<std::string, PozhilCurve> pozhil_curve_table() {
    struct NamedCurve {
        const char* name;
        PozhilCurve curve;
    };
    // வேறு வேறு பெயர்கள் ஒரே வளைவைக் குறிக்கலாம்
    static const NamedCurve named_curves[] = {
        {"சாதாரண", easeLinear},
        {"இயல்பான", PozhilCurves::smoothStep},
        {"மெது_தொடக்கம்", easeInQuad},
        {"மெது_முடிவு", PozhilCurves::quadOut},
        {"மெது_மாற்றம்", PozhilCurves::quadInOut},
        {"அலை_தொடக்கம்", PozhilCurves::sineIn},
        {"அலை_முடிவு", PozhilCurves::sineOut},
        {"அலை_மாற்றம்", PozhilCurves::sineInOut},
        {"அழுத்த_தொடக்கம்", easeInQuad},
        {"அழுத்த_முடிவு", PozhilCurves::quadOut},
        {"அழுத்த_மாற்றம்", PozhilCurves::quadInOut},
        {"கன_தொடக்கம்", easeInCubic},
        {"கன_முடிவு", PozhilCurves::cubicOut},
        {"கன_மாற்றம்", PozhilCurves::cubicInOut},
        {"வேக_தொடக்கம்", PozhilCurves::quartIn},
        {"வேக_முடிவு", PozhilCurves::quartOut},
        {"வேக_மாற்றம்", PozhilCurves::quartInOut},
        {"அதிவேக_தொடக்கம்", PozhilCurves::quintIn},
        {"அதிவேக_முடிவு", PozhilCurves::quintOut},
        {"அதிவேக_மாற்றம்", PozhilCurves::quintInOut},
        {"பாய்_தொடக்கம்", PozhilCurves::expoIn},
        {"பாய்_முடிவு", PozhilCurves::expoOut},
        {"பாய்_மாற்றம்", PozhilCurves::expoInOut},
        {"வட்ட_தொடக்கம்", PozhilCurves::circleIn},
        {"வட்ட_முடிவு", PozhilCurves::circleOut},
        {"வட்ட_மாற்றம்", PozhilCurves::circleInOut},
        {"பின்வாங்கல்_தொடக்கம்", PozhilCurves::backIn},
        {"பின்வாங்கல்_முடிவு", PozhilCurves::backOut},
        {"பின்வாங்கல்_மாற்றம்", PozhilCurves::backInOut},
        {"துள்ளல்_தொடக்கம்", PozhilCurves::bounceIn},
        {"துள்ளல்", PozhilCurves::bounceOut},
        {"துள்ளல்_மாற்றம்", PozhilCurves::bounceInOut},
        {"மீட்சி_தொடக்கம்", PozhilCurves::elasticIn},
        {"மீட்சி", PozhilCurves::elasticOut},
        {"மீட்சி_மாற்றம்", PozhilCurves::elasticInOut},
        {"வேகம்_குறை", PozhilCurves::quadOut},
        {"வேக_மெது", PozhilCurves::cubicInOut},
        {"நடு_மெது", PozhilCurves::quadMiddle},
        {"பாய்ந்து_அமர்", PozhilCurves::bounceOut},
        {"நிதான_முடிவு", PozhilCurves::sineOut},
        {"நிதான_தொடக்கம்", PozhilCurves::sineIn},
        {"மின்_வேகம்", PozhilCurves::lightning},
        {"சீறு", PozhilCurves::surge},
    };
    std::unordered_map<std::string, PozhilCurve> curves;
    for (const NamedCurve& named : named_curves) {
        curves[named.name] = named.curve;
    }
    return curves;
}

// பெயருக்கு உரிய வளைவு; தெரியாத பெயருக்குச் சீரான வளைவு
inline PozhilCurve பெறு_அசைவூட்ட_வளைவு(std::string name) {
    static const std::unordered_map<std::string, PozhilCurve> curves = pozhil_curve_table();
    const auto found = curves.find(name);
    return found == curves.end() ? easeLinear : found->second;
}

inline PozhilCurve getEasingFunction(std::string name) {
    if (name == "ease_in" || name == "easeIn" || name == "மெதுவா_தொடங்கு") {
        return easeInQuad;
    }
    if (name == "ease_out" || name == "easeOut" || name == "மெதுவா_முடி") {
        return easeOutQuad;
    }
    if (name == "ease_in_out" || name == "easeInOut" || name == "மெதுவா_தொடங்கி_முடி") {
        return easeInOutQuad;
    }
    if (name == "ease_in_cubic" || name == "easeInCubic") {
        return easeInCubic;
    }
    if (name == "ease_out_cubic" || name == "easeOutCubic") {
        return easeOutCubic;
    }
    if (name == "ease_in_out_cubic" || name == "easeInOutCubic") {
        return easeInOutCubic;
    }
    return பெறு_அசைவூட்ட_வளைவு(std::move(name));
}

// நிலை இன்னும் இல்லையென்றால் புதிதாக உருவாகும்.
inline AnimationState& pozhil_animation_state(unsigned long long nodeId) {
    return g_animationStates.insert({nodeId, AnimationState()}).first->second;
}

// கடந்த நேரத்தின்படி முன்னேற்றும்; முடிந்த அசைவூட்டம் மீண்டும் தொடங்காது.
inline void updateAnimationProgress(unsigned long long nodeId, float duration) {
    if (duration <= 0.0f) {
        return;
    }
    AnimationState& state = pozhil_animation_state(nodeId);
    if (state.currentProgress >= 1.0f) {
        return;
    }
    double now = 0.0;
#ifdef __EMSCRIPTEN__
    now = emscripten_get_now() / 1000.0;
#endif
    if (!state.isRunning) {
        state.startTime = now;
        state.isRunning = true;
    }
    state.currentProgress = std::min(1.0f, static_cast<float>((now - state.startTime) / duration));
}

inline float applyAnimation(unsigned long long nodeId, float duration, std::string curve, float startValue,
                            float targetValue) {
    updateAnimationProgress(nodeId, duration);
    const PozhilCurve ease = getEasingFunction(std::move(curve));
    return lerp(startValue, targetValue, ease(pozhil_animation_state(nodeId).currentProgress));
}
