// The kinds of parts, one maker each; Bauteil::machen chooses.
#pragma once

#include <memory>

#include "oberflaeche/qt/bauteil.hpp"

namespace tonkartei {

using Bauteil_Zeiger = std::unique_ptr<Bauteil>;

Bauteil_Zeiger Knopf_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Kasten_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Option_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Schrift_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Rahmen_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Fläche_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Balken_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Eingabe_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Regler_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Dreistufer_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Liste_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Auswahl_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Reiter_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);
Bauteil_Zeiger Symbol_machen(Umfeld& umfeld, Fensterwidget& fenster, Element& element);

}  // namespace tonkartei
