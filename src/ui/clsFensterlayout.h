// Size and splitters of a window, remembered in the client's layout file beside the layouts of its grids.
//
// The line: width,height,maximised|sizes of the first splitter|sizes of the second ... in pixels.
#pragma once

#include <QList>
#include <QString>

class QSplitter;
class QWidget;

namespace marklink {

/// Before the window is shown. What is damaged, or no longer fits the window, is passed over.
void Fensterlayout_laden(QWidget &Fenster, const QString &Schluessel, const QList<QSplitter *> &Teiler);
void Fensterlayout_speichern(const QWidget &Fenster, const QString &Schluessel,
                             const QList<QSplitter *> &Teiler);

}  // namespace marklink
