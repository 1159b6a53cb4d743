// What all windows share: the ports as windows, German texts of Qt, icons, the selection of a field on focus.
#pragma once

#include <QIcon>
#include <QObject>
#include <QString>

class QHBoxLayout;
class QPlainTextEdit;
class QWidget;

namespace marklink {

/// Installs dialogs and progress as windows, each where the host has none of its own, and makes German the
/// language of Qt's texts and of the program's default locale; once, if this is a program with windows
/// (QApplication). To be called before any window is made.
void Oberflaeche_einrichten();

/// Takes its own ports away again and gives the default locale back, before the QApplication ends.
void Oberflaeche_abbauen();

/// An icon of the program's own family (icons/<Name>.svg), in the colour of the text, so that it can be read
/// on a dark desktop too. Null when there is none.
QIcon Symbolbild(const QString &Name);

/// A text as a tooltip that shows it letter by letter, line breaks included; empty for an empty text.
QString Hinweistext(const QString &Text);

/// A text that helps, behind the sign for information.
QHBoxLayout *Tipp_bauen(const QString &Text, QWidget *Eltern);

/// A field of several lines that shows a text; it can be selected and copied, by keys as well.
QPlainTextEdit *Lesefeld_bauen(const char16_t *Name);

/// Closes the library's other open windows, not those of the host. One in the middle of a run closes behind
/// it.
void Andere_Fenster_schliessen(const QWidget *Ausser);

/// From now on the focus in a text field below `Fenster` selects the field's whole text.
void Text_markieren(QWidget *Fenster);

}  // namespace marklink
