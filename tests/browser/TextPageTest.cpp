// Texts of a title as pages.
#include "browser/TextPage.h"

#include "ShelfFixture.h"
#include "skin/TextConversion.h"
#include "support/ScriptedHtmlView.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class TextPageTest : public ShelfTest {
protected:
    static QString Wrapped(const QString &text) {
        return u"<html><head><style type='text/css'> body { margin: 10px; font: 10pt Arial; text-align: justify; } p { "
               "margin: 0.5em auto }</style></head><body>"_s +
               text + u"</body></html>"_s;
    }
    QByteArray Page(const QString &name) { return test::ReadTestFile(TextPageFile(session, name)); }

    test::ScriptedHtmlView view;
};

TEST_F(TextPageTest, LineEndsAndTheFrame) {
    struct Row {
        const char *name;
        QString text;
        QString page;
    };
    for (const Row &row : {
             Row{"plain", u"One"_s, Wrapped(u"One"_s)},
             Row{"line ends", u"One\r\nTwo\r\n"_s, Wrapped(u"One<br/>Two<br/>"_s)},
             Row{"breaks of its own", u"One<br>Two\r\nThree"_s, Wrapped(u"One<br>Two\r\nThree"_s)},
             Row{"breaks in capitals", u"One<BR/>Two\r\nThree"_s, Wrapped(u"One<BR/>Two\r\nThree"_s)},
             Row{"a page", u"<html>One\r\nTwo</html>"_s, u"<html>One<br/>Two</html>"_s},
             Row{"a page in capitals", u"<HTML>One</HTML>"_s, u"<HTML>One</HTML>"_s},
             Row{"a tag with an attribute is no page", u"<html lang='en'>"_s, Wrapped(u"<html lang='en'>"_s)},
         }) {
        EXPECT_EQ(TextPage(session, row.text), row.page) << row.name;
    }
}

TEST_F(TextPageTest, RelativePathsOfImages) {
    session.DataFolder = u"/data/My Films"_s;
    EXPECT_EQ(TextPage(session, u"<html><img src=\"..\\Images\\a.jpg\">"_s),
              u"<html><img src=\"file:///data/My%20Films/Images\\a.jpg\">"_s);
}

TEST_F(TextPageTest, ThePageIsStoredAndShown) {
    ShowTextHTML(session, view, u"Bouleau \u00e9"_s, u"Overview"_s);
    EXPECT_EQ(TextPageFile(session, u"Overview"_s), session.TempFolder + u"/HTMLTempOverview.html"_s);
    EXPECT_EQ(Page(u"Overview"_s), "\xEF\xBB\xBF" + Wrapped(u"Bouleau \u00e9"_s).toUtf8());
    EXPECT_EQ(view.urls, QStringList{PathToFileUrl(session.TempFolder + u"/HTMLTempOverview.html"_s)});
    ShowTextHTML(session, view, u"Other"_s, u"Overview"_s);
    EXPECT_EQ(Page(u"Overview"_s), "\xEF\xBB\xBF" + Wrapped(u"Other"_s).toUtf8());
}

TEST_F(TextPageTest, NoTextNeedsNoPage) {
    ShowTextHTML(session, view, {}, u"Notes"_s);
    EXPECT_EQ(view.urls, QStringList{u"about:blank"_s});
    EXPECT_FALSE(QFile::exists(TextPageFile(session, u"Notes"_s)));
}

TEST_F(TextPageTest, AFolderThatCannotBeWrittenIsTraced) {
    const QString file = folder_ / u"file"_s;
    folder_.Write(u"file"_s, "x");
    session.TempFolder = file + u"/below"_s;
    ShowTextHTML(session, view, u"One"_s, u"Notes"_s);
    EXPECT_EQ(LogLines().filter(u"ShowTextHTML: "_s).size(), 1);
}

} // namespace
} // namespace ostrand
