// The client list.
#include "Mandantenliste.h"

#include <QFile>
#include <algorithm>

#include "host/Zeichensatz.h"

namespace marklink {
namespace {

constexpr int Laengster_Name = 100;
constexpr qint64 Groesste_Datei = 16777216;

}  // namespace

QStringList Mandanten_lesen(const QString &Datei) {
  QStringList namen;
  QFile f(Datei);
  if (!f.open(QIODevice::ReadOnly)) return namen;
  const QString text = Von_1252(f.read(Groesste_Datei));
  for (const QString &zeile : text.split(u'\n')) {
    const QString z = zeile.trimmed();
    const qsizetype ende = z.indexOf(u']');
    if (!z.startsWith(u'[') || ende < 0) continue;
    const QString name = z.mid(1, ende - 1).trimmed();
    if (!name.isEmpty() && Mandant_suchen(namen, name).isEmpty()) namen << name;
  }
  return namen;
}

QString Mandant_suchen(const QStringList &Mandanten, const QString &Name) {
  const QString gesucht = Name.trimmed();
  for (const QString &name : Mandanten)
    if (name.compare(gesucht, Qt::CaseInsensitive) == 0) return name;
  return {};
}

QString Mandantenname_pruefen(const QString &Name) {
  if (Name.trimmed().isEmpty()) return QStringLiteral("Der Name des Mandanten ist leer.");
  if (Name != Name.trimmed() || Name.startsWith(u'.'))
    return QStringLiteral(
        "Der Name eines Mandanten beginnt nicht mit einem Punkt und hat am Rand keine Leerzeichen.");
  if (Name.size() > Laengster_Name)
    return QStringLiteral("Der Name eines Mandanten hat höchstens %1 Zeichen.").arg(Laengster_Name);
  const QString verboten = QStringLiteral("/\\[]'\";=:*?<>|");
  const bool zeichen = std::any_of(Name.cbegin(), Name.cend(), [&](QChar z) {
    return z.category() == QChar::Other_Control || verboten.contains(z);
  });
  bool darstellbar = true;
  Nach_1252(Name, &darstellbar);
  if (zeichen || !darstellbar)
    return QStringLiteral(
               "Der Name '%1' enthält Zeichen, die in einem Mandantennamen nicht vorkommen dürfen.")
        .arg(Name);
  return {};
}

}  // namespace marklink
