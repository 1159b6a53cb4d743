// The installed progress window, and an invisible one when there is none.
#include "Fortschritt.h"

#include "host/Kontext.h"

namespace marklink {

namespace {

class Unsichtbarer_Fortschritt final : public Fortschritt {
 public:
  void Text(const QString & /*Zeile*/) override {}
  void Wert(int /*Wert*/) override {}
  void Verbergen() override { Offen_ = false; }
  bool Offen() const override { return Offen_; }
  void Ausblenden() override {}
  void Einblenden() override {}

 protected:
  void Anzeigen(const QString & /*Titel*/, int /*Maximum*/, bool /*Abbrechen_zeigen*/) override {
    Offen_ = true;
  }

 private:
  bool Offen_ = false;
};

Fortschritt *Installiert = nullptr;

}  // namespace

void Fortschritt::ProgressAnzeigen(const QString &Titel, int Maximum, bool Abbrechen_zeigen) {
  // Cleared before the window is up: a click on its button must not be lost.
  Kontext.gAbbrechen = false;
  Anzeigen(Titel, Maximum, Abbrechen_zeigen);
}

Fortschritt &fortschritt() {
  static Unsichtbarer_Fortschritt unsichtbar;
  return Installiert != nullptr ? *Installiert : unsichtbar;
}

void Fortschritt_setzen(Fortschritt *Neu) { Installiert = Neu; }

bool Fortschritt_gesetzt() { return Installiert != nullptr; }

Fortschritt_verdeckt::Fortschritt_verdeckt() : War_offen_(fortschritt().Offen()) {
  if (War_offen_) fortschritt().Ausblenden();
}

Fortschritt_verdeckt::~Fortschritt_verdeckt() {
  if (War_offen_) fortschritt().Einblenden();
}

}  // namespace marklink
