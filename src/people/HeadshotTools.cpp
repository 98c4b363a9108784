#include "people/HeadshotTools.h"

#include "base/Text.h"
#include "database/DatabaseFunctions.h"
#include "people/HeadshotFolder.h"
#include "people/ProgressJob.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ostrand {

namespace {

QString Jpg(const QString &stem) {
    return stem + u".jpg"_s;
}

QString Alternate(const QString &stem, int number) {
    return Jpg(stem + u'_' + QString::number(number));
}

bool IsDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// What the tools do with the files of one folder, faults traced.
class Tidying {
public:
    Tidying(Session &session, const QString &folder, const QString &routine) :
        files(folder), session_(session), routine_(routine) {}

    PictureFolder files;

    bool IsIdentical(const QString &a, const QString &b) const {
        return a != b && IsIdenticalFile(files.Path(a), files.Path(b));
    }
    void Rename(const QString &from, const QString &to) { Note(from + u" -> "_s + to, files.Rename(from, to)); }
    bool Remove(const QString &name) {
        const bool removed = files.Remove(name);
        Note(name + u" removed"_s, removed);
        return removed;
    }
    /// Moves a file to a name, or to the first free alternate of the stem. It goes when an identical file is in its
    /// way.
    void MoveTo(const QString &name, const QString &stem, const QString &tail) {
        const QString wanted = Jpg(HeadshotName{stem, tail}.Joined());
        if (!TakesPlace(name, wanted)) {
            MoveToAlternate(name, stem);
        }
    }
    void MoveToAlternate(const QString &name, const QString &stem) {
        for (int i = 1; !TakesPlace(name, Alternate(stem, i)); ++i) {
        }
    }

private:
    /// True when the file needs no other place: it took this one, or an identical one holds it.
    bool TakesPlace(const QString &name, const QString &place) {
        const QString holder = files.Find(place);
        if (holder.isEmpty() || holder == name) { // its own name in other letters
            if (place != name) {
                Rename(name, place);
            }
            return true;
        }
        if (IsIdentical(name, holder)) {
            Remove(name);
            return true;
        }
        return false;
    }
    void Note(const QString &what, bool done) {
        if (done) {
            Trace(session_, routine_ + u": "_s + what, kTraceInfo);
        } else {
            Trace(session_, routine_ + u": "_s + what + u": "_s + files.Error(), kTraceError);
        }
    }

