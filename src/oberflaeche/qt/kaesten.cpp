#include "oberflaeche/qt/kaesten.hpp"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

#include "oberflaeche/qt/umrechnung.hpp"

namespace tonkartei {
namespace {

struct Knopfart {
    Antwort antwort;
    QMessageBox::StandardButton art;
    const char* beschriftung;
};

constexpr Knopfart Knopfarten[] = {
    {Antwort::OK, QMessageBox::Ok, "OK"},
    {Antwort::Ja, QMessageBox::Yes, "&Ja"},
    {Antwort::Nein, QMessageBox::No, "&Nein"},
    {Antwort::Abbrechen, QMessageBox::Cancel, "Abbrechen"},
};

bool hat_Knopf(Meldungsfeld::Knöpfe knöpfe, Antwort antwort) {
    switch (antwort) {
        case Antwort::OK: return knöpfe == Meldungsfeld::Knöpfe::OK;
        case Antwort::Ja:
        case Antwort::Nein: return knöpfe != Meldungsfeld::Knöpfe::OK;
        case Antwort::Abbrechen: return knöpfe == Meldungsfeld::Knöpfe::JaNeinAbbrechen;
    }
    return false;
}

// Of an input box.
constexpr int Zeichen_je_Zeile = 60;

Text Pfad(const QString& name) { return QDir::toNativeSeparators(name).toStdString(); }

Text Pfad_wählen(QFileDialog& dialog) {
    dialog.setSupportedSchemes({QStringLiteral("file")});
    // Qt goes on where the last choice was; before the first one it would begin where the program was started.
    const QString musik = QStandardPaths::writableLocation(QStandardPaths::MusicLocation);
    if (dialog.directory() == QDir() && QDir(musik).exists()) dialog.setDirectory(musik);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return Pfad(dialog.selectedFiles().constFirst());
}

}  // namespace

std::unique_ptr<QMessageBox> Meldungskasten(const Meldungsfeld& feld, QWidget* eltern) {
    auto kasten = std::make_unique<QMessageBox>(eltern);
    kasten->setWindowTitle(Anzeigetext(feld.titel));
    kasten->setTextFormat(Qt::PlainText);
    kasten->setText(Anzeigeabsätze(feld.text));
    kasten->setIcon(feld.art == Meldungsfeld::Art::Frage ? QMessageBox::Question : QMessageBox::Information);
    for (const Knopfart& knopf : Knopfarten) {
        if (!hat_Knopf(feld.knöpfe, knopf.antwort)) continue;
        QPushButton* gemacht = kasten->addButton(knopf.art);
        gemacht->setText(QString::fromUtf8(knopf.beschriftung));
        gemacht->setIcon(QIcon());
        if (feld.vorgabe == knopf.antwort) kasten->setDefaultButton(gemacht);
    }
    return kasten;
}

Antwort Meldung_zeigen(const Meldungsfeld& feld, QWidget* eltern) {
    const int gedrückt = Meldungskasten(feld, eltern)->exec();
    for (const Knopfart& knopf : Knopfarten)
        if (knopf.art == gedrückt) return knopf.antwort;
    return feld.vorgabe;
}

std::unique_ptr<QInputDialog> Eingabekasten(const Text& text, const Text& titel, const Text& vorgabe, QWidget* eltern) {
    auto kasten = std::make_unique<QInputDialog>(eltern);
    kasten->setWindowTitle(Anzeigetext(titel));
    // Qt would take "&" for an access key.
    kasten->setLabelText(Anzeigeabsätze(text).replace(QLatin1Char('&'), QLatin1String("&&")));
    kasten->setTextValue(Anzeigetext(vorgabe));
    kasten->setOkButtonText(QStringLiteral("OK"));
    kasten->setCancelButtonText(QStringLiteral("Abbrechen"));
    // Whole paragraphs would make a box wider than the screen.
    const int breite = Zeichen_je_Zeile * kasten->fontMetrics().averageCharWidth();
    for (auto* schrift : kasten->findChildren<QLabel*>()) {
        schrift->setWordWrap(true);
        schrift->setMinimumSize(breite, schrift->heightForWidth(breite));
    }
    kasten->resize(kasten->sizeHint());
    return kasten;
}

Text Eingabe_zeigen(const Text& text, const Text& titel, const Text& vorgabe, QWidget* eltern) {
    const auto kasten = Eingabekasten(text, titel, vorgabe, eltern);
    if (kasten->exec() != QDialog::Accepted) return {};
    // What the user left as it was keeps its bytes.
    return kasten->textValue() == Anzeigetext(vorgabe) ? vorgabe : aus_Qt(kasten->textValue());
}

Text Ordnerwahl_zeigen(const Text& titel, QWidget* eltern) {
    QFileDialog dialog(eltern, Anzeigetext(titel));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return Pfad_wählen(dialog);
}

Text Dateiwahl_zeigen(const Dateiwahl& wahl, QWidget* eltern) {
    QFileDialog dialog(eltern);
    dialog.setAcceptMode(wahl.speichern ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(wahl.muss_existieren && !wahl.speichern ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // Whether a file may be overwritten is the program's question.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(Namensfilter(wahl.filter));
    if (!wahl.vorschlag.empty()) dialog.selectFile(QString::fromStdString(wahl.vorschlag));
    return Pfad_wählen(dialog);
}

std::optional<Farbe> Farbwahl_zeigen(Farbe vorgabe, QWidget* eltern) {
    QColorDialog dialog(vorgabe == Farbe_Standard ? QColor(Qt::white) : Qt_Farbe(vorgabe), eltern);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    const QColor farbe = dialog.selectedColor();
    return RGB(farbe.red(), farbe.green(), farbe.blue());
}

QStringList Namensfilter(const Text& filter) {
    const QStringList teile = Anzeigetext(filter).split(QLatin1Char('|'));
    QStringList filterliste;
    for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
        QStringList muster;
        for (QString eines : teile.at(i + 1).split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            eines = eines.trimmed();
            if (eines == QLatin1String("*.*")) eines = QStringLiteral("*");
            muster << eines.toUpper() << eines.toLower();
        }
        muster.removeDuplicates();
        // The patterns in the name are for people; Qt puts its own there.
        static const QRegularExpression klammer(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
        const QString name = QString(teile.at(i)).remove(klammer).trimmed();
        filterliste << name + QLatin1String(" (") + muster.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return filterliste;
}

}  // namespace tonkartei
