#include "wiedergabe/winamp/winamp_programm.hpp"

#include <utility>

#include "datenbank/einstellungen.hpp"
#include "plattform/dateisystem.hpp"
#include "plattform/rechner.hpp"
#include "plattform/shell.hpp"
#include "wiedergabe/winamp/winamp.hpp"

namespace tonkartei {
namespace {

constexpr const char* Programmdatei = "WinAmp.Exe";
constexpr int minimiert_mit_Fokus = 2;
constexpr int Anlauf_ms = 1000;

}  // namespace

WinAmp_Programm::WinAmp_Programm(Text Klasse, const Einstellungen& einstellungen, Dateisystem& dateien, Shell& shell,
                                 Rechner& rechner)
    : Klasse_(std::move(Klasse)), einstellungen_(einstellungen), dateien_(dateien), shell_(shell), rechner_(rechner) {}

Text WinAmp_Programm::Pfad() const { return einstellungen_.WinAmp_Verzeichnis + Programmdatei; }

bool WinAmp_Programm::WinAmp_existiert() const { return dateien_.Datei_da(Pfad()); }

Text WinAmp_Programm::Befehl(const Text& Parameter) const {
    Text befehl = Pfad() + " /CLASS=" + in_Anführungszeichen(WinAmp_Klasse);
    if (Klasse_ != WinAmp_Klasse) befehl += " /NEW /CLASS=" + in_Anführungszeichen(Klasse_);
    if (!Parameter.empty()) befehl += " " + Parameter;
    return befehl;
}

void WinAmp_Programm::starten(const Text& Parameter) {
    shell_.starten(Befehl(Parameter), minimiert_mit_Fokus);
    rechner_.Sleep(Anlauf_ms);
}

}  // namespace tonkartei
