// Files to an FTP server, over libcurl: passive, encrypted where the server offers it.
#pragma once

#include <QString>

namespace marklink {

/// What a transfer may cost. Tests shorten it; a program leaves it alone.
struct Ftpgrenzen {
  int Verbinden_ms = 30'000;  ///< to look the name up, connect and log in
  int Stille_s = 60;          ///< without an answer or a byte
};
Ftpgrenzen &ftpgrenzen();

/// `Server` is "ftp.shop.de", "ftp.shop.de:2121" or "ftp://ftp.shop.de". It is encrypted where the server
/// offers TLS, whoever vouches for its certificate: without the offer the login would go out in the clear, so
/// a check would keep nobody out. "ftps://ftp.shop.de" demands both, TLS (explicit, on the usual port) and a
/// certificate that holds.
struct Ftpanmeldung {
  QString Server;
  QString Benutzer;
  QString Passwort;
};

// False is told in the trace, never with the password. A folder that starts with "/" is counted from the
// server's root, any other from the folder that the login leads to; a closing "/" does not matter.

/// Whether the login succeeds.
bool Ftp_anmelden(const Ftpanmeldung &A);
/// Sends the file under its own name, over one that is there. Missing folders are made.
bool Ftp_hochladen(const Ftpanmeldung &A, const QString &Ordner, const QString &Datei);
/// Whether the file is there; a folder is none.
bool Ftp_vorhanden(const Ftpanmeldung &A, const QString &Ordner, const QString &Dateiname);

}  // namespace marklink
