// Taking shop customers over into the books, so that documents can be made from their orders.
#pragma once

#include <QString>
#include <functional>

#include "Auftragsliste.h"

namespace marklink {

/// What became of a customer.
struct Kundenuebernahme {
  enum class Ausgang {
    Gespeichert,
    Ohne_Antwort,   ///< the exchange failed; told in the stated box
    Nicht_im_Shop,  ///< the reply holds no customer
    Nicht_gesucht,  ///< the books cannot be searched for the e-mail address
    Ohne_Nummer,    ///< no customer number could be drawn
    Nicht_gespeichert
  };
  Ausgang Stand = Ausgang::Ohne_Antwort;
  QString Kundennummer;  ///< empty unless the customer is in the books, saved now or known before
  QString Suchname;      ///< empty unless saved
  QString Shopmeldung;   ///< what the shop says instead of a customer
};

/// Fetches the shop customer of an order and creates or refreshes the customer with that e-mail address. The
/// address blocks and the payment details are those of the order.
Kundenuebernahme Kunde_uebernehmen(const QString &Email, const QString &Kunden_ID,
                                   const QString &Rechnungsanschrift, const QString &Lieferanschrift,
                                   const QString &Zahlungshinweis);

/// The same for who needs the customer number alone: empty when there is no such customer.
QString Kunde_aus_Bestellung_anlegen(const QString &Email, const QString &Kunden_ID,
                                     const QString &Rechnungsanschrift, const QString &Lieferanschrift,
                                     const QString &Zahlungshinweis);

/// The run behind "Kunden anlegen": the customer of every marked row, in list order, with progress; then the
/// list is loaded again. Without a mark the stated box. `Ergebnis` hears of each row when it is done.
void Kunden_anlegen(Auftragsliste &Liste,
                    const std::function<void(int Zeile, const Kundenuebernahme &)> &Ergebnis = {});

}  // namespace marklink
