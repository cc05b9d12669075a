"""Which room of the source may use which.

A room is a folder; what lies in a folder below it without a line of its own belongs to it. Each room names the rooms whose
headers it may include besides its own. It may only name rooms that stand above it here, so no arrow leads back up.
"""

FLOOR = ["src/base", "src/diagnostics", "src/language"]
TREE = ["src/parser/tree", "src/parser"]
SYSTEM = ["src/base", "src/diagnostics", "src/platform"]

ROOMS = {
    # What generated programs are compiled with. The compiler shares its catalogue and its report.
    "உள்ளடக்கம்": [],
    # Compiled into the compiler and into the programs of the second edition.
    "src/report": [],
    # What programs of the second edition run on; it stands alone.
    "src/engine": ["src/report"],
    "src/base": [],
    "src/platform": [],
    "src/platform/linux": ["src/platform"],
    # It is compiled with the report for every generated program, which has nothing else of the house.
    "src/diagnostics/last_word": [],
    "src/diagnostics": ["உள்ளடக்கம்", "src/base", "src/report", "src/diagnostics/last_word"],
    "src/language": ["src/base"],
    "src/scanner": FLOOR,
    # What is a letter, and which signs are one, is told by the tables of Unicode.
    "src/scanner/second": [*FLOOR, "src/scanner"],
    "src/parser/tree": ["src/base", "src/language", "src/scanner"],
    "src/parser": [*FLOOR, "src/scanner", "src/scanner/second", "src/parser/tree"],
    "src/front_end": [*FLOOR, "src/scanner", "src/scanner/second", *TREE],
    "src/formatter": [*FLOOR, "src/scanner", "src/scanner/second", *TREE, "src/front_end"],
    "src/analysis": [*FLOOR, *TREE],
    "src/analysis/second": [*FLOOR, *TREE, "src/report", "src/front_end"],
    "src/emit": ["src/base"],
    # The text of a page, from its single values up to the whole.
    "src/generator/web/write": [*FLOOR, *TREE, "src/emit"],
    "src/generator/web/measure": [*FLOOR, *TREE, "src/generator/web/write"],
    "src/generator/web/layout": [*FLOOR, *TREE, "src/emit", "src/generator/web/write", "src/generator/web/measure"],
    "src/generator/web/widgets": [
        *FLOOR,
        *TREE,
        "src/emit",
        "src/generator/web/write",
        "src/generator/web/measure",
        "src/generator/web/layout",
    ],
    "src/generator/web/page": [
        *FLOOR,
        *TREE,
        "src/emit",
        "src/generator/web/write",
        "src/generator/web/measure",
        "src/generator/web/layout",
        "src/generator/web/widgets",
    ],
    # These are emitted, so they get by with what an installation has. That of pages knows no edition's values.
    "src/generator/web/runtime": [],
    "src/generator/first/runtime": ["உள்ளடக்கம்", "src/generator/web/runtime"],
    "src/generator/first": [
        *FLOOR,
        *TREE,
        "src/analysis",
        "src/emit",
        "src/generator/web/write",
        "src/generator/web/measure",
        "src/generator/web/page",
    ],
    "src/generator/second": [
        *FLOOR,
        "src/parser/tree",
        "src/emit",
        "src/analysis/second",
        "src/generator/web/write",
        "src/generator/web/page",
    ],
    "src/installation": ["உள்ளடக்கம்", "src/generator/first/runtime"],
    "src/driver/console": ["உள்ளடக்கம்", "src/report", *SYSTEM, "src/front_end"],
    "src/driver": [
        "உள்ளடக்கம்",
        *SYSTEM,
        "src/language",
        "src/scanner",
        *TREE,
        "src/front_end",
        "src/analysis",
        "src/analysis/second",
        "src/emit",
        "src/generator/first",
        "src/generator/second",
        "src/generator/web/page",
        "src/driver/console",
    ],
    "src/driver/native": [
        *SYSTEM, "src/diagnostics/last_word", "src/front_end", "src/driver/console", "src/driver",
    ],
    "src/driver/server": ["src/base", "src/platform"],
    "src/driver/web": [
        *SYSTEM,
        *TREE,
        "src/front_end",
        "src/emit",
        "src/generator/web/page",
        "src/driver/console",
        "src/driver",
        "src/driver/server",
    ],
    # The command beside the compiler, a tool for each of its words.
    "src/tools": [*SYSTEM, "src/driver/console"],
    "src/tools/publish": [
        *SYSTEM,
        "src/front_end",
        "src/generator/web/page",
        "src/driver/console",
        "src/driver",
        "src/driver/web",
        "src/tools",
    ],
    "src/tools/test": [
        *SYSTEM, "src/report", "src/front_end", "src/driver/console", "src/driver", "src/driver/native", "src/tools",
    ],
    "src/tools/check": [
        "உள்ளடக்கம்", *SYSTEM, "src/report", "src/language", "src/front_end", "src/analysis", "src/analysis/second",
        "src/driver/console", "src/driver", "src/tools", "src/tools/test",
    ],
    "src/tools/format": [*SYSTEM, "src/front_end", "src/formatter", "src/driver", "src/tools", "src/tools/check"],
    # It gives the same verdicts while sources are written.
    "src/tools/language_server": [
        *SYSTEM, "src/report", "src/language", "src/scanner", "src/scanner/second", "src/parser", "src/front_end",
        "src/formatter", "src/driver", "src/tools/check", "src/tools/test", "src/tools",
    ],
    "src/tools/run": ["src/base", "src/platform", "src/tools"],
    "src/tools/new": ["src/base", "src/tools"],
    "src/tools/explain": ["உள்ளடக்கம்", "src/base", "src/report", "src/language", "src/tools"],
    # main.cpp and tools_main.cpp alone: the order of the stages, and the beginning of the other command.
    "src": [
        *SYSTEM, "src/front_end", "src/driver/console", "src/driver", "src/driver/native", "src/driver/web", "src/tools",
    ],
}

# Who may know more than the C++ library: the operating system, the browser.
ROOMS_WITH_SYSTEM_HEADERS = {
    "src/platform/linux", "src/diagnostics/last_word", "src/generator/web/runtime", "src/generator/first/runtime",
    "src/installation", "src/report", "src/engine", "src/scanner/second",
    "src/tools/language_server",
}

# Drawing of pages, which comes from outside.
DRAWING_HEADERS = {"nanovg.c", "nanovg.h", "nanovg_gl.h", "nanosvg.h", "nanosvgrast.h"}
ROOMS_THAT_DRAW = {"src/generator/web/runtime", "src/installation"}

# Arrows that still lead upward, (file, what it includes). One that is gone must be struck out here.
EXCEPTIONS = set()
