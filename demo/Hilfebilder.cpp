// Makes the pictures of the help: every screen of the demo client, on a light and on a dark desktop.
//   marklink_hilfebilder PROGRAMMORDNER ZIELORDNER
// The client "Demo" in that folder has its orders already (scripts/hilfebilder).
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "Befehlszeile.h"
#include "Sitzung.h"
#include "articles/clsBildfeld.h"
#include "articles/frmBild.h"
#include "frmHilfebild.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"
#include "lists/frmListen.h"
#include "orders/Auftragsdruck.h"
#include "orders/Auftragsliste.h"
#include "orders/Bestellstatusdialog.h"
#include "orders/frmBestellstatus.h"
#include "orders/frmMain.h"
#include "reports/drucken.h"
#include "reports/frmVorschau.h"
#include "shipping/Versandauftrag.h"
#include "shipping/frmVersender_EASYLOG.h"
#include "shipping/frmVersender_EASYLOG_Einstellungen.h"
#include "shop/frmEinstellungen.h"
#include "shop/frmWinsock.h"
#include "ui/clsTabelle.h"
#include "ui/frmProgress.h"
#include "ui/frmTabelle_Formatieren.h"

namespace marklink::demo {
namespace {

constexpr int Weile_ms = 150;
constexpr int Aktueller_Monat = 3;  // Zeitraum

QString Q(const char *Text) { return QString::fromUtf8(Text); }

class Bildermacher {
 public:
  Bildermacher(QString Ziel, bool Dunkel) : Ziel_(std::move(Ziel)), Dunkel_(Dunkel) {}

  void Ablegen(const QImage &Bild, const QString &Name) {
    const QString datei = Ziel_ + u'/' + Name + (Dunkel_ ? Q("_dunkel.png") : Q(".png"));
    if (!Klein_speichern(Bild, datei)) {
      qWarning("%s: nicht geschrieben", qUtf8Printable(datei));
      Fehler = true;
    }
  }
  void Fenster(QWidget &F, const char *Name, QSize Groesse = {}) {
    if (Groesse.isValid()) F.resize(Groesse);
    F.show();
    F.activateWindow();
    QTest::qWait(Weile_ms);
    Ablegen(Mit_Rahmen(F), Q(Name));
  }
  bool Fehler = false;

