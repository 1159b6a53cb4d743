// The grid by key and click, over a list that is edited and over orders that are marked.
#include "ui/clsTabelle.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>

#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "support/Fenster_Test.h"
#include "support/Testmandant.h"

namespace marklink {
namespace {

using Art = Tabellenspalte::Art;

/// Rows in memory; a row needs a text in column 0, a new one without it is given up.
class Liste : public Tabellenquelle {
 public:
  std::vector<std::vector<QVariant>> Inhalt;
  std::vector<std::optional<qint32>> Farben;
  int Spaltenzahl = 0;
  mutable int Gefragt = 0;

  int Zeilen() const override { return int(Inhalt.size()); }
  QVariant Zelle(int Zeile, int Spalte) const override {
    ++Gefragt;
    return Inhalt.at(size_t(Zeile)).at(size_t(Spalte));
  }
  bool Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) override {
    Inhalt.at(size_t(Zeile)).at(size_t(Spalte)) = Wert;
    return true;
  }
  std::optional<qint32> Zeilenfarbe(int Zeile) const override {
    return size_t(Zeile) < Farben.size() ? Farben[size_t(Zeile)] : std::nullopt;
  }
  bool Zeile_anfuegen() override {
    Inhalt.emplace_back(size_t(Spaltenzahl));
    return true;
  }
  void Zeile_entfernen(int Zeile) override { Inhalt.erase(Inhalt.begin() + Zeile); }
  Zeilenurteil Zeile_beenden(int Zeile, bool Neu) override {
    if (!Inhalt.at(size_t(Zeile))[0].toString().isEmpty()) return Zeilenurteil::Annehmen;
    return Neu ? Zeilenurteil::Verwerfen : Zeilenurteil::Ablehnen;
  }
  QString Text() const {
    QStringList zeilen;
    for (const auto &zeile : Inhalt) zeilen << zeile[0].toString() + u'/' + zeile[1].toString();
    return zeilen.join(u' ');
  }
};

class Listentabelle_Test : public testing::Test {
 protected:
  Listentabelle_Test() {
    liste.Spaltenzahl = 3;
    liste.Inhalt = {{u"eins"_qs, u"1"_qs, false}, {u"zwei"_qs, u"2"_qs, true}};
    grid.Einrichten(liste,
                    {{u"Description"_qs, u"Bezeichnung"_qs, Art::Text, true, {}, {}, true},
                     {u"WebshopID"_qs, u"Webshop-ID"_qs, Art::Zahl, true, {}, u"0123456789"_qs},
                     {u"Active"_qs, u"Aktiv"_qs, Art::Haken, true}},
                    true);
    grid.resize(500, 220);
    test::Zeigen(grid);
    grid.setFocus();
  }
  void klick(int Zeile, int Spalte) {
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, test::Mitte(grid, Zeile, Spalte));
  }
  QWidget *editor() {  // closed ones are still there until the next round of the message loop
    for (auto *feld : grid.viewport()->findChildren<QLineEdit *>())
      if (feld->isVisible()) return feld;
    return nullptr;
  }

  void im_editor(const QString &Text, Qt::Key Danach) {
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), Text);
    QTest::keyClick(editor(), Danach);
    QCoreApplication::processEvents();
  }

  Liste liste;
  clsTabelle grid;
};

