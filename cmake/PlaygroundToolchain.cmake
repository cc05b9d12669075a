# How em++ compiles what checks programs on the page of the playground.

# Other exceptions, by JavaScript, would make every call of a function slower.
add_compile_options(-fwasm-exceptions)
add_link_options(-fwasm-exceptions -sALLOW_MEMORY_GROWTH=1)

# A module that a worker loads, and may load again. Its files are those of em++ in memory, of which there are none: without
# them, asking for one would seem to succeed. It makes no code from texts, so that the page can forbid that. The stack holds
# the deepest tree that the parsers let grow.
set(PLAYGROUND_LINK_OPTIONS
    -lembind -sMODULARIZE=1 -sEXPORT_NAME=createCompiler -sENVIRONMENT=worker -sDYNAMIC_EXECUTION=0 -sINITIAL_MEMORY=32MB
    -sTOTAL_STACK=16MB)

# All of utf8proc: the scanner asks for more than programs do.
enable_language(C)
set(utf8proc ${PROJECT_SOURCE_DIR}/third_party/utf8proc)
add_library(utf8proc STATIC ${utf8proc}/utf8proc.c)
target_compile_options(utf8proc PRIVATE -w)
target_include_directories(utf8proc SYSTEM PUBLIC ${utf8proc})
target_compile_definitions(utf8proc PUBLIC UTF8PROC_STATIC)
add_library(Utf8proc::utf8proc ALIAS utf8proc)
