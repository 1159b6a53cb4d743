// Windows under test: one QApplication for the program (made by Fenster_main.cpp, offscreen), children by
// their object names, modal windows answered while they block, pictures of what was shown.
#pragma once

#include <gtest/gtest.h>

#include <QComboBox>
#include <QTest>
#include <QWidget>
#include <functional>

#include "Datenbank_Test.h"

namespace marklink::test {

/// The child of that object name and type; fails the test and gives a stray one when there is none, so that
/// the test goes on to its end.
template <typename W>
W &Kind(QWidget &Fenster, const char16_t *Name) {
  W *kind = Fenster.findChild<W *>(QString::fromUtf16(Name));
  if (kind != nullptr) return *kind;
  ADD_FAILURE() << "no child " << QString::fromUtf16(Name).toStdString() << " of that type in "
                << Fenster.objectName().toStdString();
  static W *ersatz = new W;
  return *ersatz;
}

/// Runs when a modal window (message boxes too) has come up and is shown; then the window is closed if the
/// step left it open. To be called before what opens the window. Steps are for one window each, in the order
/// in which the windows come. A window that nobody announced, or that does not come within ten seconds, fails
/// the test; nothing blocks.
class Modale_Schritte {
 public:
  using Schritt = std::function<void(QWidget &)>;
  Modale_Schritte();
  ~Modale_Schritte();  ///< fails the test when a step's window never came
  Modale_Schritte(const Modale_Schritte &) = delete;
  Modale_Schritte &operator=(const Modale_Schritte &) = delete;
  void Dann(Schritt Tun);

 private:
  struct Innenleben;
  std::unique_ptr<Innenleben> d;
};

/// A light or a dark desktop for all windows from now on.
void Palette_setzen(bool Dunkel);

/// Saves <Name>_hell.png and <Name>_dunkel.png into the folder that MARKLINK_BILDER names; nothing without
/// it. The window is shown, and left in the light palette.
void Bild_machen(QWidget &Fenster, const QString &Name);

/// Shows the window and waits until it is painted and active: only then do keys go where the focus is.
void Zeigen(QWidget &Fenster);

/// A click on the child of that name.
void Klick(QWidget &Fenster, const char16_t *Name);

/// Types as one does who comes into a text field: what stood there is replaced.
void Tippen(QWidget &Fenster, const char16_t *Feld, const QString &Text);

/// With letters of 12 points for the whole program the window that is opened must fit on a screen of 1280x800
/// at 150 %. Saves its picture "<Name>_klein".
void Kleiner_Bildschirm(const std::function<QWidget &()> &Oeffnen, const QString &Name);

/// While it lives help is not shown; the topic that was last asked for is kept.
struct Hilfe_Skript {
  Hilfe_Skript();
  ~Hilfe_Skript();
  static inline int Thema = 0;
};

/// Centre of an item view's cell, for QTest::mouseClick on its viewport.
template <typename Ansicht>
QPoint Mitte(const Ansicht &A, int Zeile, int Spalte) {
  return A.visualRect(A.model()->index(Zeile, Spalte)).center();
}

}  // namespace marklink::test
