// The dialogs as windows.
#include "clsDialoge.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

#include "Schirme.h"

namespace marklink {
namespace {

QMessageBox::Icon Bild(Symbol S) {
  switch (S) {
    case Symbol::Information:
      return QMessageBox::Information;
    case Symbol::Frage:
      return QMessageBox::Question;
    case Symbol::Warnung:
      return QMessageBox::Warning;
    case Symbol::Stopp:
      return QMessageBox::Critical;
    case Symbol::Ohne:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButton Knopf(Antwort A) {
  switch (A) {
    case Antwort::Ja:
      return QMessageBox::Yes;
    case Antwort::Nein:
      return QMessageBox::No;
    case Antwort::Abbrechen:
      return QMessageBox::Cancel;
    case Antwort::OK:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButtons Knopfreihe(Knoepfe K) {
  switch (K) {
    case Knoepfe::JaNein:
      return QMessageBox::Yes | QMessageBox::No;
    case Knoepfe::JaNeinAbbrechen:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Knoepfe::OKAbbrechen:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case Knoepfe::OK:
      break;
  }
  return QMessageBox::Ok;
}

/// What closing the box means: the answer that changes least.
Antwort Antwort_zu(int Gedrueckt, Knoepfe K) {
  if (Gedrueckt == QMessageBox::Yes) return Antwort::Ja;
  if (Gedrueckt == QMessageBox::No) return Antwort::Nein;
  if (Gedrueckt == QMessageBox::Ok) return Antwort::OK;
  if (K == Knoepfe::JaNein) return Antwort::Nein;
  return K == Knoepfe::OK ? Antwort::OK : Antwort::Abbrechen;
}

/// "Bilder|*.jpg;*.png|Alle|*.*" in Qt's form; a pattern that the name has already is not said twice.
QString Dateifilter(const QString &Filter) {
  const QStringList teile = Filter.split(u'|', Qt::SkipEmptyParts);
  QStringList liste;
  for (qsizetype i = 0; i + 1 < teile.size(); i += 2) {
    QString name = teile[i].trimmed();
    const QString doppelt = u'(' + teile[i + 1] + u')';
    if (name.endsWith(doppelt)) name = name.chopped(doppelt.size()).trimmed();
    liste << QStringLiteral("%1 (%2)").arg(name, QString(teile[i + 1]).replace(u';', u' '));
  }
  return liste.join(QStringLiteral(";;"));
}

}  // namespace

Antwort clsDialoge::Meldung(const QString &Titel, const QStringList &Zeilen, Symbol S, Knoepfe K,
                            Antwort Vorgabe) {
  QMessageBox box(Bild(S), Titel, Zeilen.join(u'\n'), Knopfreihe(K), QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setObjectName(QStringLiteral("Meldung"));
  // A default that the box does not have leaves its first button as it.
  if (box.button(Knopf(Vorgabe)) != nullptr) box.setDefaultButton(Knopf(Vorgabe));
  if (K == Knoepfe::JaNein) box.setEscapeButton(QMessageBox::No);
  return Antwort_zu(box.exec(), K);
}

QString clsDialoge::Eingabe(const QString &Titel, const QString &Text, const QString &Vorgabe) {
  QInputDialog eingabe(QApplication::activeWindow());
  eingabe.setObjectName(QStringLiteral("Eingabe"));
  eingabe.setWindowTitle(Titel);
  eingabe.setLabelText(Text);
  eingabe.setTextValue(Vorgabe);
  eingabe.setInputMode(QInputDialog::TextInput);
  return eingabe.exec() == QDialog::Accepted ? eingabe.textValue() : QString();
}

QString clsDialoge::Datei_oeffnen(const QString &Titel, const QString &Filter, const QString &Ordner) {
  return QFileDialog::getOpenFileName(QApplication::activeWindow(), Titel, Ordner, Dateifilter(Filter));
}

QString clsDialoge::Datei_speichern(const QString &Titel, const QString &Filter, const QString &Vorgabe) {
  QFileDialog dialog(QApplication::activeWindow(), Titel);
  dialog.setObjectName(QStringLiteral("Datei_speichern"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(Dateifilter(Filter).split(QStringLiteral(";;")));
  dialog.setLabelText(QFileDialog::Accept, QStringLiteral("Speichern"));
  const QFileInfo vorgabe(Vorgabe);
  dialog.setDirectory(vorgabe.isDir() ? Vorgabe : vorgabe.path());
  if (!vorgabe.isDir()) dialog.selectFile(vorgabe.fileName());
  // A name without an ending gets that of the chosen kind.
  const auto endung_setzen = [&dialog](const QString &art) {
    const QString endung = art.section(QStringLiteral("*."), -1).section(u')', 0, 0).section(u' ', 0, 0);
    dialog.setDefaultSuffix(endung == u"*" ? QString() : endung);
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, endung_setzen);
  endung_setzen(dialog.selectedNameFilter());
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

std::optional<quint32> clsDialoge::Farbe(quint32 Vorgabe) {
  const QColor farbe = QColorDialog::getColor(QColor::fromRgb(Vorgabe), QApplication::activeWindow());
  if (!farbe.isValid()) return std::nullopt;
  return farbe.rgb() & 0xFFFFFFU;
}

bool clsDialoge::Schirm_zeigen(const QString &Name) { return Schirm_oeffnen(Name); }

}  // namespace marklink
