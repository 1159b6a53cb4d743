// INI files, read as the platform's own routines read them: first section and first key of a name win, blanks
// and one pair of quotes around a value do not count, ";" starts a comment line.
#include "Ini.h"

#include <sys/stat.h>

#include <QFile>
#include <QHash>
#include <QSet>
#include <QStringList>

#include "Dateien.h"
#include "Dateisperre.h"
#include "Zeichensatz.h"
#include "db/Ablaufverfolgung.h"

namespace marklink {
namespace {

constexpr qsizetype Groesste_Datei = 16 * 1024 * 1024;
constexpr int Wartezeit_ms = 5000;
constexpr int Laengster_Wert = 255;

struct Ini_Datei {
  QStringList Zeilen;
  QHash<QString, QString> Werte;  ///< "section\nkey" in lower case
  struct timespec Geaendert {};
  qint64 Groesse = -1;
  ino_t Knoten = 0;
};

QString Nachschlagetext(const QString &Abschnitt, const QString &Schluessel) {
  return Abschnitt.trimmed().toLower() + u'\n' + Schluessel.trimmed().toLower();
}

/// The name between the brackets of a section line; a null text for any other line.
QString Abschnittsname(const QString &Zeile) {
  const QString z = Zeile.trimmed();
  if (!z.startsWith(u'[')) return {};
  const qsizetype ende = z.indexOf(u']');
  return ende < 0 ? QString() : z.mid(1, ende - 1).trimmed() + QLatin1String("");
}

/// Position of the "=" of a key line; -1 for any other line.
qsizetype Gleichheitszeichen(const QString &Zeile) {
  const QString z = Zeile.trimmed();
  return z.startsWith(u';') || z.startsWith(u'[') ? -1 : Zeile.indexOf(u'=');
}

bool In_Anfuehrung(const QString &Wert) {
  return Wert.size() >= 2 && (Wert[0] == u'"' || Wert[0] == u'\'') && Wert.back() == Wert[0];
}

void Zerlegen(Ini_Datei &Ini) {
  QString abschnitt;
  bool gilt = false;
  QSet<QString> gesehen;
  for (const QString &zeile : std::as_const(Ini.Zeilen)) {
    if (const QString name = Abschnittsname(zeile); !name.isNull()) {
      abschnitt = name.toLower();
      gilt = !gesehen.contains(abschnitt);
      gesehen.insert(abschnitt);
      continue;
    }
    const qsizetype gleich = Gleichheitszeichen(zeile);
    if (gleich < 0 || !gilt) continue;
    QString wert = zeile.mid(gleich + 1).trimmed();
    if (In_Anfuehrung(wert)) wert = wert.mid(1, wert.size() - 2);
    const QString platz = Nachschlagetext(abschnitt, zeile.left(gleich));
    if (!Ini.Werte.contains(platz)) Ini.Werte.insert(platz, wert);
  }
}

/// The parsed file; kept until it changes, since settings are read in loops. Nothing when it cannot be read.
const Ini_Datei *Ini_laden(const QString &Datei) {
  static QHash<QString, Ini_Datei> gelesen;
  struct stat lage {};
  const QByteArray pfad = QFile::encodeName(Datei);
  if (Datei.isEmpty() || ::stat(pfad.constData(), &lage) != 0 || !S_ISREG(lage.st_mode)) {
    gelesen.remove(Datei);
    return nullptr;
  }
  const auto alt = gelesen.constFind(Datei);
  if (alt != gelesen.constEnd() && alt->Groesse == lage.st_size && alt->Knoten == lage.st_ino &&
      alt->Geaendert.tv_sec == lage.st_mtim.tv_sec && alt->Geaendert.tv_nsec == lage.st_mtim.tv_nsec)
    return &*alt;
  QFile f(Datei);
  if (lage.st_size > Groesste_Datei || !f.open(QIODevice::ReadOnly)) return nullptr;
  QByteArray bytes = f.readAll();
  if (bytes.startsWith("\xEF\xBB\xBF")) bytes.remove(0, 3);
  Ini_Datei ini;
  ini.Zeilen = Von_1252(bytes).split(u'\n');
  for (QString &zeile : ini.Zeilen)
    if (zeile.endsWith(u'\r')) zeile.chop(1);
  ini.Geaendert = lage.st_mtim;
  ini.Groesse = lage.st_size;
  ini.Knoten = lage.st_ino;
  Zerlegen(ini);
  return &*gelesen.insert(Datei, ini);
}

/// Tells of one key; never of its value, which may be a password.
void Schluessel_melden(const QString &Abschnitt, const QString &Schluessel, const QString &Grund) {
  if (Ablaufverfolgung_an())
    Ablauf_melden(QStringLiteral("Ini"),
                  u'[' + Abschnitt + QStringLiteral("] ") + Schluessel + QStringLiteral(": ") + Grund);
}

QString Ini_Wert(const QString &Datei, const QString &Abschnitt, const QString &Schluessel, int Laenge) {
  const Ini_Datei *ini = Ini_laden(Datei);
  if (!ini) {
    Ablauf_melden(QStringLiteral("Ini_lesen"), QStringLiteral("cannot be read: %1").arg(Datei));
    return {};
  }
  const auto wert = ini->Werte.constFind(Nachschlagetext(Abschnitt, Schluessel));
  if (wert == ini->Werte.constEnd()) {
    Schluessel_melden(Abschnitt, Schluessel, QStringLiteral("no such key in ") + Datei);
    return {};
  }
  if (wert->size() > Laenge)
    Schluessel_melden(Abschnitt, Schluessel, QStringLiteral("value cut at %1 characters").arg(Laenge));
  return wert->left(Laenge);
}

/// The value as it is written: on one line, and in quotes where reading would strip something off it.
QString Schreibform(const QString &Wert) {
  QString w = Wert;
  w.replace(QLatin1String("\r\n"), QLatin1String(" "))
      .replace(u'\n', u' ')
      .replace(u'\r', u' ')
      .remove(QChar(0));
  return w != w.trimmed() || In_Anfuehrung(w) ? u'"' + w + u'"' : w;
}

void Zeile_setzen(QStringList &Zeilen, const QString &Abschnitt, const QString &Schluessel,
                  const QString &Neu) {
  qsizetype einfuegen = -1;
  for (qsizetype i = 0; i < Zeilen.size(); ++i) {
    const QString name = Abschnittsname(Zeilen[i]);
    if (!name.isNull()) {
      if (einfuegen >= 0) break;
      if (name.compare(Abschnitt.trimmed(), Qt::CaseInsensitive) == 0) einfuegen = i + 1;
      continue;
    }
    if (einfuegen < 0 || Zeilen[i].trimmed().isEmpty()) continue;
    const qsizetype gleich = Gleichheitszeichen(Zeilen[i]);
    if (gleich >= 0 &&
        Zeilen[i].left(gleich).trimmed().compare(Schluessel.trimmed(), Qt::CaseInsensitive) == 0) {
      Zeilen[i] = Neu;
      return;
    }
    einfuegen = i + 1;
  }
  if (einfuegen >= 0) {
    Zeilen.insert(einfuegen, Neu);
    return;
  }
  while (!Zeilen.isEmpty() && Zeilen.back().trimmed().isEmpty()) Zeilen.removeLast();
  if (!Zeilen.isEmpty()) Zeilen.append(QString());
  Zeilen << u'[' + Abschnitt.trimmed() + u']' << Neu;
}

/// `Bisher`: what the key has to hold still; nullptr: whatever it holds.
bool Schreiben(const QString &Datei, const QString &Abschnitt, const QString &Schluessel, const QString &Wert,
               const QString *Bisher) {
  const QString stelle = QStringLiteral("Ini_schreiben");
  const auto verboten = [](const QString &n, QStringView zeichen) {
    return n.trimmed().isEmpty() ||
           std::any_of(n.cbegin(), n.cend(), [&](QChar z) { return z < u' ' || zeichen.contains(z); });
  };
  if (Datei.isEmpty() || verboten(Abschnitt, u"[]") || verboten(Schluessel, u"=") ||
      Schluessel.trimmed().startsWith(u';') || Schluessel.trimmed().startsWith(u'[')) {
    Ablauf_melden(stelle, QStringLiteral("section or key is no name"));
    return false;
  }
  // Several programs may write one client's settings; each reads, changes and replaces the file.
  Dateisperre sperre(Datei + QStringLiteral(".lock"));
  if (sperre.Sperren(Wartezeit_ms) != Dateisperre::Stand::Erhalten) {
    Ablauf_melden(stelle, QStringLiteral("cannot be locked: %1").arg(Datei));
    return false;
  }
  const Ini_Datei *ini = Ini_laden(Datei);
  const bool neu = !QFile::exists(Datei);
  if (!ini && !neu) {
    // A file that is there but cannot be read must not be replaced by one line.
    Ablauf_melden(stelle, QStringLiteral("cannot be read: %1").arg(Datei));
    return false;
  }
  if (Bisher && (!ini || Ini_Wert(Datei, Abschnitt, Schluessel, Laengster_Wert) != *Bisher)) return false;
  QStringList zeilen = ini ? ini->Zeilen : QStringList();
  Zeile_setzen(zeilen, Abschnitt, Schluessel, Schluessel.trimmed() + u'=' + Schreibform(Wert));
  // A dialog saves all its keys; the disk is waited for only where one has changed.
  if (ini && zeilen == ini->Zeilen) return true;
  while (!zeilen.isEmpty() && zeilen.back().isEmpty()) zeilen.removeLast();
  bool vollstaendig = true;
  Nach_1252(Wert, &vollstaendig);
  if (!vollstaendig)
    Schluessel_melden(Abschnitt, Schluessel, QStringLiteral("character outside Windows-1252 became another"));
  // Settings hold passwords: a new file is its owner's alone.
  std::optional<QFileDevice::Permissions> rechte;
  if (neu) rechte = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
  return Datei_ersetzen(Datei, Nach_1252(zeilen.join(QLatin1String("\r\n")) + QLatin1String("\r\n")), stelle,
                        rechte);
}

}  // namespace

QString Ini_lesen(const QString &Datei, const QString &Abschnitt, const QString &Schluessel) {
  return Ini_Wert(Datei, Abschnitt, Schluessel, Laengster_Wert);
}

QString Ini_lesen_lang(const QString &Datei, const QString &Abschnitt, const QString &Schluessel) {
  return Ini_Wert(Datei, Abschnitt, Schluessel, 1500);
}

bool Ini_schreiben(const QString &Datei, const QString &Abschnitt, const QString &Schluessel,
                   const QString &Wert) {
  return Schreiben(Datei, Abschnitt, Schluessel, Wert, nullptr);
}

bool Ini_weiterstellen(const QString &Datei, const QString &Abschnitt, const QString &Schluessel,
                       const QString &Bisher, const QString &Wert) {
  return Schreiben(Datei, Abschnitt, Schluessel, Wert, &Bisher);
}

}  // namespace marklink
