# One folder of sources is one static library ("room"); its tests are one executable of the same name.

add_library(tonkartei_optionen INTERFACE)
target_compile_options(tonkartei_optionen INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual)
target_include_directories(tonkartei_optionen INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(TONKARTEI_SANITIZER)
  target_compile_options(tonkartei_optionen INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tonkartei_optionen INTERFACE -fsanitize=address,undefined)
  if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # The instrumented code of the standard library looks uninitialised to g++; the release build keeps the warning.
    target_compile_options(tonkartei_optionen INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()

# tonkartei_raum(NAME FOLDERS LIB...): all *.cpp of the folders (not of those below them) as library NAME; an entry point
# (main.cpp) is left to its executable.
function(tonkartei_raum name ordner)
  set(quellen)
  foreach(teil ${ordner})
    file(GLOB hier CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${teil}/*.cpp)
    list(APPEND quellen ${hier})
  endforeach()
  list(FILTER quellen EXCLUDE REGEX "/main\\.cpp$")
  if(quellen)
    add_library(${name} STATIC ${quellen})
    target_link_libraries(${name} PUBLIC tonkartei_optionen ${ARGN})
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE tonkartei_optionen ${ARGN})
  endif()
endfunction()

# tonkartei_test(NAME FOLDERS LIB...): all *.cpp of the folders as one GoogleTest executable, each case a test of CTest.
function(tonkartei_test name ordner)
  set(quellen)
  foreach(teil ${ordner})
    file(GLOB hier CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${teil}/*.cpp)
    list(APPEND quellen ${hier})
  endforeach()
  if(quellen)
    add_executable(${name} ${quellen})
    target_link_libraries(${name} PRIVATE tonkartei_optionen ${ARGN} GTest::gtest_main)
    # The rooms under test are optimised as the build type says; the cases themselves run once and compile twice as fast so.
    target_compile_options(${name} PRIVATE -O0 -U_FORTIFY_SOURCE)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
  endif()
endfunction()
