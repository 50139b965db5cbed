// The album manager put together: its window, its commands in the main menu, the import.
#pragma once

#include "alben/albenraum.hpp"
#include "albenverwaltung/alben_verwaltung.hpp"
#include "albenverwaltung/albenarbeit.hpp"
#include "albenverwaltung/album_importieren.hpp"
#include "albenverwaltung/album_titel_liste.hpp"

namespace tonkartei {

struct Datenbankraum;

class Albenverwaltung {
public:
    Albenverwaltung(Datenbankraum& datenbank, Albenraum& alben, const Albenarbeit::Nachbarn& nachbarn);
    Albenverwaltung(const Albenverwaltung&) = delete;
    Albenverwaltung& operator=(const Albenverwaltung&) = delete;

    Albenarbeit arbeit;
    Alben_Verwaltung fenster;
    Album_Titel_Liste titel_liste;
    Album_importieren import;

    // The menu's commands.
    void zeige_Alben_Verwaltung();
    void Alben_Verwaltung_zentrieren();
    void Lieder_add_to_Album() { fenster.alle_aus_Datenbank_hinzufügen(); }
    bool Alben_offen() const noexcept { return fenster.geladen(); }

private:
    void verbinden();
    bool Alben_bereit();
    void importieren();
    void beim_Schließen();

    Datenbankraum& datenbank_;
    Albenraum& alben_;
    Listenbereich& hauptliste_;
};

}  // namespace tonkartei
