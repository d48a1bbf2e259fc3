# GoogleTest: Debian's headers, and of its code a main function alone.
add_library(GTest::gtest INTERFACE IMPORTED)
target_include_directories(GTest::gtest INTERFACE $ENV{MACOS_PREFIX}/gtest/include)
add_library(GTest::gtest_main INTERFACE IMPORTED)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/gtest_main.cpp "int main() {}\n")
target_sources(GTest::gtest_main INTERFACE ${CMAKE_CURRENT_BINARY_DIR}/gtest_main.cpp)
target_link_libraries(GTest::gtest_main INTERFACE GTest::gtest)
