// A bare Qt window in the style of the tool: what start and memory of the tool are compared with.
// Used by dev/bench.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("bare window"));
  window.setCentralWidget(new QLabel(QStringLiteral("bare")));
  window.resize(1024, 700);
  window.show();
  return QApplication::exec();
}
