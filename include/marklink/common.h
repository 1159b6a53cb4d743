// The one public header of Marklink: the class `common`, through which a host program drives the library.
//
// A host either links libmarklink, or loads it at run time and looks up the two functions at the end by their
// names. One thread, the host's user interface thread, makes all calls. No call throws.
#pragma once

#include <QString>

#if defined(MARKLINK_BUILD) || defined(__GNUC__)
#define MARKLINK_EXPORT __attribute__((visibility("default")))
#else
#define MARKLINK_EXPORT
#endif

namespace marklink {

/// Schnittstelle zu Marklink (ab Version 1.0.8).
///
/// Initialisierung() comes first, each time a client is opened; but for Message_Info() nothing else works
/// before it. A failed call answers false or the empty text. Arguments are only read unless said otherwise.
class MARKLINK_EXPORT common {
 public:
  virtual ~common();
  common(const common &) = delete;
  common &operator=(const common &) = delete;

  /// The constant "Schnittstelle für Marklink ab Version 1.0.8".
  virtual QString Message_Info() = 0;

  /// Opens the client `Firmenname` for the employee `Benutzername`. False when no shop project is set up,
  /// also after the settings dialog was shown. `Init` and `ShowMessage` have no effect, on purpose. May be
  /// called again; while a screen is open or a run is under way it changes nothing and answers false.
  virtual bool Initialisierung(const QString &Firmenname, const QString &Benutzername,
                               const bool &Init = true, const bool &ShowMessage = true) = 0;

  // --- screens, shown modally
  virtual void Show_Einstellungen() = 0;
  virtual void Show_Wizard() = 0;
  virtual void Show_Main() = 0;
  virtual void Show_Artikelsynchronisierung() = 0;
  /// True when the user confirmed.
  virtual bool Show_Artikelverwaltung(const QString &Artikelnummer, const QString &Produkt_ID) = 0;
  virtual bool Show_Artikelverwaltung_Varianten(const QString &Artikelnummer) = 0;

  // --- single articles
  /// Whether the host's article exists for the shop.
  virtual bool Artikel_existiert_varda(const QString &Artikelnummer) = 0;
  /// Whether the article exists in the shop.
  virtual bool Artikel_existiert_xtc(const QString &Artikelnummer, const QString &Artikel_ID,
                                     const bool &Progress = false) = 0;
  virtual bool Artikel_loeschen_xtc(const QString &Artikelnummer, const QString &Artikel_ID,
                                    const bool &Progress = false) = 0;
  virtual void Artikel_erzeugen_xtc(const QString &Artikelnummer) = 0;

  // --- screens with a result
  /// The attribute list after editing; empty when the user cancelled.
  virtual QString Show_Kategorie(const QString &Kategorie_ID, const QString &Attributwerte,
                                 const QString &Webshop_ID) = 0;
  virtual QString Show_Sonderpreis(const QString &Webshop_ID, const QString &Attributwerte) = 0;
  /// Edits `Bestandswerte` ("quantity|delivery time|status") in place; true when the user confirmed. Sends
  /// the values to the shop unless `Variante`.
  virtual bool Show_Bestandswerte(const QString &Webshop_ID, QString &Bestandswerte,
                                  const bool &Variante = false) = 0;

  // --- whole runs
  virtual void Artikel_synchronisieren_xtc() = 0;
  virtual void Artikel_synchronisieren_varda() = 0;
  virtual void Kunden_synchronisieren_varda() = 0;
  virtual void Sonderpreise_synchronisieren_varda() = 0;
  virtual void Sonderpreise_synchronisieren_xtc() = 0;
  virtual void Artikel_Lagerbestandsaktualisierung_xtc() = 0;

 protected:
  common();
};

}  // namespace marklink

extern "C" {
/// Creates the object; give it back with marklink_common_freigeben(). Never nullptr.
MARKLINK_EXPORT marklink::common *marklink_common_erzeugen();
/// Frees an object of marklink_common_erzeugen(); nullptr is allowed. A screen that is open stays until it is
/// closed: only then may the library be unloaded.
MARKLINK_EXPORT void marklink_common_freigeben(marklink::common *Objekt);
}
