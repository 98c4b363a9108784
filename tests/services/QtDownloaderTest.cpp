// Files from a server, which here is one of this process.
#include "services/QtDownloader.h"

#include "support/Scripted.h"

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

namespace ostrand {
namespace {

using namespace Qt::StringLiterals;

/// Gives the event loop its turns, and may tell that the program is to end.
class LoopPump : public EventPump {
public:
    void Turn() override {
        ++turns;
        QCoreApplication::processEvents();
    }
    bool Stopping() const override { return stopping && turns > 2; }
    int turns = 0;
    bool stopping = false;
};

class QtDownloaderTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
        QObject::connect(&server, &QTcpServer::newConnection, [this] {
            QTcpSocket *socket = server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                request += socket->readAll();
                if (request.contains("\r\n\r\n") && !answer.isEmpty()) {
                    socket->write(answer);
                    socket->disconnectFromHost();
                }
            });
        });
    }
    static QByteArray Answer(const QByteArray &status, const QByteArray &body) {
        return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }
    QString Url() const { return u"http://127.0.0.1:%1/ann%20lee.jpg"_s.arg(server.serverPort()); }
    bool Fetch(const QString &url) { return downloader.Fetch(url, folder / u"ann.jpg"_s, pump, &error); }

    test::TempDir folder;
    QTcpServer server;
    QByteArray request;
    QByteArray answer;
    LoopPump pump;
    QtDownloader downloader;
    QString error;
};

} // namespace

TEST_F(QtDownloaderTest, StoresWhatTheServerGives) {
    const QByteArray body(300'000, 'x');
    answer = Answer("200 OK", body);
    EXPECT_TRUE(Fetch(u' ' + Url() + u'\n')) << qPrintable(error);
    EXPECT_EQ(folder.Read(u"ann.jpg"_s), body);
    EXPECT_TRUE(request.startsWith("GET /ann%20lee.jpg HTTP/1.1"));
    EXPECT_TRUE(request.toLower().contains("cache-control: no-cache"));
    EXPECT_TRUE(error.isEmpty());
    EXPECT_GT(pump.turns, 0);
}

TEST_F(QtDownloaderTest, AFaultOfTheServerLeavesTheFileAsItWas) {
    folder.Write(u"ann.jpg"_s, "old");
    answer = Answer("404 Not Found", "<html>no picture</html>");
    EXPECT_FALSE(Fetch(Url()));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(folder.Read(u"ann.jpg"_s), "old");
}

TEST_F(QtDownloaderTest, ABrokenTransferIsAFault) {
    answer = "HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nonly this";
    EXPECT_FALSE(Fetch(Url()));
    EXPECT_FALSE(folder.Has(u"ann.jpg"_s));
}

TEST_F(QtDownloaderTest, AServerThatDoesNotAnswerIsAFault) {
    const QString url = Url();
    server.close();
    EXPECT_FALSE(Fetch(url));
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(QtDownloaderTest, OnlyWebAddressesAreFetched) {
    for (const QString &url : {u""_s, u"no address"_s, u"file:///etc/hostname"_s, u"ftp://127.0.0.1/x"_s,
                               u"data:text/plain,x"_s, u"qrc:/x"_s, u"/etc/hostname"_s}) {
        EXPECT_FALSE(Fetch(url)) << qPrintable(url);
        EXPECT_FALSE(error.isEmpty());
    }
    EXPECT_FALSE(folder.Has(u"ann.jpg"_s));
}

TEST_F(QtDownloaderTest, ARedirectionIsFollowed) {
    QByteArray second = Answer("200 OK", "picture");
    answer = "HTTP/1.1 302 Found\r\nLocation: /other.jpg\r\nContent-Length: 0\r\n\r\n";
    QObject::connect(&server, &QTcpServer::newConnection, [&, connections = 0]() mutable {
        if (++connections == 2) {
            request.clear();
            answer = second;
        }
    });
    EXPECT_TRUE(Fetch(Url())) << qPrintable(error);
    EXPECT_EQ(folder.Read(u"ann.jpg"_s), "picture");
    EXPECT_TRUE(request.startsWith("GET /other.jpg"));
}

TEST_F(QtDownloaderTest, AFolderThatIsGoneIsAFault) {
    answer = Answer("200 OK", "x");
    EXPECT_FALSE(downloader.Fetch(Url(), folder / u"gone/ann.jpg"_s, pump, &error));
    EXPECT_FALSE(error.isEmpty());
}

TEST_F(QtDownloaderTest, TheEndOfTheProgramEndsTheTransfer) {
    pump.stopping = true; // and the server keeps silent
    EXPECT_FALSE(Fetch(Url()));
    EXPECT_FALSE(folder.Has(u"ann.jpg"_s));
}

} // namespace ostrand
