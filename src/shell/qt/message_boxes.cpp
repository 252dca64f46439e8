#include "shell/qt/message_boxes.h"

#include <algorithm>

#include "shell/main_window.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"

namespace bkconf {
namespace {

/// The window that the user can work in, or none before the first one stands. Windows lie over
/// those that were made before them.
QWidget* WindowInFront() {
  const auto& windows = ScreenWindows();
  const auto front = std::find_if(windows.rbegin(), windows.rend(),
                                  [](const ScreenWindow* window) { return window->isVisible(); });
  return front == windows.rend() ? nullptr : *front;
}

}  // namespace

QMessageBox* ShowBox(QMessageBox::Icon icon, const QString& text, const QString& details) {
  auto* box = new QMessageBox(WindowInFront());
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowTitle(TitleToQt(MainWindow.title));
  box->setIcon(icon);
  box->setTextFormat(Qt::PlainText);
  box->setText(text);
  box->setInformativeText(details);
  box->setStandardButtons(QMessageBox::Ok);
  box->setWindowModality(Qt::ApplicationModal);
  box->show();
  return box;
}

void QtMessageBoxes::Tell(const std::string& text) {
  ShowBox(QMessageBox::Information, ToQt(text));
}

void QtMessageBoxes::Ask(const std::string& title, const std::string& text,
                         std::function<void(bool)> answer) {
  QMessageBox* box = ShowBox(QMessageBox::Warning, ToQt(text));
  box->setWindowTitle(TitleToQt(title));
  box->setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
  QObject::connect(box, &QMessageBox::finished, box,
                   [answer](int button) { RunEvent([&] { answer(button == QMessageBox::Ok); }); });
}

}  // namespace bkconf
