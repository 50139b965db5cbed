#include "lieder/cshfileop.hpp"

#include <gtest/gtest.h>

#include <functional>

#include "grundlagen/fehler.hpp"

namespace tonkartei {
namespace {

struct Shell_Attrappe : Shell {
    Shell_Vorgang gesehen;
    Shell_Ergebnis antwort;
    Shell_Ergebnis SHFileOperationA(const Shell_Vorgang& vorgang) override {
        gesehen = vorgang;
        return antwort;
    }
    void starten(const Text&, int) override {}
};

TEST(CSHFileOp, Eigenschaften_werden_Flags) {
    const struct {
        std::function<void(CSHFileOp&)> setzen;
        int flags;
    } fälle[] = {
        {[](CSHFileOp&) {}, 0},
        {[](CSHFileOp& o) { o.AllowUndo(true); }, 64},
        {[](CSHFileOp& o) { o.ConfirmMakeDir(false); }, 512},
        {[](CSHFileOp& o) { o.ConfirmOperation(false); }, 16},
        {[](CSHFileOp& o) { o.CustomText("Kopieren"); }, 256},
        {[](CSHFileOp& o) { o.IncludeDirectories(false); }, 128},
        {[](CSHFileOp& o) { o.RenameOnCollision(true); }, 8},
        {[](CSHFileOp& o) { o.SilentMode(true); }, 4},
        {[](CSHFileOp& o) { o.AddDestFile("z2"); }, 1},
        {[](CSHFileOp& o) { o.AllowUndo(true), o.ConfirmOperation(false), o.SilentMode(true), o.AddDestFile("z2"); }, 85},
    };
    for (const auto& fall : fälle) {
        Shell_Attrappe shell;
        CSHFileOp vorgang(shell);
        vorgang.AddSourceFile("q1");
        vorgang.AddSourceFile("q2");
        vorgang.AddDestFile("z1");
        fall.setzen(vorgang);
        bool ok = false;
        vorgang.CopyFiles(ok);
        EXPECT_TRUE(ok);
        EXPECT_EQ(shell.gesehen.Flags, fall.flags);
        EXPECT_EQ(shell.gesehen.von, (std::vector<Text>{"q1", "q2"}));
        EXPECT_EQ(shell.gesehen.nach.front(), "z1");
    }
}

TEST(CSHFileOp, Codes_und_Ergebnis) {
    Shell_Attrappe shell;
    CSHFileOp vorgang(shell);
    vorgang.AddSourceFile("q");
    void (CSHFileOp::*const rufe[])(bool&) = {&CSHFileOp::MoveFiles, &CSHFileOp::CopyFiles, &CSHFileOp::DeleteFiles,
                                              &CSHFileOp::RenameFiles};
    std::uint32_t code = 0;
    for (const auto ruf : rufe) {
        const Shell_Ergebnis antworten[] = {{0, false}, {0, true}, {5, false}};
        ++code;
        for (const Shell_Ergebnis& antwort : antworten) {
            shell.antwort = antwort;
            bool ok = antwort.abgebrochen;
            (vorgang.*ruf)(ok);
            EXPECT_EQ(shell.gesehen.Code, code);
            EXPECT_EQ(ok, antwort.Rückgabe == 0 && !antwort.abgebrochen);
        }
    }
}

TEST(CSHFileOp, ohne_Quelle) {
    Shell_Attrappe shell;
    CSHFileOp vorgang(shell);
    vorgang.AddSourceFile("q");
    vorgang.ClearSourceFiles();
    bool ok = false;
    try {
        vorgang.DeleteFiles(ok);
        FAIL();
    } catch (const Laufzeitfehler& fehler) {
        EXPECT_EQ(fehler.Nummer(), -2147220504);
        EXPECT_EQ(fehler.Beschreibung(), "No source files specified file operation");
    }
}

}  // namespace
}  // namespace tonkartei
