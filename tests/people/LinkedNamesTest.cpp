#include "people/LinkedNames.h"

#include "database/CollectionFixture.h"
#include "people/CrossLinks.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class LinkedNamesTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        for (const char16_t *values : {u"('M. Hale', 'Mara Hale', 0)", u"('Al', 'Al Roe', 1950)",
                                       u"('Al', 'Al Stone', 1960)", u"('O''Hale', 'Pat Hale', 0)"}) {
            Run(QString(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES "_s +
                        QString::fromUtf16(values)));
        }
    }
};

TEST_F(LinkedNamesTest, AreThoseOfTheRoutineForOneName) {
    const QStringList names = {u"M. Hale"_s, u"m. HALE"_s, u"Al"_s, u"O'Hale"_s, u"Nobody"_s};
    const LinkedNames many(session, names);
    for (const QString &name : names) {
        for (const int year : {0, 1950, 1960, 1970}) {
            EXPECT_EQ(many.Common(name, year), GetCommonName(session, name, year)) << qPrintable(name) << year;
        }
    }
}

TEST_F(LinkedNamesTest, FallBackOnAnyYear) {
    const struct {
        QString name;
        int year;
        QString resolved;
    } cases[] = {
        {u"Al"_s, 1960, u"Al Stone"_s},       {u"Al"_s, 1970, u"Al Roe"_s},  {u"Al"_s, 0, u"Al Roe"_s},
        {u"M. Hale"_s, 1950, u"Mara Hale"_s}, {u"Nobody"_s, 0, u"Nobody"_s},
    };
    const LinkedNames names(session, {u"Al"_s, u"M. Hale"_s, u"Nobody"_s});
    for (const auto &c : cases) {
        EXPECT_EQ(names.Resolved(c.name, c.year), c.resolved) << qPrintable(c.name) << c.year;
    }
}

TEST_F(LinkedNamesTest, OfManyNamesAreReadInFewStatements) {
    QStringList names;
    for (int i = 0; i < 1000; ++i) {
        names += u"Name %1"_s.arg(i);
    }
    names += u"M. Hale"_s;
    int statements = 0;
    session.Database->SetObserver([&statements](QStringView) { ++statements; });
    const LinkedNames many(session, names + names);
    EXPECT_EQ(statements, 4);
    EXPECT_EQ(many.Common(u"M. Hale"_s, 0), u"Mara Hale"_s);
    const LinkedNames none(session, {});
    EXPECT_EQ(statements, 4);
    session.Database->SetObserver({});
    EXPECT_TRUE(
        session.Database->QueryPlan(u"SELECT AliasName, CommonName, BirthYear FROM Alias WHERE AliasName IN ('A', 'B')")
            .join(u' ')
            .contains(u"SEARCH"_s));
}

} // namespace
} // namespace ostrand
