// The grid of all screens.
#include "clsTabelle.h"

#include <QEvent>
#include <QHeaderView>
#include <algorithm>
#include <cmath>
#include <utility>

#include "clsTabellenkopf.h"
#include "clsTabellenmodell.h"
#include "clsTabellenzelle.h"

namespace marklink {

constexpr double Zentimeter_je_Zoll = 2.54;
constexpr int Schmalste_Spalte = 10;  ///< pixels; narrower, the head could not be taken hold of again

clsTabelle::clsTabelle(QWidget *Eltern)
    : QTableView(Eltern), Modell_(new clsTabellenmodell(this)), Zelle_(new clsTabellenzelle(*this)) {
  setModel(Modell_);
  setItemDelegate(Zelle_);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  // Not SelectedClicked: it waits for a second click, and what is typed meanwhile is lost.
  setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
  setAlternatingRowColors(true);
  setWordWrap(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setCornerButtonEnabled(false);
  Koepfe_einrichten();
  Masse_setzen();
  connect(Modell_, &clsTabellenmodell::Zelle_geaendert, this, [this](int Zeile, int Spalte) {
    Q_EMIT Zelle_geaendert(Zeile, Spalten()[size_t(Spalte)].Schluessel);
  });
  connect(Zelle_, &clsTabellenzelle::Taste_im_Editor, this, &clsTabelle::Taste_gedrueckt);
  connect(Zelle_, &clsTabellenzelle::Knopf_gedrueckt, this, [this](const QModelIndex &Stelle) {
    Q_EMIT Zellenknopf_gedrueckt(Stelle.row(), Spalten()[size_t(Stelle.column())].Schluessel);
  });
}

clsTabelle::~clsTabelle() = default;

void clsTabelle::Koepfe_einrichten() {
  QHeaderView *kopf = new clsTabellenkopf(this);
  setHorizontalHeader(kopf);
  kopf->setMinimumSectionSize(Schmalste_Spalte);
  // A click on a head is a command of the screen and selects nothing.
  for (QHeaderView *beide : {kopf, verticalHeader()}) {
    disconnect(beide, SIGNAL(sectionPressed(int)), this, nullptr);
    disconnect(beide, SIGNAL(sectionEntered(int)), this, nullptr);
  }
  connect(kopf, &QHeaderView::sectionClicked, this,
          [this](int Spalte) { Q_EMIT Kopf_geklickt(Spalten()[size_t(Spalte)].Schluessel); });
  connect(kopf, &QHeaderView::sectionResized, this, [this](int Spalte, int, int Neu) {
    if (!Wird_angeordnet_ && Neu > 0 && size_t(Spalte) < Breiten_.size())
      Breiten_[size_t(Spalte)] = int(std::lround(Neu / Pixel_je_Einheit()));
  });
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int Zeile) {
    if (Darf_nach(Zeile)) selectRow(Zeile);
  });
}

void clsTabelle::Einrichten(Tabellenquelle &Quelle, std::vector<Tabellenspalte> Spalten, bool Neue_Zeile) {
  Modell_->Einrichten(Quelle, std::move(Spalten), Neue_Zeile);
  verticalHeader()->setVisible(Neue_Zeile);
  // Where rows are typed in, Tab goes from cell to cell and Ctrl+Tab leaves; elsewhere Tab leaves.
  setTabKeyNavigation(Neue_Zeile);
  Anordnung_setzen(Layout_neu(int(this->Spalten().size())));
  Neu_laden();
}

const std::vector<Tabellenspalte> &clsTabelle::Spalten() const { return Modell_->Spalten(); }

int clsTabelle::Spalte_finden(const QString &Schluessel) const {
  for (size_t i = 0; i < Spalten().size(); ++i)
    if (Spalten()[i].Schluessel.compare(Schluessel, Qt::CaseInsensitive) == 0) return int(i);
  return -1;
}

void clsTabelle::Auswahl_setzen(const QString &Schluessel, std::vector<QStringList> Eintraege) {
  const int spalte = Spalte_finden(Schluessel);
  if (spalte >= 0) Modell_->Auswahl_setzen(spalte, std::move(Eintraege));
}

void clsTabelle::Neu_laden() {
  Modell_->Neu_laden();
  // The first row, in the first column that is to be seen.
  for (const int spalte : Spaltenfolge(Anordnung())) {
    if (isColumnHidden(spalte)) continue;
    setCurrentIndex(Modell_->index(0, spalte));
    break;
  }
  if (!currentIndex().isValid()) Q_EMIT Aktuelle_Zeile_geaendert(-1);
}

