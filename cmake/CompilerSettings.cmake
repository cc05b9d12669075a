# How this repository's own code is compiled.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)

option(POZHIL_SANITIZERS "Build with the address and undefined-behaviour sanitizers" OFF)
if(POZHIL_SANITIZERS)
    set(sanitizer_flags -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${sanitizer_flags})
    add_link_options(${sanitizer_flags})
endif()