 private:
  QString Ziel_;
  bool Dunkel_;
};

/// The article of the picture, and an order that begins with it.
const QString Artikelwort = QStringLiteral("Becher");

void Artikelbild_anlegen() {
  QByteArray bytes;
  QBuffer puffer(&bytes);
  Becher_zeichnen().save(&puffer, "PNG");
  db::Recordset bilder = Abfragen("SELECT * FROM ArticlePictures");
  if (bilder.RecordCount() > 0) return;
  bilder.AddNew();
  bilder.SetValue(Q("FileName"), Q("becher.png"));
  bilder.SetValue(Q("Picture"), bytes);
  bilder.Update();
  bilder.UpdateBatch();
  Ausfuehren("UPDATE Articles SET Graphic = 1 WHERE ShortText LIKE '%Becher%'");
}

template <typename W>
W &Teil(QWidget &Fenster, const char16_t *Name) {
  W *teil = Fenster.findChild<W *>(QString::fromUtf16(Name));
  if (teil == nullptr) qFatal("%s fehlt", qUtf8Printable(QString::fromUtf16(Name)));
  return *teil;
}

/// Stands on the first order that contains the article, and on its line.
void Zeile_mit_Becher(clsTabelle &Tabelle, QTreeWidget &Positionen) {
  for (int zeile = 0; zeile < Tabelle.model()->rowCount(); ++zeile) {
    Tabelle.Zelle_anspringen(zeile, Q("OrderID"));
    for (int p = 0; p < Positionen.topLevelItemCount(); ++p)
      if (Positionen.topLevelItemCount() > 1 && Positionen.topLevelItem(p)->text(3).contains(Artikelwort)) {
        Positionen.setCurrentItem(Positionen.topLevelItem(p));
        return;
      }
  }
}

/// The first row with bank data, and a remark if there is one.
int Zeile_mit_Bankdaten(const clsTabelle &Tabelle) {
  const auto leer = [&](int Zeile, const char *Spalte) {
    return Tabelle.model()->index(Zeile, Tabelle.Spalte_finden(Q(Spalte))).data().toString().isEmpty();
  };
  int gewaehlt = 0;
  for (int zeile = Tabelle.model()->rowCount() - 1; zeile >= 0; --zeile) {
    if (leer(zeile, "ExtendedInfo")) continue;
    gewaehlt = zeile;
    if (!leer(zeile, "Notes")) return zeile;
  }
  return gewaehlt;
}

void Kontextmenue(Bildermacher &B, frmMain &Pult) {
  auto *menue = Pult.findChild<QMenu *>(Q("mnuKontext"));
  auto *unter = Pult.findChild<QMenu *>(Q("mnuKontext_Status_setzen"));
  menue->popup(Pult.mapToGlobal(QPoint(20, 20)));
  QTest::qWait(Weile_ms);
  menue->setActiveAction(unter->menuAction());
  QTest::keyClick(menue, Qt::Key_Right);
  QTest::qWait(Weile_ms);
  const QPixmap links = menue->grab(), rechts = unter->grab();
  const int neben = links.width() - 2, tiefer = menue->actionGeometry(unter->menuAction()).top();
  QImage bild(neben + rechts.width() + 2, std::max(links.height(), tiefer + rechts.height()) + 2,
              QImage::Format_RGB32);
  bild.fill(QApplication::palette().color(QPalette::Base));
  QPainter maler(&bild);
  maler.drawPixmap(1, 1, links);
  maler.drawPixmap(neben, tiefer, rechts);
  maler.end();
  B.Ablegen(bild, Q("kontextmenue"));
  unter->hide();
  menue->hide();
}

void Auftragsverwaltung(Bildermacher &B) {
  Kontext.gViewablePeriod = Aktueller_Monat;
  frmMain pult;
  pult.resize(980, 640);
  pult.show();
  pult.activateWindow();
  QTest::qWait(1000);  // its first activation loads the list
  auto &tabelle = Teil<clsTabelle>(pult, u"jgTab");
  auto &positionen = Teil<QTreeWidget>(pult, u"lvwPositionen");
  Zeile_mit_Becher(tabelle, positionen);
  for (const int markiert : {1, 2, 4}) {
    const QModelIndex zelle = tabelle.model()->index(markiert, 0);
    tabelle.model()->setData(zelle, Qt::Checked, Qt::CheckStateRole);
  }
  tabelle.setFocus();
  B.Fenster(pult, "auftragsverwaltung");
  const QString bild = Teil<clsBildfeld>(pult, u"picBild").Pfad();
  auto &karten = Teil<QTabWidget>(pult, u"gnTab1");
  tabelle.Zelle_anspringen(Zeile_mit_Bankdaten(tabelle), Q("OrderID"));
  karten.setCurrentIndex(1);
  QTest::qWait(Weile_ms);
  B.Ablegen(karten.grab().toImage(), Q("auftragsverwaltung_kunde"));
  karten.setCurrentIndex(0);
  Kontextmenue(B, pult);

  Bestellstatusdialog daten;
  daten.Bestellnummer = tabelle.model()->index(3, 1).data().toString();
  daten.Bestellstatus = Q("2");
  frmBestellstatus status(daten, &pult);
  Teil<QPlainTextEdit>(status, u"txtKommentar")
      .setPlainText(Q("Wir stellen Ihre Bestellung gerade zusammen."));
  for (const char16_t *haken : {u"chkEmail", u"chkKommentar"})
    Teil<QCheckBox>(status, haken).setChecked(true);
  B.Fenster(status, "bestellstatus", {560, 400});
  status.hide();

  frmTabelle_Formatieren format(tabelle, Q("Webshop_Auftragsliste_xtc"), false, false, &pult);
  B.Fenster(format, "tabelle_formatieren");
  format.hide();

  frmBild vorschau(&pult);
  vorschau.Bildname_setzen(bild);
  B.Fenster(vorschau, "bild", {520, 400});
}

void Einstellungen(Bildermacher &B) {
  constexpr const char *seiten[] = {"einstellungen_allgemein", "einstellungen_zugangsdaten",
                                    "einstellungen_einstellungen", "einstellungen_ftp"};
  frmEinstellungen fenster;
  const auto *wurzel = Teil<QTreeWidget>(fenster, u"tvwNavigation").topLevelItem(0);
  int nummer = 0;
  for (const char *seite : seiten) {
    Teil<QTreeWidget>(fenster, u"tvwNavigation").setCurrentItem(wurzel->child(nummer++));
    B.Fenster(fenster, seite, {900, 560});
  }
}

void Listen_zeigen(Bildermacher &B) {
  for (const Liste &liste : Listen()) {
    frmListen fenster(liste);
    QString name = Q("liste_") + liste.Schirm.mid(10).toLower();
    if (name == u"liste_einheiten") name = Q("liste_verpackungseinheiten");
    B.Fenster(fenster, qUtf8Printable(name), {820, 360});
    fenster.hide();
  }
}

/// Shipments of the month's first orders.
void Versandauftraege_anlegen() {
  db::Recordset zeile = Abfragen(
      "SELECT TOP 8 OrderID, Payment FROM WebshopOrdersXTC WHERE OrderID >= '1200' ORDER BY OrderID");
  int nummer = 4711;
  for (; !zeile.IsEOF(); zeile.MoveNext()) {
    Versandauftrag auftrag{zeile.Text(Q("OrderID")), QString::number(nummer++)};
    auftrag.Zahlart = zeile.Text(Q("Payment"));
    Versandauftrag_erzeugen(auftrag);
  }
}

void Versand(Bildermacher &B) {
  Kontext.gViewablePeriod = Aktueller_Monat;
  Versandauftraege_anlegen();
  frmVersender_EASYLOG liste;
  liste.resize(980, 520);
  liste.show();
  liste.activateWindow();
  QTest::qWait(1000);
  B.Fenster(liste, "versand");
  frmVersender_EASYLOG_Einstellungen einstellungen(&liste);
  B.Fenster(einstellungen, "versand_einstellungen");
}

/// The order list of the month.
void Vorschau(Bildermacher &B) {
  Kontext.gViewablePeriod = Aktueller_Monat;
  Auftragsliste liste;
  liste.Auftragsliste_laden();
  for (int zeile = 0; zeile < liste.Zeilenzahl(); ++zeile) liste.Zelle_setzen(zeile, 0, true);
  auto report = Liste_erstellen(Listenbericht::Art::Bestellliste, liste);
  if (!report) return;
  Vorschau_einrichten(*report);
  frmVorschau fenster(*report, nullptr);
  B.Fenster(fenster, "druckvorschau", {900, 640});
}

/// A server that takes the connection and says nothing.
class Stummer_Server {
 public:
  Stummer_Server() : Dose_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in ort{};
    ort.sin_family = AF_INET;
    ort.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t laenge = sizeof ort;
    if (::bind(Dose_, reinterpret_cast<sockaddr *>(&ort), laenge) != 0 || ::listen(Dose_, 1) != 0 ||
        ::getsockname(Dose_, reinterpret_cast<sockaddr *>(&ort), &laenge) != 0)
      qFatal("kein Server");
    Port = QString::number(ntohs(ort.sin_port));
  }
  ~Stummer_Server() { ::close(Dose_); }
  Stummer_Server(const Stummer_Server &) = delete;
  Stummer_Server &operator=(const Stummer_Server &) = delete;
  QString Port;

