#include "people/Name.h"

#include "database/CollectionFixture.h"

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

struct SplitCase {
    const char *full;
    const char *first;
    const char *middle;
    const char *last;
};

const SplitCase kSplits[] = {
    {"", "", "", ""},
    {"Smith", "Smith", "", ""},
    {"The Rolling Bones", "The Rolling Bones", "", ""},
    {"Ned and the Bones", "Ned and the Bones", "", ""},
    {"Bones == Band", "Bones == Band", "", ""},
    {"the Rolling Bones", "the", "Rolling", "Bones"},
    {"the Bones of the Sea", "the Bones of the Sea", "", ""},
    {"John Smith", "John", "", "Smith"},
    {"John Jr.", "John", "", "Jr."},
    {"Dr. Smith", "Dr.", "", "Smith"},
    {"Sir Ian Smith", "Sir Ian", "", "Smith"},
    {"SIR Ian Smith", "SIR Ian", "", "Smith"},
    {"Princess Ann Lee Smith", "Princess Ann", "Lee", "Smith"},
    {"John Smith Jr.", "John", "", "Smith Jr."},
    {"John Smith III", "John", "", "Smith III"},
    {"John Smith (I)", "John", "", "Smith (I)"},
    {"Dr. John Jr.", "Dr. John", "", "John Jr."},
    {"Mary Ann Van Der Berg", "Mary", "Ann", "Van Der Berg"},
    {"J. R. R. Smith", "J.", "R. R.", "Smith"},
    {"Ann Lee Smith", "Ann", "Lee", "Smith"},
    {"Ann Dee Smith", "Ann", "", "Dee Smith"},
    {"Ann Sue Smith", "Ann", "", "Sue Smith"},
    {"Ann el Smith", "Ann", "", "el Smith"},
    {"Ann v. Smith", "Ann", "", "v. Smith"},
    {"Ann V. Smith", "Ann", "V.", "Smith"},
    {"Ann St. Smith", "Ann", "", "St. Smith"},
    {"Ann Mc Smith", "Ann", "", "Mc Smith"},
    {"Ann Van Joyce Smith", "Ann", "Van Joyce", "Smith"},
    {"Mary Jones, Smith", "Mary", "", "Jones, Smith"},
    {"Ann  Smith", "Ann", "", "Smith"},
};

TEST(Name, SplitsFullNames) {
    for (const SplitCase &split : kSplits) {
        SCOPED_TRACE(split.full);
        Name name;
        name.SetFullName(QString::fromLatin1(split.full));
        EXPECT_EQ(name.FirstName(), QString::fromLatin1(split.first));
        EXPECT_EQ(name.MiddleName(), QString::fromLatin1(split.middle));
        EXPECT_EQ(name.LastName(), QString::fromLatin1(split.last));
        EXPECT_EQ(name.FullName(), QString::fromLatin1(split.full));
    }
}

TEST(Name, ABarInANameCutsItsParts) {
    Name name;
    name.SetFullName(u"Ann|Lee Smith"_s);
    EXPECT_EQ(name.FirstName(), u"Ann"_s);
    EXPECT_EQ(name.MiddleName(), u"Lee"_s);
    EXPECT_EQ(name.LastName(), QString());
    EXPECT_EQ(name.FullName(), u"Ann|Lee Smith"_s);
}

TEST(Name, KnowsAllTitlesAndSuffixes) {
    for (const char *title :
         {"sir",  "lady",      "madame",  "de",   "capt.",    "lt.",       "captain",  "mr.",      "miss",      "mrs.",
          "ms.",  "dr.",       "ssgt.",   "dr",   "corporal", "constable", "sergeant", "reverend", "professor", "prof.",
          "dame", "inspector", "senator", "sen.", "queen",    "king",      "prince",   "princess"}) {
        Name name;
        name.SetFullName(QString::fromLatin1(title) + u" Ann Smith"_s);
        EXPECT_EQ(name.FirstName(), QString::fromLatin1(title) + u" Ann"_s);
        EXPECT_EQ(name.LastName(), u"Smith"_s) << title;
    }
    for (const char *suffix : {"jr.", "sr.", "sr", "jr", "junior", "senior", "ii", "iii"}) {
        Name name;
        name.SetFullName(u"Ann Smith "_s + QString::fromLatin1(suffix));
        EXPECT_EQ(name.LastName(), u"Smith "_s + QString::fromLatin1(suffix));
        EXPECT_EQ(name.MiddleName(), QString());
    }
}

TEST(Name, JoinsItsParts) {
    Name name;
    name.SetFirstName(u"Ann"_s);
    EXPECT_EQ(name.FullName(), u"Ann"_s);
    name.SetMiddleName(u"Lee"_s);
    name.SetLastName(u"Smith"_s);
    EXPECT_EQ(name.FullName(), u"Ann Lee Smith"_s);
    name.SetMiddleName({});
    EXPECT_EQ(name.FullName(), u"Ann Smith"_s);
    name.SetFirstName({});
    EXPECT_EQ(name.FullName(), u" Smith"_s) << "the blank before the last name stays";
}

TEST(Name, ClearKeepsTheBirthYear) {
    Name name;
    name.SetFullName(u"Ann Lee Smith"_s);
    name.SetBirthYear(33412);
    name.Clear();
    EXPECT_EQ(name.FullName() + name.FirstName() + name.MiddleName() + name.LastName(), QString());
    EXPECT_EQ(name.BirthYear(), 33412);
}

} // namespace

} // namespace ostrand
