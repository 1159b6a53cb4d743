// Windows under test.
#include "Fenster_Test.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPalette>
#include <QTimer>
#include <deque>

#include "ui/Fortschritt.h"
#include "ui/Hilfe.h"

namespace marklink::test {

namespace {

constexpr int Blick_ms = 5;
constexpr int Geduld_ms = 10'000;

QPalette Dunkle_Palette() {
  QPalette p(QColor(53, 53, 53));
  const std::pair<QPalette::ColorRole, QColor> farben[] = {
      {QPalette::Window, {45, 45, 48}},      {QPalette::WindowText, Qt::white},
      {QPalette::Base, {30, 30, 30}},        {QPalette::AlternateBase, {42, 42, 42}},
      {QPalette::Text, Qt::white},           {QPalette::Button, {60, 60, 62}},
      {QPalette::ButtonText, Qt::white},     {QPalette::ToolTipBase, {60, 60, 62}},
      {QPalette::ToolTipText, Qt::white},    {QPalette::PlaceholderText, {150, 150, 150}},
      {QPalette::Highlight, {42, 130, 218}}, {QPalette::HighlightedText, Qt::white}};
  for (const auto &[rolle, farbe] : farben) p.setColor(rolle, farbe);
  for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, rolle, QColor(127, 127, 127));
  return p;
}

}  // namespace

struct Modale_Schritte::Innenleben {
  std::deque<Schritt> Offen;
  QTimer Blick;
  QWidget *Beantwortet = nullptr;  ///< the window whose step is running

  void Nachsehen() {
    QWidget *fenster = QApplication::activeModalWidget();
    if (fortschritt().Offen()) return;  // a run is under way, and the window waits for its end
    if (fenster == nullptr || fenster == Beantwortet || !fenster->isVisible()) return;
    const QPointer<QWidget> wache = fenster;
    QWidget *vorher = std::exchange(Beantwortet, fenster);
    if (Offen.empty()) {
      ADD_FAILURE() << "unexpected window " << fenster->objectName().toStdString() << " ["
                    << fenster->windowTitle().toStdString() << "]";
    } else {
      const Schritt tun = Offen.front();
      Offen.pop_front();
      tun(*fenster);
    }
    if (wache != nullptr && wache->isVisible()) wache->close();
    Beantwortet = vorher;
  }
};

Modale_Schritte::Modale_Schritte() : d(std::make_unique<Innenleben>()) {
  // Queued: a step opens further windows, and a timer does not run again before it has returned.
  QObject::connect(
      &d->Blick, &QTimer::timeout, &d->Blick, [this] { d->Nachsehen(); }, Qt::QueuedConnection);
  d->Blick.start(Blick_ms);
}

Modale_Schritte::~Modale_Schritte() {
  if (!d->Offen.empty()) ADD_FAILURE() << d->Offen.size() << " announced window(s) did not come";
}

void Modale_Schritte::Dann(Schritt Tun) { d->Offen.push_back(std::move(Tun)); }

void Palette_setzen(bool Dunkel) {
  static const QPalette hell = QApplication::palette();
  QApplication::setPalette(Dunkel ? Dunkle_Palette() : hell);
}

void Zeigen(QWidget &Fenster) {
  Fenster.show();
  Fenster.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Fenster, Geduld_ms));
}

void Bild_machen(QWidget &Fenster, const QString &Name) {
  const QString ordner = qEnvironmentVariable("MARKLINK_BILDER");
  if (ordner.isEmpty() || !QDir().mkpath(ordner)) return;
  for (const bool dunkel : {true, false}) {
    Palette_setzen(dunkel);
    Fenster.show();
    QTest::qWait(50);
    const QString datei = u"%1/%2_%3.png"_qs.arg(ordner, Name, dunkel ? u"dunkel"_qs : u"hell"_qs);
    EXPECT_TRUE(Fenster.grab().save(datei)) << datei.toStdString();
  }
}

void Klick(QWidget &Fenster, const char16_t *Name) {
  QTest::mouseClick(&Kind<QWidget>(Fenster, Name), Qt::LeftButton);
}

void Tippen(QWidget &Fenster, const char16_t *Feld, const QString &Text) {
  auto &feld = Kind<QLineEdit>(Fenster, Feld);
  feld.setFocus();
  QTest::qWait(0);  // the focus selects the old text, which typing replaces
  QTest::keyClicks(&feld, Text);
}

void Kleiner_Bildschirm(const std::function<QWidget &()> &Oeffnen, const QString &Name) {
  const QFont vorher = QApplication::font();
  QFont gross = vorher;
  gross.setPointSize(12);
  QApplication::setFont(gross);
  QWidget &fenster = Oeffnen();
  const QSize platz(853, 500);  // without the title bar
  fenster.resize(platz);
  QCoreApplication::processEvents();
  EXPECT_EQ(fenster.size(), platz) << "its least size is larger";
  Bild_machen(fenster, Name + QStringLiteral("_klein"));
  QApplication::setFont(vorher);
}

Hilfe_Skript::Hilfe_Skript() {
  Thema = 0;
  Hilfe_setzen([](int Neu) { Thema = Neu; });
}

Hilfe_Skript::~Hilfe_Skript() { Hilfe_setzen(nullptr); }

}  // namespace marklink::test
