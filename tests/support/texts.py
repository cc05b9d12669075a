"""Texts that the compiler and its programs show, each in one place for all tests. Those of the diagnostics stand in the
catalogue (catalogue.py), the words of the language in its tables (vocabulary.py)."""

# Command line
SOURCE_ENDING = ".பொழில்"
SECOND_EDITION_MARKER = "ஃ பொழில் 2"
DEFAULT_SOURCE = "முதன்மை.பொழில்"
FLAG_WEB = "--வலை"
FLAG_WATCH = "--கண்காணி"
FLAG_VOCABULARY = "--சொல்வளம்-json"
VERSION_SWITCHES = ("--பதிப்பு", "--version", "-v")
DEFAULT_SOURCE_NOTE = "ℹ️ கோப்புப் பெயர் தரப்படவில்லை. தானாகவே 'முதன்மை.பொழில்' எடுக்கப்படுகிறது...\n"
USAGE = (
    "பிழை: இயலவில்லை! \n"
    "பயன்பாடு: ./பொழி <கோப்புப்பெயர்.பொழில்>\n"
    "அல்லது 'முதன்மை.பொழில்' என்ற கோப்பை உருவாக்கவும்.\n"
)
NO_SOURCE = "பிழை: செல்லாத கோப்பு அல்லது கோப்பு இல்லை! ❌\n"
CANNOT_OPEN_BEFORE = "பிழை: '"
CANNOT_OPEN_BEHIND = "' என்ற கோப்பை திறக்க முடியவில்லை!"

# Version screen
VERSION_TITLE = "பொழில்"
VERSION_LABEL = "பதிப்பு"
VERSION_VALUE = ": மு-பதிப்பு - 0.2"
MAKER_LABEL = "உருவாக்கம்"
PLATFORM_LABEL = "தளம்"

# Start of a web build
WEB_START = "🚀 பொழில் - வலைத்தள உருவாக்கம் தொடங்குகிறது...\n"
WEB_ANALYSIS = "⌛ உங்கள் பொழில் ஆழமாகப் பகுப்பாய்வு செய்யப்படுகிறது...    "
WEB_DONE = "முடிந்தது\n"
WEB_INTERFACE = "🎨 பயனர் இடைமுகம் மற்றும் அசைவூட்டங்கள் செதுக்கப்படுகிறது... "
WEB_PACKING = "📦 ஊடகக் கோப்புகள் அனைத்தும் இணைக்கப்படுகிறது...        \n"
WEB_COMPILING = "🌍 நவீன வலைத்தளம் முழுமையாகத் தொகுக்கப்படுகிறது...      \n"
WEB_SUCCESS = "வெற்றி!\n"
WEB_SERVING = "உள்ளூர் சேவையகம் 6931-ல் கெத்தாக இயங்குகிறது..."
WEB_WATCHING = "👀 கோப்பு கண்காணிக்கப்படுகிறது... (நிறுத்த Ctrl+C அழுத்தவும்)\n"
WEB_OPENING = "🌍 பிரவுசர் தானாகவே திறக்கப்படுகிறது...\n"
WEB_FAILURE = "தோல்வி! குறியீட்டில் உள்ள பிழைகளைச் சரிசெய்யவும்."
WEB_SECOND_FAILURE = "தோல்வி! காரணம் மேலே உள்ளது."
WEB_COMPILATION_FAILED = "🚨 (பொழி-404): நிரலைத் தொகுப்பதில் (Compilation) சிக்கல்!"
WEB_COMPILATION_HINT = "💡 குறிப்பு: உமது தமிழ் நிரலின் கட்டமைப்பை (Syntax) ஒருமுறை சரிபார்க்கவும்."
WEB_CHANGE_NOTE = "\n🔄 மாற்றம் கண்டறியப்பட்டது! வலைத்தளம் புதுப்பிக்கப்படுகிறது..."
WEB_UPDATED = "✅ தளம் புதுப்பிக்கப்பட்டது! பிரவுசரில் பார்க்கவும்."
WEB_PORT_TAKEN = "🚨 6931 போர்ட்டில் சர்வரைத் தொடங்க முடியவில்லை!\n"
NO_WEB_APPLICATION_BEHIND = "' நிரலில் 'வலைதளம்' இல்லை! '--வலை' இல்லாமல் ஓட்டு.\n"
NO_MARKER_NOW = (
    "பிழை: முதல் வரியில் 'ஃ பொழில் 2' இப்போது இல்லை! அதைத் திரும்ப எழுது, அல்லது தொகுப்பியை மீண்டும் தொடங்கு.\n"
)
NO_APPLICATION_NOW = (
    "பிழை: நிரலில் 'வலைதளம்' இப்போது இல்லை! அதைத் திரும்ப எழுது, அல்லது தொகுப்பியை மீண்டும் தொடங்கு.\n"
)
OUR_FAULT = "இது பொழிலின் தவறு, உன் நிரலின் தவறு அல்ல"
TOLD_IN_THE_CONSOLE = "முனையத்தில்"
ENGINE_ARCHIVE = "libpozhil_engine_web.a"
WEB_GOODBYE = "\n👋 சேவையகம் நிறுத்தப்பட்டது \n"
TEMPLATE_MISSING_BEFORE = "பிழை: template.html கோப்பு கிடைக்கவில்லை! '"
TEMPLATE_MISSING_BEHIND = "/உள்ளடக்கம்/template.html' உள்ளதா எனச் சரிபார்க்கவும்.\n"
WEB_DIRECTORY = "வெளியீடு"

