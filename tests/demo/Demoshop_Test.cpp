// The demo shop as its database shows it: sums to the cent, references, columns wide enough, same data every
// time.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <map>

#include "demo/Demomandant.h"
#include "demo/Demoshop.h"

namespace marklink::demo {
namespace {

/// One shop for all tests; they only read it.
class Demoshop_Test : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    Ordner = new QTemporaryDir;
    ASSERT_EQ(Demoshop_anlegen(Ordner->path(), Demo_Stichtag()), QString());
    ASSERT_EQ(sqlite3_open((Ordner->path() + QStringLiteral("/shop.sqlite")).toUtf8().constData(), &Db),
              SQLITE_OK);
  }
  static void TearDownTestSuite() {
    sqlite3_close_v2(Db);
    delete Ordner;
  }
  static std::vector<QStringList> Zeilen(const QString &Sql) {
    std::vector<QStringList> Ergebnis;
    sqlite3_stmt *Satz = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(Db, Sql.toUtf8().constData(), -1, &Satz, nullptr), SQLITE_OK)
        << Sql.toStdString() << ": " << sqlite3_errmsg(Db);
    while (Satz && sqlite3_step(Satz) == SQLITE_ROW) {
      QStringList Zeile;
      for (int i = 0; i < sqlite3_column_count(Satz); ++i)
        Zeile << QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(Satz, i)));
      Ergebnis.push_back(Zeile);
    }
    sqlite3_finalize(Satz);
    return Ergebnis;
  }
  static qint64 Zahl(const char *Sql) {
    const auto Alle = Zeilen(QString::fromUtf8(Sql));
    return Alle.empty() ? -1 : Alle[0][0].toLongLong();
  }
  static inline QTemporaryDir *Ordner = nullptr;
  static inline sqlite3 *Db = nullptr;
};

struct Ordersumme {
  bool Brutto = true;
  std::map<int, qint64> Waren;        ///< cents by tax rate
  std::map<int, qint64> Steuer;       ///< ot_tax by the rate in its title
  std::map<QString, qint64> Klassen;  ///< the other rows
};

TEST_F(Demoshop_Test, Summen_stimmen_auf_den_Cent) {
  std::map<int, Ordersumme> Bestellungen;
  for (const QStringList &Z : Zeilen(
           QStringLiteral("SELECT orders_id, allow_tax, CAST(products_tax AS INT), CAST(ROUND(products_price "
                          "* 100) AS INT), "
                          "products_quantity, CAST(ROUND(final_price * 100) AS INT) FROM orders_products"))) {
    Ordersumme &B = Bestellungen[Z[0].toInt()];
    B.Brutto = Z[1] == QLatin1String("1");
    EXPECT_EQ(Z[3].toLongLong() * Z[4].toLongLong(), Z[5].toLongLong()) << "order " << Z[0].toStdString();
    B.Waren[Z[2].toInt()] += Z[3].toLongLong() * Z[4].toLongLong();
  }
  for (const QStringList &Z : Zeilen(QStringLiteral(
           "SELECT orders_id, class, CAST(ROUND(value * 100) AS INT), title FROM orders_total"))) {
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
    EXPECT_EQ(B.Klassen.contains(QStringLiteral("ot_subtotal_no_tax")), !B.Brutto && Steuer > 0);
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
    qint64 Erwartet;
  } Faelle[] = {
      {"lines of articles that the shop deleted",
       "SELECT COUNT(*) FROM orders_products WHERE products_id NOT IN (SELECT products_id FROM products)", 2},
      {"orders of deleted guests",
       "SELECT COUNT(*) FROM orders WHERE customers_id NOT IN (SELECT customers_id FROM customers)", 5},
      {"orders without account that are no guest's",
       "SELECT COUNT(*) FROM orders WHERE account_type = 0 AND customers_id NOT IN (SELECT customers_id FROM "
       "customers)",
       0},
      {"unknown statuses",
       "SELECT COUNT(*) FROM orders WHERE orders_status NOT IN (SELECT orders_status_id FROM orders_status "
       "WHERE language_id = 2)",
       0},
      {"orders whose last change is another status",
       "SELECT COUNT(*) FROM orders o WHERE orders_status <> (SELECT orders_status_id FROM "
       "orders_status_history h WHERE "
       "h.orders_id = o.orders_id ORDER BY date_added DESC, orders_status_history_id DESC LIMIT 1)",
       0},
      {"orders older than their account",
       "SELECT COUNT(*) FROM orders JOIN customers USING (customers_id) WHERE date_purchased < "
       "customers_date_added",
       0},
      {"orders after the reference date", "SELECT COUNT(*) FROM orders WHERE date_purchased >= '2024-07-01'",
       0},
      {"changes after the reference date",
       "SELECT COUNT(*) FROM orders_status_history WHERE date_added >= '2024-07-01'", 0},
      {"options that the article does not have",
       "SELECT COUNT(*) FROM orders_products_attributes a JOIN orders_products p USING (orders_products_id) "
       "WHERE NOT EXISTS "
       "(SELECT 1 FROM products_attributes x JOIN products_options o ON o.products_options_id = x.options_id "
       "JOIN "
       "products_options_values v ON v.products_options_values_id = x.options_values_id AND v.language_id = "
       "o.language_id WHERE "
       "x.products_id = p.products_id AND o.products_options_name = a.products_options AND "
       "v.products_options_values_name = "
       "a.products_options_values AND x.price_prefix = a.price_prefix AND x.options_values_price = "
       "a.options_values_price)",
       0},
      {"lines without all their options",
       "SELECT COUNT(*) FROM orders_products p WHERE (SELECT COUNT(DISTINCT options_id) FROM "
       "products_attributes x WHERE "
       "x.products_id = p.products_id) <> (SELECT COUNT(*) FROM orders_products_attributes a WHERE "
       "a.orders_products_id = "
       "p.orders_products_id)",
       0},
      {"bank details beside another payment",
       "SELECT COUNT(*) FROM orders o WHERE (payment_class = 'banktransfer') <> EXISTS (SELECT 1 FROM "
       "banktransfer b WHERE "
       "b.orders_id = o.orders_id)",
       0},
      {"addresses missing",
       "SELECT COUNT(*) FROM customers WHERE customers_default_address_id NOT IN (SELECT address_book_id "
       "FROM address_book a WHERE a.customers_id = customers.customers_id)",
       0},
      {"articles without category",
       "SELECT COUNT(*) FROM products WHERE products_id NOT IN (SELECT products_id FROM "
       "products_to_categories JOIN categories USING (categories_id))",
       0},
      {"bar codes twice", "SELECT COUNT(*) - COUNT(DISTINCT products_ean) FROM products", 0},
      {"numbers twice", "SELECT COUNT(*) - COUNT(DISTINCT products_model) FROM products", 0},
  };
  for (const auto &F : Faelle) EXPECT_EQ(Zahl(F.Sql), F.Erwartet) << F.Was;
}

