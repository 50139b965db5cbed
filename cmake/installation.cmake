# What is installed, and the Debian package made of it. The program looks for its player beside itself (build tree) and in
# ../libexec/tonkartei (installed).
include(GNUInstallDirs)

if(TARGET tonkartei)
  install(TARGETS tonkartei RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
if(TARGET spieler)
  install(TARGETS spieler RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/tonkartei)
endif()
install(FILES src/programm/tonkartei.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES symbol/tonkartei.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(kante 48 128 256)
  install(FILES symbol/tonkartei-${kante}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${kante}x${kante}/apps RENAME tonkartei.png)
endforeach()
# "copyright" is where Debian looks for the licence.
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tonkartei RENAME copyright)
install(FILES README.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tonkartei)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tonkartei)
set(CPACK_PACKAGE_VENDOR "Tonkartei developers")
set(CPACK_PACKAGE_CONTACT "Tonkartei developers <tonkartei@localhost>")
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
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-translations-l10n")
include(CPack)
