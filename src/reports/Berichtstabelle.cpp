// From the bands of a page to the lines of a table.
#include "Berichtstabelle.h"

#include <algorithm>

#include "host/Datumsbilder.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

using Art = Berichtselement::Art;
using Zeilenart = Tabellenzeile::Art;

bool Ist_Text(Art Was) { return Was != Art::Linie && Was != Art::Rahmen && Was != Art::Bild; }

int Spalte_zu_Feld(const Bericht &B, const QString &Feld) {
  const std::vector<int> spalten = Tabellenspalten(B);
  const auto ort = std::find(spalten.begin(), spalten.end(), B.Feld_finden(Feld));
  return ort == spalten.end() ? -1 : int(ort - spalten.begin());
}

Tabellenzeile Kopfzeile(const Bericht &B) {
  Tabellenzeile zeile{Zeilenart::Kopf, {}};
  for (const int feld : Tabellenspalten(B)) {
    const Berichtsfeld &was = B.Felder[std::size_t(feld)];
    zeile.Zellen.push_back({int(zeile.Zellen.size()), 1, was.Spaltentitel, Berichtsfeld::Art::Text,
                            was.Was == Berichtsfeld::Art::Zahl});
  }
  return zeile;
}

Tabellenzeile Detailzeile(const Seitensatz &Satz, const Seitensatz::Stueck &S) {
  Tabellenzeile zeile{Zeilenart::Detail, {}, S.Zeile};
  const Bericht &bericht = Satz.Was();
  for (const int feld : Tabellenspalten(bericht)) {
    const Berichtsfeld &was = bericht.Felder[std::size_t(feld)];
    Tabellenzelle zelle{int(zeile.Zellen.size())};
    zelle.Was = was.Was;
    zelle.Rechts = was.Was == Berichtsfeld::Art::Zahl;
    for (const Berichtselement &element : bericht[Bandart::Detail].Elemente) {
      if (element.Was != Art::Feld || element.Inhalt != was.Name) continue;
      zelle.Text = Satz.Text(element, S);
      zelle.Verweis = element.Verweis;
    }
    zeile.Zellen.push_back(zelle);
  }
  return zeile;
}

/// The elements of a band that stand side by side, line by line.
std::vector<std::vector<const Berichtselement *>> Elementzeilen(const Band &B) {
  std::vector<std::vector<const Berichtselement *>> zeilen;
  for (const Berichtselement &element : B.Elemente) {
    if (!Ist_Text(element.Was)) continue;
    const double mitte = element.Ort.center().y();
    const auto dabei = std::find_if(zeilen.begin(), zeilen.end(), [&](const auto &zeile) {
      return mitte > zeile.front()->Ort.top() && mitte < zeile.front()->Ort.bottom();
    });
    if (dabei == zeilen.end())
      zeilen.push_back({&element});
    else
      dabei->push_back(&element);
  }
  return zeilen;
}

/// A line outside of the details: sums in the columns of their fields, all else in one cell before them.
Tabellenzeile Sammelzeile(const Seitensatz &Satz, const Seitensatz::Stueck &S, Zeilenart Was,
                          const std::vector<const Berichtselement *> &Elemente) {
  Tabellenzeile zeile{Was, {}};
  QStringList worte;
  const int breite = int(Tabellenspalten(Satz.Was()).size());
  int erste = breite;
  for (const Berichtselement *element : Elemente) {
    const bool summe = element->Was == Art::Gruppensumme || element->Was == Art::Gesamtsumme;
    const int spalte = summe ? Spalte_zu_Feld(Satz.Was(), element->Inhalt) : -1;
    if (spalte < 0) {
      worte << Satz.Text(*element, S);
      continue;
    }
    zeile.Zellen.push_back({spalte, 1, Satz.Text(*element, S), Berichtsfeld::Art::Zahl, true});
    erste = std::min(erste, spalte);
  }
  if (erste > 0) zeile.Zellen.insert(zeile.Zellen.begin(), {0, erste, worte.join(u' ')});
  return zeile;
}

