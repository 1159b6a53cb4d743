// The model between a grid and its row source.
#include "clsTabellenmodell.h"

#include <QColor>
#include <utility>

#include "Farbwert.h"
#include "host/Texte.h"

namespace marklink {

namespace {

QString Anzeige_suchen(const Tabellenspalte &Spalte, const QVariant &Wert) {
  const QString text = Null_als_Text(Wert);
  return Spalte.Anzeige.value(text, text);
}

}  // namespace

void clsTabellenmodell::Einrichten(Tabellenquelle &Quelle, std::vector<Tabellenspalte> Spalten,
                                   bool Neue_Zeile) {
  beginResetModel();
  Quelle_ = &Quelle;
  Spalten_ = std::move(Spalten);
  Neue_Zeile_ = Neue_Zeile;
  Zeilen_ = Quelle_->Zeilen();
  Offen_ = {};
  endResetModel();
}

void clsTabellenmodell::Auswahl_setzen(int Spalte, std::vector<QStringList> Eintraege) {
  Tabellenspalte &spalte = Spalten_[size_t(Spalte)];
  spalte.Wie = Eintraege.empty() ? Tabellenspalte::Art::Text : Tabellenspalte::Art::Auswahlliste;
  spalte.Auswahl = std::move(Eintraege);
}

void clsTabellenmodell::Zeilenfarben_setzen(std::optional<qint32> Gerade, std::optional<qint32> Ungerade) {
  Gerade_ = Gerade ? Farbe_aus_Wert(*Gerade) : std::nullopt;
  Ungerade_ = Ungerade ? Farbe_aus_Wert(*Ungerade) : std::nullopt;
  Auffrischen();
}

void clsTabellenmodell::Neu_laden() {
  if (Quelle_ == nullptr) return;
  beginResetModel();
  Zeilen_ = Quelle_->Zeilen();
  Offen_ = {};
  endResetModel();
}

void clsTabellenmodell::Auffrischen() {
  if (rowCount() > 0 && columnCount() > 0)
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int clsTabellenmodell::rowCount(const QModelIndex &Oben) const {
  return Oben.isValid() ? 0 : Zeilen_ + int{Neue_Zeile_};
}

int clsTabellenmodell::columnCount(const QModelIndex &Oben) const {
  return Oben.isValid() ? 0 : int(Spalten_.size());
}

bool clsTabellenmodell::Vorhanden(int Zeile) const {
  return Zeile >= 0 && Zeile < Zeilen_ && Zeile < Quelle_->Zeilen();
}

QVariant clsTabellenmodell::Wert(const QModelIndex &Stelle) const {
  return Vorhanden(Stelle.row()) ? Quelle_->Zelle(Stelle.row(), Stelle.column()) : QVariant();
}

std::optional<quint32> clsTabellenmodell::Hintergrund(int Zeile) const {
  if (Vorhanden(Zeile)) {
    const auto wert = Quelle_->Zeilenfarbe(Zeile);
    const auto farbe = wert ? Farbe_aus_Wert(*wert) : std::nullopt;
    if (farbe) return farbe;
  }
  return Zeile % 2 == 1 ? Gerade_ : Ungerade_;  // the rows are counted from 1 there
}

QVariant clsTabellenmodell::data(const QModelIndex &Stelle, int Rolle) const {
  if (!checkIndex(Stelle, CheckIndexOption::IndexIsValid)) return {};
  const Tabellenspalte &spalte = Spalte(Stelle);
  const bool haken = spalte.Wie == Tabellenspalte::Art::Haken;
  switch (Rolle) {
    case Qt::DisplayRole:
      if (haken) return {};
      if (!spalte.Anzeige.isEmpty()) return Anzeige_suchen(spalte, Wert(Stelle));
      return Zelle_formatieren(Wert(Stelle), spalte.Format);
    case Qt::EditRole:
      return haken ? QVariant(Zelle_wahr(Wert(Stelle))) : Null_als_Text(Wert(Stelle));
    case Qt::CheckStateRole:
      if (!haken) return {};
      return int(Zelle_wahr(Wert(Stelle)) ? Qt::Checked : Qt::Unchecked);
    case Qt::TextAlignmentRole:
      return int(spalte.Wie == Tabellenspalte::Art::Zahl ? Qt::AlignRight | Qt::AlignVCenter
                                                         : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::BackgroundRole:
      if (const auto farbe = Hintergrund(Stelle.row())) return QColor::fromRgb(*farbe);
      return {};
    case Qt::ForegroundRole:
      if (const auto farbe = Hintergrund(Stelle.row()))
        return QColor(Farbe_hell(*farbe) ? Qt::black : Qt::white);
      return {};
    default:
      return {};
  }
}

QVariant clsTabellenmodell::headerData(int Nummer, Qt::Orientation Richtung, int Rolle) const {
  if (Nummer < 0 || (Rolle != Qt::DisplayRole && Rolle != Qt::ToolTipRole)) return {};
  if (Richtung == Qt::Horizontal) return Nummer < columnCount() ? Spalten_[size_t(Nummer)].Titel : QVariant();
  if (Rolle == Qt::ToolTipRole) return {};
  return Neue_Zeile_ && Nummer == Zeilen_ ? QStringLiteral("*") : QString();
}

Qt::ItemFlags clsTabellenmodell::flags(const QModelIndex &Stelle) const {
  if (!Stelle.isValid()) return Qt::NoItemFlags;
  const Tabellenspalte &spalte = Spalte(Stelle);
  Qt::ItemFlags flaggen = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (!spalte.Bearbeitbar || Quelle_->Gesperrt()) return flaggen;
  return flaggen | (spalte.Wie == Tabellenspalte::Art::Haken ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool clsTabellenmodell::setData(const QModelIndex &Stelle, const QVariant &Neu, int Rolle) {
  if (!checkIndex(Stelle, CheckIndexOption::IndexIsValid) || !Spalte(Stelle).Bearbeitbar ||
      Quelle_->Gesperrt())
    return false;
  const bool haken = Spalte(Stelle).Wie == Tabellenspalte::Art::Haken;
  if (Rolle != (haken ? Qt::CheckStateRole : Qt::EditRole)) return false;
  const QVariant wert = haken ? QVariant(Neu.toInt() == Qt::Checked) : QVariant(Neu.toString());
  // An editor that is left as it was opened is no edit; in the line for new rows it begins none.
  if (!haken && wert.toString() == data(Stelle, Qt::EditRole).toString()) return false;
  if (!Zeile_oeffnen(Stelle.row())) return false;
  if (!Quelle_->Zelle_setzen(Stelle.row(), Stelle.column(), wert)) {
    // A new row that did not take its first cell was never begun.
    if (Offen_.Neu && Offen_.Vorher.empty()) Zeile_schliessen(true);
    return false;
  }
  if (Offen_.Neu && Offen_.Vorher.empty()) Offen_.Vorher.resize(Spalten_.size());
  Auffrischen();
  Q_EMIT Zelle_geaendert(Stelle.row(), Stelle.column());
  return true;
}

/// Makes sure that a row edit is under way in that row.
bool clsTabellenmodell::Zeile_oeffnen(int Zeile) {
  if (!Neue_Zeile_) return Vorhanden(Zeile);
  if (Offen_.Zeile == Zeile) return Vorhanden(Zeile);
  if (!Zeile_abschliessen()) return false;
  if (Vorhanden(Zeile)) {
    Offen_ = {Zeile, false};
    for (int i = 0; i < columnCount(); ++i) Offen_.Vorher.push_back(Quelle_->Zelle(Zeile, i));
    return true;
  }
  if (Zeile != Zeilen_ || !Quelle_->Zeile_anfuegen()) return false;
  // The line for new rows becomes the row; below it there is another one.
  beginInsertRows({}, Zeilen_ + 1, Zeilen_ + 1);
  ++Zeilen_;
  endInsertRows();
  Offen_ = {Zeile, true};
  return true;
}

void clsTabellenmodell::Zeile_schliessen(bool Entfernen) {
  const int zeile = std::exchange(Offen_, {}).Zeile;
  if (!Entfernen || !Vorhanden(zeile)) return;
  beginRemoveRows({}, zeile, zeile);
  Quelle_->Zeile_entfernen(zeile);
  --Zeilen_;
  endRemoveRows();
}

bool clsTabellenmodell::Zeile_verwerfen() {
  if (!Zeile_offen()) return false;
  if (!Offen_.Neu && Vorhanden(Offen_.Zeile)) Quelle_->Zeile_wiederherstellen(Offen_.Zeile, Offen_.Vorher);
  Zeile_schliessen(Offen_.Neu);
  Auffrischen();
  return true;
}

bool clsTabellenmodell::Zeile_abschliessen() {
  if (!Zeile_offen()) return true;
  if (Wird_beendet_) return false;  // the source shows a box about this very row
  Wird_beendet_ = true;
  const Zeilenurteil urteil =
      Vorhanden(Offen_.Zeile) ? Quelle_->Zeile_beenden(Offen_.Zeile, Offen_.Neu) : Zeilenurteil::Annehmen;
  Wird_beendet_ = false;
  if (urteil == Zeilenurteil::Ablehnen) return false;
  if (urteil == Zeilenurteil::Verwerfen) {
    Zeile_verwerfen();
  } else {
    Offen_ = {};
    Auffrischen();
  }
  return true;
}

}  // namespace marklink
