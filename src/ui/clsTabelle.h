// The grid of all screens: a table view over a screen's own rows. It keeps no cell; a cell is asked for,
// formatted and measured when it is painted, so that 100,000 rows cost what 100 do.
//
//   Einrichten() once, then Tabelle_Aussehen_setzen() and Layout_laden(); Neu_laden() after the source has
//   other rows, Auffrischen() after cells changed behind the grid's back.
#pragma once

#include <QTableView>

#include "Tabellenlayout.h"
#include "Tabellenquelle.h"

namespace marklink {

class clsTabellenmodell;
class clsTabellenzelle;

class clsTabelle : public QTableView {
  Q_OBJECT
 public:
  explicit clsTabelle(QWidget *Eltern = nullptr);
  ~clsTabelle() override;

  /// `Quelle` is not owned and outlives the grid. `Neue_Zeile`: an empty line below the last row in which new
  /// rows are begun.
  void Einrichten(Tabellenquelle &Quelle, std::vector<Tabellenspalte> Spalten, bool Neue_Zeile = false);
  const std::vector<Tabellenspalte> &Spalten() const;
  int Spalte_finden(const QString &Schluessel) const;  ///< -1: none
  /// Other entries for a pick list column; with none it takes any text.
  void Auswahl_setzen(const QString &Schluessel, std::vector<QStringList> Eintraege);

  /// The rows are others: stands on the first one. An edit that is under way is dropped.
  void Neu_laden();
  void Auffrischen();

  int Aktuelle_Zeile() const;                 ///< -1: none; the line for new rows is none either
  std::vector<int> Gewaehlte_Zeilen() const;  ///< ascending, without the line for new rows
  /// Passed over when there is no such cell or the column is hidden.
  void Zelle_anspringen(int Zeile, const QString &Schluessel);

  /// Takes over an open editor and ends the edit of the row. False when the source refuses; the cursor is
  /// then still in that row.
  bool Bearbeitung_abschliessen();
  /// Drops an open editor and brings back the row's values from before its edit (a new row goes). False when
  /// there was nothing to drop. The Escape key does this before anything else in the window sees it.
  bool Bearbeitung_verwerfen();

  Tabellenlayout Anordnung() const;
  void Anordnung_setzen(const Tabellenlayout &Layout);

  /// Backgrounds of the even and the odd rows, counted from 1; without one the palette's.
  void Zeilenfarben_setzen(std::optional<qint32> Gerade, std::optional<qint32> Ungerade);
  void Schriftgroesse_setzen(int Punkt);

 Q_SIGNALS:
  void Aktuelle_Zeile_geaendert(int Zeile);  ///< as Aktuelle_Zeile(); also when Neu_laden() moved the cursor
  void Kopf_geklickt(const QString &Schluessel);
  void Zelle_geaendert(int Zeile, const QString &Schluessel);  ///< by the user; the source has the value
  void Zellenknopf_gedrueckt(int Zeile, const QString &Schluessel);
  /// By right click (the row under the pointer is then current) or menu key; screen coordinates.
  void Kontextmenue_gewuenscht(const QPoint &Ort);
  void Taste_gedrueckt();  ///< any key, in the grid or in a cell's editor

 protected:
  void mousePressEvent(QMouseEvent *Ereignis) override;
  void mouseMoveEvent(QMouseEvent *Ereignis) override;
  void mouseReleaseEvent(QMouseEvent *Ereignis) override;
  void keyPressEvent(QKeyEvent *Ereignis) override;
  void contextMenuEvent(QContextMenuEvent *Ereignis) override;
  QModelIndex moveCursor(CursorAction Wohin, Qt::KeyboardModifiers Tasten) override;
  void keyboardSearch(const QString &Text) override;
  void currentChanged(const QModelIndex &Neu, const QModelIndex &Alt) override;
  void changeEvent(QEvent *Ereignis) override;
  bool event(QEvent *Ereignis) override;

 private:
  void Koepfe_einrichten();
  void Masse_setzen();
  /// Whether the cursor may go to that row: the same one, or the source lets the edit of this one end.
  bool Darf_nach(int Zeile);
  bool Taste_verwerfen(const QKeyEvent &Taste) const;
  double Pixel_je_Einheit() const;

  clsTabellenmodell *Modell_;
  clsTabellenzelle *Zelle_;
  std::vector<int> Breiten_;  ///< by column, in the layout's unit: a hidden column has no width on screen
  std::vector<QString> Typen_;
  std::vector<Tabellenlayout::Ordnung> Liste1_, Liste2_;
  bool Wird_angeordnet_ = false;
  QPersistentModelIndex Vor_Klick_;  ///< where the cursor was when the mouse was pressed
};

/// The saved layout under that key, or the default one. The flags: whether its two lists are read and
/// written.
void Layout_laden(clsTabelle &Tabelle, const QString &Schluessel, bool Liste1 = false, bool Liste2 = false);
void Layout_speichern(const clsTabelle &Tabelle, const QString &Schluessel, bool Liste1 = false,
                      bool Liste2 = false);
/// Row colours (Program/RowColorEven, RowColorOdd) and font size (Program/GridFontSize; an empty one, or one
/// below 8, is set to 8).
void Tabelle_Aussehen_setzen(clsTabelle &Tabelle);

}  // namespace marklink
