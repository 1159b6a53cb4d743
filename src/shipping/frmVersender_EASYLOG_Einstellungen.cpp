// The dialog for the settings of the export.
#include "frmVersender_EASYLOG_Einstellungen.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

#include "host/Datenbank.h"
#include "ui/Hilfe.h"
#include "ui/clsOberflaeche.h"

namespace marklink {
namespace {

/// A value that the field cannot hold stays as it is until the user types another.
QLineEdit *Textfeld(const char16_t *Name, QString &Wert, QWidget *Eltern) {
  auto *feld = new QLineEdit(Eltern);
  feld->setObjectName(QString::fromUtf16(Name));
  feld->setMaxLength(Laengste_Einstellung);
  feld->setText(Wert);
  QObject::connect(feld, &QLineEdit::textEdited, feld, [&Wert](const QString &Neu) { Wert = Neu; });
  return feld;
}

/// A number that is neither off nor on is shown as neither, and stays until the user clicks.
QCheckBox *Schalter(const char16_t *Name, const QString &Aufschrift, qint16 &Wert, QWidget *Eltern) {
  auto *feld = new QCheckBox(Aufschrift, Eltern);
  feld->setObjectName(QString::fromUtf16(Name));
  feld->setCheckState(Wert == 0 ? Qt::Unchecked : Wert == 1 ? Qt::Checked : Qt::PartiallyChecked);
  feld->setTristate(false);
  QObject::connect(feld, &QCheckBox::clicked, feld, [&Wert](bool An) { Wert = An ? 1 : 0; });
  return feld;
}

QLabel *Beschriftung(const QString &Text, QWidget *Feld) {
  auto *neu = new QLabel(Text, Feld->parentWidget());
  neu->setBuddy(Feld);
  neu->setMinimumWidth(neu->sizeHint().width() + 6);  // at fractional scales the last letter needs it
  return neu;
}

}  // namespace

frmVersender_EASYLOG_Einstellungen::frmVersender_EASYLOG_Einstellungen(QWidget *Eltern)
    : QDialog(Eltern), Werte_(Versandeinstellungen_lesen()) {
  setObjectName(QStringLiteral("frmVersender_EASYLOG_Einstellungen"));
  setWindowTitle(QStringLiteral("Versand: EASYLOG: Einstellungen"));
  auto *zeilen = new QVBoxLayout(this);
  zeilen->addWidget(Absender_bauen());
  zeilen->addWidget(Export_bauen());
  zeilen->addStretch(1);
  Knoepfe_bauen(zeilen);
  Text_markieren(this);
  resize(QSize(fontMetrics().averageCharWidth() * 100, sizeHint().height())
             .boundedTo(screen()->availableSize() * 0.95));
}

QWidget *frmVersender_EASYLOG_Einstellungen::Absender_bauen() {
  auto *gruppe = new QGroupBox(QStringLiteral("Absender"), this);
  auto *gitter = new QGridLayout(gruppe);
  QLineEdit *ekp = Textfeld(u"txtEKPNummer", Werte_.EKPNummer, gruppe);
  QLineEdit *mandant = Textfeld(u"txtMandant", Werte_.Mandant, gruppe);
  gitter->addWidget(Beschriftung(QStringLiteral("&EKP-Nummer"), ekp), 0, 0);
  gitter->addWidget(ekp, 0, 1);
  gitter->addWidget(Beschriftung(QStringLiteral("&Mandant"), mandant), 1, 0);
  gitter->addWidget(mandant, 1, 1);
  return gruppe;
}

QWidget *frmVersender_EASYLOG_Einstellungen::Export_bauen() {
  const QString tipp_datei = QStringLiteral(
      "Geben Sie hier bitte eine Datei an, in der die Versandanschriften exportiert werden sollen. Diese "
      "Datei müssen Sie im Admin-Bereich von EASYLOG für das Polling auswählen, um Versandaufträge zu "
      "erstellen.");
  const QString tipp_titel = QStringLiteral(
      "Hier können Sie wählen, ob die Spaltentitel beim Exportieren mit ausgegeben werden sollen oder nicht. "
      "Die Spaltentitel werden aber nur ausgegeben, wenn die Exportdatei noch nicht existiert. ");
  auto *gruppe = new QGroupBox(QStringLiteral("Export"), this);
  auto *gitter = new QGridLayout(gruppe);
  gitter->setColumnStretch(2, 1);
  txtExportdatei = Textfeld(u"txtExportdatei", Werte_.Exportdatei, gruppe);
  txtExportdatei->setAccessibleDescription(tipp_datei);
  auto *datei = new QPushButton(QStringLiteral("&Datei..."), gruppe);
  datei->setObjectName(QStringLiteral("cmdDatei"));
  datei->setAutoDefault(false);
  connect(datei, &QPushButton::clicked, this, &frmVersender_EASYLOG_Einstellungen::Datei_waehlen);
  QCheckBox *fortschreiben = Schalter(
      u"chkExport_fortschreiben",
      QStringLiteral("Datensätze fortschreiben. (Exportdatei wird um die Lieferanschriften ergänzt.)"),
      Werte_.Fortschreiben, gruppe);
  QLineEdit *trennzeichen = Textfeld(u"txtTrennzeichen", Werte_.Trennzeichen, gruppe);
  trennzeichen->setFixedWidth(fontMetrics().averageCharWidth() * 12);
  auto *hinweis = new QLabel(QStringLiteral("ASCII-Code: 124 (Pipe), 59 (Semikolon)"), gruppe);
  trennzeichen->setAccessibleDescription(hinweis->text());
  QCheckBox *spaltentitel =
      Schalter(u"chkExport_Spaltentitel", QStringLiteral("Spaltentitel in der ersten Zeile ausgeben"),
               Werte_.Spaltentitel, gruppe);
  spaltentitel->setAccessibleDescription(tipp_titel);
  gitter->addWidget(Beschriftung(QStringLiteral("E&xportdatei"), txtExportdatei), 0, 0);
  gitter->addWidget(txtExportdatei, 0, 1, 1, 2);
  gitter->addWidget(datei, 0, 3);
  gitter->addLayout(Tipp_bauen(tipp_datei, gruppe), 1, 1, 1, 3);
  gitter->addWidget(fortschreiben, 2, 1, 1, 3);
  gitter->addWidget(Beschriftung(QStringLiteral("&Trennzeichen"), trennzeichen), 3, 0);
  gitter->addWidget(trennzeichen, 3, 1);
  gitter->addWidget(hinweis, 3, 2, 1, 2);
  gitter->addWidget(spaltentitel, 4, 1, 1, 3);
  gitter->addLayout(Tipp_bauen(tipp_titel, gruppe), 5, 1, 1, 3);
  return gruppe;
}

void frmVersender_EASYLOG_Einstellungen::Knoepfe_bauen(QVBoxLayout *Zeilen) {
  auto *reihe = new QHBoxLayout;
  reihe->addStretch(1);
  const auto knopf = [this, reihe](const char16_t *Name, const QString &Aufschrift, auto Befehl) {
    auto *neu = new QPushButton(Aufschrift, this);
    neu->setObjectName(QString::fromUtf16(Name));
    connect(neu, &QPushButton::clicked, this, Befehl);
    reihe->addWidget(neu);
    return neu;
  };
  knopf(u"cmdOK", QStringLiteral("OK"), &frmVersender_EASYLOG_Einstellungen::accept)->setDefault(true);
  knopf(u"cmdAbbrechen", QStringLiteral("Abbrechen"), &frmVersender_EASYLOG_Einstellungen::reject);
  knopf(u"cmdHilfe", QStringLiteral("Hilfe"), &frmVersender_EASYLOG_Einstellungen::Hilfe);
  Zeilen->addLayout(reihe);
}

void frmVersender_EASYLOG_Einstellungen::Datei_waehlen() {
  Werte_.Exportdatei = Exportdatei_waehlen(Werte_.Exportdatei);
  txtExportdatei->setText(Werte_.Exportdatei);
}

void frmVersender_EASYLOG_Einstellungen::Hilfe() { Hilfe_zeigen(Hilfethema::Versandeinstellungen); }

void frmVersender_EASYLOG_Einstellungen::accept() {
  Versandeinstellungen_schreiben(Werte_);
  QDialog::accept();
}

void frmVersender_EASYLOG_Einstellungen::keyPressEvent(QKeyEvent *Ereignis) {
  if (Ereignis->key() == Qt::Key_F1)
    Hilfe();
  else
    QDialog::keyPressEvent(Ereignis);
}

}  // namespace marklink
