#include "ProfileTagFixture.h"

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

class ListTagsTest : public ProfileTagTest {};

TEST_F(ListTagsTest, EntriesInTheirOrder) {
    const struct {
        QString table;
        QString column;
    } lists[] = {{u"Genres"_s, u"Genre"_s}, {u"Features"_s, u"Feature"_s}, {u"Subtitles"_s, u"Subtitle"_s}};
    TranslateAs(u"Noir"_s, u"Schwarz"_s);
    for (const auto &list : lists) {
        Check(GetDPList, {{"no rows", {}, {}}}, list.table);
        AddRow(list.table, list.column, u"'Western'"_s);
        Check(GetDPList, {{"one row", {}, u"Western"_s}}, list.table);
        AddRow(list.table, list.column, u"'Noir'"_s);
        AddRow(list.table, list.column, u"'<b>\"Q\" & ''A''</b>'"_s);
        Check(GetDPList,
              {
                  {"as they stand, markup and quotes too", {}, u"<b>\"Q\" & 'A'</b>, Noir, Western"_s},
                  {"another divider", uR"(Divider=" / ")"_s, u"<b>\"Q\" & 'A'</b> / Noir / Western"_s},
                  {"a divider of line breaks", uR"(divider="break")"_s, u"<b>\"Q\" & 'A'</b><br/>Noir<br/>Western"_s},
                  {"an empty divider is none", uR"(Divider="")"_s, u"<b>\"Q\" & 'A'</b>, Noir, Western"_s},
                  {"translated", uR"(Translate="YES")"_s, u"<b>\"Q\" & 'A'</b>, Schwarz, Western"_s},
                  {"not translated", uR"(Translate="No")"_s, u"<b>\"Q\" & 'A'</b>, Noir, Western"_s},
              },
              list.table);
        CheckForEpisode(GetDPList, {{"an episode has none", {}, {}}}, list.table);
        ExpectFailure(GetDPList, u"Translate"_s, list.table);
    }
}

TEST_F(ListTagsTest, AnEntryWithoutTextHasItsDivider) {
    Run(u"DROP TABLE Genres");
    Run(u"CREATE TABLE Genres (ProfileID varchar, Genre varchar)");
    AddRow(u"Genres"_s, u"Genre"_s, u"NULL"_s);
    AddRow(u"Genres"_s, u"Genre"_s, u"'Noir'"_s);
    Check(GetDPList, {{"NULL", {}, u", Noir"_s}}, u"Genres"_s);
}

TEST_F(ListTagsTest, Studios) {
    Check(GetDPStudios, {{"no rows", {}, {}}});
    Check(GetDPStudios, {{"no rows", {}, {}}}, u"Media Company"_s);
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Reel <&> Co', 'Production'"_s);
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Alder', ''"_s);
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Press', 'Media Company'"_s);
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Discs', 'Media Company'"_s);
    TranslateAs(u"Production"_s, u"Herstellung"_s);
    TranslateAs(u"Alder"_s, u"Erle"_s);
    Check(GetDPStudios,
          {
              {"all but media companies", {}, u"<NOBR>Alder</NOBR>, <NOBR>Reel <&> Co</NOBR>"_s},
              {"a divider", uR"(Divider="|")"_s, u"<NOBR>Alder</NOBR>|<NOBR>Reel <&> Co</NOBR>"_s},
              {"types, where there is one", uR"(ShowType="yes")"_s,
               u"<NOBR>Alder</NOBR>, <NOBR>Reel <&> Co (Production)</NOBR>"_s},
              {"types translated, studios not", uR"(ShowType="true" Translate="1")"_s,
               u"<NOBR>Alder</NOBR>, <NOBR>Reel <&> Co (Herstellung)</NOBR>"_s},
              {"no types to translate", uR"(Translate="1")"_s, u"<NOBR>Alder</NOBR>, <NOBR>Reel <&> Co</NOBR>"_s},
          });
    Check(GetDPStudios,
          {
              {"media companies", {}, u"<NOBR>Discs</NOBR>, <NOBR>Press</NOBR>"_s},
              {"their type", uR"(ShowType="yes" Divider="BREAK")"_s,
               u"<NOBR>Discs (Media Company)</NOBR><br/><NOBR>Press (Media Company)</NOBR>"_s},
          },
          u"Media Company"_s);
    CheckForEpisode(GetDPStudios, {{"an episode has none", {}, {}}});
    ExpectFailure(GetDPStudios, u"ShowType"_s);
    ExpectFailure(GetDPStudios, u"Translate"_s);
}

TEST_F(ListTagsTest, StudiosOfOneNameStandByTheirTypes) {
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Alder', 'Sound'"_s);
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Alder', 'Film'"_s);
    EXPECT_EQ(Produce(GetDPStudios, uR"(ShowType="yes")"_s),
              u"<NOBR>Alder (Film)</NOBR>, <NOBR>Alder (Sound)</NOBR>"_s);
}

