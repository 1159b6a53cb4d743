// Whole documents: every case of belege/*.txt, in both database types, against what must stand in the books.
#include <QRegularExpression>
#include <map>

#include "Belegtabelle.h"
#include "db/Schema.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Zahlen.h"
#include "orders/Belegerzeugung.h"
#include "orders/Belegstapel.h"
#include "support/Dialoge_Skript.h"
#include "support/Testmandant.h"
#include "ui/Host_Komponenten.h"

namespace marklink {
namespace {

using test::Belegfall;
using test::Belegzeile;

const std::vector<Belegfall> &Faelle() {
  static const auto faelle = test::Belegtabellen_lesen(QStringLiteral(MARKLINK_BELEGTABELLEN));
  return faelle;
}

/// A value as the tables write it.
QString Als_Text(const QVariant &Wert) {
  if (Wert.isNull()) return u"leer"_qs;
  if (Wert.typeId() == QMetaType::Bool) return Wert.toBool() ? u"Ja"_qs : u"Nein"_qs;
  if (Wert.typeId() == QMetaType::QString) return Wert.toString().isEmpty() ? u"leer"_qs : Wert.toString();
  if (Wert.typeId() != QMetaType::QDate && Wert.typeId() != QMetaType::QDateTime)
    return Zahl_als_Text(Wert.toDouble());
  const QDateTime zeit = Wert.toDateTime();
  return zeit.toString(zeit.time() == QTime(0, 0) ? u"dd.MM.yyyy"_qs : u"dd.MM.yyyy hh:mm"_qs);
}

/// Numbers but for the noise of a double.
bool Gleich(const QVariant &Ist, const QString &Soll) {
  const auto zahl = Zahl_deutsch(Soll);
  const bool rechnen =
      zahl && !Ist.isNull() && Ist.typeId() != QMetaType::QString && Ist.typeId() != QMetaType::Bool;
  return rechnen ? std::abs(Ist.toDouble() - *zahl) < 1e-8 : Als_Text(Ist) == Soll;
}

/// What a column holds for a text of the tables; nothing when it cannot hold it.
std::optional<QVariant> Als_Wert(const QString &Text, db::Spaltentyp Typ) {
  QVariant wert = Text;
  if (Text == u"leer") return QVariant();
  if (Typ == db::Spaltentyp::Ja_Nein) {
    wert = Text == u"Ja";
  } else if (Typ == db::Spaltentyp::Datum) {
    wert = Zeitpunkt(QDate::fromString(Text, u"dd.MM.yyyy"_qs));
  } else if (Typ != db::Spaltentyp::Text && Typ != db::Spaltentyp::Memo) {
    const auto zahl = Zahl_deutsch(Text);
    return zahl ? std::optional<QVariant>(*zahl) : std::nullopt;
  }
  return Als_Text(wert) == Text ? std::optional(wert) : std::nullopt;
}

/// Components of the host that write down their calls and answer what the case says.
class Komponentenbuch : public Host_Komponenten {
 public:
  Komponentenbuch() { Host_Komponenten_setzen(this); }
  ~Komponentenbuch() override { Host_Komponenten_setzen(nullptr); }
  std::unique_ptr<Host_Komponente> Erzeugen(const QString &Name) override {
    if (!Antworten.contains(Name)) return nullptr;
    return std::make_unique<Objekt>(*this, Name);
  }
  QMap<QString, QMap<QString, QVariant>> Antworten;
  QStringList Aufrufe;

 private:
  struct Objekt : Host_Komponente {
    Objekt(Komponentenbuch &B, const QString &N) : Buch(B), Name(N) {}
    QVariant Aufrufen(const QString &Operation, QVariantList &Argumente) override {
      QStringList werte;
      for (const QVariant &a : Argumente)
        werte << (a.typeId() == QMetaType::QString ? u'"' + a.toString() + u'"' : Als_Text(a));
      Buch.Aufrufe << u"%1 %2 = %3"_qs.arg(Name, Operation, werte.join(u"; "_qs));
      return Buch.Antworten[Name].value(Operation);
    }
    Komponentenbuch &Buch;
    QString Name;
  };
};

class Belege_Test : public testing::TestWithParam<std::tuple<int, size_t>> {
 protected:
  Belege_Test() : Mandant(std::get<0>(GetParam())), Fall(Faelle()[std::get<1>(GetParam())]) {}

