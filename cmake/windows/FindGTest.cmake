# Debian has GoogleTest for its own machines only; its source is compiled along.
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
set(GTest_FOUND TRUE)
