#include "CoverFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ImageTagTest : public CoverTest {
protected:
    QString Link(const QString &target, const QString &source, const QString &size = u" WIDTH=160"_s) const {
        return u"<A HREF=\"%1\"><IMG SRC=\"%2\"%3></A>"_s.arg(target, source, size);
    }
    QByteArray ZoomPage(const QString &letter) const {
        return test::ReadTestFile(session.TempFolder + u'/' + letter + u".html"_s);
    }
};

TEST_F(ImageTagTest, FacesAndSizes) {
    for (const auto &name : {u"O'1f.jpg"_s, u"O'1b.jpg"_s, u"O'1s.jpg"_s}) {
        AddCover(name);
    }
    Check(
        GetDPImage,
        {
            {"front", {}, Link(u"f.html"_s, Url(u"O%271f.jpg"_s))},
            {"front by name", uR"(Face="FRONT")"_s, Link(u"f.html"_s, Url(u"O%271f.jpg"_s))},
            {"in any case", uR"(face="Front")"_s, Link(u"f.html"_s, Url(u"O%271f.jpg"_s))},
            {"back", uR"(Face="BACK")"_s, Link(u"b.html"_s, Url(u"O%271b.jpg"_s))},
            {"spine", uR"(Face="SPINE")"_s, Link(u"s.html"_s, Url(u"O%271s.jpg"_s))},
            {"another", uR"(Face="INSIDE")"_s, {}},
            {"width", uR"(Width="80%")"_s, Link(u"f.html"_s, Url(u"O%271f.jpg"_s), u" WIDTH=80%"_s)},
            {"height alone", uR"(HEIGHT="90")"_s, Link(u"f.html"_s, Url(u"O%271f.jpg"_s), u" HEIGHT=90"_s)},
            {"both", uR"(Height="90" Width="60")"_s, Link(u"f.html"_s, Url(u"O%271f.jpg"_s), u" WIDTH=60 HEIGHT=90"_s)},
        });
}

TEST_F(ImageTagTest, WithoutAFile) {
    EXPECT_EQ(Produce(GetDPImage), QString());
    EXPECT_FALSE(QFile::exists(session.TempFolder + u"/f.html"_s));
    AddCover(u"O'1b.jpg"_s);
    EXPECT_EQ(Produce(GetDPImage), QString());
    session.CoverPath = Path(u"nowhere"_s) + u'/';
    EXPECT_EQ(Produce(GetDPImage, uR"(Face="BACK")"_s), QString());
}

TEST_F(ImageTagTest, FindsFilesInAnyCase) {
    AddCover(u"o'1F.JPG"_s);
    EXPECT_EQ(Produce(GetDPImage), Link(u"f.html"_s, Url(u"o%271F.JPG"_s)));
    AddCover(u"O'1f.jpg"_s);
    EXPECT_EQ(Produce(GetDPImage), Link(u"f.html"_s, Url(u"O%271f.jpg"_s))) << "the exact name wins";
}

TEST_F(ImageTagTest, ManyLooksReadTheFolderOnce) {
    AddCover(u"O'1F.jpg"_s);
    for (int i = 0; i < 50; ++i) {
        EXPECT_FALSE(Produce(GetDPImage).isEmpty());
    }
    EXPECT_EQ(skin.covers.Reads(), 1);
}

TEST_F(ImageTagTest, AnUnsafeKeyStaysInTheFolder) {
    AddProfile(u"Key_../a:b"_s);
    folder_.Write(u"a -bf.jpg"_s, "image");
    EXPECT_EQ(Produce(GetDPImage, u"Key_../a:b"_s, false, {}, {}), QString());
    AddCover(u"..a -bf.jpg"_s);
    EXPECT_EQ(Produce(GetDPImage, u"Key_../a:b"_s, false, {}, {}), Link(u"f.html"_s, Url(u"..a%20-bf.jpg"_s)));
}

TEST_F(ImageTagTest, AnEpisodeHasAnImageOfItsKey) {
    AddCover(u"OSVE'1f.jpg"_s);
    EXPECT_EQ(ProduceForEpisode(GetDPImage), Link(u"f.html"_s, Url(u"OSVE%271f.jpg"_s)));
}

