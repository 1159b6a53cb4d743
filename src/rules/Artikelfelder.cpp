// Single fields of articles and of their types.
#include "Artikelfelder.h"

#include <cmath>

#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Texte.h"
#include "host/Zahlen.h"

namespace marklink {
namespace {

enum class Lesart { Text, Kurzzahl, Gleitkomma, Ja_Nein, Keine };

struct Feldbeschreibung {
  const char *Spalte;
  Lesart Als;
};

/// By selector.
constexpr Feldbeschreibung FELDER[] = {
    {"Barcode", Lesart::Text},
    {"Unit", Lesart::Text},
    {"ArticleGroup_fullpath", Lesart::Text},
    {"ShortText", Lesart::Text},
    {"LayoutNumber", Lesart::Text},
    {"ArticleNumberVariant", Lesart::Text},
    {"UnloadingPolicy", Lesart::Kurzzahl},
    {"ProcurementType", Lesart::Kurzzahl},
    {"WeightNet", Lesart::Gleitkomma},
    {"WeightGross", Lesart::Gleitkomma},
    {"ShortTextPOS", Lesart::Text},
    {"Substitute", Lesart::Text},
    {"webshop", Lesart::Ja_Nein},
    {"SerialnumberAble", Lesart::Ja_Nein},
    {"ProductionCosts", Lesart::Gleitkomma},
    {"StockMin", Lesart::Gleitkomma},
    {"StockMax", Lesart::Gleitkomma},
    {"NetPrice", Lesart::Gleitkomma},
    {"GrossPrice", Lesart::Gleitkomma},
    {"Storage", Lesart::Text},
    {"Unsociable", Lesart::Keine},
    {"Disposable", Lesart::Keine},
    {"WebshopID", Lesart::Text},
    {"VatCode", Lesart::Text},
    {"PurchasePrice", Lesart::Gleitkomma},
    {"SpecialOfferPrice", Lesart::Ja_Nein},
};

const Feldbeschreibung *Beschreibung(int Feld) {
  return Feld >= 0 && Feld < int(std::size(FELDER)) ? &FELDER[Feld] : nullptr;
}

QVariant Kurzzahl_lesen(double Zahl) {
  const double ganz = std::nearbyint(Zahl);
  return ganz >= -32768 && ganz <= 32767 ? QVariant(int(ganz)) : QVariant();
}

std::optional<double> Als_Zahl(const QVariant &Wert) {
  if (Wert.typeId() == QMetaType::QString) return Zahl_deutsch(Wert.toString());
  bool gut = false;
  const double zahl = Wert.toDouble(&gut);
  return gut && std::isfinite(zahl) ? std::optional(zahl) : std::nullopt;
}

void Feld_setzen(db::Recordset &Satz, int Feld, const QVariant &Wert) {
  switch (Artikelfeld(Feld)) {
    case Artikelfeld::LayoutNumber:
    case Artikelfeld::Storage:
    case Artikelfeld::WebshopID:
      Satz.SetValue(QLatin1String(FELDER[Feld].Spalte), Null_als_Text(Wert));
      return;
    case Artikelfeld::Unsociable:
    case Artikelfeld::Disposable:
      if (const auto zahl = Als_Zahl(Wert))
        Satz.SetValue(QLatin1String(FELDER[Feld].Spalte), *zahl);
      else
        Ablauf_melden(QStringLiteral("Artikel_Feld_schreiben"), QStringLiteral("no number"));
      return;
    default:
      Ablauf_melden(QStringLiteral("Artikel_Feld_schreiben"), QStringLiteral("no field %1").arg(Feld));
  }
}

bool Artikelart_lesen(const QString &Artikelnummer, const char *Feld) {
  const QLatin1String feld(Feld);
  return Abfragen({"SELECT Articles.ArticleNumber, Articles.ArticleType, ArticleTypes.Description,"
                   " ArticleTypes.",
                   db::Name{feld}, " FROM Articles, ArticleTypes WHERE Articles.ArticleNumber = ",
                   db::Wert{Artikelnummer}, " AND ArticleTypes.Description = Articles.ArticleType"})
      .Flag(feld);
}

}  // namespace

QVariant Artikel_Feld_lesen(const QString &Artikelnummer, int Feld) {
  const Feldbeschreibung *feld = Beschreibung(Feld);
  if (!feld || feld->Als == Lesart::Keine) return {};
  const QLatin1String spalte(feld->Spalte);
  const db::Recordset rs =
      Abfragen({"SELECT * FROM Articles WHERE ArticleNumber = ", db::Wert{Artikelnummer}});
  if (rs.IsNull(spalte)) return {};
  switch (feld->Als) {
    case Lesart::Text:
      return rs.Text(spalte);
    case Lesart::Kurzzahl:
      return Kurzzahl_lesen(rs.Number(spalte));
    case Lesart::Gleitkomma:
      return rs.Number(spalte);
    case Lesart::Ja_Nein:
      return rs.Flag(spalte);
    case Lesart::Keine:
      break;
  }
  return {};
}

bool Artikel_Feld_schreiben(const QString &Artikelnummer, int Feld, const QVariant &Wert) {
  db::Recordset rs = Abfragen({"Select * from Articles Where ArticleNumber = ", db::Wert{Artikelnummer}});
  if (rs.RecordCount() == 0) return false;
  Feld_setzen(rs, Feld, Wert);
  rs.Update();
  return rs.UpdateBatch();
}

QString Steuerfeld_ermitteln(int Art) {
  switch (Art) {
    case 0:
      return QStringLiteral("TaxKeyNumber");
    case 1:
      return QStringLiteral("TaxRateEUNonVatID");
    case 2:
      return QStringLiteral("TaxRateEUVatID");
    case 3:
      return QStringLiteral("TaxRateNonEU");
    default:
      return {};
  }
}

bool Artikelart_Lagerfuehrung(const QString &Artikelnummer) {
  return Artikelart_lesen(Artikelnummer, "Stock");
}

bool Artikelart_Variante(const QString &Artikelnummer) { return Artikelart_lesen(Artikelnummer, "Variant"); }

}  // namespace marklink
