#include "shell/qt/message_boxes.h"

#include <QApplication>

#include "shell/main_window.h"
#include "shell/qt/screen_window.h"

namespace bkconf {
namespace {

/// The window that the user looks at, or none before the first one stands.
QWidget* WindowInFront() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  const auto& windows = ScreenWindows();
  return windows.empty() || !windows.front()->isVisible() ? nullptr : windows.front();
}

}  // namespace

QMessageBox* ShowBox(QMessageBox::Icon icon, const QString& text, const QString& details) {
  auto* box = new QMessageBox(WindowInFront());
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setWindowTitle(ToQt(MainWindow.title));
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

}  // namespace bkconf