  std::vector<const Belegzeile *> Zeilen(const QString &Wort) const {
    std::vector<const Belegzeile *> zeilen;
    for (const Belegzeile &z : Fall.Zeilen) {
      if (z.Wort == Wort) zeilen.push_back(&z);
    }
    return zeilen;
  }
  static void Bemaengeln(const Belegzeile &Zeile, const QString &Was) {
    ADD_FAILURE() << Zeile.Ort.toStdString() << ": " << Zeile.Wort.toStdString() << " "
                  << Zeile.Schluessel.toStdString() << ": " << Was.toStdString();
  }
  /// The fields of a line that is no row; others than these are a mistake.
  static QMap<QString, QString> Angaben(const Belegzeile &Zeile, QMap<QString, QString> Werte) {
    for (auto it = Zeile.Felder.begin(); it != Zeile.Felder.end(); ++it) {
      if (!Werte.contains(it.key())) Bemaengeln(Zeile, it.key());
      Werte[it.key()] = it.value() == u"leer" ? QString() : it.value();
    }
    return Werte;
  }

  void Buecher_fuellen() {
    for (const Belegzeile *z : Zeilen(u"einstellung"_qs)) {
      for (auto it = z->Felder.begin(); it != z->Felder.end(); ++it)
        EXPECT_TRUE(Option_schreiben(z->Schluessel, it.key(), it.value()));
    }
    std::map<QString, std::vector<const Belegzeile *>> tabellen;
    for (const Belegzeile &z : Fall.Zeilen) {
      const auto wort = test::Tabelle_zum_Wort(z);
      if (!wort.Tabelle.isEmpty() && !wort.Erwartet) tabellen[wort.Tabelle].push_back(&z);
    }
    for (const auto &[name, zeilen] : tabellen) {
      const db::Tabelle *tabelle = db::Schema_Tabelle(name);
      ASSERT_NE(tabelle, nullptr) << name.toStdString();
      std::map<QString, db::Spaltentyp> spalten;
      for (const db::Spalte &s : tabelle->Spalten) spalten[QString::fromLatin1(s.Name)] = s.Typ;
      db::Recordset rs = Abfragen({"SELECT * FROM ", db::Name{name}});
      for (const Belegzeile *z : zeilen) {
        rs.AddNew();
        rs.SetValue(test::Tabelle_zum_Wort(*z).Schluesselfeld, z->Schluessel);
        for (auto it = z->Felder.begin(); it != z->Felder.end(); ++it) {
          const auto wert = spalten.count(it.key()) ? Als_Wert(it.value(), spalten[it.key()]) : std::nullopt;
          if (!wert) Bemaengeln(*z, it.key() + u'=' + it.value());
          rs.SetValue(it.key(), wert.value_or(QVariant()));
        }
        if (z->Wort == u"bestellung") rs.SetValue(u"Positions"_qs, Bestellzeilen());
        rs.Update();
      }
      ASSERT_TRUE(rs.UpdateBatch()) << name.toStdString();
    }
    Mandant.Starten();
  }

  /// The lines as the shop's orders are staged.
  QString Bestellzeilen() const {
    QStringList zeilen;
    for (const Belegzeile *z : Zeilen(u"bestellt"_qs)) {
      const QStringList teile = z->Schluessel.split(u" x "_qs);
      if (teile.size() != 2) Bemaengeln(*z, u"Menge x Artikel"_qs);
      const auto w = Angaben(*z, {{u"Name"_qs, teile.last()},
                                  {u"Rabatt"_qs, u"0"_qs},
                                  {u"Preis"_qs, u"0"_qs},
                                  {u"Variante"_qs, {}}});
      zeilen << QStringList{teile.last(),    teile.first(),  u"Nr. im Shop"_qs, w[u"Name"_qs],
                            w[u"Rabatt"_qs], w[u"Preis"_qs], w[u"Variante"_qs]}
                    .join(u'~');
    }
    return zeilen.join(u'×');
  }

