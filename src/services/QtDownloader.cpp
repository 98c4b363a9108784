#include "services/QtDownloader.h"

#include "base/Files.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSaveFile>
#include <QTimer>

namespace ostrand {

namespace {

constexpr int kReplyPoll = 20;                     // milliseconds
constexpr int kSilence = 30'000;                   // milliseconds
constexpr qint64 kLargestFile = qint64(512) << 20; // bytes

QNetworkRequest RequestFor(const QUrl &url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setRawHeader("Cache-Control", "no-cache");
    request.setRawHeader("Pragma", "no-cache");
    request.setTransferTimeout(kSilence);
    return request;
}

void WaitForEnd(QNetworkReply &reply, EventPump &pump) {
    while (!reply.isFinished()) {
        pump.Turn();
        if (pump.Stopping()) {
            reply.abort();
        }
        if (!reply.isFinished()) {
            QEventLoop loop;
            QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
            QTimer::singleShot(kReplyPoll, &loop, &QEventLoop::quit);
            loop.exec(QEventLoop::ExcludeUserInputEvents);
        }
    }
}

/// Takes the rest of what came; false when the file cannot hold it.
bool Take(QNetworkReply &reply, QSaveFile &file) {
    const QByteArray bytes = reply.readAll();
    return file.pos() + bytes.size() <= kLargestFile && file.write(bytes) == bytes.size();
}

/// Why the transfer failed; empty when the file is in its place.
QString Receive(QNetworkReply &reply, const QString &path, EventPump &pump) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return file.errorString();
    }
    bool stored = true;
    QObject::connect(&reply, &QNetworkReply::readyRead, &reply, [&] {
        stored = stored && Take(reply, file);
        if (!stored) {
            reply.abort();
        }
    });
    WaitForEnd(reply, pump);
    if (!stored) {
        return QStringLiteral("the file cannot be stored or is too large");
    }
    if (reply.error() != QNetworkReply::NoError) {
        return reply.errorString();
    }
    return Take(reply, file) && CommitFile(file) ? QString() : file.errorString();
}

} // namespace

QtDownloader::QtDownloader() = default;
QtDownloader::~QtDownloader() = default;

bool QtDownloader::Fetch(const QString &url, const QString &path, EventPump &pump, QString *error) {
    const QUrl address(url.trimmed(), QUrl::TolerantMode);
    QString fault;
    if (!address.isValid() ||
        (address.scheme() != QLatin1String("http") && address.scheme() != QLatin1String("https"))) {
        fault = QStringLiteral("no address of a web server");
    } else {
        if (!network_) {
            network_ = std::make_unique<QNetworkAccessManager>();
        }
        const std::unique_ptr<QNetworkReply> reply(network_->get(RequestFor(address)));
        fault = Receive(*reply, path, pump);
        reply->disconnect();
    }
    if (error != nullptr) {
        *error = fault;
    }
    return fault.isEmpty();
}

} // namespace ostrand
