// Progress of long runs as a bar on standard error; silent where that is no terminal.
#pragma once

#include <QElapsedTimer>

#include "shop/Austausch.h"
#include "ui/Fortschritt.h"

namespace marklink {

class Terminal_Fortschritt : public Fortschritt {
 public:
  Terminal_Fortschritt();
  ~Terminal_Fortschritt() override;

  void Text(const QString &Zeile) override;
  void Wert(int Wert) override;
  void Verbergen() override;
  bool Offen() const override { return Sichtbar_; }
  void Ausblenden() override;
  void Einblenden() override;

 protected:
  /// Ctrl-C holds for the whole command, so it stops this run as well.
  void Anzeigen(const QString &Titel, int Maximum, bool Abbrechen_zeigen) override;

 private:
  void Zeichnen(bool Sofort);
  void Loeschen();

  bool Terminal_;
  bool Sichtbar_ = false;
  QString Zeile_;
  int Wert_ = 0;
  int Maximum_ = 0;
  QElapsedTimer Zuletzt_;
};

/// Runs a shop exchange that Ctrl-C gives up.
void Austausch_im_Terminal(Verbindungsauftrag &Auftrag);

}  // namespace marklink
