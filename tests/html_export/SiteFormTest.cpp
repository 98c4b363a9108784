#include "html_export/SiteForm.h"

#include "SiteFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class SiteFormTest : public SiteTest {
protected:
    void SetUp() override {
        SiteTest::SetUp();
        session.CurrentSkin = u"Blue"_s;
    }
    void AddTypes(const QStringList &types) {
        for (const QString &type : types) {
            AddProfile(u"Key_"_s + type, u"T"_s, u", ColType"_s, u", '"_s + type + u'\'');
        }
    }
    void AddMedia(const QStringList &media) {
        for (const QString &medium : media) {
            AddProfile(u"Key_"_s + medium, u"T"_s, u", ColType, Medium"_s, u", 'Owned', '"_s + medium + u'\'');
        }
    }
    void AddQuery(const QString &name, const QString &statement) {
        Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('%1', '%2')"_s.arg(name, EscapeSql(statement)));
    }
    static QStringList Shown(const QAbstractItemModel &model) {
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model.columnCount(); ++column) {
                cells += model.index(row, column).data().toString();
            }
            rows += cells.join(u'|');
        }
        return rows;
    }
    QString Stored(const QString &key) { return ReadDbInfo(session, key, u"-"_s); }
};

TEST_F(SiteFormTest, SkinsAreAllFoldersAndTheChosenOne) {
    Skin(u"apricot"_s, "x");
    QDir().mkpath(session.DataFolder + u"/Skins/Empty"_s);
    const SiteForm form(session, host);
    const QStringList all{u"apricot"_s, u"Blue"_s, u"Empty"_s};
    EXPECT_EQ(form.Skins({}), all);
    EXPECT_EQ(form.Skins(u"blue"_s), all) << "the folder is found without regard to case";
    EXPECT_EQ(form.Skins(u"Gone"_s), all + QStringList(u"Gone"_s));
}

TEST_F(SiteFormTest, FiltersAreNoneAndTheSavedQueriesAndTheChosenOne) {
    AddQuery(u"Old"_s, u"SELECT * FROM Profiles WHERE ProdYear < 1950"_s);
    AddQuery(u"Drama"_s, u"SELECT * FROM Profiles"_s);
    SiteForm form(session, host);
    EXPECT_EQ(form.Filters(), (QStringList{QString(), u"Drama"_s, u"Old"_s}));
    form.options.Filter = u"Gone"_s;
    EXPECT_EQ(form.Filters(), (QStringList{QString(), u"Drama"_s, u"Old"_s, u"Gone"_s}));
}

TEST_F(SiteFormTest, ASkinListsEpisodesByItsTag) {
    const struct {
        const char *text;
        bool lists;
    } kRows[] = {
        {"<DP NAME=\"EPISODES\">", true},
        {"<dp x=\"1\" Name=\"Episodes\" y>", true},
        {"\xEF\xBB\xBF<img src=\"$DPIMAGES.a.png\"><DP NAME=\"EPISODES\">", true},
        {"<DP NAME='EPISODES'>", false},
        {"<DP NAME=EPISODES>", false},
        {"<DP NAME = \"EPISODES\">", false},
        {"<DP NAME=\"EPISODES2\">", false},
        {"<DP NAME=\"TITLE\">", false},
        {"", false},
    };
    const SiteForm form(session, host);
    for (const auto &row : kRows) {
        Skin(u"Tried"_s, row.text);
        EXPECT_EQ(form.ListsEpisodes(u"Tried"_s), row.lists) << row.text;
    }
    for (const QString &none : {u"Gone"_s, QString(), u".."_s}) {
        EXPECT_FALSE(form.ListsEpisodes(none)) << qPrintable(none);
    }
}

TEST_F(SiteFormTest, AFolderIsPickedOrLeft) {
    SiteForm form(session, host);
    services.dialogs.ExpectBrowseFolder(site, u"Export Path"_s);
    form.BrowseExportPath();
    EXPECT_EQ(form.options.ExportPath, site);
    services.dialogs.ExpectBrowseFolder({}, u"Export Path"_s);
    form.BrowseExportPath();
    EXPECT_EQ(form.options.ExportPath, site);
}

