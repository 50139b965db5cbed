# mpg123::mpg123 decodes, mpg123::out123 plays; static, as skripte/windows_vorrat.sh has built them.
include(FindPackageHandleStandardArgs)
find_path(MPG123_KOEPFE mpg123.h)
find_library(MPG123_BIBLIOTHEK mpg123)
find_library(OUT123_BIBLIOTHEK out123)
find_package_handle_standard_args(mpg123 DEFAULT_MSG MPG123_BIBLIOTHEK OUT123_BIBLIOTHEK MPG123_KOEPFE)
if(mpg123_FOUND AND NOT TARGET mpg123::mpg123)
  add_library(mpg123::mpg123 STATIC IMPORTED GLOBAL)
  set_target_properties(mpg123::mpg123 PROPERTIES IMPORTED_LOCATION ${MPG123_BIBLIOTHEK}
    INTERFACE_LINK_LIBRARIES shlwapi)
  target_include_directories(mpg123::mpg123 SYSTEM INTERFACE ${MPG123_KOEPFE})
  add_library(mpg123::out123 STATIC IMPORTED GLOBAL)
  set_target_properties(mpg123::out123 PROPERTIES IMPORTED_LOCATION ${OUT123_BIBLIOTHEK}
    INTERFACE_LINK_LIBRARIES "winmm;shlwapi")
  target_include_directories(mpg123::out123 SYSTEM INTERFACE ${MPG123_KOEPFE})
endif()
