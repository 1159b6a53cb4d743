// What a picture of a window needs: light and dark desktop, a frame with the window's title, a small file.
#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace marklink::demo {

/// All windows from now on.
void Desktop_setzen(bool Dunkel);

/// The window with a title bar of our own: offscreen nobody draws one.
QImage Mit_Rahmen(QWidget &Fenster);

/// A PNG of at most 256 colours. False when it could not be written.
bool Klein_speichern(const QImage &Bild, const QString &Datei);

/// The picture of an article: an enamel mug, as the demo shop sells it.
QImage Becher_zeichnen();

}  // namespace marklink::demo
