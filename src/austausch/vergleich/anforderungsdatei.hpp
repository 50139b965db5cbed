// *.MAD: the numbers of the songs that another collector asks for.
#pragma once

#include "austausch/nummerndatei.hpp"

namespace tonkartei {

inline constexpr const char* Anforderungsdatei_Filter = "Datenbank-Anforderungsdatei (*.MAD)|*.MAD| Alle Dateien (*.*) |*.*";

class Anforderungsdatei {
public:
    Anforderungsdatei(const Modell& modell, Kanäle& kanäle, Ansicht& ansicht);

    // Each number as text, in the order given. Dateifehler.
    void schreiben(const Text& Datei, const std::vector<Text>& Nummern);
    // The numbers as the file gives them. None when there are none, or when the file is not what it should be, which the
    // user was told.
    std::vector<Long> lesen(const Text& Datei);

private:
    Kanäle& kanäle_;
    Nummerndatei datei_;
};

}  // namespace tonkartei
