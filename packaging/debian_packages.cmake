# "cpack -G DEB" makes one Debian package a component.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME quillfern)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "Quillfern <${QUILLFERN_SUPPORT_ADDRESS}>")
set(CPACK_PACKAGE_HOMEPAGE_URL "${QUILLFERN_WEB_ADDRESS}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON) # what the programs link; the lines below name what they need besides
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

set(CPACK_DEBIAN_APPLICATION_PACKAGE_NAME quillfern)
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SECTION misc)
# ca-certificates: without the authorities' certificates no check for updates would trust its server
set(CPACK_DEBIAN_APPLICATION_PACKAGE_DEPENDS "fonts-inter, fonts-liberation2, ca-certificates")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_RECOMMENDS "qt6-wayland, fonts-noto-core, xdg-utils")
set(CPACK_DEBIAN_APPLICATION_PACKAGE_SUGGESTS quillfern-cli)
set(CPACK_DEBIAN_APPLICATION_DESCRIPTION "grants and the board for small nonprofits
Quillfern keeps a small nonprofit's grants and its board of directors in one
file on its own computer: who funds what, what is due when, what has come in,
and what the board decided. It is for the person who writes the proposals and
keeps the minutes, and for consultants with one file for each client.
.
Nothing is sent anywhere: the program makes spreadsheets and calendar files,
and the user decides where they go.")

set(CPACK_DEBIAN_COMMAND-LINE_PACKAGE_NAME quillfern-cli)
set(CPACK_DEBIAN_COMMAND-LINE_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_COMMAND-LINE_PACKAGE_SUGGESTS quillfern)
set(CPACK_DEBIAN_COMMAND-LINE_DESCRIPTION "grant deadlines, reports and files of an organization, without a window
quillfern-cli reads and writes the files of Quillfern, which keeps a small
nonprofit's grants and its board of directors: what is due, the figures of the
pipeline, reports owed, the board's votes; as text for a person or as JSON for
another program. It exports spreadsheets, calendar files and board files.
.
It needs no display, for scripts, servers and consultants with many files.")
include(CPack)
