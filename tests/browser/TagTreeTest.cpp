#include "browser/TagTree.h"

#include "database/CollectionFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class TagTreeTest : public CollectionTest {
protected:
    void SetUp() override { Create(); }

    void AddTag(const QString &tag) {
        Run(u"INSERT INTO Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('P%1', 'T', '%2')"_s.arg(
            QString::number(++tags_), EscapeSql(tag)));
    }
    /// The texts of the nodes with a ">" for each level above, and a "*" behind what is checked.
    QStringList Shown(const QModelIndex &parent = {}, const QString &indent = {}) const {
        QStringList lines;
        for (int row = 0; row < tree.rowCount(parent); ++row) {
            const QModelIndex node = tree.index(row, 0, parent);
            const bool checked = node.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            lines << indent + node.data().toString() + (checked ? u"*"_s : QString());
            lines << Shown(node, indent + u'>');
        }
        return lines;
    }
    QModelIndex Node(const QString &tag) const {
        const auto found =
            tree.match(tree.index(0, 0), TagTree::TagRole, tag, 1, Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.front();
    }
    void Check(const QString &tag, Qt::CheckState state = Qt::Checked) {
        ASSERT_TRUE(tree.setData(Node(tag), state, Qt::CheckStateRole)) << qPrintable(tag);
    }

    TagTree tree;

private:
    int tags_ = 0;
};

TEST_F(TagTreeTest, EachLevelStandsBelowTheOneBefore) {
    AddTag(u"Mood/Dark/Very"_s);
    AddTag(u"Mood"_s);
    AddTag(u"Mood/Bright"_s);
    AddTag(u"Shelf/Top"_s);
    tree.Load(session, false);
    EXPECT_EQ(Shown(), (QStringList{u"Mood"_s, u">Bright"_s, u">Dark"_s, u">>Very"_s, u"Shelf"_s, u">Top"_s}));
}

TEST_F(TagTreeTest, ANodeTellsItsKeyAndFullPath) {
    AddTag(u"Mood/Dark"_s);
    tree.Load(session, false);
    const QModelIndex dark = Node(u"Mood/Dark"_s);
    ASSERT_TRUE(dark.isValid());
    EXPECT_EQ(dark.data().toString(), u"Dark"_s);
    EXPECT_EQ(dark.data(TagTree::KeyRole).toString(), u"tMood/Dark"_s);
    EXPECT_EQ(dark.data(Qt::ToolTipRole).toString(), u"Mood/Dark"_s);
    EXPECT_EQ(dark.parent().data(TagTree::KeyRole).toString(), u"tMood"_s);
    EXPECT_FALSE(dark.data(Qt::DecorationRole).isValid());
    EXPECT_TRUE(tree.flags(dark).testFlag(Qt::ItemIsUserCheckable));
    EXPECT_FALSE(tree.data({}, Qt::DisplayRole).isValid());
}

TEST_F(TagTreeTest, OddTags) {
    const struct {
        const char *what;
        QStringList tags;
        QStringList shown;
    } cases[] = {
        {"a value that begins with a blank is skipped", {u" Mood/Dark"_s, u"Shelf"_s}, {u"Shelf"_s}},
        {"an empty one holds no level", {QString()}, {}},
        {"a tag of several titles stands once", {u"Mood"_s, u"Mood"_s, u"Mood/A"_s}, {u"Mood"_s, u">A"_s}},
        {"cases are one, as in statements", {u"Mood/Dark"_s, u"mood/Dim"_s}, {u"Mood"_s, u">Dark"_s, u">Dim"_s}},
        {"a name between the level and what is below", {u"A"_s, u"A B"_s, u"A/C"_s}, {u"A"_s, u">C"_s, u"A B"_s}},
        {"the same name on two levels", {u"A/A"_s, u"B/A"_s}, {u"A"_s, u">A"_s, u"B"_s, u">A"_s}},
        {"an empty level has a node", {u"A//B"_s}, {u"A"_s, u">"_s, u">>B"_s}},
        {"dividers at the ends", {u"/A/"_s}, {u""_s, u">A"_s, u">>"_s}},
        {"quotes and ampersands", {u"Tom's & Co"_s}, {u"Tom's & Co"_s}},
    };
    for (const auto &c : cases) {
        Run(u"DELETE FROM Tags");
        for (const QString &tag : c.tags) {
            AddTag(tag);
        }
        tree.Load(session, false);
        EXPECT_EQ(Shown(), c.shown) << c.what;
    }
}

TEST_F(TagTreeTest, ATagThatIsNullIsNone) {
    Run(u"INSERT INTO Tags (ProfileID, TagName) VALUES ('P', 'T')");
    tree.Load(session, false);
    EXPECT_EQ(tree.rowCount(), 0);
}

TEST_F(TagTreeTest, WithoutADatabaseThereAreNone) {
    AddTag(u"Mood"_s);
    tree.Load(session, false);
    ASSERT_EQ(tree.rowCount(), 1);
    session.Database.reset();
    tree.Load(session, true);
    EXPECT_EQ(tree.rowCount(), 0);
    EXPECT_EQ(tree.CheckedTags(), QStringList());
}

