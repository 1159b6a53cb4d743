// Export as a workbook.
#include <QIODevice>

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

QString Zelle_bilden(const Tabellenzeile &Zeile, const Tabellenzelle &Zelle) {
  const QString wert = Maschinenform(Zelle);
  const char *art = wert.isEmpty() ? "String" : Zelle.Was == Berichtsfeld::Art::Zahl ? "Number" : "DateTime";
  QString text = wert.isEmpty() ? Xml_Text(QString(Zelle.Text).replace(u"\r\n"_qs, u"\n"_qs)) : wert;
  text.replace(u'\n', QStringLiteral("&#10;")).replace(u'\r', QStringLiteral("&#10;"));
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
  for (const Tabellenzeile &zeile : Tabellenzeilen(Satz, 0)) {
    ++kopfzeile;
    if (zeile.Was == Zeilenart::Kopf) break;
  }
  const QString titel = Xml_Text(bericht.Dokumenttitel);
  const QString nummer = QString::number(kopfzeile);
  schreiben(QString::fromUtf8(Kopf).arg(titel, Detailformen(bericht), titel.right(31), nummer));
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
