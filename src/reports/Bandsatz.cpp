// Laying out and drawing one band.
#include "Bandsatz.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace marklink {
namespace {

using Art = Berichtselement::Art;
using Lage = Berichtselement::Lage;

constexpr qsizetype Stuecklaenge = 4000;  // the layout works at a text's length for each of its lines

QFont Schrift(const Berichtselement &E, double Anteil = 1) {
  QFont schrift;
  schrift.setFamilies(
      {QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")});
  schrift.setPixelSize(std::max(1, int(std::lround(E.Punkt * Twips_je_Punkt * Anteil))));
  schrift.setBold(E.Fett);
  schrift.setHintingPreference(QFont::PreferNoHinting);
  // A hair's breadth that keeps ligatures away: text copied out of a PDF would hold them.
  schrift.setLetterSpacing(QFont::AbsoluteSpacing, 1.0 / 64);
  return schrift;
}

/// The text in one piece: lines end in the layout's own line separator, other control characters are blanks.
QString Satztext(QString Text) {
  Text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  while (!Text.isEmpty() && Text.back().isSpace()) Text.chop(1);
  for (QChar &zeichen : Text) {
    if (zeichen == u'\n' || zeichen == u'\r' || zeichen == QChar::ParagraphSeparator)
      zeichen = QChar::LineSeparator;
    else if (zeichen.category() == QChar::Other_Control)
      zeichen = u' ';
  }
  return Text;
}

/// A number keeps to one line as long as its letters can be read; what is still too long wraps.
QFont Schrift_einpassen(const Berichtselement &E, const QString &Text, double Breite) {
  constexpr double kleinste = 0.6;
  const QFont schrift = Schrift(E);
  if (E.Ausrichtung != Lage::Rechts) return schrift;
  double laenge = 0;
  for (const QString &zeile : Text.left(Stuecklaenge).split(QChar(QChar::LineSeparator)))
    laenge = std::max(laenge, QFontMetricsF(schrift).horizontalAdvance(zeile));
  constexpr double luft = 0.99;  // for the rounding of the letters' size
  return laenge <= Breite ? schrift : Schrift(E, std::max(kleinste, Breite / laenge * luft));
}

QRectF In_Twips(const QRectF &Ort, double Streckung) {
  return {mm(Ort.x()) * Streckung, mm(Ort.y()), mm(Ort.width()) * Streckung, mm(Ort.height())};
}

bool Ist_Text(Art Was) { return Was != Art::Linie && Was != Art::Rahmen && Was != Art::Bild; }

}  // namespace

Bandsatz::Bandsatz(const Band &B, double Streckung, const Elementtext &Text) : Hoehe_(mm(B.Hoehe)) {
  Teile_.reserve(B.Elemente.size());
  for (const Berichtselement &element : B.Elemente) {
    Teil teil{&element, In_Twips(element.Ort, Streckung)};
    const double unten = teil.Ort.bottom();
    // Below what has grown, as far as it stands under it.
    double schub = 0;
    for (const Teil &oben : Teile_) {
      const QRectF vorher = In_Twips(oben.Element->Ort, Streckung);
      const bool darunter = vorher.bottom() <= teil.Ort.top() + 1 && Ist_Text(oben.Element->Was) &&
                            vorher.left() < teil.Ort.right() && teil.Ort.left() < vorher.right();
      if (darunter) schub = std::max(schub, oben.Ort.bottom() - vorher.bottom());
    }
    teil.Ort.translate(0, schub);
    if (Ist_Text(element.Was)) {
      teil.Text = Satztext(Text(element));
      Text_setzen(teil);
    }
    Hoehe_ = std::max(Hoehe_, mm(B.Hoehe) + teil.Ort.bottom() - unten);
    Teile_.push_back(std::move(teil));
  }
}

/// Sets the element's text, which grows downwards.
void Bandsatz::Text_setzen(Teil &T) {
  double unten = T.Ort.top();
  const QFont schrift = Schrift_einpassen(*T.Element, T.Text, T.Ort.width());
  for (qsizetype von = 0; von < T.Text.size();) von = Stueck_setzen(T, schrift, von, unten);
  T.Ort.setBottom(std::max(T.Ort.bottom(), unten));
}

/// The layout gets long texts in pieces. What stands on
/// the last line of a piece begins the next one, which gives the lines of the whole text. Gives where that
/// is.
qsizetype Bandsatz::Stueck_setzen(Teil &T, const QFont &Schrift, qsizetype Von, double &Unten) {
  const bool ende = Von + Stuecklaenge >= T.Text.size();
  const bool zahl = T.Element->Ausrichtung == Lage::Rechts;
  auto stueck = std::make_unique<QTextLayout>(T.Text.mid(Von, Stuecklaenge), Schrift);
  QTextOption form;
  form.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  stueck->setTextOption(form);
  stueck->setCacheEnabled(true);
  stueck->beginLayout();
  for (QTextLine zeile = stueck->createLine(); zeile.isValid(); zeile = stueck->createLine()) {
    zeile.setLineWidth(std::max(1.0, T.Ort.width()));
    zeile.setPosition({0, 0});  // lines keep their places here: the layout's own coordinates end too early
  }
  stueck->endLayout();
  const int alle = stueck->lineCount(), zeilen = ende || alle < 2 ? alle : alle - 1;
  for (int i = 0; i < zeilen; ++i) {
    const QTextLine zeile = stueck->lineAt(i);
    const double frei = T.Ort.width() - zeile.naturalTextWidth();
    const double x = T.Element->Ausrichtung == Lage::Links ? 0 : zahl ? frei : frei / 2;
    const double oben = std::exchange(Unten, Unten + zeile.height());
    T.Zeilen.push_back({zeile, {T.Ort.left() + x, oben}, Unten});
  }
  const qsizetype naechstes = zeilen < alle ? Von + stueck->lineAt(zeilen).textStart() : Von + Stuecklaenge;
  T.Stuecke.push_back(std::move(stueck));
  return naechstes;
}

std::vector<Bandsatz::Textzeile>::const_iterator Bandsatz::Zeile_unter(const Teil &T, double Ort) {
  return std::upper_bound(T.Zeilen.begin(), T.Zeilen.end(), Ort,
                          [](double ort, const Textzeile &zeile) { return ort < zeile.Unten; });
}

double Bandsatz::Schnitt(double Von, double Platz) const {
  const double grenze = Von + Platz;
  if (Hoehe_ <= grenze) return Hoehe_;
  double schnitt = grenze;
  for (bool kuerzer = true; kuerzer;) {
    kuerzer = false;
    for (const Teil &teil : Teile_) {
      const auto zeile = Zeile_unter(teil, schnitt);
      if (zeile == teil.Zeilen.end() || zeile->Ort.y() >= schnitt) continue;
      schnitt = zeile->Ort.y();
      kuerzer = true;
    }
  }
  return schnitt > Von ? schnitt : grenze;
}

void Bandsatz::Zeichnen(QPainter &Maler, const Teil &T) const {
  constexpr double strich = 10;
  switch (T.Element->Was) {
    case Art::Linie:
      Maler.setPen(QPen(Qt::black, strich));
      Maler.drawLine(T.Ort.topLeft(), T.Ort.topRight());
      break;
    case Art::Rahmen:
      Maler.setPen(QPen(Qt::black, strich));
      Maler.setBrush(Qt::NoBrush);
      Maler.drawRect(T.Ort);
      break;
    case Art::Bild: {
      const double seite = std::min(T.Ort.width(), T.Ort.height());
      Maler.save();
      Maler.translate(T.Ort.topLeft());
      Maler.scale(seite, seite);
      for (const Zeichenschritt &schritt : T.Element->Zeichnung) Maler.fillPath(schritt.Pfad, schritt.Farbe);
      Maler.restore();
      break;
    }
    default:
      break;
  }
}

void Bandsatz::Malen(QPainter &Maler, double Von, double Bis) const {
  Maler.save();
  Maler.translate(0, -Von);
  for (const Teil &teil : Teile_)
    if (teil.Ort.top() >= Von && teil.Ort.top() < Bis) Zeichnen(Maler, teil);
  Maler.setPen(Qt::black);
  for (const Teil &teil : Teile_)
    for (auto zeile = Zeile_unter(teil, Von); zeile != teil.Zeilen.end() && zeile->Ort.y() < Bis; ++zeile)
      zeile->Zeile.draw(&Maler, zeile->Ort);
  Maler.restore();
}

QString Bandsatz::Verweis(QPointF Ort) const {
  for (const Teil &teil : Teile_)
    if (teil.Element->Verweis && teil.Ort.contains(Ort)) return teil.Text;
  return {};
}

}  // namespace marklink
