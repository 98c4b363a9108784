// Files from servers.
#pragma once

#include "platform/Services.h"

#include <memory>

class QNetworkAccessManager;

namespace ostrand {

/// Follows redirections that do not lead from https to http. A server that keeps silent for half a minute is a fault,
/// and so is a file beyond all measure.
class QtDownloader : public Downloader {
public:
    QtDownloader();
    ~QtDownloader() override;
    bool Fetch(const QString &url, const QString &path, EventPump &pump, QString *error) override;

private:
    std::unique_ptr<QNetworkAccessManager> network_; // made for the first file
};

} // namespace ostrand
