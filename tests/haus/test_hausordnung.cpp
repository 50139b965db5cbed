#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "haus/hausordnung.hpp"

using namespace tonkartei::haus;

namespace {

std::string Gründe(const std::vector<Verstoß>& verstöße) {
    std::string text;
    for (const Verstoß& v : verstöße) text += v.Datei + ":" + std::to_string(v.Zeile) + ": " + v.Grund + "\n";
    return text;
}

Quellen lies_Projekt(const std::filesystem::path& wurzel) {
    Quellen quellen;
    for (const char* ordner : {"src", "werkzeug", "tests", "leistung"})
        for (const auto& eintrag : std::filesystem::recursive_directory_iterator(wurzel / ordner)) {
            if (const auto art = eintrag.path().extension(); art != ".cpp" && art != ".hpp" && art != ".h") continue;
            std::ifstream strom(eintrag.path(), std::ios::binary);
            quellen[eintrag.path().lexically_relative(wurzel).generic_string()] = {std::istreambuf_iterator<char>(strom),
                                                                                   {}};
        }
    return quellen;
}

// The files that the cases include, each harmless by itself.
Quellen Umgebung() {
    Quellen quellen;
    for (const char* datei :
         {"src/grundlagen/text.hpp", "src/plattform/shell.hpp", "src/plattform/linux/xdg.hpp", "src/oberflaeche/fenster.hpp",
          "src/oberflaeche/qt/ansicht_qt.hpp", "src/mp3/tag.hpp", "src/datenbank/modell.hpp", "src/kategorien/wahl.hpp",
          "src/liste/bereich.hpp", "src/dj/dj.hpp", "src/programm/programm.hpp", "werkzeug/probe/probe.hpp"})
        quellen[datei] = "#pragma once\n";
    quellen["src/liste/bereich.hpp"] = "class A; class B; class C; struct D; class E; class F;\n";
    return quellen;
}

struct Fall {
    const char* Datei;
    const char* Text;
    const char* Grund;  // part of what must be found; empty: nothing may be found
};

}  // namespace

