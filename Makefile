# Shortcuts. The build itself is CMake's; its variants are the presets in CMakePresets.json.

PREFIX ?= /usr/local
DESTDIR ?=
export DESTDIR

RELEASE := build/release
KERNE   := $(shell nproc 2>/dev/null || echo 2)
QUELLEN := src werkzeug tests leistung

.PHONY: help run test stil pruefen tour bench format install paket handbuch bediener bauen \
        windows windows-bauen test-windows
.NOTPARALLEL:
MAKEFLAGS += --no-print-directory

help:
	@echo 'make run       install what is missing, build, start Tonkartei (the tour where there is no display)'
	@echo 'make test      build and run every test, then again under the sanitizers, fuzzers included'
	@echo 'make stil      format and shellcheck'
	@echo 'make pruefen   format, clang-tidy, shellcheck, the rules of the house; a second run looks only at what has changed'
	@echo 'make tour      play the main job without a screen; pictures of the windows land in build/tour'
	@echo 'make bench     measure; fails when a ratio is above its limit'
	@echo 'make bediener  build the operator that works the windows by name; the last line is its path'
	@echo 'make format    clang-format over all sources'
	@echo 'make install   install below PREFIX ($(PREFIX)), DESTDIR in front'
	@echo 'make handbuch  the handbook as a page for the browser, build/handbuch/handbuch.html'
	@echo 'make windows   cross-build for Windows: Tonkartei.exe, WinAmp.Exe and a zip of both in build/windows'
	@echo 'make test-windows  run the tests of the Windows build under Wine'
	@echo 'make paket     build a Debian package in $(RELEASE), the handbook in it'

# Targets by the file they make, so that only what is needed is built.
bauen:
	@sh skripte/einrichten.sh
	@cmake --preset release
	@cmake --build --preset release --target bin/tonkartei bin/WinAmp.Exe

run:
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	    $(MAKE) bauen && exec $(RELEASE)/bin/tonkartei; \
	else \
	    echo 'No display here (DISPLAY and WAYLAND_DISPLAY are empty): playing the tour instead.'; \
	    exec $(MAKE) tour; \
	fi

test:
	@sh skripte/einrichten.sh
	@cmake --preset release
	@cmake --build --preset release
	@ctest --preset release -j $(KERNE) -LE fuzz
	@cmake --preset sanitizer
	@cmake --build --preset sanitizer
	@ctest --preset sanitizer -j $(KERNE)
	@sh skripte/anteil.sh

stil:
	@sh skripte/einrichten.sh pruefen
	@find $(QUELLEN) -name '*.[ch]pp' | xargs clang-format --dry-run -Werror
	@shellcheck .ci/run skripte/*.sh

pruefen: stil
	@cmake --preset pruefung
	@cmake --build --preset pruefung --target test_haus
	@build/pruefung/bin/test_haus --gtest_brief=1
	@cmake --build --preset pruefung -- -k 0

tour: bediener
	@sh skripte/einrichten.sh tour
	@bash skripte/tour.sh

bench:
	@sh skripte/einrichten.sh leistung
	@cmake --preset leistung
	@cmake --build --preset leistung
	@sh skripte/bench.sh build/leistung/bin

format:
	@sh skripte/einrichten.sh format
	@find $(QUELLEN) -name '*.[ch]pp' | xargs clang-format -i

install: bauen
	@cmake --install $(RELEASE) --prefix '$(PREFIX)'

# Its pictures are the tour's, of whatever age.
handbuch:
	@[ -e build/tour/tonkartei.png ] || $(MAKE) tour
	@sh skripte/handbuch.sh

paket: bauen handbuch
	@sh skripte/einrichten.sh paket
	@cd $(RELEASE) && cpack -G DEB

bediener:
	@sh skripte/einrichten.sh
	@cmake --preset release
	@cmake --build --preset release --target bin/tonkartei-bediener bin/WinAmp.Exe
	@echo '$(CURDIR)/$(RELEASE)/bin/tonkartei-bediener'

windows-bauen:
	@sh skripte/einrichten.sh windows
	@sh skripte/windows_vorrat.sh
	@cmake --preset windows

windows: windows-bauen
	@cmake --build --preset windows --target bin/Tonkartei.exe bin/WinAmp.Exe
	@sh skripte/windows_paket.sh

test-windows: windows-bauen
	@cmake --build --preset windows
	@sh skripte/windows_test.sh -j $(KERNE)
