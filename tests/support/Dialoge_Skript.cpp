// Scripted dialogs: the queue of announced answers and the record of what was shown.
#include "Dialoge_Skript.h"

#include <gtest/gtest.h>

#include "host/Kontext.h"

namespace marklink::test {

Dialoge_Skript::Dialoge_Skript() { Dialoge_setzen(this); }

Dialoge_Skript::~Dialoge_Skript() {
  Dialoge_setzen(nullptr);
  for (const Ansage &ansage : Ansagen_)
    ADD_FAILURE() << "announced but not shown: " << ansage.Titel.toStdString();
}

std::optional<Dialoge_Skript::Ansage> Dialoge_Skript::abholen(Gezeigtes Neu) {
  Gezeigt.push_back(Neu);
  const bool passt = !Ansagen_.empty() && Ansagen_.front().Was == Neu.Was &&
                     (Ansagen_.front().Titel.isNull() || Ansagen_.front().Titel == Neu.Titel);
  if (!passt) {
    ADD_FAILURE() << "unexpected dialog [" << Neu.Titel.toStdString() << "] "
                  << Neu.Zeilen.join(QLatin1String(" | ")).toStdString();
    return std::nullopt;
  }
  Ansage ansage = Ansagen_.front();
  Ansagen_.pop_front();
  return ansage;
}

Antwort Dialoge_Skript::Meldung(const QString &Titel, const QStringList &Zeilen, Symbol S, Knoepfe K,
                                Antwort Vorgabe) {
  const auto ansage = abholen({Art::Meldung, Titel, Zeilen, S, K, Vorgabe});
  if (ansage) return ansage->A;
  return K == Knoepfe::OK ? Antwort::OK : K == Knoepfe::JaNein ? Antwort::Nein : Antwort::Abbrechen;
}

QString Dialoge_Skript::Text_abholen(Art Was, const QString &Titel, const QString &Zeile,
                                     const QString &Vorgabe) {
  const auto ansage = abholen({Was, Titel, {Zeile}, Symbol::Ohne, Knoepfe::OK, Antwort::OK, Vorgabe});
  return ansage ? ansage->Text : QString();
}

QString Dialoge_Skript::Eingabe(const QString &Titel, const QString &Text, const QString &Vorgabe) {
  return Text_abholen(Art::Eingabe, Titel, Text, Vorgabe);
}

QString Dialoge_Skript::Datei_oeffnen(const QString &Titel, const QString &Filter, const QString &Ordner) {
  return Text_abholen(Art::Oeffnen, Titel, Filter, Ordner);
}

QString Dialoge_Skript::Datei_speichern(const QString &Titel, const QString &Filter, const QString &Vorgabe) {
  return Text_abholen(Art::Speichern, Titel, Filter, Vorgabe);
}

std::optional<quint32> Dialoge_Skript::Farbe(quint32 /*Vorgabe*/) {
  const auto ansage = abholen({Art::Farbe, QString(), {}});
  return ansage ? ansage->Wert : std::nullopt;
}

bool Dialoge_Skript::Schirm_zeigen(const QString &Name) {
  return abholen({Art::Schirm, Name, {}}).has_value();
}

void Fortschritt_Skript::Wert(int Wert) {
  Werte.push_back(Wert);
  if (Wert == Abbrechen_bei) Kontext.gAbbrechen = true;
}

}  // namespace marklink::test
