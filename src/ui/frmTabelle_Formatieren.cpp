// The dialog in which the user changes a grid's layout.
#include "frmTabelle_Formatieren.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QShortcut>
#include <QTreeWidget>

#include "Hilfe.h"
#include "clsOberflaeche.h"
#include "clsTabelle.h"

namespace marklink {

namespace {

QStringList Titel_lesen(const clsTabelle &Tabelle) {
  QStringList titel;
  for (const Tabellenspalte &spalte : Tabelle.Spalten()) titel << spalte.Titel;
  return titel;
}

template <typename W>
W *Benannt(W *Teil, const char16_t *Name) {
  Teil->setObjectName(QString::fromUtf16(Name));
  return Teil;
}

}  // namespace

frmTabelle_Formatieren::frmTabelle_Formatieren(clsTabelle &Tabelle, const QString &Schluessel, bool Liste1,
                                               bool Liste2, QWidget *Eltern)
    : QDialog(Eltern),
      Tabelle_(Tabelle),
      Schluessel_(Schluessel),
      Liste1_(Liste1),
      Liste2_(Liste2),
      Format_(Titel_lesen(Tabelle), Tabelle.Anordnung()),
      lvwTabelle(Benannt(new QTreeWidget(this), u"lvwTabelle")),
      cmdAuf(Benannt(new QPushButton(QStringLiteral("Nach &oben"), this), u"cmdAuf")),
      cmdAb(Benannt(new QPushButton(QStringLiteral("Nach &unten"), this), u"cmdAb")),
      fraSpalte(Benannt(new QGroupBox(this), u"fraSpalte")),
      chkAktiv(Benannt(new QCheckBox(QStringLiteral("Spalte in der Tabelle akti&vieren"), fraSpalte),
                       u"chkAktiv")),
      txtSpaltenbreite(Benannt(new QLineEdit(fraSpalte), u"txtSpaltenbreite")),
      cboSpaltentyp(Benannt(new QComboBox(fraSpalte), u"cboSpaltentyp")),
      cmdSpeichern(Benannt(new QPushButton(QStringLiteral("&Speichern"), fraSpalte), u"cmdSpeichern")),
      cmdOK(Benannt(new QPushButton(QStringLiteral("OK"), this), u"cmdOK")),
      cmdAbbrechen(Benannt(new QPushButton(QStringLiteral("Abbrechen"), this), u"cmdAbbrechen")) {
  setObjectName(QStringLiteral("frmTabelle_Formatieren"));
  setWindowTitle(QStringLiteral("Tabelle: Formatieren"));
  cboSpaltentyp->addItems(Tabellenformat::Spaltentypen());
  Liste_aufbauen();
  Aufbauen();
  connect(lvwTabelle, &QTreeWidget::currentItemChanged, this, &frmTabelle_Formatieren::Zeile_oeffnen);
  connect(cmdSpeichern, &QPushButton::clicked, this, &frmTabelle_Formatieren::Zeile_speichern);
  connect(cmdAuf, &QPushButton::clicked, this, [this] { Zeile_verschieben(-1); });
  connect(cmdAb, &QPushButton::clicked, this, [this] { Zeile_verschieben(1); });
  connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
  connect(cmdAbbrechen, &QPushButton::clicked, this, &QDialog::reject);
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          [] { Hilfe_zeigen(Hilfethema::Tabelle_formatieren); });
  Text_markieren(this);
  Liste_zeigen(0);
}

void frmTabelle_Formatieren::Liste_aufbauen() {
  lvwTabelle->setHeaderLabels({QStringLiteral("Spalte"), QStringLiteral("Index"), QStringLiteral("Position"),
                               QStringLiteral("Breite"), QStringLiteral("Spaltentyp"),
                               QStringLiteral("Aktiv")});
  lvwTabelle->setRootIsDecorated(false);
  lvwTabelle->setUniformRowHeights(true);
  lvwTabelle->setAllColumnsShowFocus(true);
  const int zeichen = fontMetrics().averageCharWidth();
  const int breiten[] = {26, 9, 11, 10, 14, 8};
  for (int i = 0; i < lvwTabelle->columnCount(); ++i) {
    lvwTabelle->header()->resizeSection(i, breiten[i] * zeichen);
    if (i >= 1 && i <= 3) lvwTabelle->headerItem()->setTextAlignment(i, Qt::AlignRight | Qt::AlignVCenter);
  }
  lvwTabelle->setMinimumSize(84 * zeichen, 12 * fontMetrics().lineSpacing());
}

