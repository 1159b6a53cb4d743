// Export as a document for a word processor.
#include <QIODevice>
#include <algorithm>
#include <cmath>

#include "Berichtsausgabe.h"
#include "Berichtstabelle.h"

namespace marklink {
namespace {

using Zeilenart = Tabellenzeile::Art;

constexpr int Rand = 720;

/// The pages' paper in twips, landscape: the table's columns are too many for upright paper.
struct Papier {
  int Breite, Hoehe;
};

Papier Papier_legen(const Seitenmasse &M) {
  const auto twips = [](double laenge) { return std::clamp(int(std::lround(mm(laenge))), 4 * Rand, 31680); };
  return {twips(std::max(M.Breite, M.Hoehe)), twips(std::min(M.Breite, M.Hoehe))};
}

/// Whatever the character: the document itself is ASCII.
QByteArray Rtf_Text(const QString &Text) {
  QByteArray rtf;
  QString text = Text_saeubern(Text);
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  for (const QChar zeichen : text) {
    const ushort nummer = zeichen.unicode();
    if (zeichen == u'\n' || zeichen == u'\r' || zeichen == QChar::LineSeparator)
      rtf += "\\line ";
    else if (zeichen == u'\\' || zeichen == u'{' || zeichen == u'}')
      rtf += '\\' + QByteArray(1, char(nummer));
    else if (nummer >= 0x20 && nummer < 0x7F)
      rtf += char(nummer);
    else if (nummer >= 0xA0 || zeichen == u'\t')
      rtf += zeichen == u'\t' ? QByteArray(" ") : "\\u" + QByteArray::number(qint16(nummer)) + '?';
  }
  return rtf;
}

struct Ort {
  int Spalten;
  std::vector<int> Enden;  ///< right ends of the columns
};

Ort Spalten_verteilen(const Bericht &B, int Breite) {
  Ort ort{0, {}};
  double alle = 0, bisher = 0;
  for (const int feld : Tabellenspalten(B)) alle += B.Felder[std::size_t(feld)].Anteil;
  for (const int feld : Tabellenspalten(B)) {
    bisher += B.Felder[std::size_t(feld)].Anteil;
    ort.Enden.push_back(int(Breite * bisher / alle));
  }
  ort.Spalten = int(ort.Enden.size());
  return ort;
}

QByteArray Rahmen(Zeilenart Was) {
  const QByteArray oben = "\\clbrdrt\\brdrs\\brdrw10", unten = "\\clbrdrb\\brdrs\\brdrw10";
  if (Was == Zeilenart::Kopf || Was == Zeilenart::Gesamtsumme) return oben + unten;
  return Was == Zeilenart::Zwischensumme ? oben : QByteArray();
}

/// Every row has all its columns, so that the table stays whole: a wide cell and those behind the last are
/// merged.
QByteArray Tabellenreihe(const Tabellenzeile &Zeile, const Ort &O) {
  std::vector<Tabellenzelle> zellen = Zeile.Zellen;
  const int belegt = zellen.empty() ? 0 : zellen.back().Spalte + zellen.back().Breite;
  if (belegt < O.Spalten) zellen.push_back({belegt, O.Spalten - belegt});
  QByteArray form = "\\trowd\\trgaph60\\trkeep", inhalt;
  if (Zeile.Was == Zeilenart::Kopf) form += "\\trhdr";
  for (const Tabellenzelle &zelle : zellen) {
    form += Rahmen(Zeile.Was);
    if (Zeile.Was == Zeilenart::Detail) form += (Zeile.Zaehler & 1) == 0 ? "\\clcbpat2" : "\\clcbpat3";
    form += "\\cellx" + QByteArray::number(O.Enden[std::size_t(zelle.Spalte + zelle.Breite - 1)]);
    inhalt += "\\pard\\intbl\\sa30";
    inhalt += Zeile.Was == Zeilenart::Gruppe ? "\\keepn\\sb160" : "\\sb30";
    inhalt += zelle.Rechts ? "\\qr" : "\\ql";
    inhalt += Zeile.Was == Zeilenart::Detail ? "\\b0 " : "\\b ";
    inhalt += Rtf_Text(zelle.Text) + "\\cell\n";
  }
  return form + '\n' + inhalt + "\\row\n";
}

QByteArray Zeile_bilden(const Tabellenzeile &Zeile, const Ort &O) {
  const QByteArray text = Zeile.Zellen.empty() ? QByteArray() : Rtf_Text(Zeile.Zellen.front().Text);
  if (Zeile.Was == Zeilenart::Titel) return "\\pard\\b\\fs32 " + text + "\\b0\\fs16\\par\n";
  if (Zeile.Was == Zeilenart::Untertitel || Zeile.Was == Zeilenart::Fuss)
    return "\\pard\\sb60\\sa120\\b0 " + text + "\\par\n";
  return Tabellenreihe(Zeile, O);
}

QByteArray Farbe(QRgb Wert) {
  return "\\red" + QByteArray::number(qRed(Wert)) + "\\green" + QByteArray::number(qGreen(Wert)) + "\\blue" +
         QByteArray::number(qBlue(Wert)) + ';';
}

QByteArray Kopf(const Bericht &B, const Papier &P) {
  return "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl{\\f0\\fswiss Arial;}}\n{\\colortbl;" +
         Farbe(qRgb(0, 0, 0)) + Farbe(Detail_Format(B, 0)) + Farbe(Detail_Format(B, 1)) +
         "}\n{\\info{\\title " + Rtf_Text(B.Dokumenttitel) + "}}\n\\landscape\\paperw" +
         QByteArray::number(P.Breite) + "\\paperh" + QByteArray::number(P.Hoehe) +
         "\\margl720\\margr720\\margt720\\margb720\n" +
         "{\\footer\\pard\\qc\\f0\\fs16{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}} von "
         "{\\field{\\*\\fldinst NUMPAGES}{\\fldrslt 1}}\\par}\n\\f0\\fs16\n";
}

}  // namespace

bool RTF_schreiben(const Seitensatz &Satz, QIODevice &Ziel) {
  bool gut = true;
  const auto schreiben = [&](const QByteArray &bytes) { gut = gut && Ziel.write(bytes) == bytes.size(); };
  const Papier papier = Papier_legen(Satz.Masse());
  const Ort ort = Spalten_verteilen(Satz.Was(), papier.Breite - 2 * Rand);
  schreiben(Kopf(Satz.Was(), papier));
  Tabelle_durchgehen(Satz, [&](const Tabellenzeile &zeile) { schreiben(Zeile_bilden(zeile, ort)); });
  schreiben("}\n");
  return gut;
}

}  // namespace marklink
