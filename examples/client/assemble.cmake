# Assembles the client's bundle anew, so that nothing of a former one stays in it:
#
#   cmake -D APP=folder -D EXECUTABLE=file -D PROPERTY_LIST=file -D BUILD=number [-D STRIP=tool]
#       [-D CODESIGN_IDENTITY=identity] -P assemble.cmake
include(${CMAKE_CURRENT_LIST_DIR}/../../cmake/CorvimoSign.cmake)

set(new ${APP}.new)
file(REMOVE_RECURSE ${new})

file(COPY ${EXECUTABLE} DESTINATION ${new}/Contents/MacOS)
if(STRIP)
    execute_process(
        COMMAND ${STRIP} -S ${new}/Contents/MacOS/corvimo-ui
        COMMAND_ERROR_IS_FATAL ANY)
endif()
file(COPY ${CMAKE_CURRENT_LIST_DIR}/resources/ DESTINATION ${new}/Contents/Resources)
file(COPY ${PROPERTY_LIST} DESTINATION ${new}/Contents)
configure_file(${CMAKE_CURRENT_LIST_DIR}/INFO.in ${new}/Contents/Resources/INFO @ONLY)
file(REMOVE_RECURSE ${APP})
file(RENAME ${new} ${APP})
if(CODESIGN_IDENTITY)
    corvimo_sign(${APP} ${CODESIGN_IDENTITY})
endif()
