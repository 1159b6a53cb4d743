// The statements of type 1 that a test program sends.
#include "Mitschrift.h"

#include <fcntl.h>
#include <unistd.h>

#include <QRegularExpression>
#include <QSet>

#include "db/Beobachtung.h"

namespace marklink::test {

namespace {

int Datei() {
  static const int datei = [] {
    const QByteArray name = qgetenv("MARKLINK_MITSCHRIFT");
    if (name.isEmpty()) return -1;
    const char *begonnen = "MARKLINK_MITSCHRIFT_BEGONNEN";
    const int anfang = qEnvironmentVariableIsSet(begonnen) ? 0 : O_TRUNC;
    qputenv(begonnen, "1");
    return ::open(name.constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | anfang, 0644);
  }();
  return datei;
}

/// Every text value is 'x' and every digit run of a number 1: what differs in its values only is one
/// statement.
QString Muster(const db::Anweisung &Sql) {
  static const QRegularExpression ziffern(QStringLiteral("[0-9]+"));
  QString text;
  for (const auto &stueck : Sql.Stuecke()) {
    if (stueck.Art == db::Anweisung::Stueck::Art::Literal)
      text += stueck.Text;
    else if (stueck.Art == db::Anweisung::Stueck::Art::Textwert)
      text += QLatin1String("'x'");
    else
      text += QString(stueck.Text).replace(ziffern, QStringLiteral("1"));
  }
  return text;
}

const bool Angemeldet = [] {
  if (Datei() < 0) return false;
  db::Mitschreiber_setzen([](db::Dialekt D, const db::Anweisung &Sql) {
    if (D == db::Dialekt::SqlServer) In_Mitschrift("naht", Muster(Sql));
  });
  return true;
}();

}  // namespace

void In_Mitschrift(const char *Quelle, const QString &Text) {
  static QSet<QString> bekannt;
  if (Datei() < 0 || bekannt.contains(Text)) return;
  bekannt.insert(Text);
  QByteArray zeile = QByteArray(Quelle) + '\t' + Text.toUtf8();
  zeile.replace('\r', ' ').replace('\n', ' ').append('\n');
  // One write: several processes add to the same file.
  if (::write(Datei(), zeile.constData(), static_cast<std::size_t>(zeile.size())) != zeile.size())
    bekannt.remove(Text);
}

}  // namespace marklink::test
