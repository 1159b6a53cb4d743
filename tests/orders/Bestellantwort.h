// Replies of get_orders for tests.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace marklink::test {

/// An ORDER_INFO with one product. `Ersatz` replaces the content of a node by name, in both addresses alike;
/// a null QString takes the node away. "PRODUCTS", "TOTALS" and "ORDER_HEADER" stand for what is in those
/// lists.
QString Bestellung(const QString &Nummer, const QHash<QString, QString> &Ersatz = {});
/// A PRODUCT with the given fields; `Optionen` is ready-made XML.
QString Produkt(const QString &ID, const QString &Menge, const QString &Preis, const QString &Optionen = {});
QString Option(const QString &Preis, const QString &Wert);

/// Writes the reply in Windows-1252 and gives the path (in the folder).
QString Antwort_schreiben(const QString &Ordner, const QStringList &Bestellungen);

}  // namespace marklink::test
