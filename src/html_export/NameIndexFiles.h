// The names of all persons for the search of the site, in a script for each beginning of a word.
#pragma once

#include "html_export/SiteFiles.h"

#include <QString>
#include <QStringList>

#include <map>

namespace ostrand {

/// A visitor's search loads the one script that names with such a word are in. The scripts grow at their ends, so that
/// memory holds a part of each only.
class NameIndexFiles {
public:
    /// The folder ends in a separator.
    explicit NameIndexFiles(QString folder) : folder_(std::move(folder)) {}

    /// Throws SiteFault.
    void Add(const QString &name, const QString &cross_link_id, qsizetype profiles);
    /// Ends all scripts. Throws SiteFault.
    void Finish();

private:
    QString folder_;
    std::map<QString, StreamedFile> files_;
};

/// The beginnings of a name's words: two letters or digits each (one, where one character can be a word), in small
/// letters and without accents, each once.
QStringList WordBeginnings(const QString &name);

} // namespace ostrand
