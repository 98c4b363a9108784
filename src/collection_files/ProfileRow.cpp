// The main row of a profile.

#include "collection_files/ElementValues.h"
#include "collection_files/ImportProfile.h"
#include "collection_files/Rows.h"
#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "sql/Conversion.h"
#include "xml/XmlNodes.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

constexpr auto kNoDate = "1899-12-30";

enum class Treatment { Plain, NoBlanks, Date, Lines, Medium, Description, CaseType, Locality, DataSource };
enum class Written { Always, WhenNotEmpty, OnInsert, InNewFiles };

/// One column of the row: where its value comes from and which lock keeps it.
struct ProfileColumn {
    const char *column;
    const char *lock; ///< null for a column that no lock keeps
    const char *element;
    const char *preset = "";
    Treatment treatment = Treatment::Plain;
    Written written = Written::Always;
};

constexpr auto kColumns = std::to_array<ProfileColumn>({
    {"Title", "Title", "Title"},
    {"Medium", "Medium", "", "", Treatment::Medium},
    {"OriginalTitle", "OriginalTitle", "OriginalTitle"},
    {"ColNo", "CollectionNumber", "CollectionNumber"},
    {"SortTitle", "SortTitle", "SortTitle"},
    {"Description", "Description", "", "", Treatment::Description},
    {"ColType", "CollectionType", "CollectionType", "", Treatment::NoBlanks},
    {"UPC", "UPC", "UPC"},
    {"ProfileTimestamp", nullptr, "ProfileTimestamp", kNoDate, Treatment::Date},
    {"Rating", "Rating", "Rating"},
    {"RatingSystem", "Rating", "RatingSystem"},
    {"RatingDetails", "Rating", "RatingDetails"},
    {"ProdYear", "ProductionYear", "ProductionYear", "0"},
    {"Released", "ReleaseDate", "Released", kNoDate, Treatment::Date},
    {"Runtime", "RunningTime", "RunningTime", "0"},
    {"CaseType", "CaseType", "", "", Treatment::CaseType},
    {"Overview", "Overview", "Overview", "", Treatment::Lines},
    {"Notes", "Notes", "Notes", "", Treatment::Lines},
    {"Eastereggs", "EasterEggs", "EasterEggs", "", Treatment::Lines},
    {"WishListPriority", "WishListPriority", "WishPriority", "", Treatment::Plain, Written::WhenNotEmpty},
    {"Locality", "Locality", "", "", Treatment::Locality},
    {"DataSource", "DataSource", "", "", Treatment::DataSource},
    {"CountryOfOrigin", "CountryOfOrigin", "CountryOfOrigin", "", Treatment::Plain, Written::InNewFiles},
    {"CountAs", nullptr, "CountAs", "1", Treatment::Plain, Written::OnInsert},
});

/// The line ends of the database.
QString WithLineEnds(QString text) {
    return text.replace(u'\n', u"\r\n"_s);
}

QString ReadDescription(pugi::xml_node dvd) {
    return XmlChildText(dvd, dvd.child("DistTrait") ? "DistTrait" : "Description");
}

QString ReadCaseType(pugi::xml_node dvd) {
    const QString case_type = XmlChildText(dvd, "CaseType");
    if (!IsTrue(XmlChildText(dvd, "CaseSlipCover"))) {
        return case_type;
    }
    return case_type.isEmpty() ? u"Slip Cover"_s : case_type + u", Slip Cover"_s;
}

QString ReadColumn(const ImportProfile &profile, const ProfileColumn &column) {
    const auto plain = [&] { return XmlChildText(profile.dvd, column.element, QString::fromLatin1(column.preset)); };
    switch (column.treatment) {
    case Treatment::Plain:
        return plain();
    case Treatment::NoBlanks:
        return plain().remove(u' ');
    case Treatment::Date:
        return XmlParseDate(plain());
    case Treatment::Lines:
        return WithLineEnds(plain());
    case Treatment::Medium:
        return profile.medium;
    case Treatment::Description:
        return ReadDescription(profile.dvd);
    case Treatment::CaseType:
        return ReadCaseType(profile.dvd);
    case Treatment::Locality:
        return profile.locality;
    case Treatment::DataSource:
        return u"DVDProfiler"_s;
    }
    return {};
}

bool IsWritten(const ImportProfile &profile, const ProfileColumn &column, const QString &value, bool is_new) {
    switch (column.written) {
    case Written::Always:
        break;
    case Written::WhenNotEmpty:
        if (value.isEmpty()) {
            return false;
        }
        break;
    case Written::OnInsert:
        return is_new;
    case Written::InNewFiles:
        if (!profile.run.is_profiler3) {
            return false;
        }
        break;
    }
    return is_new || column.lock == nullptr || !profile.locks.IsLocked(QString::fromLatin1(column.lock));
}

/// The date of the last edit never moves backwards.
void SetLastEdited(sql::Recordset &row, const QString &text, bool is_new, QChar decimal_mark) {
    if (!is_new && !row.IsNull(u"LastEdited")) {
        const auto edited = sql::TextToDate(text, decimal_mark);
        if (!edited || *edited <= row.Real(u"LastEdited")) {
            return;
        }
    }
    row.Set(u"LastEdited", text);
}

void WriteRatingInfos(const ImportProfile &profile) {
    for (const char *name : {"RatingAge", "RatingVariant"}) {
        if (profile.dvd.child(name)) {
            StoreMetaInfo(profile, QString::fromLatin1(name), XmlChildText(profile.dvd, name));
        }
    }
}

} // namespace

QString ReadMedium(pugi::xml_node dvd, bool is_profiler3) {
    if (!is_profiler3) {
        return u"DVD"_s;
    }
    QStringList media;
    for (const pugi::xml_node type : dvd.child("MediaTypes").children()) {
        const std::string_view name = type.name();
        const QString text = XmlNodeText(type);
        if (name == "CustomMediaType") {
            if (!text.isEmpty()) {
                media.append(text);
            }
        } else if (IsTrue(text)) {
            if (name == "DVD") {
                media.append(u"DVD"_s);
            } else if (name == "HDDVD") {
                media.append(u"HD DVD"_s);
            } else if (name == "BluRay") {
                media.append(u"Blu-ray Disc"_s);
            }
        }
    }
    return media.join(u'/');
}

void WriteProfileRow(ImportProfile &profile, bool is_new) {
    sql::Database &database = *profile.GetSession().Database;
    sql::Recordset row = database.OpenRecordset(
        QString(u"SELECT * FROM Profiles WHERE ProfileID = '"_s + EscapeSql(profile.key) + u'\''));
    if (is_new) {
        row.AddNew();
        row.Set(u"ProfileID", profile.key);
    } else {
        row.Edit();
    }
    for (const ProfileColumn &column : kColumns) {
        const QString value = ReadColumn(profile, column);
        if (IsWritten(profile, column, value, is_new)) {
            row.Set(QString::fromLatin1(column.column), value);
        }
    }
    SetLastEdited(row, XmlParseDate(XmlChildText(profile.dvd, "LastEdited", QString::fromLatin1(kNoDate))), is_new,
                  database.GetEnvironment().decimal_mark);
    row.Set(u"MD5", QString(u""_s));
    row.Update();

    WriteRatingInfos(profile);
    if (const QString notes = XmlChildText(profile.dvd, "Notes"); !notes.isEmpty()) {
        StorePseudoTags(profile, WithLineEnds(notes));
    }
}

} // namespace ostrand
