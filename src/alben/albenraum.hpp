// The album store with its file and its commands, put together.
#pragma once

#include "alben/alben.hpp"
#include "alben/alben_befehle.hpp"
#include "alben/alben_datei.hpp"
#include "alben/album_start.hpp"
#include "alben/album_waehlen.hpp"

namespace tonkartei {

struct Datenbankraum;

struct Albenraum {
    explicit Albenraum(Datenbankraum& datenbank);
    Albenraum(const Albenraum&) = delete;
    Albenraum& operator=(const Albenraum&) = delete;

    Alben alben;
    Alben_Datei datei;
    Album_wählen wählen;
    Album_Start start;
    Alben_Befehle befehle;
};

}  // namespace tonkartei
