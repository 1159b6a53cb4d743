// The dialogs as windows.
#pragma once

#include "Dialoge.h"

namespace marklink {

class clsDialoge : public Dialoge {
 public:
  Antwort Meldung(const QString &Titel, const QStringList &Zeilen, Symbol S, Knoepfe K,
                  Antwort Vorgabe) override;
  QString Eingabe(const QString &Titel, const QString &Text, const QString &Vorgabe) override;
  QString Datei_oeffnen(const QString &Titel, const QString &Filter, const QString &Ordner) override;
  QString Datei_speichern(const QString &Titel, const QString &Filter, const QString &Vorgabe) override;
  std::optional<quint32> Farbe(quint32 Vorgabe) override;
  /// The screens of Schirme.h.
  bool Schirm_zeigen(const QString &Name) override;
};

}  // namespace marklink
