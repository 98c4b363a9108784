#include "GoldenPages.h"

#include "database/DatabaseFunctions.h"
#include "skin/SkinPage.h"
#include "support/Golden.h"

#include <QDir>
#include <gtest/gtest.h>

namespace ostrand::test {

namespace {

using namespace Qt::StringLiterals;

const QString kHeadingMark = u"=== "_s;

} // namespace

MessageAnswer NotedDialogs::Show(const Message &message) {
    EXPECT_EQ(message.icon, MessageIcon::Warning) << qPrintable(message.text);
    boxes += message.title + u": "_s + message.text;
    return message.neutral;
}

std::vector<GoldenPart> GoldenParts(const QString &skin_file) {
    std::vector<GoldenPart> parts;
    for (const QString &part : (u'\n' + skin_file).split(u'\n' + kHeadingMark).mid(1)) {
        const qsizetype end = part.indexOf(u'\n');
        QString page = end < 0 ? QString() : part.mid(end + 1);
        if (page.endsWith(u'\n')) { // the file's last part
            page.chop(1);
        }
        parts.push_back({part.left(end), page});
    }
    return parts;
}

QStringList GoldenSkins() {
    QStringList names = QDir(GoldenPath(u"skin"_s)).entryList({u"*.skin"_s}, QDir::Files, QDir::Name);
    return names.replaceInStrings(u".skin"_s, QString());
}

QString ReadGolden(const QString &name) {
    return ReadGoldenFile(u"skin/"_s + name);
}

GoldenCollection::GoldenCollection() {
    const TempDir &folder = scripted_.folders.dir;
    CreateCollectionDatabase(session_, folder / u"My films.mdb"_s);
    session_.DatabaseFile = folder / u"My films.mdb"_s;
    session_.CrewRoles.Load(CrewRoleMaps::DefaultMapping());
    session_.AppVersion = u"3.14.159"_s;
    session_.LocalLanguage = u"Elvish"_s;
    session_.CoverPath = folder / u"my covers/"_s;
    session_.HeadshotPath = folder / u"heads/"_s;
    skin.ActiveSkin = u"Harbour \"1\""_s;
    for (const QString &file :
         {u"my covers/0012345678905.4f.jpg"_s, u"my covers/0012345678905.4b.jpg"_s, u"my covers/0012345678905.4s.jpg"_s,
          u"my covers/O'Hara-7f.jpg"_s, u"my covers/OSV17f.jpg"_s, u"my covers/osv 21f.jpg"_s,
          u"my covers/4012345678901f.jpg"_s, u"heads/Mara Liv Okonski(1951).jpg"_s, u"heads/Siobhan O'Marra.jpg"_s,
          u"heads/Teld.jpg"_s}) {
        folder.Write(file, "picture");
    }
    RunStatements(session_, ReadGolden(u"collection.sql"_s));
}

QString GoldenCollection::Render(const QString &skin_file) {
    QString text;
    for (const GoldenPart &part : GoldenParts(skin_file)) {
        text += kHeadingMark + part.heading + u'\n' + RenderPart(part);
    }
    return text.replace(scripted_.folders.dir.Path(), u"/TEMP"_s);
}

QString GoldenCollection::RenderPart(const GoldenPart &part) {
    const QStringList words = part.heading.split(u", "_s);
    Apply(words.mid(2));
    dialogs_.boxes.clear();
    asked_.clear();
    QString text = Page(words, part.page) + u'\n';
    for (const QString &box : std::as_const(dialogs_.boxes)) {
        text += u"--- box "_s + box + u'\n';
    }
    for (const QString &call : std::as_const(asked_)) {
        text += u"--- "_s + call + u'\n';
    }
    return text;
}

/// The options are called as in the program.
void GoldenCollection::Apply(const QStringList &words) {
    qsizetype known = 0;
    const auto is_on = [&](const QString &word) {
        const bool on = words.contains(word);
        known += on ? 1 : 0;
        return on;
    };
    options_ = {.offline = is_on(u"offline"_s),
                .opUseMyProfilerScans = is_on(u"opUseMyProfilerScans"_s),
                .opUseCoverScansLocally = is_on(u"opUseCoverScansLocally"_s),
                .chkGenerateCrosslinks = is_on(u"chkGenerateCrosslinks"_s),
                .generate_episode_pages = is_on(u"generate_episode_pages"_s),
                .use_original_title = is_on(u"use_original_title"_s),
                .use_custom_title = is_on(u"use_custom_title"_s),
                .copy_headshot = [this](const QString &file) { asked_ += u"headshot "_s + file; },
                .write_episode_page =
                    [this](const sql::Recordset &row) { asked_ += u"episode page "_s + row.Text(u"EpisodeID"); }};
    session_.UseUserDefinedStrings = is_on(u"translated"_s);
    session_.view.mUseOriginalTitle = is_on(u"mUseOriginalTitle"_s);
    session_.view.mUseCustomTitle = is_on(u"mUseCustomTitle"_s);
    session_.DecimalSeparator = is_on(u"comma"_s) ? u","_s : u"."_s;
    scripted_.locale.default_language = is_on(u"fi-FI"_s) ? u"fi-FI"_s : u"pt-BR"_s;
    back_profile_id_ = is_on(u"back"_s) ? u"Key_4012345678901"_s : QString();
    EXPECT_EQ(known, words.size()) << qPrintable(words.join(u", "_s)) << " hold an unknown one";
}

QString GoldenCollection::Page(const QStringList &words, const QString &page) {
    const bool is_episode = words.value(0) == "episode"_L1;
    EXPECT_TRUE(is_episode || words.value(0) == "profile"_L1) << qPrintable(words.join(u", "_s));
    try {
        const sql::Recordset row = OpenSkinRow(session_, words.value(1), is_episode);
        EXPECT_FALSE(row.Eof()) << qPrintable(words.join(u", "_s));
        return RenderSkinText(session_, skin, page, row, is_episode, back_profile_id_, options_);
    } catch (const SkinFailure &failure) {
        return u"--- no page: "_s + failure.Text();
    }
}

} // namespace ostrand::test
