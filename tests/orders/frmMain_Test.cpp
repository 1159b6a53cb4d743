// The order desk by key and click: whole stories on a client with staged orders, its shop recording.
#include "orders/frmMain.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

#include "Bestellantwort.h"
#include "Stapelmandant.h"
#include "articles/clsBildfeld.h"
#include "db/Verbindung.h"
#include "db/Zeitpunkt.h"
#include "host/Datenbank.h"
#include "host/Ini.h"
#include "host/Kontext.h"
#include "host/Zeichensatz.h"
#include "support/Dialoge_Skript.h"
#include "support/Fenster_Test.h"
#include "support/Shop_Attrappe.h"
#include "support/Testmandant.h"
#include "ui/clsTabelle.h"

namespace marklink {
namespace {

using test::Mitte;

const char *const ANGENOMMEN =
    "<?xml version=\"1.0\"?><STATUS><STATUS_DATA><MESSAGE>OK</MESSAGE></STATUS_DATA></STATUS>";

class frmMain_Test : public test::Mandant_Test {
 protected:
  frmMain_Test() {
    Shop.Einsetzen();
    Kontext.gViewablePeriod = 0;
    Mandant.Einstellen("Marklink", "autoretrieve", u"0"_qs);
    Shop.Einsetzen();
    const std::pair<const char16_t *, int> stati[] = {
        {u"offen", 0xC8FFFF}, {u"in Bearbeitung & Prüfung", 0xFFE0C0}, {u"versendet", 0x204060}};
    int id = 0;
    for (const auto &[text, farbe] : stati)
      Mandant.Zeile(u"WebshopOrderStatusXTC"_qs, {u"WebshopID"_qs, QString::number(++id), u"Description"_qs,
                                                  QString::fromUtf16(text), u"Colour"_qs, farbe});
    Mandant.Zeile(u"ForwardingCharges"_qs,
                  {u"Description"_qs, u"Paket"_qs, u"Costs"_qs, 4.9, u"Active"_qs, true});
    Mandant.Zeile(u"MethodPayments"_qs, {u"Description"_qs, u"Vorkasse"_qs, u"Active"_qs, true});
    for (int i = 1; i <= 6; ++i) Bestellung(i);
  }
  /// Orders 101 to 106; their statuses go 1, 2, 3, 1, 2, 3 and their months backwards from June.
  void Bestellung(int i) {
    const QString position = QStringLiteral("%1~2,5~M-%1~Wanderschuh Größe %1~1,5~49,9~Farbe: rot").arg(i);
    Mandant.Zeile(
        u"WebshopOrdersXTC"_qs,
        {u"OrderID"_qs,
         QString::number(100 + i),
         u"CustomerID"_qs,
         QString::number(i),
         u"Customer"_qs,
         QStringLiteral("Käufer %1").arg(i),
         u"Status"_qs,
         QString::number((i - 1) % 3 + 1),
         u"Date"_qs,
         Zeitpunkt(QDate(2024, 7 - i, 10), QTime(9, 30)),
         u"Amount"_qs,
         1234.5 * i,
         u"Currency"_qs,
         u"EUR"_qs,
         u"Email"_qs,
         QStringLiteral("k%1@example.de").arg(i),
         u"Rebate"_qs,
         u"0.00"_qs,
         u"Shipping"_qs,
         u"Kutsche"_qs,
         u"Payment"_qs,
         u"Vorkasse"_qs,
         u"ExtendedInfo"_qs,
         QStringLiteral("Konto %1").arg(i),
         u"Notes"_qs,
         QStringLiteral("Bitte klingeln bei %1").arg(i),
         u"InvoiceAddress"_qs,
         QStringLiteral("Jürgen Groß\r\nAm Ring %1\r\n01067 Dresden").arg(i),
         u"DeliveryAddress"_qs,
         QStringLiteral("Lager %1").arg(i),
         u"Positions"_qs,
         i == 6 ? QString() : position + QChar(0xD7) + QString(position).replace(u"rot"_qs, u"blau"_qs)});
  }
  void Oeffnen() {
    Fenster = std::make_unique<frmMain>();
    test::Zeigen(*Fenster);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Jg().Aktuelle_Zeile() == 0; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return Fenster->isActiveWindow(); }));
  }
  clsTabelle &Jg() { return Kind<clsTabelle>(u"jgTab"); }
  QTreeWidget &Stati() { return Kind<QTreeWidget>(u"lvwAuftragsstatus"); }
  QString Zelle(int Zeile, const char16_t *Spalte) {
    return Jg().model()->index(Zeile, Jg().Spalte_finden(QString::fromUtf16(Spalte))).data().toString();
  }
  QStringList Nummern() {
    QStringList nummern;
    for (int i = 0; i < Jg().model()->rowCount(); ++i) nummern << Zelle(i, u"OrderID");
    return nummern;
  }
  void Knopf(const char16_t *Name) { QTest::mouseClick(&Kind<QToolButton>(Name), Qt::LeftButton); }
  /// An entry of a drop-down or the context menu.
  void Eintrag(const char16_t *Name) { Kind<QAction>(Name).trigger(); }
  template <typename W>
  W &Kind(const char16_t *Name) {
    return test::Kind<W>(*Fenster, Name);
  }
  void Klick(int Zeile, const char16_t *Spalte) {
    const int spalte = Jg().Spalte_finden(QString::fromUtf16(Spalte));
    QTest::mouseClick(Jg().viewport(), Qt::LeftButton, {}, Mitte(Jg(), Zeile, spalte));
  }
  void Status_anhaken(int Zeile) { Stati().topLevelItem(Zeile)->setCheckState(0, Qt::Checked); }
  static QString Status(const char16_t *Nummer) {
    return Abfragen({"SELECT * FROM WebshopOrdersXTC WHERE OrderID = ", db::Wert{QString::fromUtf16(Nummer)}})
        .Text(u"Status"_qs);
  }
  test::Shop_Attrappe Shop;
  test::Dialoge_Skript Dialoge;
  std::unique_ptr<frmMain> Fenster;
};
MARKLINK_BEIDE_TYPEN(frmMain_Test);

