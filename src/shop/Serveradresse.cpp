// Scheme, name and port of the shop server out of the settings.
#include "Serveradresse.h"

#include <QUrl>
#include <algorithm>

namespace marklink {

namespace {

/// Takes a leading scheme off the name and tells whether it was there.
bool Schema_abtrennen(QString &Name, QLatin1String Schema) {
  if (!Name.startsWith(Schema, Qt::CaseInsensitive)) return false;
  Name.remove(0, Schema.size());
  return true;
}

bool Ist_ASCII(const QString &Text) {
  return std::all_of(Text.begin(), Text.end(), [](QChar z) { return z.unicode() < 0x80; });
}

/// Nothing that could end the name early: no user part, no path, no blank, no control character.
bool Rechner_moeglich(const QString &Name) {
  const bool ip6 = Name.startsWith(u'[') && Name.endsWith(u']');
  const QString kern = ip6 ? Name.mid(1, Name.size() - 2) : Name;
  return !kern.isEmpty() && std::all_of(kern.begin(), kern.end(), [ip6](QChar z) {
    const char16_t c = z.unicode();
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') || c == u'.' ||
           c == u'-' || c == u'_' || (ip6 && c == u':');
  });
}

bool Port_moeglich(const QString &Port) {
  if (Port.isEmpty()) return true;
  bool zahl = false;
  const uint wert = Port.toUInt(&zahl);
  return zahl && Port.front().isDigit() && wert >= 1 && wert <= 65535;
}

}  // namespace

Serveradresse Serveradresse_lesen(const QString &Hostname, const QString &Port) {
  Serveradresse adresse;
  adresse.Name = Hostname.trimmed();
  adresse.Verschluesselt = Schema_abtrennen(adresse.Name, QLatin1String("https://"));
  if (!adresse.Verschluesselt) Schema_abtrennen(adresse.Name, QLatin1String("http://"));
  while (adresse.Name.endsWith(u'/')) adresse.Name.chop(1);
  // A name with umlauts is known to servers and name services in its ASCII form only.
  if (!Ist_ASCII(adresse.Name)) adresse.Name = QString::fromLatin1(QUrl::toAce(adresse.Name));

  QString rechner = adresse.Name;
  const qsizetype doppelpunkt = rechner.lastIndexOf(u':');
  if (doppelpunkt > rechner.lastIndexOf(u']')) {
    adresse.Port = rechner.mid(doppelpunkt + 1);
    rechner.truncate(doppelpunkt);
  }
  if (!Port.trimmed().isEmpty()) adresse.Port = Port.trimmed();
  if (Rechner_moeglich(rechner) && Port_moeglich(adresse.Port)) adresse.Rechner = rechner;
  return adresse;
}

QByteArray Basis_Url(const Serveradresse &Adresse) {
  if (Adresse.Rechner.isEmpty()) return {};
  QByteArray url = Adresse.Verschluesselt ? "https://" : "http://";
  url += Adresse.Rechner.toLatin1();
  if (!Adresse.Port.isEmpty()) url += ':' + QByteArray::number(Adresse.Port.toUInt());
  return url + '/';
}

}  // namespace marklink
