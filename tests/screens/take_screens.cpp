// Takes a picture of every window of the tool, with something in it.
// Arguments: a settings directory, and a directory that gets the pictures. Used by dev/screens.
#include <QApplication>
#include <QDir>
#include <QPdfView>
#include <QPixmap>
#include <QTest>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "screens/shown_screens.h"
#include "shell/qt/style.h"

namespace bkconf {
namespace {

/// Whether all pages of a manual that are in sight have been drawn, which takes them a while.
bool IsDrawn(QWidget* window) {
  const auto* pages = window->findChild<QPdfView*>();
  if (pages == nullptr) return true;
  const QImage image = pages->viewport()->grab().toImage();
  const int middle = image.width() / 2;
  for (int y = 0; y < image.height(); ++y) {
    if (image.pixelColor(middle, y).lightness() < 128) return true;
  }
  return false;
}

/// Until the front window stands, is active and has been painted as it stays.
void Settle() {
  QWidget* front = House::Front();
  (void)QTest::qWaitForWindowExposed(front);
  if (!front->inherits("QMenu")) (void)QTest::qWaitForWindowActive(front);
  constexpr int rounds = 5;
  for (int round = 0; round < rounds; ++round) QCoreApplication::processEvents();
  (void)QTest::qWaitFor([front] { return IsDrawn(front); });
}

void Take(const ShownScreen& shown, const QDir& directory) {
  Settle();
  QWidget* front = House::Front();
  const QString file = directory.filePath(QLatin1String(shown.name) + QLatin1String(".png"));
  if (!front->grab().save(file)) {
    std::fprintf(stderr, "%s cannot be written\n", qUtf8Printable(file));
    std::exit(EXIT_FAILURE);
  }
  const QSize least = front->minimumSizeHint();
  std::printf("%-32s %4d x %4d   at least %4d x %4d\n", shown.name, front->width(), front->height(),
              least.width(), least.height());
}

}  // namespace
}  // namespace bkconf

int main(int count, char** words) {
  using namespace bkconf;
  QApplication application(count, words);
  if (count != 3) {
    std::fputs("usage: take_screens SETTINGS_DIRECTORY PICTURE_DIRECTORY\n", stderr);
    return 2;
  }
  ApplyStyle(application);
  House house(words[1]);
  QDir().mkpath(QString::fromLocal8Bit(words[2]));
  for (const ShownScreen& shown : ShownScreens()) {
    house.Clear();
    try {
      shown.show(house);
    } catch (const std::exception& error) {
      std::fprintf(stderr, "%s: %s\n", shown.name, error.what());
      return EXIT_FAILURE;
    }
    Take(shown, QDir(QString::fromLocal8Bit(words[2])));
  }
  house.Clear();
}
