// The window of an audio interface, as a person works in it, in one language.
#include "image/tables.h"
#include "screen_stage.h"
#include "session/state.h"
#include "shell/qt/event_guard.h"
#include "special/audio_screen.h"

using namespace bkconf;

namespace {

constexpr int SurroundCell = 129;
constexpr int SourcesCell = 130;
constexpr int ZonesCell = 131;
constexpr int SourceCell = 133;
constexpr int LoudnessCell = 149;
constexpr int GainCell = 165;
constexpr int MainVolumeCell = 181;
constexpr int SecondaryVolumeCell = 197;
constexpr int Unset = 42;

/// What the window shows.
struct AudioState {
  const char* name;
  bool isSet;
  bool surround;
  int zone;  ///< -1 for none
};

constexpr AudioState States[] = {
    {"new", false, false, -1},           {"no zone", true, false, -1},
    {"zone 1", true, false, 0},          {"zone 2", true, false, 1},
    {"surround, zone 1", true, true, 0}, {"surround, zone 2", true, true, 1},
    {"surround, zone 4", true, true, 3},
};

void FillModule(const AudioState& state) {
  for (int cell = SurroundCell; cell < AudioImage.Size(); ++cell) AudioImage[cell] = Unset;
  AudioImage[121] = int{'H'};
  AudioImage[SurroundCell] = state.surround ? 1 : 0;
  if (!state.isSet) return;
  AudioImage[SourcesCell] = 2;
  AudioImage[ZonesCell] = 5;
  for (int zone = 0; zone < 6; ++zone) {
    AudioImage[SourceCell + zone] = zone % 3;
    AudioImage[LoudnessCell + zone] = zone % 2;
    AudioImage[GainCell + zone] = 7 + zone;
    AudioImage[MainVolumeCell + zone] = 2 + zone;
    AudioImage[SecondaryVolumeCell + zone] = 1 + zone;
  }
}

}  // namespace

