// What plays, seen and worked from the desktop's side: the real program and its player on a bus of the test's own.
#include <systemd/sd-bus.h>

#include <optional>

#include "echt/abspielen.hpp"

namespace tonkartei {
namespace {

// A bus, for as long as it lives.
class Bus {
public:
    Bus() {
        int rohr[2];
        if (::pipe(rohr) != 0) return;
        prozess_ = ::fork();
        if (prozess_ == 0) {
            ::dup2(rohr[1], 1);
            ::execlp("dbus-daemon", "dbus-daemon", "--session", "--nofork", "--print-address", nullptr);
            ::_exit(127);
        }
        ::close(rohr[1]);
        for (char zeichen = 0; ::read(rohr[0], &zeichen, 1) == 1 && zeichen != '\n';) adresse += zeichen;
        ::close(rohr[0]);
        sd_bus_new(&bus_);
        sd_bus_set_address(bus_, adresse.c_str());
        sd_bus_set_bus_client(bus_, 1);
        da = sd_bus_start(bus_) >= 0;
    }
    ~Bus() {
        sd_bus_flush_close_unref(bus_);
        ::kill(prozess_, SIGKILL);
        ::waitpid(prozess_, nullptr, 0);
    }
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    // The name on the bus that begins so; empty none.
    std::string Name(const std::string& anfang) {
        char** namen = nullptr;
        if (sd_bus_list_names(bus_, &namen, nullptr) < 0) return {};
        std::string gefunden;
        for (char** name = namen; *name != nullptr; std::free(*name++))
            if (std::string(*name).starts_with(anfang)) gefunden = *name;
        std::free(namen);
        return gefunden;
    }
    bool rufen(const std::string& wen, const char* schnittstelle, const char* was, std::optional<std::int64_t> zahl = {}) {
        return (zahl ? sd_bus_call_method(bus_, wen.c_str(), Objekt, schnittstelle, was, nullptr, nullptr, "x", *zahl)
                     : sd_bus_call_method(bus_, wen.c_str(), Objekt, schnittstelle, was, nullptr, nullptr, "")) >= 0;
    }
    std::string Zustand(const std::string& wen) {
        char* text = nullptr;
        sd_bus_get_property_string(bus_, wen.c_str(), Objekt, Spieler, "PlaybackStatus", nullptr, &text);
        std::string wert = text == nullptr ? "" : text;
        std::free(text);
        return wert;
    }
    std::int64_t Stelle(const std::string& wen) {
        std::int64_t wert = -1;
        sd_bus_get_property_trivial(bus_, wen.c_str(), Objekt, Spieler, "Position", nullptr, 'x', &wert);
        return wert;
    }
    void Lautstärke(const std::string& wen, double wert) {
        sd_bus_set_property(bus_, wen.c_str(), Objekt, Spieler, "Volume", nullptr, "d", wert);
    }
    // The song's texts and numbers, one after the other: "T/A1/60000000".
    std::string Angaben(const std::string& wen) {
        sd_bus_message* antwort = nullptr;
        if (sd_bus_get_property(bus_, wen.c_str(), Objekt, Spieler, "Metadata", nullptr, &antwort, "a{sv}") < 0) return {};
        std::map<std::string, std::string> werte;
        sd_bus_message_enter_container(antwort, 'a', "{sv}");
        while (sd_bus_message_enter_container(antwort, 'e', "sv") > 0) {
            const char *name = nullptr, *art = nullptr, *text = "";
            std::int64_t zahl = 0;
            sd_bus_message_read(antwort, "s", &name);
            sd_bus_message_peek_type(antwort, nullptr, &art);
            sd_bus_message_enter_container(antwort, 'v', art);
            const std::string typ = art;
            if (typ == "as") sd_bus_message_enter_container(antwort, 'a', "s");
            typ == "x" ? sd_bus_message_read(antwort, "x", &zahl)
                       : sd_bus_message_read(antwort, typ == "o" ? "o" : "s", &text);
            werte[name] = typ == "x" ? std::to_string(zahl) : text;
            if (typ == "as") sd_bus_message_exit_container(antwort);
            sd_bus_message_exit_container(antwort);
            sd_bus_message_exit_container(antwort);
        }
        sd_bus_message_unref(antwort);
        return werte["xesam:title"] + "/" + werte["xesam:artist"] + "/" + werte["mpris:length"];
    }

    static constexpr const char *Objekt = "/org/mpris/MediaPlayer2", *Spieler = "org.mpris.MediaPlayer2.Player";
    std::string adresse;
    bool da = false;

private:
    pid_t prozess_ = 0;
    sd_bus* bus_ = nullptr;
};

struct Medien : Abspielen {
    Bus bus;

