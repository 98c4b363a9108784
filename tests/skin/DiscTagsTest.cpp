#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class DiscTagsTest : public ProfileTagTest {
protected:
    void AddDisc(int number, const QString &columns, const QString &values) {
        AddRow(u"Discs"_s, u"DiscNo, "_s + columns, QString::number(number) + u", "_s + values);
    }
};

TEST_F(DiscTagsTest, SidesAndLayers) {
    EXPECT_EQ(Produce(GetDPSides, uR"(Single="one")"_s), QString()) << "no disc";
    EXPECT_EQ(Produce(GetDPLayers, uR"(Single="one")"_s), QString()) << "no disc";
    const struct {
        const char *name;
        QString flags; // dual sided, flipper, dual layered
        QString attributes;
        QString sides;
        QString layers;
    } cases[] = {
        {"single", u"No, No, No"_s, {}, u"Single-Sided"_s, u"Single-Layered"_s},
        {"dual", u"Yes, No, Yes"_s, {}, u"Double-Sided"_s, u"Double-Sided"_s},
        {"flipper", u"No, Yes, No"_s, {}, u"Flipper"_s, u"Single-Layered"_s},
        {"flipper before dual", u"Yes, Yes, No"_s, {}, u"Flipper"_s, u"Single-Layered"_s},
        {"text for single", u"No, No, No"_s, uR"(Single="<1>" Dual="<2>" Flipper="<F>")"_s, u"<1>"_s, u"<1>"_s},
        {"text for dual", u"Yes, No, Yes"_s, uR"(Single="<1>" Dual="<2>" Flipper="<F>")"_s, u"<2>"_s, u"<2>"_s},
        {"text for flipper", u"No, Yes, No"_s, uR"(Single="<1>" Dual="<2>" Flipper="<F>")"_s, u"<F>"_s, u"<1>"_s},
    };
    for (const auto &c : cases) {
        Clear(u"Discs"_s);
        AddDisc(1, u"DualSided, Flipper, DualLayered"_s, c.flags);
        EXPECT_EQ(Produce(GetDPSides, c.attributes), c.sides) << c.name;
        EXPECT_EQ(Produce(GetDPLayers, c.attributes), c.layers) << c.name;
    }
    Clear(u"Discs"_s);
    AddDisc(1, u"DualSided, Flipper, DualLayered"_s, u"No, Yes, Yes"_s);
    AddDisc(2, u"DualSided, Flipper, DualLayered"_s, u"No, No, Yes"_s);
    AddDisc(3, u"DualSided, Flipper, DualLayered"_s, u"Yes, No, No"_s);
    EXPECT_EQ(Produce(GetDPSides), u"Double-Sided"_s) << "the last disc decides";
    EXPECT_EQ(Produce(GetDPLayers), u"Single-Layered"_s) << "the last disc decides";
    Run(u"INSERT INTO Discs (ProfileID, DiscNo) VALUES ('OSVE''1', 1)");
    EXPECT_EQ(ProduceForEpisode(GetDPSides), QString());
    EXPECT_EQ(ProduceForEpisode(GetDPLayers), QString());
}

