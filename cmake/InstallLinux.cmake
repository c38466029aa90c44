# What `cmake --install` brings beside the program and its translations on Linux.
include(GNUInstallDirs)

set(linux_files ${PROJECT_SOURCE_DIR}/packaging/linux)
set(linux_made ${PROJECT_BINARY_DIR}/packaging)

# compressed(<name> <source>): "name.gz" as part of the build, always with the same bytes.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(compressed name source)
  add_custom_command(OUTPUT ${linux_made}/${name}.gz
    COMMAND ${GZIP_PROGRAM} -9nc ${source} > ${linux_made}/${name}.gz
    DEPENDS ${source} VERBATIM)
  set_property(GLOBAL APPEND PROPERTY glaceron_compressed ${linux_made}/${name}.gz)
endfunction()

configure_file(${linux_files}/glaceron.1.in ${linux_made}/glaceron.1 @ONLY)
configure_file(${linux_files}/metainfo.xml.in
  ${linux_made}/example.glaceron.PasswordManager.metainfo.xml @ONLY)
compressed(glaceron.1 ${linux_made}/glaceron.1)

install(FILES ${linux_files}/glaceron.desktop
  DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${linux_made}/example.glaceron.PasswordManager.metainfo.xml
  DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${linux_made}/glaceron.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${linux_files}/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/glaceron)
install(FILES ${PROJECT_SOURCE_DIR}/resources/art/crystal.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps RENAME glaceron.svg)
foreach(size 16 22 24 32 48 64 128 256 512)
  install(FILES ${linux_files}/icons/${size}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps RENAME glaceron.png)
endforeach()

# Built by scripts/build-extension, which needs Node.
foreach(pair "chromium;extension" "firefox;extension-firefox")
  list(GET pair 0 built)
  list(GET pair 1 name)
  set(folder ${PROJECT_SOURCE_DIR}/extension/dist/${built})
  install(DIRECTORY ${folder}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/glaceron/${name} OPTIONAL)
  install(CODE "if(NOT EXISTS \"${folder}/manifest.json\")
    message(WARNING \"Installed without the browser extension: build it with scripts/build-extension\")
  endif()")
endforeach()
