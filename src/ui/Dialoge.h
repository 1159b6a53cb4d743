// The port for boxes, prompts and dialogs. Three forms: Qt windows, terminal (launcher), scripted (tests).
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace marklink {

enum class Symbol { Ohne, Information, Frage, Warnung, Stopp };
enum class Knoepfe { OK, JaNein, JaNeinAbbrechen, OKAbbrechen };
enum class Antwort { OK, Ja, Nein, Abbrechen };

class Dialoge {
 public:
  virtual ~Dialoge() = default;

  /// A message box. `Vorgabe` is the default button.
  virtual Antwort Meldung(const QString &Titel, const QStringList &Zeilen, Symbol S, Knoepfe K = Knoepfe::OK,
                          Antwort Vorgabe = Antwort::OK) = 0;
  /// A text prompt; the empty text when cancelled.
  virtual QString Eingabe(const QString &Titel, const QString &Text, const QString &Vorgabe) = 0;
  /// File dialogs; the empty text when cancelled. `Filter` as "Bilder|*.jpg;*.png".
  virtual QString Datei_oeffnen(const QString &Titel, const QString &Filter, const QString &Ordner) = 0;
  virtual QString Datei_speichern(const QString &Titel, const QString &Filter, const QString &Vorgabe) = 0;
  /// Colour as 0xRRGGBB; nothing when cancelled.
  virtual std::optional<quint32> Farbe(quint32 Vorgabe) = 0;
  /// Shows a screen by its name ("frmEinstellungen") modally; false when there is no such screen.
  virtual bool Schirm_zeigen(const QString &Name) = 0;
};

/// The installed dialogs. With none installed nothing is shown, and the answer is the one that changes least.
Dialoge &dialoge();
void Dialoge_setzen(Dialoge *Neu);  ///< not owned; nullptr: none
bool Dialoge_gesetzt();

}  // namespace marklink
