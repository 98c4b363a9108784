#include "CollectionWriter.h"

#include "Texts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ostrand::generator {

namespace {

constexpr int kCreditsPerProfile = 82;
constexpr int kFewestCredits = 18;
// What a profile has above the fewest, on average; a little more than the difference, since boxes have no credits.
constexpr double kCreditTail = 66.8;
constexpr int kMostCredits = 420;
constexpr int kBoxEvery = 40;
constexpr int kBoxChildren = 3;
constexpr qsizetype kBufferSize = 1 << 20;

struct Edition {
    const char *suffix;
    const char *country;
    const char *currency;
    const char *currency_name;
    const char *symbol;
    const char *standard;
    const char *language;
};

constexpr std::array<Edition, 8> kEditions{{
    {"", "United States", "USD", "United States (Dollar)", "$", "NTSC", "English"},
    {"", "United States", "USD", "United States (Dollar)", "$", "NTSC", "English"},
    {".3", "Canada", "CAD", "Canada (Dollar)", "$", "NTSC", "English"},
    {".4", "United Kingdom", "GBP", "Great Britain (Pound)", "\xA3", "PAL", "English"},
    {".5", "Germany", "EUR", "Europe (Euro)", "\x80", "PAL", "German"},
    {".5", "Germany", "EUR", "Europe (Euro)", "\x80", "PAL", "German"},
    {".8", "France", "EUR", "Europe (Euro)", "\x80", "PAL", "French"},
    {".11", "Sweden", "SEK", "Sweden (Krona)", "kr", "PAL", "Swedish"},
}};
constexpr std::array<const char *, 10> kGenres{"Drama",     "Comedy", "Action", "Crime",   "Horror",
                                               "Adventure", "Family", "Music",  "Romance", "Science-Fiction"};
constexpr std::array<const char *, 20> kFeatures{"FeatureSceneAccess",
                                                 "FeatureCommentary",
                                                 "FeatureTrailer",
                                                 "FeaturePhotoGallery",
                                                 "FeatureDeletedScenes",
                                                 "FeatureMakingOf",
                                                 "FeatureProductionNotes",
                                                 "FeatureGame",
                                                 "FeatureDVDROMContent",
                                                 "FeatureMultiAngle",
                                                 "FeatureMusicVideos",
                                                 "FeatureInterviews",
                                                 "FeatureStoryboardComparisons",
                                                 "FeatureOuttakes",
                                                 "FeatureClosedCaptioned",
                                                 "FeatureTHXCertified",
                                                 "FeaturePIP",
                                                 "FeatureBDLive",
                                                 "FeatureBonusTrailers",
                                                 "FeatureDigitalCopy"};
constexpr std::array<const char *, 6> kSubtitles{"English", "French", "Spanish", "German", "Swedish", "Danish"};
constexpr std::array<const char *, 6> kStudios{"Lantern & Teapot Pictures", "Third Sock Productions",
                                               "Wembling Film Unit",        "Brackish Bay Films",
                                               "Prellbock Produktion",      "Norrsken & Dotter Film"};
constexpr std::array<const char *, 4> kShops{"The Disc Orchard", "Platter & Spindle", "Silberling24", "Bargain Barrel"};
constexpr std::array<const char *, 5> kUsers{"Nora", "Ben", "Imke", "Cyril", "Wanda"};
constexpr std::array<const char *, 8> kTags{"Seen",         "Favourites/Gold", "Favourites/Silver", "Shelf/Living Room",
                                            "Shelf/Cellar", "To Sell",         "Quality/Picture",   "Quality/Sound"};

struct Job {
    const char *type;
    const char *subtype;
    const char *custom;
};
constexpr std::array<Job, 14> kCrew{{{"Direction", "Director", ""},
                                     {"Writing", "Writer", ""},
                                     {"Writing", "Screenwriter", ""},
                                     {"Production", "Producer", ""},
                                     {"Production", "Executive Producer", ""},
                                     {"Cinematography", "Director of Photography", ""},
                                     {"Film Editing", "Film Editor", ""},
                                     {"Music", "Composer", ""},
                                     {"Sound", "Sound Designer", ""},
                                     {"Sound", "Custom", "Foley Artist"},
                                     {"Art", "Production Designer", ""},
                                     {"Art", "Costume Designer", ""},
                                     {"Art", "Make-up Artist", ""},
                                     {"Other", "Custom", "Stunts"}}};

QByteArray Padded(int value, int width) {
    return QByteArray::number(value).rightJustified(width, '0');
}

QByteArray MakeDate(Random &random, int first_year, int last_year) {
    return Join({QByteArray::number(random.Between(first_year, last_year)), "-", Padded(random.Between(1, 12), 2), "-",
                 Padded(random.Between(1, 28), 2)});
}

QByteArray MakeTime(Random &random, int first_year, int last_year) {
    return Join({MakeDate(random, first_year, last_year), "T", Padded(random.Between(0, 23), 2), ":",
                 Padded(random.Between(0, 59), 2), ":", Padded(random.Between(0, 59), 2), ".000Z"});
}

int DrawCreditCount(Random &random) {
    const double tail = -std::log(1.0 - random.Unit()) * kCreditTail;
    return std::min(kMostCredits, kFewestCredits + static_cast<int>(tail + 0.5));
}

} // namespace

