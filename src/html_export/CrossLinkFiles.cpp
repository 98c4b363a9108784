#include "html_export/CrossLinkFiles.h"

#include "html_export/NameIndexFiles.h"
#include "html_export/SiteFiles.h"
#include "html_export/SiteText.h"
#include "shell/Session.h"
#include "skin/TextConversion.h"

#include <QDir>
#include <QSet>

namespace ostrand {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kCredits = " FROM CastCrew c LEFT JOIN Alias a ON a.AliasName = c.Name "
                          "WHERE c.Role NOT LIKE '?Div*' AND c.Name <> ''"_L1;
constexpr int kRowsATurn = 100;

/// Lists in files of one shape, each list begun once and then lengthened at its end.
class ListFiles {
public:
    ListFiles(const QString &folder, QByteArray opening, QByteArray divider, QByteArray closing) :
        folder_(folder), opening_(std::move(opening)), divider_(std::move(divider)), closing_(std::move(closing)) {}

    /// Adds an entry to the list of a file. The list of the file before is written when that is another one.
    void Add(const QString &file, const QString &entry) {
        if (file != file_) {
            Flush();
            file_ = file;
        }
        entries_ += (entries_.isEmpty() ? QByteArray() : divider_) + entry.toUtf8();
    }
    void Flush() {
        if (entries_.isEmpty()) {
            return;
        }
        const QString path = folder_ + file_;
        if (QFile::exists(path)) {
            Lengthen(path);
        } else {
            PutFile(path, "\xEF\xBB\xBF" + opening_ + entries_ + closing_);
        }
        entries_.clear();
    }

private:
    void Lengthen(const QString &path) {
        QFile file(path);
        const QByteArray more = divider_ + entries_ + closing_;
        if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !file.seek(file.size() - closing_.size()) ||
            file.write(more) != more.size()) {
            throw SiteFault(path + ": "_L1 + file.errorString(), true);
        }
    }

    QString folder_;
    QByteArray opening_, divider_, closing_;
    QString file_;
    QByteArray entries_;
};

/// One person's rows while they are read.
struct Person {
    QString name;
    QString id;
    QStringList keys; ///< one a credit, so that a profile may come twice
};

class CrossLinkWriter {
public:
    explicit CrossLinkWriter(const QString &folder) :
        people_(folder, "[{", ", ", "}]"), loads_(folder, "crossLinks([\r\n", "", "]);\r\n"), names_(folder) {}

    void Add(const Person &person) {
        QStringList quoted;
        for (const QString &key : person.keys) {
            quoted += ScriptLiteral(key, u'\'');
        }
        people_.Add(PeopleScriptFileName(person.name),
                    ScriptLiteral(person.id, u'\'') + ":["_L1 + quoted.join(", "_L1) + u']');
        if (person.id.isEmpty()) {
            return; // a name of nothing but marks, which no script can ask for
        }
        const QStringList pages = Pages(person.keys);
        const QString id = ScriptLiteral(person.id, u'"');
        const QString name = ScriptLiteral(person.name, u'"');
        loads_.Add(LoadScriptFileName(person.id), u'[' + id + u',' + name + u',' + pages.join(u',') + "],\r\n"_L1);
        names_.Add(person.name, person.id, pages.size());
    }
    void Finish() {
        people_.Flush();
        loads_.Flush();
        names_.Finish();
    }

private:
    /// The pages of the keys as literals, each once.
    static QStringList Pages(const QStringList &keys) {
        QStringList pages;
        QSet<QString> seen;
        for (const QString &key : keys) {
            const QString page = ScriptLiteral(PageName(key), u'"');
            // Most persons have one credit, and need no set.
            if (pages.isEmpty() || (page != pages.first() && !seen.contains(page))) {
                if (!pages.isEmpty()) {
                    seen.insert(page);
                }
                pages += page;
            }
        }
        return pages;
    }

    ListFiles people_;
    ListFiles loads_;
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
    sql::Database &database = *session.Database;
    const sql::Recordset count = database.OpenRecordset(QString("SELECT COUNT(*) AS [Count]"_L1 + kCredits));
    PersonProgress progress(session, int(count.Integer(u"Count")));
    sql::Recordset rows = database.OpenRecordset(
        QString("SELECT iif(a.CommonName IS NULL, c.Name, a.CommonName) AS [RealCommonName], c.ProfileID"_L1 +
                kCredits + " ORDER BY 1"_L1));
    CrossLinkWriter writer(folder);
    Person person;
    for (int number = 1; !rows.Eof(); rows.MoveNext(), ++number) {
        const QString name = rows.Text(0);
        // Spellings of a name that pages link to in the same way are one person, as a script keeps one entry of an id.
        if (name != person.name) {
            if (const QString id = PersonCrossLinkId(name); person.name.isEmpty() || id != person.id) {
                if (!person.name.isEmpty()) {
                    writer.Add(person);
                }
                person = {name, id, {}};
            }
        }
        person.keys += SiteKey(rows.Text(1));
        progress.Show(number);
    }
    if (!person.name.isEmpty()) {
        writer.Add(person);
    }
    writer.Finish();
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
