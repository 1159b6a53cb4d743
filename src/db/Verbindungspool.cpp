// Keeping physical connections, and what every use of one has in common.
#include "Verbindungspool.h"

#include <QHash>
#include <list>

#include "Ablaufverfolgung.h"
#include "Beobachtung.h"

namespace marklink::db {

namespace {

constexpr std::size_t Ruhende_hoechstens = 8;

struct Ruhend {
  QString Verbindung;
  std::unique_ptr<Sitzung> Sitzung_;
};

/// Newest first.
std::list<Ruhend> &ruhende() {
  static std::list<Ruhend> alle;
  return alle;
}

std::unique_ptr<Sitzung> Ruhende_nehmen(const QString &Verbindung) {
  auto &alle = ruhende();
  for (auto i = alle.begin(); i != alle.end();) {
    if (i->Verbindung != Verbindung) {
      ++i;
      continue;
    }
    std::unique_ptr<Sitzung> sitzung = std::move(i->Sitzung_);
    i = alle.erase(i);
    if (sitzung->Brauchbar()) return sitzung;
  }
  return nullptr;
}

const Verbindungsdaten &Daten_von(const QString &Verbindung) {
  static QHash<QString, Verbindungsdaten> gelesen;
  const auto da = gelesen.find(Verbindung);
  if (da != gelesen.end()) return *da;
  if (gelesen.size() > 64) gelesen.clear();
  return *gelesen.insert(Verbindung, Verbindung_lesen(Verbindung));
}

/// The statement for a trace: a value may be a card number or a password.
QString ohne_Werte(const Anweisung &Sql) {
  QString text = Sql.Schluessel();
  for (QChar &c : text) {
    if (c.unicode() < 0x20) c = u'?';
  }
  return text;
}

void Scheitern_melden(const char *Stelle, const Sitzung &S, const QString &Sql) {
  if (Ablaufverfolgung_an()) Ablauf_melden(QLatin1String(Stelle), S.Fehler() + QStringLiteral(": ") + Sql);
}

void Scheitern_melden(const QString &Stelle, const Sitzung &S) {
  if (Ablaufverfolgung_an()) Ablauf_melden(Stelle, S.Fehler());
}

}  // namespace

void Verbindungen_schliessen(const QString &Verbindung) {
  ruhende().remove_if([&](const Ruhend &r) { return Verbindung.isEmpty() || r.Verbindung == Verbindung; });
}

Leihe::Leihe(const QString &Verbindung) : Verbindung_(Verbindung) {
  const Verbindungsdaten &daten = Daten_von(Verbindung);
  Dialekt_ = daten.Dialekt;
  if (!Aufruf_erlaubt()) {
    Ablauf_melden(QStringLiteral("open"), QStringLiteral("injected failure"));
    return;
  }
  Sitzung_ = Ruhende_nehmen(Verbindung);
  if (Sitzung_) return;
  QString fehler = QStringLiteral("no such provider: ") + daten.Anbieter;
  if (Treiber *treiber = Treiber_waehlen(daten.Anbieter)) Sitzung_ = treiber->Oeffnen(daten, fehler);
  if (!Sitzung_) Ablauf_melden(QStringLiteral("open"), fehler);
}

Leihe::~Leihe() {
  if (!Sitzung_) return;
  auto &alle = ruhende();
  alle.push_front({Verbindung_, std::move(Sitzung_)});
  if (alle.size() > Ruhende_hoechstens) alle.pop_back();
}

bool Leihe::Erlaubt(const Anweisung &Sql, const char *Stelle) {
  Mitschreiben(Dialekt_, Sql);
  QString grund;
  if (!Sql.Gueltig()) {
    grund = Sql.Fehler();
  } else if (!Aufruf_erlaubt()) {
    grund = QStringLiteral("injected failure");
  }
  if (grund.isEmpty()) return true;
  if (Ablaufverfolgung_an())
    Ablauf_melden(QLatin1String(Stelle), grund + QStringLiteral(": ") + ohne_Werte(Sql));
  return false;
}

std::shared_ptr<const Spaltensatz> Leihe::Beschreiben(const Anweisung &Sql) {
  if (!Sitzung_ || !Erlaubt(Sql, "prepare")) return nullptr;
  auto spalten = Sitzung_->Beschreiben(Sql);
  if (!spalten) Scheitern_melden("prepare", *Sitzung_, ohne_Werte(Sql));
  return spalten;
}

bool Leihe::Lesen(const Anweisung &Sql, Ergebnis &Ziel) {
  if (!Sitzung_) return false;
  if (wird_beobachtet() && Sql.Gueltig()) Beobachtet(Sql.Text());
  if (!Erlaubt(Sql, "statement")) return false;
  const bool gelesen = Sitzung_->Lesen(Sql, Ziel);
  if (!gelesen) Scheitern_melden("statement", *Sitzung_, ohne_Werte(Sql));
  return gelesen;
}

bool Leihe::Beginnen() {
  if (!Sitzung_) return false;
  if (wird_beobachtet()) Beobachtet(QStringLiteral("BEGIN"));
  const bool begonnen = Aufruf_erlaubt() && Sitzung_->Beginnen();
  if (!begonnen) Scheitern_melden(QStringLiteral("BEGIN"), *Sitzung_);
  return begonnen;
}

bool Leihe::Abschliessen() {
  if (wird_beobachtet()) Beobachtet(QStringLiteral("COMMIT"));
  const bool fertig = Aufruf_erlaubt() && Sitzung_->Abschliessen();
  if (!fertig) Scheitern_melden(QStringLiteral("COMMIT"), *Sitzung_);
  return fertig;
}

void Leihe::Verwerfen() {
  if (wird_beobachtet()) Beobachtet(QStringLiteral("ROLLBACK"));
  Sitzung_->Verwerfen();
}

Schreibstand Leihe::Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                              const std::vector<const Feld *> &Felder, const char *Was,
                              const QString &Tabelle) {
  if (wird_beobachtet()) Beobachtet(QLatin1String(Was) + Tabelle);
  if (!Aufruf_erlaubt()) {
    Ablauf_melden(QLatin1String(Was) + Tabelle, QStringLiteral("injected failure"));
    return Schreibstand::Abgelehnt;
  }
  const Schreibstand stand = Sitzung_->Schreiben(Sql, Werte, Felder);
  if (stand == Schreibstand::Keine_Zeile) {
    Ablauf_melden(QLatin1String(Was) + Tabelle, QStringLiteral("the row is gone or was changed meanwhile"));
  } else if (stand != Schreibstand::Geschrieben) {
    Scheitern_melden(QLatin1String(Was) + Tabelle, *Sitzung_);
  }
  return stand;
}

}  // namespace marklink::db
