// The dialog that moves one order on.
#include "frmBestellstatus.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/Hilfe.h"

namespace marklink {

frmBestellstatus::frmBestellstatus(Bestellstatusdialog &Daten, QWidget *Eltern)
    : QDialog(Eltern),
      Daten_(Daten),
      lvwAuftragsstatus(new QTreeWidget(this)),
      txtKommentar(new QPlainTextEdit(this)),
      chkEmail(new QCheckBox(QStringLiteral("Kunde per &E-Mail benachrichtigen"), this)),
      chkKommentar(new QCheckBox(QStringLiteral("&Kommentar mitsenden"), this)) {
  setObjectName(QStringLiteral("frmBestellstatus"));
  setWindowTitle(QStringLiteral("Bestellstatus fortschreiben"));
  lvwAuftragsstatus->setObjectName(QStringLiteral("lvwAuftragsstatus"));
  txtKommentar->setObjectName(QStringLiteral("txtKommentar"));
  chkEmail->setObjectName(QStringLiteral("chkEmail"));
  chkKommentar->setObjectName(QStringLiteral("chkKommentar"));
  Daten_.Action = 1;
  Daten_.Laden();
  Aufbauen();
  Stati_zeigen();
  setWindowTitle(Daten_.Titel());
}

void frmBestellstatus::Aufbauen() {
  lvwAuftragsstatus->setHeaderLabels({QStringLiteral("Webshop-ID"), QStringLiteral("Auftragsstatus")});
  lvwAuftragsstatus->setRootIsDecorated(false);
  lvwAuftragsstatus->setUniformRowHeights(true);
  lvwAuftragsstatus->setAllColumnsShowFocus(true);
  lvwAuftragsstatus->header()->resizeSection(0, fontMetrics().averageCharWidth() * 14);
  txtKommentar->setTabChangesFocus(true);
  auto *ueber = new QLabel(QStringLiteral("Ko&mmentar"), this);
  ueber->setBuddy(txtKommentar);
  auto *ok = new QPushButton(QStringLiteral("OK"), this);
  auto *abbrechen = new QPushButton(QStringLiteral("Abbrechen"), this);
  auto *hilfe = new QPushButton(QStringLiteral("Hilfe"), this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  abbrechen->setObjectName(QStringLiteral("cmdAbbrechen"));
  hilfe->setObjectName(QStringLiteral("cmdHilfe"));
  ok->setDefault(true);
  connect(ok, &QPushButton::clicked, this, &frmBestellstatus::Senden);
  connect(abbrechen, &QPushButton::clicked, this, &QDialog::reject);
  connect(hilfe, &QPushButton::clicked, this, [] { Hilfe_zeigen(Hilfethema::Bestellstatus); });
  auto *knoepfe = new QHBoxLayout;
  knoepfe->addStretch();
  for (QPushButton *knopf : {ok, abbrechen, hilfe}) knoepfe->addWidget(knopf);
  auto *zeilen = new QVBoxLayout(this);
  zeilen->addWidget(lvwAuftragsstatus, 3);
  zeilen->addWidget(ueber);
  zeilen->addWidget(txtKommentar, 2);
  zeilen->addWidget(chkEmail);
  zeilen->addWidget(chkKommentar);
  zeilen->addLayout(knoepfe);
  resize(fontMetrics().averageCharWidth() * 72, fontMetrics().lineSpacing() * 26);
}

void frmBestellstatus::Stati_zeigen() {
  for (const Listenzeile &zeile : Daten_.lvwAuftragsstatus.Zeilen)
    new QTreeWidgetItem(lvwAuftragsstatus, zeile.Spalten);
  if (QTreeWidgetItem *gewaehlt = lvwAuftragsstatus->topLevelItem(Daten_.lvwAuftragsstatus.Gewaehlt))
    lvwAuftragsstatus->setCurrentItem(gewaehlt);
  // The selection, not the current row: the focus alone makes a row current, and chooses nothing.
  connect(lvwAuftragsstatus, &QTreeWidget::itemSelectionChanged, this, [this] {
    const QList<QTreeWidgetItem *> gewaehlt = lvwAuftragsstatus->selectedItems();
    if (!gewaehlt.isEmpty()) Daten_.Zeile_gewaehlt(lvwAuftragsstatus->indexOfTopLevelItem(gewaehlt[0]));
  });
}

void frmBestellstatus::Senden() {
  Daten_.OK(chkEmail->isChecked(), chkKommentar->isChecked(), txtKommentar->toPlainText());
  accept();
}

void frmBestellstatus::keyPressEvent(QKeyEvent *Ereignis) {
  if (Ereignis->key() == Qt::Key_F1)
    Hilfe_zeigen(Hilfethema::Bestellstatus);
  else
    QDialog::keyPressEvent(Ereignis);
}

}  // namespace marklink
