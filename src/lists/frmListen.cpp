// The window in which a list is edited.
#include "frmListen.h"

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>

#include "ui/Hilfe.h"
#include "ui/Schirme.h"
#include "ui/clsTabelle.h"
#include "ui/frmTabelle_Formatieren.h"

namespace marklink {
namespace {

const QString Bezeichnung = QStringLiteral("Description");

}  // namespace

frmListen::frmListen(const Liste &Was, QWidget *Eltern)
    : QDialog(Eltern), Pflege_(Was), jgTab(new clsTabelle(this)), mnuKontext(new QMenu(this)) {
  setObjectName(Was.Schirm);
  setWindowTitle(Was.Titel);
  Tabelle_einrichten();
  Kontextmenue_bauen();
  auto *zeilen = new QVBoxLayout(this);
  zeilen->addWidget(jgTab, 1);
  if (Was.Mit_Tipp) {
    auto *tipp = new QLabel(Webshop_ID_Tipp(), this);
    tipp->setObjectName(QStringLiteral("lbTipp"));
    tipp->setTextFormat(Qt::PlainText);
    tipp->setWordWrap(true);
    zeilen->addWidget(tipp);
  }
  zeilen->addLayout(Knoepfe_bauen());
  // The grid sees both keys only while one of its edits is under way: they are the window's, and no change.
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &frmListen::reject);
  connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
          [this] { Hilfe_zeigen(Pflege_.Was().Hilfethema); });
  const QFontMetrics mass = fontMetrics();
  resize(QSize(mass.averageCharWidth() * 128, mass.lineSpacing() * 26)
             .boundedTo(screen()->availableSize() * 0.95));
}

/// The grid asks the rows to its end.
frmListen::~frmListen() { delete jgTab; }

void frmListen::Tabelle_einrichten() {
  const Liste &was = Pflege_.Was();
  jgTab->setObjectName(QStringLiteral("jgTab"));
  Tabelle_Aussehen_setzen(*jgTab);
  jgTab->Einrichten(Pflege_, was.Spalten, true);
  jgTab->setProperty("Sql", was.Layout_Sql());  // part of what the layout is given; it has no use for it
  Layout_laden(*jgTab, was.Layout);
  Pflege_.Liste_laden();
  jgTab->Neu_laden();
  connect(jgTab, &clsTabelle::Taste_gedrueckt, this, [this] { Pflege_.Geaendert_setzen(); });
  connect(jgTab, &clsTabelle::Zellenknopf_gedrueckt, this, [this](int Zeile) {
    if (Pflege_.Farbe_waehlen(Zeile)) jgTab->Auffrischen();
  });
}

void frmListen::Kontextmenue_bauen() {
  mnuKontext->setObjectName(QStringLiteral("mnuKontext"));
  QAction *loeschen = mnuKontext->addAction(QStringLiteral("&Löschen"), this, &frmListen::Loeschen);
  loeschen->setObjectName(QStringLiteral("mnuKontext_Loeschen"));
  QAction *formatieren = mnuKontext->addAction(QStringLiteral("Tabelle &formatieren"), this, [this] {
    frmTabelle_Formatieren(*jgTab, Pflege_.Was().Layout, false, false, this).exec();
  });
  formatieren->setObjectName(QStringLiteral("mnuKontext_Tabelle_formatieren"));
  connect(jgTab, &clsTabelle::Kontextmenue_gewuenscht, this, [this, loeschen](const QPoint &Ort) {
    loeschen->setEnabled(!jgTab->Gewaehlte_Zeilen().empty());
    mnuKontext->popup(Ort);
  });
}

QHBoxLayout *frmListen::Knoepfe_bauen() {
  auto *reihe = new QHBoxLayout;
  reihe->addStretch(1);
  const auto knopf = [this, reihe](const char *Name, const QString &Aufschrift, auto Befehl) {
    auto *neu = new QPushButton(Aufschrift, this);
    neu->setObjectName(QLatin1String(Name));
    connect(neu, &QPushButton::clicked, this, Befehl);
    reihe->addWidget(neu);
    return neu;
  };
  knopf("cmdOK", QStringLiteral("&OK"), &frmListen::accept)->setDefault(true);
  knopf("cmdAbbrechen", QStringLiteral("&Abbrechen"), &frmListen::reject);
  knopf("cmdHilfe", QStringLiteral("&Hilfe"), [this] { Hilfe_zeigen(Pflege_.Was().Hilfethema); });
  return reihe;
}

/// False when the row that is being edited is not complete; nothing is written then.
bool frmListen::Speichern() {
  if (!jgTab->Bearbeitung_abschliessen()) return false;
  Pflege_.Liste_speichern();
  return true;
}

void frmListen::Loeschen() {
  std::vector<int> zeilen = jgTab->Gewaehlte_Zeilen();
  if (zeilen.empty() || !Pflege_.Loeschen_fragen()) return;
  // An edit under way is either in a row that goes, or has to be ended.
  const bool betroffen = std::find(zeilen.begin(), zeilen.end(), jgTab->Aktuelle_Zeile()) != zeilen.end();
  if (betroffen)
    jgTab->Bearbeitung_verwerfen();
  else if (!jgTab->Bearbeitung_abschliessen())
    return;
  Pflege_.Zeilen_loeschen(zeilen);
  jgTab->Neu_laden();
  jgTab->Zelle_anspringen(std::min(zeilen.front(), std::max(Pflege_.Zeilen() - 1, 0)), Bezeichnung);
}

void frmListen::accept() {
  if (Speichern()) QDialog::accept();
}

void frmListen::reject() {
  const Antwort antwort = Pflege_.Aenderungen_fragen();
  if (antwort == Antwort::Abbrechen || (antwort == Antwort::Ja && !Speichern())) return;
  QDialog::reject();
}

void frmListen::done(int Ergebnis) {
  Layout_speichern(*jgTab, Pflege_.Was().Layout);
  QDialog::done(Ergebnis);
}

void Listenfenster_anmelden() {
  for (const Liste &liste : Listen()) {
    Schirm_anmelden(liste.Schirm, [&liste] {
      frmListen fenster(liste, QApplication::activeWindow());
      fenster.exec();
    });
  }
}

}  // namespace marklink
