// The store: new albums and titles, their limits, and what they cost.
#include "alben/buehne.hpp"

namespace tonkartei {
namespace {

TEST_F(Albenbühne, Grenzen) {
    alben.eigene.Anzahl = 4999;
    EXPECT_EQ(alben.Album_neu(), 5000);
    // What stood there before does not come back.
    alben.eigene.Alben[5000].Interpret = "Can";
    EXPECT_EQ(alben.Titel_neu(5000), 1);
    EXPECT_EQ(alben.eigene.Alben[5000].Lieder[1].Artist, "Can");
    alben.eigene.Alben[5000].Lieder[1].Lied_Nr = 7;
    alben.Album_reset(5000);
    EXPECT_EQ(alben.eigene.Alben[5000].Titel, "Album Nr. 5000");
    EXPECT_EQ(alben.eigene.Alben[5000].Lieder[1].Lied_Nr, 0);
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
