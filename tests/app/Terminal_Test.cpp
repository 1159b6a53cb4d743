// Boxes on a terminal: which answer a question gets.
#include "Terminal_Dialoge.h"

#include "Launcher.h"

namespace marklink::test {
namespace {

TEST(Terminal_Test, Antworten_der_Reihe_nach_und_sonst_die_schonendste) {
  const struct {
    const char *Antworten;
    Knoepfe Auswahl;
    std::vector<Antwort> Erwartet;
  } faelle[] = {
      {"", Knoepfe::JaNein, {Antwort::Nein}},
      {"", Knoepfe::JaNeinAbbrechen, {Antwort::Abbrechen}},
      {"", Knoepfe::OKAbbrechen, {Antwort::Abbrechen}},
      {"", Knoepfe::OK, {Antwort::OK}},
      {"Frage=Ja", Knoepfe::JaNein, {Antwort::Ja, Antwort::Nein}},
      {"frage=ja FRAGE=NEIN Frage=Ja", Knoepfe::JaNein, {Antwort::Ja, Antwort::Nein, Antwort::Ja}},
      {"Andere=Ja", Knoepfe::JaNein, {Antwort::Nein}},
      {"Frage=Abbrechen", Knoepfe::JaNein, {Antwort::Nein}},
      {"Frage=Jawohl", Knoepfe::JaNeinAbbrechen, {Antwort::Abbrechen}},
      {"Frage=OK", Knoepfe::OKAbbrechen, {Antwort::OK}},
  };
  for (const auto &fall : faelle) {
    Terminal_Dialoge d(Worte(fall.Antworten));
    for (const Antwort erwartet : fall.Erwartet)
      EXPECT_EQ(d.Meldung(u"Frage"_qs, {u"?"_qs}, Symbol::Frage, fall.Auswahl, Antwort::Ja), erwartet)
          << fall.Antworten;
    EXPECT_FALSE(d.Fehler_gezeigt());
  }
}

TEST(Terminal_Test, Eingaben_und_was_davor_steht) {
  const QString titel = u"Referenznummer eingeben"_qs;
  Terminal_Dialoge d({titel + u"=a=b"_qs});
  testing::internal::CaptureStderr();
  EXPECT_EQ(d.Eingabe(titel, u"Bitte."_qs, u"v"_qs), u"a=b"_qs);
  EXPECT_EQ(d.Eingabe(titel, u"Bitte."_qs, u"v"_qs), QString());
  // A box that a line break or the shop's text could tear apart stays one line, without terminal commands.
  d.Meldung(u"Fehler"_qs, {u"eins\r\nzwei"_qs, u"drei\x1b[2J"_qs}, Symbol::Stopp, Knoepfe::OK, Antwort::OK);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "[Referenznummer eingeben] Bitte. (Vorschlag: v)\n"
            "[Referenznummer eingeben] Bitte. (Vorschlag: v)\n[Fehler] eins | zwei | drei [2J\n");
  EXPECT_TRUE(d.Fehler_gezeigt());
}

}  // namespace
}  // namespace marklink::test
