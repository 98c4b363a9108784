// What filters, groups and types ask the database for each row is looked up, never searched, and their own statements
// read each table once.
#include "browser/Attach.h"
#include "browser/BrowserFixture.h"
#include "browser/CollectionTabs.h"
#include "browser/CollectionTypes.h"
#include "browser/TagFilter.h"
#include "browser/TagTree.h"
#include "sql/Shape.h"

#include <QMap>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// One statement of each shape that was sent, its plan at that time, and how often that shape was sent.
struct Sent {
    QString example;
    QStringList plan;
    int times = 0;

    int Scans() const {
        return int(std::count_if(plan.begin(), plan.end(), [](const QString &step) {
            return step.startsWith(u"SCAN"_s) && !step.startsWith(u"SCAN CONSTANT"_s);
        }));
    }
};

class FilterPlans : public BrowserTest {
protected:
    void SetUp() override {
        BrowserTest::SetUp();
        Fill(kFew);
        Run(u"INSERT INTO SQLQueries (Name, SQLStatement) VALUES ('Saved', 'SELECT p.ProfileID, p.Title, p.ColNo, "
            u"p.SortTitle, p.OriginalTitle, p.OriginalSortTitle, p.Description FROM Profiles p WHERE p.ColType = "
            u"''OSV_CurrentColType''')");
        LoadTabs(browser);
        UpdateFilters(browser);
        browser.hooks.selected_subtitle = [] { return u"Czech"_s; };
        browser.hooks.selected_feature = [] { return u"Trailer"_s; };
        browser.hooks.selected_audio = [] { return u"Czech"_s; };
        browser.hooks.selected_studio = [] { return u"North Bay"_s; };
    }
    void TearDown() override { session.Database->SetObserver({}); }

    /// Profiles with a row in each table that is asked, the same values for all.
    void Fill(int profiles) {
        for (; filled_ < profiles; ++filled_) {
            const QString id = u"P%1"_s.arg(filled_);
            AddProfile(id,
                       u"ColType = 'Shelf', Rating = 'PG', Medium = 'Tape', CaseType = 'Box', Locality = 'Chile'"_s);
            for (const char *insert :
                 {"Tags (ProfileID, TagName, FullyQualifiedName) VALUES ('%1', 'Dark', 'Mood/Dark')",
                  "Genres (ProfileID, Genre) VALUES ('%1', 'Drama')",
                  "Subtitles (ProfileID, Subtitle) VALUES ('%1', 'Czech')",
                  "Features (ProfileID, Feature) VALUES ('%1', 'Trailer')",
                  "AudioFormats (ProfileID, OrderPos, Language) VALUES ('%1', 1, 'Czech')",
                  "Studios (ProfileID, Studio, Type) VALUES ('%1', 'North Bay', 'Media')"}) {
                Run(u"INSERT INTO "_s + QString::fromLatin1(insert).arg(id));
            }
        }
        AddChild(u"P%1"_s.arg(profiles - 1), u"P0"_s);
    }

    /// The statements of an action up to the first title, whose own ones are another matter.
    QMap<QString, Sent> Observe(const std::function<void()> &action) {
        QMap<QString, Sent> all;
        bool filled = false;
        browser.tab_titles = TabTitles(); // what it keeps would cost no statement
        const auto end = QObject::connect(&browser, &Browser::CurrentRowChanged, [&filled] { filled = true; });
        session.Database->SetObserver([&](QStringView statement) {
            sql::Shape shape;
            if (filled || !sql::ScanShape(statement, shape)) {
                return;
            }
            Sent &sent = all[shape.key];
            if (sent.times++ == 0) {
                sent.example = statement.toString();
                sent.plan = session.Database->QueryPlan(statement);
            }
        });
        action();
        session.Database->SetObserver({});
        QObject::disconnect(end);
        return all;
    }

    struct Case {
        const char *name;
        std::function<void()> action;
    };
    std::vector<Case> Cases() {
        const auto tags = [this](const QStringList &checked, bool negated) {
            return [this, checked, negated] {
                UpdateCollectionList(browser,
                                     {.tags = checked, .combined = TagFilter::Operator::And, .negated = negated});
            };
        };
        std::vector<Case> cases = {
            {"tabs", [this] { ReloadColTypeTabs(browser); }},
            {"filters", [this] { UpdateFilters(browser); }},
            {"opening the filters", [this] { OpenFilterList(browser); }},
            {"tag tree", [this] { TagTree().Load(session, true); }},
            {"no tag", tags({}, false)},
            {"tags", tags({u"Mood/Dark"_s, u"Mood"_s}, false)},
            {"tags, negated", tags({u"Mood/Dark"_s, u"Mood"_s}, true)},
            {"saved filter", [this] { ChooseFilter(browser, u"Saved"_s); }},
            {"clear filter", [this] { ChooseFilter(browser, u"Clear Filter"_s); }},
        };
        for (const char *category :
             {"Genre", "Rating", "Medium", "CaseType", "Locality", "Subtitle", "Feature", "AudioFormat", "Studio"}) {
            cases.push_back(
                {category, [this, category] { SpecialProfileOrder(browser, QString::fromLatin1(category)); }});
        }
        return cases;
    }

    static constexpr int kFew = 5;
    static constexpr int kMany = 40;

private:
    int filled_ = 0;
};

TEST_F(FilterPlans, NoStatementRunsPerRow) {
    const auto count_all = [this] {
        QMap<QString, int> counts;
        for (const bool boxset_view : {false, true}) {
            for (const Case &c : Cases()) {
                session.view.BoxsetView = boxset_view;
                int &sum = counts[QString::fromLatin1(c.name) + (boxset_view ? u", boxsets"_s : QString())];
                for (const Sent &sent : Observe(c.action)) {
                    sum += sent.times;
                }
            }
        }
        return counts;
    };
    const QMap<QString, int> few = count_all();
    Fill(kMany);
    const QMap<QString, int> many = count_all();
    for (auto it = few.begin(); it != few.end(); ++it) {
        EXPECT_GT(it.value(), 0) << qPrintable(it.key());
        EXPECT_EQ(many[it.key()], it.value()) << qPrintable(it.key());
    }
}

TEST_F(FilterPlans, EachStatementReadsATableOnceAndLooksTheOthersUp) {
    Fill(kMany);
    for (const QString &tab : {u"All"_s, u"Shelf"_s}) {
        SelectTab(tab);
        session.view.BoxsetView = false;
        for (const Case &c : Cases()) {
            for (const Sent &sent : Observe(c.action)) {
                EXPECT_LE(sent.Scans(), 1) << c.name << ": " << qPrintable(sent.example) << '\n'
                                           << qPrintable(sent.plan.join(u'\n'));
            }
        }
    }
}

TEST_F(FilterPlans, RenamingATypeLooksEachProfileUp) {
    Fill(kMany);
    SelectTab(u"Shelf"_s);
    services.dialogs.ExpectInput({}, u"Cellar"_s);
    const auto all = Observe([this] { RenameCollectionType(browser); });
    int updates = 0;
    for (const Sent &sent : all) {
        if (sent.times > 1) {
            EXPECT_EQ(sent.Scans(), 0) << qPrintable(sent.example) << '\n' << qPrintable(sent.plan.join(u'\n'));
            updates += sent.example.startsWith(u"UPDATE Profiles"_s) ? sent.times : 0;
        }
    }
    EXPECT_EQ(updates, kMany);
}

} // namespace
} // namespace ostrand
