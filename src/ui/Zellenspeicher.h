// The row array of a list: cells of any kind in 16 bytes each, their texts behind them in large blocks. A
// hundred thousand orders take tens of megabytes, and building a cell's value costs one small copy.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

namespace marklink {

class Zellenspeicher {
 public:
  explicit Zellenspeicher(int Spalten) : Spalten_(Spalten) {}

  void Leeren();
  void Reservieren(int Zeilen);
  int Zeilenzahl() const { return Zeilen_; }
  /// Adds a row of null cells and gives its number.
  int Zeile_anfuegen();

  /// Row and column must exist. Text, bool, whole numbers, double and date come back as they were written,
  /// anything else as its text.
  QVariant Lesen(int Zeile, int Spalte) const;
  void Schreiben(int Zeile, int Spalte, const QVariant &Wert);
  void Text_schreiben(int Zeile, int Spalte, QByteArrayView Utf8);
  /// True, or a number other than 0.
  bool Wahr(int Zeile, int Spalte) const;

 private:
  enum class Art : quint8 { Null, Text, Ja_Nein, Ganzzahl, Gleitkomma, Zeit };
  struct Zelle {
    Art Sorte = Art::Null;
    quint32 Laenge = 0;  // bytes of a text (UTF-8)
    union {
      qint64 Zahl = 0;
      double Kommazahl;
      const char *Text;
    };
  };

  const Zelle &Ort(int Zeile, int Spalte) const;
  Zelle &Ort(int Zeile, int Spalte);
  Zelle Text_ablegen(QByteArrayView Utf8, const Zelle *Vorige);
  char *Platz_nehmen(std::size_t Laenge);

  int Spalten_;
  int Zeilen_ = 0;
  std::vector<Zelle> Zellen_;
  std::vector<std::unique_ptr<char[]>> Bloecke_;
  std::size_t Frei_ = 0;  // bytes left in the last block
  char *Naechster_ = nullptr;
};

}  // namespace marklink
