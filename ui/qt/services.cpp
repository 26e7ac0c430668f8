// Handing pages, texts and messages to the desktop's own programs.
#include "ui/qt/services.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <QUrlQuery>
#include <memory>

#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr int LongestQuery = 2000;  // milliseconds

const char* const Browsers[] = {"x-www-browser", "firefox",          "firefox-esr",
                                "chromium",      "chromium-browser", "google-chrome",
                                "epiphany",      "konqueror",        "falkon"};

bool Installed(const QString& program) {
  return !QStandardPaths::findExecutable(program).isEmpty();
}

/// Asks the desktop which program opens links of a scheme; empty if it names none.
QString HandlerOf(const QString& scheme) {
  if (!Installed(QStringLiteral("xdg-mime"))) return {};
  QProcess query;
  query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                           QStringLiteral("x-scheme-handler/") + scheme});
  if (!query.waitForFinished(LongestQuery)) return {};
  return QString::fromLocal8Bit(query.readAllStandardOutput()).trimmed();
}

bool HasBrowser() {
  if (!qEnvironmentVariableIsEmpty("BROWSER")) return true;
  for (const char* browser : Browsers) {
    if (Installed(QString::fromLatin1(browser))) return true;
  }
  return !HandlerOf(QStringLiteral("https")).isEmpty();
}

/// Starts a program that hands something over; false if it can't be started, or says that it
/// failed. One that is still at work when the patience is at its end does what it was asked to.
bool HandTo(const QString& program, const QStringList& arguments, const Waiter& waitFor) {
  auto process = std::make_unique<QProcess>();
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->start(program, arguments);
  if (!process->waitForStarted()) return false;
  if (waitFor(*process)) {
    return process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
  }
  QProcess* left = process.release();  // destroying it would end the program
  QObject::connect(left, &QProcess::finished, left, &QObject::deleteLater);
  return true;
}

bool OpenLink(const QUrl& url, const Waiter& waitFor) {
  const QString opener = QStringLiteral("xdg-open");
  if (Installed(opener)) return HandTo(opener, {url.toString(QUrl::FullyEncoded)}, waitFor);
  return QDesktopServices::openUrl(url);
}

QUrl MailtoUrl(const QString& address, const QString& subject, const QString& body) {
  QUrl url;
  url.setScheme(QStringLiteral("mailto"));
  url.setPath(address);
  QUrlQuery query;
  query.addQueryItem(QStringLiteral("subject"),
                     QString::fromLatin1(QUrl::toPercentEncoding(subject)));
  query.addQueryItem(QStringLiteral("body"), QString::fromLatin1(QUrl::toPercentEncoding(body)));
  url.setQuery(query);
  return url;
}

}  // namespace

PageResult OpenInBrowser(const std::string& url, const Waiter& waitFor) {
  if (!HasBrowser()) return PageResult::NoBrowser;
  return OpenLink(QUrl(ToQt(url)), waitFor) ? PageResult::Opened : PageResult::NotOpened;
}

void OpenInViewer(const std::string& path) {
  if (QProcess::startDetached(QStringLiteral("xdg-open"), {ToQt(path)})) return;
  QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(path)));
}

bool Mail::Step(const std::string& operation, const std::optional<std::string>& value) {
  if (operation == "SignOn") {
    signedOn_ = true;
    parts_.clear();
    return true;
  }
  if (!signedOn_) return false;
  if (operation == "Compose") parts_.clear();
  if (operation == "Send") return HandOver();
  if (operation == "SignOff") signedOn_ = false;
  if (value) parts_[operation] = *value;
  return true;
}

bool Mail::HandOver() {
  const QString address = ToQt(parts_["RecipAddress"]);
  const QString subject = ToQt(parts_["MsgSubject"]);
  const QString body = ToQt(parts_["MsgNoteText"]).remove(QLatin1Char('\r'));
  const QString composer = QStringLiteral("xdg-email");
  const QStringList message{QStringLiteral("--utf8"),
                            QStringLiteral("--subject"),
                            subject,
                            QStringLiteral("--body"),
                            body,
                            address};
  if (Installed(composer) && HandTo(composer, message, waitFor_)) return true;
  if (HandlerOf(QStringLiteral("mailto")).isEmpty()) return false;
  return OpenLink(MailtoUrl(address, subject, body), waitFor_);
}

}  // namespace ui::qt
