# The machine that is built for, chosen here and nowhere in the source: its annex and the tests of it, what it links, and the
# separator of its paths (as a number, since no quoting gets through every build tool).
if(WIN32)
  set(TONKARTEI_MASCHINE windows)
  set(TONKARTEI_MASCHINE_BIBLIOTHEKEN ole32 shell32 uuid)
  set(TONKARTEI_TRENNER 92)
else()
  set(TONKARTEI_MASCHINE linux)
  set(TONKARTEI_MASCHINE_BIBLIOTHEKEN)
  set(TONKARTEI_TRENNER 47)
endif()
