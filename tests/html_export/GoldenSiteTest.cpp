// The site of the kept collection, with the program's own frame, file by file.
#include "SiteFixture.h"
#include "html_export/SiteFolders.h"
#include "support/Golden.h"

#include <QRegularExpression>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class GoldenSiteTest : public SiteTest {
protected:
    void SetUp() override {
        SiteTest::SetUp();
        const QString frame = services.folders.Program() + u"/html"_s;
        QDir(frame).removeRecursively();
        CopyFolderInto(session, QStringLiteral(OSTRAND_SOURCE_DIR "/resources/html"), frame);
        test::RunStatements(session, test::ReadGoldenFile(u"skin/collection.sql"_s));
        session.CrewRoles.Load(CrewRoleMaps::DefaultMapping());
        session.UseUserDefinedStrings = true;
        for (const char16_t *cover : {u"0012345678905.4f.jpg", u"0012345678905.4b.jpg", u"OSV17s.jpg"}) {
            WriteTestFile(session.CoverPath + QString::fromUtf16(cover), "cover");
        }
        WriteTestFile(session.HeadshotPath + u"Mara Liv Okonski(1951).jpg"_s, "headshot");
        Skin(u"Harbour"_s, test::ReadTestFile(test::GoldenPath(u"site/profile.skin"_s)));
        Skin(u"Tide"_s, test::ReadTestFile(test::GoldenPath(u"site/episode.skin"_s)));
        options.GenerateEpisodeHTML = true;
        options.SkinEpisode = u"Tide"_s;
        options.UseCustomTitle = true;
        options.AppendEdition = true;
        options.ColTypesOrder = {u"Owned"_s, u"WishList"_s};
    }
    void ExpectKept(const QStringList &files) {
        for (const QString &file : files) {
            const QByteArray content = test::ReadTestFile(site + u'/' + file);
            EXPECT_FALSE(content.contains(folder_.Path().toUtf8())) << qPrintable(file) << " tells where it was made";
            test::ExpectGolden(u"site/"_s + file, content);
        }
    }
};

TEST_F(GoldenSiteTest, IsWrittenAsItWasRead) {
    ASSERT_TRUE(Export(u"Harbour"_s));
    ExpectKept({u"list.html"_s, u"index2.html"_s, u"start.html"_s, u"iphone.html"_s, u"common/0.js"_s, u"common/1.js"_s,
                u"common/2.js"_s, u"Profiles/0012345678905.4.html"_s, u"Profiles/4012345678901.html"_s,
                u"Profiles/5.TV.html"_s, u"Episodes/OSVE'1.html"_s});
}

TEST_F(GoldenSiteTest, HasTheScriptsOfPersonsThatWereRead) {
    ASSERT_TRUE(Export(u"Harbour"_s));
    const QStringList scripts = FilesIn(u"crosslink"_s);
    ExpectKept(QStringList(scripts).replaceInStrings(QRegularExpression(u"^"_s), u"crosslink/"_s));
    EXPECT_EQ(scripts, QDir(test::GoldenPath(u"site/crosslink"_s)).entryList(QDir::Files, QDir::Name));
}

} // namespace
} // namespace ostrand
