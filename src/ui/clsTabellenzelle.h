// How a cell of a grid is painted, clicked and edited.
#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

#include "Tabellenquelle.h"

class QComboBox;

namespace marklink {

class clsTabelle;

/// Whether the column takes what the key would write. A key that writes nothing, such as Ctrl+V or Enter, is
/// always taken.
bool Taste_erlaubt(const Tabellenspalte &Spalte, const QKeyEvent &Taste);

class clsTabellenzelle : public QStyledItemDelegate {
  Q_OBJECT
 public:
  explicit clsTabellenzelle(clsTabelle &Tabelle);

  QWidget *Editor() const { return Editor_; }  ///< the one that is open, if any
  /// Whether the point is on the button of the cell, if it shows one.
  bool Auf_Knopf(const QModelIndex &Stelle, const QRect &Zelle, QPoint Ort) const;
  /// Commits and closes it, or drops it.
  void Editor_schliessen(bool Uebernehmen);

  QString displayText(const QVariant &Wert, const QLocale &Sprache) const override;
  void paint(QPainter *Maler, const QStyleOptionViewItem &Form, const QModelIndex &Stelle) const override;
  QWidget *createEditor(QWidget *Eltern, const QStyleOptionViewItem &Form,
                        const QModelIndex &Stelle) const override;
  void destroyEditor(QWidget *Editor, const QModelIndex &Stelle) const override;
  void setEditorData(QWidget *Editor, const QModelIndex &Stelle) const override;
  void setModelData(QWidget *Editor, QAbstractItemModel *Modell, const QModelIndex &Stelle) const override;
  void updateEditorGeometry(QWidget *Editor, const QStyleOptionViewItem &Form,
                            const QModelIndex &Stelle) const override;
  bool editorEvent(QEvent *Ereignis, QAbstractItemModel *Modell, const QStyleOptionViewItem &Form,
                   const QModelIndex &Stelle) override;
  bool helpEvent(QHelpEvent *Ereignis, QAbstractItemView *Ansicht, const QStyleOptionViewItem &Form,
                 const QModelIndex &Stelle) override;

 Q_SIGNALS:
  void Knopf_gedrueckt(const QModelIndex &Stelle);
  void Taste_im_Editor();

 protected:
  bool eventFilter(QObject *Objekt, QEvent *Ereignis) override;

 private:
  const Tabellenspalte &Spalte(const QModelIndex &Stelle) const;
  bool Mit_Knopf(const QModelIndex &Stelle) const;
  QRect Knopfflaeche(const QRect &Zelle) const;
  QWidget *Auswahl_erzeugen(QWidget *Eltern, const Tabellenspalte &Spalte) const;

  clsTabelle &Tabelle_;
  mutable QPointer<QWidget> Editor_;
};

}  // namespace marklink
