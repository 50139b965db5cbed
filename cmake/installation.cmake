# What is installed, and the Debian package made of it. The program looks for its player beside itself (build tree) and in
# ../libexec/tonkartei (installed).
include(GNUInstallDirs)

install(TARGETS tonkartei RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS spieler RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/tonkartei)
install(FILES paket/tonkartei.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)

# Texts that name the version. The address is the one that the program shows where it asks its user to get in touch.
set(PAKET_DATUM 2026-11-23)
set(version_datei src/datenbank/version.hpp)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${version_datei})
file(STRINGS ${version_datei} PAKET_ADRESSE REGEX "Kontaktadresse = ")
string(REGEX REPLACE ".*\"(.*)\".*" "\\1" PAKET_ADRESSE "${PAKET_ADRESSE}")
set(paketordner ${CMAKE_BINARY_DIR}/paket)
foreach(name tonkartei.metainfo.xml tonkartei.1 tonkartei.de.1 changelog)
  configure_file(paket/${name}.in ${paketordner}/${name} @ONLY)
endforeach()
install(FILES ${paketordner}/tonkartei.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
  RENAME org.example.tonkartei.metainfo.xml)

# Manual pages and the package's history are installed packed, as Debian wants them: as small as can be, and without a date.
find_program(GZIP gzip REQUIRED)
foreach(name tonkartei.1 tonkartei.de.1 changelog)
  execute_process(COMMAND ${GZIP} -9nc ${paketordner}/${name} OUTPUT_FILE ${paketordner}/${name}.gz
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
install(FILES ${paketordner}/tonkartei.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${paketordner}/tonkartei.de.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/de/man1 RENAME tonkartei.1.gz)

install(FILES symbol/tonkartei.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(kante 48 128 256)
  install(FILES symbol/tonkartei-${kante}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${kante}x${kante}/apps RENAME tonkartei.png)
endforeach()
# "copyright" is where Debian looks for the licence.
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tonkartei RENAME copyright)
install(FILES README.md CHANGELOG.md ${paketordner}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tonkartei)
# The handbook with its pictures, once "make handbuch" has made it: handbuch.html and bilder/.
install(DIRECTORY build/handbuch/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tonkartei OPTIONAL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tonkartei)
set(CPACK_PACKAGE_VENDOR "Tonkartei developers")
set(CPACK_PACKAGE_CONTACT "Tonkartei developers <${PAKET_ADRESSE}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "card index for music kept as MP3 files")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Tonkartei knows every song of a collection by title, artist and up to twenty
categories of one's own naming, sorts and searches thousands of them, counts
what is listened to, and has songs played by a player in the background.
The interface is German.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION TRUE)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-translations-l10n")
include(CPack)
