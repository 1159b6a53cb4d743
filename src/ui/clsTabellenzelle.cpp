// How a cell of a grid is painted, clicked and edited.
#include "clsTabellenzelle.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "clsOberflaeche.h"
#include "clsTabelle.h"

namespace marklink {

constexpr qsizetype Laengster_Text = 400;  ///< no column shows more; a longer text would only be measured

namespace {

/// In the colour of the row's text: the style's own box vanishes on coloured rows and on a dark desktop.
void Haken_malen(QPainter &Maler, const QRect &Zelle, const QColor &Farbe, bool Gesetzt) {
  const double seite = std::min(Zelle.height() - 6, 14);
  const QRectF kasten(Zelle.center().x() - seite / 2, Zelle.center().y() - seite / 2, seite, seite);
  Maler.save();
  Maler.setRenderHint(QPainter::Antialiasing);
  QColor rand = Farbe;
  rand.setAlphaF(0.55F);
  Maler.setPen(QPen(rand, 1));
  Maler.drawRoundedRect(kasten, 2, 2);
  if (Gesetzt) {
    const auto punkt = [&](double X, double Y) { return kasten.topLeft() + QPointF(X, Y) * seite; };
    Maler.setPen(QPen(Farbe, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    Maler.drawPolyline(QPolygonF({punkt(0.22, 0.52), punkt(0.42, 0.74), punkt(0.78, 0.26)}));
  }
  Maler.restore();
}

}  // namespace

clsTabellenzelle::clsTabellenzelle(clsTabelle &Tabelle) : QStyledItemDelegate(&Tabelle), Tabelle_(Tabelle) {}

const Tabellenspalte &clsTabellenzelle::Spalte(const QModelIndex &Stelle) const {
  return Tabelle_.Spalten()[size_t(Stelle.column())];
}

bool clsTabellenzelle::Mit_Knopf(const QModelIndex &Stelle) const {
  return Spalte(Stelle).Zellenknopf && Stelle.row() == Tabelle_.Aktuelle_Zeile();
}

QRect clsTabellenzelle::Knopfflaeche(const QRect &Zelle) const {
  QRect flaeche = Zelle.adjusted(0, 1, -1, -1);
  flaeche.setLeft(flaeche.right() - std::min(Zelle.height() + 4, Zelle.width() / 2));
  return flaeche;
}

bool clsTabellenzelle::Auf_Knopf(const QModelIndex &Stelle, const QRect &Zelle, QPoint Ort) const {
  return Mit_Knopf(Stelle) && Knopfflaeche(Zelle).contains(Ort);
}

QString clsTabellenzelle::displayText(const QVariant &Wert, const QLocale &) const {
  QString text = Wert.toString().left(Laengster_Text);
  text.replace(QLatin1String("\r\n"), QLatin1String(" "));
  for (QChar &zeichen : text)
    if (zeichen == u'\n' || zeichen == u'\r' || zeichen == u'\t') zeichen = u' ';
  return text;
}

void clsTabellenzelle::paint(QPainter *Maler, const QStyleOptionViewItem &Form,
                             const QModelIndex &Stelle) const {
  QStyleOptionViewItem form = Form;
  initStyleOption(&form, Stelle);
  const QStyle *stil = Tabelle_.style();
  if (Spalte(Stelle).Wie == Tabellenspalte::Art::Haken) {
    const Qt::CheckState haken = form.checkState;
    form.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    stil->drawControl(QStyle::CE_ItemViewItem, &form, Maler, &Tabelle_);
    const bool gewaehlt = form.state & QStyle::State_Selected;
    Haken_malen(*Maler, Form.rect, form.palette.color(gewaehlt ? QPalette::HighlightedText : QPalette::Text),
                haken == Qt::Checked);
    return;
  }
  stil->drawControl(QStyle::CE_ItemViewItem, &form, Maler, &Tabelle_);
  if (!Mit_Knopf(Stelle)) return;
  QStyleOptionButton knopf;
  knopf.initFrom(&Tabelle_);
  knopf.rect = Knopfflaeche(Form.rect);
  knopf.text = QStringLiteral("...");
  knopf.state |= QStyle::State_Raised;
  stil->drawControl(QStyle::CE_PushButton, &knopf, Maler, &Tabelle_);
}

bool clsTabellenzelle::editorEvent(QEvent *Ereignis, QAbstractItemModel *Modell,
                                   const QStyleOptionViewItem &Form, const QModelIndex &Stelle) {
  const QEvent::Type art = Ereignis->type();
  const bool klick = art == QEvent::MouseButtonRelease || art == QEvent::MouseButtonDblClick;
  const auto *maus = klick ? static_cast<QMouseEvent *>(Ereignis) : nullptr;
  if (maus != nullptr && maus->button() != Qt::LeftButton) return false;
  if (maus != nullptr && maus->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier))
    return false;  // selects
  if (maus != nullptr && Auf_Knopf(Stelle, Form.rect, maus->position().toPoint())) {
    Editor_schliessen(true);
    if (art == QEvent::MouseButtonRelease) Q_EMIT Knopf_gedrueckt(Stelle);
    return true;
  }
  if (Spalte(Stelle).Wie != Tabellenspalte::Art::Haken || !(Stelle.flags() & Qt::ItemIsUserCheckable))
    return false;
  // The second click of a double click is one too: it turns the mark over again.
  const bool leertaste =
      art == QEvent::KeyPress && static_cast<QKeyEvent *>(Ereignis)->key() == Qt::Key_Space;
  if (!klick && !leertaste) return false;
  const bool an = Stelle.data(Qt::CheckStateRole).toInt() == Qt::Checked;
  return Modell->setData(Stelle, int(an ? Qt::Unchecked : Qt::Checked), Qt::CheckStateRole);
}

bool clsTabellenzelle::helpEvent(QHelpEvent *Ereignis, QAbstractItemView *Ansicht,
                                 const QStyleOptionViewItem &Form, const QModelIndex &Stelle) {
  if (Ereignis->type() != QEvent::ToolTip || !Stelle.isValid())
    return QStyledItemDelegate::helpEvent(Ereignis, Ansicht, Form, Stelle);
  // What the cell has no room for.
  const QString text = Stelle.data(Qt::DisplayRole).toString();
  const bool ganz = !text.contains(u'\n') && text.size() < Laengster_Text &&
                    Ansicht->fontMetrics().horizontalAdvance(text) + 8 <= Form.rect.width();
  QToolTip::showText(Ereignis->globalPos(), ganz ? QString() : Hinweistext(text.left(4000)), Ansicht);
  return true;
}

}  // namespace marklink
