#include "grundlagen/fehler.hpp"

namespace tonkartei {
namespace {

Text Name_des_Fehlers(int nummer) {
    switch (nummer) {
        case Fehler_Überlauf: return "Überlauf";
        case Fehler_Index: return "Index außerhalb des gültigen Bereichs";
        case Fehler_Division: return "Division durch Null";
        case Fehler_Typ: return "Typen unverträglich";
        case 52: return "Dateiname oder Dateinummer falsch";
        case 53: return "Datei nicht gefunden";
        case 54: return "Dateimodus falsch";
        case 55: return "Datei bereits geöffnet";
        case 57: return "E/A-Fehler des Geräts";
        case 58: return "Datei existiert bereits";
        case 61: return "Datenträger voll";
        case 62: return "Eingabe hinter dem Dateiende";
        case 67: return "Zu viele Dateien";
        case 70: return "Zugriff verweigert";
        case 74: return "Umbenennen auf ein anderes Laufwerk nicht möglich";
        case 75: return "Fehler beim Zugriff auf Pfad/Datei";
        case 76: return "Pfad nicht gefunden";
        default: return "Anwendungs- oder objektdefinierter Fehler";
    }
}

}  // namespace

Laufzeitfehler::Laufzeitfehler(int nummer) : Laufzeitfehler(nummer, Name_des_Fehlers(nummer)) {}

Laufzeitfehler::Laufzeitfehler(int nummer, const Text& text) : std::runtime_error(text), nummer_(nummer) {}

}  // namespace tonkartei
