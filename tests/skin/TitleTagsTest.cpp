#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class TitleTagsTest : public ProfileTagTest {
protected:
    void SetTitles(const QString &title, const QString &original, const QString &custom, const QString &description) {
        SetProfile(u"Title = '%1', OriginalTitle = '%2', CustomTitle = '%3', Description = '%4'"_s.arg(
            EscapeSql(title), EscapeSql(original), EscapeSql(custom), EscapeSql(description)));
    }
    void SetEpisodeTitles() { SetEpisode(u"EpisodeTitle = 'Storm', EpisodeOriginalTitle = 'Sturm'"_s); }
};

TEST_F(TitleTagsTest, Title) {
    SetTitles(u"Birch <i>\"'"_s, u"Bouleau"_s, u"Mine"_s, u"Long & wide"_s);
    Check(GetDPTitle, {
                          {"preset", {}, u"Birch <i>\"'"_s},
                          {"with description", uR"(ShowDesc="YES")"_s, u"Birch <i>\"': Long & wide"_s},
                          {"no title", uR"(ShowTitle="NO")"_s, {}},
                          {"the description alone", uR"(ShowTitle="NO" ShowDesc="YES")"_s, u"Long & wide"_s},
                      });
    SetTitles({}, u"Bouleau"_s, {}, u"Long"_s);
    Check(GetDPTitle, {
                          {"the original one", {}, u"Bouleau"_s},
                          {"the original one not wanted", uR"(UseOriginalTitleIfBlank="NO")"_s, {}},
                          {"the original one with description", uR"(ShowDesc="1")"_s, u"Bouleau: Long"_s},
                          {"blank with description", uR"(UseOriginalTitleIfBlank="0" ShowDesc="1")"_s, u"Long"_s},
                      });
    SetProfile(u"OriginalTitle = NULL, Description = NULL"_s);
    Check(GetDPTitle, {{"nothing at all", uR"(ShowDesc="1")"_s, {}}});
    SetEpisodeTitles();
    CheckForEpisode(GetDPTitle, {
                                    {"of an episode", {}, u"Storm"_s},
                                    {"episodes have no description", uR"(ShowDesc="1")"_s, u"Storm"_s},
                                    {"no title", uR"(ShowTitle="NO")"_s, {}},
                                });
    SetEpisode(u"EpisodeTitle = NULL"_s);
    CheckForEpisode(GetDPTitle, {
                                    {"the original one", {}, u"Sturm"_s},
                                    {"not wanted", uR"(UseOriginalTitleIfBlank="NO")"_s, {}},
                                });
    for (const auto &flag : {u"ShowTitle"_s, u"ShowDesc"_s, u"UseOriginalTitleIfBlank"_s}) {
        ExpectFailure(GetDPTitle, flag);
    }
}

TEST_F(TitleTagsTest, OriginalTitle) {
    SetTitles(u"Birch"_s, u"Bouleau"_s, u"Mine"_s, u"Long"_s);
    Check(GetDPOriginalTitle, {
                                  {"preset", {}, u"Bouleau"_s},
                                  {"with description", uR"(ShowDesc="YES")"_s, u"Bouleau: Long"_s},
                              });
    SetTitles(u"Birch"_s, {}, {}, u"Long"_s);
    Check(GetDPOriginalTitle, {
                                  {"the title", {}, u"Birch"_s},
                                  {"the title not wanted", uR"(UseTitleIfBlank="NO")"_s, {}},
                                  {"the title with description", uR"(ShowDesc="YES")"_s, u"Birch: Long"_s},
                                  {"the description alone", uR"(UseTitleIfBlank="NO" ShowDesc="YES")"_s, u"Long"_s},
                              });
    SetProfile(u"Description = ''"_s);
    Check(GetDPOriginalTitle, {{"no description", uR"(ShowDesc="YES")"_s, u"Birch"_s}});
    SetEpisodeTitles();
    CheckForEpisode(GetDPOriginalTitle, {
                                            {"of an episode", {}, u"Sturm"_s},
                                            {"episodes have no description", uR"(ShowDesc="1")"_s, u"Sturm"_s},
                                        });
    SetEpisode(u"EpisodeOriginalTitle = ''"_s);
    CheckForEpisode(GetDPOriginalTitle, {
                                            {"the title", {}, u"Storm"_s},
                                            {"not wanted", uR"(UseTitleIfBlank="NO")"_s, {}},
                                        });
    ExpectFailure(GetDPOriginalTitle, u"UseTitleIfBlank"_s);
    ExpectFailure(GetDPOriginalTitle, u"ShowDesc"_s);
}

TEST_F(TitleTagsTest, CustomTitle) {
    SetTitles(u"Birch"_s, u"Bouleau"_s, u"Mine"_s, u"Long"_s);
    Check(GetOSVCustomTitle, {
                                 {"preset", {}, u"Mine"_s},
                                 {"with description", uR"(ShowDesc="YES")"_s, u"Mine: Long"_s},
                             });
    SetTitles(u"Birch"_s, u"Bouleau"_s, {}, u"Long"_s);
    Check(GetOSVCustomTitle,
          {
              {"the title", {}, u"Birch"_s},
              {"the original one first", uR"(UseOriginalTitleIfBlank="YES")"_s, u"Bouleau"_s},
              {"nothing else", uR"(UseTitleIfBlank="NO")"_s, {}},
              {"the original one only", uR"(UseTitleIfBlank="NO" UseOriginalTitleIfBlank="YES")"_s, u"Bouleau"_s},
              {"the description alone", uR"(UseTitleIfBlank="NO" ShowDesc="YES")"_s, u"Long"_s},
          });
    SetProfile(u"OriginalTitle = NULL, CustomTitle = NULL"_s);
    Check(GetOSVCustomTitle, {
                                 {"no original one", uR"(UseOriginalTitleIfBlank="YES")"_s, u"Birch"_s},
                                 {"neither", uR"(UseOriginalTitleIfBlank="YES" UseTitleIfBlank="NO")"_s, {}},
                             });
    SetEpisodeTitles();
    CheckForEpisode(GetOSVCustomTitle, {
                                           {"of an episode", {}, u"Storm"_s},
                                           {"whatever is asked", uR"(UseTitleIfBlank="NO" ShowDesc="1")"_s, u"Storm"_s},
                                       });
    for (const auto &flag : {u"UseTitleIfBlank"_s, u"UseOriginalTitleIfBlank"_s, u"ShowDesc"_s}) {
        ExpectFailure(GetOSVCustomTitle, flag);
    }
}

TEST_F(TitleTagsTest, OriginalSortTitle) {
    SetProfile(u"OriginalSortTitle = 'Bouleau, Le', SortTitle = 'Birch, The'"_s);
    Check(GetOSVOriginalSortTitle, {{"preset", {}, u"Bouleau, Le"_s}});
    SetProfile(u"OriginalSortTitle = NULL"_s);
    Check(GetOSVOriginalSortTitle, {
                                       {"the sort title", {}, u"Birch, The"_s},
                                       {"not wanted", uR"(UseSortTitleIfBlank="NO")"_s, {}},
                                   });
    SetProfile(u"SortTitle = NULL"_s);
    Check(GetOSVOriginalSortTitle, {{"neither", {}, {}}});
    CheckForEpisode(GetOSVOriginalSortTitle, {{"an episode has none", {}, {}}});
    ExpectFailure(GetOSVOriginalSortTitle, u"UseSortTitleIfBlank"_s);
}

} // namespace
} // namespace ostrand
