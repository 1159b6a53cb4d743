// One HTTP exchange with the shop, from the request head to the reply file.
#include "Austausch.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "Antwortdatei.h"
#include "Http_Abruf.h"
#include "Serveradresse.h"
#include "db/Ablaufverfolgung.h"
#include "host/Zeichensatz.h"

namespace marklink {

namespace {

Verbindungsfenster Fenster_installiert = nullptr;

bool Steuerzeichen_enthalten(const QString &Text) {
  return std::any_of(Text.begin(), Text.end(),
                     [](QChar z) { return z.unicode() < 0x20 || z.unicode() == 0x7F; });
}

/// The target as it may stand in a request line. The program does not encode user, folder and the like: a
/// blank would end the target, a "#" would cut it on the server, and bytes outside ASCII are not allowed
/// there. These few are escaped, which the script reads as the same text; everything else goes out to the
/// letter.
QByteArray Ziel_fuer_Leitung(const QString &Url) {
  static constexpr char Hex[] = "0123456789ABCDEF";
  QByteArray bytes = Nach_1252(Url);
  const auto erlaubt = [](char zeichen) {
    const auto byte = static_cast<unsigned char>(zeichen);
    return byte > 0x20 && byte < 0x7F && byte != '#';
  };
  if (std::all_of(bytes.cbegin(), bytes.cend(), erlaubt)) return bytes;
  QByteArray ziel;
  for (const char zeichen : std::as_const(bytes)) {
    const auto byte = static_cast<unsigned char>(zeichen);
    if (erlaubt(zeichen))
      ziel += zeichen;
    else
      ziel.append('%').append(Hex[byte >> 4]).append(Hex[byte & 15]);
  }
  return ziel;
}

/// The head's lines below the request line, each closed by a NUL. Nothing when one of them holds a control
/// character.
std::optional<QByteArray> Kopfzeilen_lesen(const QString &Kopf) {
  const qsizetype anfang = Kopf.indexOf(u'\n') + 1;
  const qsizetype ende = Kopf.indexOf(QLatin1String("\r\n\r\n"));
  if (anfang == 0 || ende < anfang) return QByteArray();
  QByteArray zeilen = Nach_1252(QStringView(Kopf).mid(anfang, ende + 2 - anfang));
  zeilen.replace("\r\n", QByteArrayView("\0", 1));
  const auto verboten = [](char z) {
    return (z != '\0' && static_cast<unsigned char>(z) < 0x20) || z == 0x7F;
  };
  if (Kopf.contains(QChar(0)) || std::any_of(zeilen.cbegin(), zeilen.cend(), verboten)) return std::nullopt;
  return zeilen;
}

/// The request as a trace may show it: server, path and action, never login or data.
QString Kurzform(const Verbindungsauftrag &Auftrag) {
  QString basis = QString::fromLatin1(Basis_Url(Serveradresse_lesen(Auftrag.Host, Auftrag.Port)));
  if (basis.endsWith(u'/')) basis.chop(1);
  return basis + Auftrag.URL.section(u'&', 0, 0);
}

void Melden(const Verbindungsauftrag &Auftrag, const QString &Grund) {
  if (Ablaufverfolgung_an())
    Ablauf_melden(QStringLiteral("Austausch"), Kurzform(Auftrag) + QStringLiteral(": ") + Grund);
}

/// Why the order cannot become a request; empty when it can. A line break from a setting must never make two
/// requests or another header line out of one.
QString Anfrage_bilden(const Verbindungsauftrag &Auftrag, Http_Anfrage &Anfrage) {
  Anfrage.Basis = Basis_Url(Serveradresse_lesen(Auftrag.Host, Auftrag.Port));
  if (Anfrage.Basis.isEmpty()) return QStringLiteral("unusable server name or port");
  if (Auftrag.URL.isEmpty()) return QStringLiteral("empty request");
  if (Steuerzeichen_enthalten(Auftrag.URL)) return QStringLiteral("control character in the request");
  std::optional<QByteArray> kopf = Kopfzeilen_lesen(Auftrag.Header);
  if (!kopf) return QStringLiteral("control character in the head");
  Anfrage.Kopf = std::move(*kopf);
  Anfrage.Ziel = Ziel_fuer_Leitung(Auftrag.URL);
  Anfrage.Benutzer = Nach_1252(Auftrag.Verzeichnisschutz_Benutzername);
  Anfrage.Passwort = Nach_1252(Auftrag.Verzeichnisschutz_Passwort);
  return {};
}

int Antwort_verarbeiten(const Verbindungsauftrag &Auftrag, const Http_Ergebnis &Ergebnis) {
  if (Ergebnis.Status != 200) {
    Melden(Auftrag,
           Ergebnis.Status == 0 ? Ergebnis.Fehler : QStringLiteral("status %1").arg(Ergebnis.Status));
    return 1;
  }
  const QByteArray inhalt = Antwort_zuschneiden(Ergebnis.Rumpf);
  if (inhalt.isEmpty()) Melden(Auftrag, QStringLiteral("reply without XML"));
  if (Antwort_speichern(Auftrag.xmlDatei, inhalt)) return 0;
  Melden(Auftrag, QStringLiteral("reply file not written"));
  return 1;
}

}  // namespace

void Winsock_initialisieren(Verbindungsauftrag &Auftrag, Verbindungsanzeige *Anzeige) {
  Auftrag.Action = 1;
  if (Anzeige != nullptr) Anzeige->Status(Auftrag.Statustext);
  Http_Anfrage anfrage;
  const QString hindernis = Anfrage_bilden(Auftrag, anfrage);
  if (!hindernis.isEmpty()) {
    Melden(Auftrag, hindernis);
    return;
  }
  Auftrag.Action = Antwort_verarbeiten(Auftrag, Http_abrufen(anfrage, Anzeige));
}

void Verbindungsfenster_setzen(Verbindungsfenster Fenster) { Fenster_installiert = Fenster; }

Verbindungsfenster Verbindungsfenster_gesetzt() { return Fenster_installiert; }

void Verbindung_zeigen(Verbindungsauftrag &Auftrag) {
  if (Fenster_installiert != nullptr)
    Fenster_installiert(Auftrag);
  else
    Winsock_initialisieren(Auftrag, nullptr);
}

}  // namespace marklink
