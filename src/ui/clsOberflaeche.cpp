// What all windows share.
#include "clsOberflaeche.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QSet>
#include <QStyle>
#include <QSvgRenderer>
#include <QTimer>
#include <QTranslator>

#include "Hilfe.h"
#include "clsDialoge.h"
#include "frmHilfe.h"
#include "frmProgress.h"

// The icons lie in a static library: nothing else would pull them in. Outside of any namespace, as it must
// be.
static void Symbole_einbinden() { Q_INIT_RESOURCE(marklink_icons); }

namespace marklink {
namespace {

struct Anschluesse {
  QLocale Sprache_vorher;
  clsDialoge Dialoge_;
  Fenster_Fortschritt Fortschritt_;
  QTranslator Deutsch;
};
std::unique_ptr<Anschluesse> Eingerichtet;

QLocale Deutschland() { return {QLocale::German, QLocale::Germany}; }

class Feldmarkierer : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject *Objekt, QEvent *Ereignis) override {
    auto *feld = qobject_cast<QLineEdit *>(Objekt);
    // Behind the event: the click that gave the focus would clear the selection again.
    if (feld != nullptr && Ereignis->type() == QEvent::FocusIn &&
        !(Nur_kurz_weg(*Ereignis) && feld == Verlassen_))
      QTimer::singleShot(0, feld, &QLineEdit::selectAll);
    if (Ereignis->type() == QEvent::FocusOut) Verlassen_ = Nur_kurz_weg(*Ereignis) ? feld : nullptr;
    return QObject::eventFilter(Objekt, Ereignis);
  }

 private:
  /// To a menu or another window: the text is to be as it was left.
  static bool Nur_kurz_weg(const QEvent &Ereignis) {
    const Qt::FocusReason grund = static_cast<const QFocusEvent &>(Ereignis).reason();
    return grund == Qt::PopupFocusReason || grund == Qt::ActiveWindowFocusReason;
  }
  const QLineEdit *Verlassen_ = nullptr;  ///< never followed, only compared
};

QPixmap Bild_zeichnen(QSvgRenderer &Svg, int Groesse, const QColor &Farbe) {
  QPixmap bild(Groesse, Groesse);
  bild.fill(Qt::transparent);
  QPainter maler(&bild);
  Svg.render(&maler);
  maler.setCompositionMode(QPainter::CompositionMode_SourceIn);
  maler.fillRect(bild.rect(), Farbe);
  return bild;
}

}  // namespace

void Oberflaeche_einrichten() {
  if (Eingerichtet || qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) return;
  Symbole_einbinden();
  Eingerichtet = std::make_unique<Anschluesse>();
  if (Eingerichtet->Deutsch.load(QStringLiteral("qtbase_de"),
                                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&Eingerichtet->Deutsch);
  QLocale::setDefault(Deutschland());
  if (!Dialoge_gesetzt()) Dialoge_setzen(&Eingerichtet->Dialoge_);
  if (!Fortschritt_gesetzt()) Fortschritt_setzen(&Eingerichtet->Fortschritt_);
  Hilfe_setzen(&frmHilfe::Zeigen);
}

void Oberflaeche_abbauen() {
  if (!Eingerichtet) return;
  // What the host has put in their place meanwhile is its own.
  if (&dialoge() == &Eingerichtet->Dialoge_) Dialoge_setzen(nullptr);
  if (&fortschritt() == &Eingerichtet->Fortschritt_) Fortschritt_setzen(nullptr);
  if (QLocale() == Deutschland()) QLocale::setDefault(Eingerichtet->Sprache_vorher);
  Hilfe_setzen(nullptr);
  frmHilfe::Abbauen();
  Eingerichtet.reset();
}

QIcon Symbolbild(const QString &Name) {
  QSvgRenderer svg(QStringLiteral(":/marklink/icons/%1.svg").arg(Name));
  if (!svg.isValid()) return {};
  const QPalette palette = QApplication::palette();
  QIcon bild;
  for (const int groesse : {16, 24, 32, 48}) {
    bild.addPixmap(Bild_zeichnen(svg, groesse, palette.color(QPalette::Active, QPalette::ButtonText)));
    bild.addPixmap(Bild_zeichnen(svg, groesse, palette.color(QPalette::Disabled, QPalette::ButtonText)),
                   QIcon::Disabled);
  }
  return bild;
}

QString Hinweistext(const QString &Text) {
  if (Text.isEmpty()) return {};
  return QStringLiteral("<p style='white-space:pre-wrap'>%1</p>").arg(Text.toHtmlEscaped());
}

QHBoxLayout *Tipp_bauen(const QString &Text, QWidget *Eltern) {
  auto *zeile = new QHBoxLayout;
  auto *bild = new QLabel(Eltern);
  const int groesse = bild->fontMetrics().height();
  bild->setPixmap(bild->style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(groesse));
  auto *text = new QLabel(Text, Eltern);
  text->setWordWrap(true);
  zeile->addWidget(bild, 0, Qt::AlignTop);
  zeile->addWidget(text, 1);
  return zeile;
}

QPlainTextEdit *Lesefeld_bauen(const char16_t *Name) {
  auto *feld = new QPlainTextEdit;
  feld->setObjectName(QString::fromUtf16(Name));
  feld->setReadOnly(true);
  feld->setTabChangesFocus(true);
  feld->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return feld;
}

void Andere_Fenster_schliessen(const QWidget *Ausser) {
  QSet<const QWidget *> gefragt{Ausser};  // one may refuse
  const auto naechstes = [&gefragt]() -> QWidget * {
    for (QWidget *fenster : QApplication::topLevelWidgets())
      if (!gefragt.contains(fenster) && fenster->isVisible() &&
          QByteArrayView(fenster->metaObject()->className()).startsWith("marklink::frm"))
        return fenster;
    return nullptr;
  };
  // Looked for anew each time: closing one may close others.
  while (QWidget *fenster = naechstes()) {
    gefragt.insert(fenster);
    fenster->close();
  }
}

void Text_markieren(QWidget *Fenster) {
  auto *markierer = new Feldmarkierer(Fenster);
  for (QLineEdit *feld : Fenster->findChildren<QLineEdit *>()) feld->installEventFilter(markierer);
}

}  // namespace marklink
