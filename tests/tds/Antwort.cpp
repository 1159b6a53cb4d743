// The tokens of a reply.
#include "Antwort.h"

namespace marklink::tds {

namespace {

constexpr qsizetype Vorrat = 1 << 16;
const QString Servername = QStringLiteral("STELLVERTRETER");

QByteArray mit_Laenge(const QByteArray &Inhalt) {
  Schreiber s;
  s.Ganz(static_cast<quint64>(Inhalt.size()), 2);
  s.Bytes(Inhalt);
  return s.nehmen();
}

}  // namespace

void Antwort::Ende_schreiben(bool Mehr) {
  if (!std::exchange(Ende_.da, false)) return;
  S_.Ganz(static_cast<quint64>(Ende_.O), 1);
  S_.Ganz(static_cast<quint64>(Ende_.Status | (Mehr ? 1 : 0)), 2);
  S_.Ganz(static_cast<quint64>(Ende_.B), 2);
  S_.Ganz(Ende_.Zeilen, 8);
}

void Antwort::beginnen(int Marke) {
  Ende_schreiben(true);
  if (S_.Groesse() > Vorrat) uebergeben();
  S_.Ganz(static_cast<quint64>(Marke), 1);
}

void Antwort::uebergeben() { L_.Senden(S_.nehmen(), false); }

void Antwort::melden(const Meldung &M) {
  beginnen(M.Klasse > 10 ? 0xAA : 0xAB);
  Schreiber s;
  s.Ganz(static_cast<quint64>(M.Nummer), 4);
  s.Ganz(1, 1);
  s.Ganz(static_cast<quint64>(M.Klasse), 1);
  s.Text16_Zaehler(M.Text, 2);
  s.Text16_Zaehler(Servername, 1);
  s.Text16_Zaehler({}, 1);
  s.Ganz(1, 4);
  S_.Bytes(mit_Laenge(s.nehmen()));
}

void Antwort::Umgebung_Bytes(quint8 Art, const QByteArray &Werte) {
  beginnen(0xE3);
  S_.Ganz(static_cast<quint64>(Werte.size()) + 1, 2);
  S_.Ganz(Art, 1);
  S_.Bytes(Werte);
}

void Antwort::Umgebung(quint8 Art, const QString &Neu, const QString &Alt) {
  Schreiber s;
  s.Text16_Zaehler(Neu, 1);
  s.Text16_Zaehler(Alt, 1);
  Umgebung_Bytes(Art, s.nehmen());
}

void Antwort::Anmeldung_bestaetigen() {
  beginnen(0xAD);
  Schreiber s;
  s.Ganz(1, 1);
  s.Bytes(QByteArray::fromHex("74000004"));
  s.Text16_Zaehler(QStringLiteral("Microsoft SQL Server"), 1);
  s.Bytes(QByteArray::fromHex("0F000000"));  // clients choose their catalogue calls by the version
  S_.Bytes(mit_Laenge(s.nehmen()));
}

void Antwort::Spalten(const std::vector<Spalte> &Alle) {
  beginnen(0x81);
  S_.Ganz(Alle.size(), 2);
  for (const Spalte &spalte : Alle) {
    S_.Ganz(0, 4);
    S_.Ganz((spalte.Nullbar ? 1u : 0u) | (spalte.Nummer ? 0x10u : 0x08u), 2);
    Typ_schreiben(S_, spalte.T);
    S_.Text16_Zaehler(spalte.Name, 1);
  }
}

void Antwort::Zeile(const std::vector<Spalte> &Alle, const std::vector<Wert> &Werte) {
  beginnen(0xD1);
  for (std::size_t i = 0; i < Alle.size(); ++i) Wert_schreiben(S_, Alle[i].T, Werte[i]);
}

void Antwort::Rueckgabe(int Wert) {
  beginnen(0x79);
  S_.Ganz(static_cast<quint64>(Wert), 4);
}

void Antwort::Ausgabewert(qint64 Wert) {
  beginnen(0xAC);
  S_.Bytes(QByteArray::fromHex("0000 00 01 00000000 0100"));  // the first, without a name; nullable
  Typ_schreiben(S_, {Form::Ganz32});
  Wert_schreiben(S_, {Form::Ganz32}, tds::Wert::aus(Wert));
}

void Antwort::Fertig(Ort O, Befehl B, qint64 Zeilen, bool Fehler) {
  Ende_schreiben(true);
  Ende_.da = true;
  Ende_.O = O;
  Ende_.B = B;
  Ende_.Status = static_cast<quint16>((Fehler ? 2 : 0) | (Zeilen >= 0 ? 0x10 : 0));
  Ende_.Zeilen = Zeilen >= 0 ? static_cast<quint64>(Zeilen) : 0;
}

void Antwort::Abbruch_bestaetigen() {
  Ende_schreiben(true);
  Ende_ = {true, Ort::Stapel, 0x20, Befehl::Ohne, 0};
}

bool Antwort::abschicken() {
  Ende_schreiben(false);
  return L_.Senden(S_.nehmen(), true);
}

}  // namespace marklink::tds