# Native build
WORK_DIRECTORY = ".நிலையற்ற"
EMITTED_NAME = "generated.cpp"
INCLUDE_DIRECTORY = "உள்ளடக்கம்"
CACHE_DIRECTORY = "திரட்டு"
MODULE_DIRECTORY = "தொகுப்புகள்"
SECOND_MODULE_DIRECTORY = "இரண்டாம்_பதிப்பு"
REPORTER_SOURCE = "src/error_handler.cpp"
LINK_RESULT = "pozhil_temp_app"
PROGRAM_NAME = "பொழில்_செயலி"
CACHED_OBJECT = "error_handler_native_windows.o"
EMITTED_WEB_NAME = "வலை_வெளியீடு.cpp"
WEB_RUNTIME_NAME = "வலை_இயக்கம்"
OUTPUT_ERROR_BEFORE = "Error: "
OUTPUT_ERROR_BEHIND = " என்ற கோப்பை உருவாக்க முடியவில்லை!"
CANNOT_WRITE_BEHIND = "' கோப்பில் எழுத முடியவில்லை! "
FILE_LIMIT = "கோப்புகளின் அளவுக்குக் கணினி வைத்த வரம்பை மீறுகிறது; அதை உயர்த்தவும் (ulimit -f).\n"
BANNER_NAME = "பொ ழி ல்"
BANNER_VERSION = "0.2-முதல்_பதிப்பு"
BANNER_SECOND_VERSION = "0.2-இரண்டாம்_பதிப்பு"
ANIMATION_BEFORE = "✨ பொழில் -> "
ANIMATION_BEHIND = " தொகுக்கப்படுகிறது..."
OBJECT_NOTE = "⚙️ சிஸ்டம் ஆப்ஜெக்ட் ஃபைல் புதிதாக உருவாக்கப்படுகிறது...\n"
BUILD_FAILED = "பிழை: தொகுப்பதில் சிக்கல்! உன்னோட கோடை ஒருவாட்டி பாரு மச்சி."
CHANGE_NOTE = "\n🔄 மாற்றம் கண்டறியப்பட்டது! புதுப்பிக்கப்படுகிறது..."

# Stages that fail without a report
SCANNER_FAILED = "🚨 (சொல் பகுப்பாய்வு): உமது நிரலில் ஏதோ பிழை உள்ளது. சரிபார்க்கவும்!"
PARSER_FAILED = "🚨 (இலக்கணப் பகுப்பாய்வு): நிரலின் கட்டமைப்பில் பிழை உள்ளது!"
GENERATOR_FAILED = "🚨 (குறியீடு உருவாக்கம்): குறியீட்டை உருவாக்குவதில் சிக்கல்!"
SCANNER_FAILED_IN_WATCH = "லெக்சர் பிழை: "
GENERATOR_FAILED_IN_WATCH = "ஜெனரேட்டர் பிழை: "

# What stands in for a source line that can't be read, at compile time and at run time
NO_SOURCE_TEXT = "(சோர்ஸ் கோடு கிடைக்கவில்லை)"
NO_SOURCE_FILE = "(கோப்பு கிடைக்கவில்லை)"

# Exceptions of running programs
DIVISION_BY_ZERO = "சுழியத்தால் (0) வகுக்க முடியாது!"

# Colours
RED = "\x1b[1;31m"
BLUE = "\x1b[1;34m"
CYAN = "\x1b[1;36m"
GOLD = "\x1b[1;93m"
GREEN = "\x1b[1;32m"
DIM = "\x1b[2;37m"
RESET = "\x1b[0m"

# Before each hint on a program that has run.
HINT_BEFORE = GOLD + "💡 குறிப்பு: " + RESET
DIM_GREY = "\x1b[38;5;242m"

# Box of a diagnostic
RULE = "-" * 60
BOX_TITLE = "  🚨 [ "
BOX_TITLE_MIDDLE = " ] :: "
BOX_FILE = "📂 கோப்பு  "
BOX_PLACE = "📍 இடம்    "
BOX_LINE = ": வரி "
BOX_FOUND = "  🔍 பிழை கண்டறியப்பட்ட பகுதி:"
BOX_MARGIN = "       |  "
BOX_MARKER = "        ▲"
BOX_DESCRIPTION = "       ╰── மச்சி, "
BOX_REMEDY = "  💡 சரி செய்யும் முறை:"
BOX_SAYING = "✨ "
SCANNER_CATEGORY = "சொல் பிழை"
PARSER_CATEGORY = "இலக்கணப் பிழை"
GENERATOR_CATEGORY = "பொருள் பிழை"
RUNTIME_CATEGORY = "பொருள் பிழை (இயக்கநேரம்)"
SECOND_BOX_CORNER = "╰── மச்சி, "
SECOND_BOX_WAY = "  🧭 இங்கே வந்த வழி:"
SOURCE_MISSING = "(கோப்பு கிடைக்கவில்லை)"
CODE_PREFIX = "பொழி-"


def beyond_the_file_limit(path):
    """What is told of an output text that is larger than the system allows."""
    return CANNOT_OPEN_BEFORE + str(path) + CANNOT_WRITE_BEHIND + FILE_LIMIT
