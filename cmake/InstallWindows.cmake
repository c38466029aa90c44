# What `cmake --install` brings on Windows: everything lies in the program's folder.
if(GLACERON_PLATFORM_ONLY)
  # Stands in for the program where that cannot be built, so that the installer can be tried.
  install(PROGRAMS $<TARGET_FILE:platform_tests> DESTINATION . RENAME glaceron.exe)
else()
  # The libraries that the program needs, those of Qt with its plugins, and those of the compiler.
  get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
  get_filename_component(qt_programs "${qmake}" DIRECTORY)
  find_program(WINDEPLOYQT windeployqt HINTS "${qt_programs}" REQUIRED)
  install(CODE "execute_process(COMMAND \"${WINDEPLOYQT}\" --release --no-translations
      --no-compiler-runtime \"\${CMAKE_INSTALL_PREFIX}/glaceron.exe\" COMMAND_ERROR_IS_FATAL ANY)")
  install(CODE "file(GET_RUNTIME_DEPENDENCIES
      EXECUTABLES \"$<TARGET_FILE:glaceron>\"
      DIRECTORIES \"$<TARGET_FILE_DIR:Qt5::Core>\" \"$<TARGET_FILE_DIR:glaceron>\"
      RESOLVED_DEPENDENCIES_VAR needed
      PRE_EXCLUDE_REGEXES [[^api-ms-]] [[^ext-ms-]] [[^Qt5]]
      POST_EXCLUDE_REGEXES [[.*[/\\\\]system32[/\\\\].*]])
    file(INSTALL \${needed} DESTINATION \"\${CMAKE_INSTALL_PREFIX}\" FOLLOW_SYMLINK_CHAIN)")
  set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION .)
  include(InstallRequiredSystemLibraries)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION . RENAME LICENSE.txt)

# The terms of others: what is where, the texts, and those of the libraries behind the libraries.
set(windows_files ${PROJECT_SOURCE_DIR}/packaging/windows)
install(FILES ${windows_files}/LICENSES.txt DESTINATION .)
install(DIRECTORY ${windows_files}/licenses DESTINATION .)
foreach(pair "icons;tabler-icons" "fonts;inter" "suffixes;MPL-2.0" "countries;Unicode-3.0")
  list(GET pair 0 folder)
  list(GET pair 1 name)
  install(FILES ${PROJECT_SOURCE_DIR}/resources/${folder}/LICENSE
    DESTINATION licenses RENAME ${name}.txt)
endforeach()
if(VCPKG_TARGET_TRIPLET)
  file(GLOB texts ${VCPKG_INSTALLED_DIR}/${VCPKG_TARGET_TRIPLET}/share/*/copyright)
  foreach(text IN LISTS texts)
    get_filename_component(folder ${text} DIRECTORY)
    get_filename_component(name ${folder} NAME)
    install(FILES ${text} DESTINATION licenses RENAME ${name}.txt)
  endforeach()
elseif(MINGW_ROOT)
  install(DIRECTORY ${MINGW_ROOT}/share/licenses DESTINATION . OPTIONAL)
endif()

# Built by scripts/build-extension, which needs Node.
foreach(pair "chromium;extension" "firefox;extension-firefox")
  list(GET pair 0 built)
  list(GET pair 1 name)
  set(folder ${PROJECT_SOURCE_DIR}/extension/dist/${built})
  install(DIRECTORY ${folder}/ DESTINATION ${name})
  install(CODE "if(NOT EXISTS \"${folder}/manifest.json\")
    message(FATAL_ERROR \"The browser extension is missing: build it with scripts/build-extension\")
  endif()")
endforeach()
