# A drag-and-drop disk image of Tactora.app: `cmake --build build --target package` writes
# build/Tactora-<version>.dmg, whose window shows the application beside a link to
# /Applications. macOS only; included after the application's directory.
#
# The bundle is installed as built and signed. Installing the executable as a target would let
# CMake rewrite it (its run paths), which breaks the signature.
install(DIRECTORY "${TACTORA_BUNDLE_DIR}" DESTINATION "." USE_SOURCE_PERMISSIONS)

set(CPACK_GENERATOR DragNDrop)
set(CPACK_PACKAGE_NAME "Tactora")
set(CPACK_PACKAGE_VENDOR "Tactora")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_FILE_NAME "Tactora-${PROJECT_VERSION}")
set(CPACK_DMG_VOLUME_NAME "Tactora ${PROJECT_VERSION}")
set(CPACK_DMG_FORMAT UDZO)
set(CPACK_DMG_DISABLE_APPLICATIONS_SYMLINK OFF)
include(CPack)
