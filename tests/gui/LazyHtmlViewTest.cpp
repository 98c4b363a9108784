#include "platform_qt/LazyHtmlView.h"

#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class FakeEngine : public QWidget, public HtmlView {
public:
    FakeEngine(QWidget *parent, QStringList &shown) : QWidget(parent), shown_(shown) {}
    void Navigate(const QString &url) override {
        if (!before_navigate || !before_navigate(url)) {
            shown_ += url;
        }
    }
    void SetVisible(bool visible) override { setVisible(visible); }
    bool IsVisible() const override { return !isHidden(); }

private:
    QStringList &shown_;
};

class LazyHtmlViewTest : public ::testing::Test {
protected:
    QStringList shown;
    int made = 0;
    LazyHtmlView view{[this](QWidget *parent) {
        ++made;
        auto *engine = new FakeEngine(parent, shown);
        return HtmlEngine{engine, engine};
    }};
};

TEST_F(LazyHtmlViewTest, ABlankPageNeedsNoEngine) {
    view.Navigate(u"about:blank"_s);
    EXPECT_EQ(made, 0);
    EXPECT_FALSE(view.HasEngine());
}

TEST_F(LazyHtmlViewTest, TheFirstPageMakesTheEngineOnce) {
    view.Navigate(u"file:///a.html"_s);
    view.Navigate(u"about:blank"_s);
    view.Navigate(u"file:///b.html"_s);
    EXPECT_EQ(made, 1);
    EXPECT_EQ(shown, (QStringList{u"file:///a.html"_s, u"about:blank"_s, u"file:///b.html"_s}));
}

TEST_F(LazyHtmlViewTest, AWindowThatIsMadeAnewForTheEngineKeepsItsPlace) {
    view.Navigate(u"about:blank"_s);
    view.show();
    EXPECT_FALSE(view.testAttribute(Qt::WA_Moved)) << "the desktop chose its place";
    view.Navigate(u"file:///a.html"_s);
    EXPECT_TRUE(view.testAttribute(Qt::WA_Moved));
}

TEST_F(LazyHtmlViewTest, EveryNavigationIsToldAndCanBeCancelled) {
    QStringList asked;
    view.before_navigate = [&](const QString &url) {
        asked += url;
        return url.startsWith(u"osv:"_s);
    };
    for (const QString &url : {u"about:blank"_s, u"file:///a.html"_s, u"osv:x"_s}) {
        view.Navigate(url);
    }
    EXPECT_EQ(asked, (QStringList{u"about:blank"_s, u"file:///a.html"_s, u"osv:x"_s}));
    EXPECT_EQ(shown, (QStringList{u"file:///a.html"_s}));
}

TEST_F(LazyHtmlViewTest, IsShownAndHiddenAsAWhole) {
    view.SetVisible(true);
    EXPECT_TRUE(view.IsVisible());
    view.Navigate(u"file:///a.html"_s);
    view.SetVisible(false);
    EXPECT_FALSE(view.IsVisible());
    EXPECT_TRUE(view.isHidden());
}

TEST_F(LazyHtmlViewTest, TheEngineFillsIt) {
    view.resize(300, 200);
    view.show();
    view.Navigate(u"file:///a.html"_s);
    QApplication::processEvents();
    EXPECT_EQ(view.findChildren<QWidget *>().value(0)->geometry(), view.rect());
}

TEST(LazyHtmlViewWithoutEngine, PagesStayUnseen) {
    LazyHtmlView empty({});
    empty.Navigate(u"file:///a.html"_s);
    EXPECT_FALSE(empty.HasEngine());
    LazyHtmlView failing([](QWidget *) { return HtmlEngine{}; });
    failing.Navigate(u"file:///a.html"_s);
    failing.Navigate(u"file:///b.html"_s);
    EXPECT_FALSE(failing.HasEngine());
}

TEST(LazyHtmlViewWithoutEngine, EachPageAsksAgain) {
    int asked = 0;
    LazyHtmlView failing([&asked](QWidget *) {
        ++asked;
        return HtmlEngine{};
    });
    for (const QString &url : {u"file:///a.html"_s, u"about:blank"_s, u"file:///b.html"_s}) {
        failing.Navigate(url);
    }
    EXPECT_EQ(asked, 2);
}

} // namespace
} // namespace ostrand
