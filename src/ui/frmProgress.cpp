// The shared progress window of all long runs.
#include "frmProgress.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>

#include "Hilfe.h"
#include "host/Kontext.h"

namespace marklink {

constexpr qint64 Abstand_ms =
    40;  ///< between two rounds of the message loop: runs must not wait for painting

frmProgress::frmProgress(QWidget *Eltern)
    : QDialog(Eltern, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint),
      lbTitel(new QLabel(this)),
      ProgressBar1(new QProgressBar(this)),
      cmdAbbrechen(new QPushButton(QStringLiteral("Abbrechen"), this)) {
  setObjectName(QStringLiteral("frmProgress"));
  setWindowTitle(QStringLiteral("Einen Moment bitte..."));
  setAttribute(Qt::WA_ShowWithoutActivating);  // Escape in the window that runs something cancels as well
  lbTitel->setObjectName(QStringLiteral("lbTitel"));
  lbTitel->setText(QStringLiteral("Vorgang wird bearbeitet. Einen Moment bitte..."));
  lbTitel->setTextFormat(Qt::PlainText);
  lbTitel->setWordWrap(true);
  lbTitel->setMinimumHeight(lbTitel->fontMetrics().lineSpacing() * 2);
  ProgressBar1->setObjectName(QStringLiteral("ProgressBar1"));
  cmdAbbrechen->setObjectName(QStringLiteral("cmdAbbrechen"));
  connect(cmdAbbrechen, &QPushButton::clicked, this, &frmProgress::reject);
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          [] { Hilfe_zeigen(Hilfethema::Fortschritt); });
  auto *zeilen = new QVBoxLayout(this);
  zeilen->addWidget(lbTitel);
  zeilen->addWidget(ProgressBar1);
  zeilen->addWidget(cmdAbbrechen, 0, Qt::AlignRight);
  setFixedWidth(fontMetrics().averageCharWidth() * 70);
}

void frmProgress::Einrichten(const QString &Titel, int Maximum, bool Abbrechen_zeigen) {
  lbTitel->setText(Titel);
  ProgressBar1->setRange(0, Maximum);
  ProgressBar1->setValue(0);
  ProgressBar1->setVisible(Maximum > 0);
  cmdAbbrechen->setVisible(Abbrechen_zeigen);
}

void frmProgress::Text_setzen(const QString &Zeile) { lbTitel->setText(Zeile); }

void frmProgress::Wert_setzen(int Wert) { ProgressBar1->setValue(Wert); }

void frmProgress::Zentrieren(const QWidget *Ueber) {
  adjustSize();
  const QRect flaeche = Ueber != nullptr ? Ueber->frameGeometry() : screen()->availableGeometry();
  move(flaeche.center() - rect().center());
}

/// The window stays until its run has seen the cancel and ends.
void frmProgress::reject() { Kontext.gAbbrechen = true; }

struct Fenster_Fortschritt::Fenster {
  frmProgress Form;
  QElapsedTimer Zuletzt;
  bool Sanduhr = false;
  std::optional<QString> Text;  ///< not shown yet
  std::optional<int> Wert;
  QPointer<QWidget> Unter;  ///< the window that it stands over; none while it is hidden

  void Sanduhr_setzen(bool An) {
    if (An == Sanduhr) return;
    Sanduhr = An;
    if (An)
      QApplication::setOverrideCursor(Qt::WaitCursor);
    else
      QApplication::restoreOverrideCursor();
  }
  /// A modal window comes first, active or not: it would block the cancel button of one that is not its own.
  void Unter_bestimmen() {
    QWidget *fenster = QApplication::activeModalWidget();
    if (fenster == nullptr) fenster = QApplication::activeWindow();
    if (fenster != &Form) Unter = fenster;  // the next part of a run may find this window active itself
  }
  void Zeigen() {
    Unter_bestimmen();
    Form.winId();
    Form.windowHandle()->setTransientParent(Unter != nullptr ? Unter->windowHandle() : nullptr);
    Form.show();
    Form.Zentrieren(Unter);
    Sanduhr_setzen(true);
    Weiterleiten(true);
  }
  void Verbergen() {
    const bool aktiv = Form.isVisible() && Form.isActiveWindow();
    Form.hide();
    Sanduhr_setzen(false);
    // The keys go on where they went.
    if (aktiv && Unter != nullptr) Unter->activateWindow();
    Unter = nullptr;
  }
  /// Between two rounds of the message loop nobody could see a change: it is only kept.
  void Weiterleiten(bool Sofort) {
    if (!Sofort && Zuletzt.isValid() && Zuletzt.elapsed() < Abstand_ms) return;
    if (Text) Form.Text_setzen(*std::exchange(Text, std::nullopt));
    if (Wert) Form.Wert_setzen(*std::exchange(Wert, std::nullopt));
    QApplication::processEvents();
    Zuletzt.start();
  }
};

Fenster_Fortschritt::Fenster_Fortschritt() : Fenster_(std::make_unique<Fenster>()) {}
Fenster_Fortschritt::~Fenster_Fortschritt() { Fenster_->Verbergen(); }

void Fenster_Fortschritt::Anzeigen(const QString &Titel, int Maximum, bool Abbrechen_zeigen) {
  Fenster_->Text.reset();
  Fenster_->Wert.reset();
  Fenster_->Form.Einrichten(Titel, Maximum, Abbrechen_zeigen);
  Fenster_->Zeigen();
}

void Fenster_Fortschritt::Text(const QString &Zeile) {
  Fenster_->Text = Zeile;
  Fenster_->Weiterleiten(false);
}

void Fenster_Fortschritt::Wert(int Wert) {
  Fenster_->Wert = Wert;
  Fenster_->Weiterleiten(false);
}

void Fenster_Fortschritt::Verbergen() { Fenster_->Verbergen(); }
bool Fenster_Fortschritt::Offen() const { return Fenster_->Form.isVisible(); }
void Fenster_Fortschritt::Ausblenden() { Fenster_->Verbergen(); }
void Fenster_Fortschritt::Einblenden() { Fenster_->Zeigen(); }

}  // namespace marklink
