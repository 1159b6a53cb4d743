// A client on SQL Server: the tables of a catalogue that is there already, with its name.
#include <QDir>
#include <QRegularExpression>
#include <QUuid>
#include <algorithm>

#include "Ausgabe.h"
#include "Hostkonfiguration.h"
#include "Mandantenablage.h"
#include "db/DDL.h"
#include "db/Recordset.h"
#include "host/Datenbank.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

using Stand = db::Serverausgang::Stand;

/// The setting that tells which run made the tables.
constexpr const char *Kennungsabschnitt = "Marklink", *Kennungsschluessel = "Anlage";

/// What the driver tells, without its own name before each sentence.
QString Wortlaut(const QString &Meldung) {
  static const QRegularExpression vorsatz(QStringLiteral("(^| / )\\w{5} -?\\d+ (\\[[^\\]]*\\] ?)*"));
  return QString(Meldung).replace(vorsatz, QStringLiteral("\\1"));
}

bool Nennt(const QString &Meldung, std::initializer_list<int> Nummern) {
  static const QRegularExpression nummer(QStringLiteral("(?:^| / )\\w{5} (-?\\d+) "));
  for (auto i = nummer.globalMatch(Meldung); i.hasNext();) {
    const int diese = i.next().captured(1).toInt();
    if (std::find(Nummern.begin(), Nummern.end(), diese) != Nummern.end()) return true;
  }
  return false;
}

/// The tables of one run.
struct Neue_Tabellen {
  QString Katalog, Adresse, Verbindung;
  QString Kennung = QUuid::createUuid().toString(QUuid::WithoutBraces);

  bool Sind_da(const char *Abschnitt = Kennungsabschnitt, const char *Schluessel = Kennungsschluessel) const;
  void Entfernen() const;
};

class Server final : public Mandantenablage {
 public:
  Server(const Mandantenplan &Plan, Serverzugang Zugang)
      : Plan_(Plan),
        Zugang_(std::move(Zugang)),
        Tabellen_{Plan.Name, Zugang_.Adresse, Zugang_.Verbindungstext(Plan.Name)} {}

  QString Ordner() const override { return Plan_.Ordner; }
  QString Pruefen() const override {
    if (!Ist_Server(Zugang_.Anbieter))
      return QStringLiteral(
          "Die Hostkonfiguration nennt einen fremden Datenbankanbieter; dort kann kein "
          "Mandant angelegt werden.");
    return Serverwechsel_pruefen(Zugang_, Kontext.gHostkonfiguration, Kontext.gMandantenliste);
  }
  QString Ablegen(const QString &Werkstatt, Ruecknahme &Zurueck) override;

 private:
  QString Grund(const db::Serverausgang &Ausgang) const;

  const Mandantenplan &Plan_;
  const Serverzugang Zugang_;
  const Neue_Tabellen Tabellen_;
};

QString Server::Grund(const db::Serverausgang &Ausgang) const {
  const QString &m = Ausgang.Meldung;
  const QString server = QStringLiteral("Server '") + Zugang_.Adresse + u'\'';
  const QString katalog = QStringLiteral("Katalog '") + Plan_.Name + QStringLiteral("' auf dem ") + server;
  QString satz;
  if (Nennt(m, {4060, 911, 916}))
    satz = QStringLiteral(
               "Der %1 kann nicht geöffnet werden; fehlt er, legt ihn dort an: CREATE DATABASE "
               "[%2] COLLATE Latin1_General_CI_AS")
               .arg(katalog, Plan_.Name);
  else if (Nennt(m, {18456, 18452, 18470, 18486, 18487, 18488}))
    satz = QStringLiteral("Der %1 lehnt die Anmeldung ab").arg(server);
  else if (Ausgang.Wie == Stand::Keine_Verbindung)
    satz = QStringLiteral("Der %1 ist nicht zu erreichen").arg(server);
  else if (Nennt(m, {2714}))
    satz = QStringLiteral("Im %1 gibt es schon Tabellen eines Mandanten; sie bleiben, wie sie sind")
               .arg(katalog);
  else if (Nennt(m, {262, 2760}))
    satz = QStringLiteral("Die Anmeldung darf im %1 keine Tabellen anlegen").arg(katalog);
  else if (Ausgang.Wie == Stand::Ungewiss)
    satz = QStringLiteral("Die Verbindung riss am Ende ab; ob im %1 Tabellen geblieben sind, ist ungewiss")
               .arg(katalog);
  else
    satz = QStringLiteral("Im %1 konnten die Tabellen nicht angelegt werden").arg(katalog);
  return satz + QStringLiteral(" (") + Wortlaut(m) + QStringLiteral(").");
}

