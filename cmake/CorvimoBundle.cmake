# The launcher's bundle. The target `bundle` assembles <build>/bundle/Corvimo.app, which runs on this
# machine. Installing copies exactly the files listed here, and CPack packs the installed files. On
# macOS, installing also adds Qt, libarchive and ICU, so that the bundle can be moved, and signs it.

set(CORVIMO_CLIENT_APP "" CACHE PATH
    "Bundle of the client that the launcher carries; empty for the example client")

add_custom_target(bundle ALL)

# corvimo_bundle_part(KIND NAME)
#   Adds Contents/NAME, which some command produces, to the bundle. KIND is PROGRAMS for an
#   executable file and FILES for any other.
function(corvimo_bundle_part kind name)
    set(file ${PROJECT_BINARY_DIR}/bundle/Corvimo.app/Contents/${name})
    target_sources(bundle PRIVATE ${file})
    cmake_path(GET name PARENT_PATH folder)
    install(${kind} ${file} DESTINATION Corvimo.app/Contents/${folder} COMPONENT bundle)
endfunction()

# corvimo_bundle_file(KIND FILE NAME)
#   Copies FILE to the bundle's Contents/NAME.
function(corvimo_bundle_file kind file name)
    set(copy ${PROJECT_BINARY_DIR}/bundle/Corvimo.app/Contents/${name})
    add_custom_command(
        OUTPUT ${copy}
        COMMAND ${CMAKE_COMMAND} -E copy ${file} ${copy}
        DEPENDS ${file}
        COMMENT "Bundling ${name}"
        VERBATIM)
    corvimo_bundle_part(${kind} ${name})
endfunction()

# corvimo_bundle_binary(KIND TARGET NAME)
#   Copies the file that TARGET builds to the bundle's Contents/NAME. Outside debug builds, debug
#   information is removed from the copy, because it is large and names folders of this machine; the
#   original keeps it. macOS asks for a signature, and the removal makes the linker's invalid.
function(corvimo_bundle_binary kind target name)
    set(copy ${PROJECT_BINARY_DIR}/bundle/Corvimo.app/Contents/${name})
    add_custom_command(
        OUTPUT ${copy}
        COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:${target}> ${copy}
        COMMAND "$<$<NOT:$<CONFIG:Debug>>:${CMAKE_STRIP};-S;${copy}>"
        COMMAND "$<$<PLATFORM_ID:Darwin>:codesign;--force;--sign;-;${copy}>"
        DEPENDS $<TARGET_FILE:${target}>
        COMMENT "Bundling ${name}"
        COMMAND_EXPAND_LISTS
        VERBATIM)
    corvimo_bundle_part(${kind} ${name})
endfunction()

# corvimo_bundle_plugins(KIND MODULE NAMES...)
#   Copies plug-ins of a module of Qt to the folder of their kind. The launcher looks for plug-ins
#   only in its bundle.
function(corvimo_bundle_plugins kind module)
    foreach(plugin IN LISTS ARGN)
        if(CORVIMO_QT EQUAL 6)
            # Qt 6 gives every plug-in a package of its own.
            find_package(Qt6${plugin} REQUIRED PATHS ${Qt6${module}_DIR} NO_DEFAULT_PATH)
        endif()
        get_target_property(file Qt${CORVIMO_QT}::${plugin} LOCATION)
        cmake_path(GET file FILENAME name)
        corvimo_bundle_file(FILES ${file} Frameworks/plugins/${kind}/${name})
    endforeach()
endfunction()

