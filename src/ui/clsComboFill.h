// A combo box over a table of the books: its filling and its type-ahead.
#pragma once

#include <QObject>

#include "db/Anweisung.h"

class QComboBox;

namespace marklink {

/// Clears the box and fills it as Auswahlliste_lesen() says.
void Auswahlliste_fuellen(QComboBox &Box, const QString &Tabelle, const QString &Felder,
                          const QString &Anzeigefeld, const db::Anweisung &Bedingung, bool Bearbeiten,
                          bool Leer);

/// Completes what is typed into an editable box to the first entry that begins with it. The two steps are
/// called by Anschliessen()'s box on key-down and on change.
class clsComboFill : public QObject {
  Q_OBJECT
  /// True: the next change of the box must not complete the text.
  Q_PROPERTY(bool SupressKeyStroke MEMBER SupressKeyStroke)
 public:
  static constexpr int Rueckschritt = 8, Entfernen = 46;  ///< the key codes that the key step knows

  /// Owned by the box; takes the place of Qt's own completion.
  static clsComboFill *Anschliessen(QComboBox &Box);

  explicit clsComboFill(QObject *Eltern = nullptr) : QObject(Eltern) {}
  void Taste(const QComboBox &Box, int Tastencode);
  void Aenderung(QComboBox &Box);

  bool SupressKeyStroke = false;

 protected:
  bool eventFilter(QObject *Objekt, QEvent *Ereignis) override;
};

}  // namespace marklink
