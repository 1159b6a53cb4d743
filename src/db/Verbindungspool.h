// Physical connections, kept between uses. A borrowed connection counts, observes and traces what is done on
// it.
#pragma once

#include <QString>
#include <memory>

#include "Treiber.h"

namespace marklink::db {

/// A connection for as long as this object lives. A caller inside another caller gets one of its own.
class Leihe {
 public:
  explicit Leihe(const QString &Verbindung);
  ~Leihe();
  Leihe(const Leihe &) = delete;
  Leihe &operator=(const Leihe &) = delete;

  explicit operator bool() const { return Sitzung_ != nullptr; }
  Dialekt Mundart() const { return Dialekt_; }

  std::shared_ptr<const Spaltensatz> Beschreiben(const Anweisung &Sql);
  bool Lesen(const Anweisung &Sql, Ergebnis &Ziel);
  bool Beginnen();
  bool Abschliessen();
  bool Abschluss_ungewiss() const { return Sitzung_ && Sitzung_->Abschluss_ungewiss(); }
  void Verwerfen();
  /// Observed as `Was` and `Tabelle` together: "INSERT INTO T", "UPDATE T" or "DELETE FROM T".
  Schreibstand Schreiben(const QByteArray &Sql, const std::vector<Zelle> &Werte,
                         const std::vector<const Feld *> &Felder, const char *Was, const QString &Tabelle);
  qint64 Letzte_Nummer() { return Sitzung_->Letzte_Nummer(); }
  QByteArray Zeilennummer_Spalte() const { return Sitzung_->Zeilennummer_Spalte(); }
  QByteArray Unveraendert(const Feld &Spalte) const { return Sitzung_->Unveraendert(Spalte); }

 private:
  bool Erlaubt(const Anweisung &Sql, const char *Stelle);

  QString Verbindung_;
  Dialekt Dialekt_ = Dialekt::Jet;
  std::unique_ptr<Sitzung> Sitzung_;
};

}  // namespace marklink::db
