// What the desktop's program asks for, told to the script and shown on real widgets.
#include "ui/qt/script/scripted_desktop.h"

#include <QMessageBox>
#include <QTemporaryFile>
#include <iostream>
#include <utility>

#include "ui/qt/qt_window.h"
#include "ui/qt/script/hands.h"

namespace ui::qt {
namespace {

/// A display that nobody sees can't raise a window, and says so each time.
void PassOverRemarks(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  std::cerr << message.toStdString() << '\n';
}

/// A screen on which a maximized window's inside is as large as on the screen that the program is
/// told of: the hidden display's frames are narrower.
constexpr const char* Screen =
    R"({"screens":[{"name":"hidden","x":0,"y":0,"width":1916,"height":1053,
  "logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";

}  // namespace

HiddenDisplay::HiddenDisplay() : screen_(std::make_unique<QTemporaryFile>()) {
  qInstallMessageHandler(PassOverRemarks);
  if (!screen_->open()) return;
  screen_->write(Screen);
  screen_->close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screen_->fileName().toUtf8());
}

HiddenDisplay::~HiddenDisplay() = default;

ScriptedDesktop::ScriptedDesktop(int& argc, char** argv, Installation installation)
    : Directed(argc, argv, std::move(installation)) {
  director_ = std::make_unique<Hands>(*this);
}

void ScriptedDesktop::Wait(int milliseconds) {
  director_->Wait(milliseconds);
  SyncAll();
  for (Window* window : Windows()) Repaint(*window);
}

void ScriptedDesktop::ServeEvents() {
  director_->ServeEvents([this] { QtPlatform::ServeEvents(); });
}

// --- What holds up its caller ------------------------------------------------------------------

void ScriptedDesktop::Converse(const std::function<void()>& converse,
                               const std::function<void()>& open) {
  const auto* before = std::exchange(converse_, &converse);
  open();
  converse_ = before;
}

void ScriptedDesktop::HoldUp(QtWindow&) {
  (*converse_)();
}

int ScriptedDesktop::HoldUp(QMessageBox& box) {
  box.open();
  (*converse_)();
  return box.standardButton(box.clickedButton());
}

Answer ScriptedDesktop::MessageBox(Sign sign, Buttons buttons, const std::string& title,
                                   const std::string& text) {
  std::optional<Answer> pressed;
  const Answer given =
      director_->MessageBox(sign, buttons, title, text, [&](const std::function<void()>& converse) {
        Converse(converse, [&] { pressed = QtPlatform::MessageBox(sign, buttons, title, text); });
      });
  // The program can end behind a box that nobody has answered.
  return pressed && !director_->Ended() ? *pressed : given;
}

std::optional<std::string> ScriptedDesktop::AskFile(const FileDialog& dialog) {
  SyncAll();
  return director_->AskFile(dialog);
}

void ScriptedDesktop::ShowModal(Window& window) {
  director_->ShowModal(window, [&](const std::function<void()>& converse) {
    Converse(converse, [&] { QtPlatform::ShowModal(window); });
  });
  if (window.IsOpen()) QtPlatform::Close(window);
}

// --- Windows -----------------------------------------------------------------------------------

void ScriptedDesktop::Show(Window& window) {
  director_->TellShow(window);
  QtPlatform::Show(window);
}

void ScriptedDesktop::Hide(Window& window) {
  if (!window.IsOpen() || window.IsHidden()) return;
  director_->TellHide(window);
  QtPlatform::Hide(window);
}

void ScriptedDesktop::Close(Window& window) {
  if (!window.IsOpen()) return;
  director_->TellClose(window);
  QtPlatform::Close(window);
}

}  // namespace ui::qt