  Belegvorgabe Vorgabe() const {
    const auto w = Angaben(*Zeilen(u"vorgabe"_qs).at(0), {{u"Bestellnummer"_qs, {}},
                                                          {u"Kundennummer"_qs, {}},
                                                          {u"Rabatt"_qs, {}},
                                                          {u"Lieferland"_qs, {}},
                                                          {u"Versandart"_qs, {}},
                                                          {u"Zahlungsart"_qs, {}},
                                                          {u"Zahlungsbedingung"_qs, {}}});
    return {w[u"Bestellnummer"_qs],    w[u"Kundennummer"_qs], Zahl_deutsch(w[u"Rabatt"_qs]).value_or(0),
            w[u"Lieferland"_qs],       w[u"Versandart"_qs],   w[u"Zahlungsart"_qs],
            w[u"Zahlungsbedingung"_qs]};
  }

  /// Announces the boxes, sets up the components.
  void Ansagen() {
    static const QMap<QString, Antwort> knoepfe{{u"Ja"_qs, Antwort::Ja},
                                                {u"Nein"_qs, Antwort::Nein},
                                                {u"Abbrechen"_qs, Antwort::Abbrechen},
                                                {u"OK"_qs, Antwort::OK}};
    for (const Belegzeile &z : Fall.Zeilen) {
      if (z.Wort == u"eingabe") {
        Dialoge.Erwarten_Eingabe(z.Schluessel, z.Wert() == u"leer" ? QString() : z.Wert());
      } else if (z.Wort == u"antwort") {
        if (!knoepfe.contains(z.Wert())) Bemaengeln(z, z.Wert());
        Dialoge.Erwarten(z.Schluessel, knoepfe.value(z.Wert()));
      } else if (z.Wort == u"komponente") {
        for (auto it = z.Felder.begin(); it != z.Felder.end(); ++it)
          Komponenten.Antworten[z.Schluessel][it.key()] =
              Als_Wert(it.value(), db::Spaltentyp::Ja_Nein).value_or(it.value().toInt());
      }
    }
  }

  void Buecher_pruefen(bool Rechnung, const Belegergebnis &Ergebnis) {
    const bool beleg = !Zeilen(u"kopf"_qs).empty();
    for (const char *name : {"kopf", "position", "posten", "zahlung", "reservierung", "rueckstand", "versand",
                             "bestand", "artikelbestand"}) {
      const QString wort = QLatin1String(name);
      auto tabelle = test::Tabelle_zum_Wort({{}, wort, {}});
      if (wort == u"kopf") tabelle.Tabelle = tabelle.Tabelle.section(u'|', Rechnung, Rechnung);
      auto zeilen = Zeilen(wort);
      if (wort == u"posten" && !(Rechnung && beleg)) zeilen.clear();
      db::Recordset rs = Abfragen({"SELECT * FROM ", db::Name{tabelle.Tabelle}});
      EXPECT_TRUE(!tabelle.Vollstaendig || rs.RecordCount() == int(zeilen.size()))
          << tabelle.Tabelle.toStdString() << " has " << rs.RecordCount() << " rows, must have "
          << zeilen.size();
      for (const Belegzeile *z : zeilen) {
        rs.MoveFirst();
        while (wort != u"kopf" && !rs.IsEOF() && rs.Text(tabelle.Schluesselfeld) != z->Schluessel)
          rs.MoveNext();
        if (rs.IsEOF()) Bemaengeln(*z, u"no such row"_qs);
        for (auto it = z->Felder.begin(); it != z->Felder.end() && !rs.IsEOF(); ++it) {
          if (!rs.HasField(it.key()) || !Gleich(rs.Value(it.key()), it.value()))
            Bemaengeln(*z,
                       u"%1 is %2, must be %3"_qs.arg(it.key(), Als_Text(rs.Value(it.key())), it.value()));
        }
      }
    }
    EXPECT_EQ(!Ergebnis.Belegnummer.isEmpty(), beleg);
    EXPECT_EQ(Abfragen("SELECT * FROM LogisticsEASYLOG").RecordCount(), beleg ? 1 : 0);
    EXPECT_EQ(Ergebnis.Hindernis == Beleghindernis::Keines, beleg);
    for (const Belegzeile *z : Zeilen(u"zaehler"_qs)) {
      for (auto it = z->Felder.begin(); it != z->Felder.end(); ++it)
        EXPECT_EQ(Option_lesen(u"NumberRange"_qs, it.key()).toStdString(), it.value().toStdString())
            << it.key().toStdString();
    }
  }

