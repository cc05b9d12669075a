// What the editor itself says, in Tamil.

export const WORDS = {
    'Control character': 'கட்டுப்பாட்டுக் குறி',
    'Find': 'தேடு',
    'Replace': 'மாற்று',
    'next': 'அடுத்தது',
    'previous': 'முந்தையது',
    'all': 'எல்லாம்',
    'match case': 'பெரிய, சிறிய எழுத்து வேறு',
    'by word': 'முழுச் சொல்',
    'regexp': 'சுருக்கக் கோவை',
    'replace': 'மாற்று',
    'replace all': 'எல்லாவற்றையும் மாற்று',
    'close': 'மூடு',
    'current match': 'இப்போதைய இடம்',
    'on line': 'வரி',
    'Go to line': 'வரிக்குச் செல்',
    'go': 'செல்',
    'Diagnostics': 'பிழைகள்',
    'No diagnostics': 'பிழை இல்லை',
};
