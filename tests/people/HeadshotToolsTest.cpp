// The tools that tidy a folder of pictures: what is renamed, what is deleted, and that nothing else is lost.
#include "people/HeadshotTools.h"

#include "base/Files.h"
#include "people/CrossLinks.h"
#include "people/HeadshotFolder.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

class HeadshotTools : public CollectionTest {
protected:
    void SetUp() override {
        Create();
        Log(kTraceInfo | kTraceError);
        session.HeadshotPath = WithSeparator(Path(u"heads"_s));
        QDir().mkpath(session.HeadshotPath);
    }

    /// Files as "name=content"; lengths decide what is identical.
    void Have(const QStringList &files, const QString &folder = u"heads"_s) {
        QDir(Path(folder)).removeRecursively();
        QDir().mkpath(Path(folder));
        for (const QString &file : files) {
            folder_.Write(folder + u'/' + file.section(u'=', 0, 0), file.section(u'=', 1).toUtf8());
        }
    }
    QStringList Files(const QString &folder = u"heads"_s) {
        QStringList files;
        for (const QString &name : QDir(Path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
            files << name + u'=' + QString::fromUtf8(folder_.Read(folder + u'/' + name));
        }
        return files;
    }
    using Tool = void (*)(Session &, const QString &);
    struct Row {
        const char *name;
        QStringList before, after;
    };
    void Check(Tool tool, const std::vector<Row> &rows) {
        for (const Row &row : rows) {
            Have(row.before);
            tool(session, session.HeadshotPath);
            QStringList after = row.after;
            after.sort();
            QStringList files = Files();
            files.sort();
            EXPECT_EQ(files, after) << row.name;
        }
    }
};

} // namespace

TEST_F(HeadshotTools, TrailingSpacesAndUnderscoresGo) {
    Check(
        RemoveTrailingSpaces,
        {
            {"nothing to do", {u"Ann Lee.jpg=a"_s, u"Ann Lee_1.jpg=bb"_s}, {u"Ann Lee.jpg=a"_s, u"Ann Lee_1.jpg=bb"_s}},
            {"blanks at the ends", {u" Ann Lee .jpg=a"_s}, {u"Ann Lee.jpg=a"_s}},
            {"underscores", {u"Ann_Lee.jpg=a"_s}, {u"Ann Lee.jpg=a"_s}},
            {"two underscores", {u"Ann__Lee.jpg=a"_s}, {u"Ann Lee.jpg=a"_s}},
            {"the alternate stays", {u"Ann_Lee _12.jpg=a"_s}, {u"Ann Lee_12.jpg=a"_s}},
            {"a blank behind the alternate", {u"Ann_1 .jpg=a"_s}, {u"Ann_1.jpg=a"_s}},
            {"no number", {u"Ann_1a.jpg=a"_s}, {u"Ann 1a.jpg=a"_s}},
            {"identical in the way", {u"Ann .jpg=ab"_s, u"Ann.jpg=cd"_s}, {u"Ann.jpg=cd"_s}},
            {"another in the way", {u"Ann .jpg=ab"_s, u"Ann.jpg=c"_s}, {u"Ann.jpg=c"_s, u"Ann_1.jpg=ab"_s}},
            {"two others in the way",
             {u"Ann .jpg=abc"_s, u"Ann.jpg=c"_s, u"Ann_1.jpg=de"_s},
             {u"Ann.jpg=c"_s, u"Ann_1.jpg=de"_s, u"Ann_2.jpg=abc"_s}},
            {"identical alternate in the way",
             {u"Ann .jpg=ab"_s, u"Ann.jpg=c"_s, u"Ann_1.jpg=de"_s},
             {u"Ann.jpg=c"_s, u"Ann_1.jpg=de"_s}},
            {"an alternate in the way of one",
             {u"Ann _1.jpg=ab"_s, u"Ann_1.jpg=c"_s},
             {u"Ann_1.jpg=c"_s, u"Ann_2.jpg=ab"_s}},
            {"nothing would be left",
             {u" .jpg=a"_s, u"_1.jpg=b"_s, u"__.jpg=c"_s},
             {u" .jpg=a"_s, u"_1.jpg=b"_s, u"__.jpg=c"_s}},
            {"other files", {u"Ann_Lee.png=a"_s, u"Ann_Lee.jpg.txt=b"_s}, {u"Ann_Lee.png=a"_s, u"Ann_Lee.jpg.txt=b"_s}},
            {"an extension in the name",
             {u"Ann.jpg.jpg=a"_s, u"Bo .jpg.jpg=b"_s},
             {u"Ann.jpg.jpg=a"_s, u"Bo .jpg.jpg=b"_s}},
            {"an extension in capitals", {u"Ann_Lee.JPG=a"_s, u"Bo.JPG=b"_s}, {u"Ann Lee.jpg=a"_s, u"Bo.JPG=b"_s}},
        });
}

