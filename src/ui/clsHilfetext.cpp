// A help page.
#include "clsHilfetext.h"

#include <QEvent>
#include <QFile>
#include <QPixmap>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>

namespace marklink {
namespace {

const QUrl Ort(QStringLiteral("qrc:/marklink/hilfe/"));
constexpr int Rand = 12;        // pixels around the text
constexpr int Warten_ms = 120;  // a window is drawn larger in many small steps
constexpr int Bildbreite_mindestens = 100;
constexpr int Abstand = 90;  // least difference in brightness that can be read

/// The desktop's link colour is not always made for a dark ground.
QColor Verweisfarbe(const QPalette &P) {
  const QColor farbe = P.color(QPalette::Link), grund = P.color(QPalette::Base);
  if (std::abs(qGray(farbe.rgb()) - qGray(grund.rgb())) >= Abstand) return farbe;
  return P.color(QPalette::Highlight).lighter(150);
}

/// Between ground and text, as a dark desktop's own colours for lines are hard to see.
QColor Linienfarbe(const QPalette &P) {
  const QColor text = P.color(QPalette::Text), grund = P.color(QPalette::Base);
  const auto mischen = [](int A, int B) { return (A + 3 * B) / 4; };
  return {mischen(text.red(), grund.red()), mischen(text.green(), grund.green()),
          mischen(text.blue(), grund.blue())};
}

}  // namespace

clsHilfetext::clsHilfetext(QWidget *Eltern) : QTextBrowser(Eltern) {
  setOpenExternalLinks(false);
  document()->setDocumentMargin(Rand);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // the room for pictures must not depend on their height
  // What the search found has to be seen while the focus is in the search field.
  QPalette farben;
  for (const auto rolle : {QPalette::Highlight, QPalette::HighlightedText})
    farben.setColor(QPalette::Inactive, rolle, farben.color(QPalette::Active, rolle));
  setPalette(farben);
  Neu_.setSingleShot(true);
  connect(&Neu_, &QTimer::timeout, this, &clsHilfetext::Neu_laden);
}

void clsHilfetext::Seite_zeigen(const QString &Seite) {
  Einrichten();
  setSource(Ort.resolved(QUrl(Seite)));
}

void clsHilfetext::Einrichten() {
  document()->setDefaultStyleSheet(Stil());
  Bildbreite_ = viewport()->width() - 2 * Rand;
}

bool clsHilfetext::Suchen(const QString &Text, bool Rueckwaerts, bool Gleiche_Stelle) {
  QTextCursor stelle = textCursor();
  if (Gleiche_Stelle) stelle.setPosition(stelle.selectionStart());
  const auto wie = Rueckwaerts ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  QTextCursor fund = document()->find(Text, stelle, wie);
  if (fund.isNull()) {
    QTextCursor anfang(document());
    if (Rueckwaerts) anfang.movePosition(QTextCursor::End);
    fund = document()->find(Text, anfang, wie);
  }
  if (fund.isNull()) stelle.clearSelection();
  setTextCursor(fund.isNull() ? stelle : fund);
  return !fund.isNull();
}

bool clsHilfetext::Dunkel() const {
  return qGray(palette().color(QPalette::Base).rgb()) < qGray(palette().color(QPalette::Text).rgb());
}

QString clsHilfetext::Stil() const {
  const QPalette farben = palette();
  return QStringLiteral(
             "a{color:%1} h1{font-size:20pt;margin-top:4px} h2{font-size:14pt;margin-top:22px}"
             "h3{font-size:11pt;margin-top:16px} p,li{line-height:125%} p.bild{line-height:100%} "
             "code,kbd{font-family:monospace}"
             "kbd{background-color:%2} table{border-collapse:collapse;margin-top:6px;margin-bottom:10px}"
             "th,td{border:1px solid %3;padding:4px 8px} th{background-color:%2;text-align:left}")
      .arg(Verweisfarbe(farben).name(), farben.color(QPalette::AlternateBase).name(),
           Linienfarbe(farben).name());
}

QVariant clsHilfetext::Bild_laden(const QString &Pfad) {
  const QString dunkel = QString(Pfad).replace(QLatin1String(".png"), QLatin1String("_dunkel.png"));
  QPixmap bild(Dunkel() && QFile::exists(dunkel) ? dunkel : Pfad);
  const double schaerfe = devicePixelRatioF();
  const int breite = int(std::min(bild.width(), std::max(Bildbreite_, Bildbreite_mindestens)) * schaerfe);
  if (!bild.isNull() && breite != bild.width()) bild = bild.scaledToWidth(breite, Qt::SmoothTransformation);
  bild.setDevicePixelRatio(schaerfe);
  return bild;
}

QVariant clsHilfetext::loadResource(int Art, const QUrl &Name) {
  const QUrl ganz = Ort.resolved(Name);
  if (ganz.scheme() != Ort.scheme() || !ganz.path().startsWith(Ort.path())) return {};
  const QString pfad = QLatin1Char(':') + ganz.path();
  if (Art == QTextDocument::StyleSheetResource) return {};  // the pages' own one is for browsers
  if (Art == QTextDocument::ImageResource) return Bild_laden(pfad);
  QFile datei(pfad);
  if (!datei.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(datei.readAll());
}

/// The page again at the same place: its pictures and colours are made when it is loaded.
void clsHilfetext::Neu_laden() {
  const int stelle = verticalScrollBar()->value();
  Einrichten();
  reload();
  verticalScrollBar()->setValue(stelle);
}

void clsHilfetext::changeEvent(QEvent *Ereignis) {
  QTextBrowser::changeEvent(Ereignis);
  if (Ereignis->type() == QEvent::PaletteChange && !source().isEmpty()) Neu_.start(0);
}

void clsHilfetext::resizeEvent(QResizeEvent *Ereignis) {
  QTextBrowser::resizeEvent(Ereignis);
  if (!source().isEmpty() && viewport()->width() - 2 * Rand != Bildbreite_) Neu_.start(Warten_ms);
}

}  // namespace marklink
