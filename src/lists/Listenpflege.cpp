// Rows and rules of a list's editor.
#include "Listenpflege.h"

#include "host/Texte.h"
#include "ui/Farbwert.h"

namespace marklink {
namespace {

constexpr auto Feld_Bezeichnung = "Description", Feld_ID = "WebshopID", Feld_Standard = "Standard",
               Feld_Farbe = "Colour";
constexpr quint32 Weiss = 0xFFFFFF;

}  // namespace

QString Listenpflege::Text(int Zeile, const char *Feld) const {
  const int spalte = Liste_.Spalte(QLatin1String(Feld));
  return spalte < 0 ? QString() : Null_als_Text(Zelle(Zeile, spalte));
}

bool Listenpflege::Fehlt(int Zeile, const char *Feld) const {
  return Liste_.Spalte(QLatin1String(Feld)) >= 0 && Text(Zeile, Feld).isEmpty();
}

Antwort Listenpflege::Aenderungen_fragen() const {
  if (!Geaendert_) return Antwort::Nein;
  return dialoge().Meldung(QStringLiteral("Speichern"),
                           {QStringLiteral("Möchten Sie die Änderungen speichern?")}, Symbol::Frage,
                           Knoepfe::JaNeinAbbrechen, Antwort::Ja);
}

bool Listenpflege::Loeschen_fragen() const {
  return dialoge().Meldung(
             QStringLiteral("Löschen"),
             {QStringLiteral("Möchten Sie den Datensatz löschen?"), QString(),
              QStringLiteral("Der Datensatz kann nur durch eine Neueingabe wiederhergestellt werden.")},
             Symbol::Frage, Knoepfe::JaNein, Antwort::Nein) == Antwort::Ja;
}

void Listenpflege::Zeilen_loeschen(const std::vector<int> &Zeilen) {
  for (size_t i = Zeilen.size(); i-- > 0;)
    if (Zeilen[i] >= 0 && Zeilen[i] < this->Zeilen()) Inhalt_.erase(Inhalt_.begin() + Zeilen[i]);
  Standards_vorher_.clear();
  Geaendert_ = true;
}

bool Listenpflege::Farbe_waehlen(int Zeile) {
  const int spalte = Liste_.Spalte(QLatin1String(Feld_Farbe));
  if (spalte < 0 || Zeile < 0 || Zeile >= Zeilen()) return false;
  const auto bisher = Farbwert_lesen(Text(Zeile, Feld_Farbe));
  const auto farbe = dialoge().Farbe(bisher ? Farbe_aus_Wert(*bisher).value_or(Weiss) : Weiss);
  if (!farbe) return false;
  Inhalt_[size_t(Zeile)][size_t(spalte)] = Wert_aus_Farbe(*farbe);
  Geaendert_ = true;
  return true;
}

bool Listenpflege::Zelle_setzen(int Zeile, int Spalte, const QVariant &Wert) {
  // Keys set the flag in the window; what is edited by the mouse alone counts as well, which is intended.
  Geaendert_ = true;
  if (Spalte == Liste_.Spalte(QLatin1String(Feld_Standard))) Standard_nehmen(Zeile);
  Inhalt_[size_t(Zeile)][size_t(Spalte)] = Wert;
  if (Fehlt(Zeile, Feld_ID))
    Inhalt_[size_t(Zeile)][size_t(Liste_.Spalte(QLatin1String(Feld_ID)))] = QString::number(Zeile + 1);
  return true;
}

void Listenpflege::Standard_nehmen(int Zeile) {
  const auto spalte = size_t(Liste_.Spalte(QLatin1String(Feld_Standard)));
  if (Standards_vorher_.empty())
    for (const auto &zeile : Inhalt_) Standards_vorher_.push_back(zeile[spalte]);
  for (size_t i = 0; i < Inhalt_.size(); ++i)
    if (i != size_t(Zeile)) Inhalt_[i][spalte] = QStringLiteral("0");
}

/// An edit of that row is dropped: the others get back what it took from them.
void Listenpflege::Standards_zuruecksetzen(int Zeile) {
  const auto spalte = size_t(Liste_.Spalte(QLatin1String(Feld_Standard)));
  for (size_t i = 0; i < Standards_vorher_.size() && i < Inhalt_.size(); ++i)
    if (i != size_t(Zeile)) Inhalt_[i][spalte] = Standards_vorher_[i];
  Standards_vorher_.clear();
}

std::optional<qint32> Listenpflege::Zeilenfarbe(int Zeile) const {
  if (Farben_.empty()) return std::nullopt;
  const QString id = Text(Zeile, Feld_ID);
  for (const Auftragsstatusfarbe &farbe : Farben_)
    if (farbe.WebshopID == id) return farbe.Colour;
  return std::nullopt;
}

bool Listenpflege::Zeile_anfuegen() {
  if (!Gelesen_) return false;
  Inhalt_.emplace_back(Liste_.Spalten.size());
  return true;
}

void Listenpflege::Zeile_wiederherstellen(int Zeile, const std::vector<QVariant> &Werte) {
  Inhalt_[size_t(Zeile)] = Werte;
  Standards_zuruecksetzen(Zeile);
}

void Listenpflege::Zeile_entfernen(int Zeile) {
  Standards_zuruecksetzen(Zeile);
  Inhalt_.erase(Inhalt_.begin() + Zeile);
}

Zeilenurteil Listenpflege::Zeile_beenden(int Zeile, bool Neu) {
  if (Neu && Fehlt(Zeile, Feld_Bezeichnung)) return Zeilenurteil::Verwerfen;
  if (Fehlt(Zeile, Feld_Bezeichnung) || Fehlt(Zeile, Feld_ID)) {
    dialoge().Meldung(QStringLiteral("Hinweis"),
                      {QStringLiteral("Sie haben nicht alle benötigten Felder ausgefüllt. Bitte überprüfen "
                                      "Sie Ihre Eingaben.")},
                      Symbol::Information);
    return Zeilenurteil::Ablehnen;
  }
  Standards_vorher_.clear();
  return Zeilenurteil::Annehmen;
}

}  // namespace marklink