struct CollectionWriter::Profile {
    int index;
    bool box;
    int parent;
    Random &random;
    const Edition &edition;
    bool blu_ray;
    bool television;
    int year;
    QByteArray title;
};

CollectionWriter::CollectionWriter(QIODevice &device, int profiles, std::uint64_t seed) :
    device_(device), profiles_(profiles), seed_(seed), population_(seed, profiles, kCreditsPerProfile) {
    buffer_.reserve(kBufferSize + (kBufferSize >> 2));
}

bool CollectionWriter::Write() {
    Line("<?xml version=\"1.0\" encoding=\"windows-1252\"?>");
    Line("<!--DVD Profiler Collection Export-->");
    Line("<Collection>");
    for (int i = 0; i < profiles_; ++i) {
        WriteProfile(i);
        if (buffer_.size() >= kBufferSize && !Flush()) {
            return false;
        }
    }
    Line("</Collection>");
    return Flush();
}

bool CollectionWriter::Flush() {
    const bool written = device_.write(buffer_) == buffer_.size();
    buffer_.resize(0);
    return written;
}

void CollectionWriter::Escape(const QByteArray &text) {
    for (const char byte : text) {
        switch (byte) {
        case '&':
            buffer_.append("&amp;");
            break;
        case '<':
            buffer_.append("&lt;");
            break;
        case '>':
            buffer_.append("&gt;");
            break;
        case '"':
            buffer_.append("&quot;");
            break;
        case '\'':
            buffer_.append("&apos;");
            break;
        default:
            buffer_.append(byte);
        }
    }
}

void CollectionWriter::Text(int depth, const char *name, const QByteArray &value) {
    buffer_.append(2 * depth, ' ').append('<').append(name);
    if (value.isEmpty()) {
        buffer_.append("/>\r\n");
        return;
    }
    buffer_.append('>');
    Escape(value);
    buffer_.append("</").append(name).append(">\r\n");
}

void CollectionWriter::Attribute(const char *name, const QByteArray &value) {
    buffer_.append(' ').append(name).append("=\"");
    Escape(value);
    buffer_.append('"');
}

bool CollectionWriter::IsBox(int index) const {
    return index % kBoxEvery == kBoxEvery / 2 && index + kBoxChildren < profiles_;
}

int CollectionWriter::ParentOf(int index) const {
    for (int i = 1; i <= kBoxChildren && i <= index; ++i) {
        if (IsBox(index - i)) {
            return index - i;
        }
    }
    return -1;
}

QByteArray CollectionWriter::Identifier(int index) const {
    Random random(seed_ ^ Mix(static_cast<std::uint64_t>(index) * 2 + 1));
    const QByteArray suffix = random.Pick(kEditions).suffix;
    if (ParentOf(index) >= 0) {
        return 'I' + QByteArray::number(static_cast<qulonglong>(random.Next()), 16).rightJustified(16, '0').toUpper() +
               suffix;
    }
    if (index % 200 == 7) {
        return 'M' + QByteArray::number(index) + suffix;
    }
    return "00000" + Padded(index + 1, 8) + suffix;
}

void CollectionWriter::WriteProfile(int index) {
    Random random(seed_ ^ Mix(static_cast<std::uint64_t>(index) * 2));
    // The identifier draws the edition first, from a stream of its own.
    Random identity(seed_ ^ Mix(static_cast<std::uint64_t>(index) * 2 + 1));
    const Edition &edition = identity.Pick(kEditions);
    const Profile profile{index,
                          IsBox(index),
                          ParentOf(index),
                          random,
                          edition,
                          random.Chance(45),
                          random.Chance(9),
                          random.Between(1932, 2023),
                          MakeTitle(random)};
    Line("  <DVD>");
    WriteHead(profile);
    WriteFormat(profile);
    WriteFeatures(profile);
    WriteTracks(profile);
    WriteCredits(profile);
    WriteTexts(profile);
    WritePurchase(profile);
    WriteHistory(profile);
    WriteBoxSet(profile);
    Line("  </DVD>");
}

