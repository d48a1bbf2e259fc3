# The last step of the bundle's installation on macOS. It adds Qt, libarchive, ICU and their
# dependencies to the bundle, makes every reference to them relative, and signs the bundle. It needs
# CORVIMO_LIBRARY_FOLDERS and CORVIMO_CODESIGN_IDENTITY.

include(BundleUtilities)
include(${CMAKE_CURRENT_LIST_DIR}/CorvimoSign.cmake)

set(app $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/Corvimo.app)
set(frameworks ${app}/Contents/Frameworks)
file(GLOB plugins ${frameworks}/plugins/*/*.dylib)
set(BU_CHMOD_BUNDLE_ITEMS ON)  # Homebrew's libraries are read-only, and so are their copies.
fixup_bundle(${app} "${plugins}" "${frameworks};${CORVIMO_LIBRARY_FOLDERS}")
corvimo_sign(${app} "${CORVIMO_CODESIGN_IDENTITY}")
