// The languages that come with the program.
#include "browser/CollectionTabs.h"
#include "browser/Commands.h"
#include "browser/ToolBarTable.h"
#include "database/CollectionFixture.h"
#include "queries/LanguageFile.h"
#include "shell/SettingsForm.h"
#include "xml/XmlLoader.h"
#include "xml/XmlNodes.h"

#include <QMap>
#include <QSet>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class Languages : public CollectionTest, public testing::WithParamInterface<const char *> {
protected:
    void SetUp() override {
        Create();
        ASSERT_TRUE(ImportStringsFromFile(session, LanguagePath()));
        session.UseUserDefinedStrings = true;
        sql::Recordset rows = session.Database->OpenRecordset(u"SELECT * FROM Translation");
        for (; !rows.Eof(); rows.MoveNext()) {
            texts.insert(rows.Text(u"OriginalString"), rows.Text(u"UserString"));
        }
    }
    static QString LanguagePath() {
        return QString::fromUtf8(OSTRAND_SOURCE_DIR) + u"/resources/languages/"_s + QString::fromLatin1(GetParam()) +
               u".xml"_s;
    }
    /// A text of a table; null and empty ones are none.
    void ExpectKnown(const char16_t *text) {
        if (text != nullptr && *text != u'\0') {
            ExpectKnown(QString::fromUtf16(text));
        }
    }
    void ExpectKnown(const QString &text) {
        const bool known =
            !Rows(QString(u"SELECT UserString FROM Translation WHERE OriginalString = '"_s + EscapeSql(text) + u'\''))
                 .isEmpty();
        EXPECT_TRUE(known) << qPrintable(text);
    }
    QMap<QString, QString> texts;
};

TEST_P(Languages, NoEntryIsLostInTheTable) {
    pugi::xml_document document;
    ASSERT_TRUE(XmlLoadFile(LanguagePath(), document).ok);
    qsizetype entries = 0;
    for (const pugi::xml_node entry : document.child("Strings").children("String")) {
        ++entries;
        EXPECT_EQ(texts.value(XmlAttribute(entry, "Original")), XmlNodeText(entry)) << "cut, or told twice";
    }
    EXPECT_EQ(texts.size(), entries);
}

TEST_P(Languages, MenusHaveTheirTexts) {
    for (const MenuEntry &entry : MenuEntries()) {
        ExpectKnown(entry.text);
        ExpectKnown(entry.tool_tip);
    }
}

TEST_P(Languages, TheToolBarHasItsTexts) {
    for (const ToolButton &button : ToolButtons()) {
        for (const char16_t *text : {button.caption, button.tool_tip, button.tv_caption, button.tv_tool_tip}) {
            ExpectKnown(text);
        }
    }
}

TEST_P(Languages, TheSettingsHaveTheirTexts) {
    for (const SettingsGroupTexts &group : SettingsGroups()) {
        ExpectKnown(group.page);
        ExpectKnown(group.caption);
    }
    for (const SettingsEntry &entry : SettingsEntries()) {
        ExpectKnown(entry.caption);
        ExpectKnown(entry.tool_tip);
    }
}

TEST_P(Languages, ListsHaveTheirHeadings) {
    for (const char16_t *text : {u"Title", u"#", u"SortTitle", u"Year", u"P.Date", u"Released", u"Episode Title",
                                 u"Movie/Series", u"Role", u"Credited as", u"Database Name", u"Owner", u"Schema",
                                 u"Size", u"Title due", u"due from", u"day(s) overdue", u"Tables", u"Field"}) {
        ExpectKnown(text);
    }
}

TEST_P(Languages, EachEntryOfAMenuHasAKeyOfItsOwn) {
    QMap<QString, QMap<QChar, QString>> keys;
    for (const MenuEntry &entry : MenuEntries()) {
        const QString english = QString::fromUtf16(entry.text);
        if (entry.IsSeparator() || !english.contains(u'&')) {
            continue;
        }
        const QString shown = Translate(session, english);
        ASSERT_EQ(shown.count(u'&'), 1) << qPrintable(shown);
        const QChar key = shown.at(shown.indexOf(u'&') + 1).toUpper();
        EXPECT_TRUE(key.isLetterOrNumber()) << qPrintable(shown);
        QString &taken = keys[entry.parent == nullptr ? QString() : QString::fromUtf16(entry.parent)][key];
        EXPECT_EQ(taken, QString()) << qPrintable(shown);
        taken = shown;
    }
}

TEST_P(Languages, TextsKeepTheirForm) {
    for (const auto &[english, shown] : texts.asKeyValueRange()) {
        const std::string text = (english + u" -> "_s + shown).toStdString();
        EXPECT_FALSE(shown.isEmpty()) << text;
        EXPECT_EQ(english.contains(u'&'), shown.contains(u'&')) << text;
        EXPECT_EQ(english.endsWith(u"..."_s), shown.endsWith(u"..."_s)) << text;
        EXPECT_EQ(english.endsWith(u' '), shown.endsWith(u' ')) << text;
        EXPECT_EQ(english.startsWith(u' '), shown.startsWith(u' ')) << text;
        EXPECT_EQ(english.contains(u"$VariableName$"_s), shown.contains(u"$VariableName$"_s)) << text;
        EXPECT_FALSE(shown.contains(u'|')) << text << ": file filters are cut there";
        EXPECT_FALSE(shown.contains(QChar::ReplacementCharacter)) << text;
    }
}

TEST_P(Languages, WhatGoesBackToTheDatabaseComesBackTheSame) {
    for (const QString &english : {u"All"_s, u"TV"_s, u"Owned"_s, u"Ordered"_s, u"WishList"_s, u"Clear Filter"_s,
                                   u"Filter Profiles by Tags"_s, u"Add/Edit Filter"_s}) {
        const QString shown = Translate(session, english);
        EXPECT_NE(shown, english);
        EXPECT_EQ(ReverseTranslate(session, shown), english);
    }
}

INSTANTIATE_TEST_SUITE_P(Installed, Languages, testing::Values("German", "French", "Spanish", "Dutch"),
                         [](const auto &language) { return std::string(language.param); });

} // namespace
} // namespace ostrand
