// The window under every dialog that returns a value: it is asked, events run while it waits, and it answers.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "oberflaeche/ansicht.hpp"
#include "oberflaeche/fenster.hpp"

namespace tonkartei {

// Events run while a dialog waits, so it may be asked again before it has answered. Which of the two happens then is told at
// its making.
enum class Zweitfrage {
    // The waiting dialog comes to the front and the second question goes unanswered at once: there is one window, and the
    // user is just answering the first. What asks anew from a menu is cancelled by that, as by a press on "Abbruch".
    abweisen,
    // It goes first, and the first is put again afterwards. For questions that must have an answer. Such a dialog is hidden
    // after its last answer, not unloaded.
    vorziehen,
};

template <class T>
class Wartedialog : public Fenster {
protected:
    Wartedialog(Ansicht& ansicht, Text name, Text titel, Zweitfrage zweite = Zweitfrage::abweisen)
        : Fenster(ansicht, std::move(name), std::move(titel)), zweite_(zweite) {}

    // Shows the window and waits. `füllen` brings the question into the loaded window. None when it was closed without an
    // answer.
    std::optional<T> fragen(const std::function<void()>& füllen, Element& zuerst) { return fragen(füllen, zuerst, false); }
    // The same with all other windows blocked.
    std::optional<T> modal_fragen(const std::function<void()>& füllen, Element& zuerst) {
        return fragen(füllen, zuerst, true);
    }
    // The answer to the question that is up; the dialog goes.
    void antworten(T antwort) {
        if (fragen_.empty()) return;
        fragen_.back()->antwort = std::move(antwort);
        if (zweite_ == Zweitfrage::abweisen) entladen();
    }
    bool wartet() const noexcept { return !fragen_.empty(); }

private:
    struct Frage {
        const std::function<void()>& füllen;
        std::optional<T> antwort;
    };
    struct Platz {
        std::vector<Frage*>& fragen;
        Platz(std::vector<Frage*>& f, Frage& neue) : fragen(f) { fragen.push_back(&neue); }
        ~Platz() { fragen.pop_back(); }
        Platz(const Platz&) = delete;
        Platz& operator=(const Platz&) = delete;
    };

    std::optional<T> fragen(const std::function<void()>& füllen, Element& zuerst, bool modal) {
        if (wartet() && zweite_ == Zweitfrage::abweisen) {
            zeigen();
            return std::nullopt;
        }
        Frage frage{füllen, std::nullopt};
        const bool war_aktiv = aktiv();
        {
            const Platz platz(fragen_, frage);
            laden();
            aktiv(true);
            füllen();
            if (modal) {
                zeigen_modal(&zuerst);
            } else {
                zeigen();
                ansicht().fokus(zuerst);
                ansicht().warten_bis(*this, [&] { return frage.antwort.has_value() || !geladen(); });
            }
        }
        if (wartet()) {
            // Back to the question before, which may be waiting for another window.
            fragen_.back()->füllen();
            aktiv(war_aktiv);
        } else if (zweite_ == Zweitfrage::vorziehen) {
            verstecken();
        } else {
            entladen();
        }
        return std::move(frage.antwort);
    }

    Zweitfrage zweite_;
    std::vector<Frage*> fragen_;  // the one that waits for its answer behind
};

}  // namespace tonkartei
