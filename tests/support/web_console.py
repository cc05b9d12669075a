"""What the compiler prints around the build of an application."""

from support import texts as t
from support.server import ADDRESS

RULE = "-" * 55 + "\n"
BEFORE_BUILD = (t.WEB_START + RULE + t.WEB_ANALYSIS + t.WEB_DONE + t.WEB_INTERFACE + t.WEB_DONE
                + t.WEB_PACKING + t.WEB_COMPILING)
SUCCESS = (t.WEB_SUCCESS + RULE + "🚀 " + t.GREEN + t.WEB_SERVING + t.RESET + "\n👉 " + t.CYAN + ADDRESS + t.RESET
           + "\n" + t.WEB_WATCHING + RULE + t.WEB_OPENING)
FAILURE = t.RED + t.WEB_FAILURE + t.RESET + "\n"
SECOND_FAILURE = t.RED + t.WEB_SECOND_FAILURE + t.RESET + "\n"
UPDATED = t.WEB_UPDATED + "\n"
