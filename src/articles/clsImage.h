// Picture files: what their heads say, and the file scaled for a preview.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QString>

namespace marklink {

/// The file's bytes, and what its head says. A file that is none of the formats leaves all results 0.
class clsImage {
 public:
  enum Format : int { Unbekannt = 0, GIF = 1, JPEG = 2, PNG = 3, BMP = 4, PCX = 5, TIFF = 6 };

  /// Reads the whole file. A file that cannot be read leaves all results 0.
  void ReadImageInfo(const QString &Path);

  qint32 Width() const { return Width_; }  ///< pixels; of a PNG the low 16 bits, on purpose
  qint32 Height() const { return Height_; }
  qint32 Depth() const { return Depth_; }  ///< bits a pixel
  qint32 ImageType() const { return Type_; }
  qint64 FileSize() const { return Type_ == Unbekannt ? 0 : Bytes_.size(); }

 private:
  void PNG_lesen();
  void GIF_lesen();
  void BMP_lesen();
  void PCX_lesen();
  void TIFF_lesen();
  void JPEG_lesen();
  void Setzen(Format Art, qint64 Breite, qint64 Hoehe, qint64 Tiefe);
  int Byte(qint64 Stelle) const;  ///< 0 behind the end
  qint64 Wert(qint64 Stelle, int Laenge, bool Motorola) const;
  qint64 TIFF_Feld(qint64 Eintrag, bool Motorola) const;

  QByteArray Bytes_;
  qint32 Width_ = 0, Height_ = 0, Depth_ = 0, Type_ = 0;
};

/// The picture of a file on a target of that size in pixels: with proportions as large as fits, centred, the
/// rest in the background colour; else stretched to the target. Null, and a box that says so, for what cannot
/// be read as a picture.
QImage Bild_skalieren(const QString &Pfad, QSize Ziel, const QColor &Hintergrund, bool Proportional);
/// The same for a picture that is loaded already; null for a null one, without a word.
QImage Bild_skalieren(const QImage &Bild, QSize Ziel, const QColor &Hintergrund, bool Proportional);
/// The picture of a file by its content, whatever its name says; null when there is none.
QImage Bild_laden(const QString &Pfad);

}  // namespace marklink
