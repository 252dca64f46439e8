// Makes what lies beside the installed program: pictures from drawings, manuals from Markdown. Run
// by the build for each file.
#include <QFile>
#include <QGuiApplication>
#include <QHashSeed>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include "share_maker/manual.h"
#include "share_maker/picture.h"

namespace {

constexpr int WrongUsage = 2;

constexpr const char* Usage =
    "usage: share_maker picture DRAWING.svg PICTURE.bmp\n"
    "       share_maker manual TEXT.md MANUAL.pdf\n";

}  // namespace

int main(int count, char** words) {
  // The same files come out wherever and whenever the build runs; it may have no display.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("TZ", "UTC");
  // Qt warns, file after file, where there is none.
  const QTemporaryDir runtime;
  qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
  QHashSeed::setDeterministicGlobalSeed();
  const QGuiApplication application(count, words);

  const QStringList arguments = QGuiApplication::arguments();
  const QString what = arguments.value(1);
  if (arguments.size() != 4 || (what != u"picture" && what != u"manual")) {
    std::fputs(Usage, stderr);
    return WrongUsage;
  }
  try {
    const auto make = what == u"picture" ? share_maker::MakePicture : share_maker::MakeManual;
    make(arguments[2], arguments[3]);
    return EXIT_SUCCESS;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "share_maker: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
