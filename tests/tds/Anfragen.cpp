// What a client asks for: batches, procedures, transactions.
#include "Anfragen.h"

#include <QRegularExpression>
#include <cstdio>

#include "Katalog.h"
#include "Stoerung.h"
#include "support/Mitschrift.h"

namespace marklink::tds {

namespace {

using Ort = Antwort::Ort;

struct Vorbereitetes {
  std::vector<Plan> Plaene{};
  QStringList Namen{};  ///< of the parameters, in order
};

struct Parameter {
  QString Name;
  Wert W;
};

using Parameterliste = std::vector<Parameter>;

constexpr std::size_t Werte_hoechstens = 2100;

/// The procedures that have a number; others are called by name.
enum Prozedurnummer {
  Ohne_Nummer = 0,
  executesql = 10,
  prepare = 11,
  execute = 12,
  prepexec = 13,
  unprepare = 15
};

class Sitzung {
 public:
  Sitzung(Leitung &L, const QString &Katalog) : A_(L) { M_.Katalog = Katalog; }
  bool Oeffnen(const QByteArray &Datei) { return M_.Oeffnen(Datei); }
  void bedienen(const Nachricht &N);
  Antwort &Antwort_() { return A_; }

 private:
  void Stapel(const QString &Text);
  void Rufe(Leser &L);
  void Prozedur(int Nummer, const QString &Name, const Parameterliste &Werte);
  bool Vorbereiten_Prozedur(const Parameterliste &Werte, bool Beschreiben);
  void Katalogprozedur(const QString &Name, const Parameterliste &Werte);
  void Transaktion(Leser &L);
  bool Vorbereiten(const QString &Text, const QString &Deklaration, Vorbereitetes &Ziel);
  bool Ausfuehren(const Plan &P, const Variablen &V, Ort O);
  bool Alles_ausfuehren(const Vorbereitetes &V, const Parameterliste &Werte, std::size_t Ab, Ort O);
  bool Scheitern(const Meldung &M, Ort O, Befehl B = Befehl::Ohne);
  bool Transaktion_fuehren(Plan::Art Was, Ort O);

