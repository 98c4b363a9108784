#include "RenderMode.h"

#include "Console.h"
#include "database/DatabaseFunctions.h"
#include "services/StandardStreams.h"
#include "services/StopSignals.h"
#include "shell/Session.h"
#include "shell/StartUp.h"
#include "skin/SkinPage.h"

#include <QDir>

namespace ostrand::batch {

namespace {

int Refuse(const QString &fault) {
    WriteStream(stderr, "ostrand-batch: " + fault.toUtf8() + '\n');
    return kUsage;
}

/// The folder of a skin in the data folder, else of a path.
QString FolderOfSkin(const Session &session, const QString &skin) {
    const QString named = SkinFolder(session, skin);
    return SkinFileIn(named).isEmpty() ? QDir::cleanPath(QDir(skin).absolutePath()) : named;
}

/// A title and what it is.
struct Title {
    sql::Recordset row;
    bool is_episode;
};

/// Profiles come before episodes; nothing for a key that is nowhere.
std::optional<Title> FindTitle(Session &session, const QString &key) {
    for (const bool is_episode : {false, true}) {
        if (sql::Recordset row = OpenSkinRow(session, key, is_episode); !row.Eof()) {
            return Title{std::move(row), is_episode};
        }
    }
    return std::nullopt;
}

/// The text of the page. Where it cannot be rendered it is the template as it was read, as in the program's view.
QString Render(Session &session, const Arguments &arguments, const QString &folder, const Title &title, bool &failed) {
    const QString page = WithImagesOf(ReadSkinFile(SkinFileIn(folder)), folder);
    SkinState skin;
    skin.ActiveSkin = QDir(folder).dirName();
    RenderOptions options;
    options.offline = arguments.offline;
    QString fault;
    try {
        return RenderSkinText(session, skin, page, title.row, title.is_episode, {}, options);
    } catch (const sql::SqlError &error) {
        fault = error.Text();
    } catch (const SkinFailure &failure) {
        fault = failure.Text();
    }
    WriteStream(stderr, "Error: " + fault.toUtf8() + '\n');
    failed = true;
    return page;
}

/// The exit status without regard to what was shown.
int WriteTitle(Session &session, const Arguments &arguments) {
    const QString folder = FolderOfSkin(session, arguments.render);
    if (SkinFileIn(folder).isEmpty()) {
        return Refuse(QStringLiteral("There is no skin \"%1\".").arg(arguments.render));
    }
    session.DatabaseFile = QDir::toNativeSeparators(QDir(arguments.database).absolutePath());
    if (!OpenCollectionDatabase(session, session.DatabaseFile)) {
        return kUsage;
    }
    const std::optional<Title> title = FindTitle(session, arguments.target);
    if (!title) {
        return Refuse(QStringLiteral("There is no profile or episode \"%1\".").arg(arguments.target));
    }
    bool failed = false;
    if (!WritePage(arguments.page_file, Render(session, arguments, folder, *title, failed))) {
        return Refuse(QStringLiteral("\"%1\" cannot be written.").arg(arguments.page_file));
    }
    return failed ? kNotClean : kDone;
}

} // namespace

int RunRenderMode(const Arguments &arguments) {
    const StopSignals signals_noted;
    LetWritesFail();
    Console console(arguments);
    Session session(console.services);
    console.pump.session = &session;
    InterruptByStopSignals(session);
    PrepareStartUp(session, {});
    const QString last_database = session.DatabaseFile;
    int status = kUsage;
    try {
        status = WriteTitle(session, arguments);
    } catch (const sql::SqlError &error) {
        Refuse(error.Text());
    }
    if (!session.EndProgram) {
        FinishStartUp(session);
    }
    session.DatabaseFile = last_database; // a page changes nothing of what the next start opens
    EndSession(session);
    console.pump.session = nullptr;
    if (const int signal = StopSignals::Received(); signal != 0) {
        return 128 + signal;
    }
    return status == kDone && !console.dialogs.Clean() ? kNotClean : status;
}

} // namespace ostrand::batch
