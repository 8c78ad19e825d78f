# SPDX-License-Identifier: GPL-3.0-or-later
# What is installed on Linux, and the Debian package of it. The program's folder that can be carried about is not made
# from this.
include(GNUInstallDirs)
set(linux "${PROJECT_SOURCE_DIR}/packaging/linux")
set(made "${PROJECT_BINARY_DIR}/packaging")
set(documents "${CMAKE_INSTALL_DATADIR}/doc/quillery")

set(CPACK_PACKAGE_NAME quillery)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${PROJECT_HOMEPAGE_URL}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_GENERATOR DEB)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Quillery maintainers <maintainers@tessaly.example>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland, qt6-image-formats-plugins, hunspell-en-us, mythes-en-us")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "household organizer")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Quillery keeps what a household has to remember, behind a main menu that
tells about the day: addresses with pictures and birthdays, appointments,
wall calendars, to-do lists, a journal that can be sealed, photos in albums, a
budget, what the cars need, weight, and passwords, which are sealed with a master password. Everything
can be seen as a page, printed and copied, and what is private can be put
behind a password; the records are small files in the user's own folder.")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
# A package needs no tests: what it holds is built before (packaging/linux/build).
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

install(TARGETS quillery RUNTIME)
install(DIRECTORY "${QUILLERY_PAINTED_PICTURES}/" DESTINATION "${CMAKE_INSTALL_DATADIR}/quillery"
    FILES_MATCHING PATTERN "WP*.jpg")

set(icons "${CMAKE_INSTALL_DATADIR}/icons/hicolor")
foreach(size 16 20 24 32 40 48 64 128 256)
    install(FILES "${PROJECT_BINARY_DIR}/resources/icons/application/quillery-${size}.png"
        DESTINATION "${icons}/${size}x${size}/apps" RENAME quillery.png)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/resources/icons/application/quillery.svg" DESTINATION "${icons}/scalable/apps")

install(FILES "${linux}/com.tessaly.quillery.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
configure_file("${linux}/com.tessaly.quillery.metainfo.xml.in" "${made}/com.tessaly.quillery.metainfo.xml" @ONLY)
install(FILES "${made}/com.tessaly.quillery.metainfo.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")

# Without a time stamp, so that the same sources make the same package.
function(quillery_install_packed source folder)
    cmake_path(GET source FILENAME name)
    find_program(GZIP gzip REQUIRED)
    execute_process(COMMAND "${GZIP}" -9nc "${source}" OUTPUT_FILE "${made}/${name}.gz" COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${source}")
    install(FILES "${made}/${name}.gz" DESTINATION "${folder}")
endfunction()
configure_file("${linux}/changelog.in" "${made}/changelog" @ONLY)
quillery_install_packed("${made}/changelog" "${documents}")
quillery_install_packed("${linux}/quillery.1" "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${linux}/copyright" DESTINATION "${documents}")

include(CPack)
