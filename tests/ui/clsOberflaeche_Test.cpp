// The ports of a host that brings windows of its own.
#include "ui/clsOberflaeche.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QFocusEvent>
#include <QLineEdit>

#include "support/Dialoge_Skript.h"

namespace marklink {
namespace {

TEST(clsOberflaeche_Test, laesst_dem_Host_was_ihm_gehoert) {
  const QLocale sprache;
  Oberflaeche_abbauen();  // the test program's
  QLocale::setDefault(QLocale(QLocale::French));
  {
    const test::Fortschritt_Skript vorher;
    Oberflaeche_einrichten();
    EXPECT_EQ(&fortschritt(), &vorher);
    EXPECT_TRUE(Dialoge_gesetzt());
    EXPECT_EQ(QLocale().language(), QLocale::German);
    const test::Dialoge_Skript inzwischen;
    Oberflaeche_abbauen();
    EXPECT_EQ(&fortschritt(), &vorher);
    EXPECT_EQ(&dialoge(), &inzwischen);
    EXPECT_EQ(QLocale().language(), QLocale::French);
  }
  Oberflaeche_einrichten();
  Oberflaeche_abbauen();
  EXPECT_FALSE(Dialoge_gesetzt() || Fortschritt_gesetzt()) << "its own go";
  QLocale::setDefault(sprache);
  Oberflaeche_einrichten();
}

TEST(clsOberflaeche_Test, ein_Feld_ist_beim_Betreten_markiert_und_bleibt_es_wie_verlassen) {
  QDialog fenster;
  QLineEdit feld(u"alt"_qs, &fenster);
  Text_markieren(&fenster);
  const auto fokus = [&feld](QEvent::Type Art, Qt::FocusReason Grund) {
    QFocusEvent ereignis(Art, Grund);
    QCoreApplication::sendEvent(&feld, &ereignis);
    QCoreApplication::processEvents();
    return feld.selectedText();
  };
  // A window that opens gives its first field the focus in this way too.
  EXPECT_EQ(fokus(QEvent::FocusIn, Qt::ActiveWindowFocusReason), feld.text());
  feld.deselect();
  for (const Qt::FocusReason grund : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
    fokus(QEvent::FocusOut, grund);
    EXPECT_EQ(fokus(QEvent::FocusIn, grund), QString()) << grund;
  }
  fokus(QEvent::FocusOut, Qt::TabFocusReason);
  EXPECT_EQ(fokus(QEvent::FocusIn, Qt::TabFocusReason), feld.text());
}

}  // namespace
}  // namespace marklink
