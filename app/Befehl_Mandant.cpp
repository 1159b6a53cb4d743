// marklink mandant: new clients.
#include <QFile>

#include "Aufrufwerte.h"
#include "Ausgabe.h"
#include "Kennwort.h"
#include "Mandant_anlegen.h"
#include "Mandantenliste.h"
#include "Sitzung.h"
#include "demo/Demomandant.h"
#include "host/Kontext.h"
#include "host/Uhr.h"

namespace marklink {
namespace {

constexpr int Demoport = 8080;

int Anlegen(const Mandantenplan &Plan) {
  if (const QString grund = Mandantenname_pruefen(Plan.Name); !grund.isEmpty()) {
    Fehler_melden(grund);
    return Falscher_Aufruf;
  }
  if (const QString grund = Mandant_anlegen(Plan); !grund.isEmpty()) {
    Fehler_melden(QStringLiteral("Der Mandant '%1' wurde nicht angelegt: %2").arg(Plan.Name, grund));
    return Fehlgeschlagen;
  }
  Ausgeben(QStringLiteral("Der Mandant '%1' wurde im Ordner '%2' angelegt.").arg(Plan.Name, Plan.Ordner));
  return Erledigt;
}

std::vector<app::Einstellung> Demoshop_Zugang(int Port) {
  std::vector<app::Einstellung> zugang;
  for (const demo::Demoeinstellung &e : demo::Demomandant_Einstellungen(Port))
    zugang.push_back({e.Abschnitt, e.Schluessel, e.Wert});
  return zugang;
}

/// The shipper's values; a workbook that is there already may be somebody's own.
bool Wertemappe_ablegen() {
  const QString ziel = Kontext.gVersandkostendatei;
  if (QFile::exists(ziel)) return true;
  return QFile::copy(QStringLiteral(":/marklink/demo/Wertemappe.xls"), ziel) &&
         QFile::setPermissions(ziel, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

bool Demodaten_schreiben() {
  return Wertemappe_ablegen() && demo::Demomandant_schreiben(Kontext.gConnectionString, uhr().Jetzt().date());
}

struct Wohin {
  int Typ = 0;
  std::optional<Serverzugang> Server{};
};

/// Why the options of the server do not fit together; empty when they do.
QString Serveroptionen_pruefen(const Aufruf &A, int Typ) {
  if (!A.Gegeben("server")) {
    for (const char *option : {"anmeldung", "integriert", "wartezeit"})
      if (A.Gegeben(option))
        return QStringLiteral("Die Option '--%1' braucht '--server'.").arg(QLatin1String(option));
    return {};
  }
  if (Typ != 1) return QStringLiteral("Die Option '--server' gehört zu '--typ 1'.");
  if (A.Gegeben("anmeldung") == A.Gegeben("integriert"))
    return QStringLiteral("Zur Option '--server' gehört eine von '--anmeldung BENUTZER' und '--integriert'.");
  return {};
}

/// Nothing: told on standard error.
std::optional<Wohin> Wohin_lesen(const Aufruf &A) {
  constexpr int Laengste_Wartezeit = 3600;
  const std::optional<int> typ = Zahl_aus_Option(A, "typ", 0, 0, 1);
  const std::optional<int> wartezeit = Zahl_aus_Option(A, "wartezeit", 0, 1, Laengste_Wartezeit);
  if (!typ || !wartezeit) return {};
  if (const QString grund = Serveroptionen_pruefen(A, *typ); !grund.isEmpty()) {
    Fehler_melden(grund);
    return {};
  }
  if (!A.Gegeben("server")) return Wohin{*typ};
  Serverzugang zugang{
      A.Wert("server").trimmed(), A.Gegeben("integriert"), A.Wert("anmeldung").trimmed(), {}, *wartezeit};
  if (!zugang.Integriert) {
    const std::optional<QString> kennwort = Kennwort_erfragen(zugang.Anmeldung);
    if (!kennwort) return {};
    zugang.Kennwort = *kennwort;
  }
  return Wohin{*typ, zugang};
}

}  // namespace

int Befehl_Mandant_anlegen(const Aufruf &A) {
  const std::optional<Wohin> wohin = Wohin_lesen(A);
  if (!wohin) return Falscher_Aufruf;
  return Anlegen({A.Argumente[0], wohin->Typ, Programmordner_bestimmen(A), {}, {}, wohin->Server});
}

int Befehl_Mandant_demo(const Aufruf &A) {
  const std::optional<int> port = Zahl_aus_Option(A, "port", Demoport, 1, 65535);
  if (!port) return Falscher_Aufruf;
  const std::optional<Wohin> wohin = Wohin_lesen(A);
  if (!wohin) return Falscher_Aufruf;
  const QString name = A.Gegeben("mandant") ? A.Wert("mandant") : QStringLiteral("Demo");
  return Anlegen({name, wohin->Typ, Programmordner_bestimmen(A), Demoshop_Zugang(*port), &Demodaten_schreiben,
                  wohin->Server});
}

}  // namespace marklink
