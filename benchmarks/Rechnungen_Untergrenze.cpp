// Invoices by hand: prepared statements, nothing between them. Everything is looked up once for each invoice,
// the rates and the settings that do not change once for all.
#include "Rechnungen_Untergrenze.h"

#include <cmath>
#include <cstdio>
#include <map>
#include <vector>

#include "Rechnungen_Anweisungen.h"
#include "Rechnungen_Buecher.h"

namespace marklink::messung {
namespace {

double Runden(double Wert) { return std::floor(Wert * 100 + 0.5 + 1e-9) / 100; }

struct Kunde {
  std::string Nummer, Name, Rechnungsanschrift, Lieferanschrift, Hinweis, Gruppe;
  int Besteuerung = 0;
};

struct Los {
  std::string Nummer, Lager, Charge, Lagername, Lieferant, Lieferantennummer;
  double Menge, Einkaufspreis;
};

struct Position {
  int Stelle;
  double Menge, Netto, Brutto, Gesamt;
  std::string Artikel, Kurztext, Einheit, Schluessel, Zuteilung, Reservierungen;
  double Gewicht_Netto, Gewicht_Brutto;
  std::vector<Los> Lose;
};

std::string Zahltext(double Zahl) {
  char text[32];
  std::snprintf(text, sizeof text, "%.15g", Zahl);
  for (char &z : text)
    if (z == '.') z = ',';
  return text;
}

std::string Nummerntext(const char *Kuerzel, int Zahl) {
  char text[24];
  std::snprintf(text, sizeof text, "%s%07d", Kuerzel, Zahl);
  return text;
}

class Abrechnung : Anweisungen {
 public:
  Abrechnung(const std::string &Ordner, int Typ)
      : Anweisungen(Oeffnen(Ordner + "/buecher.mdb")),
        Typ_(Typ),
        Wahr_(Typ == 0 ? -1 : 1),
        Datei_(Ordner + "/buecher.afk") {}
  ~Abrechnung() { sqlite3_close_v2(Db_); }
  Abrechnung(const Abrechnung &) = delete;
  Abrechnung &operator=(const Abrechnung &) = delete;

  void Rechnung(const std::string &Bestellung, const std::string &Kundennummer);

 private:
  int Ziehen(const std::string &Bereich);
  void Positionen(const std::string &Text);
  Position Position_ermitteln(int Stelle, int Shopnummer, double Menge);
  void Lose_zuteilen(Position &P);
  void Kopf();
  void Posten();
  void Reservieren();
  void Ausbuchen();
  void Artikelsummen();
  void Versenden();
  template <typename Arbeit>
  void Schritt(Arbeit arbeit) {
    Beginn_.Lauf();
    arbeit();
    Schluss_.Lauf();
  }

