// One HTTP exchange with the shop: send the request, land the reply in a file.
#pragma once

#include <QString>

namespace marklink {

/// What the connection window gets from its caller and leaves behind.
struct Verbindungsauftrag {
  QString Host;
  QString Port;
  QString URL;
  QString Header;  ///< complete request head, lines end in CR LF, an empty line at the end
  QString Verzeichnisschutz_Benutzername;
  QString Verzeichnisschutz_Passwort;
  QString Statustext;
  QString xmlDatei;
  /// 0 reply stored, 1 failure. Starts as 1, so that an old reply file is never taken for a new answer.
  int Action = 1;
};

/// What a window shows of a running exchange.
class Verbindungsanzeige {
 public:
  virtual ~Verbindungsanzeige() = default;
  virtual void Status(const QString &Statustext) = 0;
  virtual void Verbunden(bool Ja) = 0;
  virtual void Uebertragen(qint64 Gesendet, qint64 Empfangen) = 0;
  virtual bool Abbrechen() = 0;  ///< true gives the exchange up
};

/// Runs the exchange, blocking. Reply status 200: the body from the first "<?xml version=" on, and one line
/// end, replace `xmlDatei` (owner-only), Action 0. A 200 without that text leaves an empty file and Action 0.
/// Any other status, or no reply: Action 1, the file is left alone. The connection is kept for the next
/// exchange. `Anzeige` may be nullptr.
void Winsock_initialisieren(Verbindungsauftrag &Auftrag, Verbindungsanzeige *Anzeige);

/// How an exchange is shown: a window that calls Winsock_initialisieren() when it is up. Without one
/// (nullptr) the exchange runs bare.
using Verbindungsfenster = void (*)(Verbindungsauftrag &Auftrag);
void Verbindungsfenster_setzen(Verbindungsfenster Fenster);
Verbindungsfenster Verbindungsfenster_gesetzt();

/// Shows the connection window modally (or runs bare) and returns when the exchange is over.
void Verbindung_zeigen(Verbindungsauftrag &Auftrag);

}  // namespace marklink
