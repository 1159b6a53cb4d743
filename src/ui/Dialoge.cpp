// The installed dialogs, and the silent ones that stand in when there are none.
#include "Dialoge.h"

namespace marklink {

namespace {

class Stumme_Dialoge final : public Dialoge {
 public:
  Antwort Meldung(const QString & /*Titel*/, const QStringList & /*Zeilen*/, Symbol /*S*/, Knoepfe K,
                  Antwort /*Vorgabe*/) override {
    // Nobody can answer, so the answer is the one that changes least.
    switch (K) {
      case Knoepfe::JaNein:
        return Antwort::Nein;
      case Knoepfe::JaNeinAbbrechen:
      case Knoepfe::OKAbbrechen:
        return Antwort::Abbrechen;
      case Knoepfe::OK:
        break;
    }
    return Antwort::OK;
  }
  QString Eingabe(const QString & /*Titel*/, const QString & /*Text*/, const QString & /*Vorgabe*/) override {
    return {};
  }
  QString Datei_oeffnen(const QString & /*Titel*/, const QString & /*Filter*/,
                        const QString & /*Ordner*/) override {
    return {};
  }
  QString Datei_speichern(const QString & /*Titel*/, const QString & /*Filter*/,
                          const QString & /*Vorgabe*/) override {
    return {};
  }
  std::optional<quint32> Farbe(quint32 /*Vorgabe*/) override { return std::nullopt; }
  bool Schirm_zeigen(const QString & /*Name*/) override { return false; }
};

Dialoge *Installiert = nullptr;

}  // namespace

Dialoge &dialoge() {
  static Stumme_Dialoge stumm;
  return Installiert != nullptr ? *Installiert : stumm;
}

void Dialoge_setzen(Dialoge *Neu) { Installiert = Neu; }

bool Dialoge_gesetzt() { return Installiert != nullptr; }

}  // namespace marklink