TEST(Hausordnung, FindetWasSieVerbietetUndNurDas) {
    const Fall fälle[] = {
        {"src/grundlagen/a.cpp", "  #  include \"plattform/shell.hpp\"\n", "points up a floor"},
        {"src/mp3/a.cpp", "#include \"../datenbank/modell.hpp\"\n", "points up a floor"},
        {"src/oberflaeche/qt/a.cpp", "#include \"datenbank/modell.hpp\"\n", "points up a floor"},
        {"src/mp3/a.cpp", "#include \"plattform/linux/xdg.hpp\"\n", "only the composition"},
        {"src/programm/a.cpp", "#include \"probe/probe.hpp\"\n", "leaves src/"},
        {"src/programm/a.cpp", "#include \"fehlt.hpp\"\n", "no such file"},
        {"src/programm/a.cpp", "#include <mp3/tag.hpp>\n", "in quotes"},
        {"src/garten/a.cpp", "", "no floor"},
        {"src/mp3/beet/a.cpp", "", "no floor"},
        {"src/dj/a.hpp",
         "class Dj {\npublic:\n    // all\n    explicit Dj(A& a, B& b, const C& c,\n  D* d, E& e, std::map<A, F>& f, F&);",
         "Dj takes 6"},
        {"src/dj/a.hpp", "struct Dj : A { Dj(A& a, B b, const C& c, D* d, E& e, const Text& g, std::function<F&()> f); };",
         ""},
        {"src/mp3/a.cpp", "#include <qglobal.h>\n", "Qt"},
        {"src/programm/main.cpp", "int x = QThread::idealThreadCount();\n", "Qt"},
        {"src/plattform/linux/a.cpp", "#include <QFile>\n", "Qt"},
        {"src/datenbank/a.cpp", "#include <sys/stat.h>\n", "the machine"},
        {"src/datenbank/a.cpp", "int main() { return getpid (); }\n", "the machine"},
        {"src/grundlagen/a.cpp", "#ifdef __linux__\n", "the machine"},
        {"src/wiedergabe/a.cpp", "#include <mpv/client.h>\n", "libmpv"},
        {"src/spieler/mpv/a.cpp", "#include <mpg123.h>\n", "mpg123"},
        {"src/grundlagen/a.cpp", "auto s = \"// \";  auto* p = mpv_create();\n", "libmpv"},
        {"src/grundlagen/a.cpp", "int n = 1'000; char c = '\"'; int y = fork();\n", "the machine"},
        {"src/datenbank/a.cpp", "#include <vector>\n#include \"mp3/tag.hpp\"\n#include \"grundlagen/text.hpp\"\n", ""},
        {"src/oberflaeche/qt/a.cpp", "#include <QWidget>\n#include \"oberflaeche/fenster.hpp\"\n", ""},
        {"src/plattform/linux/a.cpp", "#include <sys/stat.h>\n#include \"xdg.hpp\"\nint a = getpid();\n", ""},
        {"src/spieler/mpv/a.cpp", "#include <mpv/client.h>\n#include <poll.h>\n#include \"plattform/linux/xdg.hpp\"\n", ""},
        {"src/programm/main.cpp",
         "#include \"oberflaeche/qt/ansicht_qt.hpp\"\n#include \"plattform/linux/xdg.hpp\"\n#include \"dj/dj.hpp\"\n", ""},
        {"src/grundlagen/a.cpp", "// QString, mpv_create(), fork()\n/* #include <unistd.h>\n */ int Quicksort;\n", ""},
        {"src/grundlagen/a.cpp", "auto a = \"QString \\\" fork()\"; auto b = R\"x(getpid() \" )x\";\n", ""},
        {"tests/mp3/a.cpp", "#include <unistd.h>\n#include \"mp3/tag.hpp\"\n#include \"probe/probe.hpp\"\n", ""},
    };
    for (const Fall& fall : fälle) {
        Quellen quellen = Umgebung();
        quellen[fall.Datei] = fall.Text;
        const auto verstöße = prüfe(quellen);
        EXPECT_EQ(verstöße.size(), *fall.Grund == '\0' ? 0U : 1U) << fall.Datei << ": " << fall.Text << Gründe(verstöße);
        EXPECT_NE(Gründe(verstöße).find(fall.Grund), std::string::npos) << fall.Text << Gründe(verstöße);
    }
}

TEST(Hausordnung, FindetEineSchleifeÜberMehrereDateien) {
    Quellen quellen = Umgebung();
    quellen["src/mp3/a.hpp"] = "#include \"mp3/b.hpp\"\n";
    quellen["src/mp3/b.hpp"] = "#include \"grundlagen/text.hpp\"\n#include \"c.hpp\"\n";
    quellen["src/mp3/c.hpp"] = "#include \"mp3/a.hpp\"\n";
    EXPECT_EQ(Gründe(prüfe(quellen)),
              "src/mp3/c.hpp:0: include loop: src/mp3/a.hpp > src/mp3/b.hpp > src/mp3/c.hpp > src/mp3/a.hpp\n");
}

TEST(Hausordnung, FindetWasZuGroßIst) {
    Quellen quellen = Umgebung();
    quellen["src/mp3/lang.cpp"] = std::string(400, '\n');
    quellen["tests/groß.cpp"] = std::string(8192, ' ');
    quellen["tests/fast_groß.cpp"] = std::string(8191, ' ');
    EXPECT_EQ(Gründe(prüfe(quellen)), "");
    quellen["src/mp3/lang.cpp"] += '\n';
    quellen["leistung/groß.cpp"] = std::string(8192, ' ');
    EXPECT_EQ(Gründe(prüfe(quellen)), "src/mp3/lang.cpp:0: has 401 lines\n:0: 2 files of 16 are big\n");
}

TEST(Hausordnung, WirdEingehalten) {
    const Quellen quellen = lies_Projekt(TONKARTEI_WURZEL);
    ASSERT_TRUE(quellen.contains("src/grundlagen/text.hpp"));
    EXPECT_EQ(Gründe(prüfe(quellen)), "");
}
