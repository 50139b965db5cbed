// Message, input and choice boxes as Qt dialogs. They run their own loop and return with the answer.
#pragma once

#include <QStringList>
#include <memory>
#include <optional>

#include "oberflaeche/ansicht.hpp"

class QInputDialog;
class QMessageBox;
class QWidget;

namespace tonkartei {

Antwort Meldung_zeigen(const Meldungsfeld& feld, QWidget* eltern);
Text Eingabe_zeigen(const Text& text, const Text& titel, const Text& vorgabe, QWidget* eltern);
Text Ordnerwahl_zeigen(const Text& titel, QWidget* eltern);
Text Dateiwahl_zeigen(const Dateiwahl& wahl, QWidget* eltern);
std::optional<Farbe> Farbwahl_zeigen(Farbe vorgabe, QWidget* eltern);

// The boxes alone, not shown yet.
std::unique_ptr<QMessageBox> Meldungskasten(const Meldungsfeld& feld, QWidget* eltern);
std::unique_ptr<QInputDialog> Eingabekasten(const Text& text, const Text& titel, const Text& vorgabe, QWidget* eltern);

// "WinAmp-Playlist (*.M3U)|*.M3U|Alle Dateien (*.*)|*.*" in Qt's form; names match whatever their case, "*.*" means all.
QStringList Namensfilter(const Text& filter);

}  // namespace tonkartei