void clsTabelle::Auffrischen() { Modell_->Auffrischen(); }

int clsTabelle::Aktuelle_Zeile() const {
  const int zeile = currentIndex().row();
  return zeile < Modell_->Zeilen() ? zeile : -1;
}

std::vector<int> clsTabelle::Gewaehlte_Zeilen() const {
  // By ranges: asking row by row would take as long as the list is.
  std::vector<std::pair<int, int>> bereiche;
  for (const QItemSelectionRange &bereich : selectionModel()->selection())
    bereiche.emplace_back(bereich.top(), std::min(bereich.bottom(), Modell_->Zeilen() - 1));
  std::sort(bereiche.begin(), bereiche.end());
  std::vector<int> zeilen;
  for (const auto &[von, bis] : bereiche)
    for (int i = std::max(von, zeilen.empty() ? 0 : zeilen.back() + 1); i <= bis; ++i) zeilen.push_back(i);
  return zeilen;
}

void clsTabelle::Zelle_anspringen(int Zeile, const QString &Schluessel) {
  const QModelIndex stelle = Modell_->index(Zeile, Spalte_finden(Schluessel));
  if (stelle.isValid() && !isColumnHidden(stelle.column())) setCurrentIndex(stelle);
}

bool clsTabelle::Bearbeitung_abschliessen() {
  Zelle_->Editor_schliessen(true);
  return Modell_->Zeile_abschliessen();
}

bool clsTabelle::Bearbeitung_verwerfen() {
  const bool editor = Zelle_->Editor() != nullptr;
  Zelle_->Editor_schliessen(false);
  return Modell_->Zeile_verwerfen() || editor;
}

// --- the layout

double clsTabelle::Pixel_je_Einheit() const { return logicalDpiX() / Zentimeter_je_Zoll / Breite_je_cm; }

Tabellenlayout clsTabelle::Anordnung() const {
  Tabellenlayout layout = Layout_neu(int(Spalten().size()));
  for (size_t i = 0; i < layout.Spalten.size(); ++i) {
    const int spalte = int(i);
    layout.Spalten[i] = {horizontalHeader()->visualIndex(spalte), Breiten_[i], !isColumnHidden(spalte),
                         Typen_[i]};
  }
  layout.Liste1 = Liste1_;
  layout.Liste2 = Liste2_;
  return layout;
}

void clsTabelle::Anordnung_setzen(const Tabellenlayout &Layout) {
  Wird_angeordnet_ = true;
  Breiten_.assign(Spalten().size(), Breite_neu);
  Typen_.assign(Spalten().size(), QStringLiteral("1"));
  QHeaderView *kopf = horizontalHeader();
  int stelle = 0;
  for (const int spalte : Spaltenfolge(Layout)) {
    if (size_t(spalte) >= Spalten().size()) continue;
    const Tabellenlayout::Spalte &wie = Layout.Spalten[size_t(spalte)];
    Breiten_[size_t(spalte)] = wie.Breite;
    Typen_[size_t(spalte)] = wie.Typ;
    kopf->moveSection(kopf->visualIndex(spalte), stelle++);
    kopf->setSectionHidden(spalte, false);
    kopf->resizeSection(spalte,
                        std::max(int(std::lround(wie.Breite * Pixel_je_Einheit())), Schmalste_Spalte));
    kopf->setSectionHidden(spalte, !wie.Sichtbar);
  }
  Liste1_ = Layout.Liste1;
  Liste2_ = Layout.Liste2;
  Wird_angeordnet_ = false;
}

void clsTabelle::Zeilenfarben_setzen(std::optional<qint32> Gerade, std::optional<qint32> Ungerade) {
  Modell_->Zeilenfarben_setzen(Gerade, Ungerade);
}

void clsTabelle::Schriftgroesse_setzen(int Punkt) {
  QFont schrift = font();
  schrift.setPointSize(Punkt);
  setFont(schrift);
  horizontalHeader()->setFont(schrift);
  Masse_setzen();
}

/// Rows of one height, never measured.
void clsTabelle::Masse_setzen() {
  const int zeile = fontMetrics().height() + 6;
  verticalHeader()->setMinimumSectionSize(zeile);
  verticalHeader()->setDefaultSectionSize(zeile);
  verticalHeader()->setFixedWidth(fontMetrics().horizontalAdvance(u'*') + 12);
}

void clsTabelle::changeEvent(QEvent *Ereignis) {
  QTableView::changeEvent(Ereignis);
  if (Ereignis->type() == QEvent::FontChange || Ereignis->type() == QEvent::StyleChange) Masse_setzen();
}

}  // namespace marklink