  const int Typ_, Wahr_;
  Zaehlerdatei Datei_;
  Kunde Kunde_;
  std::string Nummer_, Bestellung_, Bestelldatum_, Email_;
  std::vector<Position> Positionen_;
  double Endbetrag_ = 0;
};

int Abrechnung::Ziehen(const std::string &Bereich) {
  if (Typ_ == 0) return Datei_.Ziehen(Bereich);
  Zaehler_lesen_.Lauf(Bereich);
  const int zahl = Zaehler_lesen_.Ganz(0);
  Zaehler_lesen_.Ende();
  Schritt([&] { Zaehler_schreiben_.Lauf(Nummerntext("", zahl + 1), Bereich); });
  return zahl;
}

void Abrechnung::Lose_zuteilen(Position &P) {
  Reserviertes_.Lauf(Nummer_);
  Reserviertes_.Ende();
  Transport_.Lauf(Nummer_);
  Transport_.Ende();
  double rest = P.Menge;
  for (bool da = Lose_lesen_.Lauf(P.Artikel, "01%"); da && rest > 0; da = Lose_lesen_.Weiter()) {
    const double menge = std::min(rest, Lose_lesen_.Zahl(6));
    if (menge <= 0) continue;
    P.Lose.push_back({Lose_lesen_.Text(0), Lose_lesen_.Text(1), Lose_lesen_.Text(2), Lose_lesen_.Text(3),
                      Lose_lesen_.Text(4), Lose_lesen_.Text(5), menge, Lose_lesen_.Zahl(7)});
    rest -= menge;
  }
  Lose_lesen_.Ende();
}

Position Abrechnung::Position_ermitteln(int Stelle, int Shopnummer, double Menge) {
  Satz &a = Artikel_lesen_;
  a.Lauf(std::to_string(Shopnummer));
  Position p{Stelle,    Menge, a.Zahl(7), Runden(a.Zahl(9)), 0,          a.Text(0), a.Text(1), a.Text(5),
             a.Text(6), {},    {},        a.Zahl(12),        a.Zahl(13), {}};
  Kundenpreis_.Lauf(p.Artikel, Kunde_.Nummer);
  Gruppenpreis_.Lauf(p.Artikel, Kunde_.Gruppe);
  Staffelpreis_.Lauf(p.Artikel);
  Gruppe_lesen_.Lauf(Kunde_.Gruppe);
  for (Satz *s : {&Kundenpreis_, &Gruppenpreis_, &Staffelpreis_, &Gruppe_lesen_}) s->Ende();
  Steuer_lesen_.Lauf(p.Schluessel);
  const double satz = Steuer_lesen_.Zahl(1);
  Steuer_lesen_.Ende();
  if (a.Ganz(15) != 0) Lose_zuteilen(p);
  p.Gesamt = p.Brutto * Menge;
  double einkauf = 0, menge = 0;
  for (const Los &l : p.Lose) {
    p.Zuteilung += (p.Zuteilung.empty() ? "" : "|") + p.Artikel + ";" + l.Lager + ";" + Zahltext(l.Menge) +
                   ";" + l.Nummer + ";" + l.Charge + ";" + Zahltext(l.Einkaufspreis) + ";";
    einkauf += l.Menge * l.Einkaufspreis;
    menge += l.Menge;
  }
  char zeile[16], folge[16];
  std::snprintf(zeile, sizeof zeile, "%03d", Stelle);
  std::snprintf(folge, sizeof folge, "%04d", Stelle);
  Position_einfuegen_.Lauf(
      "Rechnung", Nummer_, zeile, folge, p.Artikel, p.Kurztext, a.Text(2), a.Text(3), a.Text(4), p.Einheit,
      Menge, 0.0, 0.0, p.Schluessel, 0.0, p.Netto, Runden(a.Zahl(8)), p.Brutto, p.Netto, p.Brutto,
      Runden(p.Gesamt / (satz / 100 + 1)), p.Gesamt / (100 + satz) * satz, p.Gesamt, einkauf / menge, "",
      p.Gewicht_Netto, p.Gewicht_Brutto, "Chef", a.Text(14), HEUTE, "", "", "", "", "", p.Zuteilung, 1);
  a.Ende();
  return p;
}

void Abrechnung::Positionen(const std::string &Text) {
  Positionen_.clear();
  Schritt([&] {
    int stelle = 0;
    for (std::size_t ort = 0; ort < Text.size();) {
      const std::size_t ende = std::min(Text.find("\xC3\x97", ort), Text.size());
      int nummer = 0;
      double menge = 0;
      std::sscanf(Text.c_str() + ort, "%d~%lf", &nummer, &menge);
      Positionen_.push_back(Position_ermitteln(++stelle, nummer, menge));
      ort = ende + 2;
    }
  });
}

void Abrechnung::Kopf() {
  std::map<std::string, double> summen;
  double netto = 0, brutto = 0, gewicht_netto = 0, gewicht_brutto = 0, steuer = 0, zwischen = 0;
  for (const Position &p : Positionen_) {
    summen[p.Schluessel] += Runden(p.Gesamt);
    gewicht_netto += p.Gewicht_Netto * p.Menge;
    gewicht_brutto += p.Gewicht_Brutto * p.Menge;
  }
  for (const auto &[schluessel, summe] : summen) {
    Steuer_lesen_.Lauf(schluessel);
    const double satz = Steuer_lesen_.Zahl(1);
    Steuer_lesen_.Ende();
    steuer += Runden(summe / (100 + satz) * satz);
    zwischen += summe;
  }
  brutto = zwischen;
  netto = brutto - steuer;
  Versand_lesen_.Lauf("Paket");
  const double kosten = Versand_lesen_.Zahl(0);
  Steuer_lesen_.Lauf(Versand_lesen_.Text(1));
  const double satz = Steuer_lesen_.Zahl(1), versand = Runden(kosten * (satz / 100 + 1));
  for (Satz *s : {&Versand_lesen_, &Steuer_lesen_}) s->Ende();
  Bedingung_lesen_.Lauf("14 Tage");
  Bedingung_lesen_.Ende();
  Zahlart_lesen_.Lauf("Rechnung");
  Zahlart_lesen_.Ende();
  Form_lesen_.Lauf();
  const Kunde &k = Kunde_;
  Endbetrag_ = Runden(brutto + versand);
  Schritt([&] {
    Kopf_einfuegen_.Lauf(Nummer_, Form_lesen_.Text(0), HEUTE, k.Nummer, k.Name, Bestelldatum_, Bestellung_,
                         "2024-06-18 00:00:00", Email_, Wahr_, k.Rechnungsanschrift, k.Lieferanschrift,
                         "Chef", "", "Zentrale", "", "", k.Hinweis, "14 Tage", "Rechnung", gewicht_netto,
                         gewicht_brutto, Runden(zwischen), Runden(netto + kosten),
                         Runden(steuer + Runden(kosten / 100 * satz)), Endbetrag_, 0.0, 0.0, "", "Paket",
                         versand, 0, Endbetrag_, 1, k.Besteuerung, 0, Email_, 0, Wahr_, JETZT, JETZT, "Chef",
                         Endbetrag_, "2024-06-29 00:00:00", 0, 0);
  });
  Form_lesen_.Ende();
}

void Abrechnung::Posten() {
  for (Satz *s : {&Bezahltes_, &Ausgezahltes_, &Gutgeschriebenes_, &Gemahntes_, &Offenes_}) {
    s->Lauf(Nummer_);
    s->Ende();
  }
  const std::string nummer = Nummerntext("OP", Ziehen("OpenItem"));
  Posten_da_.Lauf(nummer);
  Posten_da_.Ende();
  Schritt([&] {
    Posten_einfuegen_.Lauf(nummer, "Rechnung", Nummer_, HEUTE, Kunde_.Nummer, Kunde_.Name, "Zentrale", "Chef",
                           Endbetrag_, 0.0, 0.0, 0.0, 0.0, Endbetrag_, "2024-06-29 00:00:00", 0, "", 0);
  });
}

void Abrechnung::Reservieren() {
  for (Position &p : Positionen_) {
    p.Zuteilung.clear();
    for (const Los &l : p.Lose) {
      const std::string nummer = Nummerntext("RES", Ziehen("Reservation"));
      Reservierung_da_.Lauf(nummer);
      Reservierung_da_.Ende();
      p.Reservierungen += (p.Reservierungen.empty() ? "" : ";") + nummer;
      p.Zuteilung += (p.Zuteilung.empty() ? "" : "|") + p.Artikel + ";" + l.Lager + ";" + Zahltext(l.Menge) +
                     ";" + l.Nummer + ";" + l.Charge + ";" + Zahltext(l.Einkaufspreis) + ";" + nummer;
    }
  }
  const auto zeile = [](const Position &p) {
    char text[16];
    std::snprintf(text, sizeof text, "%03d", p.Stelle);
    return std::string(text);
  };
  Schritt([&] {
    for (const Position &p : Positionen_)
      for (const Los &l : p.Lose) Lager_reservieren_.Lauf(l.Menge, l.Nummer);
  });
  Schritt([&] {
    for (const Position &p : Positionen_)
      Position_reservieren_.Lauf(p.Zuteilung, p.Reservierungen, Nummer_, zeile(p));
  });
  Schritt([&] {
    for (const Position &p : Positionen_) {
      std::size_t ort = 0;
      for (const Los &l : p.Lose) {
        Reservierung_einfuegen_.Lauf(p.Reservierungen.substr(ort, 10), Wahr_, l.Nummer, l.Lager, p.Artikel,
                                     p.Kurztext, HEUTE, l.Lagername, l.Lieferantennummer, l.Lieferant,
                                     l.Menge, p.Einheit, "Chef", l.Charge, "Rechnung", Nummer_, zeile(p));
        ort += 11;
      }
    }
  });
  Artikelsummen();
}

void Abrechnung::Artikelsummen() {
  Schritt([&] {
    for (const Position &p : Positionen_) {
      Bestand_.Lauf(p.Artikel);
      Artikel_schreiben_.Lauf(Bestand_.Zahl(0), Bestand_.Zahl(1), p.Artikel);
      Bestand_.Ende();
    }
  });
}

void Abrechnung::Ausbuchen() {
  Schritt([&] { Rueckstand_loeschen_.Lauf(Nummer_, Kunde_.Nummer); });
  Schritt([&] {
    for (const Position &p : Positionen_)
      for (const Los &l : p.Lose) Lager_ausbuchen_.Lauf(l.Menge, l.Nummer);
  });
  Schritt([&] { Position_versenden_.Lauf(Wahr_, HEUTE, Nummer_); });
  Schritt([&] { Kopf_versenden_.Lauf(Wahr_, HEUTE, Nummer_); });
  Artikelsummen();
}

void Abrechnung::Versenden() {
  Versand_da_.Lauf(Bestellung_);
  Versand_da_.Ende();
  Land_lesen_.Lauf("DE");
  const std::string land = Land_lesen_.Text(0);
  Waehrung_lesen_.Lauf(land);
  const std::string waehrung = Waehrung_lesen_.Text(0);
  Nachnahme_.Lauf("Rechnung");
  Gewicht_.Lauf(Nummer_);
  char gewicht[32];
  std::snprintf(gewicht, sizeof gewicht, "%.3f", Gewicht_.Zahl(0));
  for (char &z : gewicht)
    if (z == '.') z = ',';
  for (Satz *s : {&Land_lesen_, &Waehrung_lesen_, &Nachnahme_, &Gewicht_}) s->Ende();
  Schritt([&] {
    Versand_einfuegen_.Lauf(Nummer_, HEUTE, waehrung, gewicht,
                            "Ihre Bestellung: " + Bestellung_ + " \xC2\xB7 Kundennr. " + Kunde_.Nummer,
                            Bestellung_);
  });
  Schritt([&] { Uebergeben_.Lauf(Wahr_, Bestellung_); });
}

void Abrechnung::Rechnung(const std::string &Bestellung, const std::string &Kundennummer) {
  Bestellung_lesen_.Lauf(Bestellung);
  Bestellung_ = Bestellung_lesen_.Text(0);
  Bestelldatum_ = Bestellung_lesen_.Text(1);
  Email_ = Bestellung_lesen_.Text(2);
  const std::string zeilen = Bestellung_lesen_.Text(3);
  Bestellung_lesen_.Ende();
  Satz &k = Kunde_lesen_;
  k.Lauf(Kundennummer);
  Kunde_ = {Kundennummer, k.Text(0), k.Text(1), k.Text(2), k.Text(3), k.Text(5), k.Ganz(4)};
  k.Ende();
  Nummer_ = Nummerntext("RE", Ziehen("Invoice"));
  Nummer_da_.Lauf(Nummer_);
  Nummer_da_.Ende();
  Positionen(zeilen);
  Kopf();
  Posten();
  Reservieren();
  Ausbuchen();
  Versenden();
}

}  // namespace

int Untergrenze_abrechnen(const std::string &Ordner, int Typ, int Bestellungen) {
  Abrechnung abrechnung(Ordner, Typ);
  for (int n = 1; n <= Bestellungen; ++n) {
    char kunde[16];
    std::snprintf(kunde, sizeof kunde, "K%05d", n % KUNDEN + 1);
    abrechnung.Rechnung(std::to_string(100000 + n), kunde);
  }
  return Satz::Gut ? Bestellungen : -1;
}

}  // namespace marklink::messung