  Antwort A_;
  Maschine M_;
  bool Ohne_Zaehlung_ = false;
  QHash<qint64, Vorbereitetes> Griffe_;
  qint64 Letzter_Griff_ = 0;
};

void Protokollieren(const QString &Text, const Parameterliste &Werte = {}) {
  if (Stoerung_holen().Protokoll == 0) return;
  QString zeile = Text + u'\n';
  for (const Parameter &p : Werte)
    zeile += QStringLiteral("    %1 = %2\n")
                 .arg(p.Name, p.W.ist_Null() ? QStringLiteral("NULL") : p.W.Text().left(200));
  std::fputs(zeile.toUtf8().constData(), stderr);
}

void Sitzung::bedienen(const Nachricht &N) {
  // Headers come first, and in them their length.
  const QByteArray rumpf = N.Inhalt.mid(static_cast<qsizetype>(Leser(N.Inhalt).Ganz(4)));
  Leser l(rumpf);
  if (N.Art == Paketart::Stapel) return Stapel(l.Text16(rumpf.size() / 2));
  if (N.Art == Paketart::Prozedur) return Rufe(l);
  if (N.Art == Paketart::Transaktion) return Transaktion(l);
  Scheitern({50000, QStringLiteral("no such request is served here")}, Ort::Stapel);
}

bool Sitzung::Scheitern(const Meldung &M, Ort O, Befehl B) {
  A_.melden(M);
  const bool schreibt = B != Befehl::Ohne && B != Befehl::Select;
  if (schreibt) A_.melden({3621, QStringLiteral("The statement has been terminated."), 0});
  A_.Fertig(O, B, -1, true);
  return false;
}

bool Sitzung::Transaktion_fuehren(Plan::Art Was, Ort O) {
  const QByteArray kennung = QByteArray::fromHex("08 0100000001000000"), keine(1, '\0');
  Meldung m;
  if (Was == Plan::Art::Beginnen)
    M_.Beginnen();
  else
    m = Was == Plan::Art::Abschliessen ? M_.Abschliessen() : M_.Zurueckrollen();
  if (m.Nummer != 0) return Scheitern(m, O);
  if (Was == Plan::Art::Beginnen && M_.Tiefe() == 1) A_.Umgebung_Bytes(8, kennung + keine);
  if (Was == Plan::Art::Abschliessen && M_.Tiefe() == 0) A_.Umgebung_Bytes(9, keine + kennung);
  if (Was == Plan::Art::Zurueckrollen) A_.Umgebung_Bytes(10, keine + kennung);
  A_.Fertig(O, Befehl::Ohne, -1, false);
  return true;
}

/// False: what follows in the batch is not run.
bool Sitzung::Ausfuehren(const Plan &P, const Variablen &V, Ort O) {
  using enum Plan::Art;
  if (P.A == Beginnen || P.A == Abschliessen || P.A == Zurueckrollen) return Transaktion_fuehren(P.A, O);
  if (P.A == Unverstaendlich) return Scheitern(Fehler_bilden(102, P.Text), O);
  if (P.A == Zaehlen) Ohne_Zaehlung_ = P.An;
  if (P.A == Implizit) M_.Implizit(P.An);
  if (P.A == Katalog) A_.Umgebung(1, P.Text, std::exchange(M_.Katalog, P.Text));
  qint64 anzahl = -1;
  if (P.A == Daten || P.A == Bau) {
    const Meldung m = M_.Ausfuehren(P, V, A_, anzahl);
    // A row that the server refuses does not end the batch; what it cannot make sense of does.
    if (m.Nummer != 0)
      return Scheitern(m, O, P.B) || m.Nummer == 2601 || m.Nummer == 2627 || m.Nummer == 8152;
  }
  const bool zaehlt = P.A == Daten && (P.B == Befehl::Select || !Ohne_Zaehlung_);
  A_.Fertig(O, P.B, zaehlt ? anzahl : -1, false);
  return true;
}

/// The values from `Ab` on are those of the parameters.
bool Sitzung::Alles_ausfuehren(const Vorbereitetes &V, const Parameterliste &Werte, std::size_t Ab, Ort O) {
  Variablen alle;
  for (std::size_t i = Ab; i < Werte.size(); ++i) {
    const QString name = V.Namen.value(static_cast<qsizetype>(i - Ab));
    alle.insert(Werte[i].Name.isEmpty() ? name : Werte[i].Name, Werte[i].W);
  }
  for (const Plan &p : V.Plaene) {
    if (!Ausfuehren(p, alle, O)) return false;
  }
  return true;
}

bool Sitzung::Vorbereiten(const QString &Text, const QString &Deklaration, Vorbereitetes &Ziel) {
  test::In_Mitschrift("leitung", Text);
  const auto saetze = Zerteilen(Text);
  if (!saetze) return false;
  for (const Satz &satz : *saetze) Ziel.Plaene.push_back(Planen(satz));
  static const QRegularExpression name(QStringLiteral("@\\w+"));
  for (auto i = name.globalMatch(Deklaration); i.hasNext();) Ziel.Namen.append(i.next().captured().toLower());
  return true;
}

void Sitzung::Stapel(const QString &Text) {
  Protokollieren(Text);
  Vorbereitetes v;
  if (!Vorbereiten(Text, {}, v))
    Scheitern(Fehler_bilden(105), Ort::Stapel);
  else if (v.Plaene.empty())
    A_.Fertig(Ort::Stapel, Befehl::Ohne, -1, false);
  else
    Alles_ausfuehren(v, {}, 0, Ort::Stapel);
}

/// Several calls may come in one request, parted by a byte.
void Sitzung::Rufe(Leser &L) {
  const auto Naechster_Ruf = [&L] { return L.Naechstes() == 0x80 || L.Naechstes() == 0xFF; };
  while (!L.Ende()) {
    const quint64 laenge = L.Ganz(2);
    const bool nummeriert = laenge == 0xFFFF;
    const int nummer = nummeriert ? static_cast<int>(L.Ganz(2)) : Ohne_Nummer;
    const QString name = nummeriert ? QString() : L.Text16(static_cast<qint64>(laenge)).toLower();
    L.Ganz(2);
    Parameterliste werte;
    while (!L.Ende() && !Naechster_Ruf()) {
      const QString wie = L.Text16(static_cast<qint64>(L.Ganz(1))).toLower();
      L.Ganz(1);
      werte.push_back({wie, Parameterwert_lesen(L)});
    }
    if (!L.Gut()) {
      Scheitern({50000, QStringLiteral("a parameter of a type that is not served here")}, Ort::Stapel);
      return;
    }
    if (!L.Ende()) L.Ganz(1);
    if (werte.size() > Werte_hoechstens) return void(Scheitern(Fehler_bilden(8003), Ort::Stapel));
    Protokollieren(QStringLiteral("CALL %1%2").arg(name).arg(nummer), werte);
    Prozedur(nummer, name.section(u'.', -1), werte);
  }
}

/// Handle, declarations, text, and for some the values. Leaves the handle in Letzter_Griff_.
bool Sitzung::Vorbereiten_Prozedur(const Parameterliste &Werte, bool Beschreiben) {
  Vorbereitetes v;
  if (Werte.size() < 3 || !Vorbereiten(Werte[2].W.Text(), Werte[1].W.Text(), v)) return false;
  for (const Plan &p : v.Plaene) {
    std::vector<Spalte> spalten;
    Meldung m;
    if (p.A == Plan::Art::Daten) m = M_.Beschreiben(p, Beschreiben, spalten);
    if (p.A == Plan::Art::Unverstaendlich) m = Fehler_bilden(102, p.Text);
    if (m.Nummer != 0) {
      A_.melden(m);
      return Scheitern(Fehler_bilden(8180), Ort::in_Prozedur);
    }
    if (!Beschreiben || spalten.empty()) continue;
    A_.Spalten(spalten);
    A_.Fertig(Ort::in_Prozedur, Befehl::Select, -1, false);
  }
  Griffe_.insert(++Letzter_Griff_, v);
  return true;
}

void Sitzung::Katalogprozedur(const QString &Name, const Parameterliste &Werte) {
  Variablen argumente;
  for (std::size_t i = 0; i < Werte.size(); ++i)
    argumente.insert(Werte[i].Name.isEmpty() ? QString::number(i + 1) : Werte[i].Name, Werte[i].W);
  qint64 anzahl = 0;
  if (!Katalog_ausfuehren(Name, argumente, M_, A_, anzahl)) {
    Scheitern(Fehler_bilden(2812, Name), Ort::Prozedur);
    return;
  }
  A_.Fertig(Ort::in_Prozedur, Befehl::Select, anzahl, false);
  A_.Rueckgabe(0);
  A_.Fertig(Ort::Prozedur, Befehl::Ohne, -1, false);
}

void Sitzung::Prozedur(int Nummer, const QString &Name, const Parameterliste &Werte) {
  const auto wert = [&Werte](std::size_t i) { return i < Werte.size() ? Werte[i].W : Wert(); };
  const bool bereitet_vor = Nummer == prepare || Nummer == prepexec;
  const bool bereit = !bereitet_vor || Vorbereiten_Prozedur(Werte, Nummer == prepare);
  bool gut = bereit;
  if (Nummer == executesql) {
    Vorbereitetes v;
    gut = Vorbereiten(wert(0).Text(), wert(1).Text(), v) && Alles_ausfuehren(v, Werte, 2, Ort::in_Prozedur);
  } else if (Nummer == prepexec && bereit) {
    gut = Alles_ausfuehren(Griffe_.value(Letzter_Griff_), Werte, 3, Ort::in_Prozedur);
  } else if (Nummer == execute || Name == u"sp_execute") {
    gut = Griffe_.contains(wert(0).Ganz)
              ? Alles_ausfuehren(Griffe_.value(wert(0).Ganz), Werte, 1, Ort::in_Prozedur)
              : Scheitern(Fehler_bilden(8179, wert(0).Text()), Ort::in_Prozedur);
  } else if (Nummer == unprepare) {
    Griffe_.remove(wert(0).Ganz);
  } else if (!bereitet_vor) {
    return Katalogprozedur(Nummer == Ohne_Nummer ? Name : QString::number(Nummer), Werte);
  }
  A_.Rueckgabe(gut ? 0 : -6);
  if (bereitet_vor && bereit) A_.Ausgabewert(Letzter_Griff_);
  A_.Fertig(Ort::Prozedur, Befehl::Ohne, -1, !gut);
}

/// Begin 5, commit 7, rollback 8; the last two may begin the next one at once.
void Sitzung::Transaktion(Leser &L) {
  const quint64 was = L.Ganz(2);
  Protokollieren(QStringLiteral("TRANSACTION %1").arg(was));
  if (was != 5) {
    L.Bytes(static_cast<qint64>(L.Ganz(1)));
    const bool weiter = (L.Ganz(1) & 1) != 0;
    if (!Transaktion_fuehren(was == 7 ? Plan::Art::Abschliessen : Plan::Art::Zurueckrollen, Ort::Stapel) ||
        !weiter)
      return;
  }
  Transaktion_fuehren(Plan::Art::Beginnen, Ort::Stapel);
}

}  // namespace

void Bedienen(Leitung &L, const QByteArray &Datei, const QString &Katalog) {
  Stoerung &s = Stoerung_holen();
  Sitzung sitzung(L, Katalog);
  Antwort &antwort = sitzung.Antwort_();
  Nachricht n;
  if (!sitzung.Oeffnen(Datei)) return;
  while (L.Lesen(n)) {
    if (n.Art == Paketart::Abbruch) {
      antwort.Abbruch_bestaetigen();
    } else {
      if (faellig(s.Trennen)) return;
      if (faellig(s.Verstummen)) {
        while (L.Lesen(n)) {
        }
        return;
      }
      ++s.Anfragen;
      // Who speaks up while it waits has given up waiting: the confirmation of that is all the reply there
      // is.
      if (s.Langsam > 0 && L.Wartet(s.Langsam)) continue;
      sitzung.bedienen(n);
      if (faellig(s.Trennen_danach)) return;
      if (faellig(s.Trennen_mitten)) {
        antwort.uebergeben();
        return L.Halb_senden();
      }
    }
    if (!antwort.abschicken()) return;
  }
}

}  // namespace marklink::tds
