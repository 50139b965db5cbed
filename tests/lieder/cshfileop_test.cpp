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

TEST(CSHFileOp, Eigenschaften_Codes_und_Ergebnis) {
    const struct {
        std::function<void(CSHFileOp&, bool&)> tun;
        Shell_Ergebnis antwort;
        unsigned code;
        int flags;
        bool ok;
    } fälle[] = {
        {[](CSHFileOp& o, bool& ok) { o.MoveFiles(ok); }, {0, false}, 1, 0, true},
        {[](CSHFileOp& o, bool& ok) { o.AllowUndo(true), o.RenameFiles(ok); }, {0, true}, 4, 64, false},
        {[](CSHFileOp& o, bool& ok) { o.ConfirmMakeDir(false), o.CopyFiles(ok); }, {5, false}, 2, 512, false},
        {[](CSHFileOp& o, bool& ok) { o.ConfirmOperation(false), o.DeleteFiles(ok); }, {0, false}, 3, 16, true},
        {[](CSHFileOp& o, bool& ok) { o.CustomText("Kopieren"), o.CopyFiles(ok); }, {0, false}, 2, 256, true},
        {[](CSHFileOp& o, bool& ok) { o.IncludeDirectories(false), o.CopyFiles(ok); }, {0, false}, 2, 128, true},
        {[](CSHFileOp& o, bool& ok) { o.RenameOnCollision(true), o.CopyFiles(ok); }, {0, false}, 2, 8, true},
        {[](CSHFileOp& o, bool& ok) { o.SilentMode(true), o.AddDestFile("z2"), o.CopyFiles(ok); }, {0, false}, 2, 5, true},
    };
    for (const auto& fall : fälle) {
        Shell_Attrappe shell;
        shell.antwort = fall.antwort;
        CSHFileOp vorgang(shell);
        vorgang.AddSourceFile("weg");
        vorgang.ClearSourceFiles();
        vorgang.AddSourceFile("q1");
        vorgang.AddSourceFile("q2");
        vorgang.AddDestFile("z1");
        bool ok = !fall.ok;
        fall.tun(vorgang, ok);
        EXPECT_EQ(ok, fall.ok);
        EXPECT_EQ(shell.gesehen.Code, fall.code);
        EXPECT_EQ(shell.gesehen.Flags, fall.flags);
        EXPECT_EQ(shell.gesehen.von, (std::vector<Text>{"q1", "q2"}));
        EXPECT_EQ(shell.gesehen.nach.front(), "z1");
    }
}

TEST(CSHFileOp, ohne_Quelle) {
    Shell_Attrappe shell;
    CSHFileOp vorgang(shell);
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
