// The column heads of a grid.
#include "clsTabellenkopf.h"

#include <QRegularExpression>
#include <QStyleOptionHeader>

namespace marklink {

clsTabellenkopf::clsTabellenkopf(QWidget *Eltern) : QHeaderView(Qt::Horizontal, Eltern) {
  setSectionsMovable(true);
  setSectionsClickable(true);
  setHighlightSections(false);
  setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter | Qt::Alignment(Qt::TextWordWrap));
}

/// Always room for two lines; the heads are not measured.
QSize clsTabellenkopf::sizeHint() const {
  return {QHeaderView::sizeHint().width(), 2 * fontMetrics().lineSpacing() + 8};
}

void clsTabellenkopf::initStyleOptionForIndex(QStyleOptionHeader *Form, int Spalte) const {
  QHeaderView::initStyleOptionForIndex(Form, Spalte);
  // "Zahlungsbedingung", "Lieferanschrift": may be parted behind the first half, with a hyphen, where there
  // is no room. Soft hyphens show nowhere else.
  static const QRegularExpression fuge(QStringLiteral("(gs|fer|eich)(?=\\p{Ll}{3})"));
  Form->text.replace(fuge, QStringLiteral("\\1\u00AD"));
}

}  // namespace marklink
