// The discs and prices that the profile window tells.
#include "SheetFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileDiscsTest : public SheetTest {
protected:
    QStringList Prices(const SheetTitle &title) {
        QStringList lines;
        for (const PriceLine &line : ReadPrices(session, title)) {
            lines += line.label + u' ' + line.value;
        }
        return lines;
    }
    const SheetTitle amber = {u"A1"_s, false};
};

TEST_F(ProfileDiscsTest, TheColumns) {
    EXPECT_EQ(DiscColumns(session), (QStringList{u"Description A"_s, u"Description B"_s, u"DS"_s, u"DLA"_s, u"DLB"_s,
                                                 u"Location"_s, u"Slot"_s}));
}

TEST_F(ProfileDiscsTest, TheRowsInTheOrderOfTheDiscs) {
    Run(u"INSERT INTO Discs (ProfileID, DiscNo, Description, DualLayered, Location, Slot) VALUES ('A1', 2, 'Bonus', "
        u"true, 'Shelf', '12')");
    Run(u"INSERT INTO Discs (ProfileID, DiscNo, Description, DescriptionSideB, DiscIDSideA, LabelSideA, DiscIDSideB, "
        u"LabelSideB, DualSided, DualLayeredSideB) VALUES ('A1', 1, 'Feature', 'Rest', 'AB12', 'AMBER_1', 'CD34', "
        u"'AMBER_2', true, true)");
    Run(u"INSERT INTO Discs (ProfileID, DiscNo, LabelSideA, DiscIDSideB) VALUES ('A1', 3, 'ALONE', 'EF56')");
    Run(u"INSERT INTO Discs (ProfileID, DiscNo, Description) VALUES ('B1', 1, 'Other')");
    ProfileSheet sheet(session);
    sheet.GetProfileInfo(u"A1"_s);
    EXPECT_EQ(Lines(sheet.listDiscs), (QStringList{u"Feature (AB12, AMBER_1)|Rest (CD34, AMBER_2)|X||X||"_s,
                                                   u"Bonus|||X||Shelf|12"_s, u"|(EF56)|||||"_s}));
}

TEST_F(ProfileDiscsTest, TheMarkOfAnIdentity) {
    EXPECT_EQ(MakeXForPresentDiscID(u"AB12"_s, u"AMBER_1"_s), u" (AB12, AMBER_1)"_s);
    EXPECT_EQ(MakeXForPresentDiscID(u"AB12"_s, {}), u" (AB12)"_s);
    EXPECT_EQ(MakeXForPresentDiscID({}, u"AMBER_1"_s), QString());
}

TEST_F(ProfileDiscsTest, Prices) {
    Run(u"INSERT INTO Currencies (CurrencyID, CurrencyName) VALUES ('CRN', 'Crowns')");
    Run(u"INSERT INTO Retailers (Name) VALUES ('Corner Shop')");
    Run(u"INSERT INTO SRPInfo (ProfileID, SRPValue, CurrencyID) VALUES ('A1', 19.95, 'CRN')");
    Run(u"INSERT INTO PurchaseInfo (ProfileID, Price, CurrencyID, PurchaseDate, PurchasePlace) VALUES ('A1', 12.5, "
        u"'CRN', '2019-03-04', 'Corner Shop')");
    EXPECT_EQ(Prices(amber), (QStringList{u"Suggested Retail Price: 19.95 Crowns"_s, u"Purchase Place: Corner Shop"_s,
                                          u"Purchase Date: 2019-03-04"_s, u"Purchase Price: 12.5 Crowns"_s}));
    session.DecimalSeparator = u","_s;
    EXPECT_EQ(Prices(amber)[0], u"Suggested Retail Price: 19,95 Crowns"_s);
    EXPECT_EQ(Prices({u"A1"_s, true})[0], u"Suggested Retail Price: "_s) << "an episode has no price";
}

TEST_F(ProfileDiscsTest, PricesWithoutTheirParts) {
    EXPECT_EQ(Prices(amber), (QStringList{u"Suggested Retail Price: "_s, u"Purchase Place: "_s, u"Purchase Date: "_s,
                                          u"Purchase Price: "_s}));
    Run(u"INSERT INTO SRPInfo (ProfileID, SRPValue) VALUES ('A1', 7)");
    Run(u"INSERT INTO PurchaseInfo (ProfileID, PurchaseDate) VALUES ('A1', '1899-12-30')");
    EXPECT_EQ(Prices(amber), (QStringList{u"Suggested Retail Price: 7"_s, u"Purchase Place: "_s, u"Purchase Date: "_s,
                                          u"Purchase Price: "_s}))
        << "no currency, no date";
}

} // namespace
} // namespace ostrand
