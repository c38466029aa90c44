# The .deb, made by `cpack` in the build folder; `./run --package` does all that belongs to it.
set(GLACERON_MAINTAINER "Glaceron <packages@glaceron.example>")
set(GLACERON_PACKAGE_RELEASE 1)

# A changelog that is always the same for a release: its date is the release's.
execute_process(COMMAND date --utc --rfc-email --date "${GLACERON_RELEASE_DATE} 12:00"
  OUTPUT_VARIABLE GLACERON_RELEASE_STAMP OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
configure_file(${linux_files}/changelog.in ${linux_made}/changelog.Debian @ONLY)
compressed(changelog.Debian ${linux_made}/changelog.Debian)
install(FILES ${linux_made}/changelog.Debian.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/glaceron)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME glaceron)
set(CPACK_PACKAGE_VENDOR Glaceron)
set(CPACK_PACKAGE_CONTACT "${GLACERON_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${GLACERON_PACKAGE_RELEASE})
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Qt's own texts, Wayland, and pages and folders that are opened by a click.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qttranslations5-l10n, qtwayland5, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "chromium | firefox-esr | firefox")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "password manager with encrypted safes and a browser extension")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Keeps logins, cards, bank accounts, identities, documents, notes, licences
and files in safes: folders of encrypted files under a master password that
nobody but the user knows. There is no account and no server.

The browser extension, which comes with the program, fills logins into the
pages they belong to and offers to save those that are typed there. The safe
locks when the user leaves, copied secrets go from the clipboard, and backups
are made by themselves.")

get_property(files GLOBAL PROPERTY glaceron_compressed)
add_custom_target(compressed ALL DEPENDS ${files})