TEST_F(DiscTagsTest, OneDisc) {
    Check(GetDPDiscs, {{"no discs", uR"(ShowSides="YES")"_s, {}}});
    AddDisc(1,
            u"Description, Location, Slot, DiscIDSideA, DiscIDSideB, LabelSideA, LabelSideB, DualSided, DualLayered"_s,
            u"'Film <b>', 'Shelf \"A\"', '7', 'ID1', 'ID2', 'LA', 'LB', Yes, Yes"_s);
    TranslateAs(u"Double-Sided"_s, u"Zweiseitig"_s);
    TranslateAs(u"Double-Layered"_s, u"Zweilagig"_s);
    Check(
        GetDPDiscs,
        {
            {"nothing asked for", {}, {}},
            {"description", uR"(ShowDescriptions="YES")"_s, u"Film <b>"_s},
            {"location", uR"(ShowLocations="YES")"_s, u"Shelf \"A\""_s},
            {"slot", uR"(ShowSlots="YES")"_s, u"7"_s},
            {"ids, side A for side B", uR"(ShowDiscIDs="YES")"_s, u"ID1, ID1"_s},
            {"labels, side A for side B", uR"(ShowLabels="YES")"_s, u"LA, LA"_s},
            {"sides and layers", uR"(ShowSides="YES")"_s, u"Double-Sided - Double-Layered"_s},
            {"translated", uR"(ShowSides="YES" Translate="YES")"_s, u"Zweiseitig - Zweilagig"_s},
            {"all in their order",
             uR"(ShowSides="1" ShowLabels="1" ShowDiscIDs="1" ShowSlots="1" ShowLocations="1" ShowDescriptions="1")"_s,
             u"Film <b> - Shelf \"A\" - 7 - ID1, ID1 - LA, LA - Double-Sided - Double-Layered"_s},
            {"another divider within", uR"(ShowSlots="1" ShowLocations="1" SubDivider="|")"_s, u"Shelf \"A\"|7"_s},
        });
    for (const auto &flag : {u"ShowDiscIDs"_s, u"ShowSides"_s, u"ShowLabels"_s, u"ShowSlots"_s, u"ShowLocations"_s,
                             u"ShowDescriptions"_s}) {
        ExpectFailure(GetDPDiscs, flag);
    }
}

TEST_F(DiscTagsTest, SidesOfADisc) {
    const struct {
        QString flags; // dual sided, flipper, dual layered
        QString text;
    } cases[] = {
        {u"No, No, No"_s, u"Single-Sided - Single-Layered"_s},
        {u"Yes, No, No"_s, u"Double-Sided - Single-Layered"_s},
        {u"Yes, Yes, Yes"_s, u"Flipper - Double-Layered"_s},
    };
    for (const auto &c : cases) {
        Clear(u"Discs"_s);
        AddDisc(1, u"DualSided, Flipper, DualLayered"_s, c.flags);
        EXPECT_EQ(Produce(GetDPDiscs, uR"(ShowSides="YES")"_s), c.text) << qPrintable(c.flags);
    }
}

TEST_F(DiscTagsTest, MissingTexts) {
    const struct {
        const char *name;
        QString values; // side A, side B
        QString text;
    } cases[] = {
        {"side A alone", u"'A', NULL"_s, u"5 - A"_s},
        {"side B alone", u"NULL, 'B'"_s, u"5 - , "_s},
        {"neither", u"NULL, ''"_s, u"5"_s},
    };
    for (const auto &c : cases) {
        Clear(u"Discs"_s);
        AddDisc(1, u"Slot, LabelSideA, LabelSideB"_s, u"'5', "_s + c.values);
        EXPECT_EQ(Produce(GetDPDiscs, uR"(ShowSlots="1" ShowLabels="1" ShowLocations="1")"_s), c.text) << c.name;
        Clear(u"Discs"_s);
        AddDisc(1, u"Slot, DiscIDSideA, DiscIDSideB"_s, u"'5', "_s + c.values);
        EXPECT_EQ(Produce(GetDPDiscs, uR"(ShowSlots="1" ShowDiscIDs="1" ShowDescriptions="1")"_s), c.text) << c.name;
    }
}

TEST_F(DiscTagsTest, EachDiscBuildsOnTheOneBefore) {
    AddDisc(2, u"Description, Slot"_s, u"'Extras', '8'"_s);
    AddDisc(1, u"Description, Slot"_s, u"'Film', '7'"_s);
    AddDisc(3, u"Description"_s, u"NULL"_s);
    Check(GetDPDiscs, {
                          {"descriptions", uR"(ShowDescriptions="1")"_s, u"Film, FilmExtras, FilmExtras"_s},
                          {"descriptions and slots", uR"(ShowDescriptions="1" ShowSlots="1")"_s,
                           u"Film - 7, Film - 7Extras - 8, Film - 7Extras - 8"_s},
                          {"another divider", uR"(ShowDescriptions="1" Divider="break")"_s,
                           u"Film<br/>FilmExtras<br/>FilmExtras"_s},
                          {"nothing asked for", {}, u", , "_s},
                      });
    CheckForEpisode(GetDPDiscs, {{"an episode has none", uR"(ShowDescriptions="1")"_s, {}}});
}

} // namespace
} // namespace ostrand
