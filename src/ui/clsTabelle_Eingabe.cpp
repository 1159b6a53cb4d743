// Keys, clicks and the cursor of the grid.
#include <QContextMenuEvent>
#include <QKeyEvent>

#include "clsTabelle.h"
#include "clsTabellenmodell.h"
#include "clsTabellenzelle.h"

namespace marklink {

bool clsTabelle::Darf_nach(int Zeile) {
  if (!currentIndex().isValid() || Zeile == currentIndex().row() || !Modell_->Zeile_offen()) return true;
  return Bearbeitung_abschliessen();
}

void clsTabelle::mousePressEvent(QMouseEvent *Ereignis) {
  if (!Darf_nach(indexAt(Ereignis->position().toPoint()).row())) {
    Ereignis->accept();
    return;
  }
  Vor_Klick_ = currentIndex();
  QTableView::mousePressEvent(Ereignis);
}

/// Dragging must not leave a row whose edit is not ended.
void clsTabelle::mouseMoveEvent(QMouseEvent *Ereignis) {
  if (Ereignis->buttons() == Qt::NoButton || !Modell_->Zeile_offen()) QTableView::mouseMoveEvent(Ereignis);
}

/// A click on the cell in which the cursor already stood opens its editor.
void clsTabelle::mouseReleaseEvent(QMouseEvent *Ereignis) {
  QTableView::mouseReleaseEvent(Ereignis);
  const QPoint ort = Ereignis->position().toPoint();
  const QModelIndex stelle = indexAt(ort);
  const bool wieder = stelle.isValid() && stelle == Vor_Klick_ && stelle == currentIndex();
  Vor_Klick_ = QModelIndex();
  if (!wieder || Ereignis->button() != Qt::LeftButton || Ereignis->modifiers() != Qt::NoModifier) return;
  const bool offen = !stelle.flags().testFlag(Qt::ItemIsEditable) || Zelle_->Editor() != nullptr;
  if (!offen && !Zelle_->Auf_Knopf(stelle, visualRect(stelle), ort)) edit(stelle);
}

QModelIndex clsTabelle::moveCursor(CursorAction Wohin, Qt::KeyboardModifiers Tasten) {
  // A new row that is given up disappears, and the target moves with it.
  const QPersistentModelIndex ziel = QTableView::moveCursor(Wohin, Tasten);
  if (ziel.isValid() && !Darf_nach(ziel.row())) return currentIndex();
  return ziel;
}

/// A key that the column does not take must not open its editor either.
bool clsTabelle::Taste_verwerfen(const QKeyEvent &Taste) const {
  return currentIndex().isValid() && !Taste_erlaubt(Spalten()[size_t(currentIndex().column())], Taste);
}

void clsTabelle::keyPressEvent(QKeyEvent *Ereignis) {
  Q_EMIT Taste_gedrueckt();
  const QModelIndex stelle = currentIndex();
  const bool strg = Ereignis->modifiers() & Qt::ControlModifier;
  switch (Ereignis->key()) {
    case Qt::Key_Escape:
      Ereignis->setAccepted(Bearbeitung_verwerfen());
      return;
    case Qt::Key_Delete:
      Ereignis->ignore();  // empties no cell
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // Behind an edit it must not press the window's default button.
      Ereignis->setAccepted(Modell_->Mit_neuer_Zeile() || Zelle_->Editor() != nullptr);
      return;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (!strg) break;
      QAbstractScrollArea::focusNextPrevChild(Ereignis->key() == Qt::Key_Tab);
      return;
    case Qt::Key_F4:
    case Qt::Key_Down:
      if (Ereignis->key() == Qt::Key_Down && !(Ereignis->modifiers() & Qt::AltModifier)) break;
      if (!stelle.isValid()) return;
      if (Spalten()[size_t(stelle.column())].Zellenknopf && Aktuelle_Zeile() >= 0)
        Q_EMIT Zelle_->Knopf_gedrueckt(stelle);
      else
        edit(stelle, AllEditTriggers, Ereignis);
      return;
    default:
      break;
  }
  if (Taste_verwerfen(*Ereignis))
    Ereignis->accept();
  else
    QTableView::keyPressEvent(Ereignis);
}

/// Looking for what is typed would format every row.
void clsTabelle::keyboardSearch(const QString &) {}

bool clsTabelle::event(QEvent *Ereignis) {
  // Escape belongs to an edit that is under way before it is anybody's shortcut.
  if (Ereignis->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent *>(Ereignis)->key() == Qt::Key_Escape && Modell_->Zeile_offen()) {
    Ereignis->accept();
    return true;
  }
  return QTableView::event(Ereignis);
}

void clsTabelle::contextMenuEvent(QContextMenuEvent *Ereignis) {
  const QRect zelle = visualRect(currentIndex());
  const bool taste = Ereignis->reason() == QContextMenuEvent::Keyboard;
  Q_EMIT Kontextmenue_gewuenscht(taste ? viewport()->mapToGlobal(zelle.bottomLeft()) : Ereignis->globalPos());
  Ereignis->accept();
}

void clsTabelle::currentChanged(const QModelIndex &Neu, const QModelIndex &Alt) {
  QTableView::currentChanged(Neu, Alt);
  if (Neu.row() == Alt.row()) return;
  // The cell button stands in the current row only.
  viewport()->update();
  Q_EMIT Aktuelle_Zeile_geaendert(Aktuelle_Zeile());
}

}  // namespace marklink
