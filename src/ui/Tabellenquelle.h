// What a grid shows: its columns, and the rows of a screen that the grid asks for cell by cell. Without
// widgets, so that a screen's rules can be the source themselves.
#pragma once

#include <QHash>
#include <QStringList>
#include <QVariant>
#include <optional>
#include <vector>

namespace marklink {

struct Tabellenspalte {
  enum class Art {
    Text,
    Zahl,          ///< shown at the right
    Haken,         ///< a check box: the cell's truth; a click on the cell or the space bar turns it over
    Auswahlliste,  ///< edited by picking one of `Auswahl`
  };
  QString Schluessel;
  QString Titel;
  Art Wie = Art::Text;
  bool Bearbeitbar = false;
  /// Number or date picture ("standard", "dd.mm.yyyy"); applied when the cell is painted, not before.
  QString Format{};
  /// Keys that the cell's editor takes ("0123456789,-"); every other one is dropped. Empty: all.
  QString Zeichen{};
  bool Zellenknopf = false;  ///< the current cell shows a button "..."
  /// What can be picked, one row an entry: the value, then what is shown beside it. A cell may hold a value
  /// that is not among them; it is shown and stays until another is picked.
  std::vector<QStringList> Auswahl{};
  /// What a cell shows in place of such a value.
  QHash<QString, QString> Anzeige{};
};

/// What becomes of a row at the end of its edit.
enum class Zeilenurteil {
  Annehmen,
  Ablehnen,   ///< the cursor stays in the row
  Verwerfen,  ///< a new row is taken away again; a row that was there before gets its old values back
};

/// Rows and columns are counted from 0. A call for what does not exist is not made.
class Tabellenquelle {
 public:
  virtual ~Tabellenquelle() = default;

  virtual int Zeilen() const = 0;
  /// The value as it is kept; for a check box bool or a number.
  virtual QVariant Zelle(int Zeile, int Spalte) const = 0;
  /// A cell was edited: text from an editor or a pick list, bool from a check box. May change other cells
  /// too; the grid paints all of them again. False: not taken.
  virtual bool Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert);
  /// While it is true no cell can be edited.
  virtual bool Gesperrt() const;
  /// The colour value of the row's background, none for the usual alternation.
  virtual std::optional<qint32> Zeilenfarbe(int Zeile) const;

  // --- only for grids with a line for new rows; only there edits are ended row by row -------------
  /// Appends an empty row: something was typed into the line for new rows. False: refused.
  virtual bool Zeile_anfuegen();
  /// Puts back what the row held before its edit, by column. As it is: sets each cell that differs.
  virtual void Zeile_wiederherstellen(int Zeile, const std::vector<QVariant> &Werte);
  /// Takes the row away (a new one that was given up).
  virtual void Zeile_entfernen(int Zeile);
  /// The edit of a row ends: the cursor leaves it, or the grid is told to finish. `Neu`: the row was begun in
  /// the line for new rows. Called only after a cell of the row was edited.
  virtual Zeilenurteil Zeile_beenden(int Zeile, bool Neu);
};

/// A cell as it is shown: by the picture if there is one and the value is a date or a number, else as it is.
QString Zelle_formatieren(const QVariant &Wert, const QString &Format);
/// Whether a check box cell is set: true, another number than 0, "Wahr".
bool Zelle_wahr(const QVariant &Wert);

}  // namespace marklink
