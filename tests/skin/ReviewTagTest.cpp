#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ReviewTagTest : public ProfileTagTest {
protected:
    void SetReview(const QString &ratings) {
        Clear(u"Reviews"_s);
        AddRow(u"Reviews"_s, u"Film, Video, Audio, Extras"_s, ratings);
    }
    static QString Head(const QString &width = u"100"_s, const QString &height = u"20"_s, const QString &colour = {}) {
        return u"<TABLE CELLPADDING=0 CELLSPACING=0 WIDTH=%1 HEIGHT=%2 BORDER=1 BGCOLOR=\"%3\"><TR>"_s.arg(
            width, height, colour);
    }
    static QString Tail(const QString &width) { return u"<TD WIDTH=%1></TD></TR></TABLE>"_s.arg(width); }
};

TEST_F(ReviewTagTest, WithoutRatings) {
    EXPECT_EQ(Produce(GetDPReview), QString()) << "no row";
    EXPECT_EQ(ProduceForEpisode(GetDPReview), QString());
    SetReview(u"0, 0, 0, 0"_s);
    Check(GetDPReview, {
                           {"one cell", {}, Head() + Tail(u"100"_s)},
                           {"width", uR"(Width="250")"_s, Head(u"250"_s) + Tail(u"250"_s)},
                           {"a word as width", uR"(Width="wide")"_s, Head() + Tail(u"100"_s)},
                           {"height and colour as they stand", uR"(Height="5em" BGColor="#00FF00")"_s,
                            Head(u"100"_s, u"5em"_s, u"#00FF00"_s) + Tail(u"100"_s)},
                       });
    SetReview(u"NULL, NULL, NULL, NULL"_s);
    EXPECT_EQ(Produce(GetDPReview), Head() + Tail(u"100"_s));
}

TEST_F(ReviewTagTest, CellsOfEachPart) {
    const struct {
        const char *name;
        QString ratings;
        QString cells;
        QString rest;
    } cases[] = {
        // A rating of n is shown as n + 1 halves.
        {"film, one cell", u"1, 0, 0, 0"_s, u"<TD WIDTH=4 BGCOLOR=\"#0080FF\"</TD>"_s, u"95"_s},
        {"film, one and a half", u"2, 0, 0, 0"_s,
         u"<TD WIDTH=4 BGCOLOR=\"#0080FF\"</TD><TD WIDTH=1.5 BGCOLOR=\"#0080FF\"</TD>"_s, u"92"_s},
        {"video", u"0, 2, 0, 0"_s, u"<TD WIDTH=4 BGCOLOR=\"#00FF80\"</TD><TD WIDTH=1.5 BGCOLOR=\"#00FF80\"</TD>"_s,
         u"92"_s},
        {"audio, two blanks in the half cell", u"0, 0, 2, 0"_s,
         u"<TD WIDTH=4 BGCOLOR=\"#FF8080\"</TD><TD WIDTH=1.5  BGCOLOR=\"#FF8080\"</TD>"_s, u"92"_s},
        {"extras", u"NULL, NULL, NULL, 2"_s,
         u"<TD WIDTH=4 BGCOLOR=\"#FFFF80\"</TD><TD WIDTH=1.5 BGCOLOR=\"#FFFF80\"</TD>"_s, u"92"_s},
        {"all in their order", u"1, 1, 1, 1"_s,
         u"<TD WIDTH=4 BGCOLOR=\"#0080FF\"</TD><TD WIDTH=4 BGCOLOR=\"#00FF80\"</TD>"
         "<TD WIDTH=4 BGCOLOR=\"#FF8080\"</TD><TD WIDTH=4 BGCOLOR=\"#FFFF80\"</TD>"_s,
         u"80"_s},
        {"below nothing", u"-1, 0, 0, 0"_s, {}, u"100"_s},
    };
    for (const auto &c : cases) {
        SetReview(c.ratings);
        EXPECT_EQ(Produce(GetDPReview), Head() + c.cells + Tail(c.rest)) << c.name;
    }
}

TEST_F(ReviewTagTest, WhatIsUsedIsRoundedAtEachCell) {
    SetReview(u"3, 0, 0, 0"_s);
    const struct {
        QString width;
        QString cell;
        QString rest;
    } cases[] = {
        {u"90"_s, u"3.5"_s, u"82"_s},   // 4.5 to 4, 8.5 to 8
        {u"110"_s, u"4.5"_s, u"98"_s},  // 5.5 to 6, 11.5 to 12
        {u"107"_s, u"4.35"_s, u"97"_s}, // 5.35 to 5, 10.35 to 10
        {u"0"_s, u"-1"_s, u"0"_s},
    };
    for (const auto &c : cases) {
        const QString cell = u"<TD WIDTH=%1 BGCOLOR=\"#0080FF\"</TD>"_s.arg(c.cell);
        EXPECT_EQ(Produce(GetDPReview, u"Width=\"%1\""_s.arg(c.width)), Head(c.width) + cell + cell + Tail(c.rest))
            << qPrintable(c.width);
    }
}

TEST_F(ReviewTagTest, AFaultyRatingEndsSometime) {
    SetReview(u"2000000000, 0, 0, 0"_s);
    EXPECT_EQ(Produce(GetDPReview).count(u"#0080FF"_s), 501);
}

} // namespace
} // namespace ostrand
