# `cpack --preset debian` puts the installation into a Debian package: itself below /usr/lib/pozhil, links in /usr/bin, and
# in /usr/share what shells, manuals and desktops look for.

set(packaging ${PROJECT_SOURCE_DIR}/packaging)
set(packaged ${PROJECT_BINARY_DIR}/generated/packaged)

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/generated/links)
foreach(name பொழி பொழில் pozhil)
    set(link ${PROJECT_BINARY_DIR}/generated/links/${name})
    file(CREATE_LINK ../lib/pozhil/${name} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION . COMPONENT link EXCLUDE_FROM_ALL)
endforeach()

# install_shared(<file> <destination> [<name>]): a file of /usr/share.
function(install_shared file destination)
    set(rename)
    if(ARGC GREATER 2)
        set(rename RENAME ${ARGV2})
    endif()
    install(FILES ${file} DESTINATION ${destination} COMPONENT share EXCLUDE_FROM_ALL ${rename})
endfunction()

# install_link(<target> <destination> <name>): a link beside what it leads to.
function(install_link target destination name)
    set(link ${packaged}/${destination}/${name})
    file(MAKE_DIRECTORY ${packaged}/${destination})
    file(CREATE_LINK ${target} ${link} SYMBOLIC)
    install_shared(${link} ${destination})
endfunction()

# compress(<file> <source> <command>...): what the command writes, or else the source, as gzip packs it for Debian.
set(compressed)
function(compress file source)
    get_filename_component(folder ${file} DIRECTORY)
    file(MAKE_DIRECTORY ${folder})
    set(command ${ARGN})
    if(NOT command)
        set(command cat ${source})
    endif()
    add_custom_command(
        OUTPUT ${file}
        COMMAND sh -c "output=$1 && shift && \"$@\" | gzip -9n >\"$output\"" sh ${file} ${command}
        DEPENDS ${source} pozhil_command ${packaging}/man/write-page
        VERBATIM)
    list(APPEND compressed ${file})
    set(compressed ${compressed} PARENT_SCOPE)
endfunction()

foreach(language en ta)
    set(pages ${packaging}/man/${language})
    set(folder man/${language}/man1)
    if(language STREQUAL en)
        set(pages ${packaging}/man)
        set(folder man/man1)
    endif()
    compress(
        ${packaged}/${folder}/pozhil.1.gz ${pages}/pozhil.1 ${packaging}/man/write-page ${pages}/pozhil.1
        $<TARGET_FILE:pozhil_command> ${language})
    compress(${packaged}/${folder}/பொழி.1.gz ${pages}/பொழி.1)
    install_shared(${packaged}/${folder}/pozhil.1.gz ${folder})
    install_shared(${packaged}/${folder}/பொழி.1.gz ${folder})
    install_link(pozhil.1.gz ${folder} பொழில்.1.gz)
endforeach()

# Shells look for completions by the name of the command.
install_shared(${packaging}/completions/pozhil.bash bash-completion/completions pozhil)
install_link(pozhil bash-completion/completions பொழில்)
install_link(pozhil bash-completion/completions பொழி)
install_shared(${packaging}/completions/_pozhil zsh/vendor-completions)
install_shared(${packaging}/completions/pozhil.fish fish/vendor_completions.d)
install_link(pozhil.fish fish/vendor_completions.d பொழில்.fish)
install_link(pozhil.fish fish/vendor_completions.d பொழி.fish)

install_shared(${packaging}/desktop/pozhil.xml mime/packages)
install_shared(${packaging}/desktop/pozhil.desktop applications)
install_shared(${packaging}/desktop/text-x-pozhil.svg icons/hicolor/scalable/mimetypes)

compress(${packaged}/changelog.gz ${packaging}/debian/changelog)
install_shared(${packaged}/changelog.gz doc/pozhil)
install_shared(${packaging}/debian/copyright doc/pozhil)
install_shared(${packaging}/debian/lintian-overrides lintian/overrides pozhil)

add_custom_target(package_files ALL DEPENDS ${compressed})

set(CPACK_PACKAGE_NAME pozhil)
set(CPACK_PACKAGE_VENDOR "பொழில்")
file(READ ${packaging}/debian/description description)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "${description}")
set(CPACK_PACKAGE_CONTACT "pozhil <pozhil@pozhil.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Compiler of the Tamil programming language Pozhil")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};pozhil;ALL;/usr/lib/pozhil"
    "${PROJECT_BINARY_DIR};pozhil;link;/usr/bin"
    "${PROJECT_BINARY_DIR};pozhil;share;/usr/share")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# dpkg-shlibdeps can't read names in Tamil.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "g++, libc6 (>= 2.36), libgcc-s1 (>= 12), libstdc++6 (>= 12)")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "emscripten, brotli")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
include(CPack)
