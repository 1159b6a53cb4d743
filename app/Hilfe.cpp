// The help texts.
#include "Hilfe.h"

#include "Befehle.h"

namespace marklink {
namespace {

using Zeilenpaare = std::vector<std::pair<QString, QString>>;

constexpr qsizetype Zeilenbreite = 100;

QString Optionsform(const Optionsbeschreibung &O) {
  return O.Wert.isEmpty() ? QStringLiteral("--") + O.Name : QStringLiteral("--%1 %2").arg(O.Name, O.Wert);
}

QString Befehlsform(const Befehl &B) {
  QStringList teile{B.Gruppe};
  if (!B.Unterbefehl.isEmpty()) teile << B.Unterbefehl;
  bool statt_nummern = false;  // --alle stands in the place of the numbers
  for (const Argumentbeschreibung &a : B.Argumente) {
    statt_nummern |= a.Beliebig;
    teile << (a.Beliebig ? QStringLiteral("(--alle | %1...)").arg(a.Name) : a.Name);
  }
  for (const Optionsbeschreibung &o : B.Optionen)
    if (!statt_nummern || o.Name != QLatin1String("alle")) teile << u'[' + Optionsform(o) + u']';
  return teile.join(u' ');
}

/// Breaks a text into lines of that width at blanks.
QStringList Umbrechen(const QString &Text, qsizetype Breite) {
  QStringList zeilen{QString()};
  for (const QString &wort : Text.split(u' ')) {
    if (!zeilen.last().isEmpty() && zeilen.last().size() + 1 + wort.size() > Breite) zeilen << QString();
    zeilen.last() += (zeilen.last().isEmpty() ? QString() : QStringLiteral(" ")) + wort;
  }
  return zeilen;
}

QString Tabelle(const QString &Titel, const Zeilenpaare &Paare) {
  qsizetype breite = 0;
  for (const auto &[links, rechts] : Paare) breite = qMax(breite, links.size());
  QString text = u'\n' + Titel + u'\n';
  for (const auto &[links, rechts] : Paare) {
    QString vorne = QStringLiteral("  ") + links.leftJustified(breite + 2);
    for (const QString &zeile : Umbrechen(rechts, Zeilenbreite - breite - 4)) {
      text += vorne + zeile + u'\n';
      vorne = QString(breite + 4, u' ');
    }
  }
  return text;
}

QString Optionstabelle(const QString &Titel, const std::vector<Optionsbeschreibung> &Optionen) {
  Zeilenpaare paare;
  for (const Optionsbeschreibung &o : Optionen) paare.emplace_back(Optionsform(o), o.Hilfe);
  return Tabelle(Titel, paare);
}

QString Allgemeine_Optionstabelle() {
  return Optionstabelle(QStringLiteral("Allgemeine Optionen:"), Allgemeine_Optionen());
}

/// A command's form is long: its help stands below it.
QString Befehlsliste(const QString &Gruppe) {
  QString text = QStringLiteral("\nBefehle:\n");
  for (const Befehl &b : Befehle())
    if (Gruppe.isEmpty() || b.Gruppe == Gruppe)
      text += QStringLiteral("  %1\n      %2\n").arg(Befehlsform(b), b.Hilfe);
  return text;
}

QString Programmhilfe() {
  return QStringLiteral("Aufruf: ") + Aufrufform({}) +
         QStringLiteral("\n\nMarklink verbindet die Warenwirtschaft Varda mit einem Webshop.\n") +
         Befehlsliste({}) + Allgemeine_Optionstabelle() +
         QStringLiteral(
             "\n'--' beendet die Optionen; was danach kommt, sind Argumente.\n"
             "Ende mit 0: erledigt; 1: es wurde ein Fehler gemeldet oder es war nichts zu machen; "
             "2: falscher Aufruf.\n");
}

}  // namespace

QString Aufrufform(const QStringList &Thema) {
  const QString programm = QStringLiteral("marklink ");
  if (Thema.isEmpty()) return programm + QStringLiteral("[OPTIONEN] BEFEHL");
  if (const Befehl *b = Befehl_suchen(Thema.value(0), Thema.value(1))) return programm + Befehlsform(*b);
  return programm + Thema.value(0) + QStringLiteral(" BEFEHL");
}

QString Hilfetext(const QStringList &Thema) {
  if (Thema.isEmpty()) return Programmhilfe();
  const QString kopf = QStringLiteral("Aufruf: ") + Aufrufform(Thema) + u'\n';
  const Befehl *b = Befehl_suchen(Thema.value(0), Thema.value(1));
  if (!b) return kopf + Befehlsliste(Thema.value(0)) + Allgemeine_Optionstabelle();
  QString text = kopf + u'\n' + b->Hilfe + u'\n';
  if (!b->Optionen.empty()) text += Optionstabelle(QStringLiteral("Optionen:"), b->Optionen);
  return text + Allgemeine_Optionstabelle();
}

}  // namespace marklink
