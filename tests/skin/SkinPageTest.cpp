#include "SkinFixture.h"
#include "skin/TextConversion.h"

#include <QDir>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

const QByteArray kMark = "\xEF\xBB\xBF";

class SkinPage : public SkinTest {
protected:
    void SetUp() override {
        SkinTest::SetUp();
        host.set_caption = [this](const QString &text) { caption = text; };
        host.EnableWebSkin = [this](bool on) { calls += on ? u"skin on"_s : u"skin off"_s; };
        host.redisplay = [this] { calls += u"redisplay"_s; };
        host.refresh_menus = [this] { calls += u"menus"_s; };
        session.view.mSkinEnable = true;
    }

    QString WriteFile(const QString &path, const QByteArray &content) const {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    QString SkinPath(const QString &name) const { return session.DataFolder + u"/Skins/"_s + name; }
    void WriteSkin(const QByteArray &content, const QString &name = u"Plain"_s) const {
        WriteFile(SkinPath(name) + u"/Skin.html"_s, content);
    }
    bool Show(const QString &key = u"Key_1"_s, bool is_episode = false, const QString &preset = {},
              const QString &name = u"Plain"_s, const QString &back = {}) {
        return ShowSkinPage(session, skin, view, host, name, key, is_episode, back, preset);
    }
    /// The page in the view, without its mark.
    QByteArray Shown() const {
        const QByteArray page = test::ReadTestFile(session.TempFolder + u"/Temp.html"_s);
        EXPECT_TRUE(page.startsWith(kMark));
        return page.mid(kMark.size());
    }

    RecordingView view;
    SkinHost host;
    QString caption;
    QStringList calls;
};

TEST_F(SkinPage, IsWrittenAndShown) {
    WriteSkin("<b><DP NAME=\"MEDIUM\"></b> <DP NAME=\"SKIN_NAME\">");
    EXPECT_TRUE(Show());
    EXPECT_EQ(Shown(), "<b>DVD</b> Plain");
    EXPECT_EQ(view.urls, (QStringList{u"about:blank"_s, PathToFileUrl(session.TempFolder + u"/Temp.html"_s)}));
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(test::ReadTestFile(session.TempFolder + u"/blank.html"_s), kMark + "<HTML></HTML>");
    EXPECT_EQ(skin.ActiveSkin, u"Plain"_s);
    EXPECT_EQ(session.CurrentProfileID, u"Key_1"_s);
    EXPECT_FALSE(session.CurrentIsEpisode);
    EXPECT_EQ(caption, u"Amber/Ambre/Mine (1999) - DVD"_s);
    EXPECT_EQ(calls, QStringList());
}

TEST_F(SkinPage, OfAnEpisode) {
    WriteSkin("<DP NAME=\"OVERVIEW\">");
    EXPECT_TRUE(Show(u"E1"_s, true));
    EXPECT_EQ(Shown(), "Rain");
    EXPECT_EQ(session.CurrentProfileID, u"E1"_s);
    EXPECT_TRUE(session.CurrentIsEpisode);
    EXPECT_EQ(caption, u"Storm/Sturm"_s) << "an episode has no year of production and no medium";
}

TEST_F(SkinPage, HasAWayBack) {
    WriteSkin("<DP NAME=\"MEDIUM\">");
    EXPECT_TRUE(Show(u"Key_1"_s, false, {}, u"Plain"_s, u"Key_2"_s));
    EXPECT_TRUE(Shown().contains("blank.html?profileid=Key_2'\" VALUE=' < Back '>"));
}

TEST_F(SkinPage, OverwritesTheLastOne) {
    WriteSkin("<DP NAME=\"COLLNUM\"> and a long text that the next page does not have");
    Show();
    Show(u"Key_2"_s, false, u"[<DP NAME=\"COLLNUM\">]"_s);
    EXPECT_EQ(Shown(), "[]");
    EXPECT_EQ(caption, u"O'Brien"_s);
}

TEST_F(SkinPage, TheKeyIsEscaped) {
    Run(u"INSERT INTO Profiles (ProfileID, Title, Medium) VALUES ('K''1', 'Quote', 'VHS')");
    EXPECT_TRUE(Show(u"K'1"_s, false, u"<DP NAME=\"MEDIUM\">"_s));
    EXPECT_EQ(Shown(), "VHS");
}

TEST_F(SkinPage, TheFirstByteTellsTheEncoding) {
    const struct {
        const char *name;
        QByteArray file, page;
    } cases[] = {
        {"UTF-8 with a mark", kMark + "\xC3\xA9<DP NAME=\"MEDIUM\">\xE2\x82\xAC",
         "\xC3\xA9"
         "DVD\xE2\x82\xAC"},
        {"one byte each", "\xE9<DP NAME=\"MEDIUM\">\x80",
         "\xC3\xA9"
         "DVD\xE2\x82\xAC"},
        {"UTF-8 without a mark is read by single bytes", "\xC3\xA9<DP NAME=\"MEDIUM\">",
         "\xC3\x83\xC2\xA9"
         "DVD"},
        {"the first character behind a byte 239 goes", "\xEF\xBC\xA1<DP NAME=\"MEDIUM\">", "DVD"},
        {"a byte 255", "\xFF\xFE<DP NAME=\"MEDIUM\">",
         "\xC3\xBF\xC3\xBE"
         "DVD"},
        {"beyond the first plane", kMark + "\xF0\x9F\x98\x80<DP NAME=\"MEDIUM\">",
         "\xF0\x9F\x98\x80"
         "DVD"},
        {"empty", "", ""},
    };
    for (const auto &c : cases) {
        WriteSkin(c.file);
        EXPECT_TRUE(Show()) << c.name;
        EXPECT_EQ(Shown(), c.page) << c.name;
    }
}

TEST_F(SkinPage, TheImageLiteralLeadsToTheSkinsImages) {
    const QByteArray folder = PathToFileUrl(SkinPath(u"My Skin"_s) + u"/Images/"_s).toUtf8();
    WriteSkin("<img src=\"$DPIMAGES.title.jpg\"> $DPIMAGES.$dpimages.$DPIMAGES <DP NAME=\"MEDIUM\">", u"My Skin"_s);
    EXPECT_TRUE(Show(u"Key_1"_s, false, {}, u"My Skin"_s));
    EXPECT_EQ(Shown(), "<img src=\"" + folder + "title.jpg\"> " + folder + "$dpimages.$DPIMAGES DVD");
    EXPECT_TRUE(folder.contains("My%20Skin/Images/"));
    Show(u"Key_1"_s, false, u"$DPIMAGES.a<DP NAME=\"MEDIUM\">"_s, u"My Skin"_s);
    EXPECT_EQ(Shown(), folder + "aDVD") << "in a preset too";
}

TEST_F(SkinPage, FilesAreFoundInAnyCase) {
    WriteFile(SkinPath(u"Plain"_s) + u"/SKIN.htm"_s, "other");
    WriteFile(SkinPath(u"Plain"_s) + u"/skin.HTML"_s, "<DP NAME=\"MEDIUM\">$DPIMAGES.");
    QDir().mkpath(SkinPath(u"Plain"_s) + u"/images"_s);
    EXPECT_TRUE(Show(u"Key_1"_s, false, {}, u"PLAIN"_s));
    EXPECT_EQ(Shown(), "DVD" + PathToFileUrl(SkinPath(u"Plain"_s) + u"/images/"_s).toUtf8())
        << "and spelt as they are on disk";
}

TEST_F(SkinPage, AMissingTemplateIsTold) {
    QDir().mkpath(SkinPath(u"Empty"_s));
    for (const QString &name : {u"Empty"_s, u"None"_s, u"../Plain"_s, u".."_s}) {
        view = {};
        session.view.mSkinEnable = true;
        calls.clear();
        Expect(u"Skin "_s + name + u" does not exist!"_s, u"Skin.html missing"_s, MessageIcon::Warning);
        EXPECT_FALSE(Show(u"Key_1"_s, false, {}, name));
        EXPECT_FALSE(session.view.mSkinEnable);
        EXPECT_FALSE(view.visible);
        EXPECT_EQ(view.urls, QStringList{u"about:blank"_s});
        EXPECT_EQ(calls, QStringList{u"menus"_s});
        EXPECT_EQ(skin.ActiveSkin, name);
        EXPECT_EQ(session.CurrentProfileID, QString());
    }
    TranslateAs(u"Skin"_s, u"Haut"_s);
    TranslateAs(u"does not exist!"_s, u"fehlt!"_s);
    TranslateAs(u"Skin.html missing"_s, u"Keine Skin.html"_s);
    Expect(u"Haut None fehlt!"_s, u"Keine Skin.html"_s, MessageIcon::Warning);
    EXPECT_FALSE(Show(u"Key_1"_s, false, {}, u"None"_s));
    EXPECT_TRUE(Show(u"Key_1"_s, false, u"<DP NAME=\"MEDIUM\">"_s, u"None"_s)) << "a preset needs no file";
    EXPECT_EQ(Shown(), "DVD");
}

TEST_F(SkinPage, AFolderIsNoTemplate) {
    QDir().mkpath(SkinPath(u"Plain/Skin.html"_s));
    Expect(u"Skin Plain does not exist!"_s, u"Skin.html missing"_s, MessageIcon::Warning);
    EXPECT_FALSE(Show());
}

TEST_F(SkinPage, MayBeAnyLength) {
    const QByteArray line = QByteArray(200, '\xE9') + "<DP NAME=\"MEDIUM\">\r\n";
    const QByteArray shown = QByteArray("\xC3\xA9").repeated(200) + "DVD\r\n";
    WriteSkin(line.repeated(40000));
    EXPECT_TRUE(Show());
    EXPECT_EQ(Shown(), shown.repeated(40000));
    WriteSkin(QByteArray(20000000, '<') + "<DP NAME=\"MEDIUM\">");
    EXPECT_TRUE(Show());
    EXPECT_EQ(Shown(), QByteArray(20000000, '<') + "DVD");
}

TEST_F(SkinPage, WhatCannotBeRenderedIsShownAsItWasRead) {
    const struct {
        const char *name;
        QString page, key;
        QByteArray shown;
    } cases[] = {
        {"no tag", u"<b>plain</b> $DPIMAGES."_s, u"Key_1"_s,
         "<b>plain</b> " + PathToFileUrl(SkinPath(u"Plain"_s) + u"/Images/"_s).toUtf8()},
        {"a tag that is not guarded", u"<DP NAME=\"MEDIUM\"><DP NAME=\"CASETYPE\" Translate=\"maybe\">"_s, u"Key_1"_s,
         "<DP NAME=\"MEDIUM\"><DP NAME=\"CASETYPE\" Translate=\"maybe\">"},
        {"no row", u"<DP NAME=\"MEDIUM\">"_s, u"Key_none"_s, "<DP NAME=\"MEDIUM\">"},
    };
    for (const auto &c : cases) {
        caption = u"before"_s;
        EXPECT_TRUE(Show(c.key, false, c.page, u"Plain"_s, u"Key_2"_s)) << c.name;
        EXPECT_EQ(Shown(), c.shown) << c.name << ": without the frame of the way back";
        EXPECT_EQ(session.CurrentProfileID, c.key) << c.name;
        EXPECT_EQ(caption == u"before"_s, c.key == u"Key_none"_s) << c.name;
    }
}

TEST_F(SkinPage, GoesOnWithoutADatabase) {
    session.Database.reset();
    EXPECT_TRUE(Show(u"Key_1"_s, false, u"<DP NAME=\"MEDIUM\">"_s));
    EXPECT_EQ(Shown(), "<DP NAME=\"MEDIUM\">");
}

TEST_F(SkinPage, GoesOnWithoutATempFolder) {
    session.TempFolder = WriteFile(session.DataFolder + u"/file"_s, "x") + u"/Temp"_s;
    Log(kTraceError);
    EXPECT_TRUE(Show(u"Key_1"_s, false, u"<DP NAME=\"MEDIUM\">"_s));
    EXPECT_EQ(view.urls.size(), 2);
    EXPECT_EQ(LogLines().size(), 2);
}

TEST_F(SkinPage, NeedsNothingOfItsSurroundings) {
    host = {};
    EXPECT_TRUE(Show(u"Key_1"_s, false, u"<DP NAME=\"MEDIUM\">"_s));
    EXPECT_EQ(Shown(), "DVD");
}

TEST_F(SkinPage, WithoutASkinTheUserChoosesOne) {
    WriteSkin("<DP NAME=\"MEDIUM\">");
    services.dialogs.ExpectInput(u"Select Skin. Enter new name to create skin."_s, std::nullopt, u"Select Skin"_s);
    EXPECT_FALSE(Show(u"Key_1"_s, false, {}, {}));
    EXPECT_EQ(calls, QStringList{u"skin off"_s});
    EXPECT_EQ(view.urls, QStringList{u"about:blank"_s});
    calls.clear();
    services.dialogs.ExpectInput(u"Select Skin. Enter new name to create skin."_s, u"Plain"_s, u"Select Skin"_s);
    EXPECT_FALSE(Show(u"Key_1"_s, false, {}, {})) << "the new choice is shown by the host";
    EXPECT_EQ(calls, (QStringList{u"skin on"_s, u"redisplay"_s}));
    EXPECT_EQ(session.CurrentSkin, u"Plain"_s);
}

TEST_F(SkinPage, TheDialogOffersTheFoldersOfSkins) {
    for (const QString &name : {u"plain"_s, u"Other"_s, u"selected a|b"_s}) {
        QDir().mkpath(SkinPath(name));
    }
    WriteFile(session.DataFolder + u"/Skins/readme.txt"_s, "x");
    session.CurrentSkin = u"Other"_s;
    services.dialogs.ExpectInput({}, QString());
    EXPECT_FALSE(SelectSkinDialog(session, host)) << "an empty answer is none";
    EXPECT_EQ(services.dialogs.last_values, (QStringList{u"Other"_s, u"plain"_s, u"selected a|b"_s}));
    EXPECT_EQ(services.dialogs.last_preset, u"Other"_s);
    EXPECT_EQ(session.CurrentSkin, u"Other"_s);
    services.dialogs.ExpectInput({}, u"?*"_s);
    EXPECT_FALSE(SelectSkinDialog(session, host)) << "an answer without a character for a name is none";
    services.dialogs.ExpectInput({}, u"PLAIN"_s);
    EXPECT_TRUE(SelectSkinDialog(session, host));
    EXPECT_EQ(session.CurrentSkin, u"PLAIN"_s);
    EXPECT_FALSE(QFileInfo::exists(SkinPath(u"PLAIN"_s))) << "it is there in another spelling";
}

TEST_F(SkinPage, TheDialogIsTranslated) {
    TranslateAs(u"Select Skin"_s, u"Haut w\u00E4hlen"_s);
    TranslateAs(u"Select Skin. Enter new name to create skin."_s, u"Welche?"_s);
    services.dialogs.ExpectInput(u"Welche?"_s, std::nullopt, u"Haut w\u00E4hlen"_s);
    EXPECT_FALSE(SelectSkinDialog(session, host));
}

TEST_F(SkinPage, ANewNameMakesASkin) {
    services.dialogs.ExpectInput({}, u"My: Skin?"_s);
    EXPECT_TRUE(SelectSkinDialog(session, host));
    EXPECT_EQ(session.CurrentSkin, u"My - Skin"_s);
    EXPECT_TRUE(QFileInfo(SkinPath(u"My - Skin/Images"_s)).isDir());
    EXPECT_TRUE(QFileInfo(SkinPath(u"My - Skin/Skin.html"_s)).isFile());
    services.dialogs.ExpectInput({}, u"../../up"_s);
    EXPECT_TRUE(SelectSkinDialog(session, host));
    EXPECT_EQ(session.CurrentSkin, u"....up"_s) << "no name leads out of the folder";
}

TEST_F(SkinPage, ADefaultSkinIsWritten) {
    session.DataFolder = folder_ / u"o'h"_s;
    CreateDefaultSkin(session, u"New"_s);
    const QByteArray images = (folder_ / u"o\"h/Skins/New/Images"_s).toUtf8();
    EXPECT_EQ(test::ReadTestFile(SkinPath(u"New"_s) + u"/Skin.html"_s),
              kMark +
                  "<HTML>\r\n<HEAD>\r\n<SCRIPT TYPE=\"text/javascript\">\r\n<!--\r\n<DP NAME=\"HEADER_VARS\" "
                  "Language=\"JavaScript\" Comments=\"True\" IncludeCast=\"False\" IncludeCrew=\"False\">\r\n//-->\r\n"
                  "</SCRIPT>\r\n</HEAD>\r\n<BODY>\r\nCopy all images used by the skin into folder<br/>\r\n" +
                  images + "<br/>\r\n</BODY>\r\n</HTML>\r\n");
    EXPECT_TRUE(QFileInfo(session.DataFolder + u"/Skins/New/Images"_s).isDir());
}

} // namespace
} // namespace ostrand
