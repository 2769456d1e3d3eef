#include "services/update_manager.h"

#include <functional>
#include <memory>

#include <QCoreApplication>
#include <QSettings>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <gtest/gtest.h>

#include "app_test_support.h"

namespace {

using namespace std::chrono_literals;

QByteArray response(const char* status, const QByteArray& body, const QByteArray& headers = {}) {
  return QByteArray("HTTP/1.1 ") + status + "\r\n" + headers +
         "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

/// A web server on the loopback that gives each caller what `answer` makes of the connection.
class LocalServer {
 public:
  explicit LocalServer(std::function<void(QTcpSocket&)> answer,
                       std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>())
      : server_(std::move(server)) {
    server_->listen(QHostAddress::LocalHost);
    QObject::connect(
        server_.get(), &QTcpServer::pendingConnectionAvailable, server_.get(), [this, answer] {
          QTcpSocket* const socket = server_->nextPendingConnection();
          ++calls;
          QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket, answer] {
            request += socket->readAll();
            if (request.endsWith("\r\n\r\n")) answer(*socket);
          });
        });
  }
  explicit LocalServer(const QByteArray& answer)
      : LocalServer([answer](QTcpSocket& socket) { socket.write(answer); }) {}

  QString url(const char* path = "/latest.json") const {
    const bool isSafe = qobject_cast<QSslServer*>(server_.get()) != nullptr;
    return QString("%1://127.0.0.1:%2%3")
        .arg(isSafe ? "https" : "http")
        .arg(server_->serverPort())
        .arg(path);
  }

  int calls = 0;
  QByteArray request;

 private:
  std::unique_ptr<QTcpServer> server_;
};

/// While it lives, the certificate of the tests is one that this program trusts.
class TestCertificate {
 public:
  TestCertificate() {
    QSslConfiguration trusting = before_;
    trusting.addCaCertificate(certificate_);
    QSslConfiguration::setDefaultConfiguration(trusting);
  }
  ~TestCertificate() { QSslConfiguration::setDefaultConfiguration(before_); }
  TestCertificate(const TestCertificate&) = delete;
  TestCertificate& operator=(const TestCertificate&) = delete;

  std::unique_ptr<QTcpServer> server() const {
    QSslConfiguration own;
    own.setLocalCertificate(certificate_);
    own.setPrivateKey(QSslKey(pem_, QSsl::Rsa));
    auto server = std::make_unique<QSslServer>();
    server->setSslConfiguration(own);
    return server;
  }

 private:
  const QSslConfiguration before_ = QSslConfiguration::defaultConfiguration();
  const QByteArray pem_ = bytesOf(TEST_DATA_FOLDER "/localhost.pem");
  const QSslCertificate certificate_{pem_};
};

class UpdateManagerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    QSettings().remove("updates");
    QCoreApplication::setApplicationVersion("1.0.1");
  }
  void TearDown() override { QSettings().remove("updates"); }

  /// What a manager says after one check of a server.
  static void check(UpdateManager& updates, const LocalServer& server) {
    updates.setManifestUrl(server.url());
    updates.checkNow();
    EXPECT_TRUE(updates.busy());
    EXPECT_TRUE(waitUntil([&] { return !updates.busy(); }));
  }
};

}  // namespace

