// The fields of a page of the settings dialog.
#include "clsEinstellungsfeld.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include "host/Datenbank.h"
#include "ui/clsOberflaeche.h"

namespace marklink {
namespace {

QWidget *Textfeld(size_t Feld, Shopeinstellungen &Werte, QWidget *Eltern) {
  auto *feld = new QLineEdit(Werte.Wert(Feld), Eltern);
  feld->setMaxLength(Laengste_Einstellung);
  if (Einstellungsfelder()[Feld].Art == Feldart::Passwort) feld->setEchoMode(QLineEdit::Password);
  QObject::connect(feld, &QLineEdit::textEdited, feld,
                   [Feld, &Werte](const QString &Neu) { Werte.Wert_setzen(Feld, Neu); });
  return feld;
}

QWidget *Auswahlfeld(size_t Feld, Shopeinstellungen &Werte, QWidget *Eltern) {
  auto *feld = new QComboBox(Eltern);
  feld->addItems(Synchronisierungsrichtungen());
  const int wert = Werte.Wert(Feld).toInt();
  feld->setCurrentIndex(wert < feld->count() ? wert : -1);
  QObject::connect(feld, &QComboBox::activated, feld,
                   [Feld, &Werte](int Neu) { Werte.Wert_setzen(Feld, QString::number(Neu)); });
  return feld;
}

QWidget *Schalterfeld(size_t Feld, Shopeinstellungen &Werte, QWidget *Eltern) {
  auto *feld = new QCheckBox(QString::fromUtf8(Einstellungsfelder()[Feld].Beschriftung), Eltern);
  feld->setChecked(Werte.Wert(Feld) == QLatin1String("1"));
  QObject::connect(feld, &QCheckBox::clicked, feld,
                   [Feld, &Werte](bool An) { Werte.Wert_setzen(Feld, QString::number(int(An))); });
  return feld;
}

QWidget *Feld_bauen(size_t Feld, Shopeinstellungen &Werte, QWidget *Eltern) {
  switch (Einstellungsfelder()[Feld].Art) {
    case Feldart::Auswahl:
      return Auswahlfeld(Feld, Werte, Eltern);
    case Feldart::Schalter:
      return Schalterfeld(Feld, Werte, Eltern);
    case Feldart::Text:
    case Feldart::Passwort:
      break;
  }
  return Textfeld(Feld, Werte, Eltern);
}

/// A tip stands below its field; that of a check box below its caption.
void Tipp_setzen(QGridLayout *Gitter, const Einstellungsfeld &F, QWidget *Feld) {
  const QString tipp = QString::fromUtf8(F.Tipp);
  Feld->setAccessibleDescription(tipp);
  if (tipp.isEmpty()) return;
  QHBoxLayout *zeile = Tipp_bauen(tipp, Feld->parentWidget());
  const bool schalter = F.Art == Feldart::Schalter;
  if (schalter) zeile->setContentsMargins(Feld->style()->pixelMetric(QStyle::PM_IndicatorWidth) * 2, 0, 0, 0);
  Gitter->addLayout(zeile, Gitter->rowCount(), schalter ? 0 : 1, 1, schalter ? 2 : 1);
}

void In_Gitter_setzen(QGridLayout *Gitter, const Einstellungsfeld &F, QWidget *Feld) {
  const int zeile = Gitter->rowCount();
  if (F.Art == Feldart::Schalter) {
    Gitter->addWidget(Feld, zeile, 0, 1, 2);
    return;
  }
  auto *beschriftung = new QLabel(QString::fromUtf8(F.Beschriftung), Feld->parentWidget());
  beschriftung->setBuddy(Feld);
  Gitter->addWidget(beschriftung, zeile, 0);
  Gitter->addWidget(Feld, zeile, 1);
}

}  // namespace

void Felder_bauen(Einstellungsseite Seite, Shopeinstellungen &Werte, QVBoxLayout *Zeilen, QWidget *Eltern) {
  QGridLayout *gitter = nullptr;
  QWidget *traeger = Eltern;
  QString gruppe;
  for (size_t i = 0; i < Einstellungsfelder().size(); ++i) {
    const Einstellungsfeld &f = Einstellungsfelder()[i];
    if (f.Seite != Seite) continue;
    if (gitter == nullptr || gruppe != QString::fromUtf8(f.Gruppe)) {
      gruppe = QString::fromUtf8(f.Gruppe);
      traeger = gruppe.isEmpty() ? new QWidget(Eltern) : new QGroupBox(gruppe, Eltern);
      gitter = new QGridLayout(traeger);
      gitter->setColumnStretch(1, 1);
      Zeilen->addWidget(traeger);
    }
    QWidget *feld = Feld_bauen(i, Werte, traeger);
    feld->setObjectName(QLatin1String(f.Steuerelement));
    In_Gitter_setzen(gitter, f, feld);
    Tipp_setzen(gitter, f, feld);
  }
}

}  // namespace marklink
