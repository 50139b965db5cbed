// The store: new albums and titles, their limits, and what they cost.
#include "alben/buehne.hpp"

namespace tonkartei {
namespace {

TEST_F(Albenbühne, neues_Album_und_neuer_Titel) {
    EXPECT_EQ(alben.Album_neu(), 1);
    EXPECT_EQ(alben.Album_neu(), 2);
    Album& album = alben.eigene.Alben[2];
    EXPECT_EQ(album.Titel, "Album Nr. 2");
    EXPECT_EQ(album.Jahr, 2026);
    album.Interpret = "Can";
    EXPECT_EQ(alben.Titel_neu(2), 1);
    album.Interpret = "Faust";
    EXPECT_EQ(alben.Titel_neu(2), 2);
    EXPECT_EQ(album.Lieder[1].Artist, "Can");
    EXPECT_EQ(album.Lieder[2].Artist, "Faust");
    EXPECT_EQ(album.Lieder[2].Titel, "Lied Nr. 2");

    // What stood there before does not come back.
    album.Lieder[2].Lied_Nr = 7;
    alben.Album_reset(2);
    EXPECT_EQ(album.Titel_Anzahl, 0);
    EXPECT_EQ(album.Lieder[2].Lied_Nr, 0);
}

TEST_F(Albenbühne, Grenzen) {
    alben.eigene.Anzahl = 4999;
    EXPECT_EQ(alben.Album_neu(), 5000);
    EXPECT_EQ(alben.Album_neu(), 0);
    EXPECT_EQ(alben.eigene.Anzahl, 5000);
    alben.eigene.Alben[5000].Titel_Anzahl = 199;
    EXPECT_EQ(alben.Titel_neu(5000), 200);
    EXPECT_EQ(alben.Titel_neu(5000), 0);
    EXPECT_EQ(alben.eigene.Alben[5000].Titel_Anzahl, 200);
    EXPECT_EQ(ansicht.Meldungen,
              (std::vector<Text>{"Tonkartei|Maximal 5000 Alben möglich!", "Tonkartei|Maximal 200 pro Album möglich!"}));
}

TEST(Album_Lieder, Stellen) {
    Album_Lieder lieder;
    for (int n = 1; n <= 200; ++n) lieder[n].Lied_Nr = n;
    const Album_Lieder& gelesen = lieder;
    for (int n = 1; n <= 200; ++n) EXPECT_EQ(gelesen[n].Lied_Nr, n);
    for (const long long n : {-8LL, -1LL, 0LL, 201LL, 208LL}) EXPECT_THROW(lieder[n], Laufzeitfehler) << n;
}

}  // namespace
}  // namespace tonkartei
