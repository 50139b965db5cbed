#include "oberflaeche/qt/qt_umgebung.hpp"

#include <QApplication>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QToolTip>
#include <QTranslator>
#include <optional>

#include "oberflaeche/qt/bilder.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/stil.hpp"
#include "oberflaeche/qt/zugang.hpp"

namespace tonkartei {
namespace {

std::optional<Farbschema> gewünschtes_Schema() {
    const QByteArray wunsch = qgetenv("TONKARTEI_FARBEN");
    if (wunsch == "hell") return Farbschema::hell;
    if (wunsch == "dunkel") return Farbschema::dunkel;
    if (wunsch == "kontrast") return Farbschema::kontrast_dunkel;
    if (wunsch == "kontrast-hell") return Farbschema::kontrast_hell;
    return std::nullopt;
}

void Farben_setzen(Farbschema schema) {
    const QPalette tafel = Farbtafel(schema);
    QApplication::setPalette(tafel);
    QToolTip::setPalette(tafel);
}

}  // namespace

struct Qt_Umgebung::Innen {
    QApplication anwendung;
    Zugangswache zugang;
    QTranslator deutsch;
    Text kommandozeile;

    Innen(int& argc, char** argv) : anwendung(argc, argv) {
        for (int i = 1; i < argc; ++i) {
            if (i > 1) kommandozeile += " ";
            kommandozeile += argv[i];
        }
    }
};

Qt_Umgebung::Qt_Umgebung(int& argc, char** argv) {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    innen_ = std::make_unique<Innen>(argc, argv);
    QApplication& anwendung = innen_->anwendung;
    QCoreApplication::setApplicationName(QStringLiteral("Tonkartei"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tonkartei"));
    // The model decides when the program ends.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const bool dunkler_Schreibtisch = ist_dunkel(QGuiApplication::palette().color(QPalette::Window));
    QApplication::setStyle(new Stil);
    Farben_setzen(gewünschtes_Schema().value_or(dunkler_Schreibtisch ? Farbschema::dunkel : Farbschema::hell));
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        // No desktop that would say a font: always the same one, so that pictures can be compared.
        QFont schrift(QStringLiteral("DejaVu Sans"));
        schrift.setPixelSize(13);
        QApplication::setFont(schrift);
    }
    QGuiApplication::setWindowIcon(Programmsymbol());
    // Qt's own German: the system's, or what the program was built with.
    const QString deutsch = QStringLiteral("qtbase_de");
    if (innen_->deutsch.load(deutsch, QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        innen_->deutsch.load(deutsch, QStringLiteral(":/uebersetzungen")))
        QCoreApplication::installTranslator(&innen_->deutsch);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    anwendung.setEffectEnabled(Qt::UI_AnimateCombo, false);
}

Qt_Umgebung::~Qt_Umgebung() = default;

void Qt_Umgebung::Schema_setzen(Farbschema schema) {
    if (!gewünschtes_Schema()) Farben_setzen(schema);
}

const Text& Qt_Umgebung::Kommandozeile() const noexcept { return innen_->kommandozeile; }

}  // namespace tonkartei