    // Within ten seconds.
    template <class Bedingung>
    static bool gleich(Bedingung bedingung) {
        for (int i = 0; i < 200; ++i) {
            if (bedingung()) return true;
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return false;
    }
    pid_t Programm_starten() {
        ordner.ordner("einst/tonkartei");
        ::mkdir(ordner.pfad("lauf").c_str(), 0700);
        const std::string wurzel = "[HKEY_CURRENT_USER\\Software\\Tonkartei\\", liste =
                                                                                    "ge\xC3\xB6"
                                                                                    "ffnete Datenbanken\\";
        const auto wert = [&](const std::string& name, const std::string& inhalt) {
            return wurzel + name + "]\r\n@=\"" + inhalt + "\"\r\n\r\n";
        };
        // A player that plays on when the program ends.
        ordner.datei("einst/tonkartei/einstellungen.reg", "REGEDIT4\r\n\r\n" + wert(liste + "Anzahl", "1") +
                                                              wert(liste + "Nr. 1", a) + wert("WinAmp beenden", "1"));
        const pid_t prozess = ::fork();
        if (prozess != 0) return prozess;
        const std::pair<const char*, std::string> umgebung[] = {
            {"QT_QPA_PLATFORM", "offscreen"},         {"XDG_CONFIG_HOME", ordner.pfad("einst")},
            {"XDG_DATA_HOME", ordner.pfad("daten")},  {"XDG_RUNTIME_DIR", ordner.pfad("lauf")},
            {"XDG_STATE_HOME", ordner.pfad("stand")}, {"TONKARTEI_TON", "null"},
            {"DBUS_SESSION_BUS_ADDRESS", bus.adresse}};
        for (const auto& [name, inhalt] : umgebung) ::setenv(name, inhalt.c_str(), 1);
        ::execl(TONKARTEI_PROGRAMM, TONKARTEI_PROGRAMM, nullptr);
        ::_exit(127);
    }
    void TestBody() override {
        ASSERT_TRUE(bus.da);
        lege(2, 60);
        const pid_t programm = Programm_starten();
        const std::string name = "org.mpris.MediaPlayer2.tonkartei";
        const char* spieler = Bus::Spieler;
        ASSERT_TRUE(gleich([&] { return bus.Name(name) == name; })) << "the program speaks";
        EXPECT_EQ(bus.Zustand(name), "Stopped");
        EXPECT_TRUE(bus.rufen(name, spieler, "Next")) << "by chance, as its button does";
        EXPECT_TRUE(gleich([&] { return bus.Zustand(name) == "Playing" && bus.Stelle(name) > 0; }));
        EXPECT_TRUE(gleich([&] {
            const std::string angaben = bus.Angaben(name);
            return angaben == "T/A1/60000000" || angaben == "T/A2/60000000";
        })) << bus.Angaben(name);
        EXPECT_TRUE(bus.rufen(name, spieler, "Seek", 20'000'000));
        EXPECT_TRUE(gleich([&] { return bus.Stelle(name) > 20'000'000; }));
        EXPECT_TRUE(bus.rufen(name, spieler, "PlayPause"));
        EXPECT_TRUE(gleich([&] { return bus.Zustand(name) == "Paused"; }));
        EXPECT_EQ(bus.Name(name + "_spieler"), "") << "one voice at a time";
        EXPECT_TRUE(bus.rufen(name, spieler, "Play"));
        EXPECT_TRUE(gleich([&] { return bus.Zustand(name) == "Playing"; }));
        ::kill(programm, SIGTERM);
        ::waitpid(programm, nullptr, 0);

        // Now the player does.
        ASSERT_TRUE(gleich([&] { return !bus.Name(name + "_spieler").empty(); }));
        const std::string allein = bus.Name(name + "_spieler");
        EXPECT_EQ(bus.Zustand(allein), "Playing");
        EXPECT_GT(bus.Stelle(allein), 20'000'000);
        EXPECT_TRUE(bus.rufen(allein, spieler, "Pause"));
        EXPECT_EQ(bus.Zustand(allein), "Paused");
        EXPECT_TRUE(bus.rufen(allein, "org.mpris.MediaPlayer2", "Quit"));
        EXPECT_TRUE(gleich([&] { return bus.Name(name).empty(); })) << "gone, with its process";
    }
};

TEST(Medien, TheProgramSpeaksThenThePlayer) {
    Medien medien;
    medien.TestBody();
}

}  // namespace
}  // namespace tonkartei
