// Fetching one file from a server.
#pragma once

#include <QString>

namespace ostrand {

struct Session;

/// Fetches a URL into a local file, past all caches. True on success; a fault is traced.
bool DownloadFile(Session &session, const QString &url, const QString &path);

} // namespace ostrand
