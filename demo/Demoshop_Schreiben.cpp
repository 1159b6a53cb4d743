// Writes the demo shop's folder. The database is made beside its place and moved there when it is whole.
#include <sqlite3.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cstdio>
#include <memory>

#include "Demoshop.h"

namespace marklink::demo {

namespace {

struct Schliesser {
  void operator()(sqlite3 *Db) const { sqlite3_close_v2(Db); }
  void operator()(sqlite3_stmt *Satz) const { sqlite3_finalize(Satz); }
};
using Datei_Db = std::unique_ptr<sqlite3, Schliesser>;
using Satz = std::unique_ptr<sqlite3_stmt, Schliesser>;

bool Wert_binden(sqlite3_stmt *S, int Stelle, const QVariant &Wert) {
  if (!Wert.isValid()) return sqlite3_bind_null(S, Stelle) == SQLITE_OK;
  if (Wert.userType() == QMetaType::Double)
    return sqlite3_bind_double(S, Stelle, Wert.toDouble()) == SQLITE_OK;
  if (Wert.canConvert<qlonglong>() && Wert.userType() != QMetaType::QString)
    return sqlite3_bind_int64(S, Stelle, Wert.toLongLong()) == SQLITE_OK;
  const QByteArray Text = Wert.toString().toUtf8();
  return sqlite3_bind_text(S, Stelle, Text.constData(), static_cast<int>(Text.size()), SQLITE_TRANSIENT) ==
         SQLITE_OK;
}

bool Tabelle_schreiben(sqlite3 *Db, const Tabellenzeilen &T) {
  QStringList Platzhalter(T.Spalten.size(), QStringLiteral("?"));
  const QByteArray Sql =
      QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
          .arg(QLatin1String(T.Tabelle), T.Spalten.join(QLatin1Char(',')), Platzhalter.join(QLatin1Char(',')))
          .toUtf8();
  sqlite3_stmt *Roh = nullptr;
  if (sqlite3_prepare_v2(Db, Sql.constData(), -1, &Roh, nullptr) != SQLITE_OK) return false;
  const Satz S(Roh);
  for (const QVariantList &Zeile : T.Zeilen) {
    if (Zeile.size() != T.Spalten.size()) return false;
    for (qsizetype i = 0; i < Zeile.size(); ++i)
      if (!Wert_binden(Roh, static_cast<int>(i) + 1, Zeile[i])) return false;
    if (sqlite3_step(Roh) != SQLITE_DONE) return false;
    sqlite3_reset(Roh);
  }
  return true;
}

/// Empty on success.
QString Datenbank_schreiben(const QString &Datei, const Demodaten &D) {
  QFile::remove(Datei);
  sqlite3 *Roh = nullptr;
  const int Ergebnis = sqlite3_open(Datei.toUtf8().constData(), &Roh);
  const Datei_Db Db(Roh);
  const auto Grund = [&] { return QString::fromUtf8(sqlite3_errmsg(Roh)); };
  if (Ergebnis != SQLITE_OK) return Grund();
  const auto ausfuehren = [&](const char *Sql) {
    return sqlite3_exec(Roh, Sql, nullptr, nullptr, nullptr) == SQLITE_OK;
  };
  if (!ausfuehren("PRAGMA encoding = 'UTF-8'; PRAGMA synchronous = OFF; BEGIN") ||
      !ausfuehren(Shop_Tabellen().toUtf8().constData()))
    return Grund();
  for (const std::vector<Tabellenzeilen> &Teil :
       {Shop_Listen(D), Shop_Artikel(D), Shop_Kunden(D), Shop_Bestellungen(D)})
    for (const Tabellenzeilen &T : Teil)
      if (!Tabelle_schreiben(Roh, T)) return QLatin1String(T.Tabelle) + QStringLiteral(": ") + Grund();
  return ausfuehren("COMMIT") ? QString() : Grund();
}

bool Text_schreiben(const QString &Datei, const QByteArray &Text) {
  QSaveFile Ziel(Datei);
  return Ziel.open(QIODevice::WriteOnly) && Ziel.write(Text) == Text.size() && Ziel.commit();
}

const char *const Konfiguration = R"php(<?php
// Grundeinstellungen des Demoshops. Ein Shop mit MySQL nennt hier DB_SERVER und die Zugangsdaten.
define('HTTP_SERVER', 'http://' . ($_SERVER['HTTP_HOST'] ?? '127.0.0.1'));
define('DIR_WS_CATALOG', '/');
define('DIR_FS_CATALOG', dirname(__DIR__) . '/');
define('DIR_WS_IMAGES', 'images/');
define('DIR_FS_DOCUMENT_ROOT', dirname(__DIR__) . '/');
define('DB_DSN', 'sqlite:' . dirname(__DIR__) . '/shop.sqlite');
)php";

// No mail leaves the demo: messages to customers become files.
const char *const Skripteinstellungen = R"php(<?php
// Einstellungen des Shopscripts im Demoshop: E-Mails an Kunden landen als Dateien im Ordner mails.
return [
    'mail' => 'datei',
    'mail_ordner' => dirname(__DIR__) . '/mails',
];
)php";

