// Where a folder's server is and how one logs in there: one for all clients of type 1, kept in the host
// configuration.
#pragma once

#include <QString>

namespace marklink {

struct Serverzugang {
  QString Adresse;          ///< "server", "server,port", "tcp:server,port", "server\instance", "(local)"
  bool Integriert = false;  ///< logs in as the user that the machine knows, without the next two
  QString Anmeldung{}, Kennwort{};
  int Wartezeit = 0;   ///< seconds; 0 in a plan: as the host configuration has it
  QString Anbieter{};  ///< as the host configuration names it; empty in a plan

  bool operator==(const Serverzugang &) const = default;
  /// For db/, whatever the host configuration says.
  QString Verbindungstext(const QString &Katalog) const;
};

/// Whether a provider means a server, and which one the embedded engine is.
bool Ist_Server(const QString &Anbieter);
bool Ist_eingebettet(const QString &Anbieter);

/// As the host configuration has it, whatever its provider.
Serverzugang Serverzugang_lesen(const QString &Hostkonfiguration);
/// False when it cannot be written, or would not be read back as it is.
bool Serverzugang_schreiben(const Serverzugang &Zugang, const QString &Hostkonfiguration);

/// Why the folder's clients of type 1 forbid another access than theirs; empty when they do not.
QString Serverwechsel_pruefen(const Serverzugang &Neu, const QString &Hostkonfiguration,
                              const QString &Mandantenliste);

}  // namespace marklink
