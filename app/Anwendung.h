// The application object: with windows or fonts for a command that needs them, without for all others.
#pragma once

#include <QCoreApplication>
#include <memory>

namespace marklink {

enum class Anwendungsart { Ohne, Schriften, Fenster };

/// To live as long as the program runs. Without a display to show windows on, that is told on standard error
/// and the program ends with status 1: the toolkit would abort it.
std::unique_ptr<QCoreApplication> Anwendung_erzeugen(int &argc, char **argv, Anwendungsart Art);

}  // namespace marklink
