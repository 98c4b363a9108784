#include "shell/TranslatedTexts.h"

#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class TranslatedTextsTest : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        session.UseUserDefinedStrings = true;
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Director', 'Regie')");
        Run(u"INSERT INTO Translation (OriginalString, UserString) VALUES ('Writer', '')");
    }
};

TEST_F(TranslatedTextsTest, AreThoseOfTheRoutineForOneText) {
    const QStringList texts = {u"Director"_s, u"DIRECTOR"_s, u"Writer"_s, u"Baker"_s, {}, u"It's"_s};
    for (const bool translate : {true, false}) {
        session.UseUserDefinedStrings = translate;
        const TranslatedTexts many(session, texts);
        for (const QString &text : texts) {
            EXPECT_EQ(many(text), Translate(session, text)) << qPrintable(text) << translate;
        }
    }
}

TEST_F(TranslatedTextsTest, NewOnesAreRecorded) {
    session.TraceStrings = true;
    const TranslatedTexts many(session, {u"Director"_s, u"Baker"_s, u"Baker"_s, {}});
    EXPECT_EQ(many(u"Baker"_s), u"Baker"_s);
    EXPECT_EQ(Rows(u"SELECT OriginalString FROM Translation ORDER BY OriginalString"),
              (QStringList{u"Baker"_s, u"Director"_s, u"Writer"_s}));
}

TEST_F(TranslatedTextsTest, StandWithoutATable) {
    Run(u"DROP TABLE Translation");
    const TranslatedTexts many(session, {u"Director"_s});
    EXPECT_EQ(many(u"Director"_s), u"Director"_s);
    session.Database.reset();
    EXPECT_EQ(TranslatedTexts(session, {u"Director"_s})(u"Director"_s), u"Director"_s);
}

} // namespace
} // namespace ostrand