void frmTabelle_Formatieren::Aufbauen() {
  auto *felder = new QGridLayout(fraSpalte);
  auto *breite = new QLabel(QStringLiteral("&Breite in cm"));
  breite->setBuddy(txtSpaltenbreite);
  auto *typ = new QLabel(QStringLiteral("Spalten&typ"));
  typ->setBuddy(cboSpaltentyp);
  felder->addWidget(chkAktiv, 0, 0, 1, 2);
  felder->addWidget(breite, 1, 0);
  felder->addWidget(txtSpaltenbreite, 1, 1);
  felder->addWidget(typ, 2, 0);
  felder->addWidget(cboSpaltentyp, 2, 1);
  felder->addWidget(cmdSpeichern, 2, 3);
  felder->setColumnStretch(2, 1);
  txtSpaltenbreite->setMaximumWidth(fontMetrics().averageCharWidth() * 14);
  txtSpaltenbreite->setAlignment(Qt::AlignRight);
  cmdOK->setDefault(true);

  auto *reihenfolge = new QVBoxLayout;
  reihenfolge->addWidget(cmdAuf);
  reihenfolge->addWidget(cmdAb);
  reihenfolge->addStretch();
  auto *oben = new QHBoxLayout;
  oben->addWidget(lvwTabelle, 1);
  oben->addLayout(reihenfolge);
  auto *knoepfe = new QHBoxLayout;
  knoepfe->addStretch();
  knoepfe->addWidget(cmdOK);
  knoepfe->addWidget(cmdAbbrechen);
  auto *alles = new QVBoxLayout(this);
  alles->addLayout(oben, 1);
  alles->addWidget(fraSpalte);
  alles->addLayout(knoepfe);
}

/// Rebuilds the list and stands on that row.
void frmTabelle_Formatieren::Liste_zeigen(int Gewaehlt) {
  lvwTabelle->clear();
  for (int i = 0; i < Format_.Zeilenzahl(); ++i) {
    auto *zeile = new QTreeWidgetItem(lvwTabelle, Format_.Zeile(i));
    for (int s = 1; s <= 3; ++s) zeile->setTextAlignment(s, Qt::AlignRight | Qt::AlignVCenter);
  }
  lvwTabelle->setCurrentItem(lvwTabelle->topLevelItem(Gewaehlt));
  Zeile_oeffnen();
}

int frmTabelle_Formatieren::Gewaehlte_Zeile() const {
  return lvwTabelle->indexOfTopLevelItem(lvwTabelle->currentItem());
}

void frmTabelle_Formatieren::Zeile_oeffnen() {
  const int zeile = Gewaehlte_Zeile();
  fraSpalte->setEnabled(zeile >= 0);
  cmdAuf->setEnabled(zeile > 0);
  cmdAb->setEnabled(zeile >= 0 && zeile + 1 < Format_.Zeilenzahl());
  if (zeile < 0) return;
  // The caption is no mnemonic text: a "&" of the column's name is doubled.
  const QString name = Format_.Zeile(zeile)[0].replace(u'&', QStringLiteral("&&"));
  fraSpalte->setTitle(QStringLiteral("Spalte '%1' bearbeiten...").arg(name));
  chkAktiv->setChecked(Format_.Aktiv(zeile));
  txtSpaltenbreite->setText(Format_.Spaltenbreite(zeile));
  cboSpaltentyp->setCurrentIndex(Format_.Spaltentyp(zeile));
}

void frmTabelle_Formatieren::Zeile_speichern() {
  const int zeile = Gewaehlte_Zeile();
  if (zeile < 0) return;
  Format_.Zeile_speichern(zeile, chkAktiv->isChecked(), txtSpaltenbreite->text(),
                          cboSpaltentyp->currentIndex());
  Liste_zeigen(zeile);
}

void frmTabelle_Formatieren::Zeile_verschieben(int Schritt) {
  const int zeile = Gewaehlte_Zeile();
  if (zeile >= 0) Liste_zeigen(Format_.Zeile_verschieben(zeile, Schritt));
}

void frmTabelle_Formatieren::accept() {
  Tabelle_.Anordnung_setzen(Format_.Layout());
  Layout_speichern(Tabelle_, Schluessel_, Liste1_, Liste2_);
  QDialog::accept();
}

}  // namespace marklink
