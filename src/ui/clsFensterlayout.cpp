// Size and splitters of a window.
#include "clsFensterlayout.h"

#include <QScreen>
#include <QSplitter>
#include <QWidget>

#include "host/Ini.h"
#include "host/Kontext.h"

namespace marklink {

namespace {

constexpr int HOECHSTENS = 100'000;  ///< pixels; no screen is larger
const QString Abschnitt = QStringLiteral("Layout");

QString Zahlenliste(const QList<int> &Zahlen) {
  QStringList texte;
  for (const int zahl : Zahlen) texte << QString::number(zahl);
  return texte.join(u',');
}

/// Empty when one of them is no number from 0 to HOECHSTENS.
QList<int> Zahlen_lesen(const QString &Text) {
  QList<int> zahlen;
  for (const QString &feld : Text.split(u',')) {
    bool gelesen = false;
    const int zahl = feld.toInt(&gelesen);
    if (!gelesen || zahl < 0 || zahl > HOECHSTENS) return {};
    zahlen << zahl;
  }
  return zahlen;
}

}  // namespace

void Fensterlayout_laden(QWidget &Fenster, const QString &Schluessel, const QList<QSplitter *> &Teiler) {
  const QStringList teile = Ini_lesen_lang(Kontext.gLayoutDatei, Abschnitt, Schluessel).split(u'|');
  if (const QList<int> masse = Zahlen_lesen(teile[0]); masse.size() == 3 && masse[0] > 0 && masse[1] > 0) {
    Fenster.resize(QSize(masse[0], masse[1]).boundedTo(Fenster.screen()->availableSize()));
    Fenster.setWindowState(masse[2] != 0 ? Qt::WindowMaximized : Qt::WindowNoState);
  }
  for (qsizetype i = 0; i < Teiler.size() && i + 1 < teile.size(); ++i) {
    const QList<int> groessen = Zahlen_lesen(teile[i + 1]);
    if (groessen.size() == Teiler[i]->count() && groessen.count(0) < groessen.size())
      Teiler[i]->setSizes(groessen);
  }
}

void Fensterlayout_speichern(const QWidget &Fenster, const QString &Schluessel,
                             const QList<QSplitter *> &Teiler) {
  const QSize groesse = Fenster.isMaximized() && Fenster.normalGeometry().isValid()
                            ? Fenster.normalGeometry().size()
                            : Fenster.size();
  QStringList teile{Zahlenliste({groesse.width(), groesse.height(), int{Fenster.isMaximized()}})};
  for (const QSplitter *teiler : Teiler) teile << Zahlenliste(teiler->sizes());
  Ini_schreiben(Kontext.gLayoutDatei, Abschnitt, Schluessel, teile.join(u'|'));
}

}  // namespace marklink
