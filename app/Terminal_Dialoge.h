// Boxes and prompts on a terminal: texts go to standard error, answers come from the command line.
#pragma once

#include <QHash>
#include <QStringList>

#include "ui/Dialoge.h"

namespace marklink {

class Terminal_Dialoge : public Dialoge {
 public:
  /// `Antworten`: "TITEL=ANTWORT" each; every question takes the next one for its title (case does not
  /// matter).
  explicit Terminal_Dialoge(const QStringList &Antworten);

  /// Prints "[TITEL] line | line". Without a fitting answer a question is answered with what changes least.
  Antwort Meldung(const QString &Titel, const QStringList &Zeilen, Symbol S, Knoepfe K,
                  Antwort Vorgabe) override;
  QString Eingabe(const QString &Titel, const QString &Text, const QString &Vorgabe) override;
  QString Datei_oeffnen(const QString &Titel, const QString &Filter, const QString &Ordner) override;
  QString Datei_speichern(const QString &Titel, const QString &Filter, const QString &Vorgabe) override;
  /// Takes "RRGGBB" given for the title "Farbe".
  std::optional<quint32> Farbe(quint32 Vorgabe) override;
  bool Schirm_zeigen(const QString &Name) override;

  /// Whether a box with the title "Fehler" was shown.
  bool Fehler_gezeigt() const { return Fehler_gezeigt_; }

 private:
  QString Naechste_Antwort(const QString &Titel);

  QHash<QString, QStringList> Antworten_;
  bool Fehler_gezeigt_ = false;
};

}  // namespace marklink
