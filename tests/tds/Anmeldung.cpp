// How a connection begins.
#include "Anmeldung.h"

#include "Antwort.h"
#include "Stoerung.h"

namespace marklink::tds {

namespace {

/// Version, no encryption, no instance, no MARS: type, offset, length (big-endian), the values behind the
/// 0xFF.
bool Vorab_beantworten(Leitung &L) {
  return L.Senden(QByteArray::fromHex("00001a0006 0100200001 0200210001 0300220000 0400220001 ff"
                                      "0f0000000000 02 00 00"),
                  true);
}

/// A text whose offset and length stand at `Stelle` of the login.
QString Feld_lesen(const QByteArray &Login, int Stelle, bool Kennwort = false) {
  Leser zeiger(Login.mid(Stelle));
  const auto anfang = static_cast<qsizetype>(zeiger.Ganz(2));
  const auto laenge = static_cast<qsizetype>(zeiger.Ganz(2));
  QByteArray bytes = Login.mid(anfang, laenge * 2);
  for (char &c : bytes) {
    if (!Kennwort) break;
    const int offen = static_cast<quint8>(c) ^ 0xA5;
    c = static_cast<char>(offen >> 4 | offen << 4);
  }
  return Leser(bytes).Text16(bytes.size() / 2);
}

}  // namespace

bool Anmelden(Leitung &L, const Zugang &Erlaubt, QString &Katalog) {
  Nachricht n;
  do {
    if (!L.Lesen(n) || (n.Art == Paketart::Vorab && !Vorab_beantworten(L))) return false;
  } while (n.Art == Paketart::Vorab);
  if (n.Art != Paketart::Anmeldung || n.Inhalt.size() < 94) return false;
  const QString benutzer = Feld_lesen(n.Inhalt, 40);
  Katalog = Feld_lesen(n.Inhalt, 68);
  if (Katalog.isEmpty()) Katalog = QStringLiteral("master");
  Stoerung &s = Stoerung_holen();
  if (s.Ablehnen == 2) return false;
  if (s.Ablehnen == 3) return L.Lesen(n) && false;
  Antwort a(L);
  if (s.Ablehnen == 4)
    a.melden(
        {4060,
         QStringLiteral("Cannot open database \"%1\" requested by the login. The login failed.").arg(Katalog),
         11});
  if (s.Ablehnen != 0 || benutzer.compare(Erlaubt.Benutzer, Qt::CaseInsensitive) != 0 ||
      Feld_lesen(n.Inhalt, 44, true) != Erlaubt.Kennwort) {
    a.melden({18456, QStringLiteral("Login failed for user '%1'.").arg(benutzer), 14});
    a.Fertig(Antwort::Ort::Stapel, Befehl::Ohne, -1, true);
    a.abschicken();
    return false;
  }
  ++s.Anmeldungen;
  a.Umgebung(1, Katalog, QStringLiteral("master"));
  a.melden({5701, QStringLiteral("Changed database context to '%1'.").arg(Katalog), 0});
  a.Umgebung_Bytes(7, QByteArray(1, 5) + Sortierung_der_Texte() + QByteArray(1, 0));
  a.Umgebung(2, QStringLiteral("us_english"));
  a.Anmeldung_bestaetigen();
  a.Umgebung(4, QStringLiteral("4096"), QStringLiteral("4096"));
  a.Fertig(Antwort::Ort::Stapel, Befehl::Ohne, -1, false);
  return a.abschicken();
}

}  // namespace marklink::tds
