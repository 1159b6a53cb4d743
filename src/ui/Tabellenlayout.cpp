// Reading and writing the layout of a grid.
#include "Tabellenlayout.h"

#include <QStringList>
#include <algorithm>
#include <numeric>

#include "db/Ablaufverfolgung.h"
#include "host/Ini.h"
#include "host/Kontext.h"

namespace marklink {

namespace {

const QString Abschnitt = QStringLiteral("Layout");
const QString Leere_Liste = QStringLiteral("-");

/// The fields of one record as numbers; false as soon as one is none.
bool Zahlen_lesen(const QString &Satz, std::vector<int> &Zahlen) {
  Zahlen.clear();
  for (const QString &feld : Satz.split(u',')) {
    bool gelesen = false;
    Zahlen.push_back(feld.trimmed().toInt(&gelesen));
    if (!gelesen) return false;
  }
  return true;
}

bool Kurzzahl(int Zahl) { return Zahl == int{qint16(Zahl)}; }

bool Spalte_anwenden(Tabellenlayout &Layout, const std::vector<int> &Felder) {
  if (Felder.size() < 5) return false;
  const int spalte = Felder[0] - 1;
  if (spalte < 0 || size_t(spalte) >= Layout.Spalten.size() || !Kurzzahl(Felder[1]) || Felder[2] < 0)
    return false;
  Layout.Spalten[size_t(spalte)] = {Felder[1] - 1, std::min(Felder[2], Breite_hoechstens), Felder[3] != 0,
                                    QString::number(Felder[4])};
  return true;
}

void Liste_anwenden(const Tabellenlayout &Layout, std::vector<Tabellenlayout::Ordnung> &Liste,
                    const QString &Segment) {
  Liste.clear();
  if (Segment.isEmpty() || Segment == Leere_Liste) return;
  std::vector<int> felder;
  for (const QString &satz : Segment.split(u';')) {
    const bool brauchbar = Zahlen_lesen(satz, felder) && felder.size() >= 2 && felder[0] >= 1 &&
                           size_t(felder[0]) <= Layout.Spalten.size();
    if (brauchbar)
      Liste.push_back({felder[0] - 1, felder[1]});
    else
      Ablauf_melden(QStringLiteral("Layout"), QStringLiteral("list record passed over: ") + satz);
  }
}

QString Listensegment(const std::vector<Tabellenlayout::Ordnung> &Liste, bool Verlangt) {
  if (!Verlangt || Liste.empty()) return Leere_Liste;
  QStringList saetze;
  for (const auto &[spalte, reihenfolge] : Liste)
    saetze << QStringLiteral("%1,%2").arg(spalte + 1).arg(reihenfolge);
  return saetze.join(u';');
}

}  // namespace

Tabellenlayout Layout_neu(int Spalten) {
  Tabellenlayout layout;
  layout.Spalten.resize(size_t(std::max(Spalten, 0)));
  for (int i = 0; i < Spalten; ++i) layout.Spalten[size_t(i)].Position = i;
  return layout;
}

void Layout_anwenden(Tabellenlayout &Layout, const QString &Zeile, bool Liste1, bool Liste2) {
  const QStringList segmente = Zeile.split(u'|');
  std::vector<int> felder;
  for (const QString &satz : segmente.value(0).split(u';', Qt::SkipEmptyParts)) {
    if (!Zahlen_lesen(satz, felder) || !Spalte_anwenden(Layout, felder))
      Ablauf_melden(QStringLiteral("Layout"), QStringLiteral("column record passed over: ") + satz);
  }
  if (Liste1) Liste_anwenden(Layout, Layout.Liste1, segmente.value(1));
  if (Liste2) Liste_anwenden(Layout, Layout.Liste2, segmente.value(2));
}

QString Layout_Zeile(const Tabellenlayout &Layout, bool Liste1, bool Liste2) {
  QStringList saetze;
  for (size_t i = 0; i < Layout.Spalten.size(); ++i) {
    const Tabellenlayout::Spalte &spalte = Layout.Spalten[i];
    saetze << QStringLiteral("%1,%2,%3,%4,%5")
                  .arg(QString::number(i + 1), QString::number(spalte.Position + 1),
                       QString::number(spalte.Breite), QString::number(int{spalte.Sichtbar}), spalte.Typ);
  }
  return saetze.join(u';') + u'|' + Listensegment(Layout.Liste1, Liste1) + u'|' +
         Listensegment(Layout.Liste2, Liste2);
}

std::vector<int> Spaltenfolge(const Tabellenlayout &Layout) {
  std::vector<int> folge(Layout.Spalten.size());
  std::iota(folge.begin(), folge.end(), 0);
  std::stable_sort(folge.begin(), folge.end(), [&Layout](int A, int B) {
    return Layout.Spalten[size_t(A)].Position < Layout.Spalten[size_t(B)].Position;
  });
  return folge;
}

void Layout_laden(Tabellenlayout &Layout, const QString &Schluessel, bool Liste1, bool Liste2) {
  Layout = Layout_neu(int(Layout.Spalten.size()));
  const QString zeile = Ini_lesen_lang(Kontext.gLayoutDatei, Abschnitt, Schluessel);
  if (!zeile.isEmpty()) Layout_anwenden(Layout, zeile, Liste1, Liste2);
}

void Layout_speichern(const Tabellenlayout &Layout, const QString &Schluessel, bool Liste1, bool Liste2) {
  if (Schluessel.trimmed().isEmpty()) return;
  Ini_schreiben(Kontext.gLayoutDatei, Abschnitt, Schluessel, Layout_Zeile(Layout, Liste1, Liste2));
}

}  // namespace marklink
