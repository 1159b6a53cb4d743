// The disconnected record set: the one way in which the library reads and writes the books.
//
// Reading shape: Open() takes a connection of its own, reads, lets the connection go and stands on the first
// row. Writing shape: change, add or delete rows, Update() after each, then UpdateBatch() sends all pending
// changes in one transaction.
//
// Nothing here throws and nothing here shows a message. A failed Open() leaves an empty set; reading a field
// that is missing gives a null value; setting a field that the table lacks is passed over; a failed filter
// leaves the set unfiltered. MARKLINK_TRACE=1 tells of each.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <memory>
#include <optional>

#include "Anweisung.h"

namespace marklink::db {

enum class Feldart : quint8;  // Ergebnis.h

class Recordset {
 public:
  Recordset();
  Recordset(Recordset &&) noexcept;
  Recordset &operator=(Recordset &&) noexcept;
  ~Recordset();

  /// Runs `Sql` (dialect text) on `Verbindung` (a connection string, see Verbindung.h). A statement without
  /// rows of its own, such as DELETE, is run and leaves an empty set. False when it failed.
  /// Reading is lazy where nobody can tell: a set on a whole table that is only used to add rows, or only
  /// through filters and searches on a key or indexed column, never reads the table. The rows of such a set
  /// are those of the table at the time of asking; it is observed when it is read, not when it is opened.
  /// When that late read fails the set is closed, and what was pending is lost: IsOpen() tells.
  bool Open(const Anweisung &Sql, const QString &Verbindung);
  bool IsOpen() const;
  /// Runs the same statement again; pending changes are dropped, the filter stays, stands on the first row.
  /// False when it failed; then the set is what it was, pending changes included.
  bool Requery();

  // --- where the set stands -------------------------------------------------------------------------------
  /// Rows under the current filter, pending new ones included, deleted ones not.
  int RecordCount() const;
  bool IsBOF() const;
  bool IsEOF() const;
  void MoveFirst();
  void MoveLast();
  void MoveNext();      ///< past the last row: IsEOF()
  void MovePrevious();  ///< before the first row: IsBOF()
  /// 1-based position of the current row under the filter; 0 when there is none.
  int AbsolutePosition() const;
  void AbsolutePosition_setzen(int Position);

  /// "Field = 'x' AND Other > 5": fields (bare or in brackets), = <> < > <= >= LIKE, AND, OR, parentheses,
  /// text, number, #date#, NULL. Stands on the first row that matches. False, and unfiltered, when it cannot
  /// be understood or is invalid; false on a set that is not open, or that this very look-up closed.
  bool Filter(const Anweisung &Bedingung);
  void ClearFilter();
  /// Searches forward from the current row (itself included) for one "Field op value"; IsEOF() when none.
  bool Find(const Anweisung &Bedingung);

  // --- fields of the current row; names without regard to case ---------------------------------------------
  QStringList Fields() const;
  bool HasField(const QString &Feld) const;
  Feldart Type(const QString &Feld) const;  ///< what the column holds; Offen when there is no such field
  /// Null when there is no such field or row. Text is QString, flags are bool, dates QDateTime, numbers int,
  /// qint64 or double by the column's type, bytes QByteArray.
  QVariant Value(const QString &Feld) const;
  QString Text(const QString &Feld) const;  ///< null and missing: empty; numbers with a point, dates as ISO
                                            ///< ("YYYY-MM-DD hh:mm:ss"), flags "-1" or "0" in both dialects
  /// The bytes (UTF-8) of a text column as they are kept, until the set changes: what Text() would have to
  /// convert. Nothing for a null, a missing field and every other column.
  std::optional<QByteArrayView> Textbytes(const QString &Feld) const;
  double Number(const QString &Feld) const;  ///< null, missing or no number: 0; flags -1 or 0
  bool Flag(const QString &Feld) const;      ///< null or missing: false
  bool IsNull(const QString &Feld) const;
  /// A value that the column cannot take (no date in a date column, text in a number column, a number out of
  /// its range, anything in an auto-numbered one) leaves the field as it was. Number texts have a point;
  /// dates are ISO or "dd.mm.yyyy[ hh:mm[:ss]]". An invalid QVariant is null (flags: false). Text is never
  /// cut.
  void SetValue(const QString &Feld, const QVariant &Wert);

  // --- changes --------------------------------------------------------------------------------------------
  void AddNew();        ///< a new row becomes the current one; defaults are null (flags: false)
  void Update();        ///< keeps the current row's edits for the next UpdateBatch()
  void CancelUpdate();  ///< drops the current row's edits since the last Update(); a new row vanishes
  void Delete();        ///< marks the current row as deleted; the next visible row becomes current
  /// Sends all pending rows as one transaction on a connection of its own. A row that the engine refuses is
  /// passed over and stays pending, the others are written; so does a changed or deleted row that is no
  /// longer there, and a changed one of which somebody else changed the same columns since it was read.
  /// Changed rows send their changed columns only; deleting asks for the key alone. Of a joined set each
  /// table gets its columns, as far as its key is in the set. False when a row or the transaction failed, or
  /// the set is not open. Auto-numbered fields of new rows hold their number afterwards.
  bool UpdateBatch();
  bool HasPendingChanges() const;
  /// Whether nobody knows if the last batch was written, since the answer to its commit got lost. All of it
  /// stays pending then.
  bool IsUncertain() const;
  /// Whether the current row has changes that no batch has taken yet.
  bool IsPending() const;

 private:
  struct Daten;
  std::unique_ptr<Daten> d;
};

/// Runs one statement that gives no rows (DELETE, UPDATE, INSERT). False when it failed.
bool Ausfuehren(const Anweisung &Sql, const QString &Verbindung);

}  // namespace marklink::db
