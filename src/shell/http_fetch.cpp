#include "shell/http_fetch.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

#include "shell/widgets/Form.h"

namespace tallymere {
namespace {

constexpr int between_looks = 100;  // milliseconds

QNetworkRequest request_for(const std::string& url, int seconds) {
  QNetworkRequest request{QUrl(qt(url))};
  request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Tallymere"));
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
  request.setTransferTimeout(seconds * 1000);
  return request;
}

Fetched get(const std::string& url, const std::function<bool()>& go_on, int seconds) {
  QNetworkAccessManager network;
  const std::unique_ptr<QNetworkReply> reply(network.get(request_for(url, seconds)));
  QEventLoop waiting;
  QTimer look, limit;
  bool stopped = false, too_late = false;
  QObject::connect(reply.get(), &QNetworkReply::finished, &waiting, &QEventLoop::quit);
  QObject::connect(&look, &QTimer::timeout, reply.get(), [&] {
    if (stopped || go_on()) return;
    stopped = true;
    reply->abort();
  });
  // The transfer's own limit begins anew with each byte; this one does not.
  QObject::connect(&limit, &QTimer::timeout, reply.get(), [&] {
    too_late = true;
    reply->abort();
  });
  look.start(between_looks);
  limit.start(seconds * 1000);
  if (!reply->isFinished()) waiting.exec();
  if (stopped) return {.end = Fetched::End::Stopped};
  if (reply->error() != QNetworkReply::NoError)
    return {.why = too_late ? "The server did not answer in time." : utf8(reply->errorString())};
  return {.end = Fetched::End::Whole, .body = reply->readAll().toStdString()};
}

}  // namespace

Fetch Http_Fetch(int seconds) {
  return [seconds](const std::string& url, const std::function<bool()>& go_on) { return get(url, go_on, seconds); };
}

}  // namespace tallymere