TEST_F(HeadshotTools, AliasesBecomeCommonNames) {
    LinkAlias(session, u"Ann Lee"_s, u"Anny Lee"_s, 0, true, {});
    LinkAlias(session, u"Bo: \"B\" O'Hara"_s, u"Bob O'Hara"_s, 0, true, {});
    LinkAlias(session, u"Cy 'The' Fox"_s, u"Cy 'X' Fox"_s, 0, true, {});
    LinkAlias(session, u"Two"_s, u"Dee"_s, 0, true, {});
    LinkAlias(session, u"Three"_s, u"Dee"_s, 1950, true, {});
    Check(RenameAlias,
          {
              {"a common name", {u"Ann Lee.jpg=a"_s}, {u"Ann Lee.jpg=a"_s}},
              {"an alias", {u"Anny Lee.jpg=a"_s}, {u"Ann Lee.jpg=a"_s}},
              {"in other letters", {u"ANNY LEE.jpg=a"_s}, {u"Ann Lee.jpg=a"_s}},
              {"with alternates",
               {u"Anny Lee.jpg=a"_s, u"Anny Lee_1.jpg=bb"_s, u"Anny Lee_3.jpg=c"_s},
               {u"Ann Lee.jpg=a"_s, u"Ann Lee_1.jpg=bb"_s, u"Ann Lee_3.jpg=c"_s}},
              {"a name that no file can have", {u"Bob O'Hara.jpg=a"_s}, {u"Bo - 'B' O'Hara.jpg=a"_s}},
              {"characters that no file of ours has", {u"Cy \"X\" Fox.jpg=a"_s}, {u"Cy 'The' Fox.jpg=a"_s}},
              {"two common names", {u"Dee.jpg=a"_s}, {u"Dee.jpg=a"_s}},
              {"a year in the name", {u"Anny Lee(1950).jpg=a"_s}, {u"Anny Lee(1950).jpg=a"_s}},
              {"identical in the way", {u"Anny Lee.jpg=a"_s, u"Ann Lee.jpg=b"_s}, {u"Ann Lee.jpg=b"_s}},
              {"another in the way",
               {u"Anny Lee.jpg=a"_s, u"Ann Lee.jpg=bb"_s},
               {u"Ann Lee.jpg=bb"_s, u"Ann Lee_1.jpg=a"_s}},
          });
}

TEST_F(HeadshotTools, NumbersBehindNamesBecomeAlternates) {
    Check(RenameAlternatives,
          {
              {"a number", {u"Ann.jpg=a"_s, u"Ann1.jpg=b"_s}, {u"Ann.jpg=a"_s, u"Ann_1.jpg=b"_s}},
              {"a blank before it", {u"Ann  12.jpg=b"_s}, {u"Ann_1.jpg=b"_s}},
              {"several",
               {u"Ann1.jpg=a"_s, u"Ann2.jpg=bb"_s, u"Ann_2.jpg=ccc"_s},
               {u"Ann_1.jpg=a"_s, u"Ann_2.jpg=ccc"_s, u"Ann_3.jpg=bb"_s}},
              {"identical in the way", {u"Ann1.jpg=a"_s, u"Ann_1.jpg=b"_s}, {u"Ann_1.jpg=b"_s}},
              {"an alternate already", {u"Ann_12.jpg=a"_s, u"A_nn1.jpg=b"_s}, {u"Ann_12.jpg=a"_s, u"A_nn1.jpg=b"_s}},
              {"digits alone", {u"1234.jpg=a"_s, u"7.jpg=b"_s}, {u"1234.jpg=a"_s, u"7.jpg=b"_s}},
              {"a year in brackets", {u"Ann(1950).jpg=a"_s}, {u"Ann(1950).jpg=a"_s}},
              {"one letter", {u"A1.jpg=a"_s}, {u"A_1.jpg=a"_s}},
          });
}