TEST_P(frmMain_Test, Zeigt_die_Auftraege_und_was_zum_aktuellen_gehoert) {
  Oeffnen();
  EXPECT_EQ(Fenster->windowTitle(), u"Auftragsverwaltung für Marklink ab Version 1.0.8"_qs);
  EXPECT_EQ(Nummern(), (QStringList{u"101"_qs, u"102"_qs, u"103"_qs, u"104"_qs, u"105"_qs, u"106"_qs}));
  EXPECT_EQ(Zelle(1, u"Amount"), u"2.469,00"_qs);
  EXPECT_EQ(Zelle(0, u"Shipping"), u"Kutsche"_qs) << "a value that cannot be picked is shown all the same";
  const QAbstractItemModelTester pruefer(Jg().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  const auto farbe = [this](int zeile) {
    return Jg().model()->index(zeile, 3).data(Qt::BackgroundRole).value<QColor>();
  };
  EXPECT_EQ(farbe(0), QColor(0xFF, 0xFF, 0xC8)) << "the status' colour, blue first";
  EXPECT_EQ(farbe(3), farbe(0));
  EXPECT_EQ(Kind<QLabel>(u"lbAnzahl").text(), u"6 Bestellungen, 0 markiert"_qs);

  auto &positionen = Kind<QTreeWidget>(u"lvwPositionen");
  const auto erste = [&] {
    QStringList felder;
    for (int i = 0; i < 7; ++i) felder << positionen.topLevelItem(0)->text(i);
    return felder;
  };
  QTest::keyClick(&Jg(), Qt::Key_Down);
  EXPECT_EQ(erste(), (QStringList{u"2"_qs, u"M-2"_qs, u"2,5"_qs, u"Wanderschuh Größe 2"_qs, u"Farbe: rot"_qs,
                                  u"49,90"_qs, u"1,50"_qs}));
  EXPECT_EQ(Kind<QPlainTextEdit>(u"txtZahlungsinformationen").toPlainText(), u"Konto 2"_qs);
  EXPECT_EQ(Kind<QPlainTextEdit>(u"txtBemerkungen").toPlainText(), u"Bitte klingeln bei 2"_qs);
  EXPECT_TRUE(Kind<QPlainTextEdit>(u"txtRechnungsanschrift").toPlainText().contains(u"Am Ring 2"_qs));
  EXPECT_EQ(Kind<QPlainTextEdit>(u"txtLieferanschrift").toPlainText(), u"Lager 2"_qs);
  QTest::keyClick(&Jg(), Qt::Key_End, Qt::ControlModifier);
  EXPECT_EQ(positionen.topLevelItemCount(), 0) << "an order without positions";
}

TEST_P(frmMain_Test, Artikel_und_Bild_folgen_der_Position) {
  QImage bild(40, 20, QImage::Format_RGB32);
  bild.fill(Qt::red);
  QByteArray bytes;
  QBuffer puffer(&bytes);
  bild.save(&puffer, "PNG");
  Mandant.Zeile(u"ArticlePictures"_qs, {u"FileName"_qs, u"rot.png"_qs, u"Picture"_qs, bytes});
  for (const auto &[variante, name, graphic] : {std::tuple{u"Farbe: rot"_qs, u"Schuh rot"_qs, u"1"_qs},
                                                {u"Farbe: blau"_qs, u"Schuh blau"_qs, u"99"_qs}})
    Mandant.Zeile(u"Articles"_qs,
                  {u"ArticleNumber"_qs, name, u"ShortText"_qs, name, u"WebshopID"_qs, u"1"_qs,
                   u"WebshopVariantText"_qs, variante, u"Unit"_qs, u"Paar"_qs, u"Graphic"_qs, graphic});
  Mandant.Zeile(u"Warehouse"_qs, {u"StockingNumber"_qs, u"L1"_qs, u"ArticleNumber"_qs, u"Schuh rot"_qs,
                                  u"Disposable"_qs, 7.5, u"Unsociable"_qs, 2.0});
  Oeffnen();
  auto &feld = Kind<clsBildfeld>(u"picBild");
  EXPECT_EQ(Kind<QLabel>(u"lbKurztext").text(), u"Schuh rot"_qs);
  EXPECT_EQ(Kind<QLabel>(u"lbVerfuegbar").text(), u"7,5 Paar"_qs);
  ASSERT_TRUE(feld.Mit_Bild());
  test::Modale_Schritte modal;
  modal.Dann([](QWidget &vorschau) {
    EXPECT_EQ(vorschau.windowTitle(), u"Vorschau"_qs);
    QTest::mouseClick(vorschau.findChild<QWidget *>(u"picBild"_qs), Qt::LeftButton);
    EXPECT_FALSE(vorschau.isVisible()) << "a click closes it";
  });
  QTest::mouseClick(&feld, Qt::LeftButton);

  auto &positionen = Kind<QTreeWidget>(u"lvwPositionen");
  QTest::mouseClick(positionen.viewport(), Qt::LeftButton, {},
                    positionen.visualItemRect(positionen.topLevelItem(1)).topLeft() + QPoint(20, 5));
  EXPECT_EQ(Kind<QLabel>(u"lbKurztext").text(), u"Schuh blau"_qs);
  EXPECT_FALSE(feld.Mit_Bild()) << "neither its picture nor noimage.jpg is there";
  QTest::mouseClick(&feld, Qt::LeftButton);
  QTest::keyClick(&Jg(), Qt::Key_Down);
  EXPECT_EQ(Kind<QLabel>(u"lbKurztext").text() + Kind<QLabel>(u"lbVerfuegbar").text(), QString())
      << "an article that the client does not know";
}

TEST_P(frmMain_Test, Abrufen_und_nach_Status_und_Zeitraum_filtern) {
  const QByteArray neue = Nach_1252(u"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><ORDER>"_qs +
                                    test::Bestellung(u"500"_qs) + u"</ORDER>"_qs);
  Shop.Antworten("get_orders", neue.constData());
  Oeffnen();
  EXPECT_TRUE(Shop.Anfragen().empty()) << "opening fetches only where that is wanted";
  Dialoge.Erwarten(u"Hinweis"_qs);
  Eintrag(u"Bestellungen_abrufen_auftragsstatusliste");
  EXPECT_EQ(Shop.Parameter(0), "") << "no status checked: all orders";
  EXPECT_EQ(Nummern().size(), 7);

  QTest::mouseClick(Stati().viewport(), Qt::LeftButton, {},
                    Stati().visualItemRect(Stati().topLevelItem(0)).topLeft() + QPoint(10, 10));
  Status_anhaken(0);
  Status_anhaken(2);
  EXPECT_EQ(Nummern().size(), 7) << "checking alone loads nothing";
  Dialoge.Erwarten(u"Hinweis"_qs);
  Eintrag(u"Bestellungen_abrufen_auftragsstatusliste");
  EXPECT_EQ(Shop.Parameter(1), "&order_status='1','3'");
  QTest::keyClick(&Jg(), Qt::Key_F5);
  EXPECT_EQ(Nummern(), (QStringList{u"101"_qs, u"103"_qs, u"104"_qs, u"106"_qs, u"500"_qs}));

  auto &zeitraum = Kind<QComboBox>(u"cboZeitraum");
  EXPECT_EQ(zeitraum.count(), 41);
  zeitraum.setCurrentText(u"Juni"_qs);
  EXPECT_EQ(Kontext.gViewablePeriod, 22);
  EXPECT_EQ(Nummern(), QStringList{u"101"_qs});
  zeitraum.setCurrentText(u"benutzerdefiniert"_qs);
  EXPECT_EQ(Nummern(), QStringList());
  EXPECT_EQ(Kind<QTreeWidget>(u"lvwPositionen").topLevelItemCount(), 0);
  Kontext.gLaeuft = true;
  zeitraum.setCurrentIndex(0);
  QTest::keyClick(&Jg(), Qt::Key_F5);
  Knopf(u"Bestellungen");
  EXPECT_EQ(Shop.Anfragen().size(), 2U) << "nothing starts in the middle of a run";
  EXPECT_EQ(zeitraum.currentIndex(), 40);
  Kontext.gLaeuft = false;
}

TEST_P(frmMain_Test, Markieren_und_Bearbeiten_bleiben_in_der_Liste) {
  Oeffnen();
  const auto marken = [this] { return Kind<QLabel>(u"lbAnzahl").text().section(u", "_qs, 1); };
  Klick(1, u"Invoice");
  Klick(3, u"Invoice");
  Klick(3, u"Invoice");
  EXPECT_EQ(marken(), u"1 markiert"_qs);
  QHeaderView &kopf = *Jg().horizontalHeader();
  QTest::mouseClick(kopf.viewport(), Qt::LeftButton, {}, QPoint(kopf.sectionViewportPosition(0) + 20, 10));
  EXPECT_EQ(marken(), u"6 markiert"_qs);
  Eintrag(u"mnuKontext_Markierung_aufheben");
  EXPECT_EQ(marken(), u"0 markiert"_qs);
  Eintrag(u"mnuKontext_Alles_markieren");
  EXPECT_EQ(marken(), u"6 markiert"_qs);

  Jg().Zelle_anspringen(0, u"Rebate"_qs);
  QTest::keyClick(&Jg(), Qt::Key_X);
  EXPECT_EQ(QApplication::focusWidget(), &Jg()) << "a key that the column drops opens no editor";
  QTest::keyClicks(&Jg(), u"7"_qs);
  QWidget *editor = QApplication::focusWidget();
  QTest::keyClicks(editor, u",a5"_qs);
  // An edit that is still open counts for the command.
  Eintrag(u"mnuKontext_Markierung_aufheben");
  EXPECT_EQ(Zelle(0, u"Rebate"), u"7,5"_qs);
  EXPECT_EQ(Abfragen("SELECT * FROM WebshopOrdersXTC WHERE OrderID = '101'").Text(u"Rebate"_qs), u"0.00"_qs);
  QTest::keyClick(&Jg(), Qt::Key_F5);
  EXPECT_EQ(Zelle(0, u"Rebate"), u"0.00"_qs);
  QTest::keyClick(&Jg(), Qt::Key_Escape);
  EXPECT_TRUE(Kontext.gAbbrechen);
}

TEST_P(frmMain_Test, Status_ueber_den_Dialog) {
  Shop.Antworten("set_order_update", ANGENOMMEN);
  Shop.Antworten("set_order_update", test::Shop_Antwort{"", 500});
  Oeffnen();
  Klick(1, u"Customer");
  {
    test::Modale_Schritte modal;
    modal.Dann([](QWidget &dialog) {
      test::Bild_machen(dialog, u"frmBestellstatus"_qs);
      EXPECT_EQ(dialog.windowTitle(), u"Bestellstatus: Bestellnummer [102]"_qs);
      auto &liste = test::Kind<QTreeWidget>(dialog, u"lvwAuftragsstatus");
      ASSERT_EQ(liste.selectedItems().size(), 1);
      EXPECT_EQ(liste.selectedItems()[0]->text(0), u"3"_qs) << "the next status is proposed";
      QTest::mouseClick(liste.viewport(), Qt::LeftButton, {},
                        liste.visualItemRect(liste.topLevelItem(0)).center());
      test::Kind<QPlainTextEdit>(dialog, u"txtKommentar").setPlainText(u"Danke & Grüße"_qs);
      QTest::keyClick(&test::Kind<QCheckBox>(dialog, u"chkEmail"), Qt::Key_Space);
      QTest::mouseClick(&test::Kind<QPushButton>(dialog, u"cmdOK"), Qt::LeftButton);
    });
    Dialoge.Erwarten(u"Hinweis"_qs);
    Eintrag(u"mnuKontext_Status_Dialog");
  }
  EXPECT_EQ(Shop.Parameter(0),
            "&order_id=102&status=1&notify=on&notify_comments=off&comments=Danke%20%26%20Gr%FC%DFe");
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen,
            QStringList{u"Der Status der Bestellung wurde erfolgreich geändert."_qs});
  EXPECT_EQ(Zelle(1, u"Status"), u"1"_qs) << "the list was loaded again";

  // The proposed status is none that exists, and the shop fails: the table changes all the same.
  Klick(2, u"Customer");
  {
    test::Modale_Schritte modal;
    modal.Dann([](QWidget &dialog) {
      auto &liste = test::Kind<QTreeWidget>(dialog, u"lvwAuftragsstatus");
      EXPECT_TRUE(liste.selectedItems().isEmpty());
      liste.setFocus(Qt::TabFocusReason);
      QTest::keyClick(&test::Kind<QPushButton>(dialog, u"cmdOK"), Qt::Key_Return);
    });
    Dialoge.Erwarten(u"Hinweis"_qs);
    Eintrag(u"mnuKontext_Status_Dialog");
    EXPECT_EQ(Status(u"103"), u"4"_qs);
    modal.Dann([](QWidget &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    Eintrag(u"mnuKontext_Status_Dialog");
  }
  EXPECT_EQ(Shop.Anfragen().size(), 2U) << "Escape sends nothing";
}

TEST_P(frmMain_Test, Status_ueber_das_Menue) {
  Shop.Antworten("set_order_update", ANGENOMMEN);
  Oeffnen();
  Dialoge.Erwarten(u"Hinweis"_qs);
  Eintrag(u"mnuKontext_Status_setzen_3");
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen[0], u"Es wurden keine Aufträge ausgewählt. "_qs);
  for (const int zeile : {4, 0, 1}) Klick(zeile, u"Invoice");
  Eintrag(u"mnuKontext_Status_setzen_3");
  ASSERT_EQ(Shop.Anfragen().size(), 3U);
  EXPECT_EQ(Shop.Parameter(2), "&order_id=105&status=3&notify=off&notify_comments=off&comments=");
  EXPECT_EQ(Status(u"101") + Status(u"102") + Status(u"105") + Status(u"104"), u"3331"_qs);
}

class Rechnungen_vom_Pult : public testing::TestWithParam<int> {};
MARKLINK_BEIDE_TYPEN(Rechnungen_vom_Pult);

TEST_P(Rechnungen_vom_Pult, Knopf_macht_Rechnungen_der_markierten) {
  test::Stapelmandant mandant(GetParam(), 0);
  mandant.Artikel(1, u"Ware"_qs, {{u"L1"_qs, 50}});
  for (const int nummer : {1, 2, 3}) mandant.Bestellung(nummer, u"PayPal"_qs, {{1, 2}});
  mandant.Starten();
  Kontext.gViewablePeriod = 0;
  test::Dialoge_Skript dialoge;
  frmMain fenster;
  test::Zeigen(fenster);
  auto &gitter = test::Kind<clsTabelle>(fenster, u"jgTab");
  ASSERT_TRUE(QTest::qWaitFor([&gitter] { return gitter.Aktuelle_Zeile() == 0; }));
  for (const int zeile : {0, 2})
    QTest::mouseClick(gitter.viewport(), Qt::LeftButton, {}, Mitte(gitter, zeile, 0));
  QTest::mouseClick(&test::Kind<QToolButton>(fenster, u"Rechnung"), Qt::LeftButton);
  EXPECT_EQ(
      mandant.Spalte(u"SELECT OrderingNumber FROM Invoice WHERE OrderingNumber IS NOT NULL ORDER BY 1"_qs),
      (QStringList{u"1"_qs, u"3"_qs}));
  EXPECT_EQ(mandant.Ungereimtheit(), QString());
  dialoge.Erwarten(u"Hinweis"_qs);
  test::Kind<QAction>(fenster, u"mnuKontext_Rechnungscheck").trigger();
  EXPECT_EQ(dialoge.Gezeigt.back().Zeilen[0],
            u"Für diese Bestellung wurde bereits eine Rechnung erstellt."_qs);
  EXPECT_TRUE(dialoge.Gezeigt.back().Zeilen[1].startsWith(u"Rechnungsnummer: RE"_qs));
}

TEST_P(frmMain_Test, Fragen_und_Schirme_der_Leiste) {
  Oeffnen();
  const struct {
    const char16_t *Schluessel, *Titel;
    Antwort Gegeben;
  } boxen[] = {
      {u"Kunden", u"Kunden anlegen", Antwort::Nein},
      {u"Kunden", u"Kunden anlegen", Antwort::Ja},  // then: nothing is marked
      {u"Auftrag", u"Hinweis", Antwort::OK},
      {u"Rechnung", u"Hinweis", Antwort::OK},
      {u"mnuKontext_Rechnungscheck", u"Hinweis", Antwort::OK},
      {u"Bestellungen_Loeschen", u"Bestellung in Varda löschen", Antwort::Nein},
  };
  for (const auto &box : boxen) {
    Dialoge.Erwarten(QString::fromUtf16(box.Titel), box.Gegeben);
    if (box.Gegeben == Antwort::Ja) Dialoge.Erwarten(u"Hinweis"_qs);
    Eintrag(box.Schluessel);
  }
  EXPECT_EQ(Nummern().size(), 6);
  const std::pair<const char16_t *, const char16_t *> schirme[] = {
      {u"Einstellung", u"frmEinstellungen"},
      {u"Versand", u"frmVersender_EASYLOG"},
      {u"versand_einstellungen", u"frmVersender_EASYLOG_Einstellungen"},
      {u"einstellungen_auftragsstati", u"frmListen_Auftragsstati"},
      {u"einstellungen_kundengruppen", u"frmListen_Kundengruppen"},
      {u"einstellungen_lieferzeiten", u"frmListen_Lieferzeiten"},
      {u"einstellungen_sprachen", u"frmListen_Sprachen"},
      {u"einstellungen_verpackungseinheiten", u"frmListen_Einheiten"},
      {u"einstellungen_artikelvorlagen_details", u"frmListen_Artikelvorlagen_Details"},
      {u"einstellungen_artikelvorlagen_optionen", u"frmListen_Artikelvorlagen_Optionen"},
  };
  for (const auto &[schluessel, schirm] : schirme) {
    Dialoge.Erwarten_Schirm(QString::fromUtf16(schirm));
    Eintrag(schluessel);
  }
  Kontext.gVersender = 1;
  Eintrag(u"Versand");
  Dialoge.Erwarten_Eingabe(u"Referenznummer eingeben"_qs, QString());
  Dialoge.Erwarten(u"Hinweis"_qs);
  Eintrag(u"mnuKontext_Versender");
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen[0], u"Sie haben leider keine Referenznummer vergeben."_qs);
  Dialoge.Erwarten(u"Bestellung in Varda löschen"_qs, Antwort::Ja);
  Dialoge.Erwarten(u"Hinweis"_qs);
  Eintrag(u"Bestellungen_Loeschen");
  EXPECT_EQ(Dialoge.Gezeigt.back().Zeilen, QStringList{u"Die Bestellung wurden in Varda gelöscht."_qs});
  EXPECT_EQ(Nummern().size(), 0);
  Eintrag(u"mnuKontext_Status_Dialog");  // without a row there is nothing to do, and no box
}