TEST_F(Listentabelle_Test, neue_Zeile_tippen) {
  const QAbstractItemModelTester pruefer(grid.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  QSignalSpy geaendert(&grid, &clsTabelle::Zelle_geaendert), tasten(&grid, &clsTabelle::Taste_gedrueckt);
  klick(2, 0);
  EXPECT_EQ(grid.Aktuelle_Zeile(), -1);
  QTest::keyClicks(&grid, u"d"_qs);
  im_editor(u"rei"_qs, Qt::Key_Tab);
  EXPECT_EQ(liste.Text(), u"eins/1 zwei/2 drei/"_qs);
  EXPECT_EQ(grid.model()->rowCount(), 4);
  EXPECT_EQ(grid.Aktuelle_Zeile(), 2);
  EXPECT_EQ(geaendert.size(), 1);
  EXPECT_GE(tasten.size(), 5);
  ASSERT_NE(editor(), nullptr);  // Tab has opened the next cell
  QTest::keyClicks(editor(), u"x3-4"_qs);
  EXPECT_TRUE(grid.Bearbeitung_abschliessen());
  EXPECT_EQ(liste.Text(), u"eins/1 zwei/2 drei/34"_qs);
  EXPECT_EQ(editor(), nullptr);
  // A key that the column does not take opens no editor.
  QTest::keyClicks(&grid, u"x"_qs);
  EXPECT_EQ(editor(), nullptr);
}

TEST_F(Listentabelle_Test, Zeichenfilter_haelt_keinen_alten_Text_fest) {
  liste.Inhalt[0][1] = u"5.00"_qs;
  const auto bearbeiten = [this] {
    grid.Zelle_anspringen(0, u"WebshopID"_qs);
    QTest::keyClick(&grid, Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
  };
  bearbeiten();
  im_editor(QString(), Qt::Key_Return);
  EXPECT_EQ(editor(), nullptr) << "Enter closes the editor, whatever stands in it";
  bearbeiten();
  QTest::keyClick(editor(), Qt::Key_End);
  for (const auto &[zwischenablage, danach] : {std::pair{u"abc", u"5.00"}, {u"1.5x", u"5.0015"}}) {
    QApplication::clipboard()->setText(QString::fromUtf16(zwischenablage));
    QTest::keyClick(editor(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(qobject_cast<QLineEdit *>(editor())->text(), QString::fromUtf16(danach));
  }
  im_editor(u"x6"_qs, Qt::Key_Return);
  EXPECT_EQ(liste.Text(), u"eins/5.00156 zwei/2"_qs);
}

TEST_F(Listentabelle_Test, aufgegebene_neue_Zeile_geht_ohne_Spur) {
  const QAbstractItemModelTester pruefer(grid.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  klick(2, 0);
  QTest::keyClick(&grid, Qt::Key_F2);
  im_editor({}, Qt::Key_Return);  // nothing typed: no row was begun
  EXPECT_EQ(liste.Zeilen(), 2);
  klick(2, 1);
  QTest::keyClicks(&grid, u"9"_qs);
  im_editor({}, Qt::Key_Return);
  EXPECT_EQ(liste.Zeilen(), 3);
  QTest::keyClick(&grid, Qt::Key_Down);  // leaves it without a text in column 0
  EXPECT_EQ(liste.Zeilen(), 2);
  EXPECT_EQ(grid.currentIndex().row(), 2);
  klick(2, 0);  // the second click on a cell opens its editor
  klick(2, 0);
  im_editor({}, Qt::Key_Escape);
  klick(2, 2);  // a check mark begins a row too; Escape takes it back
  EXPECT_EQ(liste.Zeilen(), 3);
  QTest::keyClick(&grid, Qt::Key_Escape);
  EXPECT_EQ(liste.Zeilen(), 2);
  EXPECT_EQ(grid.model()->rowCount(), 3);
}

TEST_F(Listentabelle_Test, abgelehnte_Zeile_haelt_den_Cursor) {
  klick(0, 0);
  QTest::keyClick(&grid, Qt::Key_F2);
  im_editor({}, Qt::Key_Backspace);
  klick(1, 1);  // the editor is left, the row is not
  EXPECT_EQ(liste.Text(), u"/1 zwei/2"_qs);
  EXPECT_EQ(grid.Aktuelle_Zeile(), 0);
  QTest::keyClick(&grid, Qt::Key_Down);
  EXPECT_EQ(grid.Aktuelle_Zeile(), 0);
  EXPECT_FALSE(grid.Bearbeitung_abschliessen());
  QTest::keyClick(&grid, Qt::Key_Escape);
  EXPECT_EQ(liste.Text(), u"eins/1 zwei/2"_qs);
  QTest::keyClick(&grid, Qt::Key_Down);
  EXPECT_EQ(grid.Aktuelle_Zeile(), 1);
  EXPECT_FALSE(grid.Bearbeitung_verwerfen());
}

TEST_F(Listentabelle_Test, Haken_Knopf_Kopf_und_Menue) {
  QSignalSpy knopf(&grid, &clsTabelle::Zellenknopf_gedrueckt), kopf(&grid, &clsTabelle::Kopf_geklickt),
      menue(&grid, &clsTabelle::Kontextmenue_gewuenscht);
  klick(0, 2);
  EXPECT_TRUE(liste.Inhalt[0][2].toBool());
  QTest::keyClick(&grid, Qt::Key_Space);
  EXPECT_FALSE(liste.Inhalt[0][2].toBool());
  QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, test::Mitte(grid, 0, 2));
  EXPECT_TRUE(liste.Inhalt[0][2].toBool());

  QRect zelle = grid.visualRect(grid.model()->index(0, 0));
  QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, zelle.center() + QPoint(zelle.width() / 2 - 6, 0));
  QTest::keyClick(&grid, Qt::Key_F4);
  ASSERT_EQ(knopf.size(), 2);
  EXPECT_EQ(knopf[0], (QVariantList{0, u"Description"_qs}));

  QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {},
                    QPoint(grid.columnViewportPosition(2) + 10, 10));
  ASSERT_EQ(kopf.size(), 1);
  EXPECT_EQ(kopf[0][0].toString(), u"Active"_qs);
  EXPECT_EQ(grid.Gewaehlte_Zeilen(), (std::vector<int>{0}));  // the head selects nothing

  QTest::mouseClick(grid.viewport(), Qt::RightButton, {}, test::Mitte(grid, 1, 0));
  EXPECT_EQ(grid.Aktuelle_Zeile(), 1);
  QContextMenuEvent ereignis(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(105, 105));
  QCoreApplication::sendEvent(grid.viewport(), &ereignis);
  ASSERT_EQ(menue.size(), 1);
  grid.selectAll();
  EXPECT_EQ(grid.Gewaehlte_Zeilen(), (std::vector<int>{0, 1}));
  test::Bild_machen(grid, u"clsTabelle_Liste"_qs);
}

TEST_F(Listentabelle_Test, Anordnung_ueberlebt_Laden_und_Ziehen) {
  grid.horizontalHeader()->moveSection(0, 2);
  grid.horizontalHeader()->resizeSection(1, 120);
  grid.setColumnHidden(2, true);
  liste.Inhalt.clear();
  grid.Neu_laden();
  EXPECT_EQ(grid.Aktuelle_Zeile(), -1);
  Tabellenlayout layout = grid.Anordnung();
  EXPECT_EQ(Spaltenfolge(layout), (std::vector<int>{1, 2, 0}));
  EXPECT_FALSE(layout.Spalten[2].Sichtbar);
  EXPECT_EQ(layout.Spalten[2].Breite, 1000);  // a hidden column keeps its width
  EXPECT_NEAR(layout.Spalten[1].Breite, 120 * 2.54 / 96 * 500, 1);
  const QString zeile = Layout_Zeile(layout, true, true);
  grid.Anordnung_setzen(Layout_neu(3));
  EXPECT_FALSE(grid.isColumnHidden(2));
  grid.Anordnung_setzen(layout);
  EXPECT_EQ(Layout_Zeile(grid.Anordnung(), true, true), zeile);
}

// --- the order desk's kind of grid

class Auftragstabelle_Test : public test::Mandant_Test {
 protected:
  Auftragstabelle_Test() {
    liste.Spaltenzahl = 7;
    for (int i = 0; i < 40; ++i)
      liste.Inhalt.push_back({i % 3 == 0, QString::number(100250 + i), u"Müller & Söhne GmbH"_qs,
                              QDateTime(QDate(2024, 6, 15), QTime(10, 30)), 1234.5 + i,
                              i == 1 ? u"Spedition (alt)"_qs : u"DHL Paket"_qs,
                              u"Hauptstr. 5\r\n12345 Berlin"_qs});
    liste.Farben = {0x80FFFF, std::nullopt, 0x800000};
    grid.setObjectName(u"jgTab"_qs);
    grid.Einrichten(liste, {{u"Invoice"_qs, u"Auswahl"_qs, Art::Haken, true},
                            {u"OrderID"_qs, u"Bestellnr."_qs},
                            {u"Customer"_qs, u"Kunde"_qs},
                            {u"Date"_qs, u"Datum"_qs, Art::Text, false, u"dd.mm.yyyy"_qs},
                            {u"Amount"_qs, u"Auftragswert"_qs, Art::Zahl, false, u"standard"_qs},
                            {u"Shipping"_qs, u"Versandart"_qs, Art::Auswahlliste, true},
                            {u"InvoiceAddress"_qs, u"Rechnungsanschrift"_qs}});
    grid.Auswahl_setzen(u"Shipping"_qs,
                        {{u"DHL Paket"_qs, u"4,90"_qs, u"31,5"_qs}, {u"Abholung"_qs, u"0,00"_qs, QString()}});
    grid.resize(700, 300);
  }
  Liste liste;
  clsTabelle grid;
};
MARKLINK_BEIDE_TYPEN(Auftragstabelle_Test);

TEST_P(Auftragstabelle_Test, Aussehen_aus_den_Einstellungen) {
  const auto groesse = [] { return Option_lesen(u"Program"_qs, u"GridFontSize"_qs); };
  const auto farbe = [this](int Zeile, Qt::ItemDataRole Rolle) {
    const QVariant wert = grid.model()->index(Zeile, 1).data(Rolle);
    return wert.isValid() ? wert.value<QColor>().name() : QString();
  };
  const std::tuple<const char16_t *, int, const char16_t *> schriften[] = {
      {u"6", 8, u"8"}, {u"", 8, u"8"}, {u"klein", 8, u"8"}, {u"12", 12, u"12"}, {u"9", 9, u"9"}};
  for (const auto &[schrift, punkt, danach] : schriften) {
    Mandant.Einstellen("Program", "GridFontSize", QString::fromUtf16(schrift));
    Tabelle_Aussehen_setzen(grid);
    EXPECT_EQ(grid.font().pointSize(), punkt);
    EXPECT_EQ(groesse(), QString::fromUtf16(danach));
  }
  Mandant.Einstellen("Program", "RowColorOdd", u"keine Farbe"_qs);
  Mandant.Einstellen("Program", "RowColorEven", u"16777088"_qs);  // 0xFFFF80: light blue
  Tabelle_Aussehen_setzen(grid);
  EXPECT_EQ(farbe(3, Qt::BackgroundRole), u"#80ffff"_qs);
  EXPECT_EQ(farbe(4, Qt::BackgroundRole), QString());      // the palette's
  EXPECT_EQ(farbe(0, Qt::BackgroundRole), u"#ffff80"_qs);  // the row's own goes first
  EXPECT_EQ(farbe(2, Qt::BackgroundRole), u"#000080"_qs);
  EXPECT_EQ(farbe(0, Qt::ForegroundRole), u"#000000"_qs);
  EXPECT_EQ(farbe(2, Qt::ForegroundRole), u"#ffffff"_qs);
  test::Bild_machen(grid, u"clsTabelle_Auftraege"_qs);
}

TEST_P(Auftragstabelle_Test, Anzeige_und_Auswahl) {
  const auto text = [this](int Spalte) { return grid.model()->index(1, Spalte).data().toString(); };
  EXPECT_EQ(text(3), u"15.06.2024"_qs);
  EXPECT_EQ(text(4), u"1.235,50"_qs);
  test::Zeigen(grid);
  EXPECT_EQ(grid.Aktuelle_Zeile(), 0);

  // A value that cannot be picked stays when nothing is picked, and goes when something is.
  const auto picken = [this](std::initializer_list<Qt::Key> Tasten) {
    grid.Zelle_anspringen(1, u"Shipping"_qs);
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_F2);
    QTest::qWait(20);
    auto *box = grid.viewport()->findChild<QComboBox *>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->findText(u"Spedition (alt)"_qs), -1);
    for (const Qt::Key taste : Tasten) QTest::keyClick(box->view(), taste);
    grid.Bearbeitung_abschliessen();
  };
  picken({Qt::Key_Escape});
  EXPECT_EQ(liste.Inhalt[1][5].toString(), u"Spedition (alt)"_qs);
  picken({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
  EXPECT_EQ(liste.Inhalt[1][5].toString(), u"Abholung"_qs);
}

TEST_P(Auftragstabelle_Test, fragt_nur_was_zu_sehen_ist) {
  while (liste.Zeilen() < 100'000) liste.Inhalt.push_back(liste.Inhalt[0]);
  liste.Gefragt = 0;
  grid.Neu_laden();
  test::Zeigen(grid);
  for (const Qt::Key taste : {Qt::Key_End, Qt::Key_PageUp, Qt::Key_Home}) {
    QTest::keyClick(&grid, taste, Qt::ControlModifier);
    QTest::qWait(20);
  }
  QTest::keyClicks(&grid, u"q"_qs);
  EXPECT_LT(liste.Gefragt, 20'000);
  QTest::keyClick(&grid, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(grid.Gewaehlte_Zeilen().size(), 100'000U);
}

}  // namespace
}  // namespace marklink
