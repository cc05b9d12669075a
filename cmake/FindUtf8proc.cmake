# utf8proc, the rules of Unicode for letters: the target Utf8proc::utf8proc, and in POZHIL_UTF8PROC_ARCHIVE the static
# library, whose code goes into the archive for generated programs.

find_path(POZHIL_UTF8PROC_HEADERS utf8proc.h)
find_library(POZHIL_UTF8PROC_ARCHIVE libutf8proc.a)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(
    Utf8proc REQUIRED_VARS POZHIL_UTF8PROC_ARCHIVE POZHIL_UTF8PROC_HEADERS
    REASON_FAILURE_MESSAGE "scripts/setup-console installs it")

if(Utf8proc_FOUND AND NOT TARGET Utf8proc::utf8proc)
    add_library(Utf8proc::utf8proc STATIC IMPORTED)
    set_target_properties(Utf8proc::utf8proc PROPERTIES
        IMPORTED_LOCATION ${POZHIL_UTF8PROC_ARCHIVE}
        INTERFACE_INCLUDE_DIRECTORIES ${POZHIL_UTF8PROC_HEADERS}
        INTERFACE_COMPILE_DEFINITIONS UTF8PROC_STATIC)
endif()