TEST_P(frmMain_Test, Neue_Farben_gelten_sobald_die_Statusliste_zu_ist) {
  Oeffnen();
  Status_anhaken(1);
  Ausfuehren("UPDATE WebshopOrderStatusXTC SET Colour = 255 WHERE WebshopID = '1'");
  Dialoge.Erwarten_Schirm(u"frmListen_Auftragsstati"_qs);
  Eintrag(u"einstellungen_auftragsstati");
  EXPECT_EQ(Jg().model()->index(0, 3).data(Qt::BackgroundRole).value<QColor>(), QColor(255, 0, 0));
  EXPECT_EQ(Stati().topLevelItem(1)->checkState(0), Qt::Checked);
  EXPECT_EQ(Stati().topLevelItem(0)->checkState(0), Qt::Unchecked);
}

TEST_P(frmMain_Test, Schliessen_mit_jeder_Antwort) {
  const struct {
    const char *Fall;
    QString Finalize;
    bool Frage;
    Antwort Gegeben;
    bool Zu;
  } faelle[] = {{"no question", u"0"_qs, false, Antwort::OK, true},
                {"No", u"1"_qs, true, Antwort::Nein, false},
                {"Yes", u"1"_qs, true, Antwort::Ja, true}};
  for (const auto &fall : faelle) {
    Option_schreiben(u"Program"_qs, u"Finalize"_qs, fall.Finalize);
    Ini_schreiben(Kontext.gLayoutDatei, u"Layout"_qs, u"Webshop_Auftragsliste_xtc"_qs, QString());
    Oeffnen();
    Kind<QComboBox>(u"cboZeitraum").setCurrentIndex(29);
    Jg().setColumnWidth(1, 200);
    Fenster->resize(780, 580);
    if (fall.Frage) Dialoge.Erwarten(u"Beenden"_qs, fall.Gegeben);
    Knopf(u"Beenden");
    EXPECT_EQ(Fenster->isHidden(), fall.Zu) << fall.Fall;
    EXPECT_EQ(Option_lesen(u"Marklink"_qs, u"ViewablePeriod"_qs), u"29"_qs) << fall.Fall;
    EXPECT_EQ(Ini_lesen(Kontext.gLayoutDatei, u"Layout"_qs, u"Webshop_Auftragsliste_xtc"_qs).isEmpty(),
              !fall.Zu)
        << fall.Fall;
    Kontext.gViewablePeriod = 0;
  }
  Oeffnen();
  EXPECT_EQ(Fenster->size(), QSize(780, 580));
  EXPECT_NEAR(Jg().columnWidth(1), 200, 1);
}

