// A help page: compiled in from docs/hilfe, shown in the desktop's own colours.
#pragma once

#include <QTextBrowser>
#include <QTimer>

namespace marklink {

/// On a dark desktop a picture is replaced by the one of the same name with "_dunkel". Pictures are never
/// wider than the window. Nothing outside of the help can be opened.
class clsHilfetext : public QTextBrowser {
  Q_OBJECT
 public:
  explicit clsHilfetext(QWidget *Eltern = nullptr);

  /// A file of docs/hilfe, "#" and a place on it if wanted.
  void Seite_zeigen(const QString &Seite);
  /// Selects the next place from the selection on, around the end of the page. `Gleiche_Stelle`: one that
  /// starts where the selection does counts as well. False, and nothing is selected, when there is none.
  bool Suchen(const QString &Text, bool Rueckwaerts, bool Gleiche_Stelle);

 protected:
  QVariant loadResource(int Art, const QUrl &Name) override;
  void changeEvent(QEvent *Ereignis) override;
  void resizeEvent(QResizeEvent *Ereignis) override;

 private:
  bool Dunkel() const;
  QString Stil() const;
  void Einrichten();
  QVariant Bild_laden(const QString &Pfad);
  void Neu_laden();

  QTimer Neu_;          ///< fires when the window has its new size
  int Bildbreite_ = 0;  ///< room for pictures when the page was loaded
};

}  // namespace marklink
