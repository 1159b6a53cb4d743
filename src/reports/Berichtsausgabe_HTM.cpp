// Export as a page for the browser.
#include <QIODevice>
#include <QUrl>

#include "Berichtsausgabe.h"
#include "Berichtstabelle.h"

namespace marklink {
namespace {

using Zeilenart = Tabellenzeile::Art;

constexpr const char Kopf[] = R"(<!DOCTYPE html>
<html lang="de">
<head>
<meta charset="utf-8">
<title>%1</title>
<style>
body { font: 10pt "Liberation Sans", Arial, sans-serif; color: #000; background: #fff; margin: 2em; }
table { border-collapse: collapse; width: 100%; }
th, td { padding: .25em .5em; text-align: left; vertical-align: top; overflow-wrap: anywhere; }
thead th { border-top: 1px solid #000; border-bottom: 1px solid #000; }
thead { display: table-header-group; }
tr { break-inside: avoid; }
.zahl { text-align: right; white-space: nowrap; }
.text { white-space: pre-line; }
.gerade { background: %2; }
.ungerade { background: %3; }
.gruppe th { padding-top: 1em; }
.summe td { border-top: 1px solid #999; font-weight: bold; }
.gesamt td { border: 1px solid #000; border-width: 1px 0; font-weight: bold; }
@media print { body { margin: 0; } .gerade, .ungerade { print-color-adjust: exact; -webkit-print-color-adjust: exact; } }
</style>
</head>
<body>
)";

QString Zelle_bilden(const Tabellenzelle &Zelle, const char *Marke, const char *Klasse) {
  QString text = Xml_Text(Zelle.Text);
  if (Zelle.Verweis && Zelle.Text.contains(u'@'))
    text = QStringLiteral("<a href=\"mailto:%1\">%2</a>")
               .arg(QString::fromLatin1(QUrl::toPercentEncoding(Zelle.Text.trimmed(), "@")), text);
  const QString breite = Zelle.Breite > 1 ? QStringLiteral(" colspan=\"%1\"").arg(Zelle.Breite) : QString();
  return QStringLiteral("<%1%2 class=\"%3\">%4</%1>")
      .arg(QLatin1String(Marke), breite, QLatin1String(Zelle.Rechts ? "zahl" : Klasse), text);
}

QString Zellen_bilden(const Tabellenzeile &Zeile, int Spalten) {
  const bool kopf = Zeile.Was == Zeilenart::Kopf || Zeile.Was == Zeilenart::Gruppe;
  QString zellen;
  int naechste = 0;
  for (const Tabellenzelle &zelle : Zeile.Zellen) {
    zellen += Zelle_bilden(zelle, kopf ? "th" : "td", "text");
    naechste = zelle.Spalte + zelle.Breite;
  }
  if (naechste < Spalten) zellen += QStringLiteral("<td colspan=\"%1\"></td>").arg(Spalten - naechste);
  return zellen;
}

QString Klasse(const Tabellenzeile &Zeile) {
  switch (Zeile.Was) {
    case Zeilenart::Gruppe:
      return QStringLiteral("gruppe");
    case Zeilenart::Zwischensumme:
      return QStringLiteral("summe");
    case Zeilenart::Gesamtsumme:
      return QStringLiteral("gesamt");
    case Zeilenart::Detail:
      return (Zeile.Zaehler & 1) == 0 ? QStringLiteral("gerade") : QStringLiteral("ungerade");
    default:
      return {};
  }
}

/// Title and period stand over the table, the date below it.
QString Zeile_bilden(const Tabellenzeile &Zeile, int Spalten, bool &In_Tabelle) {
  const QString text = Zeile.Zellen.empty() ? QString() : Xml_Text(Zeile.Zellen.front().Text);
  switch (Zeile.Was) {
    case Zeilenart::Titel:
      return QStringLiteral("<h1>%1</h1>\n").arg(text);
    case Zeilenart::Untertitel:
    case Zeilenart::Fuss: {
      const bool danach = std::exchange(In_Tabelle, false);
      return QStringLiteral("%1<p>%2</p>\n").arg(danach ? u"</tbody>\n</table>\n"_qs : QString(), text);
    }
    case Zeilenart::Kopf:
      In_Tabelle = true;
      return QStringLiteral("<table>\n<thead>\n<tr>%1</tr>\n</thead>\n<tbody>\n")
          .arg(Zellen_bilden(Zeile, Spalten));
    default:
      return QStringLiteral("<tr class=\"%1\">%2</tr>\n").arg(Klasse(Zeile), Zellen_bilden(Zeile, Spalten));
  }
}

}  // namespace

bool HTM_schreiben(const Seitensatz &Satz, QIODevice &Ziel) {
  const Bericht &bericht = Satz.Was();
  bool gut = true;
  const auto schreiben = [&](const QString &text) {
    const QByteArray bytes = text.toUtf8();
    gut = gut && Ziel.write(bytes) == bytes.size();
  };
  const auto farbe = [&](int zaehler) { return QColor::fromRgb(Detail_Format(bericht, zaehler)).name(); };
  schreiben(QString::fromUtf8(Kopf).arg(Xml_Text(bericht.Dokumenttitel), farbe(0), farbe(1)));
  const int spalten = int(Tabellenspalten(bericht).size());
  bool in_tabelle = false;
  Tabelle_durchgehen(
      Satz, [&](const Tabellenzeile &zeile) { schreiben(Zeile_bilden(zeile, spalten, in_tabelle)); });
  if (in_tabelle) schreiben(QStringLiteral("</tbody>\n</table>\n"));
  schreiben(QStringLiteral("</body>\n</html>\n"));
  return gut;
}

}  // namespace marklink