void CollectionWriter::WriteHead(const Profile &profile) {
    const bool child = profile.parent >= 0;
    Text(2, "ProfileTimestamp", child ? QByteArray("1899-12-30") : MakeTime(profile.random, 2010, 2023));
    const QByteArray id = Identifier(profile.index);
    Text(2, "ID", id);
    Line("    <MediaTypes>");
    Flag(3, "DVD", !profile.blu_ray || profile.random.Chance(5));
    Flag(3, "HDDVD", false);
    Flag(3, "BluRay", profile.blu_ray);
    Text(3, "CustomMediaType", {});
    Line("    </MediaTypes>");
    Text(2, "UPC", id.left(1) + '-' + id.mid(1, 6) + '-' + id.mid(7, 6));
    Text(2, "CollectionNumber", child ? QByteArray() : QByteArray::number(profile.index + 1));
    const auto kind = profile.random.Below(100);
    Line(kind < 92   ? "    <CollectionType IsPartOfOwnedCollection=\"true\">Owned</CollectionType>"
         : kind < 96 ? "    <CollectionType IsPartOfOwnedCollection=\"false\">Wish List</CollectionType>"
                     : "    <CollectionType IsPartOfOwnedCollection=\"false\">Ordered</CollectionType>");
    Text(2, "Title", profile.title);
    Text(2, "DistTrait", profile.random.Chance(12) ? QByteArray("Special Edition") : QByteArray());
    Text(2, "OriginalTitle", profile.random.Chance(25) ? MakeTitle(profile.random) : QByteArray());
    Text(2, "CountryOfOrigin", profile.edition.country);
    Text(2, "CountryOfOrigin2", {});
    Text(2, "CountryOfOrigin3", {});
    Number(2, "ProductionYear", profile.year);
    if (profile.random.Chance(85)) {
        Text(2, "Released", MakeDate(profile.random, 1999, 2023));
    }
    Number(2, "RunningTime", profile.random.Between(62, 184));
    Text(2, "RatingSystem", profile.television ? "Television" : "Film");
    Text(2, "Rating", "PG-13");
    Text(2, "RatingAge", "13");
    Text(2, "RatingVariant", "0");
    Text(2, "CaseType", profile.blu_ray ? "HD Keep Case" : "Keep Case");
    if (profile.random.Chance(20)) {
        Flag(2, "CaseSlipCover", true);
    }
}

void CollectionWriter::WriteFormat(const Profile &profile) {
    Line("    <Genres>");
    if (profile.television) {
        Text(3, "Genre", "Television");
    }
    const auto genre = profile.random.Below(kGenres.size() - 1);
    Text(3, "Genre", kGenres[genre]);
    if (profile.random.Chance(60)) {
        Text(3, "Genre", kGenres[genre + 1]);
    }
    Line("    </Genres>");
    Line("    <Regions>");
    Text(3, "Region", profile.blu_ray ? "B" : profile.edition.standard[0] == 'N' ? "1" : "2");
    Line("    </Regions>");
    Line("    <Format>");
    Text(3, "FormatAspectRatio", profile.year < 1955 ? "1.33" : profile.random.Chance(50) ? "1.85" : "2.35");
    Text(3, "FormatVideoStandard", profile.edition.standard);
    Line("      <ColorFormat>");
    Flag(4, "ClrColor", profile.year >= 1960);
    Flag(4, "ClrBlackAndWhite", profile.year < 1960);
    Flag(4, "ClrColorized", false);
    Flag(4, "ClrMixed", false);
    Line("      </ColorFormat>");
    Flag(3, "FormatLetterBox", profile.year >= 1955);
    Flag(3, "FormatPanAndScan", false);
    Flag(3, "FormatFullFrame", profile.year < 1955);
    Flag(3, "Format16X9", profile.year >= 1955);
    Flag(3, "FormatDualSided", false);
    Flag(3, "FormatDualLayered", profile.random.Chance(60));
    Line("      <Dimensions>");
    Flag(4, "Dim2D", true);
    Flag(4, "Dim3DAnaglyph", false);
    Flag(4, "Dim3DBluRay", false);
    Line("      </Dimensions>");
    Line("    </Format>");
}

void CollectionWriter::WriteFeatures(const Profile &profile) {
    Line("    <Features>");
    for (const char *feature : kFeatures) {
        Flag(3, feature, profile.random.Chance(25));
    }
    Text(3, "OtherFeatures", profile.random.Chance(20) ? QByteArray("Booklet\r\nTalent Bios") : QByteArray());
    Line("    </Features>");
}

