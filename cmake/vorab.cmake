# Qt's headers take longer to read than our files on top of them; the heavy ones are read once for the room (all of
# <QtWidgets> would cost more than it saves). Nothing else is read in advance, since that would hide a missing include.
if(TONKARTEI_VORAB)
  get_target_property(art oberflaeche_qt TYPE)
  if(art STREQUAL STATIC_LIBRARY)
    target_precompile_headers(oberflaeche_qt PRIVATE
      <QApplication> <QWidget> <QPainter> <QLayout> <QStyle> <QAbstractItemView> <QTimer>)
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
      target_compile_options(oberflaeche_qt PRIVATE -fpch-preprocess)  # for ccache
    endif()
  endif()
endif()
