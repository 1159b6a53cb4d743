// Cells of a list in little space.
#include "Zellenspeicher.h"
#include "db/Zeitpunkt.h"

#include <QDateTime>
#include <cstring>

namespace marklink {

namespace {

constexpr std::size_t BLOCKGROESSE = 256 * 1024;
constexpr qint64 TAG_IN_MS = 86400000;

}  // namespace

void Zellenspeicher::Leeren() {
  Zeilen_ = 0;
  Zellen_ = {};
  Bloecke_.clear();
  Frei_ = 0;
  Naechster_ = nullptr;
}

void Zellenspeicher::Reservieren(int Zeilen) {
  if (Zeilen > 0) Zellen_.reserve(static_cast<std::size_t>(Zeilen) * static_cast<std::size_t>(Spalten_));
}

int Zellenspeicher::Zeile_anfuegen() {
  Zellen_.resize(Zellen_.size() + static_cast<std::size_t>(Spalten_));
  return Zeilen_++;
}

const Zellenspeicher::Zelle &Zellenspeicher::Ort(int Zeile, int Spalte) const {
  return Zellen_[static_cast<std::size_t>(Zeile) * static_cast<std::size_t>(Spalten_) +
                 static_cast<std::size_t>(Spalte)];
}

Zellenspeicher::Zelle &Zellenspeicher::Ort(int Zeile, int Spalte) {
  return const_cast<Zelle &>(std::as_const(*this).Ort(Zeile, Spalte));
}

QVariant Zellenspeicher::Lesen(int Zeile, int Spalte) const {
  const Zelle &zelle = Ort(Zeile, Spalte);
  switch (zelle.Sorte) {
    case Art::Null:
      return {};
    case Art::Text:
      return QString::fromUtf8(zelle.Text, static_cast<qsizetype>(zelle.Laenge));
    case Art::Ja_Nein:
      return zelle.Zahl != 0;
    case Art::Ganzzahl:
      return zelle.Zahl;
    case Art::Gleitkomma:
      return zelle.Kommazahl;
    case Art::Zeit:
      return Zeitpunkt(QDate::fromJulianDay(zelle.Zahl / TAG_IN_MS),
                       QTime::fromMSecsSinceStartOfDay(static_cast<int>(zelle.Zahl % TAG_IN_MS)));
  }
  return {};
}

void Zellenspeicher::Schreiben(int Zeile, int Spalte, const QVariant &Wert) {
  Zelle neu;
  if (!Wert.isValid() || Wert.isNull()) {
    Ort(Zeile, Spalte) = neu;
    return;
  }
  switch (Wert.typeId()) {
    case QMetaType::Bool:
      neu.Sorte = Art::Ja_Nein;
      neu.Zahl = Wert.toBool() ? 1 : 0;
      break;
    case QMetaType::Int:
    case QMetaType::Short:
    case QMetaType::LongLong:
      neu.Sorte = Art::Ganzzahl;
      neu.Zahl = Wert.toLongLong();
      break;
    case QMetaType::Double:
      neu.Sorte = Art::Gleitkomma;
      neu.Kommazahl = Wert.toDouble();
      break;
    case QMetaType::QDateTime: {
      const QDateTime zeit = Wert.toDateTime();
      neu.Sorte = Art::Zeit;
      neu.Zahl = zeit.date().toJulianDay() * TAG_IN_MS + zeit.time().msecsSinceStartOfDay();
      break;
    }
    default:
      Text_schreiben(Zeile, Spalte, Wert.toString().toUtf8());
      return;
  }
  Ort(Zeile, Spalte) = neu;
}

void Zellenspeicher::Text_schreiben(int Zeile, int Spalte, QByteArrayView Utf8) {
  Ort(Zeile, Spalte) = Text_ablegen(Utf8, Zeile > 0 ? &Ort(Zeile - 1, Spalte) : nullptr);
}

bool Zellenspeicher::Wahr(int Zeile, int Spalte) const {
  const Zelle &zelle = Ort(Zeile, Spalte);
  if (zelle.Sorte == Art::Ja_Nein || zelle.Sorte == Art::Ganzzahl) return zelle.Zahl != 0;
  return zelle.Sorte == Art::Gleitkomma && zelle.Kommazahl != 0;
}

Zellenspeicher::Zelle Zellenspeicher::Text_ablegen(QByteArrayView Utf8, const Zelle *Vorige) {
  Zelle neu;
  neu.Sorte = Art::Text;
  neu.Laenge = static_cast<quint32>(Utf8.size());
  const auto laenge = static_cast<std::size_t>(Utf8.size());
  // Methods, currency and status repeat from row to row; the text is then shared.
  const bool gleich = Vorige != nullptr && Vorige->Sorte == Art::Text && Vorige->Laenge == neu.Laenge &&
                      (laenge == 0 || std::memcmp(Vorige->Text, Utf8.data(), laenge) == 0);
  if (gleich) {
    neu.Text = Vorige->Text;
    return neu;
  }
  char *platz = Platz_nehmen(laenge);
  if (laenge > 0) std::memcpy(platz, Utf8.data(), laenge);  // an empty text may have no place at all
  neu.Text = platz;
  return neu;
}

char *Zellenspeicher::Platz_nehmen(std::size_t Laenge) {
  if (Laenge > Frei_ || Naechster_ == nullptr) {
    const std::size_t groesse = std::max(Laenge, BLOCKGROESSE);
    Bloecke_.push_back(std::make_unique_for_overwrite<char[]>(groesse));
    Naechster_ = Bloecke_.back().get();
    Frei_ = groesse;
  }
  char *platz = Naechster_;
  Naechster_ += Laenge;
  Frei_ -= Laenge;
  return platz;
}

}  // namespace marklink
