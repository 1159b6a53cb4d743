// Writing the file for the shipper's software.
#include "Exportdatei.h"

#include <QFileInfo>

#include "db/Ablaufverfolgung.h"
#include "host/Dateien.h"

namespace marklink {
namespace {

constexpr qint64 Laengste_Zeile = qint64{1024} * 1024;

}  // namespace

Exportdatei::Exportdatei(const QString &Pfad, bool Anhaengen, const QByteArray &Kopf) : Datei_(Pfad) {
  const bool neu = !Datei_existiert(Pfad);
  const bool angefangen = !neu && Kopf_angefangen(Kopf);
  if (!Oeffnen(neu, Anhaengen && !angefangen)) return;
  Groesse_ = Datei_.size();
  Stand_ = Stand::Offen;
  if ((!neu && !angefangen) || Kopf.isEmpty() || Zeile_schreiben(Kopf)) return;
  Stand_ = Stand::Ohne_Kopf;
  Datei_.remove();
}

Exportdatei::~Exportdatei() {
  if (!Datei_.isOpen()) return;
  // A share may tell only now that it had no room.
  Datei_.close();
  if (Datei_.error() != QFileDevice::NoError) Melden(Datei_.errorString());
}

bool Exportdatei::Oeffnen(bool Neu, bool Anhaengen) {
  // Only into a plain file: opening anything else may wait for ever.
  if (Datei_.fileName().isEmpty() || (!Neu && !QFileInfo(Datei_.fileName()).isFile())) {
    Melden(QStringLiteral("not the path of a file"));
    return false;
  }
  // Unbuffered: a line goes out as a whole. Always at the end: a file that somebody else cuts or goes on with
  // gets no hole.
  if (Datei_.open(QIODevice::WriteOnly | QIODevice::Unbuffered | QIODevice::Append) &&
      (Anhaengen || Datei_.resize(0)))
    return true;
  Melden(Datei_.errorString());
  Datei_.close();
  return false;
}

/// A program that is killed while it writes the names leaves a part of them.
bool Exportdatei::Kopf_angefangen(const QByteArray &Kopf) const {
  const QFileInfo angaben(Datei_.fileName());
  if (!angaben.isFile() || angaben.size() < 1 || angaben.size() >= Kopf.size()) return false;
  QFile datei(Datei_.fileName());
  return datei.open(QIODevice::ReadOnly) && Kopf.startsWith(datei.readAll());
}

QByteArray Exportdatei::Angefangene_Zeile() const {
  QFile datei(Datei_.fileName());
  if (Stand_ != Stand::Offen || !datei.open(QIODevice::ReadOnly)) return {};
  datei.seek(qMax(qint64(0), Groesse_ - Laengste_Zeile));
  const QByteArray ende = datei.readAll();
  const qsizetype zeilenende = ende.lastIndexOf("\r\n");
  return zeilenende < 0 ? ende : ende.mid(zeilenende + 2);
}

void Exportdatei::Kuerzen(qsizetype Bytes) {
  if (Datei_.size() == Groesse_ && Datei_.resize(Groesse_ - Bytes))
    Groesse_ -= Bytes;
  else
    Melden(QStringLiteral("cannot be cut"));
}

bool Exportdatei::Zeile_schreiben(const QByteArray &Zeile) {
  if (Datei_.write(Zeile) == Zeile.size()) {
    Groesse_ += Zeile.size();
    return true;
  }
  Melden(Datei_.errorString());
  // Not more than this line: where there is no lock somebody else's may be in the file by now.
  if (Datei_.size() < Groesse_ + Zeile.size()) Datei_.resize(Groesse_);
  return false;
}

void Exportdatei::Melden(const QString &Grund) const {
  Ablauf_melden(QStringLiteral("Versandliste_exportieren"),
                QStringLiteral("%1: %2").arg(Datei_.fileName(), Grund));
}

}  // namespace marklink