TEST_F(UpdateManagerTest, Manifests) {
  const struct {
    const char* manifest;
    bool available;
    const char* latest;
    const char* url;
  } cases[] = {
      {R"({"version": " v1.0.2+build7 ", "url": "https://a.example/x"})", true, "v1.0.2+build7",
       "https://a.example/x"},
      {R"({"version": "1.0.10", "windows_url": " https://w.example ", "url": "https://a.example"})",
       true, "1.0.10", "https://w.example"},
      {R"({"version": "1.1", "windows_url": "  ", "url": "https://a.example"})", true, "1.1",
       "https://a.example"},
      {R"({"version": "1.0.1", "url": "https://a.example"})", false, "1.0.1", "https://a.example"},
      {R"({"version": "1.0.0", "url": "https://a.example"})", false, "1.0.0", "https://a.example"},
      {R"({"version": "9"})", false, "9", ""},
      {R"({"version": "9", "url": "file:///etc/passwd"})", false, "9", ""},
      {R"({"version": "9", "url": "HTTP://a.example"})", true, "9", "http://a.example"},
      {R"({"version": "9", "windows_url": "javascript:close", "url": "https://a.example"})", false,
       "9", ""},
      {R"({"version": "9", "url": "a.example/x"})", false, "9", ""},
      {R"({"version": 9, "url": "https://a.example"})", false, "", "https://a.example"},
      {"{}", false, "", ""},
  };
  for (const auto& c : cases) {
    const LocalServer server(response("200 OK", c.manifest));
    UpdateManager updates;
    check(updates, server);
    EXPECT_EQ(updates.lastError(), "") << c.manifest;
    EXPECT_EQ(updates.updateAvailable(), c.available) << c.manifest;
    EXPECT_EQ(updates.latestVersion(), c.latest) << c.manifest;
    EXPECT_EQ(updates.downloadUrl(), QUrl(c.url)) << c.manifest;
    EXPECT_TRUE(updates.lastSuccessAt().isValid());
    // The names of headers may be in any case, and newer Qt writes them small.
    EXPECT_TRUE(server.request.toLower().contains("\r\naccept: application/json\r\n"));
  }
}

TEST_F(UpdateManagerTest, WhatIsNoManifestIsRefusedAndTheLastGoodOneStays) {
  const LocalServer good(
      response("200 OK", R"({"version": "2", "notes": "n", "url": "https://a"})"));
  UpdateManager updates(nullptr, 400ms);
  check(updates, good);
  const auto flood = [](QTcpSocket& socket) {
    socket.write("HTTP/1.1 200 OK\r\n\r\n");
    socket.write(QByteArray(3 * 1024 * 1024, ' '));
  };
  const auto trickle = [](QTcpSocket& socket) {
    socket.write("HTTP/1.1 200 OK\r\n\r\n");
    auto* const timer = new QTimer(&socket);
    QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write(" "); });
    timer->start(20ms);
  };
  const struct {
    const char* name;
    std::function<void(QTcpSocket&)> answer;
    const char* error;
  } cases[] = {
      {"no JSON", [](QTcpSocket& s) { s.write(response("200 OK", "{\"version\":")); },
       "Invalid update response (HTTP 200)."},
      {"no object", [](QTcpSocket& s) { s.write(response("200 OK", "[1]")); },
       "Invalid update response (HTTP 200)."},
      {"HTML", [](QTcpSocket& s) { s.write(response("200 OK", "<html>sign in</html>")); },
       "Invalid update response (HTTP 200)."},
      {"404", [](QTcpSocket& s) { s.write(response("404 Not Found", "{}")); },
       "Update check failed: "},
      {"500", [](QTcpSocket& s) { s.write(response("500 Oops", "{}")); }, "Update check failed: "},
      {"hangs up", [](QTcpSocket& s) { s.disconnectFromHost(); }, "Update check failed: "},
      {"no answer", [](QTcpSocket&) {}, "Update check failed: Operation canceled"},
      {"a body without end", flood, "Update check failed: Operation canceled"},
      {"a body drop by drop", trickle, "Update check failed: Operation canceled"},
  };
  for (const auto& c : cases) {
    const LocalServer server(c.answer);
    check(updates, server);
    EXPECT_TRUE(updates.lastError().startsWith(c.error))
        << c.name << ": " << updates.lastError().toStdString();
    EXPECT_TRUE(updates.updateAvailable() && updates.latestVersion() == "2") << c.name;
  }
}

TEST_F(UpdateManagerTest, ASafeAddressLeadsToSafeOnesOnly) {
  const TestCertificate certificate;
  const QByteArray manifest = response("200 OK", R"({"version": "3", "url": "https://a.example"})");
  const auto says = [](const QByteArray& answer) {
    return [answer](QTcpSocket& socket) { socket.write(answer); };
  };
  const auto redirect = [&](const LocalServer& target) {
    return says(response("302 Found", "", "Location: " + target.url().toLatin1() + "\r\n"));
  };
  const LocalServer plain(manifest);
  const LocalServer safe(says(manifest), certificate.server());
  const LocalServer toPlain(redirect(plain), certificate.server());
  const LocalServer toSafe(redirect(safe), certificate.server());
  UpdateManager updates;
  check(updates, toPlain);
  EXPECT_TRUE(updates.lastError().startsWith("Update check failed: "));
  EXPECT_EQ(updates.latestVersion(), "");
  EXPECT_EQ(plain.calls, 0);
  check(updates, toSafe);
  EXPECT_EQ(updates.lastError(), "");
  EXPECT_EQ(updates.latestVersion(), "3");
  EXPECT_TRUE(UpdateManager().latestVersion() == "3");
}

TEST_F(UpdateManagerTest, ASecondCheckOnlyMovesTheDate) {
  const LocalServer server([](QTcpSocket&) {});
  UpdateManager updates(nullptr, 300ms);
  updates.setManifestUrl(server.url());
  updates.checkNow();
  const QDateTime first = updates.lastCheckedAt();
  ASSERT_TRUE(waitUntil([&] { return server.calls == 1; }));
  const QSignalSpy busy(&updates, &UpdateManager::busyChanged);
  updates.checkNow();
  EXPECT_GT(updates.lastCheckedAt(), first);
  EXPECT_EQ(busy.count(), 0);
  ASSERT_TRUE(waitUntil([&] { return !updates.busy(); }));
  EXPECT_EQ(server.calls, 1);
}

TEST_F(UpdateManagerTest, TheAddressComesFromTheUserOrTheEnvironment) {
  EXPECT_EQ(UpdateManager().manifestUrl(), "");
  qputenv("VELMORA_UPDATE_URL", "http://second/");
  EXPECT_EQ(UpdateManager().manifestUrl(), "http://second");
  qputenv("VELMORA_UPDATE_MANIFEST_URL", " http://first// ");
  UpdateManager updates;
  EXPECT_EQ(updates.manifestUrl(), "http://first");
  const QSignalSpy changed(&updates, &UpdateManager::manifestUrlChanged);
  updates.setManifestUrl(" http://mine/x// ");
  updates.setManifestUrl("http://mine/x");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(UpdateManager().manifestUrl(), "http://mine/x");
  updates.setManifestUrl(" / ");
  updates.checkNow();
  EXPECT_FALSE(updates.busy());
  EXPECT_EQ(updates.lastError(), "Update URL is not configured.");
  qunsetenv("VELMORA_UPDATE_URL");
  qunsetenv("VELMORA_UPDATE_MANIFEST_URL");
}

TEST_F(UpdateManagerTest, AGoodManifestIsKeptUntilItIsForgotten) {
  const LocalServer server(
      response("200 OK", R"({"version": "2", "notes": "better", "url": "https://a.example"})"));
  UpdateManager first;
  first.openDownloadUrl();
  EXPECT_EQ(first.lastError(), "No download URL available.");
  check(first, server);
  UpdateManager second;
  EXPECT_TRUE(second.updateAvailable());
  EXPECT_EQ(second.releaseNotes(), "better");
  EXPECT_EQ(second.lastSuccessAt(), first.lastSuccessAt());
  EXPECT_FALSE(second.lastCheckedAt().isValid());
  second.clearState();
  EXPECT_FALSE(second.updateAvailable() || second.lastSuccessAt().isValid());
  EXPECT_EQ(second.manifestUrl(), server.url());
  EXPECT_FALSE(UpdateManager().updateAvailable());
  for (const char* damaged : {"{", "[]", " ", "null"}) {
    QSettings().setValue("updates/cachedManifestJson", damaged);
    EXPECT_EQ(UpdateManager().latestVersion(), "") << damaged;
  }
}
