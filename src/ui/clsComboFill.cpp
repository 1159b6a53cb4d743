// Filling a combo box and completing what is typed into it.
#include "clsComboFill.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include "Auswahllisten.h"

namespace marklink {

void Auswahlliste_fuellen(QComboBox &Box, const QString &Tabelle, const QString &Felder,
                          const QString &Anzeigefeld, const db::Anweisung &Bedingung, bool Bearbeiten,
                          bool Leer) {
  const QStringList liste = Auswahlliste_lesen(Tabelle, Felder, Anzeigefeld, Bedingung, Bearbeiten, Leer);
  Box.clear();
  Box.addItems(liste);
  Box.setCurrentIndex(-1);  // nothing is chosen yet
}

clsComboFill *clsComboFill::Anschliessen(QComboBox &Box) {
  auto *ergaenzer = new clsComboFill(&Box);
  Box.setEditable(true);
  Box.setCompleter(nullptr);
  // What was typed must not become an entry of the list.
  Box.setInsertPolicy(QComboBox::NoInsert);
  // The box has the focus and hands its keys on to the line: a filter of the line would not see them.
  Box.installEventFilter(ergaenzer);
  // Typed changes only: an entry that was picked must not become another one.
  connect(Box.lineEdit(), &QLineEdit::textEdited, ergaenzer, [ergaenzer, &Box] {
    ergaenzer->Aenderung(Box);
    ergaenzer->SupressKeyStroke = false;  // the proposal is no typed change
  });
  return ergaenzer;
}

bool clsComboFill::eventFilter(QObject *Objekt, QEvent *Ereignis) {
  if (Ereignis->type() == QEvent::KeyPress) {
    const int taste = static_cast<QKeyEvent *>(Ereignis)->key();
    const auto &box = *qobject_cast<QComboBox *>(parent());
    if (taste == Qt::Key_Backspace) Taste(box, Rueckschritt);
    if (taste == Qt::Key_Delete) Taste(box, Entfernen);
  }
  return QObject::eventFilter(Objekt, Ereignis);
}

void clsComboFill::Taste(const QComboBox &Box, int Tastencode) {
  const bool loescht = Tastencode == Entfernen || Tastencode == Rueckschritt;
  if (loescht && !Box.currentText().isEmpty()) SupressKeyStroke = true;
}

void clsComboFill::Aenderung(QComboBox &Box) {
  if (SupressKeyStroke) {
    SupressKeyStroke = false;
    return;
  }
  const QString getippt = Box.currentText();
  if (getippt.isEmpty() || Box.lineEdit() == nullptr) return;  // every entry begins with nothing
  const int stelle = Box.findText(getippt, Qt::MatchStartsWith);
  if (stelle < 0) return;
  const QString rest = Box.itemText(stelle).mid(getippt.size());
  if (rest.isEmpty()) return;
  SupressKeyStroke = true;
  Box.lineEdit()->setText(getippt + rest);
  Box.lineEdit()->setSelection(int(getippt.size()), int(rest.size()));
}

}  // namespace marklink
