// Scripted dialogs and a recording progress window. While an object lives it is the installed port. A box
// that was not announced fails the test at once and is answered with what changes least: nothing ever blocks.
#pragma once

#include <deque>
#include <vector>

#include "ui/Dialoge.h"
#include "ui/Fortschritt.h"

namespace marklink::test {

class Dialoge_Skript : public Dialoge {
 public:
  enum class Art { Meldung, Eingabe, Oeffnen, Speichern, Farbe, Schirm };

  struct Gezeigtes {
    Art Was;
    QString Titel;
    QStringList Zeilen;  ///< lines of a box; the text of a prompt; filter of a file dialog
    Symbol Bild = Symbol::Ohne;
    Knoepfe Auswahl = Knoepfe::OK;
    Antwort Vorgabe = Antwort::OK;
    QString Vorbelegung{};
  };

  Dialoge_Skript();
  /// Fails the test when an announced dialog did not come.
  ~Dialoge_Skript() override;
  Dialoge_Skript(const Dialoge_Skript &) = delete;
  Dialoge_Skript &operator=(const Dialoge_Skript &) = delete;

  // Announcements, in the order in which the dialogs come. The title of a screen is its name.
  void Erwarten(const QString &Titel, Antwort A = Antwort::OK) {
    Ansagen_.push_back({Art::Meldung, Titel, A});
  }
  void Erwarten_Eingabe(const QString &Titel, const QString &Text) {
    Ansagen_.push_back({Art::Eingabe, Titel, Antwort::OK, Text});
  }
  void Erwarten_Datei(Art Was, const QString &Pfad) { Ansagen_.push_back({Was, {}, Antwort::OK, Pfad}); }
  void Erwarten_Farbe(std::optional<quint32> Wert) {
    Ansagen_.push_back({Art::Farbe, {}, Antwort::OK, {}, Wert});
  }
  void Erwarten_Schirm(const QString &Name) { Ansagen_.push_back({Art::Schirm, Name}); }

  /// Everything that was shown, unexpected dialogs included.
  std::vector<Gezeigtes> Gezeigt;

  Antwort Meldung(const QString &Titel, const QStringList &Zeilen, Symbol S, Knoepfe K,
                  Antwort Vorgabe) override;
  QString Eingabe(const QString &Titel, const QString &Text, const QString &Vorgabe) override;
  QString Datei_oeffnen(const QString &Titel, const QString &Filter, const QString &Ordner) override;
  QString Datei_speichern(const QString &Titel, const QString &Filter, const QString &Vorgabe) override;
  std::optional<quint32> Farbe(quint32 Vorgabe) override;
  bool Schirm_zeigen(const QString &Name) override;

 private:
  struct Ansage {
    Art Was;
    QString Titel;  ///< null: any
    Antwort A = Antwort::OK;
    QString Text{};
    std::optional<quint32> Wert{};
  };
  /// What a prompt or a file dialog gives.
  QString Text_abholen(Art Was, const QString &Titel, const QString &Zeile, const QString &Vorgabe);
  /// The announcement for what is shown now; nothing, and a failed test, when it is another one or none.
  std::optional<Ansage> abholen(Gezeigtes Neu);

  std::deque<Ansage> Ansagen_;
};

class Fortschritt_Skript : public Fortschritt {
 public:
  Fortschritt_Skript() { Fortschritt_setzen(this); }
  ~Fortschritt_Skript() override { Fortschritt_setzen(nullptr); }
  Fortschritt_Skript(const Fortschritt_Skript &) = delete;
  Fortschritt_Skript &operator=(const Fortschritt_Skript &) = delete;

  struct Anzeige {
    QString Titel;
    int Maximum;
    bool Abbrechen_sichtbar;
  };
  std::vector<Anzeige> Angezeigt;
  QStringList Texte;
  std::vector<int> Werte;
  bool Sichtbar = false;
  int Ausgeblendet = 0;    ///< times that it was taken out of the way
  int Abbrechen_bei = -1;  ///< the cancel button is pressed when this value is shown

  void Text(const QString &Zeile) override { Texte << Zeile; }
  void Wert(int Wert) override;
  void Verbergen() override { Sichtbar = false; }
  bool Offen() const override { return Sichtbar; }
  void Ausblenden() override {
    Sichtbar = false;
    ++Ausgeblendet;
  }
  void Einblenden() override { Sichtbar = true; }

 protected:
  void Anzeigen(const QString &Titel, int Maximum, bool Abbrechen_zeigen) override {
    Angezeigt.push_back({Titel, Maximum, Abbrechen_zeigen});
    Sichtbar = true;
  }
};

}  // namespace marklink::test
