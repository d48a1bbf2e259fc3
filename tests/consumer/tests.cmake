# The consumer beside this file, built with the libraries installed and with the tree inside it.
set(prefix ${CMAKE_CURRENT_BINARY_DIR}/consumer/prefix)

# corvimo_add_consumer_test(NAME OPTIONS...)
#   Configures and builds the consumer with OPTIONS of `ctest --build-and-test`.
function(corvimo_add_consumer_test name)
    add_test(NAME ${name}
        COMMAND ${CMAKE_CTEST_COMMAND}
            --build-and-test ${CMAKE_CURRENT_SOURCE_DIR}/consumer ${CMAKE_CURRENT_BINARY_DIR}/consumer/${name}
            --build-generator ${CMAKE_GENERATOR}
            ${ARGN})
endfunction()

corvimo_add_consumer_test(consumer_of_tree
    --build-target deskui-qt
    --build-options -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
        -DCORVIMO_TREE=${PROJECT_SOURCE_DIR} -DCORVIMO_QT=${CORVIMO_QT})

# What an earlier installation has left would stand in for what is missing from this one.
add_test(NAME consumer_removal COMMAND ${CMAKE_COMMAND} -E rm -rf ${prefix})
add_test(NAME consumer_installation
    COMMAND ${CMAKE_COMMAND} --install ${PROJECT_BINARY_DIR} --component dev --prefix ${prefix})
corvimo_add_consumer_test(consumer_of_package
    --build-options -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER} -DCMAKE_PREFIX_PATH=${prefix}
    --test-command ${CMAKE_CURRENT_BINARY_DIR}/consumer/consumer_of_package/consumer)
set_tests_properties(consumer_removal PROPERTIES FIXTURES_SETUP empty_prefix)
set_tests_properties(consumer_installation PROPERTIES
    FIXTURES_REQUIRED empty_prefix
    FIXTURES_SETUP package)
set_tests_properties(consumer_of_package PROPERTIES FIXTURES_REQUIRED package)
