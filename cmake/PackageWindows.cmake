# The installer, made by `cpack` in the build folder with NSIS.
list(APPEND CMAKE_MODULE_PATH ${PROJECT_SOURCE_DIR}/packaging/windows)

set(CPACK_GENERATOR NSIS64)
set(CPACK_PACKAGE_NAME "Glaceron Password Manager")
set(CPACK_PACKAGE_VENDOR Glaceron)
set(CPACK_PACKAGE_FILE_NAME glaceron-${PROJECT_VERSION}-windows)
if(GLACERON_PLATFORM_ONLY)
  string(APPEND CPACK_PACKAGE_FILE_NAME -stand-in)
endif()
set(CPACK_STRIP_FILES ON)
# Each gets its dash from CPack.
set(CPACK_NSIS_EXECUTABLE_PRE_ARGUMENTS "INPUTCHARSET UTF8" V2)
if(NOT CMAKE_HOST_WIN32)
  # NSIS for Windows has installers of 32 bits alone, which cannot be tried everywhere.
  set(CPACK_NSIS_DEFINES "Target amd64-unicode")
endif()
# Read by packaging/windows/NSIS.template.in.
set(CPACK_WINDOWS_ICON ${PROJECT_SOURCE_DIR}/packaging/windows/glaceron.ico)
set(CPACK_WINDOWS_PICTURE ${PROJECT_SOURCE_DIR}/packaging/windows/installer.bmp)
