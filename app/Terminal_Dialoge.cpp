// Boxes and prompts on a terminal.
#include "Terminal_Dialoge.h"

#include "Ausgabe.h"
#include "ui/Fortschritt.h"

namespace marklink {
namespace {

/// Not behind the bar of a run.
void Zeigen(const QString &Text) {
  const Fortschritt_verdeckt verdeckt;
  Melden(Text);
}

QString Schluessel(const QString &Titel) { return Titel.trimmed().toLower(); }

bool Erlaubt(Knoepfe K, Antwort A) {
  switch (K) {
    case Knoepfe::OK:
      return A == Antwort::OK;
    case Knoepfe::JaNein:
      return A == Antwort::Ja || A == Antwort::Nein;
    case Knoepfe::JaNeinAbbrechen:
      return A != Antwort::OK;
    case Knoepfe::OKAbbrechen:
      return A == Antwort::OK || A == Antwort::Abbrechen;
  }
  return false;
}

Antwort Schonendste(Knoepfe K) {
  switch (K) {
    case Knoepfe::OK:
      return Antwort::OK;
    case Knoepfe::JaNein:
      return Antwort::Nein;
    case Knoepfe::JaNeinAbbrechen:
    case Knoepfe::OKAbbrechen:
      break;
  }
  return Antwort::Abbrechen;
}

std::optional<Antwort> Antwort_lesen(const QString &Text) {
  static const std::pair<const char *, Antwort> worte[] = {
      {"ok", Antwort::OK}, {"ja", Antwort::Ja}, {"nein", Antwort::Nein}, {"abbrechen", Antwort::Abbrechen}};
  for (const auto &[wort, antwort] : worte)
    if (Text.trimmed().toLower() == QLatin1String(wort)) return antwort;
  return {};
}

}  // namespace

Terminal_Dialoge::Terminal_Dialoge(const QStringList &Antworten) {
  for (const QString &a : Antworten) {
    const qsizetype gleich = a.indexOf(u'=');
    Antworten_[Schluessel(a.left(gleich))] << a.mid(gleich + 1);
  }
}

QString Terminal_Dialoge::Naechste_Antwort(const QString &Titel) {
  const auto i = Antworten_.find(Schluessel(Titel));
  return i == Antworten_.end() || i->isEmpty() ? QString() : i->takeFirst();
}

Antwort Terminal_Dialoge::Meldung(const QString &Titel, const QStringList &Zeilen, Symbol /*S*/, Knoepfe K,
                                  Antwort /*Vorgabe*/) {
  Zeigen(QStringLiteral("[%1] ").arg(Titel) + Zeilen.join(u'\n'));
  if (Titel == QLatin1String("Fehler")) Fehler_gezeigt_ = true;
  if (K == Knoepfe::OK) return Antwort::OK;
  const QString text = Naechste_Antwort(Titel);
  const std::optional<Antwort> antwort = Antwort_lesen(text);
  if (antwort && Erlaubt(K, *antwort)) return *antwort;
  if (!text.isEmpty())
    Fehler_melden(QStringLiteral("Auf '%1' passt die Antwort '%2' nicht.").arg(Titel, text));
  return Schonendste(K);
}

QString Terminal_Dialoge::Eingabe(const QString &Titel, const QString &Text, const QString &Vorgabe) {
  const QString vorschlag = Vorgabe.isEmpty() ? QString() : QStringLiteral(" (Vorschlag: %1)").arg(Vorgabe);
  Zeigen(QStringLiteral("[%1] ").arg(Titel) + Text + vorschlag);
  return Naechste_Antwort(Titel);
}

QString Terminal_Dialoge::Datei_oeffnen(const QString &Titel, const QString & /*Filter*/,
                                        const QString & /*Ordner*/) {
  Zeigen(QStringLiteral("[%1]").arg(Titel));
  return Naechste_Antwort(Titel);
}

QString Terminal_Dialoge::Datei_speichern(const QString &Titel, const QString &Filter,
                                          const QString & /*Vorgabe*/) {
  return Datei_oeffnen(Titel, Filter, {});
}

std::optional<quint32> Terminal_Dialoge::Farbe(quint32 /*Vorgabe*/) {
  bool gueltig = false;
  const quint32 farbe = Naechste_Antwort(QStringLiteral("Farbe")).toUInt(&gueltig, 16);
  return gueltig && farbe <= 0xFFFFFF ? std::optional(farbe) : std::nullopt;
}

bool Terminal_Dialoge::Schirm_zeigen(const QString & /*Name*/) { return false; }

}  // namespace marklink
