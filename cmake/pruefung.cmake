# clang-tidy beside every compilation. What has been checked stays checked until the file, a header of its or a list of checks
# changes: the objects are the marks, and the lists are part of the command. g++'s precompiled headers mean nothing to it.
if(TONKARTEI_PRUEFUNG)
  find_program(CLANG_TIDY clang-tidy REQUIRED)
  set(inhalt)
  file(GLOB_RECURSE listen CONFIGURE_DEPENDS src/.clang-tidy leistung/.clang-tidy tests/.clang-tidy)
  foreach(liste ${CMAKE_SOURCE_DIR}/.clang-tidy ${listen})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${liste})
    file(READ ${liste} text)
    string(APPEND inhalt "${text}")
  endforeach()
  string(SHA1 stand "${inhalt}")
  # The analyzer stays within a few calls of each function: a quarter of the time, and nearly all that it finds.
  set(CMAKE_CXX_CLANG_TIDY ${CLANG_TIDY} --quiet --extra-arg=-DTONKARTEI_PRUEFLISTEN=${stand}
    --extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=mode=shallow)
endif()
