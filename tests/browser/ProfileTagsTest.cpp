// The tree of all tags with the ticks of one title.
#include "SheetFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ProfileTagsTest : public SheetTest {
protected:
    void SetUp() override {
        SheetTest::SetUp();
        for (const char16_t *tag : {u"Shelf/Top", u"Shelf/Low", u"Seen", u"Shelf/Top/Left"}) {
            AddTag(u"B1"_s, QString::fromUtf16(tag));
        }
    }
    /// The nodes in the order of the tree, each below another with a blank in front; ticked ones with an "x" behind.
    QStringList Tree(const QModelIndex &above = {}, int depth = 0) {
        QStringList lines;
        for (int row = 0; row < sheet.tags.rowCount(above); ++row) {
            const QModelIndex node = sheet.tags.index(row, 0, above);
            EXPECT_EQ(node.parent(), above);
            const bool ticked = node.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            lines += QString(depth, u' ') + node.data().toString() + (ticked ? u" x"_s : QString());
            lines += Tree(node, depth + 1);
        }
        return lines;
    }
    QStringList TagsOf(const QString &id) {
        return Rows(
            QStringLiteral("SELECT TagName, FullyQualifiedName FROM Tags WHERE ProfileID = '%1' ORDER BY TagName")
                .arg(id));
    }

    ProfileSheet sheet{session};
};

TEST_F(ProfileTagsTest, TheLevelsOfATagAreNodes) {
    sheet.Restart();
    EXPECT_EQ(Tree(), (QStringList{u"Seen"_s, u"Shelf"_s, u" Low"_s, u" Top"_s, u"  Left"_s}));
}

TEST_F(ProfileTagsTest, TheTreeIsReadInOneReset) {
    QStringList told;
    QObject::connect(&sheet.tags, &QAbstractItemModel::modelReset, [&] { told += u"reset"_s; });
    QObject::connect(&sheet.tags, &QAbstractItemModel::rowsInserted, [&] { told += u"inserted"_s; });
    sheet.tags.ReadTree();
    EXPECT_EQ(told, QStringList{u"reset"_s});
    sheet.tags.CheckTag(u"Lent/To"_s);
    EXPECT_EQ(told, (QStringList{u"reset"_s, u"inserted"_s, u"inserted"_s}));
}

TEST_F(ProfileTagsTest, TheTagsOfATitleAreTicked) {
    AddTag(u"A1"_s, u"Shelf/Top"_s);
    AddTag(u"H110"_s, u"Seen"_s);
    sheet.Restart();
    sheet.GetProfileInfo(u"A1"_s);
    EXPECT_EQ(Tree(), (QStringList{u"Seen"_s, u"Shelf"_s, u" Low"_s, u" Top x"_s, u"  Left"_s}));
    sheet.GetEpisodeInfo(u"H110"_s);
    EXPECT_EQ(sheet.tags.Checked(), QStringList{u"Seen"_s});
    sheet.ClearProfileInfos();
    EXPECT_EQ(sheet.tags.Checked(), QStringList());
}

TEST_F(ProfileTagsTest, ATagThatCameLaterGetsItsNodes) {
    sheet.Restart();
    AddTag(u"A1"_s, u"Shelf/Top/Right"_s);
    AddTag(u"A1"_s, u"Lent/To"_s);
    AddTag(u"A1"_s, u" hidden"_s);
    sheet.GetProfileInfo(u"A1"_s);
    EXPECT_EQ(Tree(), (QStringList{u"Seen"_s, u"Shelf"_s, u" Low"_s, u" Top"_s, u"  Left"_s, u"  Right x"_s, u"Lent"_s,
                                   u" To x"_s}));
}

TEST_F(ProfileTagsTest, OddNames) {
    for (const char16_t *tag : {u" blank", u"/front", u"back/", u"a//b", u"seen/Twice"}) {
        AddTag(u"C1"_s, QString::fromUtf16(tag));
    }
    sheet.Restart();
    sheet.GetProfileInfo(u"C1"_s);
    EXPECT_EQ(sheet.tags.Checked().size(), 4) << "all but the one behind a blank";
    EXPECT_TRUE(sheet.tags.Find(u"SEEN/TWICE"_s).isValid());
    EXPECT_EQ(sheet.tags.Find(u"seen/Twice"_s).parent().data().toString(), u"Seen"_s) << "names have no case";
    EXPECT_FALSE(sheet.tags.Find(u" blank"_s).isValid());
    EXPECT_EQ(sheet.tags.Find(u"a//b"_s).parent().parent().data().toString(), u"a"_s);
}

