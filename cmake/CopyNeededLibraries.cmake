# Copies the libraries that PROGRAM and the plugins below FOLDER need, and those behind them, from
# LIBRARIES into FOLDER. Run when the program is installed: Qt's own tool brings Qt and its plugins
# alone. CMake makes the names small before it looks at them; those of Qt are followed too, since
# others stand behind them.
file(GLOB_RECURSE plugins "${FOLDER}/*/*.dll")
file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES "${PROGRAM}"
  MODULES ${plugins}
  DIRECTORIES ${LIBRARIES}
  RESOLVED_DEPENDENCIES_VAR needed
  CONFLICTING_DEPENDENCIES_PREFIX twice
  PRE_EXCLUDE_REGEXES "^api-ms-" "^ext-ms-"
  POST_EXCLUDE_REGEXES "[/\\\\](system|System|SYSTEM)32[/\\\\]")
# The same library may also lie beside the program that was built.
foreach(name IN LISTS twice_FILENAMES)
  list(GET twice_${name} 0 path)
  list(APPEND needed "${path}")
endforeach()
file(INSTALL ${needed} DESTINATION "${FOLDER}" FOLLOW_SYMLINK_CHAIN)