TEST_F(ListTagsTest, MediaPublisher) {
    EXPECT_EQ(Produce(GetDPMediaPublisher), QString());
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Alder', 'Production'"_s);
    EXPECT_EQ(Produce(GetDPMediaPublisher), QString());
    AddRow(u"Studios"_s, u"Studio, Type"_s, u"'Press & \"Sons\"', 'Media Company'"_s);
    EXPECT_EQ(Produce(GetDPMediaPublisher), u"Press & \"Sons\""_s);
    EXPECT_EQ(ProduceForEpisode(GetDPMediaPublisher), QString());
}

TEST_F(ListTagsTest, Tags) {
    Check(GetOSVTags, {{"no rows", {}, {}}});
    const auto add = [this](const QString &name, const QString &full_name) {
        AddRow(u"Tags"_s, u"TagName, FullyQualifiedName"_s, name + u", "_s + full_name);
    };
    add(u"'Old'"_s, u"'Film/Old'"_s);
    add(u"'Film'"_s, u"'Film'"_s);
    add(u"'Loose'"_s, u"NULL"_s);
    add(u"'Zoo'"_s, u"'Zoo'"_s);
    Check(GetOSVTags,
          {
              {"short names in the order of the full ones",
               {},
               u"<NOBR>Loose</NOBR>, <NOBR>Film</NOBR>, <NOBR>Old</NOBR>, <NOBR>Zoo</NOBR>"_s},
              {"a divider", uR"(Divider="|")"_s,
               u"<NOBR>Loose</NOBR>|<NOBR>Film</NOBR>|<NOBR>Old</NOBR>|<NOBR>Zoo</NOBR>"_s},
              {"full names", uR"(UseFullName="YES")"_s,
               u"<NOBR></NOBR>, <NOBR>Film</NOBR>, <NOBR>Film/Old</NOBR>, <NOBR>Zoo</NOBR>"_s},
              {"full names without parents", uR"(UseFullName="YES" RemoveParents="YES")"_s,
               u"<NOBR></NOBR>, <NOBR>Film/Old</NOBR>, <NOBR>Zoo</NOBR>"_s},
              {"a divider is removed with the parent", uR"(UseFullName="YES" RemoveParents="YES" Divider="break")"_s,
               u"<NOBR></NOBR><br/><NOBR>Film/Old</NOBR><br/><NOBR>Zoo</NOBR>"_s},
          });
    CheckForEpisode(GetOSVTags, {{"an episode has none", {}, {}}});
    ExpectFailure(GetOSVTags, u"UseFullName"_s);
    ExpectFailure(GetOSVTags, u"RemoveParents"_s);
}

TEST_F(ListTagsTest, ParentsAreRemovedByTheirFullNamesOnly) {
    AddRow(u"Tags"_s, u"TagName, FullyQualifiedName"_s, u"'Top', 'Film'"_s);
    AddRow(u"Tags"_s, u"TagName, FullyQualifiedName"_s, u"'Old', 'Film/Old'"_s);
    EXPECT_EQ(Produce(GetOSVTags, uR"(RemoveParents="YES")"_s), u"<NOBR>Top</NOBR>, <NOBR>Old</NOBR>"_s);
    // A chain loses all but its end, and a name that merely begins alike counts as a child.
    AddRow(u"Tags"_s, u"TagName, FullyQualifiedName"_s, u"'Mute', 'Film/Old/Mute'"_s);
    AddRow(u"Tags"_s, u"TagName, FullyQualifiedName"_s, u"'Zoo', 'Zoo'"_s);
    AddRow(u"Tags"_s, u"TagName, FullyQualifiedName"_s, u"'Zoom', 'Zoom'"_s);
    EXPECT_EQ(Produce(GetOSVTags, uR"(UseFullName="YES" RemoveParents="YES")"_s),
              u"<NOBR>Film/Old/Mute</NOBR>, <NOBR>Zoom</NOBR>"_s);
}

TEST_F(ListTagsTest, Locks) {
    Check(GetDPLock,
          {
              {"open", {}, {}},
              {"a text for open ones", uR"(IfNotSet="<i>open</i>")"_s, u"<i>open</i>"_s},
              {"the other text does not count", uR"(IfSet="shut")"_s, {}},
          },
          u"Covers"_s);
    AddRow(u"Locks"_s, u"LockName"_s, u"'COVERS'"_s);
    Check(GetDPLock,
          {
              {"locked, in any case", {}, u"Locked"_s},
              {"a text for locked ones", uR"(IfSet="<b>shut</b>" IfNotSet="open")"_s, u"<b>shut</b>"_s},
              {"Yes is a truth value in any text", uR"(IfSet="Yes")"_s, u"true"_s},
          },
          u"Covers"_s);
    Check(GetDPLock, {{"another lock", {}, {}}}, u"Cast"_s);
    CheckForEpisode(GetDPLock, {{"an episode is open", uR"(IfNotSet="open")"_s, u"open"_s}}, u"Covers"_s);
}

} // namespace
} // namespace ostrand