TEST_F(SiteFormTest, TypesAreShownInTheUsersLanguage) {
    AddTypes({u"Owned"_s, u"WishList"_s});
    AddProfile(u"Key_none"_s, u"T"_s);
    TranslateAs(u"Owned"_s, u"Besitz"_s);
    WriteDbInfo(session, u"HTML_ExcludedColTypes"_s, u"WishList"_s);
    SiteForm form(session, host);
    EXPECT_EQ(Shown(form.col_types), (QStringList{u"Besitz"_s, u"Unsorted"_s, u"WishList"_s}));
    EXPECT_EQ(form.col_types.index(0).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_EQ(form.col_types.index(2).data(Qt::CheckStateRole), Qt::Unchecked);
    EXPECT_TRUE(form.col_types.index(0).flags() & Qt::ItemIsUserCheckable);
    EXPECT_EQ(form.col_types.Order(), (QStringList{u"Owned"_s, QString(), u"WishList"_s}));
    EXPECT_EQ(form.col_types.Excluded(), QStringList(u"WishList"_s));
    ASSERT_TRUE(form.Save());
    EXPECT_EQ(Stored(u"HTML_ColTypesOrder"_s), u"Owned|unsorted|WishList"_s);
}

TEST_F(SiteFormTest, ATypeMovesByOneRow) {
    AddTypes({u"A"_s, u"B"_s, u"C"_s});
    SiteForm form(session, host);
    const struct {
        int row, by;
        bool moves;
        const char16_t *order;
    } kMoves[] = {
        {0, -1, false, u"ABC"}, {2, 1, false, u"ABC"}, {-1, 1, false, u"ABC"}, {3, -1, false, u"ABC"},
        {0, 1, true, u"BAC"},   {1, 1, true, u"BCA"},  {2, -1, true, u"BAC"},  {1, -1, true, u"ABC"},
    };
    for (const auto &move : kMoves) {
        const QPersistentModelIndex kept = form.col_types.index(std::clamp(move.row, 0, 2));
        const QString name = kept.data().toString();
        EXPECT_EQ(form.col_types.CanMove(move.row, move.by), move.moves) << move.row << ' ' << move.by;
        form.col_types.Move(move.row, move.by);
        EXPECT_EQ(form.col_types.Order().join(QString()), QStringView(move.order)) << move.row << ' ' << move.by;
        EXPECT_EQ(kept.data().toString(), name) << "the current row goes along";
    }
}

TEST_F(SiteFormTest, ATypeKeepsItsCheckWhenItMoves) {
    AddTypes({u"A"_s, u"B"_s});
    SiteForm form(session, host);
    EXPECT_TRUE(form.col_types.setData(form.col_types.index(0), Qt::Unchecked, Qt::CheckStateRole));
    EXPECT_FALSE(form.col_types.setData(form.col_types.index(0), u"x"_s, Qt::EditRole));
    form.col_types.Move(0, 1);
    EXPECT_EQ(form.col_types.Excluded(), QStringList(u"A"_s));
    EXPECT_EQ(form.col_types.Order(), (QStringList{u"B"_s, u"A"_s}));
}

TEST_F(SiteFormTest, EachMediumHasItsSkin) {
    AddMedia({u"DVD"_s, u"Blu-ray"_s, u"UHD"_s});
    AddProfile(u"Key_none"_s, u"T"_s);
    TranslateAs(u"DVD"_s, u"Scheibe"_s);
    TranslateAs(u"<use default>"_s, u"<wie sonst>"_s);
    WriteDbInfo(session, u"HTML_MediaSkins"_s, u"dvd=Blue|VCD=Blue"_s);
    SiteForm form(session, host);
    EXPECT_EQ(Shown(form.media_skins),
              (QStringList{u"Blu-ray|<wie sonst>"_s, u"Scheibe|Blue"_s, u"UHD|<wie sonst>"_s}));
    EXPECT_EQ(form.media_skins.headerData(0, Qt::Horizontal, Qt::DisplayRole), u"Media Type"_s);
    EXPECT_EQ(form.media_skins.headerData(1, Qt::Horizontal, Qt::DisplayRole), u"Skin"_s);
    EXPECT_EQ(form.media_skins.Chosen(), (std::vector<MediaSkin>{{u"DVD"_s, u"Blue"_s}}));
}

TEST_F(SiteFormTest, TheSkinOfAMediumIsAskedFor) {
    AddMedia({u"DVD"_s});
    Skin(u"Red"_s, "x");
    SiteForm form(session, host);
    const QString prompt = u"Select Skin for media type"_s;
    const QString title = u"Skin Selection"_s;
    const struct {
        std::optional<QString> answer;
        QString skin;
    } kAnswers[] = {
        {u"Red"_s, u"Red"_s},     {std::nullopt, u"Red"_s}, {u" "_s, u"Red"_s}, {u"<use default>"_s, QString()},
        {u" Blue "_s, u"Blue"_s}, {u"a|b"_s, u"ab"_s},
    };
    QString before = u"<use default>"_s;
    for (const auto &row : kAnswers) {
        services.dialogs.ExpectInput(prompt, row.answer, title);
        form.media_skins.ChooseSkin(0);
        EXPECT_EQ(services.dialogs.last_values, (QStringList{u"<use default>"_s, u"Blue"_s, u"Red"_s}));
        EXPECT_EQ(services.dialogs.last_preset, before);
        const std::vector<MediaSkin> chosen = form.media_skins.Chosen();
        EXPECT_EQ(chosen.empty() ? QString() : chosen.front().skin, row.skin);
        before = row.skin.isEmpty() ? u"<use default>"_s : row.skin;
    }
    form.media_skins.ChooseSkin(-1);
    form.media_skins.ChooseSkin(1);
}

TEST_F(SiteFormTest, SavingKeepsAllOfIt) {
    AddTypes({u"Owned"_s, u"Sold"_s});
    AddMedia({u"DVD"_s});
    SiteForm form(session, host);
    form.options.ExportPath = site;
    form.options.SortByTitle = false;
    form.col_types.Move(0, 1);
    form.col_types.setData(form.col_types.index(0), Qt::Unchecked, Qt::CheckStateRole);
    services.dialogs.ExpectInput({}, u"Blue"_s);
    form.media_skins.ChooseSkin(0);
    EXPECT_EQ(Stored(u"HTML_ExportPath"_s), u"-"_s);
    ASSERT_TRUE(form.Save());
    EXPECT_EQ(Stored(u"HTML_ExportPath"_s), site);
    EXPECT_EQ(Stored(u"HTML_SortByTitle"_s), u"0"_s);
    EXPECT_EQ(Stored(u"HTML_ColTypesOrder"_s), u"Sold|Owned"_s);
    EXPECT_EQ(Stored(u"HTML_ExcludedColTypes"_s), u"Sold"_s);
    EXPECT_EQ(Stored(u"HTML_MediaSkins"_s), u"DVD=Blue"_s);
    const SiteForm again(session, host);
    EXPECT_EQ(again.options.ExportPath, site);
    EXPECT_EQ(again.col_types.Order(), (QStringList{u"Sold"_s, u"Owned"_s}));
    EXPECT_EQ(again.col_types.Excluded(), QStringList(u"Sold"_s));
    EXPECT_EQ(again.media_skins.Chosen(), (std::vector<MediaSkin>{{u"DVD"_s, u"Blue"_s}}));
}

TEST_F(SiteFormTest, AFaultWhileSavingIsToldAndChangesNothing) {
    SiteForm form(session, host);
    Run(u"DROP TABLE DbInfo");
    Expect({}, u"HTML Export"_s, MessageIcon::Critical);
    EXPECT_FALSE(form.Save());
}

TEST_F(SiteFormTest, ADatabaseOfANewerProgramKeepsItsSettings) {
    session.DatabaseTooNew = true;
    SiteForm form(session, host);
    form.options.ExportPath = site;
    EXPECT_FALSE(form.CanSave());
    EXPECT_FALSE(form.Save());
    EXPECT_EQ(Stored(u"HTML_ExportPath"_s), u"-"_s);
}

TEST_F(SiteFormTest, StartNeedsAFolderAndASkin) {
    AddOwned(u"Key_1"_s, u"One"_s);
    SiteForm form(session, host);
    form.options.GenerateEpisodeHTML = false;
    for (const QString &folder : {QString(), Path(u"nowhere"_s)}) {
        form.options.ExportPath = folder;
        Expect(u"Export Path does not exist!"_s, {}, MessageIcon::Warning);
        EXPECT_FALSE(form.Start()) << qPrintable(folder);
    }
    form.options.ExportPath = site;
    form.options.Skin.clear();
    EXPECT_FALSE(form.Start());
    EXPECT_FALSE(Has(u"Profiles"_s));
}

TEST_F(SiteFormTest, StartTakesWhatIsChosenAndKeepsNothing) {
    AddOwned(u"Key_1"_s, u"One"_s);
    AddTypes({u"Sold"_s});
    SiteForm form(session, host);
    form.options.ExportPath = site;
    form.options.GenerateEpisodeHTML = false;
    form.col_types.setData(form.col_types.index(1), Qt::Unchecked, Qt::CheckStateRole);
    ASSERT_TRUE(form.Start());
    EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList(u"1.html"_s));
    EXPECT_EQ(Rows(u"SELECT InfoName FROM DbInfo WHERE InfoName LIKE 'HTML_*'"), QStringList());
}

TEST_F(SiteFormTest, OneRunAtATime) {
    AddOwned(u"Key_1"_s, u"One"_s);
    SiteForm form(session, host);
    form.options.ExportPath = site;
    form.options.GenerateEpisodeHTML = false;
    bool asked = false;
    services.pump.At(1, [&] {
        asked = true;
        EXPECT_TRUE(form.IsRunning());
        EXPECT_FALSE(form.Start());
    });
    EXPECT_TRUE(form.Start());
    EXPECT_TRUE(asked);
    EXPECT_FALSE(form.IsRunning());
    EXPECT_EQ(services.progress.Of(u"opened"_s).size(), 1);
}

TEST_F(SiteFormTest, ARunCanBeCancelled) {
    AddOwned(u"Key_1"_s, u"One"_s);
    SiteForm form(session, host);
    form.options.ExportPath = site;
    form.options.GenerateEpisodeHTML = false;
    form.CancelRun();
    services.pump.At(1, [&] { form.CancelRun(); });
    EXPECT_FALSE(form.Start());
    EXPECT_EQ(FilesIn(u"Profiles"_s), QStringList());
    EXPECT_FALSE(form.IsRunning());
}

} // namespace
} // namespace ostrand
