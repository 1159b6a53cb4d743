// Standard output and standard error as UTF-8.
#include "Ausgabe.h"

#include <QStringList>
#include <cstdio>

namespace marklink {
namespace {

void Zeile_schreiben(std::FILE *Ziel, const QString &Text) {
  const QByteArray bytes = Text.toUtf8() + '\n';
  std::fwrite(bytes.constData(), 1, size_t(bytes.size()), Ziel);
}

bool Steuerzeichen(QChar Z) { return Z < u' ' || (Z >= QChar(0x7F) && Z < QChar(0xA0)); }

QStringList Zeilen(QString Text) {
  Text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
  QStringList zeilen = Text.split(u'\n');
  for (QString &zeile : zeilen)
    for (QChar &z : zeile)
      if (Steuerzeichen(z)) z = u' ';
  return zeilen;
}

}  // namespace

void Ausgeben(const QString &Text) { Zeile_schreiben(stdout, Text); }

void Melden(const QString &Text) {
  std::fflush(stdout);
  Zeile_schreiben(stderr, Anzeigbar(Text));
}

void Fehler_melden(const QString &Text) { Melden(QStringLiteral("marklink: ") + Text); }

bool Ausgabe_abschliessen() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

QString Anzeigbar(const QString &Text) { return Zeilen(Text).join(QLatin1String(" | ")); }

QString Anzeigbar_mehrzeilig(const QString &Text) { return Zeilen(Text).join(u'\n'); }

}  // namespace marklink
