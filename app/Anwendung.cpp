// The application object.
#include "Anwendung.h"

#include <QApplication>
#include <cstdlib>

#include "Ausgabe.h"
#include "Befehle.h"
#include "db/Ablaufverfolgung.h"

namespace marklink {
namespace {

/// What the toolkit says while it looks for a display; a fatal message is its last one before it aborts.
void Startmeldung(QtMsgType Art, const QMessageLogContext &, const QString &Text) {
  Ablauf_melden(QStringLiteral("Anwendung"), Text);
  if (Art != QtFatalMsg) return;
  Fehler_melden(
      QStringLiteral("Es gibt keinen Bildschirm, auf dem sich Fenster öffnen lassen (DISPLAY oder "
                     "WAYLAND_DISPLAY fehlt oder ist nicht erreichbar)."));
  std::_Exit(Fehlgeschlagen);
}

}  // namespace

std::unique_ptr<QCoreApplication> Anwendung_erzeugen(int &argc, char **argv, Anwendungsart Art) {
  if (Art == Anwendungsart::Ohne) return std::make_unique<QCoreApplication>(argc, argv);
  // A list for a file is laid out on any machine, whether it has a display or not.
  if (Art == Anwendungsart::Schriften && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  const QtMessageHandler vorher = qInstallMessageHandler(&Startmeldung);
  std::unique_ptr<QCoreApplication> programm;
  if (Art == Anwendungsart::Schriften)
    programm = std::make_unique<QGuiApplication>(argc, argv);
  else
    programm = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(vorher);
  return programm;
}

}  // namespace marklink
