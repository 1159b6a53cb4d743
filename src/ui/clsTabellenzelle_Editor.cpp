// The editors of a grid's cells: a text field, or a list to pick from.
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTimer>
#include <algorithm>

#include "clsTabelle.h"
#include "clsTabellenzelle.h"

namespace marklink {

namespace {

QStandardItemModel *Eintraege_erzeugen(const std::vector<QStringList> &Auswahl, QObject *Eltern) {
  auto *modell = new QStandardItemModel(Eltern);
  for (const QStringList &eintrag : Auswahl) {
    QList<QStandardItem *> zeile;
    for (const QString &feld : eintrag) zeile << new QStandardItem(feld);
    modell->appendRow(zeile);
  }
  return modell;
}

/// What was put into `Vorher` to make `Neu` of it, without the characters that are not allowed. An input of
/// which nothing is left changes nothing.
QString Eingabe_filtern(const QString &Vorher, const QString &Neu, const QString &Erlaubt) {
  const auto [vorne, vorne_neu] = std::mismatch(Vorher.begin(), Vorher.end(), Neu.begin(), Neu.end());
  const auto hinten =
      std::mismatch(std::make_reverse_iterator(Vorher.end()), std::make_reverse_iterator(vorne),
                    std::make_reverse_iterator(Neu.end()), std::make_reverse_iterator(vorne_neu));
  const qsizetype von = vorne_neu - Neu.begin(), bis = hinten.second.base() - Neu.begin();
  QString eingabe = Neu.mid(von, bis - von);
  const qsizetype laenge = eingabe.size();
  eingabe.removeIf([&Erlaubt](QChar zeichen) { return !Erlaubt.contains(zeichen); });
  if (eingabe.isEmpty() && laenge > 0) return Vorher;
  return Neu.left(von) + eingabe + Neu.mid(bis);
}

/// Besides the key filter: what is pasted or dropped. No validator: it would not let go of a text that stood
/// there before and is none of these characters.
void Eingaben_filtern(QLineEdit &Feld, const QString &Erlaubt) {
  const auto vorher = std::make_shared<QString>();
  QObject::connect(&Feld, &QLineEdit::textEdited, &Feld, [&Feld, Erlaubt, vorher](const QString &Neu) {
    const QString gefiltert = Eingabe_filtern(*vorher, Neu, Erlaubt);
    if (gefiltert == Neu) return;
    const qsizetype dahinter = Neu.size() - Feld.cursorPosition();
    Feld.setText(gefiltert);
    Feld.setCursorPosition(int(std::max<qsizetype>(0, gefiltert.size() - dahinter)));
  });
  // Not the signal's text: the one above may have changed it meanwhile.
  QObject::connect(&Feld, &QLineEdit::textChanged, &Feld, [&Feld, vorher] { *vorher = Feld.text(); });
}

/// The list of a pick list with further columns.
QTableView *Liste_erzeugen(QWidget *Eltern) {
  auto *liste = new QTableView(Eltern);
  liste->horizontalHeader()->hide();
  liste->verticalHeader()->hide();
  liste->setShowGrid(false);
  liste->setSelectionBehavior(QAbstractItemView::SelectRows);
  liste->setSelectionMode(QAbstractItemView::SingleSelection);
  return liste;
}

}  // namespace

bool Taste_erlaubt(const Tabellenspalte &Spalte, const QKeyEvent &Taste) {
  const QString text = Taste.text();
  const bool befehl = Taste.modifiers() & Qt::ControlModifier;
  return befehl || Spalte.Zeichen.isEmpty() || text.size() != 1 || !text[0].isPrint() ||
         Spalte.Zeichen.contains(text);
}

QWidget *clsTabellenzelle::createEditor(QWidget *Eltern, const QStyleOptionViewItem &,
                                        const QModelIndex &Stelle) const {
  const Tabellenspalte &spalte = Spalte(Stelle);
  if (spalte.Wie == Tabellenspalte::Art::Auswahlliste) {
    Editor_ = Auswahl_erzeugen(Eltern, spalte);
    return Editor_;
  }
  auto *feld = new QLineEdit(Eltern);
  feld->setFrame(false);
  feld->setAutoFillBackground(true);
  if (!spalte.Zeichen.isEmpty()) Eingaben_filtern(*feld, spalte.Zeichen);
  Editor_ = feld;
  return feld;
}

QWidget *clsTabellenzelle::Auswahl_erzeugen(QWidget *Eltern, const Tabellenspalte &Spalte) const {
  auto *box = new QComboBox(Eltern);
  const bool mehrspaltig = std::any_of(Spalte.Auswahl.begin(), Spalte.Auswahl.end(),
                                       [](const QStringList &E) { return E.size() > 1; });
  QTableView *liste = mehrspaltig ? Liste_erzeugen(box) : nullptr;
  box->setModel(Eintraege_erzeugen(Spalte.Auswahl, box));
  if (liste != nullptr) {
    box->setView(liste);
    liste->resizeColumnsToContents();
    liste->resizeRowsToContents();
    liste->setMinimumWidth(liste->horizontalHeader()->length() +
                           liste->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * liste->frameWidth());
  }
  connect(box, &QComboBox::activated, this,
          [this] { const_cast<clsTabellenzelle *>(this)->Editor_schliessen(true); });
  QTimer::singleShot(0, box, &QComboBox::showPopup);
  return box;
}

void clsTabellenzelle::destroyEditor(QWidget *Editor, const QModelIndex &Stelle) const {
  if (Editor_ == Editor) Editor_ = nullptr;
  QStyledItemDelegate::destroyEditor(Editor, Stelle);
}

void clsTabellenzelle::setEditorData(QWidget *Editor, const QModelIndex &Stelle) const {
  const QString text = Stelle.data(Qt::EditRole).toString();
  if (auto *feld = qobject_cast<QLineEdit *>(Editor)) {
    feld->setText(text);
  } else if (auto *box = qobject_cast<QComboBox *>(Editor)) {
    box->setCurrentIndex(box->findText(text, Qt::MatchExactly));
    box->setPlaceholderText(text);  // what is not among the entries is shown all the same
  }
}

void clsTabellenzelle::setModelData(QWidget *Editor, QAbstractItemModel *Modell,
                                    const QModelIndex &Stelle) const {
  if (auto *feld = qobject_cast<QLineEdit *>(Editor)) {
    Modell->setData(Stelle, feld->text(), Qt::EditRole);
  } else if (auto *box = qobject_cast<QComboBox *>(Editor); box != nullptr && box->currentIndex() >= 0) {
    Modell->setData(Stelle, box->currentText(), Qt::EditRole);
  }
}

void clsTabellenzelle::updateEditorGeometry(QWidget *Editor, const QStyleOptionViewItem &Form,
                                            const QModelIndex &Stelle) const {
  QRect flaeche = Form.rect;
  if (Mit_Knopf(Stelle)) flaeche.setRight(Knopfflaeche(Form.rect).left() - 1);
  Editor->setGeometry(flaeche);
}

void clsTabellenzelle::Editor_schliessen(bool Uebernehmen) {
  const QPointer<QWidget> editor = Editor_;
  Editor_ = nullptr;
  if (editor == nullptr) return;
  if (Uebernehmen) Q_EMIT commitData(editor);
  if (editor != nullptr) Q_EMIT closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool clsTabellenzelle::eventFilter(QObject *Objekt, QEvent *Ereignis) {
  if (Ereignis->type() == QEvent::KeyPress && Objekt == Editor_) {
    Q_EMIT Taste_im_Editor();
    const QModelIndex stelle = Tabelle_.currentIndex();
    if (stelle.isValid() && !Taste_erlaubt(Spalte(stelle), *static_cast<QKeyEvent *>(Ereignis))) return true;
  }
  return QStyledItemDelegate::eventFilter(Objekt, Ereignis);
}

}  // namespace marklink
