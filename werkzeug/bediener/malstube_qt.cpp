#include <QCoreApplication>
#include <string>

#include "bediener/malstube.hpp"
#include "oberflaeche/qt/fenstermaler_qt.hpp"
#include "oberflaeche/qt/qt_umgebung.hpp"

namespace tonkartei {
namespace {

class Stube : public Malstube {
public:
    Stube(Ansicht& ansicht, const char* programmname) : name_(programmname), maler_(ansicht) {}

    Fenstermaler& maler() override { return maler_; }
    std::function<void()> pumpen() override {
        return [this] {
            maler_.abgleichen();
            QCoreApplication::processEvents();
        };
    }
    Bildspeicher bild() override {
        return {[this](Fenster& fenster, const Text& datei) { return maler_.Bild_speichern(fenster, datei); },
                [this](const Menüpunkt& wurzel, const Text& datei) { return maler_.Bild_speichern(wurzel, datei); },
                [this](const Meldungsfeld& feld, const Text& datei) { return maler_.Bild_speichern(feld, datei); },
                [this](const Eingabefeld& feld, const Text& datei) { return maler_.Bild_speichern(feld, datei); }};
    }

private:
    // Qt keeps references to its arguments for the life of the process.
    std::string name_;
    char* argumente_[2]{name_.data(), nullptr};
    int anzahl_ = 1;
    Qt_Umgebung umgebung_{anzahl_, argumente_};
    Fenstermaler_Qt maler_;
};

}  // namespace

std::unique_ptr<Malstube> Malstube_Qt(Ansicht& ansicht, const char* programmname) {
    return std::make_unique<Stube>(ansicht, programmname);
}

}  // namespace tonkartei
