// The demo shop as its database shows it: sums to the cent, references, columns wide enough, same data every
// time.
#include <gtest/gtest.h>

#include <QDir>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <map>

#include "demo/Demomandant.h"
#include "demo/Demoshop.h"
#include "support/Datenbank_Test.h"
#include "support/Testdateien.h"

namespace marklink::demo {
namespace {

/// One shop for all tests; they only read it.
class Demoshop_Test : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    Ordner = new QTemporaryDir;
    ASSERT_EQ(Demoshop_anlegen(Ordner->path(), Demo_Stichtag()), QString());
    Db = new test::Rohe_Verbindung(Ordner->path() + u"/shop.sqlite"_qs);
  }
  static void TearDownTestSuite() {
    delete Db;
    delete Ordner;
  }
  static std::vector<QStringList> Zeilen(const char *Sql) {
    std::vector<QStringList> Ergebnis;
    for (const QString &Zeile : Db->lesen(Sql).split(u'\n', Qt::SkipEmptyParts))
      Ergebnis.push_back(Zeile.split(u'|'));
    return Ergebnis;
  }
  static inline QTemporaryDir *Ordner = nullptr;
  static inline test::Rohe_Verbindung *Db = nullptr;
};

struct Ordersumme {
  bool Brutto = true;
  std::map<int, qint64> Waren;        ///< cents by tax rate
  std::map<int, qint64> Steuer;       ///< ot_tax by the rate in its title
  std::map<QString, qint64> Klassen;  ///< the other rows
};

TEST_F(Demoshop_Test, Summen_stimmen_auf_den_Cent) {
  std::map<int, Ordersumme> Bestellungen;
  for (const QStringList &Z :
       Zeilen("SELECT orders_id, allow_tax, CAST(products_tax AS INT), CAST(ROUND(products_price * 100) AS "
              "INT), products_quantity, CAST(ROUND(final_price * 100) AS INT) FROM orders_products")) {
    Ordersumme &B = Bestellungen[Z[0].toInt()];
    B.Brutto = Z[1] == QLatin1String("1");
    EXPECT_EQ(Z[3].toLongLong() * Z[4].toLongLong(), Z[5].toLongLong()) << "order " << Z[0].toStdString();
    B.Waren[Z[2].toInt()] += Z[3].toLongLong() * Z[4].toLongLong();
  }
  for (const QStringList &Z :
       Zeilen("SELECT orders_id, class, CAST(ROUND(value * 100) AS INT), title FROM orders_total")) {
    Ordersumme &B = Bestellungen[Z[0].toInt()];
    if (Z[1] == QLatin1String("ot_tax")) {
      const int Satz = Z[3].contains(QLatin1String("19%")) ? 19 : 7;
      EXPECT_FALSE(B.Steuer.contains(Satz)) << "two rows for one rate";
      B.Steuer[Satz] = Z[2].toLongLong();
    } else {
      EXPECT_FALSE(B.Klassen.contains(Z[1])) << Z[1].toStdString() << " twice in " << Z[0].toStdString();
      B.Klassen[Z[1]] = Z[2].toLongLong();
    }
  }
  ASSERT_GE(Bestellungen.size(), 200U);
  for (auto &[Nummer, B] : Bestellungen) {
    SCOPED_TRACE(Nummer);
    const auto k = [&B = B](const char *Klasse) {
      const auto Fund = B.Klassen.find(QLatin1String(Klasse));
      return Fund == B.Klassen.end() ? 0 : Fund->second;
    };
    qint64 Waren = 0, Steuer = 0;
    for (const auto &[Satz, Betrag] : B.Waren) Waren += Betrag;
    for (const auto &[Satz, Betrag] : B.Steuer) Steuer += Betrag;
    const qint64 Vor_Steuer = Waren + k("ot_discount") + k("ot_shipping") + k("ot_cod_fee") - k("ot_coupon");
    EXPECT_EQ(k("ot_subtotal"), Waren);
    EXPECT_EQ(k("ot_total"), Vor_Steuer + (B.Brutto ? 0 : Steuer) - k("ot_gv"));
    EXPECT_LE(k("ot_discount"), 0);
    EXPECT_GE(k("ot_coupon"), 0);
    EXPECT_EQ(B.Klassen.contains(u"ot_subtotal_no_tax"_qs), !B.Brutto && Steuer > 0);
    if (!B.Brutto && Steuer > 0) {
      EXPECT_EQ(k("ot_subtotal_no_tax"), Vor_Steuer);
    }
    // Tax that nothing was taken off can be told from the lines alone.
    if (B.Waren.contains(0) || k("ot_discount") != 0 || k("ot_coupon") != 0) continue;
    for (const int Satz : {19, 7}) {
      const qint64 Basis = B.Waren[Satz] + (Satz == 19 ? k("ot_shipping") + k("ot_cod_fee") : 0);
      const qint64 Nenner = B.Brutto ? 100 + Satz : 100;
      EXPECT_EQ(B.Steuer[Satz], (2 * Basis * Satz + Nenner) / (2 * Nenner)) << Satz << " %";
    }
  }
}