TEST_F(TagTreeTest, AFaultLeavesNoTag) {
    AddTag(u"Mood"_s);
    tree.Load(session, false);
    Run(u"DROP TABLE Tags");
    EXPECT_THROW(tree.Load(session, true), sql::SqlError);
    EXPECT_EQ(tree.rowCount(), 0);
}

TEST_F(TagTreeTest, ChecksAreToldInTheOrderOfTheTree) {
    AddTag(u"Mood/Dark"_s);
    AddTag(u"Mood/Bright"_s);
    AddTag(u"Attic"_s);
    tree.Load(session, false);
    int told = 0;
    QObject::connect(&tree, &TagTree::CheckChanged, [&] { ++told; });
    Check(u"Mood/Dark"_s);
    Check(u"Mood"_s);
    Check(u"Attic"_s);
    EXPECT_EQ(tree.CheckedTags(), (QStringList{u"Attic"_s, u"Mood"_s, u"Mood/Dark"_s}));
    EXPECT_EQ(Shown(), (QStringList{u"Attic*"_s, u"Mood*"_s, u">Bright"_s, u">Dark*"_s})) << "no other node changes";
    EXPECT_EQ(told, 3);
    Check(u"Mood"_s);
    EXPECT_EQ(told, 3) << "it was checked before";
    Check(u"Mood"_s, Qt::Unchecked);
    EXPECT_EQ(told, 4);
    EXPECT_EQ(tree.CheckedTags(), (QStringList{u"Attic"_s, u"Mood/Dark"_s}));
    EXPECT_FALSE(tree.setData({}, Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(tree.setData(Node(u"Mood"_s), u"Other"_s, Qt::EditRole));
}

TEST_F(TagTreeTest, ReadingAgainKeepsTheChecksOnDemand) {
    AddTag(u"Mood/Dark"_s);
    AddTag(u"Mood/Bright"_s);
    tree.Load(session, false);
    Check(u"Mood/Dark"_s);
    Check(u"Mood/Bright"_s);
    Run(u"DELETE FROM Tags WHERE FullyQualifiedName = 'Mood/Bright'");
    AddTag(u"Mood/Calm"_s);
    int told = 0;
    QObject::connect(&tree, &TagTree::CheckChanged, [&] { ++told; });
    tree.Load(session, true);
    EXPECT_EQ(Shown(), (QStringList{u"Mood"_s, u">Calm"_s, u">Dark*"_s}));
    tree.Load(session, false);
    EXPECT_EQ(tree.CheckedTags(), QStringList());
    EXPECT_EQ(told, 0) << "the user changed nothing";
}

TEST_F(TagTreeTest, FollowsChangesOfTheTableAndNothingElse) {
    AddTag(u"Mood/Dark"_s);
    tree.Load(session, false);
    Check(u"Mood/Dark"_s);
    int resets = 0;
    QObject::connect(&tree, &QAbstractItemModel::modelReset, [&] { ++resets; });
    EXPECT_FALSE(tree.FollowChanges(session));
    AddTag(u"Mood/Dark"_s);
    EXPECT_FALSE(tree.FollowChanges(session)) << "no other tag";
    EXPECT_EQ(resets, 0);
    AddTag(u"Shelf"_s);
    EXPECT_TRUE(tree.FollowChanges(session));
    EXPECT_EQ(Shown(), (QStringList{u"Mood"_s, u">Dark*"_s, u"Shelf"_s}));
    Run(u"DELETE FROM Tags WHERE FullyQualifiedName LIKE 'Mood*'");
    EXPECT_TRUE(tree.FollowChanges(session));
    EXPECT_EQ(Shown(), QStringList{u"Shelf"_s});
    EXPECT_FALSE(tree.FollowChanges(session));
    Run(u"UPDATE Tags SET FullyQualifiedName = 'shelf'");
    EXPECT_TRUE(tree.FollowChanges(session)) << "another spelling";
    EXPECT_EQ(Shown(), QStringList{u"shelf"_s});
}

TEST_F(TagTreeTest, AFaultIsMetOnceUntilTheNextChange) {
    AddTag(u"Mood"_s);
    tree.Load(session, false);
    Run(u"DROP TABLE Tags");
    EXPECT_THROW(tree.FollowChanges(session), sql::SqlError);
    EXPECT_EQ(tree.rowCount(), 0);
    EXPECT_FALSE(tree.FollowChanges(session));
}

TEST_F(TagTreeTest, WithoutADatabaseThereIsNothingToFollow) {
    AddTag(u"Mood"_s);
    tree.Load(session, false);
    session.Database.reset();
    EXPECT_TRUE(tree.FollowChanges(session));
    EXPECT_EQ(tree.rowCount(), 0);
    EXPECT_FALSE(tree.FollowChanges(session));
}

} // namespace
} // namespace ostrand
