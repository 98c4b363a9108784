// Whatever a tag asks for a profile is looked up by its key: a page takes no longer in a large collection.

#include "CoverFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

struct TagOfRow {
    const char *name;
    TagProducer producer;
    QString argument = {};
    QString attributes = {};
};

const TagOfRow kTagsOfRows[] = {
    {"genres", GetDPList, u"Genres"_s},
    {"features", GetDPList, u"Features"_s},
    {"subtitles", GetDPList, u"Subtitles"_s},
    {"studios", GetDPStudios},
    {"media companies", GetDPStudios, u"Media Company"_s},
    {"tags", GetOSVTags},
    {"publisher", GetDPMediaPublisher},
    {"lock", GetDPLock, u"Cast"_s},
    {"regions", GetDPRegions},
    {"region", GetDPRegion},
    {"suggested price", GetDPSRP},
    {"purchase date", GetDPPurchDate},
    {"purchase place", GetDPPurchPlace},
    {"price", GetDPPurchPrice},
    {"sides", GetDPSides},
    {"layers", GetDPLayers},
    {"widescreen", GetDPWidescreen},
    {"video standard", GetDPVidStandard},
    {"video formats", GetDPVidFormats},
    {"audio formats", GetDPAudioFormats},
    {"discs", GetDPDiscs},
    {"contents", GetDPBoxsetContent},
    {"parent", GetOSVParent},
    {"watched by", GetDPLastWatched, u"UserID"_s},
    {"watched on", GetDPLastWatched, u"EventTimestamp"_s},
    {"loaned to", GetDPLoanedTo},
    {"loan due", GetDPLoanedDue},
    {"review", GetDPReview},
};

class TagStatementsTest : public CoverTest {
protected:
    void Observe(const char *name) {
        session.Database->SetObserver([this, name](QStringView sql) {
            ++statements_;
            for (const QString &step : session.Database->QueryPlan(sql)) {
                EXPECT_FALSE(step.startsWith(u"SCAN"_s)) << name << "\n"
                                                         << qPrintable(sql.toString()) << "\n"
                                                         << qPrintable(step);
            }
        });
    }
    /// The statements that a call sends, the one of its own row apart.
    template <typename Call>
    int Count(const char *name, const Call &call) {
        statements_ = -1;
        Observe(name);
        call();
        session.Database->SetObserver({});
        return statements_;
    }
    int statements_ = 0;
};

TEST_F(TagStatementsTest, AreLookUps) {
    Run(u"INSERT INTO Users (UserID) VALUES ('Bo')");
    AddRow(u"LoanInfo"_s, u"UserID, LoanedDue"_s, u"'Bo', #2024-01-01#"_s);
    for (const TagOfRow &tag : kTagsOfRows) {
        const int expected = tag.producer == GetDPLoanedDue ? 2 : 1;
        EXPECT_EQ(Count(tag.name, [&] { Produce(tag.producer, tag.attributes, tag.argument); }), expected) << tag.name;
    }
    EXPECT_EQ(Count("parents of an episode", [&] { ProduceForEpisode(GetOSVParent); }), 1);
    session.view.mUseCustomTitle = true;
    session.view.mUseOriginalTitle = true;
    EXPECT_EQ(Count("contents in another order", [&] { Produce(GetDPBoxsetContent); }), 1);
}

TEST_F(TagStatementsTest, ColumnsOfTheRowNeedNone) {
    for (const TagProducer producer :
         {GetDPTitle, GetDPOriginalTitle, GetOSVCustomTitle, GetOSVOriginalSortTitle, GetDPRating, GetDPUPC,
          GetDPRuntime, GetDPReleaseDate, GetDPOwnership, GetDPImage}) {
        EXPECT_EQ(Count("columns", [&] { Produce(producer); }), 0);
    }
}

TEST_F(TagStatementsTest, CountDoesNotGrowWithTheBoxset) {
    for (int i = 0; i < 20; ++i) {
        AddProfile(u"Key_%1"_s.arg(i));
        Run(u"INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('Key_%1', '%2')"_s.arg(i).arg(Escaped()));
        AddCover(u"%1f.jpg"_s.arg(i));
    }
    EXPECT_EQ(Count("titles", [&] { Produce(GetDPBoxsetContent); }), 1);
    EXPECT_EQ(Count("covers", [&] { Produce(GetDPBoxsetContent, uR"(ShowCovers="YES")"_s); }), 1);
}

} // namespace
} // namespace ostrand
