#include <gtest/gtest.h>

#include "mp3/bausteine.hpp"
#include "mp3/mp3_taghead.hpp"
#include "mp3/speicher_dateisystem.hpp"

namespace tonkartei {
namespace {

constexpr std::uint32_t Kopf_128 = 0xFFFB9064;

class Frame : public testing::Test {
protected:
    Speicher_Dateisystem dateien;
    MP3_TagHead mp3{dateien};

    void Datei(const std::string& inhalt, std::uint64_t dahinter = 0) {
        dateien.Dateien["a.mp3"] = {inhalt, dahinter, false, false};
        mp3.MP3_Datei = "a.mp3";
    }
    int Fehlernummer() {
        try {
            mp3.MP3_Info_lesen();
            return 0;
        } catch (const Laufzeitfehler& fehler) {
            return fehler.Nummer();
        }
    }
    void TearDown() override { EXPECT_EQ(dateien.offene(), 0U) << "every way out closes the file"; }
};

TEST_F(Frame, wo_gesucht_wird) {
    std::string Köder = Lied_Bytes(600, 300, Kopf_128);
    Köder.replace(10, 2, "\xFF\xF3").replace(20, 2, "\xFF\xFD").replace(30, 3, "\xFF\xFF\xFF");
    const struct {
        const char* Name;
        std::string Inhalt;
        bool gefunden;
    } Fälle[] = {
        {"255 bytes are not searched", Lied_Bytes(255, 1, Kopf_128), false},
        {"256 are", Lied_Bytes(256, 1, Kopf_128), true},
        {"position 5000", Lied_Bytes(6000, 5000, Kopf_128), true},
        {"position 5001", Lied_Bytes(6000, 5001, Kopf_128), false},
        {"other layers and versions are passed over", Köder, true},
        {"header right behind another FF", Lied_Bytes(600, 2, Kopf_128).replace(0, 1, "\xFF"), true},
        {"with CRC", Lied_Bytes(600, 7, 0xFFFA9064), true},
        {"pair cut by the end", Lied_Bytes(300, 300, Kopf_128), false},
        {"pair at the end: what follows is zero", Lied_Bytes(300, 299, Kopf_128), true},
        {"nothing but FF", std::string(7000, '\xFF'), false},
    };
    for (const auto& fall : Fälle) {
        Datei(fall.Inhalt);
        EXPECT_EQ(mp3.MP3_Info_lesen(), fall.gefunden) << fall.Name;
        EXPECT_EQ(mp3.Frame_Kopf_lesen().empty(), !fall.gefunden) << fall.Name;
    }
    Datei(Köder);
    EXPECT_EQ(mp3.Frame_Kopf_lesen(), "11111111111110111001000001100100");
    Datei(Lied_Bytes(300, 299, Kopf_128));
    EXPECT_EQ(mp3.Frame_Kopf_lesen(), "11111111111110110000000000000000");
    // The first hit counts, also where it is none.
    Datei(Lied_Bytes(4000, 5, 0xFFFBF000).replace(100, 4, vier_Bytes(Kopf_128)));
    ASSERT_TRUE(mp3.MP3_Info_lesen());
    EXPECT_EQ(mp3.Bitrate, 0);
}

TEST_F(Frame, Felder_des_Kopfes) {
    Datei(Lied_Bytes(4000, 1, 0xFFFA9000));
    ASSERT_TRUE(mp3.MP3_Info_lesen());
    EXPECT_EQ(mp3.MPEG_Version, 1);
    EXPECT_EQ(mp3.MPEG_Layer, 3);
    EXPECT_EQ(mp3.Kanal_Modus, "Stereo");
    EXPECT_EQ(mp3.Emphasis, "no");
    EXPECT_FALSE(mp3.Schutz || mp3.Padding || mp3.Privat || mp3.Copyright || mp3.Original || mp3.VBR);

    const std::pair<std::uint32_t, bool MP3_TagHead::*> Bits[] = {{0x10000, &MP3_TagHead::Schutz},
                                                                  {0x200, &MP3_TagHead::Padding},
                                                                  {0x100, &MP3_TagHead::Privat},
                                                                  {0x8, &MP3_TagHead::Copyright},
                                                                  {0x4, &MP3_TagHead::Original}};
    for (const auto& [wert, _] : Bits) {
        Datei(Lied_Bytes(4000, 1, 0xFFFA9000 | wert));
        ASSERT_TRUE(mp3.MP3_Info_lesen());
        for (const auto& [anderer, feld] : Bits) EXPECT_EQ(mp3.*feld, anderer == wert) << wert;
    }
    const char* Modi[] = {"Stereo", "Joint stereo", "Zwei-Kanal", "Ein-Kanal"};
    const char* Emphasen[] = {"no", "50/15", "reserviert", "CCITT J 17"};
    const Long Raten[] = {44100, 48000, 32000, 0};
    for (std::uint32_t i = 0; i < 4; ++i) {
        Datei(Lied_Bytes(4000, 1, 0xFFFB9000 | i << 10 | i << 6 | i));
        ASSERT_TRUE(mp3.MP3_Info_lesen());
        EXPECT_EQ(mp3.Kanal_Modus, Modi[i]);
        EXPECT_EQ(mp3.Emphasis, Emphasen[i]);
        EXPECT_EQ(mp3.Samplerate, Raten[i]);
    }
}

TEST_F(Frame, feste_Bitrate_und_Zeit) {
    const struct {
        std::uint32_t Kopf;
        std::uint64_t Länge;
        Long Bitrate, ms, Minuten, Sekunden;
    } Fälle[] = {
        {0xFFFB9064, 4'000'000, 128, 250'000, 4, 10},
        {0xFFFB9C64, 4'000'000, 128, 250'000, 4, 10},  // no sample rate, which nothing needs
        {0xFFFB1064, 1002, 32, 250, 0, 0},             // 250.5, to the even neighbour
        {0xFFFB1064, 1006, 32, 252, 0, 0},             // 251.5
        {0xFFFBE064, 2'399'960, 320, 59'999, 0, 59},
        {0xFFFBE064, 2'400'000, 320, 60'000, 1, 0},
        {0xFFFB0064, 4'000'000, 0, 0, 0, 0},  // free format
        {0xFFFBF064, 4'000'000, 0, 0, 0, 0},
        {0xFFFB1064, 268'435'455, 32, 67'108'864, 1118, 28},  // the largest that fits
    };
    for (const auto& fall : Fälle) {
        Datei(Lied_Bytes(300, 1, fall.Kopf), fall.Länge - 300);
        ASSERT_TRUE(mp3.MP3_Info_lesen()) << fall.Länge;
        EXPECT_EQ(mp3.Bitrate, fall.Bitrate);
        EXPECT_EQ(mp3.Dauer_ms, fall.ms) << fall.Länge;
        EXPECT_EQ(mp3.Dauer_Minuten, fall.Minuten);
        EXPECT_EQ(mp3.Dauer_Sekunden, fall.Sekunden);
        EXPECT_FALSE(mp3.VBR);
    }
    const Long Raten[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 0};
    for (std::uint32_t i = 0; i < 16; ++i) {
        Datei(Lied_Bytes(4000, 1, 0xFFFB0064 | i << 12));
        ASSERT_TRUE(mp3.MP3_Info_lesen());
        EXPECT_EQ(mp3.Bitrate, Raten[i]);
    }
}

TEST_F(Frame, Xing) {
    Datei(Xing_Lied_Bytes(400, 40, 0xFFFB9064, 3000), 3'000'000 - 400);
    ASSERT_TRUE(mp3.MP3_Info_lesen());
    EXPECT_TRUE(mp3.VBR);
    EXPECT_EQ(mp3.Xing_Frames, 3000);
    EXPECT_EQ(mp3.Bitrate, 306);
    EXPECT_EQ(mp3.Dauer_ms, 78'431);
    EXPECT_EQ(mp3.Dauer_Minuten, 1);
    EXPECT_EQ(mp3.Dauer_Sekunden, 18);
    EXPECT_EQ(dateien.Öffnungen, 1);

    Datei(Xing_Lied_Bytes(400, 40, 0xFFFB9C64, 3000));
    ASSERT_TRUE(mp3.MP3_Info_lesen()) << "no sample rate";
    EXPECT_EQ(mp3.Bitrate, 0);
    EXPECT_EQ(mp3.Dauer_ms, 0);

    Datei(Xing_Lied_Bytes(6000, 5000, 0xFFFB9064, 1));
    ASSERT_TRUE(mp3.MP3_Info_lesen()) << "behind the last frame position";
    EXPECT_TRUE(mp3.VBR);

    Datei(Xing_Lied_Bytes(400, 41, 0xFFFB9064, 3000).replace(39, 5, vier_Bytes(Kopf_128) + '\0'));
    ASSERT_TRUE(mp3.MP3_Info_lesen());
    EXPECT_FALSE(mp3.VBR) << "one byte off is no Xing header";
    EXPECT_EQ(mp3.Xing_Frames, 1) << "keeps the earlier count";
}

TEST_F(Frame, Fehler_der_Rechnung) {
    const std::string fest = Lied_Bytes(400, 1, Kopf_128);
    const std::string variabel = Xing_Lied_Bytes(400, 1, Kopf_128, 100'000);
    const struct {
        const char* Name;
        std::string Inhalt;
        std::uint64_t Länge;
        int Nummer;
    } Fälle[] = {
        {"below 256 MByte", fest, 268'435'455, 0},
        {"256 MByte", fest, 268'435'456, Fehler_Überlauf},
        {"far beyond", fest, 5'000'000'000, Fehler_Überlauf},
        {"large but without rate", Lied_Bytes(400, 1, 0xFFFB0064), 5'000'000'000, 0},
        {"VBR at its limit", variabel, 48'695'774, 0},
        {"VBR above", variabel, 48'695'775, Fehler_Überlauf},
        {"no frames", Xing_Lied_Bytes(400, 1, Kopf_128, 0), 400, Fehler_Division},
        {"no frames and no rate", Xing_Lied_Bytes(400, 1, 0xFFFB9C64, 0), 400, Fehler_Division},
        {"frame count behind the end", Xing_Lied_Bytes(300, 260, Kopf_128, 5), 300, Fehler_Division},
    };
    for (const auto& fall : Fälle) {
        Datei(fall.Inhalt, fall.Länge - fall.Inhalt.size());
        EXPECT_EQ(Fehlernummer(), fall.Nummer) << fall.Name;
    }
}

TEST_F(Frame, Fehler_beim_Lesen_heißt_kein_Frame) {
    Datei(Xing_Lied_Bytes(400, 1, Kopf_128, 0x80000000));
    EXPECT_FALSE(mp3.MP3_Info_lesen()) << "a frame count beyond 31 bits";
    EXPECT_EQ(mp3.Frame_Kopf_lesen(), "");

    Datei(Lied_Bytes(4000, 1, Kopf_128));
    ASSERT_TRUE(mp3.MP3_Info_lesen());
    dateien.Fehler_bei_Lesung = dateien.Lesungen + 1;
    EXPECT_FALSE(mp3.MP3_Info_lesen());
    EXPECT_EQ(mp3.Kanal_Modus, "Stereo") << "decoded as if all bits were 0";
    mp3.MP3_Datei = "fehlt.mp3";
    EXPECT_FALSE(mp3.MP3_Info_lesen());
    EXPECT_EQ(mp3.Frame_Kopf_lesen(), "");
}

}  // namespace
}  // namespace tonkartei