Zeilenart Zeilenart_zum_Band(Bandart Welches, std::size_t Nummer) {
  switch (Welches) {
    case Bandart::Berichtskopf:
      return Nummer == 0 ? Zeilenart::Titel : Zeilenart::Untertitel;
    case Bandart::Gruppenkopf:
      return Zeilenart::Gruppe;
    case Bandart::Gruppenfuss:
      return Zeilenart::Zwischensumme;
    case Bandart::Berichtsfuss:
      return Nummer == 0 ? Zeilenart::Gesamtsumme : Zeilenart::Untertitel;
    default:
      return Zeilenart::Fuss;
  }
}

}  // namespace

std::vector<int> Tabellenspalten(const Bericht &B) {
  std::vector<int> spalten;
  for (std::size_t i = 0; i < B.Felder.size(); ++i)
    if (!B.Felder[i].Spaltentitel.isEmpty()) spalten.push_back(int(i));
  return spalten;
}

std::vector<Tabellenzeile> Tabellenzeilen(const Seitensatz &Satz, int Seite) {
  std::vector<Tabellenzeile> zeilen;
  Satz.Durchgehen(Seite, [&](const Seitensatz::Stueck &s) {
    if (s.Von > 0) return;
    if (s.Art == Bandart::Seitenkopf) {
      zeilen.push_back(Kopfzeile(Satz.Was()));
    } else if (s.Art == Bandart::Detail) {
      zeilen.push_back(Detailzeile(Satz, s));
    } else {
      std::size_t nummer = 0;
      for (const auto &elemente : Elementzeilen(Satz.Was()[s.Art]))
        zeilen.push_back(Sammelzeile(Satz, s, Zeilenart_zum_Band(s.Art, nummer++), elemente));
    }
  });
  return zeilen;
}

void Tabelle_durchgehen(const Seitensatz &Satz, const std::function<void(const Tabellenzeile &)> &Tun) {
  for (int seite = 0; seite < Satz.Seiten(); ++seite)
    for (const Tabellenzeile &zeile : Tabellenzeilen(Satz, seite))
      if (zeile.Was != Zeilenart::Fuss && (seite == 0 || zeile.Was != Zeilenart::Kopf)) Tun(zeile);
}

QString Maschinenform(const Tabellenzelle &Zelle) {
  if (Zelle.Was == Berichtsfeld::Art::Zahl) {
    const auto zahl = Zahl_deutsch(Zelle.Text);
    return zahl ? QString::number(*zahl, 'g', 15) : QString();
  }
  if (Zelle.Was == Berichtsfeld::Art::Datum) {
    const QDateTime tag = Datum_lesen(Zelle.Text);
    // Spreadsheets count the days before that one differently, or not at all.
    static const QDate erster(1900, 3, 1);
    return tag.isValid() && tag.date() >= erster ? tag.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"))
                                                 : QString();
  }
  return {};
}

QString Text_saeubern(const QString &Text) {
  QString rein;
  rein.reserve(Text.size());
  for (qsizetype i = 0; i < Text.size(); ++i) {
    char32_t zeichen = Text[i].unicode();
    if (Text[i].isHighSurrogate() && i + 1 < Text.size() && Text[i + 1].isLowSurrogate()) {
      zeichen = QChar::surrogateToUcs4(Text[i], Text[i + 1]);
      ++i;
    }
    const bool weiss = zeichen == u'\t' || zeichen == u'\n' || zeichen == u'\r';
    const bool steuernd = QChar::category(zeichen) == QChar::Other_Control;
    if ((weiss || !steuernd) && !QChar::isSurrogate(zeichen) && !QChar::isNonCharacter(zeichen))
      rein += QChar::fromUcs4(zeichen);
  }
  return rein;
}

QString Xml_Text(const QString &Text) { return Text_saeubern(Text).toHtmlEscaped(); }

}  // namespace marklink
