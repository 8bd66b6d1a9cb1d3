# The Debian packages: a component of the installation each.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orlena)
set(CPACK_PACKAGE_VENDOR "Orlena developers")
set(CPACK_PACKAGE_CONTACT "Orlena developers <orlena@example.org>")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL ${components})

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_ORLENA_PACKAGE_NAME orlena)
set(CPACK_DEBIAN_ORLENA_DESCRIPTION "wizard for the control systems of rooms, on the command line
Orlena turns the answers about an audio/video room into a finished control
system: its devices, its whole control program, the projects of its panels.
.
This package builds, prints, documents, exports and uploads rooms without a
window, and has a receiver to upload them to. The windows are in
orlena-desktop.")
set(CPACK_DEBIAN_ORLENA_PACKAGE_SUGGESTS orlena-desktop)

set(CPACK_DEBIAN_ORLENA-DESKTOP_PACKAGE_NAME orlena-desktop)
set(CPACK_DEBIAN_ORLENA-DESKTOP_DESCRIPTION "wizard for the control systems of rooms, in windows
Orlena turns the answers about an audio/video room into a finished control
system: its devices, its whole control program, the projects of its panels.
.
This package has the windows: of the wizard, in which the answers are given,
and of the host that it runs in.")
set(CPACK_DEBIAN_ORLENA-DESKTOP_PACKAGE_DEPENDS "orlena (= ${PROJECT_VERSION})")

include(CPack)
