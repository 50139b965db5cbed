#include "datenbank/text_form.hpp"

#include "plattform/kanaele.hpp"

namespace tonkartei {
namespace {

struct Ersatz {
    const char* zeichen;
    int code;
};

constexpr Ersatz Ersetzungen[] = {{"\n", 127}, {"\r", 128}, {"\"", 129}, {",", 130}};

}  // namespace

void Text_schreiben(Kanäle& kanäle, int Dateinummer, const Text& text) {
    // Nearly all names: nothing to replace, and nothing to copy.
    if (text.find_first_of("\n\r\",") == Text::npos) {
        kanäle.schreibe_Zeile(Dateinummer, text);
        return;
    }
    Text form = text;
    for (const Ersatz& ersatz : Ersetzungen) form = ersetzt(form, ersatz.zeichen, Zeichen(ersatz.code));
    kanäle.schreibe_Zeile(Dateinummer, form);
}

Text Text_lesen(Kanäle& kanäle, int Dateinummer) {
    Text text = kanäle.lese_Wert(Dateinummer);
    for (const Ersatz& ersatz : Ersetzungen) text = ersetzt(text, Zeichen(ersatz.code), ersatz.zeichen);
    return text;
}

}  // namespace tonkartei
