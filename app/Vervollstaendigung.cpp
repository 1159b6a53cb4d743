// Completion of command words and options in the shell, made from the table of commands.
#include "Ausgabe.h"
#include "Befehle.h"
#include "Befehlszeile.h"

namespace marklink {
namespace {

QStringList Optionsworte(const std::vector<Optionsbeschreibung> &Optionen) {
  QStringList worte;
  for (const Optionsbeschreibung &o : Optionen) worte << QStringLiteral("--") + o.Name;
  return worte;
}

QString Optionen_mit_Wert() {
  QStringList worte;
  for (const Optionsbeschreibung &o : Allgemeine_Optionen())
    if (!o.Wert.isEmpty()) worte << QStringLiteral("--") + o.Name;
  return worte.join(u'|');
}

QString Zweig(const QString &Muster, const QStringList &Worte) {
  return QStringLiteral("    '%1') worte='%2' ;;\n").arg(Muster, Worte.join(u' '));
}

/// One branch for each state of the words typed so far: nothing, a group, a whole command.
QString Zweige() {
  QStringList gruppen;
  QString text;
  for (const Befehlsgruppe &g : Befehlsgruppen()) {
    gruppen << g.Name;
    QStringList unterbefehle;
    for (const Befehl &b : Befehle()) {
      if (b.Gruppe != g.Name) continue;
      QStringList worte = Optionsworte(b.Optionen);
      for (const Argumentbeschreibung &a : b.Argumente) worte += a.Auswahl;
      if (!b.Unterbefehl.isEmpty()) unterbefehle << b.Unterbefehl;
      text += Zweig((g.Name + u' ' + b.Unterbefehl).trimmed(), worte);
    }
    if (!unterbefehle.isEmpty()) text += Zweig(g.Name, unterbefehle);
  }
  return Zweig({}, gruppen) + text;
}

// The words of the command are the first two that are neither options nor their values.
const char *const Geruest =
    R"(# bash completion for marklink; load it with: source <(marklink vervollstaendigung bash)
_marklink() {
  local wort=${COMP_WORDS[COMP_CWORD]} vorher=${COMP_WORDS[COMP_CWORD-1]} befehl='' worte='' i zahl=0
  COMPREPLY=()
  case $vorher in
    --ordner) COMPREPLY=($(compgen -d -- "$wort")); return ;;
    %1) return ;;
  esac
  for ((i = 1; i < COMP_CWORD && zahl < 2; i++)); do
    case ${COMP_WORDS[i]} in
      %1) ((i++)) ;;
      -*) ;;
      *) befehl="$befehl${befehl:+ }${COMP_WORDS[i]}"; ((zahl++)) ;;
    esac
  done
  case $befehl in
%2  esac
  COMPREPLY=($(compgen -W "$worte %3" -- "$wort"))
}
complete -F _marklink marklink)";

}  // namespace

int Befehl_Vervollstaendigung(const Aufruf &A) {
  if (A.Argumente[0] != QLatin1String("bash")) {
    Fehler_melden(QStringLiteral("Für die Shell '%1' gibt es keine Vervollständigung; bekannt ist bash.")
                      .arg(A.Argumente[0]));
    return Falscher_Aufruf;
  }
  const QString allgemeine = Optionsworte(Allgemeine_Optionen()).join(u' ');
  Ausgeben(QString::fromUtf8(Geruest).arg(Optionen_mit_Wert(), Zweige(), allgemeine));
  return Erledigt;
}

}  // namespace marklink
