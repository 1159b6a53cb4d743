// Export as text.
#include <QIODevice>

#include "Berichtsausgabe.h"
#include "Berichtstabelle.h"
#include "host/Zeichensatz.h"

namespace marklink {
namespace {

/// Of the export's two delimiters the first parts fields, as German spreadsheets expect it, the second pages.
constexpr QChar Feldtrenner = u';', Seitentrenner = u',';

QString Feld(const QString &Text) {
  QString feld = Text;
  feld.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (QChar &zeichen : feld)
    if (zeichen.category() == QChar::Other_Control || zeichen == QChar::LineSeparator ||
        zeichen == QChar::ParagraphSeparator)
      zeichen = u' ';
  if (!feld.contains(Feldtrenner) && !feld.contains(u'"') && feld != Seitentrenner) return feld;
  return u'"' + feld.replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"';
}

QString Textzeile(const Tabellenzeile &Zeile, int Spalten) {
  QStringList felder(Spalten);
  for (const Tabellenzelle &zelle : Zeile.Zellen)
    if (zelle.Spalte < Spalten) felder[zelle.Spalte] = Feld(zelle.Text);
  // Titles and page numbers are a text, no row of fields.
  return Zeile.Zellen.size() == 1 ? felder[0] : felder.join(Feldtrenner);
}

}  // namespace

bool TXT_schreiben(const Seitensatz &Satz, QIODevice &Ziel) {
  const int spalten = int(Tabellenspalten(Satz.Was()).size());
  bool gut = true;
  const auto schreiben = [&](const QString &text) {
    const QByteArray bytes = Nach_1252(text + QStringLiteral("\r\n"));
    gut = gut && Ziel.write(bytes) == bytes.size();
  };
  for (int seite = 0; seite < Satz.Seiten() && gut; ++seite) {
    if (seite > 0) schreiben(Seitentrenner);
    for (const Tabellenzeile &zeile : Tabellenzeilen(Satz, seite)) schreiben(Textzeile(zeile, spalten));
  }
  return gut;
}

}  // namespace marklink