void CollectionWriter::WriteTracks(const Profile &profile) {
    const auto studio = profile.random.Below(kStudios.size() - 1);
    Line("    <Studios>");
    Text(3, "Studio", kStudios[studio]);
    Text(3, "Studio", kStudios[studio + 1]);
    Line("    </Studios>");
    Line("    <MediaCompanies>");
    Text(3, "MediaCompany", "Dustcover Home Video");
    Line("    </MediaCompanies>");
    Line("    <Audio>");
    const int tracks = profile.random.Between(1, 4);
    for (int i = 0; i < tracks; ++i) {
        Line("      <AudioTrack>");
        Text(4, "AudioContent", i == 0 ? profile.edition.language : profile.random.Pick(kSubtitles));
        Text(4, "AudioFormat", profile.blu_ray && i == 0 ? "DTS-HD Master Audio" : "Dolby Digital");
        Text(4, "AudioChannels", i == 0 ? "5.1" : "2-Channel Stereo");
        Line("      </AudioTrack>");
    }
    Line("    </Audio>");
    Line("    <Subtitles>");
    for (const char *subtitle : kSubtitles) {
        if (profile.random.Chance(50)) {
            Text(3, "Subtitle", subtitle);
        }
    }
    Line("    </Subtitles>");
}

void CollectionWriter::WriteDivider(const QByteArray &caption, const char *type) {
    buffer_.append("      <Divider");
    Attribute("Caption", caption);
    Attribute("Type", type);
    buffer_.append("/>\r\n");
}

void CollectionWriter::WriteName(const Person &person) {
    Attribute("FirstName", person.first);
    Attribute("MiddleName", person.middle);
    Attribute("LastName", person.last);
    Attribute("BirthYear", QByteArray::number(person.birth_year));
}

void CollectionWriter::WriteActor(const Profile &profile) {
    Random &random = profile.random;
    const Person person = population_.Draw(random);
    QByteArray role = MakeRole(random);
    const auto mark = random.Below(100);
    if (mark < 2) {
        role += " (voice)";
    } else if (mark < 5) {
        role += " (uncredited)";
    }
    buffer_.append("      <Actor");
    WriteName(person);
    Attribute("Role", role);
    Attribute("CreditedAs", random.Chance(30) ? person.other_name : QByteArray());
    Attribute("Voice", mark >= 5 && mark < 8 ? "true" : "false");
    Attribute("Uncredited", mark >= 8 && mark < 14 ? "true" : "false");
    buffer_.append("/>\r\n");
}

void CollectionWriter::WriteCredit(const Profile &profile) {
    const Person person = population_.Draw(profile.random);
    const Job &job = profile.random.Pick(kCrew);
    buffer_.append("      <Credit");
    WriteName(person);
    Attribute("CreditType", job.type);
    Attribute("CreditSubtype", job.subtype);
    Attribute("CreditedAs", {});
    if (*job.custom != '\0') {
        Attribute("CustomRole", job.custom);
    }
    buffer_.append("/>\r\n");
}

void CollectionWriter::WriteCredits(const Profile &profile) {
    const int total = profile.box ? 0 : DrawCreditCount(profile.random);
    const int crew = total / 4;
    Line("    <Actors>");
    const bool group = !profile.television && profile.random.Chance(6);
    for (int i = 0; i < total - crew; ++i) {
        if (profile.television && i % 10 == 4) {
            WriteDivider("1." + Padded(i / 10 + 1, 2) + ' ' + MakeTitle(profile.random), "Episode");
        }
        if (group && i == 5) {
            WriteDivider(MakeTitle(profile.random), "Group");
        }
        WriteActor(profile);
        if (group && i == 11) {
            WriteDivider({}, "EndDiv");
        }
    }
    Line("    </Actors>");
    Line("    <Credits>");
    for (int i = 0; i < crew; ++i) {
        WriteCredit(profile);
    }
    Line("    </Credits>");
}

