# `cpack --preset debian` puts the installation into a Debian package, below /usr/lib/pozhil, with links in /usr/bin.

file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/generated/links)
foreach(name பொழி பொழில் pozhil)
    set(link ${PROJECT_BINARY_DIR}/generated/links/${name})
    file(CREATE_LINK ../lib/pozhil/${name} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION . COMPONENT link EXCLUDE_FROM_ALL)
endforeach()

set(CPACK_PACKAGE_NAME pozhil)
set(CPACK_PACKAGE_VENDOR "பொழில்")
set(CPACK_PACKAGE_CONTACT "பொழில்")
set(CPACK_PACKAGING_INSTALL_PREFIX /)
set(CPACK_INSTALL_CMAKE_PROJECTS
    "${PROJECT_BINARY_DIR};pozhil;ALL;/usr/lib/pozhil"
    "${PROJECT_BINARY_DIR};pozhil;link;/usr/bin")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_DEPENDS g++)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "emscripten, brotli")
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
include(CPack)
