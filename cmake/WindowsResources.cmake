# add_windows_resources(<target>): its version, icon and manifest.
set(windows_files ${PROJECT_SOURCE_DIR}/packaging/windows)

function(add_windows_resources target)
  # Visual C++ merges the manifest with its own; elsewhere it is a resource like the others.
  if(MSVC)
    target_sources(${target} PRIVATE ${windows_files}/glaceron.manifest)
  else()
    set(windows_manifest_line "1 24 \"${windows_files}/glaceron.manifest\"")
  endif()
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${windows_files}/glaceron.rc.in ${resources} @ONLY)
  set_property(SOURCE ${resources} APPEND PROPERTY OBJECT_DEPENDS
    "${windows_files}/glaceron.ico;${windows_files}/glaceron.manifest")
  target_sources(${target} PRIVATE ${resources})
endfunction()