  void Fenster_pruefen() {
    size_t fenster = 0;
    for (const Belegzeile &z : Fall.Zeilen) {
      fenster += z.Wort == u"antwort" || z.Wort == u"eingabe";
      if (z.Wort != u"wortlaut") continue;
      ASSERT_TRUE(fenster > 0 && fenster <= Dialoge.Gezeigt.size()) << z.Ort.toStdString();
      const auto &g = Dialoge.Gezeigt[fenster - 1];
      const char *bilder[] = {"Ohne", "Information", "Frage", "Warnung", "Stopp"};
      const char *knoepfe[] = {"OK", "Ja", "Nein", "Abbrechen"};
      const bool eingabe = g.Was == test::Dialoge_Skript::Art::Eingabe;
      const QStringList art{QLatin1String(bilder[int(g.Bild)]),
                            eingabe ? g.Vorbelegung : QLatin1String(knoepfe[int(g.Vorgabe)])};
      EXPECT_EQ(g.Zeilen.join(u" | "_qs).simplified().toStdString(), z.Wert().toStdString())
          << z.Ort.toStdString();
      EXPECT_TRUE(z.Schluessel == art[0] || z.Schluessel == art.join(u'/'))
          << z.Ort.toStdString() << " is " << art.join(u'/').toStdString();
    }
    EXPECT_TRUE(Fortschritt.Sichtbar) << "a box took the progress window away";
  }

  void Aufrufe_pruefen() const {
    const auto soll = Zeilen(u"aufruf"_qs);
    EXPECT_EQ(Komponenten.Aufrufe.size(), qsizetype(soll.size()))
        << Komponenten.Aufrufe.join(u'\n').toStdString();
    for (qsizetype i = 0; i < std::min(Komponenten.Aufrufe.size(), qsizetype(soll.size())); ++i) {
      const QString text = soll[size_t(i)]->Schluessel + u" = "_qs + soll[size_t(i)]->Wert(),
                    ist = Komponenten.Aufrufe[i];
      if (!(text.endsWith(u'*') ? ist.startsWith(text.chopped(1)) : ist == text))
        Bemaengeln(*soll[size_t(i)], ist);
    }
  }

  test::Testmandant Mandant;
  const Belegfall &Fall;
  test::Dialoge_Skript Dialoge;
  test::Fortschritt_Skript Fortschritt;
  Komponentenbuch Komponenten;
};

TEST_P(Belege_Test, Buecher_nach_dem_Beleg) {
  for (const QString &fehler : Fall.Fehler) ADD_FAILURE() << fehler.toStdString();
  Buecher_fuellen();
  Ansagen();
  Fortschritt.Einblenden();
  const Belegvorgabe vorgabe = Vorgabe();
  if (HasFailure()) return;
  const bool rechnung = Fall.Beleg == u"Rechnung";
  const Belegergebnis ergebnis = rechnung ? Rechnung_erzeugen(vorgabe) : Auftrag_erzeugen(vorgabe);
  Fenster_pruefen();
  Aufrufe_pruefen();
  Buecher_pruefen(rechnung, ergebnis);
}

std::string Fallname(const testing::TestParamInfo<std::tuple<int, size_t>> &Info) {
  const Belegfall &fall = Faelle()[std::get<1>(Info.param)];
  QString name =
      fall.Titel + u'_' + fall.Beleg + (std::get<0>(Info.param) == 0 ? u"_Jet"_qs : u"_SqlServer"_qs);
  return name.replace(QRegularExpression(u"[^A-Za-z0-9]+"_qs), u"_"_qs).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Faelle, Belege_Test,
                         testing::Combine(testing::Values(0, 1), testing::Range<size_t>(0, Faelle().size())),
                         Fallname);

TEST(Belegtabellen_Test, Sind_da) { EXPECT_FALSE(Faelle().empty()) << MARKLINK_BELEGTABELLEN; }

TEST(Belegrabatt_Test, Genau_1_heisst_keiner) {
  const std::pair<QString, double> faelle[] = {
      {u"1"_qs, 0}, {u"1.00"_qs, 0}, {u"1.5"_qs, 1.5}, {u"0,99"_qs, 0.99}, {u""_qs, 0}};
  for (const auto &[text, rabatt] : faelle) EXPECT_EQ(Belegrabatt_lesen(text), rabatt) << text.toStdString();
}

}  // namespace
}  // namespace marklink
