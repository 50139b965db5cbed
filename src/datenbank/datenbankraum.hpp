// The collection's own room, put together: its files, the session, the settings' store.
#pragma once

#include "datenbank/datenbank_oeffnen.hpp"
#include "datenbank/haus.hpp"
#include "datenbank/info_datei.hpp"
#include "datenbank/m3u.hpp"
#include "datenbank/registry.hpp"
#include "datenbank/sitzung.hpp"
#include "datenbank/zugriffsdatei.hpp"

namespace tonkartei {

struct Datenbankraum {
    explicit Datenbankraum(Haus& haus);
    ~Datenbankraum() { haus.ansicht.vor_dem_Absturz = nullptr; }
    Datenbankraum(const Datenbankraum&) = delete;
    Datenbankraum& operator=(const Datenbankraum&) = delete;

    Haus& haus;
    Registry registry;
    Info_Datei info;
    Zugriffsdatei zugriff;
    Sitzung sitzung;
    Datenbank_öffnen öffnen;
    M3U m3u;
};

}  // namespace tonkartei