TEST_F(ProfileTagsTest, ATickIsWritten) {
    sheet.Restart();
    sheet.GetProfileInfo(u"Key_D1"_s);
    sheet.SetTag(u"Shelf/Low"_s, true);
    EXPECT_EQ(TagsOf(u"Key_D1"_s), QStringList{u"Low|Shelf/Low"_s});
    EXPECT_EQ(sheet.tags.Checked(), QStringList{u"Shelf/Low"_s});
    EXPECT_EQ(MD5Of(u"Key_D1"_s), QString());
    EXPECT_EQ(MD5Of(u"B1"_s), u"abc"_s);
    sheet.SetTag(u"Shelf/Low"_s, true);
    EXPECT_EQ(TagsOf(u"Key_D1"_s).size(), 1);
    sheet.SetTag(u"Shelf/Low"_s, false);
    EXPECT_EQ(TagsOf(u"Key_D1"_s), QStringList());
    EXPECT_EQ(sheet.tags.Checked(), QStringList());
    EXPECT_EQ(TagsOf(u"B1"_s).size(), 4) << "of another title";
}

TEST_F(ProfileTagsTest, WhatStaysAsItIsClearsNoHash) {
    sheet.Restart();
    sheet.GetProfileInfo(u"A1"_s);
    sheet.SetTag(u"Seen"_s, false);
    EXPECT_EQ(MD5Of(u"A1"_s), u"abc"_s);
}

TEST_F(ProfileTagsTest, TwoTagsOfOneNameBothStay) {
    AddTag(u"C1"_s, u"Box/Low"_s);
    sheet.Restart();
    sheet.GetProfileInfo(u"A1"_s);
    sheet.SetTag(u"Shelf/Low"_s, true);
    sheet.SetTag(u"Box/Low"_s, true);
    EXPECT_EQ(TagsOf(u"A1"_s), (QStringList{u"Box/Low|Box/Low"_s, u"Low|Shelf/Low"_s}));
    EXPECT_EQ(sheet.tags.Checked(), (QStringList{u"Box/Low"_s, u"Shelf/Low"_s}));
}

TEST_F(ProfileTagsTest, ATagOfAnEpisode) {
    sheet.Restart();
    sheet.GetEpisodeInfo(u"H110"_s);
    sheet.SetTag(u"Seen"_s, true);
    EXPECT_EQ(TagsOf(u"H110"_s), QStringList{u"Seen|Seen"_s});
}

TEST_F(ProfileTagsTest, ApostrophesAreHarmless) {
    AddTag(u"C1"_s, u"Ada''s/Best"_s);
    sheet.Restart();
    sheet.GetProfileInfo(u"A1"_s);
    sheet.SetTag(u"Ada's/Best"_s, true);
    EXPECT_EQ(TagsOf(u"A1"_s), QStringList{u"Best|Ada's/Best"_s});
    sheet.SetTag(u"Ada's/Best"_s, false);
    EXPECT_EQ(TagsOf(u"A1"_s), QStringList());
}

TEST_F(ProfileTagsTest, ATickIsOnlyTold) {
    sheet.Restart();
    sheet.GetProfileInfo(u"A1"_s);
    QStringList told;
    QObject::connect(&sheet.tags, &ProfileTags::Ticked,
                     [&](const QString &name, bool on) { told += name + (on ? u" on"_s : u" off"_s); });
    EXPECT_TRUE(sheet.tags.setData(sheet.tags.Find(u"Shelf/Top"_s), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(told, QStringList{u"Shelf/Top on"_s});
    EXPECT_EQ(TagsOf(u"A1"_s), QStringList());
    EXPECT_EQ(sheet.tags.Checked(), QStringList());
}

} // namespace
} // namespace ostrand
