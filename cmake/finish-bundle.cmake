# The last step of the bundle's installation on macOS. It adds Qt, libarchive, ICU and their
# dependencies to the bundle, makes every reference to them relative, and signs the bundle. It needs
# CORVIMO_ARCHIVE_LIBRARY, CORVIMO_LIBRARY_FOLDERS and CORVIMO_CODESIGN_IDENTITY.

include(BundleUtilities)
include(${CMAKE_CURRENT_LIST_DIR}/CorvimoSign.cmake)

set(app $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/Corvimo.app)
set(frameworks ${app}/Contents/Frameworks)
file(GLOB plugins ${frameworks}/plugins/*/*.dylib)
set(BU_CHMOD_BUNDLE_ITEMS ON)  # Homebrew's libraries are read-only, and so are their copies.
set(loaded_at_run_time ${plugins} ${frameworks}/${CORVIMO_ARCHIVE_LIBRARY})
fixup_bundle(${app} "${loaded_at_run_time}" "${frameworks};${CORVIMO_LIBRARY_FOLDERS}")
# fixup_bundle has removed all run paths. The launcher needs this one to load libarchive.
execute_process(
    COMMAND install_name_tool -add_rpath @executable_path/../Frameworks ${app}/Contents/MacOS/launcher
    COMMAND_ERROR_IS_FATAL ANY)
corvimo_sign(${app} "${CORVIMO_CODESIGN_IDENTITY}")
