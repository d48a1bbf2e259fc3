# The settings that every target of this project shares, applied per target so that a project which
# includes this one keeps its own.

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)

# corvimo_harden(TARGET)
#   Makes errors in TARGET harder to exploit. The checks of the C library need optimised code.
#   Sanitizers bring stricter ones instead.
function(corvimo_harden target)
    target_compile_options(${target} PRIVATE -fstack-protector-strong)
    if(NOT CORVIMO_SANITIZE)
        target_compile_options(${target} PRIVATE
            "$<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
    endif()
    if(NOT APPLE)  # The linker there does the same by default.
        target_link_options(${target} PRIVATE LINKER:-z,relro,-z,now,-z,noexecstack)
    endif()
endfunction()

# corvimo_target_defaults(TARGET)
#   Language level, warnings, sanitizers, position independence and hardening for one target of this
#   project.
function(corvimo_target_defaults target)
    target_compile_features(${target} PUBLIC cxx_std_17)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        POSITION_INDEPENDENT_CODE ON)
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
        $<$<BOOL:${CORVIMO_WARNINGS_AS_ERRORS}>:-Werror>)
    if(CORVIMO_SANITIZE)
        target_compile_options(${target} PRIVATE
            -fsanitize=${CORVIMO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
        target_link_options(${target} PUBLIC -fsanitize=${CORVIMO_SANITIZE})
    endif()
    corvimo_harden(${target})
endfunction()

# corvimo_strict_qt(TARGET)
#   Makes Qt refuse outdated calls and hidden conversions.
function(corvimo_strict_qt target)
    target_compile_definitions(${target} PRIVATE
        QT_DISABLE_DEPRECATED_BEFORE=0x050F00
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_CAST_TO_ASCII
        QT_NO_KEYWORDS)
endfunction()

# corvimo_add_library(NAME ALIAS SOURCES...)
#   A static library `corvimo::ALIAS`.
function(corvimo_add_library name alias)
    add_library(${name} STATIC ${ARGN})
    add_library(corvimo::${alias} ALIAS ${name})
    corvimo_target_defaults(${name})
    set_target_properties(${name} PROPERTIES EXPORT_NAME ${alias})
endfunction()

# corvimo_public_headers(TARGET FOLDER HEADERS...)
#   Declares the public headers of a library. They are included by their names below FOLDER, also
#   where they are installed.
function(corvimo_public_headers target folder)
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${folder} FILES ${ARGN})
endfunction()
