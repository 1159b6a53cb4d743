// Transactions on a server, as statements of their own: the driver's own calls for them wait without limit.
#pragma once

#include "ODBC_Griffe.h"

namespace marklink::db {

/// The end of a batch begins the next transaction in the same round trip, so one is open between batches as
/// well. Nothing was written in it then, so it holds nothing on the server; statements that read run in it.
class Odbc_Transaktion {
 public:
  explicit Odbc_Transaktion(Odbc_Griffe &Griffe) : Griffe_(Griffe) {}

  bool Offen() const { return Offen_; }
  /// To be told when the connection is another one.
  void vergessen() { Offen_ = false; }
  /// One is open afterwards; no round trip when it was before.
  bool Beginnen(Odbc_Meldung &Meldung);
  /// False: nobody knows how it ended when the connection is lost, else nothing was written.
  bool Abschliessen(Odbc_Meldung &Meldung);
  /// None is open afterwards, whether the server still had one or had ended it by itself.
  void Zurueckrollen(Odbc_Meldung &Meldung);

 private:
  Odbc_Griffe &Griffe_;
  bool Offen_ = false;
};

}  // namespace marklink::db
