// The totals under an order, the way the shop's total modules write them.
#include "Demo_Teile.h"

namespace marklink::demo {

namespace {

constexpr int Versandsteuer = 19;

/// Goods, shipping and fees with what is taken off, for one tax rate.
struct Steuergruppe {
  int Satz;
  Cent Waren = 0, Basis = 0;
};

std::vector<Steuergruppe> Steuergruppen_bilden(const Bestellung &B) {
  std::vector<Steuergruppe> Gruppen_{{19}, {7}};
  for (const Position &P : B.Positionen)
    for (Steuergruppe &G : Gruppen_)
      if (G.Satz == P.Steuersatz) G.Waren += P.Summe();
  return Gruppen_;
}

QString Rot(const QString &Text) {
  return QStringLiteral("<b><font color=\"ff0000\">-") + Text + QStringLiteral("</font></b>");
}

}  // namespace

QString Betrag_schreiben(Cent Wert, const QString &Waehrung) {
  const Cent Betrag = Wert < 0 ? -Wert : Wert;
  QString Ganze = QString::number(Betrag / 100);
  for (qsizetype i = Ganze.size() - 3; i > 0; i -= 3) Ganze.insert(i, QLatin1Char('.'));
  return (Wert < 0 ? QStringLiteral("-") : QString()) + Ganze + QLatin1Char(',') +
         QStringLiteral("%1 ").arg(Betrag % 100, 2, 10, QLatin1Char('0')) + Waehrung;
}

void Summen_bilden(Bestellung &B, const Summenangaben &A) {
  const Kundengruppe &Gruppe = Gruppendaten(A.Gruppe);
  const bool En = B.Englisch;
  const auto Zeile = [&](const char *Klasse, const QString &Titel, Cent Wert, int Sortierung,
                         const QString &Text = {}) {
    B.Summen.push_back({QLatin1String(Klasse), Titel,
                        Text.isEmpty() ? Betrag_schreiben(Wert, B.Waehrung) : Text, Wert, Sortierung});
  };
  const auto Aufschlag = [&](Cent Brutto_Euro) {
    const Feinpreis Netto = teilen_gerundet(Brutto_Euro * 10000, 100 + Versandsteuer);
    return Preis_anzeigen(Netto, A.Steuerfrei ? 0 : Versandsteuer, B.Brutto, B.Kurs);
  };

  Cent Waren = 0;
  for (const Position &P : B.Positionen) Waren += P.Summe();
  const Cent Rabatt = teilen_gerundet(Waren * Gruppe.Gesamtrabatt, 100);
  const Cent Versand = Aufschlag(A.Versand), Nachnahme = Aufschlag(A.Nachnahme);
  Cent Summe = Waren - Rabatt + Versand + Nachnahme - A.Kupon;

  Zeile("ot_subtotal", En ? QStringLiteral("Sub-Total:") : QStringLiteral("Zwischensumme:"), Waren, 10);
  if (Rabatt > 0)
    Zeile("ot_discount",
          QStringLiteral("%1.00 % %2:")
              .arg(Gruppe.Gesamtrabatt)
              .arg(En ? QStringLiteral("discount") : QStringLiteral("Rabatt")),
          -Rabatt, 20, Rot(Betrag_schreiben(Rabatt, B.Waehrung)));
  if (A.Kupon > 0)
    Zeile("ot_coupon", QStringLiteral("Kupon: %1:").arg(A.Kuponcode), A.Kupon, 25,
          Rot(Betrag_schreiben(A.Kupon, B.Waehrung)));
  Zeile("ot_shipping", B.Versandart + QLatin1Char(':'), Versand, 30);
  if (Nachnahme > 0) Zeile("ot_cod_fee", QStringLiteral("Nachnahmegebühr:"), Nachnahme, 35);
  if (!B.Brutto && !A.Steuerfrei) Zeile("ot_subtotal_no_tax", QStringLiteral("Summe exkl. UST:"), Summe, 40);

  if (!A.Steuerfrei) {
    for (Steuergruppe &G : Steuergruppen_bilden(B)) {
      G.Basis = G.Waren - teilen_gerundet(G.Waren * Gruppe.Gesamtrabatt, 100) -
                teilen_gerundet(G.Waren * A.Kupon, Waren);
      if (G.Satz == Versandsteuer) G.Basis += Versand + Nachnahme;
      const Cent Steuer = teilen_gerundet(G.Basis * G.Satz, B.Brutto ? 100 + G.Satz : 100);
      if (Steuer <= 0) continue;
      const QString Wort = B.Brutto ? (En ? QStringLiteral("incl.") : QStringLiteral("inkl."))
                                    : (En ? QStringLiteral("plus") : QStringLiteral("zzgl."));
      Zeile("ot_tax", QStringLiteral("%1 UST %2%:").arg(Wort).arg(G.Satz), Steuer, 50);
      if (!B.Brutto) Summe += Steuer;
    }
  }
  if (A.Guthaben) {
    Zeile("ot_gv", QStringLiteral("Gutschein:"), Summe, 80, Rot(Betrag_schreiben(Summe, B.Waehrung)));
    Summe = 0;
  }
  Zeile("ot_total", En ? QStringLiteral("<b>Total</b>:") : QStringLiteral("<b>Summe</b>:"), Summe, 99,
        QStringLiteral("<b> %1</b>").arg(Betrag_schreiben(Summe, B.Waehrung)));
}

}  // namespace marklink::demo
