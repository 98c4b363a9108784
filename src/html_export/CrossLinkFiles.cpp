#include "html_export/CrossLinkFiles.h"

#include "html_export/NameIndexFiles.h"
#include "html_export/SiteFiles.h"
#include "html_export/SiteText.h"
#include "shell/Session.h"
#include "skin/TextConversion.h"

#include <QDir>
#include <QHash>
#include <QSet>

#include <map>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kCredits = " FROM CastCrew c LEFT JOIN Alias a ON a.AliasName = c.Name "
                          "WHERE c.Role NOT LIKE '?Div*' AND c.Name <> ''"_L1;
constexpr int kRowsATurn = 100;

QByteArray Literal(const QString &text, QChar quote) {
    return ScriptLiteral(text, quote).toUtf8();
}

/// Scripts of one shape, a list each, that take their place whole.
class ListFiles {
public:
    ListFiles(const QByteArray &opening, QByteArray divider, QByteArray closing) :
        opening_("\xEF\xBB\xBF" + opening), divider_(std::move(divider)), closing_(std::move(closing)) {}

    /// Adds an entry to the list of a file.
    void Add(const QString &file, const QByteArray &entry) {
        QByteArray &text = files_[file];
        text += text.isEmpty() ? opening_ : divider_;
        text += entry;
    }
    void Write(const QString &folder) {
        for (auto &[name, text] : files_) {
            PutFile(folder + name, text += closing_);
        }
        files_.clear();
    }

private:
    QByteArray opening_, divider_, closing_;
    std::map<QString, QByteArray> files_;
};

/// A profile as the scripts name it.
struct LinkedProfile {
    QByteArray key;
    QByteArray page;
    int page_number; ///< keys that give the same page name have the same one
};

/// Each profile is in many credits; its texts are made once.
class LinkedProfiles {
public:
    const LinkedProfile &Of(const QString &id) {
        const auto known = profiles_.constFind(id);
        return known != profiles_.constEnd() ? *known : *profiles_.insert(id, Make(SiteKey(id)));
    }

private:
    LinkedProfile Make(const QString &key) {
        const QString page = PageName(key);
        const int number = pages_.value(page, int(pages_.size()));
        pages_.insert(page, number);
        return {Literal(key, u'\''), Literal(page, u'"'), number};
    }

    QHash<QString, LinkedProfile> profiles_;
    QHash<QString, int> pages_;
};

/// One person's rows while they are read.
struct Person {
    QString name;
    QString id;
    QByteArray keys;     ///< one a credit, so that a profile may come twice
    QByteArray pages;    ///< each once
    QSet<int> seen = {}; ///< their numbers

    void Add(const LinkedProfile &profile) {
        keys += (keys.isEmpty() ? QByteArray() : QByteArray(", ")) + profile.key;
        if (!seen.contains(profile.page_number)) {
            seen.insert(profile.page_number);
            pages += ',' + profile.page;
        }
    }
};

/// Names of files, which hang on two letters each.
class FileNames {
public:
    explicit FileNames(QString (*make)(const QString &)) : make_(make) {}
    const QString &Of(const QString &name) {
        QString &file = names_[name.left(2)];
        if (file.isEmpty()) {
            file = make_(name);
        }
        return file;
    }

private:
    QString (*make_)(const QString &);
    QHash<QString, QString> names_;
};

class CrossLinkWriter {
public:
    explicit CrossLinkWriter(const QString &folder) : folder_(folder), names_(folder) {}

    void Add(const Person &person) {
        people_.Add(people_names_.Of(person.name), Literal(person.id, u'\'') + ":[" + person.keys + ']');
        if (person.id.isEmpty()) {
            return; // a name of nothing but marks, which no script can ask for
        }
        const QByteArray id = Literal(person.id, u'"');
        const QByteArray name = Literal(person.name, u'"');
        loads_.Add(load_names_.Of(person.id), '[' + id + ',' + name + person.pages + "],\r\n");
        names_.Add(person.name, person.id, person.seen.size());
    }
    void Write() {
        people_.Write(folder_);
        loads_.Write(folder_);
        names_.Finish();
    }

private:
    QString folder_;
    FileNames people_names_{PeopleScriptFileName};
    FileNames load_names_{LoadScriptFileName};
    ListFiles people_{"[{", ", ", "}]"};
    ListFiles loads_{"crossLinks([\r\n", "", "]);\r\n"};
    NameIndexFiles names_;
};

/// "Person" 5 "of" 10.
class PersonProgress {
public:
    PersonProgress(Session &session, int total) :
        session_(session), person_(Translate(session, u"Person"_s) + u' '),
        of_total_(u' ' + Translate(session, u"of"_s) + u' ' + QString::number(total)), total_(total) {}

    void Show(int number) {
        if (number % kRowsATurn == 0 || number == total_) {
            session_.progress.SetLine(person_ + QString::number(number) + of_total_);
            session_.progress.SetBar(number, total_);
            session_.services.pump.Turn();
        }
    }

private:
    Session &session_;
    QString person_, of_total_;
    int total_;
};

} // namespace

void DeleteOldCrossLinkFiles(const QString &folder) {
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (file.suffix().compare("js"_L1, Qt::CaseInsensitive) == 0) {
            QFile::remove(file.filePath());
        }
    }
}

void CreateCrossLinkFiles(Session &session, const QString &folder) {
    sql::Recordset rows = session.Database->OpenRecordset(
        QString("SELECT iif(a.CommonName IS NULL, c.Name, a.CommonName) AS [RealCommonName], c.ProfileID"_L1 +
                kCredits + " ORDER BY 1"_L1));
    PersonProgress progress(session, rows.RecordCount());
    CrossLinkWriter writer(folder);
    LinkedProfiles profiles;
    Person person;
    for (int number = 1; !rows.Eof(); rows.MoveNext(), ++number) {
        const QString name = rows.Text(0);
        // Spellings of a name that pages link to in the same way are one person, as a script keeps one entry of an id.
        if (name != person.name) {
            if (const QString id = PersonCrossLinkId(name); person.name.isEmpty() || id != person.id) {
                if (!person.name.isEmpty()) {
                    writer.Add(person);
                }
                person = {name, id, {}, {}};
            }
        }
        person.Add(profiles.Of(rows.Text(1)));
        progress.Show(number);
    }
    if (!person.name.isEmpty()) {
        writer.Add(person);
    }
    writer.Write();
}

QString LoadScriptFileName(const QString &cross_link_id) {
    return ScriptFileName("load-"_L1, cross_link_id);
}

QString ScriptFileName(QLatin1String prefix, QStringView text) {
    QString name = prefix;
    for (const QChar unit : text.left(2)) {
        const bool plain = (unit >= u'a' && unit <= u'z') || (unit >= u'0' && unit <= u'9') || unit == u'_';
        name += plain ? QString(unit) : u'u' + QString::number(unit.unicode(), 16).rightJustified(4, u'0');
    }
    return name + ".js"_L1;
}

} // namespace ostrand