class AudioScreenViewTest : public QObject, private ScreenStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() { ActiveModuleType = AudioKind; }
  void cleanup() { Close({&AudioScreen}); }

  void ANewModuleAsksForItsNumbers() {
    ShowState(StateOf("new"));
    QCOMPARE(List("zones")->placeholderText(), QStringLiteral("#"));
    QCOMPARE(List("sources")->placeholderText(), QStringLiteral("#"));
    QCOMPARE(List("zone")->count(), 0);
    QCOMPARE(FieldInFocus(), QStringLiteral("zones"));
    PickRow("zones", 3);
    QCOMPARE(AudioImage[ZonesCell].Whole(), 3);
    QCOMPARE(List("zone")->count(), 4);
  }

  void WithoutAZoneNothingOfAZoneCanBeSet() {
    ShowState(StateOf("no zone"));
    for (const char* name : {"source", "mainVolume", "gain", "secondaryVolume", "loudness"}) {
      QVERIFY2(!Find<QWidget>(name)->isEnabled(), name);
    }
    QVERIFY(!Find<QCheckBox>("surround")->isVisible());
    QVERIFY(!Label("surroundHint")->isVisible());
  }

  void AZoneIsChosenByKeyboardAndSet() {
    ShowState(StateOf("no zone"));
    PickRow("zone", 4);
    QCOMPARE(List("source")->currentText(), QStringLiteral("2"));
    QCOMPARE(List("mainVolume")->currentText(), QStringLiteral("7"));
    QCOMPARE(List("gain")->currentText(), QStringLiteral("12"));
    QCOMPARE(List("secondaryVolume")->currentText(), QStringLiteral("6"));
    auto* loudness = Find<QCheckBox>("loudness");
    QVERIFY(!loudness->isChecked());
    loudness->setFocus();
    QTest::keyClick(loudness, Qt::Key_Space);
    QCOMPARE(AudioImage[LoudnessCell + 4].Whole(), 1);
    Pick("gain", "16");
    QCOMPARE(AudioImage[GainCell + 4].Whole(), 15);
    PickRow("source", 2);
    QCOMPARE(AudioImage[SourceCell + 4].Whole(), 2);
  }

  void SurroundIsAskedOfTheFirstZoneOnly() {
    ShowState(StateOf("zone 1"));
    auto* surround = Find<QCheckBox>("surround");
    QVERIFY(surround->isVisible() && !surround->isChecked());
    QCOMPARE(Place(surround).center().y(), Place(List("zone")).center().y());
    surround->setFocus();
    QTest::keyClick(surround, Qt::Key_Space);
    QCOMPARE(AudioImage[SurroundCell].Whole(), 1);
    QVERIFY(!List("source")->isEnabled() && !Label("sourceLabel")->isEnabled());
    QCOMPARE(List("source")->currentText(), QStringLiteral("1"));
    PickRow("zone", 3);
    QVERIFY(!surround->isVisible() && !Label("surroundHint")->isVisible());
    QVERIFY(List("source")->isEnabled());
  }

  void AZoneThatFollowsTheFirstSaysSoInThePlaceOfTheBox() {
    ShowState(StateOf("surround, zone 1"));
    const QRect box = Place(Find<QCheckBox>("surround"));
    PickRow("zone", 1);
    QVERIFY(Label("surroundHint")->isVisible());
    QCOMPARE(Label("surroundHint")->text(), InQt(TextId::UsedForSurround));
    QCOMPARE(Place(Label("surroundHint")).left(), box.left());
    QCOMPARE(Place(Label("surroundHint")).center().y(), box.center().y());
    QCOMPARE(List("mainVolume")->currentText(), QStringLiteral("3"));
    for (const char* name : {"source", "mainVolume", "secondaryVolume", "loudness"}) {
      QVERIFY2(!Find<QWidget>(name)->isEnabled(), name);
    }
    QVERIFY(List("gain")->isEnabled());
  }

  void MainAndSecondaryZoneStandSideBySide() {
    ShowState(StateOf("zone 1"));
    QCOMPARE(Place(Panel("mainGroup")).top(), Place(Panel("secondaryGroup")).top());
    QCOMPARE(Place(Panel("mainGroup")).height(), Place(Panel("secondaryGroup")).height());
    QVERIFY(Place(Panel("mainGroup")).right() < Place(Panel("secondaryGroup")).left());
    QCOMPARE(Place(List("source")).left(), Place(List("gain")).left());
    QCOMPARE(Panel("mainGroup")->title(), InQt(TextId::MainZone));
    QCOMPARE(Panel("secondaryGroup")->title(), InQt(TextId::SecondaryZone));
  }

  void NothingMovesFromOneStateToAnother() {
    ShowState(StateOf("new"));
    const QSize size = Window()->size();
    QMap<QString, QRect> places;
    const char* fixed[] = {"zones", "sources", "zone", "source", "gain", "loudness", "leave"};
    for (const char* name : fixed) places[QLatin1String(name)] = Place(Find<QWidget>(name));
    for (const AudioState& state : States) {
      ShowState(state);
      QCOMPARE(Window()->size(), size);
      for (const char* name : fixed) {
        QVERIFY2(Place(Find<QWidget>(name)) == places[QLatin1String(name)], name);
      }
    }
  }

  void TheWindowFitsOnASmallDesktop() {
    ShowState(StateOf("surround, zone 2"));
    ExpectThatItFitsOnASmallDesktop();
  }

  void EveryStateIsWholeNamedAndInReadingOrder_data() { AddStates(States); }
  void EveryStateIsWholeNamedAndInReadingOrder() {
    QFETCH(int, state);
    ShowState(States[state]);
    ExpectNoFieldCutOffOrCovered();
    ExpectEveryFieldHasANameForAScreenReader();
    ExpectTabulatorGoesInReadingOrder();
  }

 private:
  static const AudioState& StateOf(const char* name) { return Named(States, name); }
  void ShowState(const AudioState& state) {
    FillModule(state);
    Show(AudioScreen, OpenAudioScreen);
    RunEvent([&state] { AudioScreen.zone.list.Pick(state.zone); });
    QCoreApplication::processEvents();
  }
};

QTEST_MAIN(AudioScreenViewTest)
#include "audio_screen_view_test.moc"
