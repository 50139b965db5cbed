# mpg123::mpg123, static, as skripte/windows_vorrat.sh has built them.
include(FindPackageHandleStandardArgs)
find_path(MPG123_KOEPFE mpg123.h)
find_library(MPG123_BIBLIOTHEK mpg123)
find_package_handle_standard_args(mpg123 DEFAULT_MSG MPG123_BIBLIOTHEK MPG123_KOEPFE)
if(mpg123_FOUND AND NOT TARGET mpg123::mpg123)
  add_library(mpg123::mpg123 STATIC IMPORTED GLOBAL)
  set_target_properties(mpg123::mpg123 PROPERTIES IMPORTED_LOCATION ${MPG123_BIBLIOTHEK}
    INTERFACE_LINK_LIBRARIES shlwapi)
  target_include_directories(mpg123::mpg123 SYSTEM INTERFACE ${MPG123_KOEPFE})
endif()
