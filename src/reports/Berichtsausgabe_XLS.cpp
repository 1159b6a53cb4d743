// Export as a workbook.
#include <QIODevice>
#include <QRegularExpression>

#include "Berichtsausgabe.h"
#include "Berichtstabelle.h"

namespace marklink {
namespace {

using Zeilenart = Tabellenzeile::Art;

// The one style with a border stands last: some readers let it run on into those behind it.
constexpr const char Kopf[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<?mso-application progid="Excel.Sheet"?>
<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet" xmlns:o="urn:schemas-microsoft-com:office:office" xmlns:x="urn:schemas-microsoft-com:office:excel" xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet">
<DocumentProperties xmlns="urn:schemas-microsoft-com:office:office"><Title>%1</Title></DocumentProperties>
<Styles>
<Style ss:ID="Default" ss:Name="Normal"><Alignment ss:Vertical="Top" ss:WrapText="1"/><Font ss:FontName="Arial" ss:Size="10"/></Style>
<Style ss:ID="Titel"><Alignment ss:WrapText="0"/><Font ss:FontName="Arial" ss:Size="14" ss:Bold="1"/></Style>
<Style ss:ID="Untertitel"><Alignment ss:WrapText="0"/></Style>
<Style ss:ID="Fett"><Alignment ss:Vertical="Top"/><Font ss:FontName="Arial" ss:Size="10" ss:Bold="1"/></Style>
<Style ss:ID="FettZahl"><Alignment ss:Vertical="Top"/><Font ss:FontName="Arial" ss:Size="10" ss:Bold="1"/><NumberFormat ss:Format="#,##0.00"/></Style>
%2<Style ss:ID="Kopf"><Borders><Border ss:Position="Top" ss:LineStyle="Continuous" ss:Weight="1"/><Border ss:Position="Bottom" ss:LineStyle="Continuous" ss:Weight="1"/></Borders><Font ss:FontName="Arial" ss:Size="10" ss:Bold="1"/></Style>
<Style ss:ID="KopfZahl" ss:Parent="Kopf"><Alignment ss:Horizontal="Right" ss:Vertical="Top"/></Style>
</Styles>
<Worksheet ss:Name="%3">
<Names><NamedRange ss:Name="Print_Titles" ss:RefersTo="='%3'!R%4"/></Names>
<Table>
)";

constexpr const char Fuss[] = R"(</Table>
<WorksheetOptions xmlns="urn:schemas-microsoft-com:office:excel"><PageSetup><Layout x:Orientation="Landscape"/><Footer x:Data="&amp;C&amp;P von &amp;N"/></PageSetup><FitToPage/><Print><FitHeight>0</FitHeight><ValidPrinterInfo/><PaperSizeIndex>9</PaperSizeIndex></Print><FreezePanes/><FrozenNoSplit/><SplitHorizontal>%1</SplitHorizontal><TopRowBottomPane>%1</TopRowBottomPane><ActivePane>2</ActivePane></WorksheetOptions>
</Worksheet>
</Workbook>
)";

/// Even and odd rows, each as text, number and date.
QString Detailformen(const Bericht &B) {
  QString formen;
  for (int zaehler = 0; zaehler < 2; ++zaehler) {
    const QString farbe = QColor::fromRgb(Detail_Format(B, zaehler)).name().toUpper();
    const struct {
      const char *Art, *Lage, *Bild;
    } arten[] = {{"Text", "Left", "@"}, {"Zahl", "Right", "#,##0.00"}, {"Datum", "Left", "dd\\.mm\\.yyyy"}};
    for (const auto &art : arten)
      formen +=
          QStringLiteral(
              "<Style ss:ID=\"%1%2\"><Alignment ss:Horizontal=\"%3\" ss:Vertical=\"Top\" ss:WrapText=\"1\"/>"
              "<Interior ss:Color=\"%4\" ss:Pattern=\"Solid\"/><NumberFormat ss:Format=\"%5\"/></Style>\n")
              .arg(QLatin1String(art.Art), QString::number(zaehler), QLatin1String(art.Lage), farbe,
                   QLatin1String(art.Bild));
  }
  return formen;
}

QString Form(const Tabellenzeile &Zeile, const Tabellenzelle &Zelle) {
  switch (Zeile.Was) {
    case Zeilenart::Titel:
      return QStringLiteral("Titel");
    case Zeilenart::Untertitel:
    case Zeilenart::Fuss:
      return QStringLiteral("Untertitel");
    case Zeilenart::Kopf:
      return Zelle.Rechts ? QStringLiteral("KopfZahl") : QStringLiteral("Kopf");
    case Zeilenart::Detail:
      break;
    default:
      return Zelle.Rechts ? QStringLiteral("FettZahl") : QStringLiteral("Fett");
  }
  const char *art = Zelle.Was == Berichtsfeld::Art::Zahl    ? "Zahl"
                    : Zelle.Was == Berichtsfeld::Art::Datum ? "Datum"
                                                            : "Text";
  return QLatin1String(art) + QString::number(Zeile.Zaehler & 1);
}

/// A text of several lines as one cell has it. Some readers drop the breaks, so something stands before each.
QString Zelltext(QString Text) {
  constexpr qsizetype hoechstens = 32767;  // more, and the whole workbook does not open
  Text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  QString text;
  while (!Text.isEmpty() && Text.back().isSpace()) Text.chop(1);
  for (const QString &zeile : Text.split(u'\n')) {
    if (!text.isEmpty() && text.back() != u'\n')
      text += text.back().isPunct() ? QStringLiteral(" ") : QStringLiteral("; ");
    if (!text.isEmpty()) text += u'\n';
    text += zeile;
  }
  return Xml_Text(text.left(hoechstens)).replace(u'\n', QStringLiteral("&#10;"));
}

/// A sheet is named like the list, without what such a name may not hold.
QString Blattname(QString Titel) {
  constexpr qsizetype hoechstens = 31;
  static const QRegularExpression verboten(QStringLiteral("[\\\\/?*\\[\\]:'\\x00-\\x1F]"));
  Titel = Titel.replace(verboten, QStringLiteral("_")).left(hoechstens).trimmed();
  return Xml_Text(Titel.isEmpty() ? QStringLiteral("Tabelle1") : Titel);
}

QString Zelle_bilden(const Tabellenzeile &Zeile, const Tabellenzelle &Zelle) {
  const QString wert = Maschinenform(Zelle);
  const char *art = wert.isEmpty() ? "String" : Zelle.Was == Berichtsfeld::Art::Zahl ? "Number" : "DateTime";
  const QString text = wert.isEmpty() ? Zelltext(Zelle.Text) : wert;
  const bool verbunden = Zelle.Breite > 1 && Zeile.Was != Zeilenart::Detail;
  return QStringLiteral("<Cell ss:Index=\"%1\"%2 ss:StyleID=\"%3\"><Data ss:Type=\"%4\">%5</Data></Cell>")
      .arg(QString::number(Zelle.Spalte + 1),
           verbunden ? QStringLiteral(" ss:MergeAcross=\"%1\"").arg(Zelle.Breite - 1) : QString(),
           Form(Zeile, Zelle), QLatin1String(art), text);
}

}  // namespace

