# Qt for macOS: Debian's headers and tools, and the stand-ins for frameworks that check-macos.sh makes.
include_guard(GLOBAL)
set(qt $ENV{MACOS_PREFIX}/qt)
set(headers $ENV{MACOS_PREFIX}/qt/include)

foreach(module Core Gui Widgets Test)
    add_library(Qt5::${module} SHARED IMPORTED)
    set_target_properties(Qt5::${module} PROPERTIES
        IMPORTED_LOCATION ${qt}/lib/Qt${module}.framework/Qt${module}
        INTERFACE_COMPILE_DEFINITIONS QT_$<UPPER_CASE:${module}>_LIB
        INTERFACE_INCLUDE_DIRECTORIES "${headers};${headers}/Qt${module}")
endforeach()
set_property(TARGET Qt5::Gui PROPERTY INTERFACE_LINK_LIBRARIES Qt5::Core)
set_property(TARGET Qt5::Widgets PROPERTY INTERFACE_LINK_LIBRARIES Qt5::Gui)

foreach(plugin platforms/libqcocoa:QCocoaIntegrationPlugin styles/libqmacstyle:QMacStylePlugin)
    string(REGEX MATCH "(.*):(.*)" plugin ${plugin})
    add_library(Qt5::${CMAKE_MATCH_2} MODULE IMPORTED)
    set_target_properties(Qt5::${CMAKE_MATCH_2} PROPERTIES
        IMPORTED_LOCATION ${qt}/plugins/${CMAKE_MATCH_1}.dylib)
endforeach()

foreach(tool moc rcc lrelease)
    add_executable(Qt5::${tool} IMPORTED)
    set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION /usr/lib/qt5/bin/${tool})
endforeach()
set(Qt5Core_VERSION_MAJOR 5)  # For the automatic moc.
set(Qt5Core_VERSION_MINOR 15)
