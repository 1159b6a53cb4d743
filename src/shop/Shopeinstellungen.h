// What the settings dialog knows: its fields as data, their values, and what its commands do.
#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <vector>

namespace marklink {

/// The pages in the order of the navigation.
enum class Einstellungsseite { Allgemein, Zugangsdaten, Einstellungen, FTP_Zugang };

enum class Feldart {
  Text,
  Passwort,  ///< a text that nobody shall read over the shoulder
  Auswahl,   ///< index of Synchronisierungsrichtungen(), as decimal text
  Schalter   ///< "1" is on
};

struct Einstellungsfeld {
  const char *Steuerelement;
  Einstellungsseite Seite;
  const char *Gruppe;  ///< heading that it stands under; empty: none. UTF-8, like the next two
  const char *Beschriftung;
  const char *Tipp;  ///< help beside the field; empty: none
  const char *Schluessel;
  Feldart Art;
};

/// In the order in which they are read and saved; within a page also the order on screen.
std::span<const Einstellungsfeld> Einstellungsfelder();
QString Seitenname(Einstellungsseite Seite);
QStringList Synchronisierungsrichtungen();

/// The values of the fields, by their place in Einstellungsfelder(). Nothing reaches the settings store
/// before it is saved. A number that its control cannot show stays as it is until the user chooses another.
class Shopeinstellungen {
 public:
  Shopeinstellungen();

  QString Wert(size_t Feld) const { return Werte_[Feld]; }
  void Wert_setzen(size_t Feld, const QString &Wert) { Werte_[Feld] = Wert; }

  void Einstellungen_lesen();
  /// All keys, visited or not. What cannot be stored is passed over.
  void Einstellungen_speichern() const;
  /// Adds the closing "/" to the shop's folder. No command calls it, on purpose: a folder is stored as typed.
  void Ordner_abschliessen();

  // The commands; those of the FTP access save first.
  void Verbindung_testen();
  void Script_hochladen() const;
  void Script_suchen() const;
  void Tabelle_aktualisieren() const;
  /// Whether the last connection test succeeded.
  bool Hochladen_moeglich() const { return Hochladen_moeglich_; }

 private:
  std::vector<QString> Werte_;
  bool Hochladen_moeglich_ = false;
};

}  // namespace marklink
