// Windows under test.
#include "Fenster_Test.h"

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QTimer>
#include <deque>

#include "ui/Fortschritt.h"

namespace marklink::test {

namespace {

constexpr int Blick_ms = 5;
constexpr int Geduld_ms = 10'000;

QPalette Dunkle_Palette() {
  QPalette p(QColor(53, 53, 53));
  p.setColor(QPalette::Window, QColor(45, 45, 48));
  p.setColor(QPalette::WindowText, Qt::white);
  p.setColor(QPalette::Base, QColor(30, 30, 30));
  p.setColor(QPalette::AlternateBase, QColor(42, 42, 42));
  p.setColor(QPalette::Text, Qt::white);
  p.setColor(QPalette::Button, QColor(60, 60, 62));
  p.setColor(QPalette::ButtonText, Qt::white);
  p.setColor(QPalette::ToolTipBase, QColor(60, 60, 62));
  p.setColor(QPalette::ToolTipText, Qt::white);
  p.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
  p.setColor(QPalette::Highlight, QColor(42, 130, 218));
  p.setColor(QPalette::HighlightedText, Qt::white);
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
    const QString datei = QStringLiteral("%1/%2_%3.png")
                              .arg(ordner, Name, dunkel ? QStringLiteral("dunkel") : QStringLiteral("hell"));
    EXPECT_TRUE(Fenster.grab().save(datei)) << datei.toStdString();
  }
}

}  // namespace marklink::test
