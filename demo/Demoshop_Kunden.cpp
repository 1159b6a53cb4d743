// The demo shop's customers with their address books, and the administrator.
#include <QCryptographicHash>

#include "Demoshop_Zeilen.h"

namespace marklink::demo {

namespace {

QString Md5(const QString &Text) {
  return QString::fromLatin1(QCryptographicHash::hash(Text.toUtf8(), QCryptographicHash::Md5).toHex());
}

Kunde Verwalter(const Demodaten &D) {
  Kunde K{};
  K.Id = 1;
  K.Gruppe = Admin;
  K.Adresse = {QStringLiteral("m"),
               QStringLiteral("Haus & Heide Versand"),
               QStringLiteral("Heiner"),
               QStringLiteral("Heidkötter"),
               QStringLiteral("Am Wacholderhain 1"),
               {},
               QStringLiteral("29525"),
               QStringLiteral("Uelzen"),
               79,
               81};
  K.Email = Shopzugang::Benutzer();
  K.Telefon = QStringLiteral("030 23125 000");
  K.Angelegt = Einrichtung(D);
  return K;
}

}  // namespace

std::vector<Tabellenzeilen> Shop_Kunden(const Demodaten &D) {
  Tabellenzeilen K{"customers",
                   Spalten("customers_id customers_cid customers_vat_id customers_vat_id_status "
                           "customers_status customers_gender customers_firstname "
                           "customers_lastname customers_dob customers_email_address "
                           "customers_default_address_id customers_telephone customers_fax "
                           "customers_password customers_newsletter account_type password_request_key "
                           "payment_unallowed shipping_unallowed "
                           "customers_date_added customers_last_modified"),
                   {}};
  Tabellenzeilen A{"address_book",
                   Spalten("address_book_id customers_id entry_gender entry_company entry_firstname "
                           "entry_lastname entry_street_address entry_suburb "
                           "entry_postcode entry_city entry_state entry_country_id entry_zone_id "
                           "address_date_added address_last_modified"),
                   {}};
  Tabellenzeilen I{
      "customers_info",
      Spalten("customers_info_id customers_info_number_of_logons customers_info_date_account_created"),
      {}};
  Tabellenzeilen N{"newsletter_recipients",
                   Spalten("customers_email_address customers_id customers_status customers_firstname "
                           "customers_lastname mail_status date_added"),
                   {}};
  int Adressnummer = 0;
  const auto Anschrift_anhaengen = [&](const Kunde &Wer, const Anschrift &Was) {
    A.Zeilen.push_back({++Adressnummer, Wer.Id, Was.Geschlecht, Was.Firma.left(32), Was.Vorname, Was.Nachname,
                        Was.Strasse, Was.Zusatz, Was.Plz, Was.Ort, QString(), Was.Land, Was.Bundesland,
                        Zeitpunkt(Wer.Angelegt), Zeitpunkt(Wer.Angelegt)});
    return Adressnummer;
  };
  const auto anhaengen = [&](const Kunde &Wer) {
    const int Hauptadresse = Anschrift_anhaengen(Wer, Wer.Adresse);
    for (const Anschrift &Weitere : Wer.Lieferadressen) Anschrift_anhaengen(Wer, Weitere);
    const QString Passwort =
        Wer.Gruppe == Admin ? Shopzugang::Passwort() : QStringLiteral("geheim%1").arg(Wer.Id);
    K.Zeilen.push_back({Wer.Id,
                        Wer.Kundennummer,
                        Wer.Ust_Id,
                        Wer.Ust_Id.isEmpty() ? 0 : 1,
                        Wer.Gruppe,
                        Wer.Adresse.Geschlecht,
                        Wer.Adresse.Vorname,
                        Wer.Adresse.Nachname,
                        Zeitpunkt(Wer.Geboren.isValid() ? Wer.Geboren.startOfDay() : QDateTime()),
                        Wer.Email,
                        Hauptadresse,
                        Wer.Telefon,
                        Wer.Fax,
                        Md5(Passwort),
                        Wer.Newsletter ? QStringLiteral("1") : QStringLiteral("0"),
                        Wer.Gruppe == Gast ? 1 : 0,
                        QString(),
                        QString(),
                        QString(),
                        Zeitpunkt(Wer.Angelegt),
                        Zeitpunkt(Wer.Angelegt)});
    I.Zeilen.push_back({Wer.Id, 1 + Wer.Id % 9, Zeitpunkt(Wer.Angelegt)});
    if (Wer.Newsletter)
      N.Zeilen.push_back({Wer.Email, Wer.Id, Wer.Gruppe, Wer.Adresse.Vorname, Wer.Adresse.Nachname, 1,
                          Zeitpunkt(Wer.Angelegt)});
  };
  anhaengen(Verwalter(D));
  for (const Kunde &Wer : D.Kunden)
    if (!Wer.Konto_geloescht) anhaengen(Wer);
  return {std::move(K), std::move(A), std::move(I), std::move(N)};
}

}  // namespace marklink::demo
