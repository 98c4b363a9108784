#include "html_export/SiteOptions.h"

#include "database/DatabaseFunctions.h"
#include "shell/Session.h"
#include "shell/SettingsTable.h"
#include "sql/Collation.h"

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

/// Stands for the empty name in lists, where that would get lost.
constexpr auto kUnsorted = "unsorted"_L1;

QString Read(Session &session, const QString &key) {
    const DbSetting *setting = FindDbSetting(key);
    return ReadDbInfo(session, key, setting ? setting->Preset() : QString());
}

void Write(Session &session, const QString &key, const QString &value) {
    WriteDbInfo(session, key, value);
}
void Write(Session &session, const QString &key, bool value) {
    WriteDbInfo(session, key, value ? u"1"_s : u"0"_s);
}

QStringList SplitNames(const QString &text) {
    QStringList names;
    for (const QString &name : text.split(u'|', Qt::SkipEmptyParts)) {
        names += name == kUnsorted ? QString() : name;
    }
    return names;
}

QString JoinNames(const QStringList &names) {
    QStringList stored;
    for (const QString &name : names) {
        stored += name.isEmpty() ? QString(kUnsorted) : name;
    }
    return stored.join(u'|');
}

std::vector<MediaSkin> SplitMediaSkins(const QString &text) {
    std::vector<MediaSkin> skins;
    for (const QString &pair : text.split(u'|', Qt::SkipEmptyParts)) {
        const qsizetype equals = pair.indexOf(u'=');
        const QString skin = pair.mid(equals + 1);
        if (equals > 0 && !skin.isEmpty() && skin != QStringView(kUseDefaultSkin)) {
            skins.push_back({pair.left(equals), skin});
        }
    }
    return skins;
}

QString JoinMediaSkins(const std::vector<MediaSkin> &skins) {
    QStringList pairs;
    for (const MediaSkin &pair : skins) {
        if (!pair.medium.isEmpty() && !pair.skin.isEmpty() && pair.skin != QStringView(kUseDefaultSkin)) {
            pairs += pair.medium + u'=' + pair.skin;
        }
    }
    return pairs.join(u'|');
}

CoverSource CoverSourceOf(const QString &text) {
    const int number = text.toInt();
    return number == 2 ? CoverSource::ImageServer : number == 3 ? CoverSource::InPlace : CoverSource::Copied;
}

/// The types that profiles have; those without one come first, as the empty name.
QStringList UsedColTypes(Session &session) {
    QStringList types;
    sql::Recordset rows = session.Database->OpenRecordset(u"SELECT DISTINCT ColType FROM Profiles ORDER BY ColType");
    for (; !rows.Eof(); rows.MoveNext()) {
        if (const QString type = rows.Text(0); !types.contains(type)) {
            types += type;
        }
    }
    return types;
}

} // namespace

SiteOptions LoadSiteOptions(Session &session) {
    const ViewState &view = session.view;
    SiteOptions options;
    options.ExportPath = Read(session, u"HTML_ExportPath"_s);
    options.SortByTitle = ReadDbInfoFlag(session, u"HTML_SortByTitle"_s, true);
    options.Skin = ReadDbInfo(session, u"HTML_Skin"_s, session.CurrentSkin);
    options.UseCollectionType = ReadDbInfoFlag(session, u"HTML_UseCollectionType"_s, true);
    options.Covers = CoverSourceOf(Read(session, u"HTML_CoverSource"_s));
    options.SkinEpisode = Read(session, u"HTML_SkinEpisode"_s);
    options.GenerateEpisodeHTML = ReadDbInfoFlag(session, u"HTML_GenerateEpisodeHTML"_s, true);
    options.UseTitle = ReadDbInfoFlag(session, u"HTML_UseTitle"_s, !view.mUseOriginalTitle);
    options.UseCustomTitle = ReadDbInfoFlag(session, u"HTML_UseCustomTitle"_s, false);
    options.AppendEdition = ReadDbInfoFlag(session, u"HTML_AppendEdition"_s, view.mShowDescription);
    options.GenerateCrosslinks = ReadDbInfoFlag(session, u"HTML_GenerateCrosslinks"_s, true);
    options.ExcludedColTypes = SplitNames(Read(session, u"HTML_ExcludedColTypes"_s));
    options.ColTypesOrder = SplitNames(Read(session, u"HTML_ColTypesOrder"_s));
    options.Filter = Read(session, u"HTML_Filter"_s);
    options.MediaSkins = SplitMediaSkins(Read(session, u"HTML_MediaSkins"_s));
    return options;
}

void SaveSiteOptions(Session &session, const SiteOptions &options) {
    Write(session, u"HTML_ExportPath"_s, options.ExportPath);
    Write(session, u"HTML_SortByTitle"_s, options.SortByTitle);
    Write(session, u"HTML_Skin"_s, options.Skin);
    Write(session, u"HTML_UseCollectionType"_s, options.UseCollectionType);
    Write(session, u"HTML_CoverSource"_s, QString::number(int(options.Covers)));
    Write(session, u"HTML_SkinEpisode"_s, options.SkinEpisode);
    Write(session, u"HTML_GenerateEpisodeHTML"_s, options.GenerateEpisodeHTML);
    Write(session, u"HTML_UseTitle"_s, options.UseTitle);
    Write(session, u"HTML_UseCustomTitle"_s, options.UseCustomTitle);
    Write(session, u"HTML_AppendEdition"_s, options.AppendEdition);
    Write(session, u"HTML_GenerateCrosslinks"_s, options.GenerateCrosslinks);
    Write(session, u"HTML_ExcludedColTypes"_s, JoinNames(options.ExcludedColTypes));
    Write(session, u"HTML_ColTypesOrder"_s, JoinNames(options.ColTypesOrder));
    Write(session, u"HTML_Filter"_s, options.Filter);
    Write(session, u"HTML_MediaSkins"_s, JoinMediaSkins(options.MediaSkins));
}

std::vector<SiteColType> SiteColTypes(Session &session, const SiteOptions &options) {
    const auto is = [](const QString &name) {
        return [&name](const QString &other) { return sql::Compare(name, other) == 0; };
    };
    QStringList used = UsedColTypes(session);
    QStringList names;
    for (const QString &name : options.ColTypesOrder) {
        if (const auto found = std::find_if(used.begin(), used.end(), is(name)); found != used.end()) {
            names += *found;
            used.erase(found);
        }
    }
    std::vector<SiteColType> types;
    for (const QString &name : names + used) {
        const QStringList &excluded = options.ExcludedColTypes;
        types.push_back({name, std::none_of(excluded.begin(), excluded.end(), is(name))});
    }
    return types;
}

QStringList CheckedColTypes(Session &session, const SiteOptions &options) {
    QStringList names;
    for (const SiteColType &type : SiteColTypes(session, options)) {
        if (type.checked) {
            names += type.name;
        }
    }
    return names;
}

} // namespace ostrand