TEST_F(HeadshotTools, DuplicatesGoAndGapsClose) {
    Check(DeleteDuplicateImages,
          {
              {"all different",
               {u"Ann.jpg=a"_s, u"Ann_1.jpg=bb"_s, u"Ann_2.jpg=ccc"_s},
               {u"Ann.jpg=a"_s, u"Ann_1.jpg=bb"_s, u"Ann_2.jpg=ccc"_s}},
              {"as the primary",
               {u"Ann.jpg=a"_s, u"Ann_1.jpg=b"_s, u"Ann_2.jpg=cc"_s},
               {u"Ann.jpg=a"_s, u"Ann_1.jpg=cc"_s}},
              {"two alternates",
               {u"Ann.jpg=a"_s, u"Ann_1.jpg=bb"_s, u"Ann_2.jpg=ccc"_s, u"Ann_3.jpg=dd"_s, u"Ann_4.jpg=eeee"_s},
               {u"Ann.jpg=a"_s, u"Ann_1.jpg=bb"_s, u"Ann_2.jpg=ccc"_s, u"Ann_3.jpg=eeee"_s}},
              {"a gap",
               {u"Ann.jpg=a"_s, u"Ann_2.jpg=bb"_s, u"Ann_7.jpg=ccc"_s},
               {u"Ann.jpg=a"_s, u"Ann_1.jpg=bb"_s, u"Ann_2.jpg=ccc"_s}},
              {"no primary", {u"Ann_2.jpg=a"_s, u"Ann_3.jpg=b"_s}, {u"Ann_2.jpg=a"_s, u"Ann_3.jpg=b"_s}},
              {"beyond the numbers known", {u"Ann.jpg=a"_s, u"Ann_101.jpg=a"_s}, {u"Ann.jpg=a"_s, u"Ann_101.jpg=a"_s}},
              {"another person", {u"Ann.jpg=a"_s, u"Bo.jpg=b"_s}, {u"Ann.jpg=a"_s, u"Bo.jpg=b"_s}},
              {"a person with a year",
               {u"Ann(1950).jpg=a"_s, u"Ann(1950)_1.jpg=b"_s, u"Ann_1.jpg=c"_s},
               {u"Ann(1950).jpg=a"_s, u"Ann_1.jpg=c"_s}},
          });
}

TEST_F(HeadshotTools, IdenticalsOfTheSourceGo) {
    LinkAlias(session, u"Ann: Lee"_s, u"Anny"_s, 0, true, {});
    Have({u"Ann - Lee.jpg=a"_s, u"Ann - Lee_1.jpg=bb"_s, u"Ann - Lee_3.jpg=ccc"_s, u"Bo.jpg=dddd"_s});
    Have({u"Anny.jpg=x"_s, u"Anny_7.jpg=mm"_s, u"Anny_8.jpg=mmm"_s, u"Anny_9.jpg=mmmm"_s, u"Bo.jpg=x"_s,
          u"Bo_1.jpg=mmmm"_s, u"Cy.jpg=x"_s, u"Bo.png=mmmm"_s},
         u"source"_s);
    RemoveIdenticals(session, Path(u"source"_s));
    EXPECT_EQ(Files(u"source"_s), (QStringList{u"Anny_9.jpg=mmmm"_s, u"Bo.jpg=x"_s, u"Bo.png=mmmm"_s, u"Cy.jpg=x"_s}));
    EXPECT_EQ(Files().size(), 4);
    EXPECT_EQ(services.progress.calls.first(), u"opened Removing Identicals..."_s);
}

TEST_F(HeadshotTools, WithinTheHeadshotFolderNoFileIsItsOwnDuplicate) {
    Have({u"Ann.jpg=a"_s, u"Ann_1.jpg=b"_s, u"Bo.jpg=c"_s});
    RemoveIdenticals(session, Path(u"heads"_s));
    EXPECT_EQ(Files().size(), 2) << "one of the two of Ann, and that of Bo";
    EXPECT_TRUE(Files().contains(u"Bo.jpg=c"_s));
}

TEST_F(HeadshotTools, NamesThatNoFileCanHave) {
    for (const auto &[alias, common] :
         {std::pair(u"Long"_s, QString(250, u'x')), std::pair(u"Dots"_s, u".."_s), std::pair(u"Nothing"_s, u"?/*<>"_s),
          std::pair(u"Lines"_s, u"A\nB"_s), std::pair(u"Parent"_s, u"../Bo"_s), std::pair(u"Bar"_s, u"C|D"_s)}) {
        LinkAlias(session, common, alias, 0, true, {});
    }
    Check(RenameAlias, {
                           {"longer than a name may be", {u"Long_12.jpg=a"_s}, {u"Long_12.jpg=a"_s}},
                           {"dots alone", {u"Dots.jpg=a"_s}, {u"__.jpg=a"_s}},
                           {"nothing is left", {u"Nothing.jpg=a"_s}, {u"Nothing.jpg=a"_s}},
                           {"a line break", {u"Lines.jpg=a"_s}, {u"AB.jpg=a"_s}},
                           {"another folder", {u"Parent.jpg=a"_s}, {u"..Bo.jpg=a"_s}},
                           {"a bar stays", {u"Bar.jpg=a"_s}, {u"C|D.jpg=a"_s}},
                       });
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"Error:    RenameAlias: Long_12.jpg -> "_s)) << "the fault is traced";
}