TEST_F(Demoshop_Test, Zeilen_passen_zueinander) {
  const struct {
    const char *Was, *Sql;
    int Erwartet = 0;
  } Faelle[] = {
      {"lines of articles that the shop deleted",
       "SELECT COUNT(*) FROM orders_products WHERE products_id NOT IN (SELECT products_id FROM products)", 2},
      {"orders of deleted guests",
       "SELECT COUNT(*) FROM orders WHERE customers_id NOT IN (SELECT customers_id FROM customers)", 5},
      {"orders without account that are no guest's",
       "SELECT COUNT(*) FROM orders WHERE account_type = 0 AND customers_id NOT IN (SELECT customers_id FROM "
       "customers)"},
      {"unknown statuses",
       "SELECT COUNT(*) FROM orders WHERE orders_status NOT IN (SELECT orders_status_id FROM orders_status "
       "WHERE language_id = 2)"},
      {"orders whose last change is another status",
       "SELECT COUNT(*) FROM orders o WHERE orders_status <> (SELECT orders_status_id FROM "
       "orders_status_history h WHERE h.orders_id = o.orders_id ORDER BY date_added DESC, "
       "orders_status_history_id DESC LIMIT 1)"},
      {"orders older than their account",
       "SELECT COUNT(*) FROM orders JOIN customers USING (customers_id) WHERE date_purchased < "
       "customers_date_added"},
      {"orders or changes after the reference date",
       "SELECT COUNT(*) FROM (SELECT date_purchased AS tag FROM orders UNION ALL SELECT date_added FROM "
       "orders_status_history) WHERE tag >= '2024-07-01'"},
      {"options that the article does not have",
       "SELECT COUNT(*) FROM orders_products_attributes a JOIN orders_products p USING (orders_products_id) "
       "WHERE NOT EXISTS (SELECT 1 FROM products_attributes x JOIN products_options o ON "
       "o.products_options_id = x.options_id JOIN products_options_values v ON v.products_options_values_id "
       "= x.options_values_id AND v.language_id = o.language_id WHERE x.products_id = p.products_id AND "
       "o.products_options_name = a.products_options AND v.products_options_values_name = "
       "a.products_options_values AND x.price_prefix = a.price_prefix AND x.options_values_price = "
       "a.options_values_price)"},
      {"lines without all their options",
       "SELECT COUNT(*) FROM orders_products p WHERE (SELECT COUNT(DISTINCT options_id) FROM "
       "products_attributes x WHERE x.products_id = p.products_id) <> (SELECT COUNT(*) FROM "
       "orders_products_attributes a WHERE a.orders_products_id = p.orders_products_id)"},
      {"bank details beside another payment",
       "SELECT COUNT(*) FROM orders o WHERE (payment_class = 'banktransfer') <> EXISTS (SELECT 1 FROM "
       "banktransfer b WHERE b.orders_id = o.orders_id)"},
      {"addresses missing",
       "SELECT COUNT(*) FROM customers WHERE customers_default_address_id NOT IN (SELECT address_book_id "
       "FROM address_book a WHERE a.customers_id = customers.customers_id)"},
      {"articles without category",
       "SELECT COUNT(*) FROM products WHERE products_id NOT IN (SELECT products_id FROM "
       "products_to_categories JOIN categories USING (categories_id))"},
      {"bar codes twice", "SELECT COUNT(*) - COUNT(DISTINCT products_ean) FROM products"},
      {"numbers twice", "SELECT COUNT(*) - COUNT(DISTINCT products_model) FROM products"},
  };
  for (const auto &F : Faelle) EXPECT_EQ(Db->lesen(F.Sql), QString::number(F.Erwartet)) << F.Was;
}

