# The last step of the bundle's installation on macOS. Qt, libarchive, ICU and what they need join the
# bundle, every reference to them becomes relative, and the whole is signed. It needs
# CORVIMO_LIBRARY_FOLDERS and CORVIMO_CODESIGN_IDENTITY.

include(BundleUtilities)
include(${CMAKE_CURRENT_LIST_DIR}/CorvimoSign.cmake)

set(app $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/Corvimo.app)
set(frameworks ${app}/Contents/Frameworks)
file(GLOB plugins ${frameworks}/plugins/*/*.dylib)
set(BU_CHMOD_BUNDLE_ITEMS ON)  # Homebrew's libraries are read-only, and so are their copies.
fixup_bundle(${app} "${plugins}" "${frameworks};${CORVIMO_LIBRARY_FOLDERS}")
corvimo_sign(${app} "${CORVIMO_CODESIGN_IDENTITY}")
