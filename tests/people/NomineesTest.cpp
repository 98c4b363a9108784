// Persons in nominee texts, and the award data brought to common names.
#include "people/Nominees.h"

#include "people/CrossLinks.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class NomineesTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Log(kTraceInfo);
        for (const QString &name : {u"Anny Lee"_s, u"A. Lee"_s, u"B"_s}) {
            LinkAlias(session, u"Ann Lee"_s, name, 1950, true, {});
        }
        LinkAlias(session, u"Bo O'Hara"_s, u"Bob O'Hara"_s, 0, true, {});
        LinkAlias(session, u"Cy Jones"_s, u"Cy Jones Jr"_s, 0, true, {});
    }
    void Award(const QString &nominee) {
        Run(QString(u"INSERT INTO Awards (Award, Year, MovieTitle, Nominee) VALUES ('Prize', 2001, 'Dust', '"_s +
                    EscapeSql(nominee) + u"')"_s));
    }
};

} // namespace

TEST_F(NomineesTest, CommonNamesStandInTheText) {
    static constexpr struct {
        const char16_t *text;
        const char16_t *common;
    } kTexts[] = {
        {u"", u""},
        {u"Anny Lee", u"Ann Lee"},
        {u"anny lee", u"Ann Lee"},
        {u"Nobody", u"Nobody"},
        {u"Anny Lee, Bob O'Hara", u"Ann Lee, Bo O'Hara"},
        {u"Anny Lee; X & Bob O'Hara and A. Lee", u"Ann Lee; X & Bo O'Hara and Ann Lee"},
        {u"Music: Anny Lee, X", u"Music: Ann Lee, X"},
        {u"Music:Anny Lee", u"Music:Ann Lee"},
        {u":Anny Lee", u":Anny Lee"},
        {u"Anny Lee: a life: X", u"Anny Lee: a life: X"},
        {u"Anny Lee (as herself), X", u"Ann Lee (as herself), X"},
        {u"B(x)", u"B(x)"},
        {u"B (x)", u"Ann Lee (x)"},
        {u"Anny Leeds, Anny Lee", u"Ann Leeds, Ann Lee"},
        {u"Cy Jones, Jr", u"Cy Jones, Jr"},
        {u"Cy Jones Jr", u"Cy Jones"},
        {u", ,", u", ,"},
    };
    for (const auto &row : kTexts) {
        EXPECT_EQ(SetCommonNameForNominees(session, QString::fromUtf16(row.text)), QString::fromUtf16(row.common));
    }
}

TEST_F(NomineesTest, AwardsAreAdjustedAndCounted) {
    Award(u"Anny Lee"_s);
    Award({});
    Award(u"Nobody"_s);
    Award(u"Bob O'Hara"_s);
    Expect(u"Adjusted 2 Nominee entries"_s, {}, MessageIcon::None);
    AdjustAwardData(session);
    EXPECT_EQ(Rows(u"SELECT Nominee FROM Awards ORDER BY Nominee"),
              (QStringList{{}, u"Ann Lee"_s, u"Bo O'Hara"_s, u"Nobody"_s}));
    EXPECT_EQ(services.progress.calls.first(), u"opened Checking Nominees..."_s);
    EXPECT_EQ(services.progress.Of(u"counter"_s).filter(u"/"_s), (QStringList{u"0/3"_s, u"1/3"_s, u"2/3"_s, u"3/3"_s}));
    EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"\"Anny Lee\" -> \"Ann Lee\""_s));
}

TEST_F(NomineesTest, ALongResultIsCut) {
    LinkAlias(session, QString(300, u'x'), u"Zoe"_s, 0, true, {});
    Award(u"Zoe"_s);
    Expect(u"Adjusted 1 Nominee entries"_s, {}, MessageIcon::None);
    AdjustAwardData(session);
    EXPECT_EQ(Rows(u"SELECT Nominee FROM Awards"), QStringList{QString(255, u'x')});
}

TEST_F(NomineesTest, WithoutNomineesNothingIsSaid) {
    Award({});
    AdjustAwardData(session);
    EXPECT_EQ(services.progress.calls, QStringList());
}

TEST_F(NomineesTest, CancellingEndsTheWalk) {
    for (int i = 0; i < 5; ++i) {
        Award(u"Anny Lee"_s);
    }
    services.pump.At(2, [this] { session.progress.Close(); });
    Expect(u"Adjusted 2 Nominee entries"_s, {}, MessageIcon::None);
    AdjustAwardData(session);
    EXPECT_EQ(Rows(u"SELECT Nominee FROM Awards WHERE Nominee = 'Ann Lee'").size(), 2);
}

} // namespace ostrand