TEST_F(Demoshop_Test, Es_ist_von_allem_etwas_da) {
  const struct {
    const char *Was, *Sql;
    int Mindestens;
  } Faelle[] = {
      {"orders", "COUNT(*) FROM orders", 200},
      {"months", "COUNT(DISTINCT substr(date_purchased, 1, 7)) FROM orders", 6},
      {"statuses", "COUNT(DISTINCT orders_status) FROM orders", 4},
      {"open orders", "COUNT(*) FROM orders WHERE orders_status = 1", 10},
      {"payments", "COUNT(DISTINCT payment_class) FROM orders", 6},
      {"countries", "COUNT(DISTINCT customers_country) FROM orders", 10},
      {"orders in francs", "COUNT(*) FROM orders WHERE currency = 'CHF'", 5},
      {"net orders with tax", "COUNT(*) FROM orders_total WHERE class = 'ot_subtotal_no_tax'", 5},
      {"discounts", "COUNT(*) FROM orders_total WHERE class = 'ot_discount'", 5},
      {"coupons", "COUNT(*) FROM orders_total WHERE class = 'ot_coupon'", 3},
      {"fees", "COUNT(*) FROM orders_total WHERE class = 'ot_cod_fee'", 5},
      {"orders covered by voucher", "COUNT(*) FROM orders WHERE billing_name = '' AND language = ''", 1},
      {"line discounts", "COUNT(*) FROM orders_products WHERE products_discount_made > 0", 20},
      {"comments with the euro sign", "COUNT(*) FROM orders WHERE comments LIKE '%€%'", 1},
      {"an administrator by MD5",
       "COUNT(*) FROM customers WHERE customers_status = 0 AND customers_password = "
       "'988e3a597a1b58d81a64d65994d423cb'",
       1},
  };
  for (const auto &F : Faelle)
    EXPECT_GE(Db->lesen(("SELECT " + QByteArray(F.Sql)).constData()).toInt(), F.Mindestens) << F.Was;
}

// SQLite ignores widths, the real shop cuts silently.
TEST_F(Demoshop_Test, Kein_Text_ist_breiter_als_seine_Spalte) {
  for (const QStringList &Z :
       Zeilen("SELECT m.name, c.name, substr(c.type, instr(c.type, '(') + 1) FROM sqlite_master m JOIN "
              "pragma_table_info(m.name) c WHERE m.type = 'table' AND c.type LIKE '%CHAR(%'")) {
    const int Breite = QString(Z[2]).remove(QLatin1Char(')')).toInt();
    const QString Sql = u"SELECT %1 FROM %2 WHERE length(%1) > %3 LIMIT 1"_qs.arg(Z[1], Z[0]).arg(Breite);
    for (const QStringList &Zuviel : Zeilen(Sql.toUtf8().constData()))
      ADD_FAILURE() << Z[0].toStdString() << "." << Z[1].toStdString() << ": " << Zuviel[0].toStdString();
  }
}

