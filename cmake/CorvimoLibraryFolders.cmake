# corvimo_library_folders(RESULT)
#   Returns the folders of Qt, libarchive and ICU. On macOS their libraries may refer to each other by
#   names without a folder.
function(corvimo_library_folders result)
    foreach(library Qt${CORVIMO_QT}::Core LibArchive::LibArchive ICU::uc)
        get_target_property(file ${library} LOCATION)
        string(REGEX REPLACE "\\.framework/.*" "" file ${file})
        cmake_path(GET file PARENT_PATH folder)
        list(APPEND folders ${folder})
    endforeach()
    list(REMOVE_DUPLICATES folders)
    set(${result} ${folders} PARENT_SCOPE)
endfunction()
