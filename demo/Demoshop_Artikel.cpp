// The demo shop's categories, articles, options and prices.
#include "Demoshop_Zeilen.h"

namespace marklink::demo {

namespace {

QStringList mit_Gruppenrechten(QStringList Namen) {
  for (int i = 0; i < Gruppen; ++i) Namen << QStringLiteral("group_permission_%1").arg(i);
  return Namen;
}
QVariantList Gruppenrechte(QVariantList Zeile) {
  for (int i = 0; i < Gruppen; ++i) Zeile << 1;
  return Zeile;
}

void Kategorien(const Demodaten &D, std::vector<Tabellenzeilen> &Alle) {
  Tabellenzeilen K{
      "categories",
      mit_Gruppenrechten(Spalten(
          "categories_id categories_image parent_id categories_status categories_template listing_template "
          "sort_order products_sorting products_sorting2 date_added last_modified")),
      {}};
  Tabellenzeilen T{"categories_description",
                   Spalten("categories_id language_id categories_name categories_heading_title "
                           "categories_description categories_meta_title "
                           "categories_meta_description categories_meta_keywords"),
                   {}};
  for (const Kategorie &Kat : D.Kategorien) {
    K.Zeilen.push_back(
        Gruppenrechte({Kat.Id, QString(), Kat.Oberkategorie, 1, QStringLiteral("categorie_listing.html"),
                       QStringLiteral("product_listing_v1.html"), Kat.Id, QStringLiteral("p.products_price"),
                       QStringLiteral("ASC"), Zeitpunkt(Einrichtung(D)), Zeitpunkt(Einrichtung(D))}));
    T.Zeilen.push_back({Kat.Id, Deutsch_Id, Kat.Name, Kat.Name,
                        QStringLiteral("<p>Alles rund um %1.</p>").arg(Kat.Name.toHtmlEscaped()), Kat.Name,
                        QString(), QString()});
    T.Zeilen.push_back({Kat.Id, Englisch_Id, Kat.Name_Englisch, Kat.Name_Englisch, QString(),
                        Kat.Name_Englisch, QString(), QString()});
  }
  Alle.push_back(std::move(K));
  Alle.push_back(std::move(T));
}

void Optionen(const Demodaten &D, std::vector<Tabellenzeilen> &Alle) {
  Tabellenzeilen O{"products_options", Spalten("products_options_id language_id products_options_name"), {}};
  Tabellenzeilen W{"products_options_values",
                   Spalten("products_options_values_id language_id products_options_values_name"),
                   {}};
  Tabellenzeilen Z{"products_options_values_to_products_options",
                   Spalten("products_options_id products_options_values_id"),
                   {}};
  for (const Option &Opt : D.Optionen) {
    O.Zeilen.push_back({Opt.Id, Deutsch_Id, Opt.Name});
    O.Zeilen.push_back({Opt.Id, Englisch_Id, Opt.Name_Englisch});
  }
  for (const Optionswert &Wert : D.Optionswerte) {
    W.Zeilen.push_back({Wert.Id, Deutsch_Id, Wert.Name});
    W.Zeilen.push_back({Wert.Id, Englisch_Id, Wert.Name_Englisch});
    Z.Zeilen.push_back({Wert.Option, Wert.Id});
  }
  Alle.push_back(std::move(O));
  Alle.push_back(std::move(W));
  Alle.push_back(std::move(Z));
}

/// Pieces that orders took since the shop opened.
int Bestellt(const Demodaten &D, int Artikel_) {
  int Summe = 0;
  for (const Bestellung &B : D.Bestellungen)
    for (const Position &P : B.Positionen)
      if (P.Artikel == Artikel_) Summe += P.Menge;
  return Summe;
}

void Attribute_anhaengen(const Artikel &A, Tabellenzeilen &T) {
  const std::vector<Kombination> Alle = Kombinationen(A);
  int Sortierung = 0;
  for (const Artikeloption &O : A.Optionen) {
    for (const Auswahl &W : O.Werte) {
      int Bestand = 0;
      for (std::size_t i = 0; i < Alle.size(); ++i)
        for (const Auswahl *Gewaehlt : Alle[i])
          if (Gewaehlt->Wert == W.Wert) Bestand += Bestand_Kombination(A, i, Alle.size());
      const auto Vorzeichen = [](qint64 Wert) {
        return Wert < 0 ? QStringLiteral("-") : QStringLiteral("+");
      };
      T.Zeilen.push_back({A.Id, O.Option, W.Wert, Euro_fein(qAbs(W.Aufpreis)), Vorzeichen(W.Aufpreis),
                          QStringLiteral("%1-%2").arg(A.Nummer).arg(W.Wert), Bestand,
                          qAbs(W.Gewicht_g) / 1000.0, Vorzeichen(W.Gewicht_g), ++Sortierung});
    }
  }
}

void Preise(const Demodaten &D, std::vector<Tabellenzeilen> &Alle) {
  static const char *const Namen[Gruppen] = {
      "personal_offers_by_customers_status_0", "personal_offers_by_customers_status_1",
      "personal_offers_by_customers_status_2", "personal_offers_by_customers_status_3",
      "personal_offers_by_customers_status_4", "personal_offers_by_customers_status_5"};
  for (int i = Gast; i < Gruppen; ++i) {
    Tabellenzeilen T{Namen[i], Spalten("products_id quantity personal_offer"), {}};
    const bool Haendlergruppe = i == Haendler || i == Haendler_EU;
    for (const Artikel &A : D.Artikel_) {
      // The shop keeps a row for every group; 0 means that the group has no price of its own.
      T.Zeilen.push_back({A.Id, 1, Haendlergruppe ? Euro_fein(A.Haendlerpreis) : 0.0});
      if (!Haendlergruppe) continue;
      for (const Staffel &S : A.Staffeln) T.Zeilen.push_back({A.Id, S.Ab, Euro_fein(S.Netto)});
    }
    Alle.push_back(std::move(T));
  }
  Tabellenzeilen Sonder{
      "specials",
      Spalten("products_id specials_quantity specials_new_products_price specials_date_added "
              "expires_date status"),
      {}};
  for (const Artikel &A : D.Artikel_)
    if (A.Sonderpreis > 0)
      Sonder.Zeilen.push_back({A.Id, A.Bestand, Euro_fein(A.Sonderpreis),
                               Zeitpunkt(QDateTime(D.Heute.addDays(-190), QTime(8, 0))),
                               Zeitpunkt(QDateTime(D.Heute.addDays(30), QTime(0, 0))), 1});
  Alle.push_back(std::move(Sonder));
}

}  // namespace

std::vector<Tabellenzeilen> Shop_Artikel(const Demodaten &D) {
  std::vector<Tabellenzeilen> Alle;
  Kategorien(D, Alle);
  Optionen(D, Alle);
  Tabellenzeilen P{
      "products",
      mit_Gruppenrechten(Spalten("products_id products_ean products_quantity products_shippingtime "
                                 "products_model products_sort products_image products_price "
                                 "products_discount_allowed products_date_added products_last_modified "
                                 "products_date_available products_weight products_status "
                                 "products_tax_class_id product_template options_template manufacturers_id "
                                 "products_ordered products_vpe products_vpe_value "
                                 "products_startpage")),
      {}};
  Tabellenzeilen T{
      "products_description",
      Spalten("products_id language_id products_name products_description "
              "products_short_description products_keywords "
              "products_meta_title products_meta_description products_meta_keywords products_url"),
      {}};
  Tabellenzeilen Z{"products_to_categories", Spalten("products_id categories_id"), {}};
  Tabellenzeilen M{"products_attributes",
                   Spalten("products_id options_id options_values_id options_values_price price_prefix "
                           "attributes_model attributes_stock "
                           "options_values_weight weight_prefix sortorder"),
                   {}};
  const QStringList Einheiten = Einheitenliste(D);
  for (const Artikel &A : D.Artikel_) {
    const bool Startseite = A.Id % 20 == 1;
    P.Zeilen.push_back(Gruppenrechte({A.Id,
                                      A.Ean,
                                      A.Bestand,
                                      A.Bestand < 12 ? 2 : 1,
                                      A.Nummer,
                                      A.Id % 100,
                                      QString(),
                                      Euro_fein(A.Netto),
                                      A.Rabatt_erlaubt,
                                      Zeitpunkt(A.Angelegt),
                                      Zeitpunkt(A.Geaendert),
                                      QVariant(),
                                      A.Gewicht_g / 1000.0,
                                      1,
                                      A.Steuersatz == 7 ? 2 : 1,
                                      QStringLiteral("product_info_v1.html"),
                                      QStringLiteral("product_options_dropdown.html"),
                                      0,
                                      Bestellt(D, A.Id),
                                      Einheiten.indexOf(A.Einheit) + 1,
                                      0,
                                      Startseite ? 1 : 0}));
    T.Zeilen.push_back({A.Id, Deutsch_Id, A.Name, A.Text, QStringLiteral("<p>%1</p>").arg(A.Name), QString(),
                        A.Name, QString(), QString(), QString()});
    T.Zeilen.push_back({A.Id, Englisch_Id, A.Name_Englisch, QStringLiteral("<p>%1</p>").arg(A.Name_Englisch),
                        QString(), QString(), A.Name_Englisch, QString(), QString(), QString()});
    Z.Zeilen.push_back({A.Id, A.Kategorie});
    if (Startseite) Z.Zeilen.push_back({A.Id, 0});
    Attribute_anhaengen(A, M);
  }
  Alle.push_back(std::move(P));
  Alle.push_back(std::move(T));
  Alle.push_back(std::move(Z));
  Alle.push_back(std::move(M));
  Preise(D, Alle);
  return Alle;
}

}  // namespace marklink::demo
