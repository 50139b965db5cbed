#include "oberflaeche/qt/qt_umgebung.hpp"

#include <QApplication>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QToolTip>
#include <QTranslator>

#include "oberflaeche/qt/bilder.hpp"
#include "oberflaeche/qt/farben.hpp"
#include "oberflaeche/qt/stil.hpp"

namespace tonkartei {

struct Qt_Umgebung::Innen {
    QApplication anwendung;
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
    QApplication::setStyle(new Stil);
    QApplication::setPalette(Farbtafel());
    QToolTip::setPalette(Farbtafel());
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

const Text& Qt_Umgebung::Kommandozeile() const noexcept { return innen_->kommandozeile; }

}  // namespace tonkartei
