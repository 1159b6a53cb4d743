// marklink-demoshop: makes the folder of the demo shop.
#include <QCommandLineParser>
#include <QCoreApplication>
#include <cstdio>

#include "Demoshop.h"

namespace {

/// The day that the client takes for today, so that shop and books agree; else the demo's own.
QDate Vorgabetag() {
  const QDate Heute = QDate::fromString(qEnvironmentVariable("MARKLINK_HEUTE"), Qt::ISODate);
  return Heute.isValid() ? Heute : marklink::demo::Demo_Stichtag();
}

void ausgeben(FILE *Ziel, const QString &Text) { std::fprintf(Ziel, "%s\n", qUtf8Printable(Text)); }

}  // namespace

int main(int argc, char **argv) {
  QCoreApplication Programm(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("marklink-demoshop"));
  QCommandLineParser Zeile;
  Zeile.setApplicationDescription(
      QStringLiteral("Legt den Demoshop an: Datenbank, Einstellungen und, wenn angegeben, das Shopscript."));
  const QCommandLineOption Hilfe({QStringLiteral("h"), QStringLiteral("help")},
                                 QStringLiteral("Zeigt diese Hilfe."));
  const QCommandLineOption Heute(
      QStringLiteral("heute"),
      QStringLiteral("Stichtag der Daten; die Bestellungen liegen in den Monaten davor."),
      QStringLiteral("JJJJ-MM-TT"), Vorgabetag().toString(Qt::ISODate));
  const QCommandLineOption Skript(QStringLiteral("skript"),
                                  QStringLiteral("Ordner, aus dem das Shopscript kopiert wird."),
                                  QStringLiteral("ORDNER"));
  Zeile.addOptions({Hilfe, Heute, Skript});
  Zeile.addPositionalArgument(QStringLiteral("ORDNER"), QStringLiteral("Ordner des Shops."));
  if (!Zeile.parse(Programm.arguments())) {
    ausgeben(stderr, Zeile.errorText());
    return 2;
  }
  if (Zeile.isSet(Hilfe)) {
    ausgeben(stdout, Zeile.helpText());
    return 0;
  }
  const QDate Stichtag = QDate::fromString(Zeile.value(Heute), Qt::ISODate);
  if (Zeile.positionalArguments().size() != 1 || !Stichtag.isValid()) {
    ausgeben(stderr, Zeile.helpText());
    return 2;
  }
  const QString Fehler =
      marklink::demo::Demoshop_anlegen(Zeile.positionalArguments().first(), Stichtag, Zeile.value(Skript));
  if (!Fehler.isEmpty()) {
    ausgeben(stderr, Fehler);
    return 1;
  }
  ausgeben(stdout, QStringLiteral("Demoshop angelegt in %1").arg(Zeile.positionalArguments().first()));
  ausgeben(stdout, QStringLiteral("Anmeldung des Scripts: %1 / %2")
                       .arg(marklink::demo::Shopzugang::Benutzer(), marklink::demo::Shopzugang::Passwort()));
  return 0;
}
