// The owner's marks.
#include "SheetFixture.h"
#include "support/FailingStatements.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileReviewTest : public SheetTest {
protected:
    QStringList Stored() { return Rows(u"SELECT ProfileID, Film, Video, Audio, Extras FROM Reviews ORDER BY 1"); }
    const SheetTitle dune = {u"Key_D1"_s, false};
};

TEST_F(ProfileReviewTest, MarksAreRead) {
    Run(u"INSERT INTO Reviews (ProfileID, Film, Video, Audio, Extras) VALUES ('Key_D1', 9, 1, 0, 4)");
    EXPECT_EQ(ReadReview(session, dune), (Review{9, 1, 0, 4}));
    EXPECT_EQ(ReadReview(session, {u"A1"_s, false}), Review());
}

TEST_F(ProfileReviewTest, FaultyMarksCountAsTheNearest) {
    Run(u"INSERT INTO Reviews (ProfileID, Film, Video, Audio) VALUES ('Key_D1', 2000000000, -5, 10)");
    EXPECT_EQ(ReadReview(session, dune), (Review{9, 0, 9, 0}));
}

TEST_F(ProfileReviewTest, UpdateDbReviewReplacesTheRow) {
    UpdateDbReview(session, dune, {1, 2, 3, 4});
    UpdateDbReview(session, {u"A1"_s, false}, {9, 9, 9, 9});
    UpdateDbReview(session, dune, {5, 0, 0, 0});
    EXPECT_EQ(Stored(), (QStringList{u"A1|9|9|9|9"_s, u"Key_D1|5|0|0|0"_s}));
    EXPECT_EQ(MD5Of(u"Key_D1"_s), QString());
    EXPECT_EQ(MD5Of(u"B1"_s), u"abc"_s);
}

TEST_F(ProfileReviewTest, UpdateDbReviewSendsItsStatements) {
    QStringList sent;
    session.Database->SetObserver([&](QStringView statement) { sent += statement.toString(); });
    UpdateDbReview(session, dune, {1, 2, 3, 4});
    session.Database->SetObserver({});
    EXPECT_EQ(sent, (QStringList{u"DELETE FROM Reviews WHERE ProfileID = 'Key_D1'"_s,
                                 u"INSERT INTO Reviews (ProfileID, Film, Video, Audio, Extras) VALUES ('Key_D1', '1', "
                                 "'2', '3', '4')"_s,
                                 u"UPDATE Profiles SET MD5 = '' WHERE ProfileID = 'Key_D1'"_s}));
}

TEST_F(ProfileReviewTest, AnyKeyIsStoredAsItIs) {
    Run(u"INSERT INTO Profiles (ProfileID, Title) VALUES ('50%2 off %1', 'Fifty')");
    UpdateDbReview(session, {u"50%2 off %1"_s, false}, {1, 2, 3, 4});
    EXPECT_EQ(Stored(), QStringList{u"50%2 off %1|1|2|3|4"_s});
}

TEST_F(ProfileReviewTest, AFaultLeavesTheReviewOfBefore) {
    UpdateDbReview(session, dune, {1, 2, 3, 4});
    test::FailFrom(*session.Database, u"INSERT INTO Reviews"_s);
    EXPECT_THROW(UpdateDbReview(session, dune, {5, 0, 0, 0}), sql::SqlError);
    session.Database->SetObserver({});
    EXPECT_EQ(Stored(), QStringList{u"Key_D1|1|2|3|4"_s});
}

TEST_F(ProfileReviewTest, AnEpisodesReview) {
    ProfileSheet sheet(session);
    sheet.EnableTab(SheetTab::Events);
    sheet.GetEpisodeInfo(u"H110"_s);
    sheet.SetReview({3, 0, 0, 0});
    EXPECT_EQ(Stored(), QStringList{u"H110|3|0|0|0"_s});
    EXPECT_EQ(sheet.review, (Review{3, 0, 0, 0}));
    sheet.GetProfileInfo(u"A1"_s);
    EXPECT_EQ(sheet.review, Review());
    sheet.GetEpisodeInfo(u"H110"_s);
    EXPECT_EQ(sheet.review, (Review{3, 0, 0, 0}));
}

TEST_F(ProfileReviewTest, BarsAndTexts) {
    struct Row {
        int mark;
        int halves;
        const char16_t *text;
    };
    for (const Row &row : {Row{0, 0, u"-"}, Row{1, 2, u"1 / 5"}, Row{2, 3, u"1.5 / 5"}, Row{8, 9, u"4.5 / 5"},
                           Row{9, 10, u"5 / 5"}, Row{-1, 0, u"-"}, Row{12, 10, u"5 / 5"}}) {
        EXPECT_EQ(FilledHalves(row.mark), row.halves) << row.mark;
        EXPECT_EQ(MarkText(session, row.mark), QString::fromUtf16(row.text)) << row.mark;
    }
    for (const auto &[halves, mark] :
         {std::pair(-3, 0), std::pair(0, 0), std::pair(1, 0), std::pair(2, 1), std::pair(10, 9), std::pair(11, 9)}) {
        EXPECT_EQ(MarkOfHalves(halves), mark) << halves;
    }
    session.DecimalSeparator = u","_s;
    EXPECT_EQ(MarkText(session, 2), u"1,5 / 5"_s);
}

} // namespace
} // namespace ostrand
