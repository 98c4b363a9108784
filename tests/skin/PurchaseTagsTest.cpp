#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class PurchaseTagsTest : public ProfileTagTest {
protected:
    void SetUp() override {
        ProfileTagTest::SetUp();
        Run(u"INSERT INTO Currencies (CurrencyID, CurrencyName, CurrencySymbol) VALUES ('USD', 'Dollar', '$')");
        Run(u"INSERT INTO Currencies (CurrencyID, CurrencyName, CurrencySymbol) VALUES ('EUR', 'Euro', '?')");
        Run(u"INSERT INTO Currencies (CurrencyID, CurrencyName) VALUES ('SHL', 'Shells')");
    }
    void CheckPrice(TagProducer producer, const QString &table, const QString &column, const QString &null_text) {
        const struct {
            const char *name;
            QString price;
            QString currency;
            QString text;
        } cases[] = {
            {"symbol and number", u"9.5"_s, u"'USD'"_s, u"$9.5"_s},
            {"whole number", u"20"_s, u"'USD'"_s, u"$20"_s},
            {"the euro sign that was lost", u"9.99"_s, u"'EUR'"_s, u"\u20AC9.99"_s},
            {"a currency without symbol", u"7"_s, u"'SHL'"_s, u"7"_s},
            {"no currency", u"7"_s, u"NULL"_s, u"7"_s},
            {"nothing", u"0"_s, u"'USD'"_s, u"$0"_s},
            {"NULL", u"NULL"_s, u"'USD'"_s, null_text},
        };
        EXPECT_EQ(Produce(producer), QString()) << "no row";
        for (const auto &c : cases) {
            Clear(table);
            AddRow(table, column + u", CurrencyID"_s, c.price + u", "_s + c.currency);
            EXPECT_EQ(Produce(producer), c.text) << c.name;
        }
        Clear(table);
        AddRow(table, column + u", CurrencyID"_s, u"1234.5, 'USD'"_s);
        session.DecimalSeparator = u","_s;
        EXPECT_EQ(Produce(producer), u"$1234,5"_s);
        session.DecimalSeparator.clear();
        EXPECT_EQ(Produce(producer), u"$1234.5"_s);
        EXPECT_EQ(ProduceForEpisode(producer), QString());
    }
};

TEST_F(PurchaseTagsTest, SuggestedPrice) {
    CheckPrice(GetDPSRP, u"SRPInfo"_s, u"SRPValue"_s, u"$"_s);
}

TEST_F(PurchaseTagsTest, Price) {
    CheckPrice(GetDPPurchPrice, u"PurchaseInfo"_s, u"Price"_s, {});
}

TEST_F(PurchaseTagsTest, Date) {
    Check(GetDPPurchDate, {{"no row", uR"(Prefix="on ")"_s, {}}});
    const struct {
        const char *name;
        QString date;
        QString attributes;
        QString text;
    } cases[] = {
        {"a date", u"#2003-04-05#"_s, {}, u"2003-04-05"_s},
        {"a prefix", u"#2003-04-05#"_s, uR"(Prefix="on <b>")"_s, u"on <b>2003-04-05"_s},
        {"NULL", u"NULL"_s, uR"(Prefix="on ")"_s, {}},
        {"no day and no time", u"#1899-12-30#"_s, uR"(Prefix="on ")"_s, {}},
    };
    for (const auto &c : cases) {
        Clear(u"PurchaseInfo"_s);
        AddRow(u"PurchaseInfo"_s, u"PurchaseDate"_s, c.date);
        EXPECT_EQ(Produce(GetDPPurchDate, c.attributes), c.text) << c.name;
    }
    CheckForEpisode(GetDPPurchDate, {{"an episode has none", uR"(Prefix="on ")"_s, {}}});
}

TEST_F(PurchaseTagsTest, Place) {
    Check(GetDPPurchPlace, {{"no row", uR"(Prefix="at ")"_s, {}}});
    AddRow(u"PurchaseInfo"_s, u"PurchasePlace"_s, u"NULL"_s);
    Check(GetDPPurchPlace, {{"NULL", uR"(Prefix="at ")"_s, {}}});
    Run(u"INSERT INTO Retailers (Name) VALUES ('Kiosk & \"Son\"')");
    Run(u"UPDATE PurchaseInfo SET PurchasePlace = 'Kiosk & \"Son\"'");
    Check(GetDPPurchPlace, {
                               {"a place", {}, u"Kiosk & \"Son\""_s},
                               {"a prefix", uR"(Prefix="at ")"_s, u"at Kiosk & \"Son\""_s},
                           });
    CheckForEpisode(GetDPPurchPlace, {{"an episode has none", uR"(Prefix="at ")"_s, {}}});
}

TEST_F(PurchaseTagsTest, Ownership) {
    TranslateAs(u"Owned"_s, u"Vorhanden"_s);
    TranslateAs(u"Lent <out>"_s, u"Verliehen"_s);
    TranslateAs(u"TV"_s, u"Fernsehen"_s);
    const struct {
        const char *name;
        QString type;
        QString attributes;
        QString text;
    } cases[] = {
        {"wished for", u"WishList"_s, {}, u"Wishlist"_s},
        {"wished for, another text", u"WishList"_s, uR"(IfWishList="<i>soon</i>" IfOwned="a")"_s, u"<i>soon</i>"_s},
        {"ordered", u"Ordered"_s, {}, u"Ordered"_s},
        {"ordered, another text", u"Ordered"_s, uR"(IfOrdered="coming")"_s, u"coming"_s},
        {"owned", u"Owned"_s, {}, u"Owned"_s},
        {"owned, another text", u"Owned"_s, uR"(IfOwned="here")"_s, u"here"_s},
        {"these are not translated", u"Owned"_s, uR"(Translate="YES")"_s, u"Owned"_s},
        {"another type", u"Lent <out>"_s, uR"(IfOwned="here")"_s, u"Lent <out>"_s},
        {"another type translated", u"Lent <out>"_s, uR"(Translate="YES")"_s, u"Verliehen"_s},
        {"another case is another type", u"owned"_s, uR"(IfOwned="here")"_s, u"owned"_s},
        {"none", {}, {}, {}},
    };
    for (const auto &c : cases) {
        SetProfile(u"ColType = '%1'"_s.arg(c.type));
        EXPECT_EQ(Produce(GetDPOwnership, c.attributes), c.text) << c.name;
    }
    SetProfile(u"ColType = NULL"_s);
    EXPECT_EQ(Produce(GetDPOwnership), QString());
    CheckForEpisode(GetDPOwnership, {
                                        {"an episode", uR"(IfOwned="here")"_s, u"TV"_s},
                                        {"an episode translated", uR"(Translate="YES")"_s, u"Fernsehen"_s},
                                    });
    ExpectFailure(GetDPOwnership, u"Translate"_s);
}

} // namespace
} // namespace ostrand
