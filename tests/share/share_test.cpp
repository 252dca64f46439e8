// Looks at what the build made to lie beside the programs, by the names that the program asks for,
// and at what makes it.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPdfDocument>
#include <QPdfSelection>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "image/module_kinds.h"
#include "session/language.h"
#include "special/ir_screen.h"

using bkconf::AreaPictureField;
using bkconf::IrScreen;
using bkconf::Manual;
using bkconf::Model;
using bkconf::Models;

namespace {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString Made(const QString& folder, const QString& name) {
  return QStringLiteral(SHARE_DIRECTORY "/%1/%2").arg(folder, name);
}

QStringList Pictures() {
  QStringList names;
  for (const Model& model : Models) names << ToQt(model.picture);
  return names;
}

QStringList Manuals() {
  QStringList names;
  for (const Model& model : Models) {
    for (const Manual& manual : model.manuals) {
      if (!manual.dutch.empty()) names << ToQt(manual.dutch) << ToQt(manual.french);
    }
  }
  return names;
}

QByteArray Content(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Rows(const QStringList& names) {
  QTest::addColumn<QString>("name");
  for (const QString& name : names) QTest::newRow(qPrintable(name)) << name;
}

/// The names of the files in a folder of the sources, with the extension of what is made of them.
QSet<QString> Sources(const QString& folder, const QString& extension, const QString& made) {
  const QDir directory(QStringLiteral(SHARE_SOURCES "/") + folder);
  QSet<QString> names;
  for (const QString& name : directory.entryList({QStringLiteral("*.") + extension})) {
    names << QString(name).replace(QStringLiteral(".") + extension, QStringLiteral(".") + made);
  }
  return names;
}

QSet<QString> AsSet(const QStringList& names) {
  return {names.begin(), names.end()};
}

/// What the screen of the infrared module shows.
constexpr std::string_view RemotePicture = "remote.bmp";

/// Something is drawn on a key, in its middle.
bool HasSign(const QImage& picture, const QRect& place, const QColor& key) {
  int drawn = 0;
  for (int y = place.top(); y <= place.bottom(); ++y) {
    for (int x = place.left(); x <= place.right(); ++x) {
      if (qAbs(picture.pixelColor(x, y).lightness() - key.lightness()) > 60) ++drawn;
    }
  }
  return drawn > 50;
}

class ShareTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { place_ = std::make_unique<QTemporaryDir>(); }

  void EachModelHasAPicture_data() { Rows(Pictures()); }
  void EachModelHasAPicture() {
    QFETCH(QString, name);
    const QImage picture(Made(QStringLiteral("pictures"), name));
    QCOMPARE(picture.size(), QSize(640, 480));
    QSet<QRgb> colours;
    int drawn = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        colours << picture.pixel(x, y);
        if (picture.pixelColor(x, y) != Qt::white) ++drawn;
      }
    }
    QVERIFY(colours.contains(0xff1f6489));
    QVERIFY2(colours.size() > 100, qPrintable(QString::number(colours.size())));
    // A good part of it, on the white of the card that it lies on.
    const double part = double(drawn) / (picture.width() * picture.height());
    QVERIFY2(part > 0.3 && part < 0.9, qPrintable(QString::number(part)));
    for (const QPoint corner : {QPoint(0, 0), QPoint(639, 0), QPoint(0, 479), QPoint(639, 479)}) {
      QCOMPARE(picture.pixelColor(corner), QColor(Qt::white));
    }
  }

  void EachKeyOfTheRemoteControlIsDrawnWhereItsAreaIs() {
    bkconf::Language = bkconf::Dutch;
    bkconf::LoadIrScreen();
    QCOMPARE(ToQt(IrScreen.remote.file), ToQt(RemotePicture));
    const QImage picture(Made(QStringLiteral("pictures"), ToQt(RemotePicture)));
    QCOMPARE(picture.size(), QSize(360, 720));
    QCOMPARE(IrScreen.remote.areas.size(), std::size_t{13});
    for (const AreaPictureField::Area& area : IrScreen.remote.areas) {
      const QRectF place(picture.width() * area.left / 1000.0, picture.height() * area.top / 1000.0,
                         picture.width() * area.width / 1000.0,
                         picture.height() * area.height / 1000.0);
      const auto at = [&picture](double x, double y) {
        return picture.pixelColor(qRound(x), qRound(y));
      };
      // The same colour just within each side, and the dark case just outside.
      const QPointF middle = place.center();
      const QColor key = at(place.left() + 4, middle.y());
      QVERIFY2(key.lightness() > 70, area.name.c_str());
      QCOMPARE(at(place.right() - 4, middle.y()), key);
      QCOMPARE(at(middle.x(), place.top() + 4), key);
      QCOMPARE(at(middle.x(), place.bottom() - 4), key);
      for (const QColor& outside :
           {at(place.left() - 4, middle.y()), at(place.right() + 4, middle.y()),
            at(middle.x(), place.top() - 4), at(middle.x(), place.bottom() + 4)}) {
        QVERIFY2(outside.lightness() < 60, area.name.c_str());
      }
      QVERIFY2(HasSign(picture, place.toRect().adjusted(8, 8, -8, -8), key), area.name.c_str());
    }
  }

  void NoTwoModelsLookTheSame() {
    QSet<QByteArray> pictures;
    for (const QString& name : Pictures()) {
      pictures << Content(Made(QStringLiteral("pictures"), name));
    }
    QCOMPARE(pictures.size(), Pictures().size());
  }

  void EachModelHasItsManuals_data() { Rows(Manuals()); }
  void EachModelHasItsManuals() {
    QFETCH(QString, name);
    QPdfDocument manual;
    QCOMPARE(manual.load(Made(QStringLiteral("manuals"), name)), QPdfDocument::Error::None);
    const int pages = manual.pageCount();
    QVERIFY2(pages >= 2 && pages <= 4, qPrintable(QString::number(pages)));
    const QString title =
        manual.metaData(QPdfDocument::MetaDataField::Title).toString().simplified();
    QVERIFY(!title.isEmpty());
    for (int page = 0; page < pages; ++page) {
      // Lines, and blanks that hold words together, come as plain blanks.
      const QString text = manual.getAllText(page).text().simplified();
      QVERIFY2(text.size() > 300, qPrintable(text));
      QVERIFY2(text.contains(title), qPrintable(text));
      QVERIFY2(text.contains(QStringLiteral("%1 / %2").arg(page + 1).arg(pages)), qPrintable(text));
    }
  }

  void EachSourceBelongsToAModel() {
    QCOMPARE(Sources(QStringLiteral("pictures"), QStringLiteral("svg"), QStringLiteral("bmp")),
             AsSet(Pictures() + QStringList(ToQt(RemotePicture))));
    QCOMPARE(Sources(QStringLiteral("manuals"), QStringLiteral("md"), QStringLiteral("pdf")),
             AsSet(Manuals()));
  }

  void TheDemoHouseIsThere() {
    const QDir sources(QStringLiteral(SHARE_SOURCES "/demo"));
    const QStringList names = sources.entryList({QStringLiteral("*.BK1")});
    QVERIFY(!names.isEmpty());
    for (const QString& name : names) {
      const QByteArray content = Content(sources.filePath(name));
      QVERIFY2(!content.isEmpty(), qPrintable(name));
      QVERIFY2(Content(Made(QStringLiteral("demo"), name)) == content, qPrintable(name));
    }
  }

  void SetupLaysOutEachPictureAndManual() {
    const QString directory = place_->filePath(QStringLiteral("settings"));
    QCOMPARE(QProcess::execute(QStringLiteral(SETUP_PROGRAM),
                               {QStringLiteral("--directory"), directory}),
             0);
    const QStringList names = Pictures() + Manuals() + QStringList(ToQt(RemotePicture));
    for (const QString& name : names) {
      const bool picture = name.endsWith(QStringLiteral(".bmp"));
      const QString made =
          Made(picture ? QStringLiteral("pictures") : QStringLiteral("manuals"), name);
      QVERIFY2(!Content(made).isEmpty(), qPrintable(name));
      QVERIFY2(Content(directory + QLatin1Char('/') + name) == Content(made), qPrintable(name));
    }
  }

  void TheSameTextGivesTheSameBytes() {
    const QByteArray text =
        "# Title\n\nText with **bold** letters.\n\n| A | B |\n|---|---|\n| 1 | 2 |\n";
    const QByteArray first = MakeManual(text);
    QVERIFY(first.contains("/CreationDate (D:20000101000000Z)"));
    QCOMPARE(MakeManual(text), first);
  }

  void AHeadingIsOnThePageOfItsText() {
    bool moved = false;
    // Every place at the end of a page comes about with one of these numbers of paragraphs.
    for (int paragraphs = 28; paragraphs <= 42; ++paragraphs) {
      for (const QByteArray companion :
           {"Companion\n", "| A | B |\n|---|---|\n| Companion | 2 |\n"}) {
        QByteArray text = "# Title\n\n";
        for (int i = 0; i < paragraphs; ++i) text += "Line\n\n";
        text += "## Heading\n\n" + companion + "\nEnd\n";
        QVERIFY(!MakeManual(text).isEmpty());
        QPdfDocument manual;
        QCOMPARE(manual.load(place_->filePath(QStringLiteral("made"))), QPdfDocument::Error::None);
        const int page = PageWith(manual, QStringLiteral("Heading"));
        QCOMPARE(PageWith(manual, QStringLiteral("Companion")), page);
        moved = moved || page == 1;
      }
    }
    QVERIFY(moved);
  }

  void ManualsWithoutATitleAreRefused() {
    QVERIFY(MakeManual("Text\n").isEmpty());
    QVERIFY2(error_.contains("source does not begin with a title"), error_.constData());
  }

  void DrawingsOfAnotherSizeAreRefused() {
    const QByteArray drawing =
        "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'></svg>";
    QVERIFY(Make(QStringLiteral("picture"), drawing).isEmpty());
    QVERIFY2(error_.contains("source is neither 640 by 480 nor 360 by 720 in size"),
             error_.constData());
  }

  void WhatIsNoDrawingIsRefused() {
    QVERIFY(Make(QStringLiteral("picture"), "no drawing").isEmpty());
    QVERIFY2(error_.contains("source is no SVG"), error_.constData());
  }

 private:
  /// What is made of that source; nothing when the maker refuses it, and then says why in `error_`.
  QByteArray Make(const QString& what, const QByteArray& source) {
    const QString from = place_->filePath(QStringLiteral("source"));
    const QString to = place_->filePath(QStringLiteral("made"));
    QFile::remove(to);
    QFile file(from);
    if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size()) return {};
    file.close();
    QProcess maker;
    maker.start(QStringLiteral(SHARE_MAKER), {what, from, to});
    maker.waitForFinished();
    error_ = maker.readAllStandardError();
    return Content(to);
  }

  QByteArray MakeManual(const QByteArray& text) { return Make(QStringLiteral("manual"), text); }

  static int PageWith(QPdfDocument& manual, const QString& text) {
    for (int page = 0; page < manual.pageCount(); ++page) {
      if (manual.getAllText(page).text().contains(text)) return page;
    }
    return -1;
  }

  std::unique_ptr<QTemporaryDir> place_;
  QByteArray error_;
};

}  // namespace

QTEST_GUILESS_MAIN(ShareTest)
#include "share_test.moc"
