// Runs the stand-in for SQL Server.
#include "SqlServer_Attrappe.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>

namespace marklink::test {

SqlServer_Attrappe::SqlServer_Attrappe(const QString &Datei) {
  const QByteArray datei = QFile::encodeName(Datei);
  int hin[2], her[2];
  if (::pipe2(hin, O_CLOEXEC) != 0) return;
  if (::pipe2(her, O_CLOEXEC) != 0) return;
  Prozess_ = ::fork();
  if (Prozess_ == 0) {
    ::dup2(hin[0], STDIN_FILENO);
    ::dup2(her[1], STDOUT_FILENO);
    ::execl(MARKLINK_TDS_SERVER, "marklink_tds_server", "--datei", datei.constData(), "--kennwort", "geheim",
            nullptr);
    ::_exit(127);
  }
  ::close(hin[0]);
  ::close(her[1]);
  Hin_ = hin[1];
  Her_ = her[0];
  Port_ = Zeile_lesen().toInt();
}

SqlServer_Attrappe::~SqlServer_Attrappe() {
  ::close(Hin_);
  ::close(Her_);
  if (Prozess_ > 0) ::waitpid(Prozess_, nullptr, 0);
}

QString SqlServer_Attrappe::Verbindungstext(const QString &Kennwort, int Wartezeit) const {
  return QStringLiteral(
             "Provider=SQLOLEDB.1;User ID=sa;Password=%1;Initial Catalog=demo;Data Source=127.0.0.1,%2;"
             "Persist Security Info=False;Connect Timeout=%3")
      .arg(Kennwort)
      .arg(Port_)
      .arg(Wartezeit);
}

QByteArray SqlServer_Attrappe::Zeile_lesen() const {
  QByteArray zeile;
  char c = 0;
  while (::read(Her_, &c, 1) == 1 && c != '\n') zeile += c;
  return zeile;
}

QByteArray SqlServer_Attrappe::Fragen(const QByteArray &Zeile) {
  const QByteArray zeile = Zeile + '\n';
  if (::write(Hin_, zeile.constData(), static_cast<size_t>(zeile.size())) != zeile.size()) return {};
  return Zeile_lesen();
}

}  // namespace marklink::test
