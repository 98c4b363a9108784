// What is asked for each name, link and file is looked up, never searched.
#include "people/AliasFile.h"
#include "people/CrossLinkEditor.h"
#include "people/CrossLinks.h"
#include "people/HeadshotFiles.h"
#include "people/HeadshotTools.h"
#include "people/LinkedNames.h"
#include "people/Nominees.h"
#include "people/QuickLink.h"

#include "base/Files.h"
#include "base/FolderIndex.h"
#include "sql/Shape.h"

#include "database/CollectionFixture.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class PeopleStatements : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.HeadshotPath = WithSeparator(Path(u"heads"_s));
        for (int i = 0; i < 5; ++i) {
            const QString number = QString::number(i);
            LinkAlias(session, u"Ann "_s + number, u"Anny "_s + number, 1950 + i, true, {});
            LinkAlias(session, u"Ann "_s + number, u"Annie "_s + number, 1950 + i, true, {});
            folder_.Write(u"heads/Anny "_s + number + u".jpg"_s, "x");
            folder_.Write(u"source/Annie "_s + number + u".jpg"_s, "xy");
            Run(QString(u"INSERT INTO Awards (Award, Year, MovieTitle, Nominee) VALUES ('A', 2001, 'B', 'Anny "_s +
                        number + u"')"_s));
            for (const auto &[table, key] :
                 {std::pair(u"CastCrew"_s, u"ProfileID"_s), std::pair(u"TVCastCrew"_s, u"EpisodeID"_s)}) {
                Run(QString(u"INSERT INTO "_s + table + u" (Name, "_s + key +
                            u", Position, BirthYear) VALUES ('Ann "_s + number + u"', 'K', "_s + number +
                            u", 1940)"_s));
            }
        }
        session.Database->SetObserver([this](QStringView sql) {
            sql::Shape shape;
            EXPECT_TRUE(sql::ScanShape(sql, shape)) << qPrintable(sql.toString());
            Sent &sent = sent_[shape.key];
            if (sent.times++ == 0) {
                sent.example = sql.toString();
                sent.plan = session.Database->QueryPlan(sql);
            }
        });
    }
    void TearDown() override { session.Database->SetObserver({}); }

    /// Ends a job: what searched a table was sent at most once in it.
    int EndJob(const char *job) {
        const int statements = int(sent_.size());
        for (const Sent &sent : std::as_const(sent_)) {
            const bool searches = std::any_of(sent.plan.begin(), sent.plan.end(),
                                              [](const QString &step) { return step.contains(u"SCAN"_s); });
            EXPECT_FALSE(searches && sent.times > 1)
                << job << ", " << sent.times << " times: " << qPrintable(sent.example) << "\n"
                << qPrintable(sent.plan.join(u'\n'));
            per_row_ += searches ? QStringList() : QStringList(sent.example);
        }
        sent_.clear();
        return statements;
    }

    struct Sent {
        QString example;
        QStringList plan;
        int times = 0;
    };
    QMap<QString, Sent> sent_;
    QStringList per_row_;
};

} // namespace

TEST_F(PeopleStatements, LinksAreLookedUp) {
    for (int i = 0; i < 3; ++i) {
        const QString number = QString::number(i);
        LinkAlias(session, u"Anny "_s + number, u"A. "_s + number, 1950 + i, true, {});
        LinkAlias(session, u"Anny "_s + number, u"Annie "_s + number, 1950 + i, true, {});
        LinkAlias(session, u"Other "_s + number, u"Anny "_s + number, 1950 + i, true, {});
        LinkAlias(session, u"Bo "_s + number, u"Ann "_s + number, 1950 + i, true, {});
        LinkNormalizedName(session, u"Dr. Cy "_s + number, 0);
        GetCommonName(session, u"Anny "_s + number, 0);
        GetCommonName(session, u"Anny "_s + number, 1950);
        services.dialogs.ExpectInput({}, u"Dee"_s);
        AddAlias(session, u"Person "_s + number, 0);
        services.dialogs.ExpectInput({}, u"Eve"_s);
        AddAlias(session, u"Person "_s + number, 0);
        services.dialogs.ExpectInput({}, QString());
        AddAlias(session, u"Person "_s + number, 0);
        LinkedNames(session, {u"Anny "_s + number, u"Annie "_s + number});
    }
    EXPECT_GT(EndJob("links"), 9);
    for (const auto &part : {u"OR CommonName ="_s, u"UPDATE Alias"_s, u"DELETE FROM Alias"_s, u"IN ("_s}) {
        EXPECT_FALSE(per_row_.filter(part).isEmpty()) << qPrintable(part);
    }
}

TEST_F(PeopleStatements, FilesOfLinksAreWrittenAndRead) {
    for (const QString &name : {u"a.cfg"_s, u"a.xml"_s}) {
        EXPECT_TRUE(ExportAliasToFile(session, Path(name)));
        EndJob("writing");
        ImportAliasFromFile(session, Path(name), false);
        EndJob("reading what is known");
        Run(u"DELETE FROM Alias");
        ImportAliasFromFile(session, Path(name), false);
        EXPECT_GT(EndJob("reading"), 3);
        EXPECT_EQ(session.Database->RecordCount(u"Alias"), 10);
    }
}

TEST_F(PeopleStatements, JobsOverAllCreditsAndAwards) {
    RemoveUnneededBirthYears(session);
    EXPECT_GE(EndJob("birth years"), 6);
    services.dialogs.ExpectMessage(u"Adjusted 5 Nominee entries"_s);
    AdjustAwardData(session);
    EXPECT_GE(EndJob("awards"), 3);
}

TEST_F(PeopleStatements, PicturesOfPersons) {
    FolderIndex index;
    for (int i = 0; i < 3; ++i) {
        int alternate = 0;
        FindHeadshot(session, index, u"Anny "_s + QString::number(i), QString::number(1950 + i), alternate);
        FindHeadshot(session, index, u"Anny "_s + QString::number(i), {}, alternate);
    }
    EXPECT_EQ(EndJob("looking for pictures"), 2);
    RenameAlias(session, session.HeadshotPath);
    EXPECT_EQ(EndJob("renaming"), 1);
    RemoveIdenticals(session, Path(u"source"_s));
    EXPECT_EQ(EndJob("removing"), 1);
    EXPECT_EQ(QDir(session.HeadshotPath).entryList(QDir::Files).filter(u"Ann "_s).size(), 5);
}

TEST_F(PeopleStatements, TheWindowOfLinks) {
    CrossLinkEditor editor(session);
    EndJob("opening");
    for (int row = 0; row < 5; ++row) {
        editor.Select(row);
    }
    EXPECT_EQ(EndJob("going through the names"), 1);
    editor.SetAsCommon(editor.listAlias.stringList().first());
    editor.Select(0);
    editor.SetAsCommon(editor.listAlias.stringList().first());
    services.dialogs.ExpectInput({}, u"1970"_s);
    editor.ChangeYear();
    for (int i = 0; i < 2; ++i) {
        services.dialogs.ExpectMessage({}, MessageAnswer::Yes);
        editor.RemoveCommonName();
    }
    EXPECT_GE(EndJob("changing"), 5);
    EXPECT_EQ(editor.listCommonNames.rowCount(), 3);
}

} // namespace ostrand
