// The small modal window of one exchange with the shop.
#include "frmWinsock.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QShortcut>

#include "host/Kontext.h"
#include "ui/Hilfe.h"

namespace marklink {

frmWinsock::frmWinsock(Verbindungsauftrag &Auftrag, QWidget *Eltern)
    : QDialog(Eltern),
      Auftrag_(Auftrag),
      lbStatus(new QLabel(QStringLiteral("Einen Moment bitte..."), this)),
      shpConnected(new QLabel(this)),
      lblProgress_gesendet(new QLabel(QStringLiteral("gesendet: 0 Bytes"), this)),
      lblProgress_empfangen(new QLabel(QStringLiteral("empfangen: 0 Bytes"), this)) {
  setObjectName(QStringLiteral("frmWinsock"));
  setWindowTitle(QStringLiteral("Verbindung zu xt:Commerce"));
  setModal(true);
  lbStatus->setObjectName(QStringLiteral("lbStatus"));
  lbStatus->setTextFormat(Qt::PlainText);
  lbStatus->setWordWrap(true);
  shpConnected->setObjectName(QStringLiteral("shpConnected"));
  lblProgress_gesendet->setObjectName(QStringLiteral("lblProgress_gesendet"));
  lblProgress_empfangen->setObjectName(QStringLiteral("lblProgress_empfangen"));
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          [] { Hilfe_zeigen(Hilfethema::Verbindung); });
  auto *gitter = new QGridLayout(this);
  gitter->addWidget(shpConnected, 0, 0, Qt::AlignTop);
  gitter->addWidget(lbStatus, 0, 1, 1, 2);
  gitter->addWidget(lblProgress_gesendet, 1, 1);
  gitter->addWidget(lblProgress_empfangen, 1, 2);
  gitter->setColumnStretch(1, 1);
  gitter->setColumnStretch(2, 1);
  setFixedWidth(fontMetrics().averageCharWidth() * 64);
  Verbunden(false);
  Status(Auftrag.Statustext);
}

void frmWinsock::Ausfuehren() {
  show();
  QApplication::processEvents();
  Winsock_initialisieren(Auftrag_, this);
  accept();
}

/// Gives up the run behind it too: its progress window cannot be reached while this one is modal.
void frmWinsock::reject() {
  Abgebrochen_ = true;
  Kontext.gAbbrechen = true;
}

void frmWinsock::Status(const QString &Statustext) {
  if (!Statustext.isEmpty()) lbStatus->setText(Statustext);
}

void frmWinsock::Verbunden(bool Ja) {
  const int groesse = fontMetrics().height();
  shpConnected->setFixedSize(groesse, groesse);
  shpConnected->setStyleSheet(
      QStringLiteral("border-radius: %1px; background: %2; border: 1px solid palette(mid);")
          .arg(groesse / 2)
          .arg(Ja ? QStringLiteral("#00ff00") : QStringLiteral("#ff0000")));
  shpConnected->setToolTip(Ja ? QStringLiteral("verbunden") : QStringLiteral("nicht verbunden"));
}

void frmWinsock::Uebertragen(qint64 Gesendet, qint64 Empfangen) {
  lblProgress_gesendet->setText(QStringLiteral("gesendet: %1 Bytes").arg(Gesendet));
  lblProgress_empfangen->setText(QStringLiteral("empfangen: %1 Bytes").arg(Empfangen));
}

/// Asked by the exchange again and again: the window stays painted and its keys work.
bool frmWinsock::Abbrechen() {
  QApplication::processEvents();
  return Abgebrochen_;
}

void Verbindungsfenster_zeigen(Verbindungsauftrag &Auftrag) {
  frmWinsock fenster(Auftrag, QApplication::activeWindow());
  fenster.Ausfuehren();
}

}  // namespace marklink
