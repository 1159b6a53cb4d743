// A catalogue's tables on a server: made with their rows in one transaction, so that the server itself takes
// back what was not finished, whoever is killed or cut off.
#include <algorithm>

#include "Ablaufverfolgung.h"
#include "DDL.h"
#include "Treiber.h"

namespace marklink::db {

namespace {

/// One transaction; what is not finished is taken back.
class Bau {
 public:
  explicit Bau(const Verbindungsdaten &Daten) {
    QString fehler;
    Server_ = ODBC_Treiber().Oeffnen(Daten, fehler);
    if (!Server_) {
      Ausgang_ = {Serverausgang::Stand::Keine_Verbindung, fehler};
      Ablauf_melden(QStringLiteral("create"), fehler);
    } else if (!Server_->Beginnen()) {
      scheitern(QStringLiteral("BEGIN"));
    }
  }

  bool Gut() const { return Ausgang_.Wie == Serverausgang::Stand::Gut; }
  bool Lauf(const QString &Sql) {
    Ergebnis keines;
    return Server_->Lesen(Anweisung(Teiltext{Sql}, ""), keines) || scheitern(Sql);
  }
  bool Zeilen_uebertragen(Sitzung &Von, const Tabelle &T);
  Serverausgang Abschliessen() {
    if (Gut() && !Server_->Abschliessen()) {
      scheitern(QStringLiteral("COMMIT"));
      Ausgang_.Wie = Serverausgang::Stand::Ungewiss;
    }
    return Ausgang_;
  }
  bool scheitern(const QString &Wobei, const QString &Grund = {}) {
    const QString grund = Grund.isEmpty() ? Server_->Fehler() : Grund;
    Ausgang_ = {Serverausgang::Stand::Gescheitert, grund};
    Ablauf_melden(QStringLiteral("create"), grund + QStringLiteral(": ") + Wobei);
    Server_->Verwerfen();
    return false;
  }

 private:
  std::unique_ptr<Sitzung> Server_;
  Serverausgang Ausgang_;
};

QString Einfuegetext(const Tabelle &T, const std::vector<const Feld *> &Felder) {
  QByteArray spalten, marken;
  for (const Feld *feld : Felder) {
    spalten += (spalten.isEmpty() ? "" : ",") + feld->Geklammert;
    marken += marken.isEmpty() ? "?" : ",?";
  }
  return QStringLiteral("INSERT INTO [%1] (%2) VALUES (%3)")
      .arg(QString::fromUtf8(T.Name), QString::fromUtf8(spalten), QString::fromUtf8(marken));
}

/// The rows keep the numbers that they refer to each other by: the server counts from 1 in the same order.
bool Bau::Zeilen_uebertragen(Sitzung &Von, const Tabelle &T) {
  const QString name = QString::fromUtf8(T.Name);
  Ergebnis vorlage;
  if (!Von.Lesen(Anweisung("SELECT * FROM ", Name{name}), vorlage)) return scheitern(name, Von.Fehler());
  std::vector<std::size_t> plaetze;
  std::vector<const Feld *> felder;
  const Feld *nummer = nullptr;
  for (std::size_t i = 0; i < vorlage.Spalten->Felder_sichtbar(); ++i) {
    const Feld &feld = vorlage.Spalten->Felder[i];
    if (feld.Autowert) {
      nummer = &feld;
      continue;
    }
    plaetze.push_back(i);
    felder.push_back(&feld);
  }
  const QByteArray sql = Einfuegetext(T, felder).toUtf8();
  for (const Zelle *zeile : vorlage.Zeilen) {
    std::vector<Zelle> werte;
    for (const std::size_t i : plaetze) {
      const bool leere_Flagge = zeile[i].ist_Null() && vorlage.Spalten->Felder[i].Art == Feldart::Ja_Nein;
      werte.push_back(leere_Flagge ? Zelle::aus_Ganz(0) : zeile[i]);
    }
    if (Server_->Schreiben(sql, werte, felder) != Schreibstand::Geschrieben)
      return scheitern(QString::fromUtf8(sql));
    if (nummer && Server_->Letzte_Nummer() != zeile[nummer - vorlage.Spalten->Felder.data()].Ganz)
      return scheitern(name, QStringLiteral("the server counts otherwise"));
  }
  return true;
}

}  // namespace

Serverausgang Tabellen_anlegen_SqlServer(const std::vector<Tabelle> &Tabellen, const Verbindungsdaten &Daten,
                                         const QString &Vorlage) {
  QString fehler;
  std::unique_ptr<Sitzung> vorlage;
  if (!Vorlage.isEmpty() && !(vorlage = SQLite_Treiber().Oeffnen(Verbindung_lesen(Vorlage), fehler)))
    return {Serverausgang::Stand::Gescheitert, fehler};
  Bau bau(Daten);
  for (const Tabelle &tabelle : Tabellen) {
    for (const QString &sql : DDL_bilden_SqlServer(tabelle)) {
      if (!bau.Gut() || !bau.Lauf(sql)) return bau.Abschliessen();
    }
  }
  for (const Tabelle &tabelle : Tabellen) {
    if (vorlage && !bau.Zeilen_uebertragen(*vorlage, tabelle)) break;
  }
  return bau.Abschliessen();
}

Serverausgang Tabellen_entfernen_SqlServer(const std::vector<Tabelle> &Tabellen,
                                           const Verbindungsdaten &Daten) {
  Bau bau(Daten);
  for (const Tabelle &tabelle : Tabellen) {
    if (!bau.Gut() || !bau.Lauf(QStringLiteral("DROP TABLE [%1]").arg(QString::fromUtf8(tabelle.Name))))
      break;
  }
  return bau.Abschliessen();
}

}  // namespace marklink::db
