// The program context: the one set of program-wide variables that every folder reads.
//
// Filled by Programm_initialisieren() and Mandant_initialisieren() (Programmstart.h); overwritten as a whole
// by the next start. Later writes: gAbbrechen, gLaeuft, gViewablePeriod, gSynchronisation, gArticlepricing.
#pragma once

#include <QDate>
#include <QString>

namespace marklink {

struct Programmkontext {
  // who and when
  QString gFirmenname;    ///< section of the client list, stem of the client's files
  QString gBenutzername;  ///< employee who is logged in
  QDate gHeute;           ///< read once at start-up, kept over midnight on purpose

  // files; folders end with the platform's separator
  QString gProgrammpfad;
  QString gHostkonfiguration;
  QString gSprachdatei;
  QString gHilfedatei;
  QString gMandantenliste;
  QString gVersandkostendatei;
  QString gAfkDatei;  ///< settings store of a client of type 0; empty for type 1
  QString gLayoutDatei;
  QString gDatenbank;  ///< type 0: path of the .mdb file; type 1: catalog name

  // database
  qint16 gDatabasetype = 0;  ///< 0 or 1
  qint16 gInstalling = 0;    ///< 0, 1 or 2
  qint16 gSQL_True = -1;     ///< the number for true in SQL text: -1 (type 0) or 1
  qint16 gSQL_False = 0;
  QString gConnectionString;

  // the employee's
  QString gBenutzer_Filiale;
  QString gBenutzer_Lagernummer;

  // settings of the host
  QString gAdressformat;  ///< default address template
  QString gGewichtsformat;
  qint16 gStorageBooking = 0;
  qint16 gArticlePriceReadout = 0;
  qint16 gViewablePeriod = 0;  ///< period index, see ui/Zeitraum.h
  QString gDocumentPath;
  QString gDigitsFormat;
  QString gPriceFormat;
  qint16 gPreisNachkommastellen = 0;
  QString gPositionFormat;
  QString gMassFormat;
  QString gRebateFormat;
  QString gCurrency;
  QString gCountry;  ///< home country by its Description

  // the shop
  QString gUrl;  ///< path of the shop script
  QString gHostname;
  QString gPort;
  QString gUsername;
  QString gPassword;  ///< MD5 of the stored password, 32 lower-case hexadecimal digits
  QString gHtaccessUsername;
  QString gHtaccessPassword;
  qint32 gSynchronisation = 0;
  qint32 gArticlepricing = 0;

  // state of the running program
  bool gAbbrechen = false;           ///< set by the cancel button of the progress window
  bool gLaeuft = false;              ///< a batch runs
  qint32 gVersender = 0;             ///< shipper; only 0 exists
  double gFreeShippingAmount = 0.0;  ///< the free-shipping limit last found
  QString gHyperlink;                ///< text of the link last clicked in a report
};

extern Programmkontext Kontext;

}  // namespace marklink
