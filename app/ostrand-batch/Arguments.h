// The command line of the program.
#pragma once

#include "queries/SqlConsole.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace ostrand::batch {

/// How the process ends; 128 and the signal's number when one ended it.
enum ExitStatus { kDone = 0, kNotClean = 1, kUsage = 2 };

struct Arguments {
    bool help = false;
    bool version = false;
    QString sql_file;
    bool sql = false;
    bool create = false;
    std::optional<SqlFormat> format;
    std::optional<bool> answer; ///< what questions are answered with; the neutral answer without one
    QString locale;             ///< name such as "de_DE"; the system's without one
    bool quiet = false;
    /// The skin that a page is rendered through; empty for no page.
    QString render;
    QString database; ///< where the page's title is taken from
    bool offline = false;
    QString page_file; ///< where the page is written to
    /// What is left: a database or a command file, or the key of the page's title.
    QString target;
    /// Says what is wrong with the command line; empty when nothing is.
    QString fault;
};

/// Takes the arguments behind the program's name apart.
Arguments ParseArguments(const QStringList &arguments);
QString HelpText();

} // namespace ostrand::batch