TEST_P(frmMain_Test, Schliessen_mitten_in_einem_Lauf_wartet_auf_sein_Ende) {
  Oeffnen();
  Eintrag(u"mnuKontext_Alles_markieren");
  Shop.Skript_setzen([](const QByteArray &) { return test::Shop_Antwort{ANGENOMMEN}; });
  int fragen = 0;
  QTimer einmal;
  einmal.setSingleShot(true);
  QObject::connect(&einmal, &QTimer::timeout, [&] {
    ++fragen;
    Fenster->close();
    EXPECT_TRUE(Fenster->isVisible());
  });
  einmal.start(0);  // fires in the message loop between two orders
  Eintrag(u"mnuKontext_Status_setzen_2");
  EXPECT_EQ(fragen, 1);
  EXPECT_LT(Shop.Anfragen().size(), 6U) << "the run was told to end";
  EXPECT_TRUE(QTest::qWaitFor([this] { return Fenster->isHidden(); }));
}

TEST_P(frmMain_Test, Ein_fremder_Lauf_laesst_alles_ruhen) {
  QImage bild(8, 8, QImage::Format_RGB32);
  bild.fill(Qt::red);
  ASSERT_TRUE(bild.save(Kontext.gProgrammpfad + u"noimage.jpg"_qs));
  Kontext.gLaeuft = true;
  Fenster = std::make_unique<frmMain>();
  test::Zeigen(*Fenster);
  QTest::qWait(600);  // also behind the second look
  EXPECT_EQ(Nummern(), QStringList()) << "the list cannot be loaded now";
  Kontext.gLaeuft = false;
  ASSERT_TRUE(QTest::qWaitFor([this] { return Nummern().size() == 6; }));

  Kontext.gLaeuft = true;
  QStringList gesehen;
  db::Beobachter_setzen([&gesehen](const QString &Text) { gesehen << Text; });
  auto &positionen = Kind<QTreeWidget>(u"lvwPositionen");
  ASSERT_TRUE(Kind<clsBildfeld>(u"picBild").Mit_Bild());
  {
    const test::Modale_Schritte kein_Fenster;
    Klick(2, u"Invoice");
    Klick(2, u"Rebate");
    Klick(2, u"Rebate");
    QTest::keyClicks(QApplication::focusWidget(), u"7"_qs);
    QTest::mouseClick(positionen.viewport(), Qt::LeftButton, {},
                      positionen.visualItemRect(positionen.topLevelItem(1)).topLeft() + QPoint(20, 5));
    QTest::mouseClick(&Kind<clsBildfeld>(u"picBild"), Qt::LeftButton);
    QTest::qWait(20);
    Fenster->close();
  }
  db::Beobachter_setzen({});
  EXPECT_EQ(gesehen, QStringList());
  EXPECT_EQ(Zelle(2, u"Rebate"), u"0.00"_qs);
  EXPECT_EQ(Kind<QLabel>(u"lbAnzahl").text(), u"6 Bestellungen, 0 markiert"_qs);
  EXPECT_TRUE(Fenster->isVisible());
  Kontext.gLaeuft = false;
  QTest::keyClick(&Jg(), Qt::Key_F5);
  QCoreApplication::processEvents();
  EXPECT_TRUE(Fenster->isVisible()) << "that close is forgotten";
}

TEST_P(frmMain_Test, Passt_auf_den_Bildschirm) {
  const auto oeffnen = [this]() -> QWidget & {
    Oeffnen();
    return *Fenster;
  };
  test::Kleiner_Bildschirm(oeffnen, u"frmMain"_qs);
  Oeffnen();
  Klick(1, u"Invoice");
  Fenster->resize(1280, 770);
  test::Bild_machen(*Fenster, u"frmMain"_qs);
  Kind<QTabWidget>(u"gnTab1").setCurrentIndex(1);
  test::Bild_machen(*Fenster, u"frmMain_Kunde"_qs);
  Kind<QMenu>(u"mnuKontext").popup(Fenster->mapToGlobal(QPoint(400, 100)));
  test::Bild_machen(Kind<QMenu>(u"mnuKontext"), u"frmMain_Kontext"_qs);
  Kind<QMenu>(u"mnuKontext").close();
  QMenu &liste = *Kind<QToolButton>(u"Einstellung").menu();
  liste.popup(Fenster->mapToGlobal(QPoint(400, 100)));
  test::Bild_machen(liste, u"frmMain_Einstellung"_qs);
  liste.close();
}

}  // namespace
}  // namespace marklink
