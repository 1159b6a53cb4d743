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

/// Two lines, three where titles are long; the heads are not measured.
QSize clsTabellenkopf::sizeHint() const {
  return {QHeaderView::sizeHint().width(), Zeilen() * fontMetrics().lineSpacing() + 8};
}

int clsTabellenkopf::Zeilen() const {
  constexpr qsizetype lang = 24;  // characters: more than a new column shows in two lines
  for (int i = 0; i < count(); ++i)
    if (model()->headerData(i, Qt::Horizontal).toString().size() > lang) return 3;
  return 2;
}

/// The text as far as there is room for it.
QString clsTabellenkopf::Kuerzen(QString Text, int Breite) const {
  const int hoechstens = Zeilen() * fontMetrics().lineSpacing();
  const auto passt = [&](const QString &Probe) {
    return fontMetrics().boundingRect(0, 0, Breite, 10 * hoechstens, Qt::TextWordWrap, Probe).height() <=
           hoechstens;
  };
  if (passt(Text)) return Text;
  while (!Text.isEmpty() && !passt(Text + u'…')) Text.chop(1);
  return Text.trimmed() + u'…';
}

void clsTabellenkopf::initStyleOptionForIndex(QStyleOptionHeader *Form, int Spalte) const {
  QHeaderView::initStyleOptionForIndex(Form, Spalte);
  // "Zahlungsbedingung", "Lieferanschrift": may be parted behind the first half, with a hyphen, where there
  // is no room. Soft hyphens show nowhere else.
  static const QRegularExpression fuge(
      QStringLiteral("(gs|iefer|eich|enz|eleg|oraus|äts|ndels|nhalts|sport)(?=\\p{Ll}{3})"));
  Form->text.replace(fuge, QStringLiteral("\\1\u00AD"));
  const int rand = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
  Form->text = Kuerzen(Form->text, sectionSize(Spalte) - 2 * rand);
}

}  // namespace marklink
