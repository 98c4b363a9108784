// A small collection, skins and templates, and the site that is made of them.
#pragma once

#include "../database/CollectionFixture.h"
#include "html_export/CreateOfflineHtml.h"

#include <QFileInfo>

namespace ostrand {

class SiteTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.CoverPath = Path(QStringLiteral("covers/"));
        session.HeadshotPath = Path(QStringLiteral("headshots/"));
        for (const QString &folder : {site, session.CoverPath, session.HeadshotPath}) {
            QDir().mkpath(folder);
        }
        Skin(QStringLiteral("Blue"), "<html><head></head>\r\n<DP NAME=\"TITLE\">\r\n</html>");
        options.GenerateEpisodeHTML = false;
        Template("list.html", "L[%CollectionListing%]M[%CollectionTypeMenu%]S[%CollectionTypeSorting%]");
        Template("common/0.js", "T[%CollectionTypes%]N[%CollectionTypeNumer%]");
        Template("index2.html", "V[%CollectionTypeVariables%]T[%CollectionTypeTable%]I[%LastCollectionTypeIndex%]");
        Template("start.html", "U[%LastUpdateString%]");
        Template("iPhone.html", "P[%iPhoneListing%]");
    }

    void Skin(const QString &name, const QByteArray &text) {
        WriteTestFile(session.DataFolder + QStringLiteral("/Skins/") + name + QStringLiteral("/Skin.html"), text);
    }
    void Template(const char *name, const QByteArray &text) {
        WriteTestFile(services.folders.Program() + QStringLiteral("/html/") + QString::fromUtf8(name), text);
    }
    static void WriteTestFile(const QString &path, const QByteArray &text) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    void AddProfile(const QString &id, const QString &title, const QString &more_columns = {},
                    const QString &more_values = {}) {
        ASSERT_EQ(Run(QStringLiteral("INSERT INTO Profiles (ProfileID, Title%1) VALUES ('%2', '%3'%4)")
                          .arg(more_columns, EscapeSql(id), EscapeSql(title), more_values)),
                  1);
    }
    /// A profile of the type "Owned" and the medium "DVD".
    void AddOwned(const QString &id, const QString &title) {
        AddProfile(id, title, QStringLiteral(", ColType, Medium, SortTitle"),
                   QStringLiteral(", 'Owned', 'DVD', '%1'").arg(EscapeSql(title)));
    }
    void PutInBoxset(const QString &child, const QString &boxset) {
        ASSERT_EQ(Run(QStringLiteral("INSERT INTO BoxSet (ChildID, BoxSetID) VALUES ('%1', '%2')").arg(child, boxset)),
                  1);
    }
    bool Export(const QString &skin = QStringLiteral("Blue")) {
        return CreateOfflineHTML(session, site, skin, options, host);
    }
    bool Has(const QString &name) const { return QFileInfo::exists(site + u'/' + name); }
    /// A file of the site, which must begin with a byte order mark.
    QString Read(const QString &name) const {
        const QByteArray bytes = test::ReadTestFile(site + u'/' + name);
        EXPECT_TRUE(bytes.startsWith("\xEF\xBB\xBF")) << qPrintable(name);
        return QString::fromUtf8(bytes.mid(3));
    }
    QStringList FilesIn(const QString &folder) const {
        return QDir(site + u'/' + folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    /// What stands between the mark `begin` and "]" at the end of a filled template.
    static QString Part(const QString &text, const QString &begin, const QString &end) {
        const qsizetype from = text.indexOf(begin) + begin.size();
        return text.mid(from, text.indexOf(end, from) - from);
    }
    QString Listing() const {
        return Part(Read(QStringLiteral("list.html")), QStringLiteral("L["), QStringLiteral("]M["));
    }
    QString Phone() const {
        const QString text = Read(QStringLiteral("iphone.html"));
        return text.mid(2, text.size() - 3);
    }
    /// Lets a text be shown as another.
    void TranslateAs(const QString &english, const QString &shown) {
        session.UseUserDefinedStrings = true;
        Run(QStringLiteral("INSERT INTO Translation (OriginalString, UserString) VALUES ('%1', '%2')")
                .arg(EscapeSql(english), EscapeSql(shown)));
    }

    QString site = Path(QStringLiteral("site"));
    SiteOptions options;
    SiteHost host;
};

} // namespace ostrand
