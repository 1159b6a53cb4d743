// What a new client starts with: the rows of its reference tables and its settings, as plain data. Writing
// them is the caller's business.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <vector>

namespace marklink::app {

/// Rows for one empty table. Each row has a value for each column, in their order: QString, bool, int,
/// double.
struct Stammtabelle {
  QString Tabelle;
  QStringList Spalten;
  std::vector<QVariantList> Zeilen;
};

struct Einstellung {
  QString Abschnitt, Schluessel, Wert;
};

/// Reference rows for either type of client. `Benutzer` becomes its one employee.
std::vector<Stammtabelle> Stammdaten(const QString &Benutzer = QStringLiteral("Chef"));

/// The client's settings store. `Ordner` is the client's folder with its trailing separator: documents and
/// the export file of shipments go there. The shop project stays empty, so the client counts as not set up
/// yet.
std::vector<Einstellung> Mandant_Einstellungen(const QString &Ordner);

/// The host configuration, but for what depends on the machine (`Connection`/`DataSource`, login, password).
std::vector<Einstellung> Host_Einstellungen();

}  // namespace marklink::app