// PHP's own web server would hand out the database itself; everything but the script stays closed.
const char *const Router = R"php(<?php
// Weiche für "php -S": nur das Shopscript und die Bilder sind von außen zu sehen.
$pfad = parse_url($_SERVER['REQUEST_URI'], PHP_URL_PATH) ?: '/';
if (preg_match('~^/marklink/[A-Za-z0-9_]+\.php$~', $pfad) || preg_match('~^/images/[^.][^?]*$~', $pfad)) {
    return false;
}
http_response_code($pfad === '/' ? 200 : 404);
header('Content-Type: text/plain; charset=utf-8');
echo $pfad === '/' ? "Demoshop bereit\n" : "Nicht gefunden\n";
)php";

bool Skript_kopieren(const QString &Skriptordner, const QString &Nach) {
  // What the iterator finds below a relative path, relativeFilePath() would take as lying in the folder once
  // more.
  const QString Von = QDir(Skriptordner).absolutePath();
  if (!QFileInfo::exists(Von + QStringLiteral("/marklink.php"))) return false;
  QDirIterator Lauf(Von, {QStringLiteral("*.php")}, QDir::Files, QDirIterator::Subdirectories);
  while (Lauf.hasNext()) {
    const QString Quelle = Lauf.next();
    const QString Name = QFileInfo(Quelle).fileName();
    // The demo has settings of its own, and the other is a tool for the desk.
    if (Name == QLatin1String("marklink_einstellungen.php") || Name == QLatin1String("zusammensetzen.php"))
      continue;
    const QString Ziel = Nach + QLatin1Char('/') + QDir(Von).relativeFilePath(Quelle);
    QFile Datei(Quelle);
    if (!QDir().mkpath(QFileInfo(Ziel).path()) || !Datei.open(QIODevice::ReadOnly) ||
        !Text_schreiben(Ziel, Datei.readAll()))
      return false;
  }
  return true;
}

}  // namespace

QString Demoshop_anlegen(const QString &Ordner, const QDate &Heute, const QString &Skriptordner) {
  if (!Heute.isValid()) return QStringLiteral("Das Datum ist ungültig.");
  for (const char *Teil : {"includes", "marklink", "mails", "images/product_images/original_images"})
    if (!QDir().mkpath(Ordner + QLatin1Char('/') + QLatin1String(Teil)))
      return QStringLiteral("Der Ordner '%1' lässt sich nicht anlegen.").arg(Ordner);

  const QString Datenbank = Ordner + QStringLiteral("/shop.sqlite"), Neu = Datenbank + QStringLiteral(".neu");
  const QString Fehler = Datenbank_schreiben(Neu, Demodaten_erzeugen(Heute));
  if (!Fehler.isEmpty()) {
    QFile::remove(Neu);
    return QStringLiteral("Die Datenbank des Shops lässt sich nicht schreiben: ") + Fehler;
  }
  // QFile::rename() would refuse to replace.
  if (std::rename(QFile::encodeName(Neu).constData(), QFile::encodeName(Datenbank).constData()) != 0)
    return QStringLiteral("Die Datenbank '%1' lässt sich nicht ersetzen.").arg(Datenbank);

  if (!Text_schreiben(Ordner + QStringLiteral("/includes/configure.php"), Konfiguration) ||
      !Text_schreiben(Ordner + QStringLiteral("/marklink/marklink_einstellungen.php"), Skripteinstellungen) ||
      !Text_schreiben(Ordner + QStringLiteral("/router.php"), Router))
    return QStringLiteral("Die Einstellungen des Shops lassen sich nicht schreiben.");
  if (!Skriptordner.isEmpty() && !Skript_kopieren(Skriptordner, Ordner + QStringLiteral("/marklink")))
    return QStringLiteral("Das Shopscript lässt sich nicht aus '%1' kopieren.").arg(Skriptordner);
  return {};
}

}  // namespace marklink::demo
