// Progress on a terminal.
#include "Terminal_Fortschritt.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>

#include "Ausgabe.h"
#include "Unterbrechung.h"
#include "host/Kontext.h"

namespace marklink {
namespace {

constexpr int Balkenbreite = 24;
constexpr qint64 Abstand_ms = 50;  ///< a run of thousands of records must not wait for its terminal

int Spalten() {
  struct winsize groesse {};
  return ::ioctl(STDERR_FILENO, TIOCGWINSZ, &groesse) == 0 && groesse.ws_col > 0 ? groesse.ws_col : 80;
}

void Schreiben(const QString &Text) {
  const QByteArray bytes = Text.toUtf8();
  std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
  std::fflush(stderr);
}

QString Balken(int Wert, int Maximum) {
  if (Maximum <= 0) return {};
  const int voll = int(qint64(Balkenbreite) * qBound(0, Wert, Maximum) / Maximum);
  return QStringLiteral("[%1%2] %3/%4 ")
      .arg(QString(voll, u'#'), QString(Balkenbreite - voll, u'-'))
      .arg(Wert)
      .arg(Maximum);
}

class Bare_Anzeige : public Verbindungsanzeige {
 public:
  void Status(const QString &) override {}
  void Verbunden(bool) override {}
  void Uebertragen(qint64, qint64) override {}
  bool Abbrechen() override { return Unterbrochen(); }
};

}  // namespace

Terminal_Fortschritt::Terminal_Fortschritt() : Terminal_(::isatty(STDERR_FILENO) == 1) {}

Terminal_Fortschritt::~Terminal_Fortschritt() { Loeschen(); }

void Terminal_Fortschritt::Anzeigen(const QString &Titel, int Maximum, bool /*Abbrechen_zeigen*/) {
  if (Unterbrochen()) Kontext.gAbbrechen = true;
  Sichtbar_ = true;
  Zeile_ = Titel;
  Wert_ = 0;
  Maximum_ = Maximum;
  Zeichnen(true);
}

void Terminal_Fortschritt::Text(const QString &Zeile) {
  Zeile_ = Zeile;
  Zeichnen(false);
}

void Terminal_Fortschritt::Wert(int Wert) {
  Wert_ = Wert;
  Zeichnen(false);
}

void Terminal_Fortschritt::Verbergen() { Loeschen(); }

void Terminal_Fortschritt::Ausblenden() { Loeschen(); }

void Terminal_Fortschritt::Einblenden() {
  Sichtbar_ = true;
  Zeichnen(true);
}

void Terminal_Fortschritt::Loeschen() {
  if (Terminal_ && Sichtbar_) Schreiben(QStringLiteral("\r\x1b[K"));
  Sichtbar_ = false;
}

void Terminal_Fortschritt::Zeichnen(bool Sofort) {
  if (!Terminal_ || !Sichtbar_) return;
  if (!Sofort && Zuletzt_.isValid() && Zuletzt_.elapsed() < Abstand_ms) return;
  Zuletzt_.start();
  Schreiben(u'\r' + (Balken(Wert_, Maximum_) + Anzeigbar(Zeile_)).left(Spalten() - 1) +
            QStringLiteral("\x1b[K"));
}

void Austausch_im_Terminal(Verbindungsauftrag &Auftrag) {
  Bare_Anzeige anzeige;
  Winsock_initialisieren(Auftrag, &anzeige);
}

}  // namespace marklink
