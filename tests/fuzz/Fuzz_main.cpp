// A plain main for a fuzz target: runs every file given, and every file of a folder given.
#include <QDir>
#include <QFile>
#include <cstddef>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *Daten, std::size_t Groesse);

namespace {

int Ausfuehren(const QString &Pfad) {
  QFile f(Pfad);
  if (!f.open(QIODevice::ReadOnly)) {
    std::fprintf(stderr, "cannot read %s\n", qPrintable(Pfad));
    return 1;
  }
  const QByteArray bytes = f.readAll();
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                         std::size_t(bytes.size()));
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  int gelaufen = 0;
  for (int i = 1; i < argc; ++i) {
    const QString pfad = QFile::decodeName(argv[i]);
    QStringList dateien{pfad};
    if (const QDir ordner(pfad); ordner.exists()) {
      dateien.clear();
      for (const QFileInfo &info : ordner.entryInfoList(QDir::Files)) dateien.append(info.filePath());
    }
    for (const QString &datei : dateien) {
      if (Ausfuehren(datei) != 0) return 1;
      ++gelaufen;
    }
  }
  std::printf("%d inputs\n", gelaufen);
  return gelaufen > 0 ? 0 : 1;
}
