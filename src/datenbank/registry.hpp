// The settings' own way into the registry: every setting is a key of its own whose default value holds it, as text.
#pragma once

#include "grundlagen/text.hpp"
#include "grundlagen/zahl.hpp"
#include "plattform/registrierung.hpp"

namespace tonkartei {

// Failures are ignored: reading leaves the variable as it is, writing does nothing.
class Registry {
public:
    explicit Registry(Registrierung& registrierung) : registrierung_(registrierung) {}

    // Root of all later calls.
    void Registry_Wurzel(Registrierung::Schlüssel Hauptschlüssel, const Text& Pfad);

    // "\" in a name is a further level. An empty text is stored as one blank, since an empty value must not be stored.
    void Wert_schreiben(const Text& Name, const Text& Wert);
    void Byte_schreiben(const Text& Name, Byte Wert);
    void Long_schreiben(const Text& Name, Long Wert);
    void Bool_schreiben(const Text& Name, bool Wert);

    // Each leaves its variable as it is when there is nothing to read, or when a number does not fit. Zero characters are
    // taken out of a text, blanks cut from its ends; a double word counts as its decimal text.
    void Wert_lesen(const Text& Name, Text& Wert) const;
    void Byte_lesen(const Text& Name, Byte& Wert) const;
    void Long_lesen(const Text& Name, Long& Wert) const;
    // Exactly "True" is true, any other text that is not empty false.
    void Bool_lesen(const Text& Name, bool& Wert) const;

    // Brings what was written to the disk.
    void sichern();
    // Deletes the root key with everything below it.
    void alles_löschen();

private:
    Text Schlüsselpfad(const Text& Name) const { return pfad_ + "\\" + Name; }
    bool vorhanden(const Text& pfad) const;
    void anlegen(const Text& pfad);

    Registrierung& registrierung_;
    Registrierung::Schlüssel haupt_ = HKEY_CURRENT_USER;
    Text pfad_;
};

}  // namespace tonkartei