void CollectionWriter::WriteTexts(const Profile &profile) {
    Text(2, "Overview", MakeOverview(profile.random, profile.random.Between(280, 1100)));
    Text(2, "EasterEggs", profile.random.Chance(5) ? MakeOverview(profile.random, 90) : QByteArray());
    Line("    <Discs>");
    const int discs = profile.box ? 0 : profile.random.Between(1, 2);
    for (int i = 0; i < discs; ++i) {
        Line("      <Disc>");
        Text(4, "DescriptionSideA", i == 0 ? "Main Feature" : "Bonus Material");
        Text(4, "DescriptionSideB", {});
        Text(4, "DiscIDSideA",
             QByteArray::number(static_cast<qulonglong>(profile.random.Next()), 16).rightJustified(16, '0').toUpper());
        Text(4, "DiscIDSideB", {});
        Text(4, "LabelSideA", "DISC_" + QByteArray::number(i + 1));
        Text(4, "LabelSideB", {});
        Flag(4, "DualLayeredSideA", profile.random.Chance(60));
        Flag(4, "DualLayeredSideB", false);
        Flag(4, "DualSided", false);
        Text(4, "Location", "Shelf " + QByteArray::number(profile.index / 80 + 1));
        Text(4, "Slot", QByteArray::number(profile.index % 80 + 1));
        Line("      </Disc>");
    }
    Line("    </Discs>");
    const bool article = profile.title.startsWith("The ");
    Text(2, "SortTitle", article ? profile.title.mid(4) + ", The" : profile.title);
    Text(2, "LastEdited", MakeTime(profile.random, 2012, 2023));
    Text(2, "WishPriority", "0");
    Number(2, "CountAs", profile.box ? 0 : 1);
}

void CollectionWriter::WritePurchase(const Profile &profile) {
    const Edition &edition = profile.edition;
    const QByteArray price = QByteArray::number(profile.random.Between(3, 39)) + ".99";
    const auto write_price = [&](const char *indent, const char *name) {
        buffer_.append(indent).append('<').append(name);
        Attribute("DenominationType", edition.currency);
        Attribute("DenominationDesc", edition.currency_name);
        Attribute("FormattedValue", edition.symbol + price);
        buffer_.append('>').append(price).append("</").append(name).append(">\r\n");
    };
    write_price("    ", "SRP");
    Line("    <PurchaseInfo>");
    write_price("      ", "PurchasePrice");
    Text(3, "PurchasePlace", profile.random.Pick(kShops));
    Text(3, "PurchasePlaceType", "O");
    Text(3, "PurchasePlaceWebsite", "www.example.com");
    Text(3, "PurchaseDate", MakeDate(profile.random, 2002, 2023));
    Flag(3, "ReceivedAsGift", false);
    Line("      <GiftFrom FirstName=\"\" LastName=\"\"/>");
    Line("    </PurchaseInfo>");
    buffer_.append("    <Review");
    for (const char *name : {"Film", "Video", "Audio", "Extras"}) {
        Attribute(name, QByteArray::number(profile.random.Between(0, 10)));
    }
    buffer_.append("/>\r\n");
    Line("    <MediaBanners Front=\"Automatic\" Back=\"Automatic\"/>");
}

void CollectionWriter::WriteHistory(const Profile &profile) {
    Line("    <Events>");
    const int events = profile.random.Between(0, 2);
    for (int i = 0; i < events; ++i) {
        Line("      <Event>");
        Text(4, "EventType", "Watched");
        Text(4, "Timestamp", MakeTime(profile.random, 2010, 2023));
        Text(4, "Note", {});
        buffer_.append("        <User");
        Attribute("FirstName", profile.random.Pick(kUsers));
        Line(" LastName=\"\" EmailAddress=\"\" PhoneNumber=\"\"/>");
        Line("      </Event>");
    }
    Line("    </Events>");
}

void CollectionWriter::WriteBoxSet(const Profile &profile) {
    Line("    <BoxSet>");
    Text(3, "Parent", profile.parent >= 0 ? Identifier(profile.parent) : QByteArray());
    if (profile.box) {
        Line("      <Contents>");
        for (int i = 1; i <= kBoxChildren; ++i) {
            Text(4, "Content", Identifier(profile.index + i));
        }
        Line("      </Contents>");
    } else {
        Text(3, "Contents", {});
    }
    Line("    </BoxSet>");
    Line("    <LoanInfo>");
    Flag(3, "Loaned", false);
    Line("    </LoanInfo>");
    Text(2, "Notes", profile.random.Chance(10) ? MakeOverview(profile.random, 60) : QByteArray());
    Line("    <Tags>");
    const auto first = profile.random.Below(kTags.size() - 1);
    for (auto i = first; i < first + 2; ++i) {
        const QByteArray full = kTags[i];
        buffer_.append("      <Tag");
        Attribute("Name", full.mid(full.lastIndexOf('/') + 1));
        Attribute("FullName", full);
        buffer_.append("/>\r\n");
    }
    Line("    </Tags>");
}

} // namespace ostrand::generator
