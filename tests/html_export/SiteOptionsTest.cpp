#include "html_export/SiteOptions.h"

#include "SiteFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SiteOptionsTest : public SiteTest {
protected:
    QStringList Stored() {
        return Rows(u"SELECT InfoName, InfoValue FROM DbInfo WHERE InfoName LIKE 'HTML_*' ORDER BY 1");
    }
    QStringList Names(const SiteOptions &chosen) {
        QStringList names;
        for (const SiteColType &type : SiteColTypes(session, chosen)) {
            names += (type.checked ? u"+"_s : u"-"_s) + type.name;
        }
        return names;
    }
};

TEST_F(SiteOptionsTest, DefaultsFollowTheMainWindow) {
    session.CurrentSkin = u"Blue"_s;
    for (const bool original : {false, true}) {
        session.view.mUseOriginalTitle = original;
        session.view.mShowDescription = original;
        const SiteOptions read = LoadSiteOptions(session);
        EXPECT_EQ(read.ExportPath, u""_s);
        EXPECT_TRUE(read.SortByTitle);
        EXPECT_EQ(read.Skin, u"Blue"_s);
        EXPECT_TRUE(read.UseCollectionType);
        EXPECT_EQ(read.Covers, CoverSource::Copied);
        EXPECT_EQ(read.SkinEpisode, u""_s);
        EXPECT_TRUE(read.GenerateEpisodeHTML);
        EXPECT_EQ(read.UseTitle, !original);
        EXPECT_FALSE(read.UseCustomTitle);
        EXPECT_EQ(read.AppendEdition, original);
        EXPECT_TRUE(read.GenerateCrosslinks);
        EXPECT_EQ(read.ExcludedColTypes, QStringList());
        EXPECT_EQ(read.ColTypesOrder, QStringList(u"Owned"_s));
        EXPECT_EQ(read.Filter, u""_s);
        EXPECT_TRUE(read.MediaSkins.empty());
    }
}

TEST_F(SiteOptionsTest, AreKept) {
    SiteOptions chosen;
    chosen.ExportPath = u"/a b/c"_s;
    chosen.SortByTitle = false;
    chosen.Skin = u"Red"_s;
    chosen.UseCollectionType = false;
    chosen.Covers = CoverSource::InPlace;
    chosen.SkinEpisode = u"Green"_s;
    chosen.GenerateEpisodeHTML = false;
    chosen.UseTitle = false;
    chosen.UseCustomTitle = true;
    chosen.AppendEdition = true;
    chosen.GenerateCrosslinks = false;
    chosen.ExcludedColTypes = {u"WishList"_s, u""_s};
    chosen.ColTypesOrder = {u"Sold"_s, u"Owned"_s};
    chosen.Filter = u"Mine"_s;
    chosen.MediaSkins = {
        {u"Blu-ray"_s, u"Red"_s}, {u"DVD"_s, QString::fromUtf16(kUseDefaultSkin)}, {u"UHD"_s, u"a=b"_s}};
    SaveSiteOptions(session, chosen);
    EXPECT_EQ(Stored(), (QStringList{u"HTML_AppendEdition|1"_s, u"HTML_ColTypesOrder|Sold|Owned"_s,
                                     u"HTML_CoverSource|3"_s, u"HTML_ExcludedColTypes|WishList|unsorted"_s,
                                     u"HTML_ExportPath|/a b/c"_s, u"HTML_Filter|Mine"_s, u"HTML_GenerateCrosslinks|0"_s,
                                     u"HTML_GenerateEpisodeHTML|0"_s, u"HTML_MediaSkins|Blu-ray=Red|UHD=a=b"_s,
                                     u"HTML_Skin|Red"_s, u"HTML_SkinEpisode|Green"_s, u"HTML_SortByTitle|0"_s,
                                     u"HTML_UseCollectionType|0"_s, u"HTML_UseCustomTitle|1"_s, u"HTML_UseTitle|0"_s}));
    const SiteOptions read = LoadSiteOptions(session);
    EXPECT_EQ(read.ExportPath, chosen.ExportPath);
    EXPECT_FALSE(read.SortByTitle);
    EXPECT_EQ(read.Skin, u"Red"_s);
    EXPECT_FALSE(read.UseCollectionType);
    EXPECT_EQ(read.Covers, CoverSource::InPlace);
    EXPECT_EQ(read.SkinEpisode, u"Green"_s);
    EXPECT_FALSE(read.GenerateEpisodeHTML);
    EXPECT_FALSE(read.UseTitle);
    EXPECT_TRUE(read.UseCustomTitle);
    EXPECT_TRUE(read.AppendEdition);
    EXPECT_FALSE(read.GenerateCrosslinks);
    EXPECT_EQ(read.ExcludedColTypes, chosen.ExcludedColTypes);
    EXPECT_EQ(read.ColTypesOrder, chosen.ColTypesOrder);
    EXPECT_EQ(read.Filter, u"Mine"_s);
    EXPECT_EQ(read.MediaSkins, (std::vector<MediaSkin>{{u"Blu-ray"_s, u"Red"_s}, {u"UHD"_s, u"a=b"_s}}));
}