bool Neue_Tabellen::Sind_da(const char *Abschnitt, const char *Schluessel) const {
  db::Recordset rs;
  rs.Open(db::Anweisung("SELECT Value FROM Options WHERE Section = ", db::Wert{QLatin1String(Abschnitt)},
                        " AND [Key] = ", db::Wert{QLatin1String(Schluessel)}),
          Verbindung);
  return rs.Text(QStringLiteral("Value")) == Kennung;
}

/// Takes them away again, and none that somebody else made.
void Neue_Tabellen::Entfernen() const {
  const bool entfernt =
      Sind_da() &&
      db::Tabellen_entfernen_SqlServer(db::Servertabellen(), db::Verbindung_lesen(Verbindung)).Wie ==
          Stand::Gut;
  if (!entfernt)
    Fehler_melden(QStringLiteral("Im Katalog '%1' auf dem Server '%2' sind die neuen Tabellen geblieben.")
                      .arg(Katalog, Adresse));
}

QString Server::Ablegen(const QString &Werkstatt, Ruecknahme &Zurueck) {
  if (!Serverzugang_schreiben(Zugang_, Werkstatt + QDir::separator() + QStringLiteral("probe.ini")))
    return QStringLiteral(
        "Adresse, Anmeldung oder Kennwort enthalten Zeichen, die in der Hostkonfiguration nicht vorkommen "
        "dürfen, etwa '};'.");
  // By this setting an answer of the server that got lost is found out.
  if (!Option_schreiben(QLatin1String(Kennungsabschnitt), QLatin1String(Kennungsschluessel),
                        Tabellen_.Kennung))
    return QStringLiteral("Die Einstellungen konnten nicht geschrieben werden.");
  const db::Serverausgang ausgang = db::Tabellen_anlegen_SqlServer(
      db::Servertabellen(), db::Verbindung_lesen(Tabellen_.Verbindung), Kontext.gConnectionString);
  const bool da = ausgang.Wie == Stand::Gut || (ausgang.Wie == Stand::Ungewiss && Tabellen_.Sind_da());
  if (!da) return Grund(ausgang);
  Zurueck.Merken([tabellen = Tabellen_] { tabellen.Entfernen(); });
  if (!Tabellen_.Sind_da("MARKLINK", "ANLAGE"))
    return (Tabellen_.Sind_da()
                ? QStringLiteral(
                      "Der Katalog '%1' auf dem Server '%2' unterscheidet Groß- und Kleinschreibung; "
                      "er braucht eine Sortierung wie Latin1_General_CI_AS.")
                : QStringLiteral(
                      "Im Katalog '%1' auf dem Server '%2' sind die neuen Tabellen nicht zu lesen."))
        .arg(Plan_.Name, Zugang_.Adresse);
  if (!Plan_.Server) return {};  // the host configuration is as it was found
  Datei_merken(Kontext.gHostkonfiguration, Zurueck);
  if (!Serverzugang_schreiben(Zugang_, Kontext.gHostkonfiguration))
    return QStringLiteral("Die Hostkonfiguration im Ordner '%1' kann nicht geschrieben werden.")
        .arg(Plan_.Ordner);
  return {};
}

}  // namespace

std::unique_ptr<Mandantenablage> Ablage_auf_Server(const Mandantenplan &Plan, const Serverzugang &Zugang) {
  return std::make_unique<Server>(Plan, Zugang);
}

}  // namespace marklink