TEST_F(Demoshop_Test, Es_ist_von_allem_etwas_da) {
  const struct {
    const char *Was, *Sql;
    qint64 Mindestens;
  } Faelle[] = {
      {"articles", "SELECT COUNT(*) FROM products", 120},
      {"customers", "SELECT COUNT(*) FROM customers", 60},
      {"orders", "SELECT COUNT(*) FROM orders", 200},
      {"months", "SELECT COUNT(DISTINCT substr(date_purchased, 1, 7)) FROM orders", 6},
      {"statuses", "SELECT COUNT(DISTINCT orders_status) FROM orders", 4},
      {"open orders", "SELECT COUNT(*) FROM orders WHERE orders_status = 1", 10},
      {"payments", "SELECT COUNT(DISTINCT payment_class) FROM orders", 6},
      {"countries", "SELECT COUNT(DISTINCT customers_country) FROM orders", 10},
      {"orders in francs", "SELECT COUNT(*) FROM orders WHERE currency = 'CHF'", 5},
      {"net orders with tax", "SELECT COUNT(*) FROM orders_total WHERE class = 'ot_subtotal_no_tax'", 5},
      {"discounts", "SELECT COUNT(*) FROM orders_total WHERE class = 'ot_discount'", 5},
      {"coupons", "SELECT COUNT(*) FROM orders_total WHERE class = 'ot_coupon'", 3},
      {"fees", "SELECT COUNT(*) FROM orders_total WHERE class = 'ot_cod_fee'", 5},
      {"orders covered by voucher", "SELECT COUNT(*) FROM orders WHERE billing_name = '' AND language = ''",
       1},
      {"line discounts", "SELECT COUNT(*) FROM orders_products WHERE products_discount_made > 0", 20},
      {"surcharges",
       "SELECT COUNT(*) FROM orders_products_attributes WHERE options_values_price > 0 AND price_prefix = "
       "'+'",
       10},
      {"reductions",
       "SELECT COUNT(*) FROM orders_products_attributes WHERE options_values_price > 0 AND price_prefix = "
       "'-'",
       1},
      {"other delivery addresses",
       "SELECT COUNT(*) FROM orders WHERE delivery_street_address <> customers_street_address", 5},
      {"more than in stock",
       "SELECT COUNT(*) FROM orders_products JOIN products p USING (products_id) WHERE "
       "orders_products.products_quantity > "
       "p.products_quantity",
       3},
      {"two tax rates",
       "SELECT COUNT(*) FROM (SELECT 1 FROM orders_total WHERE class = 'ot_tax' GROUP BY orders_id HAVING "
       "COUNT(*) = 2)",
       20},
      {"comments with the euro sign", "SELECT COUNT(*) FROM orders WHERE comments LIKE '%€%'", 1},
      {"an administrator by MD5",
       "SELECT COUNT(*) FROM customers WHERE customers_status = 0 AND customers_password = "
       "'988e3a597a1b58d81a64d65994d423cb'",
       1},
  };
  for (const auto &F : Faelle) EXPECT_GE(Zahl(F.Sql), F.Mindestens) << F.Was;
}