 private:
  int Dose_;
};

void Warten_zeigen(Bildermacher &B) {
  frmProgress lauf;
  lauf.Einrichten(Q("Ein Beleg für die Bestellung '1042' wird generiert..."), 12, true);
  lauf.Wert_setzen(5);
  B.Fenster(lauf, "fortschritt");
  lauf.hide();

  const Stummer_Server server;
  Verbindungsauftrag auftrag;
  auftrag.Host = Q("127.0.0.1");
  auftrag.Port = server.Port;
  auftrag.URL = Q("/shop/marklink/marklink.php?action=get_orders");
  auftrag.Header = Q("GET %1 HTTP/1.1\r\nHost: www.muster-versand.example\r\n\r\n").arg(auftrag.URL);
  auftrag.Statustext = Q("Einen Moment bitte. Die Daten werden abgerufen...");
  auftrag.xmlDatei = Q("/dev/null");
  frmWinsock verbindung(auftrag);
  QTimer::singleShot(500, &verbindung, [&] {
    B.Ablegen(Mit_Rahmen(verbindung), Q("verbindung"));
    static_cast<QDialog &>(verbindung).reject();
  });
  verbindung.Ausfuehren();
}

bool Alle_Bilder(const QString &Ziel, bool Dunkel) {
  Desktop_setzen(Dunkel);
  Bildermacher macher(Ziel, Dunkel);
  Auftragsverwaltung(macher);
  Einstellungen(macher);
  Listen_zeigen(macher);
  Warten_zeigen(macher);
  Versand(macher);
  Vorschau(macher);
  return !macher.Fehler;
}

int Starten(const QString &Ordner, const QString &Ziel) {
  const auto objekt = Objekt_erzeugen();  // brings the windows
  const Befehlszeile zeile = Befehlszeile_lesen(
      {Q("--ordner"), Ordner, Q("--mandant"), Q("Demo"), Q("schirm"), Q("auftragsverwaltung")});
  if (!Mandant_oeffnen(zeile.Aufruf_)) return 1;
  Artikelbild_anlegen();
  const bool hell = Alle_Bilder(Ziel, false), dunkel = Alle_Bilder(Ziel, true);
  return hell && dunkel ? 0 : 1;
}

}  // namespace
}  // namespace marklink::demo

int main(int argc, char **argv) {
  ::setenv("LC_ALL", "C.UTF-8", 1);
  if (argc != 3) {
    qWarning("Aufruf: %s PROGRAMMORDNER ZIELORDNER", argv[0]);
    return 2;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QString ordner = QString::fromLocal8Bit(argv[1]), ziel = QString::fromLocal8Bit(argv[2]);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication anwendung(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QCursor::setPos(780, 780);  // no button is under the mouse
  return marklink::demo::Starten(ordner, ziel);
}