TEST_F(HeadshotTools, WithoutAFolderNothingHappens) {
    Have({u"Ann .jpg=a"_s, u"Ann1.jpg=b"_s, u"Ann.jpg=c"_s, u"Ann_1.jpg=d"_s});
    const QStringList before = Files();
    const QString present = QDir::currentPath();
    QDir::setCurrent(session.HeadshotPath);
    session.HeadshotPath.clear();
    for (const Tool tool :
         {RemoveTrailingSpaces, RenameAlias, RenameAlternatives, DeleteDuplicateImages, RemoveIdenticals}) {
        tool(session, {});
    }
    EXPECT_FALSE(PictureFolder({}).Copy(u"Ann.jpg"_s, u"Bo.jpg"_s));
    QDir::setCurrent(present);
    EXPECT_EQ(Files(), before) << "no folder is not the one that the program was started in";
}

TEST_F(HeadshotTools, OfTwoSpellingsOfOneFileNoneIsLost) {
    const auto check = [&](Tool tool) {
        Have({u"ann lee.jpg=a"_s, u"Ann Lee.jpg=bb"_s, u"Ann_Lee.jpg=ccc"_s});
        tool(session, session.HeadshotPath);
        EXPECT_EQ(Files().size(), 3);
    };
    LinkAlias(session, u"ANN LEE"_s, u"Bo"_s, 0, true, {});
    for (const Tool tool : {RemoveTrailingSpaces, RenameAlias, RenameAlternatives, DeleteDuplicateImages}) {
        check(tool);
    }
}

TEST_F(HeadshotTools, ANameInOtherLettersIsOneRename) {
    Run(u"INSERT INTO Alias (AliasName, CommonName, BirthYear) VALUES ('ann lee', 'Ann Lee', 0)");
    Check(RenameAlias, {{"its own name", {u"ann lee.jpg=a"_s}, {u"Ann Lee.jpg=a"_s}}});
}

TEST_F(HeadshotTools, TellHowFarTheyAre) {
    const std::pair<Tool, const char16_t *> tools[] = {{RemoveTrailingSpaces, u"opened Removing Trailing Spaces..."},
                                                       {RenameAlias, u"opened Renaming AliasNames..."},
                                                       {RenameAlternatives, u"opened Renaming Alternatives..."},
                                                       {DeleteDuplicateImages, u"opened Removing Duplicates.."}};
    Have({u"Ann.jpg=a"_s, u"Bo.jpg=b"_s, u"notes.txt=c"_s});
    for (const auto &[tool, title] : tools) {
        services.progress.calls.clear();
        tool(session, session.HeadshotPath);
        EXPECT_EQ(services.progress.calls.first(), QString::fromUtf16(title));
        QStringList counters = services.progress.Of(u"counter"_s);
        counters.removeAll(QString());
        EXPECT_EQ(counters, (QStringList{u"0/2"_s, u"1/2"_s, u"2/2"_s}));
        EXPECT_EQ(services.progress.calls.last(), u"closed"_s);
    }
}

TEST_F(HeadshotTools, StopWhenTheUserCancels) {
    Have({u"A .jpg=a"_s, u"B .jpg=b"_s, u"C .jpg=c"_s});
    services.pump.At(1, [this] { session.progress.Close(); });
    RemoveTrailingSpaces(session, session.HeadshotPath);
    EXPECT_EQ(Files(), (QStringList{u"A.jpg=a"_s, u"B .jpg=b"_s, u"C .jpg=c"_s}));
}

TEST_F(HeadshotTools, AFolderThatIsGoneIsEmpty) {
    QDir(session.HeadshotPath).removeRecursively();
    for (const Tool tool :
         {RemoveTrailingSpaces, RenameAlias, RenameAlternatives, DeleteDuplicateImages, RemoveIdenticals}) {
        tool(session, session.HeadshotPath);
        tool(session, {});
    }
    EXPECT_FALSE(QDir(session.HeadshotPath).exists());
}

TEST_F(HeadshotTools, AFileThatCannotBeMovedStaysAndIsTraced) {
    Have({u"Ann .jpg=a"_s});
    services.pump.At(1, [] {});
    // A folder takes the place unseen.
    QDir(session.HeadshotPath).mkdir(u"Ann.jpg"_s);
    RemoveTrailingSpaces(session, session.HeadshotPath);
    EXPECT_EQ(Files(), QStringList{u"Ann .jpg=a"_s});
    EXPECT_TRUE(LogLines().join(u'\n').contains(u"Error:    RemoveTrailingSpaces: Ann .jpg -> Ann.jpg"_s));
}

TEST_F(HeadshotTools, TenThousandFilesAreTidied) {
    for (int i = 0; i < 10'000; ++i) {
        QFile file(session.HeadshotPath + u"Person %1x .jpg"_s.arg(i));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    RemoveTrailingSpaces(session, session.HeadshotPath);
    DeleteDuplicateImages(session, session.HeadshotPath);
    const QStringList names = PictureFolder(session.HeadshotPath).Names();
    EXPECT_EQ(names.size(), 10'000);
    EXPECT_TRUE(names.contains(u"Person 9999x.jpg"_s));
}

} // namespace ostrand
