# What makes an executable a program of Windows: no console, and the resources that tell what it is. What Qt finds in folders of
# its own elsewhere, it gets here within the executable.
find_package(Qt6 REQUIRED COMPONENTS Widgets)
file(STRINGS ${CMAKE_SOURCE_DIR}/LICENSE PROGRAMM_RECHTE REGEX "^Copyright" LIMIT_COUNT 1)

# tonkartei_windows_programm(TARGET FILE DESCRIPTION)
function(tonkartei_windows_programm ziel PROGRAMM_DATEI PROGRAMM_BESCHREIBUNG)
  configure_file(${CMAKE_SOURCE_DIR}/paket/windows/programm.rc.in ${CMAKE_BINARY_DIR}/${ziel}.rc @ONLY)
  set_source_files_properties(${CMAKE_BINARY_DIR}/${ziel}.rc PROPERTIES
    COMPILE_OPTIONS --codepage=65001
    OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/symbol/tonkartei.ico;${CMAKE_SOURCE_DIR}/paket/windows/programm.manifest")
  # Apart from the executable, whose warnings and definitions the resource compiler does not understand.
  add_library(${ziel}_ressourcen OBJECT ${CMAKE_BINARY_DIR}/${ziel}.rc)
  target_sources(${ziel} PRIVATE $<TARGET_OBJECTS:${ziel}_ressourcen>)
  get_filename_component(stamm ${PROGRAMM_DATEI} NAME_WE)
  get_filename_component(endung ${PROGRAMM_DATEI} EXT)
  set_target_properties(${ziel} PROPERTIES WIN32_EXECUTABLE ON OUTPUT_NAME ${stamm} SUFFIX ${endung})
endfunction()

tonkartei_windows_programm(tonkartei Tonkartei.exe "Tonkartei")
tonkartei_windows_programm(spieler WinAmp.Exe "Tonkartei: Abspieler")
# Qt's own German.
foreach(ziel tonkartei tonkartei-bediener test_oberflaeche_qt)
  if(TARGET ${ziel})
    qt_add_resources(${ziel} uebersetzungen PREFIX /uebersetzungen BASE /usr/share/qt6/translations
      FILES /usr/share/qt6/translations/qtbase_de.qm)
  endif()
endforeach()
# Windows without a screen, for tests and pictures.
foreach(ziel tonkartei tonkartei-bediener bediener-uebung test_oberflaeche_qt test_fensterbaum)
  if(TARGET ${ziel})
    qt_import_plugins(${ziel} INCLUDE Qt6::QOffscreenIntegrationPlugin)
  endif()
endforeach()
