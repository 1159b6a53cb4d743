// The one place that knows how a hostname setting names a server.
#pragma once

#include <QByteArray>
#include <QString>

namespace marklink {

/// A setting such as "www.shop.de", "https://www.shop.de/" or "http://10.0.0.5:8080". "https://" means an
/// encrypted connection with certificate checking, no scheme means a plain one.
struct Serveradresse {
  bool Verschluesselt = false;
  QString Name;     ///< the setting without scheme and closing slash, as the Host line shows it
  QString Rechner;  ///< the bare machine name or address
  QString Port;     ///< empty: the scheme's own
};

/// `Port` wins over one within the hostname. An impossible name or port leaves `Rechner` empty.
Serveradresse Serveradresse_lesen(const QString &Hostname, const QString &Port = {});

/// "https://www.shop.de:8443/"; empty when the address is impossible.
QByteArray Basis_Url(const Serveradresse &Adresse);

}  // namespace marklink