TEST_F(ImageTagTest, ZoomPage) {
    const QString file = AddCover(u"O'1b.jpg"_s);
    TranslateAs(u"Back"_s, u"L'\u00F1 \u20AC \U0001F3AC"_s);
    session.TempFolder = Path(u"made/when/needed"_s);
    EXPECT_EQ(Produce(GetDPImage, uR"(Face="BACK")"_s), Link(u"b.html"_s, Url(u"O%271b.jpg"_s)));
    EXPECT_EQ(QString::fromUtf8(ZoomPage(u"b"_s)),
              u"    <HTML><BODY>\r\n<INPUT TYPE='button' onClick='window.history.back();' VALUE=' < "
              "L&#39;&#241; &#8364; &#127916; '><br/>\r\n<IMG SRC='file://"_s +
                  QString(file).replace(u'\'', u"%27"_s) + u"'>\r\n</BODY></HTML>"_s);
}

TEST_F(ImageTagTest, ZoomPageOfAFolderWithAnyName) {
    session.CoverPath = Path(u"B\u00E4r & 100% #1"_s) + u'/';
    folder_.Write(u"B\u00E4r & 100% #1/O'1f.jpg"_s, "image");
    EXPECT_FALSE(Produce(GetDPImage).isEmpty());
    const QByteArray page = ZoomPage(u"f"_s);
    EXPECT_TRUE(page.contains("VALUE=' < Back '>")) << page.constData();
    EXPECT_TRUE(page.contains("/B%C3%A4r%20%26%20100%25%20%231/O%271f.jpg'>")) << page.constData();
}

TEST_F(ImageTagTest, AFolderThatCannotBeWritten) {
    AddCover(u"O'1f.jpg"_s);
    session.TempFolder = folder_.Write(u"file"_s, "no folder");
    EXPECT_THROW(Produce(GetDPImage), SkinFailure);
}

TEST_F(ImageTagTest, OnASite) {
    AddProfile(u"OSV7"_s);
    const QString foreign = Url(u"O%271f.jpg"_s);
    const struct {
        const char *name;
        QString key;
        bool exists;
        bool server;
        bool local;
        QString source; // empty for no image
    } cases[] = {
        {"foreign", kKey, true, false, false, foreign},
        {"foreign, local covers", kKey, true, false, true, foreign},
        {"foreign, no file", kKey, false, false, false, {}},
        {"foreign from the server", kKey, true, true, false, foreign},
        {"foreign from the server, no file", kKey, false, true, false, foreign},
        {"own", u"OSV7"_s, true, false, false, u"../Covers/OSV7f.jpg"_s},
        {"own, local covers", u"OSV7"_s, true, false, true, Url(u"OSV7f.jpg"_s)},
        {"own, no file", u"OSV7"_s, false, false, false, {}},
        {"own, others from the server", u"OSV7"_s, true, true, false, u"../Covers/OSV7f.jpg"_s},
        {"own, others from the server, no file", u"OSV7"_s, false, true, false, {}},
    };
    options.offline = true;
    for (const auto &c : cases) {
        RemoveCovers();
        if (c.exists) {
            AddCover(QString(c.key).remove(u"Key_"_s) + u"f.jpg"_s);
        }
        options.opUseMyProfilerScans = c.server;
        options.opUseCoverScansLocally = c.local;
        const QString expected = c.source.isEmpty() ? QString() : Link(c.source, c.source, u" WIDTH=70"_s);
        EXPECT_EQ(Produce(GetDPImage, c.key, false, uR"(Width="70")"_s, {}), expected) << c.name;
    }
    EXPECT_FALSE(QFile::exists(session.TempFolder + u"/f.html"_s)) << "no page with the large view";
}

TEST_F(ImageTagTest, TheServerHasNoSpines) {
    AddCover(u"O'1s.jpg"_s);
    options.offline = true;
    EXPECT_FALSE(Produce(GetDPImage, uR"(Face="SPINE")"_s).isEmpty());
    options.opUseMyProfilerScans = true;
    EXPECT_EQ(Produce(GetDPImage, uR"(Face="SPINE")"_s), QString());
    options.offline = false;
    EXPECT_FALSE(Produce(GetDPImage, uR"(Face="SPINE")"_s).isEmpty());
}

} // namespace
} // namespace ostrand
