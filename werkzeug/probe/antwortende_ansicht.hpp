// A user who answers from a row and does something while events run; writes down what was asked.
#pragma once

#include <deque>
#include <functional>
#include <utility>

#include "probe/stumme_ansicht.hpp"

namespace tonkartei {

class Antwortende_Ansicht : public Stumme_Ansicht {
public:
    std::deque<Antwort> Antworten;  // to questions; the default when there is none left
    std::deque<Text> Eingaben;      // to input boxes and folder choices; cancelled when there is none left
    Text Datei;                     // to file choices
    std::function<void()> Runde;    // what happens while events run
    int Ereignisrunden = 0;

    Antwort melden(const Meldungsfeld& feld) override {
        const Antwort vorgabe = Stumme_Ansicht::melden(feld);
        return feld.art == Meldungsfeld::Art::Frage ? nächste(Antworten, vorgabe) : vorgabe;
    }
    Text eingeben(const Text& text, const Text& titel, const Text& vorgabe) override {
        Meldungen.push_back(titel + "|" + text + "|" + vorgabe);
        return nächste(Eingaben, Text{});
    }
    Text Verzeichnis_wählen(const Text& titel) override {
        Meldungen.push_back(titel);
        return nächste(Eingaben, Text{});
    }
    Text Datei_wählen(const Dateiwahl& wahl) override {
        Meldungen.push_back((wahl.speichern ? "speichern" : "öffnen") + wahl.vorschlag);
        return Datei;
    }
    void Ereignisse_laufen_lassen() override {
        ++Ereignisrunden;
        if (Runde) Runde();
    }
    // What was asked since the last look.
    std::vector<Text> gefragt() { return std::exchange(Meldungen, {}); }

private:
    template <class T>
    static T nächste(std::deque<T>& reihe, T sonst) {
        if (reihe.empty()) return sonst;
        T antwort = std::move(reihe.front());
        reihe.pop_front();
        return antwort;
    }
};

}  // namespace tonkartei