bool XLS_schreiben(const Seitensatz &Satz, QIODevice &Ziel) {
  const Bericht &bericht = Satz.Was();
  bool gut = true;
  const auto schreiben = [&](const QString &text) {
    const QByteArray bytes = text.toUtf8();
    gut = gut && Ziel.write(bytes) == bytes.size();
  };
  int kopfzeile = 0;
  QString blatt;
  for (const Tabellenzeile &zeile : Tabellenzeilen(Satz, 0)) {
    ++kopfzeile;
    if (zeile.Was == Zeilenart::Titel && !zeile.Zellen.empty()) blatt = zeile.Zellen.front().Text;
    if (zeile.Was == Zeilenart::Kopf) break;
  }
  const QString nummer = QString::number(kopfzeile);
  schreiben(QString::fromUtf8(Kopf).arg(Xml_Text(bericht.Dokumenttitel), Detailformen(bericht),
                                        Blattname(blatt), nummer));
  constexpr double Tabellenbreite = 960;  // points
  double anteile = 0;
  for (const int feld : Tabellenspalten(bericht)) anteile += bericht.Felder[std::size_t(feld)].Anteil;
  for (const int feld : Tabellenspalten(bericht))
    schreiben(QStringLiteral("<Column ss:AutoFitWidth=\"0\" ss:Width=\"%1\"/>\n")
                  .arg(Tabellenbreite * bericht.Felder[std::size_t(feld)].Anteil / anteile, 0, 'f', 1));
  Tabelle_durchgehen(Satz, [&](const Tabellenzeile &zeile) {
    QString text;
    for (const Tabellenzelle &zelle : zeile.Zellen) text += Zelle_bilden(zeile, zelle);
    schreiben(QStringLiteral("<Row ss:AutoFitHeight=\"1\">") + text + QStringLiteral("</Row>\n"));
  });
  schreiben(QString::fromUtf8(Fuss).arg(nummer));
  return gut;
}

}  // namespace marklink