# corvimo_bundle_package()
#   Packs the client, and packs it again when anything in it has changed.
function(corvimo_bundle_package)
    set(resources ${PROJECT_BINARY_DIR}/bundle/Corvimo.app/Contents/Resources)
    set(scripts ${PROJECT_SOURCE_DIR}/scripts)
    set(packer ${scripts}/make-package.sh)
    foreach(module client_entries interruption make_package package_zip version_file)
        list(APPEND packer ${scripts}/${module}.py)
    endforeach()
    set(client ${CORVIMO_CLIENT_APP})
    if(NOT client)
        get_target_property(client example_client CORVIMO_APP)
        get_target_property(stamp example_client CORVIMO_STAMP)
        add_dependencies(bundle example_client)
    endif()
    add_custom_command(
        OUTPUT ${resources}/package/lumaport.cpk ${resources}/INFO
        COMMAND ${scripts}/make-package.sh
            --depfile ${PROJECT_BINARY_DIR}/bundle/lumaport.cpk.d ${client} ${resources}
        DEPENDS ${packer} ${stamp}
        DEPFILE ${PROJECT_BINARY_DIR}/bundle/lumaport.cpk.d
        COMMENT "Packing the client ${client}"
        VERBATIM)
    corvimo_bundle_part(FILES Resources/package/lumaport.cpk)
    corvimo_bundle_part(FILES Resources/INFO)
endfunction()

set(resources ${PROJECT_SOURCE_DIR}/ui-client/launcher/resources)
configure_file(${resources}/Info.plist.in ${PROJECT_BINARY_DIR}/bundle/Info.plist @ONLY)
corvimo_bundle_file(FILES ${PROJECT_BINARY_DIR}/bundle/Info.plist Info.plist)
corvimo_bundle_binary(PROGRAMS launcher MacOS/launcher)
corvimo_bundle_binary(FILES deskui-qt Frameworks/libdeskui-qt${CMAKE_SHARED_LIBRARY_SUFFIX})
corvimo_bundle_file(FILES ${resources}/images/ico_72_lumaport.png
    Resources/images/ico_72_lumaport.png)
corvimo_bundle_file(FILES ${resources}/corvimo.icns Resources/corvimo.icns)
corvimo_bundle_package()
if(APPLE)
    corvimo_bundle_plugins(platforms Gui QCocoaIntegrationPlugin)
    corvimo_bundle_plugins(styles Widgets QMacStylePlugin)
else()
    corvimo_bundle_plugins(platforms Gui
        QXcbIntegrationPlugin QOffscreenIntegrationPlugin QMinimalIntegrationPlugin)
    # Stand-ins for two tools of macOS, each below PlatformTools at the path that it has there.
    corvimo_bundle_file(PROGRAMS ${resources}/platform-tools/open PlatformTools/usr/bin/open)
    string(CONCAT lsregister
        PlatformTools/System/Library/Frameworks/CoreServices.framework
        /Frameworks/LaunchServices.framework/Support/lsregister)
    corvimo_bundle_file(PROGRAMS ${resources}/platform-tools/lsregister ${lsregister})
endif()

if(APPLE)
    corvimo_library_folders(library_folders)
    # The launcher loads libarchive while it runs, so fixup_bundle does not see that it is needed.
    get_target_property(archive_file LibArchive::LibArchive LOCATION)
    file(REAL_PATH ${archive_file} archive_file)
    corvimo_library_name(archive_name LibArchive::LibArchive)
    install(FILES ${archive_file} DESTINATION Corvimo.app/Contents/Frameworks
        RENAME ${archive_name} COMPONENT bundle)
    install(CODE "set(CORVIMO_ARCHIVE_LIBRARY [[${archive_name}]])
        set(CORVIMO_LIBRARY_FOLDERS [[${library_folders}]])
        set(CORVIMO_CODESIGN_IDENTITY [[${CORVIMO_CODESIGN_IDENTITY}]])" COMPONENT bundle)
    install(SCRIPT ${CMAKE_CURRENT_LIST_DIR}/finish-bundle.cmake COMPONENT bundle)
endif()

if(PROJECT_IS_TOP_LEVEL)
    set(CPACK_PACKAGE_NAME corvimo-launcher)
    set(CPACK_PACKAGE_VENDOR Corvimo)
    set(CPACK_COMPONENTS_ALL bundle)
    set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
    set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
    if(APPLE)
        set(CPACK_GENERATOR DragNDrop)
    else()
        set(CPACK_GENERATOR TGZ)
    endif()
    include(CPack)
endif()
