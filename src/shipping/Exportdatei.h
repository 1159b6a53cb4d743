// The file that the shipper's software polls, as it is written line by line.
#pragma once

#include <QByteArray>
#include <QFile>

namespace marklink {

/// Opened for one export, whose lock the caller holds. One that cannot be opened, which the trace tells,
/// takes no line.
class Exportdatei {
 public:
  /// `Kopf` is the line of the columns' names with its end, empty for none. It is written into a file that
  /// is not there yet, on purpose into no other; but a file that holds nothing but a part of it gets it anew.
  /// Not opened, and a new file taken away again, when it cannot be written: it would never come.
  Exportdatei(const QString &Pfad, bool Anhaengen, const QByteArray &Kopf);
  ~Exportdatei();
  Exportdatei(const Exportdatei &) = delete;
  Exportdatei &operator=(const Exportdatei &) = delete;

  enum class Stand {
    Offen,
    Ohne_Datei,  ///< the path cannot be opened
    Ohne_Kopf,   ///< no room even for the line of the names
  };
  Stand Zustand() const { return Stand_; }

  /// What stands behind the file's last whole line.
  QByteArray Angefangene_Zeile() const;
  /// Takes so many bytes off the end; not when somebody else has written meanwhile.
  void Kuerzen(qsizetype Bytes);
  /// False, and the file as it was, when the line cannot be written whole.
  bool Zeile_schreiben(const QByteArray &Zeile);

 private:
  bool Oeffnen(bool Neu, bool Anhaengen);
  bool Kopf_angefangen(const QByteArray &Kopf) const;
  void Melden(const QString &Grund) const;

  QFile Datei_;
  Stand Stand_ = Stand::Ohne_Datei;
  qint64 Groesse_ = 0;
};

}  // namespace marklink
