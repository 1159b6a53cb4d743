// The current order on the order desk.
#include "clsAuftragsansicht.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <QTreeWidget>

#include "articles/clsBildfeld.h"
#include "articles/frmBild.h"
#include "host/Kontext.h"
#include "ui/clsOberflaeche.h"

namespace marklink {

namespace {

constexpr struct {
  const char16_t *Titel;
  int Zeichen;  ///< width at first, in characters
  bool Zahl;
} Positionsspalten[] = {{u"Shop-ID", 10, false},     {u"Artikelnr.", 16, false}, {u"Menge", 10, true},
                        {u"Bezeichnung", 36, false}, {u"Optionen", 24, false},   {u"Einzelpreis", 13, true},
                        {u"Rabatt", 10, true}};

QLabel *Anzeigefeld(const char16_t *Name) {
  auto *feld = new QLabel;
  feld->setObjectName(QString::fromUtf16(Name));
  feld->setTextFormat(Qt::PlainText);
  feld->setWordWrap(true);
  feld->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return feld;
}

}  // namespace

clsAuftragsansicht::clsAuftragsansicht(QWidget *Eltern)
    : QTabWidget(Eltern),
      Teiler_(new QSplitter(Qt::Horizontal)),
      lvwPositionen(new QTreeWidget),
      picBild(new clsBildfeld),
      lbKurztext(Anzeigefeld(u"lbKurztext")),
      lbGeaendert(Anzeigefeld(u"lbGeaendert")),
      lbVerfuegbar(Anzeigefeld(u"lbVerfuegbar")),
      lbReserviert(Anzeigefeld(u"lbReserviert")),
      txtRechnungsanschrift(Lesefeld_bauen(u"txtRechnungsanschrift")),
      txtLieferanschrift(Lesefeld_bauen(u"txtLieferanschrift")),
      txtZahlungsinformationen(Lesefeld_bauen(u"txtZahlungsinformationen")),
      txtBemerkungen(Lesefeld_bauen(u"txtBemerkungen")) {
  setObjectName(QStringLiteral("gnTab1"));
  addTab(Positionen_bauen(), QStringLiteral("Positionen"));
  addTab(Kunde_bauen(), QStringLiteral("Kunde"));
}

QWidget *clsAuftragsansicht::Positionen_bauen() {
  lvwPositionen->setObjectName(QStringLiteral("lvwPositionen"));
  lvwPositionen->setRootIsDecorated(false);
  lvwPositionen->setUniformRowHeights(true);
  lvwPositionen->setAllColumnsShowFocus(true);
  lvwPositionen->setAlternatingRowColors(true);
  QStringList titel;
  for (const auto &spalte : Positionsspalten) titel << QString::fromUtf16(spalte.Titel);
  lvwPositionen->setHeaderLabels(titel);
  int nummer = 0;
  for (const auto &spalte : Positionsspalten) {
    lvwPositionen->header()->resizeSection(nummer, spalte.Zeichen * fontMetrics().averageCharWidth());
    if (spalte.Zahl) lvwPositionen->headerItem()->setTextAlignment(nummer, Qt::AlignRight | Qt::AlignVCenter);
    ++nummer;
  }
  lvwPositionen->header()->setStretchLastSection(false);
  // A click and a key alike; a click on the row that is current already is one too.
  connect(lvwPositionen, &QTreeWidget::currentItemChanged, this, &clsAuftragsansicht::Position_gewaehlt);
  connect(lvwPositionen, &QTreeWidget::itemClicked, this, &clsAuftragsansicht::Position_gewaehlt);

  Teiler_->setObjectName(QStringLiteral("Teiler_Positionen"));
  Teiler_->setChildrenCollapsible(false);
  Teiler_->addWidget(lvwPositionen);
  Teiler_->addWidget(Artikel_bauen());
  Teiler_->setStretchFactor(0, 1);
  Teiler_->setSizes({800, 400});
  return Teiler_;
}

QWidget *clsAuftragsansicht::Artikel_bauen() {
  picBild->setObjectName(QStringLiteral("picBild"));
  connect(picBild, &clsBildfeld::Gedrueckt, this, &clsAuftragsansicht::Bild_zeigen);
  auto *angaben = new QFormLayout;
  angaben->setRowWrapPolicy(QFormLayout::DontWrapRows);
  angaben->addRow(QStringLiteral("Artikel:"), lbKurztext);
  angaben->addRow(QStringLiteral("Geändert am:"), lbGeaendert);
  angaben->addRow(QStringLiteral("Verfügbar:"), lbVerfuegbar);
  angaben->addRow(QStringLiteral("Reserviert:"), lbReserviert);
  auto *flaeche = new QWidget;
  auto *reihe = new QHBoxLayout(flaeche);
  reihe->addWidget(picBild, 2);
  reihe->addLayout(angaben, 3);
  flaeche->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
  return flaeche;
}

QWidget *clsAuftragsansicht::Kunde_bauen() {
  auto *flaeche = new QWidget;
  auto *gitter = new QGridLayout(flaeche);
  const struct {
    const char16_t *Titel;
    QPlainTextEdit *Feld;
  } felder[] = {{u"&Rechnungsanschrift", txtRechnungsanschrift},
                {u"&Lieferanschrift", txtLieferanschrift},
                {u"&Zahlungsinformationen", txtZahlungsinformationen},
                {u"Be&merkungen", txtBemerkungen}};
  int spalte = 0;
  for (const auto &[titel, feld] : felder) {
    auto *ueber = new QLabel(QString::fromUtf16(titel));
    ueber->setBuddy(feld);
    gitter->addWidget(ueber, 0, spalte);
    gitter->addWidget(feld, 1, spalte++);
  }
  return flaeche;
}

void clsAuftragsansicht::Anzeigen(const Auftragsanzeige &Anzeige) {
  Positionen_ = Anzeige.Positionen;
  const QSignalBlocker still(lvwPositionen);
  lvwPositionen->clear();
  for (const Positionszeile &p : Positionen_) {
    auto *zeile = new QTreeWidgetItem(lvwPositionen, {p.ProductsID, p.Artikelnummer, p.Menge, p.Bezeichnung,
                                                      p.Optionen, p.Einzelpreis, p.Rabatt});
    int nummer = 0;
    for (const auto &spalte : Positionsspalten) {
      if (spalte.Zahl) zeile->setTextAlignment(nummer, Qt::AlignRight | Qt::AlignVCenter);
      zeile->setToolTip(nummer, Hinweistext(zeile->text(nummer)));
      ++nummer;
    }
  }
  lvwPositionen->setCurrentItem(lvwPositionen->topLevelItem(0));
  Artikel_zeigen(Anzeige.Artikel);
  txtRechnungsanschrift->setPlainText(Anzeige.Anschriften.InvoiceAddress);
  txtLieferanschrift->setPlainText(Anzeige.Anschriften.DeliveryAddress);
  txtZahlungsinformationen->setPlainText(Anzeige.Zahlungsinformationen);
  txtBemerkungen->setPlainText(Anzeige.Bemerkungen);
}

void clsAuftragsansicht::Artikel_zeigen(const Artikelanzeige &Artikel) {
  lbKurztext->setText(Artikel.ShortText);
  lbGeaendert->setText(Artikel.DateUpdate);
  lbVerfuegbar->setText(Artikel.Disposable);
  lbReserviert->setText(Artikel.Unsociable);
  picBild->Bild_setzen(Artikel.Bild);
}

void clsAuftragsansicht::Position_gewaehlt() {
  if (Kontext.gLaeuft) return;  // no query between two steps of a run
  const int zeile = lvwPositionen->indexOfTopLevelItem(lvwPositionen->currentItem());
  if (zeile < 0 || zeile >= int(Positionen_.size())) return;
  const Positionszeile &position = Positionen_[size_t(zeile)];
  Artikel_zeigen(Artikel_anzeigen(position.ProductsID, position.Optionen));
}

void clsAuftragsansicht::Bild_zeigen() {
  if (Kontext.gLaeuft) return;  // the run would stand still behind the preview
  frmBild vorschau(window());
  vorschau.Bildname_setzen(picBild->Pfad());
  vorschau.exec();
}

}  // namespace marklink
