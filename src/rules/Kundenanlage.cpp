// A shop customer in the books.
#include "Kundenanlage.h"

#include <optional>

#include "Kunden.h"
#include "Nummernkreise.h"
#include "db/Ablaufverfolgung.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "host/Laender.h"
#include "host/Zahlen.h"
#include "shop/Antwort.h"
#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

/// The shop's number, or the next one of the range; empty when there is none.
QString Kundennummer_bestimmen(const pugi::xml_node &Kunde) {
  QString nummer_im_shop = Knoten_Text(Kunde, "CUSTOMERS_CID");
  const bool eigene =
      Option_lesen(QStringLiteral("Marklink"), QStringLiteral("UseShopCustomerNumber")) == u"0";
  if (!eigene && !nummer_im_shop.isEmpty()) return nummer_im_shop;
  return Nummer_nehmen(QStringLiteral("Contacts"), QStringLiteral("CustomerNumber"),
                       QStringLiteral("Customer"));
}

/// The debtor account at hand; its counter then moves by one, without padding. Each workstation gets another.
QString Debitorenkonto_nehmen() {
  const QString abschnitt = QStringLiteral("DATEV"), schluessel = QStringLiteral("DebitorAccount");
  for (int versuche = 100;; --versuche) {
    QString konto = Option_lesen(abschnitt, schluessel);
    // A counter that is no number stays, like that of a number range: no accounts are made up.
    const auto zahl = Zahl_deutsch(konto);
    if (!zahl || versuche == 0 ||
        Option_weiterstellen(abschnitt, schluessel, konto, Zahl_als_Text(*zahl + 1)) ||
        Option_lesen(abschnitt, schluessel) == konto)
      return konto;
  }
}

/// Nothing when the user gives none.
std::optional<QString> Suchname_erfragen(const QString &Vergeben, const QString &Ort) {
  const Fortschritt_verdeckt verdeckt;
  QString name =
      dialoge().Eingabe(QStringLiteral("Suchname vergeben"),
                        QStringLiteral("Der Suchname '") + Vergeben +
                            QStringLiteral("' existiert bereits.\r\nWeisen Sie dem Kunden bitte einen "
                                           "eindeutigen Suchnamen zu."),
                        Vergeben + QStringLiteral(" - ") + Ort);
  if (!name.isEmpty()) return name;
  dialoge().Meldung(QStringLiteral("Hinweis"),
                    {QStringLiteral("Sie haben leider keinen Suchnamen vergeben."),
                     QStringLiteral("Es wird nun der Nachname, Vorname und die E-Mail-Adresse verwendet.")},
                    Symbol::Information);
  return {};
}

/// The name that comes from the user or from the e-mail address is not looked up again, on purpose.
QString Suchname_bilden(const pugi::xml_node &Kunde) {
  const QString komma = QStringLiteral(", ");
  QString name = Knoten_Text(Kunde, "LASTNAME") + komma + Knoten_Text(Kunde, "FIRSTNAME");
  if (!Datensatz_existiert(QStringLiteral("Contacts"), QStringLiteral("Matchcode"), name)) return name;
  const auto eigener = Suchname_erfragen(name, Knoten_Text(Kunde, "CITY"));
  return eigener ? *eigener : name + komma + Knoten_Text(Kunde, "EMAIL");
}

QString Anrede(const QString &Geschlecht) {
  if (Geschlecht == u"m") return QStringLiteral("Herr");
  return Geschlecht == u"f" ? QStringLiteral("Frau") : QString();
}

}  // namespace

db::Recordset Kunden_mit_Email(const QString &Email) {
  return Abfragen({"SELECT * FROM Contacts WHERE Email = ", db::Wert{Email}});
}

bool Kunde_beginnen(db::Recordset &Satz, const pugi::xml_node &Kunde, const QDateTime &Stand) {
  const bool neu = Satz.RecordCount() == 0;
  if (neu) {
    const QString nummer = Kundennummer_bestimmen(Kunde);
    if (nummer.isEmpty()) {
      Ablauf_melden(QStringLiteral("Kunde_beginnen"), QStringLiteral("there is no customer number"));
      return false;
    }
    Satz.AddNew();
    Satz.SetValue(QStringLiteral("CustomerNumber"), nummer);
    Satz.SetValue(QStringLiteral("DateCreation"), Knoten_Text(Kunde, "DATE_ACCOUNT_CREATED"));
  } else {
    Satz.MoveFirst();
  }
  Satz.SetValue(QStringLiteral("DateUpdate"), Stand);
  Satz.SetValue(QStringLiteral("WorksOnLastOf"), Kontext.gBenutzername);
  if (!neu) return true;
  Satz.SetValue(QStringLiteral("DebitorAccount"), Debitorenkonto_nehmen());
  Satz.SetValue(QStringLiteral("Matchcode"), Suchname_bilden(Kunde));
  return true;
}

void Kunde_ausfuellen(db::Recordset &Satz, const pugi::xml_node &Kunde, const Kundenvorgaben &Vorgaben) {
  const auto setzen = [&](const char *feld, const QVariant &wert) {
    Satz.SetValue(QLatin1String(feld), wert);
  };
  const auto knoten = [&](const char *feld, const char *name) { setzen(feld, Knoten_Text(Kunde, name)); };
  const QString land = Land_aus_Token(Knoten_Text(Kunde, "COUNTRY")), ust_id = Knoten_Text(Kunde, "VAT_ID");
  setzen("Salutation", Anrede(Knoten_Text(Kunde, "GENDER")));
  knoten("Company", "COMPANY");
  knoten("NameAffix", "SUBURB");
  knoten("Surname", "FIRSTNAME");  // the books call the first name so
  knoten("Name", "LASTNAME");
  knoten("Street", "STREET");
  knoten("Zip", "POSTCODE");
  knoten("Town", "CITY");
  setzen("Country", land);
  setzen("InvoiceAddress", Vorgaben.InvoiceAddress);
  setzen("DeliveryAddress", Vorgaben.DeliveryAddress);
  knoten("WebshopID", "CUSTOMERS_ID");
  knoten("Telephone", "TELEPHONE");
  knoten("Fax", "FAX");
  setzen("Mobile", QString());
  knoten("Email", "EMAIL");
  setzen("Discount", QStringLiteral("0.00"));
  knoten("Birthday", "BIRTHDAY");
  knoten("CustomerType", "STATUS_DATA/NAME");
  setzen("Employee", Kontext.gBenutzername);
  setzen("PaymentPractice", Vorgaben.PaymentPractice);
  setzen("MethodPayment", Vorgaben.MethodPayment);
  setzen("Forwarding", Vorgaben.Forwarding);
  setzen("Impartation", Vorgaben.Impartation);
  setzen("Notice", QString());
  setzen("closed", 0);
  setzen("VatID", ust_id);
  setzen("TaxCalculation", Steuerberechnung_ermitteln(land, ust_id));
}

}  // namespace marklink