TEST_F(SiteOptionsTest, NamesAreStoredInEnglish) {
    TranslateAs(u"Owned"_s, u"Besitz"_s);
    TranslateAs(u"Lent"_s, u"Sold"_s);
    TranslateAs(u"DVD"_s, u"VHS"_s);
    options.ColTypesOrder = {u"Owned"_s, u"Sold"_s};
    options.ExcludedColTypes = {u"Sold"_s};
    options.MediaSkins = {{u"VHS"_s, u"Red"_s}};
    SaveSiteOptions(session, options);
    const SiteOptions read = LoadSiteOptions(session);
    EXPECT_EQ(read.ColTypesOrder, (QStringList{u"Owned"_s, u"Sold"_s}));
    EXPECT_EQ(read.ExcludedColTypes, QStringList(u"Sold"_s)) << "not the type that is shown under this name";
    EXPECT_EQ(read.MediaSkins, (std::vector<MediaSkin>{{u"VHS"_s, u"Red"_s}}));
}

TEST_F(SiteOptionsTest, FaultyMediaSkinsAreLeftOut) {
    WriteDbInfo(session, u"HTML_MediaSkins"_s, u"DVD|=Red|Blu-ray=|UHD=<use default>|VCD=Blue||"_s);
    EXPECT_EQ(LoadSiteOptions(session).MediaSkins, (std::vector<MediaSkin>{{u"VCD"_s, u"Blue"_s}}));
}

TEST_F(SiteOptionsTest, TypesStandInTheChosenOrderWithNewOnesBehind) {
    for (const QString &type : {u"Sold"_s, u"Owned"_s, u"Lent"_s}) {
        AddProfile(u"Key_"_s + type, u"T"_s, u", ColType"_s, u", '"_s + type + u'\'');
    }
    options.ColTypesOrder = {u"Owned"_s};
    EXPECT_EQ(Names(options), (QStringList{u"+Owned"_s, u"+Lent"_s, u"+Sold"_s}));
    options.ColTypesOrder = {u"Sold"_s, u"Gone"_s, u"OWNED"_s, u"Sold"_s};
    options.ExcludedColTypes = {u"Lent"_s, u"Gone"_s};
    EXPECT_EQ(Names(options), (QStringList{u"+Sold"_s, u"+Owned"_s, u"-Lent"_s}));
    EXPECT_EQ(CheckedColTypes(session, options), (QStringList{u"Sold"_s, u"Owned"_s}));
    AddProfile(u"Key_n"_s, u"T"_s);
    AddProfile(u"Key_e"_s, u"T"_s, u", ColType"_s, u", ''"_s);
    EXPECT_EQ(Names(options), (QStringList{u"+Sold"_s, u"+Owned"_s, u"+"_s, u"-Lent"_s}));
}

} // namespace
} // namespace ostrand
