// Reading the command line.
#include "Befehlszeile.h"

#include <algorithm>

namespace marklink {
namespace {

struct Gelesene_Option {
  QString Name;
  QString Wert;
  bool Mit_Wert = false;
};

struct Zerlegt {
  QStringList Worte;
  std::vector<Gelesene_Option> Optionen;
  bool Hilfe = false, Version = false;
  QString Fehler;  ///< the first one
};

const Optionsbeschreibung *In_Liste(const std::vector<Optionsbeschreibung> &Liste, const QString &Name) {
  const auto i = std::find_if(Liste.begin(), Liste.end(), [&](const auto &o) { return o.Name == Name; });
  return i == Liste.end() ? nullptr : &*i;
}

/// The option of that name, whichever command has it; the commands agree on which of them take a value.
const Optionsbeschreibung *Irgendeine_Option(const QString &Name) {
  if (const auto *o = In_Liste(Allgemeine_Optionen(), Name)) return o;
  for (const Befehl &b : Befehle())
    if (const auto *o = In_Liste(b.Optionen, Name)) return o;
  return nullptr;
}

bool Ist_Option(const QString &Text) {
  return Text.size() > 1 && Text[0] == u'-' && !(Text[1] >= u'0' && Text[1] <= u'9');
}

void Option_zerlegen(Zerlegt &Z, const QStringList &Argumente, qsizetype &I) {
  const QString &text = Argumente[I];
  const auto fehler = [&](const QString &grund) {
    if (Z.Fehler.isEmpty()) Z.Fehler = grund;
  };
  if (text == QLatin1String("-h") || text == QLatin1String("--help") || text == QLatin1String("--hilfe")) {
    Z.Hilfe = true;
    return;
  }
  if (text == QLatin1String("--version")) {
    Z.Version = true;
    return;
  }
  const qsizetype gleich = text.indexOf(u'=');
  const QString name =
      text.startsWith(QLatin1String("--")) ? text.mid(2, gleich < 0 ? -1 : gleich - 2) : QString();
  const Optionsbeschreibung *option = name.isEmpty() ? nullptr : Irgendeine_Option(name);
  if (!option) return fehler(QStringLiteral("Die Option '%1' gibt es nicht.").arg(text));
  if (option->Wert.isEmpty()) {
    if (gleich >= 0) return fehler(QStringLiteral("Die Option '--%1' hat keinen Wert.").arg(name));
    Z.Optionen.push_back({name, {}, false});
  } else if (gleich >= 0) {
    Z.Optionen.push_back({name, text.mid(gleich + 1), true});
  } else if (I + 1 < Argumente.size()) {
    Z.Optionen.push_back({name, Argumente[++I], true});
  } else {
    fehler(QStringLiteral("Zur Option '--%1' fehlt der Wert %2.").arg(name, option->Wert));
  }
}

Zerlegt Zerlegen(const QStringList &Argumente) {
  Zerlegt z;
  for (qsizetype i = 0; i < Argumente.size(); ++i) {
    if (Argumente[i] == QLatin1String("--")) {
      z.Worte += Argumente.mid(i + 1);
      break;
    }
    if (Ist_Option(Argumente[i]))
      Option_zerlegen(z, Argumente, i);
    else
      z.Worte += Argumente[i];
  }
  return z;
}

bool Gruppe_bekannt(const QString &Name) {
  const auto &g = Befehlsgruppen();
  return std::any_of(g.begin(), g.end(), [&](const auto &x) { return x.Name == Name; });
}

/// Finds the command and takes its words off; `Thema` gets what is known of it.
const Befehl *Befehl_nehmen(QStringList &Worte, QStringList &Thema, QString &Fehler) {
  if (Worte.isEmpty()) {
    Fehler = QStringLiteral("Es fehlt ein Befehl.");
    return nullptr;
  }
  const QString gruppe = Worte.takeFirst();
  if (!Gruppe_bekannt(gruppe)) {
    Fehler = QStringLiteral("Den Befehl '%1' gibt es nicht.").arg(gruppe);
    return nullptr;
  }
  Thema << gruppe;
  if (const Befehl *b = Befehl_suchen(gruppe, {})) return b;
  if (Worte.isEmpty() || Worte.first().isEmpty()) {
    Fehler = QStringLiteral("Zum Befehl '%1' fehlt, was er tun soll.").arg(gruppe);
    return nullptr;
  }
  const QString unterbefehl = Worte.takeFirst();
  const Befehl *b = Befehl_suchen(gruppe, unterbefehl);
  if (b)
    Thema << unterbefehl;
  else
    Fehler = QStringLiteral("Den Befehl '%1 %2' gibt es nicht.").arg(gruppe, unterbefehl);
  return b;
}

QString Argumente_pruefen(const Befehl &B, const QStringList &Worte) {
  const bool beliebig = !B.Argumente.empty() && B.Argumente.back().Beliebig;
  const auto noetig = qsizetype(B.Argumente.size()) - (beliebig ? 1 : 0);
  if (Worte.size() < noetig)
    return QStringLiteral("Es fehlt das Argument %1.").arg(B.Argumente[size_t(Worte.size())].Name);
  if (!beliebig && Worte.size() > noetig)
    return QStringLiteral("Das Argument '%1' ist zu viel.").arg(Worte[noetig]);
  return {};
}

QString Optionen_uebernehmen(Aufruf &A, const std::vector<Gelesene_Option> &Optionen) {
  for (const Gelesene_Option &o : Optionen) {
    const bool allgemein = In_Liste(Allgemeine_Optionen(), o.Name) != nullptr;
    if (!allgemein && !In_Liste(A.Was->Optionen, o.Name))
      return QStringLiteral("Die Option '--%1' gehört nicht zu diesem Befehl.").arg(o.Name);
    if (o.Mit_Wert && o.Wert.isEmpty() && o.Name != QLatin1String("kommentar"))
      return QStringLiteral("Der Wert der Option '--%1' ist leer.").arg(o.Name);
    if (o.Name == QLatin1String("antwort") && o.Wert.indexOf(u'=') < 1)
      return QStringLiteral("Die Option '--antwort' hat die Form TITEL=ANTWORT.");
    A.Optionen[o.Name] << o.Wert;
  }
  return {};
}

}  // namespace

QString Aufruf::Wert(const char *Option) const {
  const QStringList werte = Werte(Option);
  return werte.isEmpty() ? QString() : werte.last();
}

Befehlszeile Befehlszeile_lesen(const QStringList &Argumente) {
  Befehlszeile zeile;
  Zerlegt z = Zerlegen(Argumente);
  const bool ohne_befehl = z.Worte.isEmpty();
  QString fehler;
  zeile.Aufruf_.Was = Befehl_nehmen(z.Worte, zeile.Thema, fehler);
  // A mistyped command is told also to someone who asks for its help.
  if (z.Hilfe && (ohne_befehl || !zeile.Thema.isEmpty())) {
    zeile.Was = Befehlszeile::Art::Hilfe;
    return zeile;
  }
  if (z.Version && ohne_befehl) {
    zeile.Was = Befehlszeile::Art::Version;
    return zeile;
  }
  zeile.Fehler = z.Fehler.isEmpty() ? fehler : z.Fehler;
  if (zeile.Fehler.isEmpty()) zeile.Fehler = Optionen_uebernehmen(zeile.Aufruf_, z.Optionen);
  if (zeile.Fehler.isEmpty()) zeile.Fehler = Argumente_pruefen(*zeile.Aufruf_.Was, z.Worte);
  zeile.Aufruf_.Argumente = z.Worte;
  if (zeile.Fehler.isEmpty()) zeile.Was = Befehlszeile::Art::Ausfuehren;
  return zeile;
}

}  // namespace marklink
