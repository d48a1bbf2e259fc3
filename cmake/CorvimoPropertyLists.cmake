# Variables for the templates of both bundles' property lists.

# CORVIMO_OLDEST_MACOS: the oldest macOS that the bundle runs on. The code needs POSIX_SPAWN_SETSID, which
# came with 10.15.
set(CORVIMO_OLDEST_MACOS 10.15)
if(CMAKE_OSX_DEPLOYMENT_TARGET)
    set(CORVIMO_OLDEST_MACOS ${CMAKE_OSX_DEPLOYMENT_TARGET})
endif()

# CORVIMO_LOCALIZATIONS: one element for each language of the catalogue, with its name on macOS.
file(GLOB translations CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/ui-client/launcher/texts/translations/*.ts)
set(languages en)
foreach(translation IN LISTS translations)
    file(STRINGS ${translation} language REGEX "^<TS " LIMIT_COUNT 1)
    string(REGEX REPLACE ".* language=\"([^\"]+)\".*" "\\1" language "${language}")
    string(REPLACE zh_CN zh-Hans language ${language})
    string(REPLACE zh_TW zh-Hant language ${language})
    string(REPLACE pt_ pt- language ${language})  # Two translations of one language.
    string(REGEX REPLACE "_.*" "" language ${language})
    list(APPEND languages ${language})
endforeach()
list(TRANSFORM languages REPLACE "(.+)" "        <string>\\1</string>")
list(JOIN languages "\n" CORVIMO_LOCALIZATIONS)
