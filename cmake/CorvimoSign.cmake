# Signing on macOS. CMake scripts without a project include this file, too.

# corvimo_sign(APP IDENTITY)
#   Signs the bundle APP and all code in it: with a real identity as notarisation requires, with "-"
#   for this machine only. Every later change of the bundle makes the signature invalid.
function(corvimo_sign app identity)
    if(identity STREQUAL "")
        set(identity -)
    endif()
    set(options --force --deep --sign ${identity})
    if(NOT identity STREQUAL "-")
        list(APPEND options --options runtime --timestamp)
    endif()
    execute_process(COMMAND codesign ${options} ${app} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
