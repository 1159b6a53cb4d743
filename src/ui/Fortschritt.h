// The port for the progress window that all long runs share.
#pragma once

#include <QString>

namespace marklink {

class Fortschritt {
 public:
  virtual ~Fortschritt() = default;

  /// Shows the window with a line of text and a maximum (0: no bar), and clears Kontext.gAbbrechen.
  /// While it is shown, its cancel button sets Kontext.gAbbrechen.
  void ProgressAnzeigen(const QString &Titel, int Maximum, bool Abbrechen_zeigen = true);
  virtual void Text(const QString &Zeile) = 0;
  virtual void Wert(int Wert) = 0;
  virtual void Verbergen() = 0;
  /// Whether it is shown: false before ProgressAnzeigen(), after Verbergen(), and once somebody closed it.
  virtual bool Offen() const = 0;
  /// Takes the shown window out of the way and brings it back as it was: text, maximum and value.
  virtual void Ausblenden() = 0;
  virtual void Einblenden() = 0;

 protected:
  virtual void Anzeigen(const QString &Titel, int Maximum, bool Abbrechen_zeigen) = 0;
};

/// The installed progress window; one that shows nothing when none was installed.
Fortschritt &fortschritt();
void Fortschritt_setzen(Fortschritt *Neu);  ///< not owned; nullptr: none
bool Fortschritt_gesetzt();

/// While it lives, no progress window stands in front of a box or prompt.
class Fortschritt_verdeckt {
 public:
  Fortschritt_verdeckt();
  ~Fortschritt_verdeckt();
  Fortschritt_verdeckt(const Fortschritt_verdeckt &) = delete;
  Fortschritt_verdeckt &operator=(const Fortschritt_verdeckt &) = delete;

 private:
  bool War_offen_;
};

}  // namespace marklink