TEST(Demodaten_Test, Alle_Texte_gehen_in_den_Zeichensatz) {
  const Demodaten D = Demodaten_erzeugen(Demo_Stichtag());
  std::vector<Tabellenzeilen> Alle = Demomandant_Zeilen(D, {});
  for (const auto &Teil : {Shop_Listen(D), Shop_Artikel(D), Shop_Kunden(D), Shop_Bestellungen(D)})
    Alle.insert(Alle.end(), Teil.begin(), Teil.end());
  for (const Tabellenzeilen &T : Alle)
    for (const QVariantList &Zeile : T.Zeilen)
      for (const QVariant &Wert : Zeile) {
        QStringEncoder Kodierer("windows-1252");
        const QByteArray Bytes = Kodierer.encode(Wert.toString());
        EXPECT_FALSE(Kodierer.hasError() || Bytes.isEmpty() != Wert.toString().isEmpty())
            << T.Tabelle << ": " << Wert.toString().toStdString();
      }
  for (const Artikel &A : D.Artikel_)
    EXPECT_FALSE(A.Name.contains(QChar(u'×')) || A.Name.contains(QLatin1Char('~'))) << A.Nummer.toStdString();
  for (const Optionswert &W : D.Optionswerte) EXPECT_FALSE(W.Name.contains(u", "_qs)) << W.Name.toStdString();
}

TEST(Demodaten_Test, Derselbe_Tag_gibt_dieselbe_Datei) {
  const auto Datei = [](const QDate &Heute) {
    const QTemporaryDir Ordner;
    EXPECT_EQ(Demoshop_anlegen(Ordner.path(), Heute), QString());
    // A second run replaces what is there.
    EXPECT_EQ(Demoshop_anlegen(Ordner.path(), Heute), QString());
    return test::Datei_lesen(Ordner.path() + u"/shop.sqlite"_qs);
  };
  const QByteArray Erste = Datei(Demo_Stichtag());
  EXPECT_TRUE(Erste == Datei(Demo_Stichtag()));
  EXPECT_FALSE(Erste == Datei(QDate(2025, 2, 28)));
  EXPECT_EQ(Demodaten_erzeugen(QDate(2025, 2, 28)).Bestellungen.back().Datum.date(), QDate(2025, 2, 28));
}

TEST(Demodaten_Test, Skript_kommt_mit_eigenen_Einstellungen_auch_ueber_einen_relativen_Pfad) {
  const QTemporaryDir Ordner;
  const auto Datei = [&](const char *Name) { return Ordner.filePath(QLatin1String(Name)); };
  ASSERT_TRUE(QDir().mkpath(Datei("quelle/teile")));
  for (const char *Name :
       {"quelle/marklink.php", "quelle/marklink_einstellungen.php", "quelle/teile/Shop.php"})
    test::Datei_schreiben(Datei(Name), Name);
  const QString Vorher = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(Ordner.path()));
  EXPECT_EQ(Demoshop_anlegen(u"shop"_qs, Demo_Stichtag(), u"quelle"_qs), QString());
  QDir::setCurrent(Vorher);
  const auto Inhalt = [&](const char *Name) { return test::Datei_lesen(Datei(Name)); };
  EXPECT_EQ(Inhalt("shop/marklink/marklink.php"), QByteArray("quelle/marklink.php"));
  EXPECT_EQ(Inhalt("shop/marklink/teile/Shop.php"), QByteArray("quelle/teile/Shop.php"));
  EXPECT_TRUE(Inhalt("shop/marklink/marklink_einstellungen.php").contains("'mail' => 'datei'"));
  EXPECT_EQ(QDir(Datei("shop/marklink")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 3);
}

TEST(Demodaten_Test, Schlaegt_das_Schreiben_fehl_bleibt_der_alte_Shop) {
  const QTemporaryDir Ordner;
  ASSERT_EQ(Demoshop_anlegen(Ordner.path(), Demo_Stichtag()), QString());
  // A folder where the new database would be made.
  ASSERT_TRUE(QDir(Ordner.path()).mkpath(u"shop.sqlite.neu/x"_qs));
  QFile Db(Ordner.path() + u"/shop.sqlite"_qs);
  const qint64 Groesse = Db.size();
  EXPECT_NE(Demoshop_anlegen(Ordner.path(), QDate(2025, 2, 28)), QString());
  EXPECT_EQ(Db.size(), Groesse);
  EXPECT_NE(Demoshop_anlegen(Ordner.path(), Demo_Stichtag(), u"/nirgends"_qs), QString());
  EXPECT_NE(Demoshop_anlegen(Ordner.path(), QDate()), QString());
}

}  // namespace
}  // namespace marklink::demo