    Session &session_;
    QString routine_;
};

/// Runs `handle` for each file of the folder that is still there.
template <typename Handle>
void ForEachPicture(Session &session, const QString &title, const QString &routine, const QString &folder,
                    Handle handle) {
    Trace(session, routine + u'(' + folder + u')', kTraceEntry);
    Tidying tidying(session, folder, routine);
    const QStringList names = tidying.files.Names();
    ProgressJob job(session, title, names.size());
    for (const QString &name : names) {
        if (job.Cancelled()) {
            break;
        }
        if (tidying.files.Find(name) == name) {
            handle(tidying, name);
        }
        job.Step();
    }
}

void RemoveSpaces(Tidying &tidying, const QString &name) {
    const HeadshotName parts = SplitHeadshotName(Jpg(name.chopped(4).trimmed()));
    const QString stem = QString(parts.stem).replace("__"_L1, " "_L1).replace(u'_', u' ').trimmed();
    // A name of blanks alone would be none.
    if (!stem.isEmpty() && HeadshotName{stem, parts.tail}.Joined() != name.chopped(4)) {
        tidying.MoveTo(name, stem, parts.tail);
    }
}

/// The stem with an apostrophe for each character that a file name of ours cannot hold.
QString WithApostrophes(QString stem) {
    for (QChar &c : stem) {
        if (SafeFileName(QStringView(&c, 1)) != QStringView(&c, 1) && c != u'.' && c != u' ') {
            c = u'\'';
        }
    }
    return stem;
}

/// The one common name of a stem; nothing when there is none, or several.
std::optional<QString> OneCommonName(Session &session, const QString &stem) {
    sql::Recordset rows = session.Database->OpenRecordset(
        QString(u"SELECT CommonName FROM Alias WHERE AliasName = '"_s + EscapeSql(stem) + u"' OR AliasName = '"_s +
                EscapeSql(WithApostrophes(stem)) + u'\''));
    return rows.RecordCount() == 1 ? std::optional(rows.Text(0)) : std::nullopt;
}

void MoveToCommonName(Session &session, Tidying &tidying, const QString &name) {
    const HeadshotName parts = SplitHeadshotName(name);
    const std::optional<QString> common = OneCommonName(session, parts.stem);
    if (!common) {
        return;
    }
    const QString stem = SafeFileName(*common);
    if (!stem.trimmed().isEmpty() && stem != parts.stem) {
        tidying.MoveTo(name, stem, parts.tail);
    }
}

void NumberToAlternate(Tidying &tidying, const QString &name) {
    QString stem = name.chopped(4);
    if (stem.contains(u'_') || name.size() < 5 || !IsDigit(stem.back())) {
        return;
    }
    while (!stem.isEmpty() && IsDigit(stem.back())) {
        stem.chop(1);
    }
    while (stem.endsWith(u' ')) {
        stem.chop(1);
    }
    if (!stem.isEmpty()) { // a name of digits alone says nothing of a person
        tidying.MoveToAlternate(name, stem);
    }
}

void RemoveDuplicates(Tidying &tidying, const QString &primary) {
    const HeadshotName parts = SplitHeadshotName(primary);
    if (!parts.tail.isEmpty()) {
        return;
    }
    const auto name_of = [&](int number) { return tidying.files.Find(Alternate(parts.stem, number)); };
    QList<int> numbers;
    for (const int number : tidying.files.AlternatesOf(parts.stem)) {
        const QString name = name_of(number);
        const bool known = tidying.IsIdentical(name, primary) ||
                           std::any_of(numbers.begin(), numbers.end(),
                                       [&](int lower) { return tidying.IsIdentical(name, name_of(lower)); });
        if (!known || !tidying.Remove(name)) {
            numbers += number;
        }
    }
    int next = 1;
    for (const int number : numbers) {
        if (number != next) {
            tidying.Rename(name_of(number), Alternate(parts.stem, next));
        }
        ++next;
    }
}

/// The file that the stem leads to in the headshot folder, or one of its alternates, is identical.
bool IsKnown(const PictureFolder &known, const QString &stem, const QString &path) {
    QStringList names = {known.Find(Jpg(stem))};
    for (const int number : known.AlternatesOf(stem)) {
        names += known.Find(Alternate(stem, number));
    }
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        return !name.isEmpty() && IsIdenticalFile(path, known.Path(name)) &&
               QFileInfo(path).canonicalFilePath() != QFileInfo(known.Path(name)).canonicalFilePath();
    });
}

QString StemOfPerson(Session &session, const QString &file_name) {
    const QString stem = file_name.chopped(4).section(u'_', 0, 0);
    const sql::Recordset rows = session.Database->OpenRecordset(
        QString(u"SELECT CommonName FROM Alias WHERE AliasName = '"_s + EscapeSql(stem) + u'\''));
    return rows.Eof() ? stem : SafeFileName(rows.Text(0));
}

} // namespace

void RemoveTrailingSpaces(Session &session, const QString &folder) {
    ForEachPicture(session, u"Removing Trailing Spaces..."_s, u"RemoveTrailingSpaces"_s, folder, RemoveSpaces);
}

void RenameAlias(Session &session, const QString &folder) {
    ForEachPicture(session, u"Renaming AliasNames..."_s, u"RenameAlias"_s, folder,
                   [&](Tidying &tidying, const QString &name) { MoveToCommonName(session, tidying, name); });
}

void RenameAlternatives(Session &session, const QString &folder) {
    ForEachPicture(session, u"Renaming Alternatives..."_s, u"RenameAlternatives"_s, folder, NumberToAlternate);
}

void DeleteDuplicateImages(Session &session, const QString &folder) {
    ForEachPicture(session, u"Removing Duplicates.."_s, u"DeleteDuplicateImages"_s, folder, RemoveDuplicates);
}

void RemoveIdenticals(Session &session, const QString &source_folder) {
    const PictureFolder known(session.HeadshotPath);
    ForEachPicture(session, u"Removing Identicals..."_s, u"RemoveIdenticals"_s, source_folder,
                   [&](Tidying &tidying, const QString &name) {
                       if (IsKnown(known, StemOfPerson(session, name), tidying.files.Path(name))) {
                           tidying.Remove(name);
                       }
                   });
}

} // namespace ostrand