// SQLite ignores widths, the real shop cuts silently.
TEST_F(Demoshop_Test, Kein_Text_ist_breiter_als_seine_Spalte) {
  for (const QStringList &Z :
       Zeilen(QStringLiteral("SELECT m.name, c.name, substr(c.type, instr(c.type, '(') + 1) FROM "
                             "sqlite_master m JOIN pragma_table_info(m.name) c "
                             "WHERE m.type = 'table' AND c.type LIKE '%CHAR(%'"))) {
    const int Breite = QString(Z[2]).remove(QLatin1Char(')')).toInt();
    const QString Sql =
        QStringLiteral("SELECT %1 FROM %2 WHERE length(%1) > %3 LIMIT 1").arg(Z[1], Z[0]).arg(Breite);
    for (const QStringList &Zuviel : Zeilen(Sql))
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
  for (const Optionswert &W : D.Optionswerte)
    EXPECT_FALSE(W.Name.contains(QStringLiteral(", "))) << W.Name.toStdString();
}

TEST(Demodaten_Test, Derselbe_Tag_gibt_dieselbe_Datei) {
  const auto Datei = [](const QDate &Heute) {
    const QTemporaryDir Ordner;
    EXPECT_EQ(Demoshop_anlegen(Ordner.path(), Heute), QString());
    // A second run replaces what is there.
    EXPECT_EQ(Demoshop_anlegen(Ordner.path(), Heute), QString());
    QFile Db(Ordner.path() + QStringLiteral("/shop.sqlite"));
    EXPECT_TRUE(Db.open(QIODevice::ReadOnly));
    return Db.readAll();
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
       {"quelle/marklink.php", "quelle/marklink_einstellungen.php", "quelle/teile/Shop.php"}) {
    QFile F(Datei(Name));
    ASSERT_TRUE(F.open(QIODevice::WriteOnly) && F.write(Name) > 0);
  }
  const QString Vorher = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(Ordner.path()));
  EXPECT_EQ(Demoshop_anlegen(QStringLiteral("shop"), Demo_Stichtag(), QStringLiteral("quelle")), QString());
  QDir::setCurrent(Vorher);
  const auto Inhalt = [&](const char *Name) {
    QFile F(Datei(Name));
    return F.open(QIODevice::ReadOnly) ? F.readAll() : QByteArray();
  };
  EXPECT_EQ(Inhalt("shop/marklink/marklink.php"), QByteArray("quelle/marklink.php"));
  EXPECT_EQ(Inhalt("shop/marklink/teile/Shop.php"), QByteArray("quelle/teile/Shop.php"));
  EXPECT_TRUE(Inhalt("shop/marklink/marklink_einstellungen.php").contains("'mail' => 'datei'"));
  EXPECT_EQ(QDir(Datei("shop/marklink")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 3);
}

TEST(Demodaten_Test, Schlaegt_das_Schreiben_fehl_bleibt_der_alte_Shop) {
  const QTemporaryDir Ordner;
  ASSERT_EQ(Demoshop_anlegen(Ordner.path(), Demo_Stichtag()), QString());
  // A folder where the new database would be made.
  ASSERT_TRUE(QDir(Ordner.path()).mkpath(QStringLiteral("shop.sqlite.neu/x")));
  QFile Db(Ordner.path() + QStringLiteral("/shop.sqlite"));
  const qint64 Groesse = Db.size();
  EXPECT_NE(Demoshop_anlegen(Ordner.path(), QDate(2025, 2, 28)), QString());
  EXPECT_EQ(Db.size(), Groesse);
  EXPECT_NE(Demoshop_anlegen(Ordner.path(), Demo_Stichtag(), QStringLiteral("/nirgends")), QString());
  EXPECT_NE(Demoshop_anlegen(Ordner.path(), QDate()), QString());
}

}  // namespace
}  // namespace marklink::demo
