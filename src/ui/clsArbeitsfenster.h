// A window that works by commands: a toolbar with drop-down menus, a context menu, one command at a time. One
// that is closed in the middle of a run ends the run first.
#pragma once

#include <QHash>
#include <QMainWindow>
#include <functional>
#include <span>

class QAction;
class QMenu;

namespace marklink {

/// A command of toolbar or menu.
struct Fensterbefehl {
  const char *Schluessel;  ///< also the object's name; none in a menu: a separating line
  const char16_t *Text;
  const char *Symbol;              ///< of Symbolbild()
  const char *Unter = nullptr;     ///< the toolbar button whose drop-down menu it stands in
  const char16_t *Wort = nullptr;  ///< the short word on the toolbar's button; none: the key
};

class clsArbeitsfenster : public QMainWindow {
  Q_OBJECT
 public:
  using QMainWindow::QMainWindow;

  /// Shows the window modally and returns when it is closed.
  void Modal_zeigen();
  void Nach_vorn();

 Q_SIGNALS:
  void Geschlossen();

 protected:
  /// A toolbar button or menu entry was chosen.
  virtual void Befehl(const QString &Schluessel) = 0;
  /// Runs once, as a command, when the window has become active, or half a second after it was shown.
  virtual void Erste_Aktivierung() = 0;
  /// Takes over an edit that is still open. False: it is not complete, and nothing else may happen.
  virtual bool Bearbeitung_abschliessen() { return true; }
  /// The window is to close; no run is under way, no edit open. False: it stays.
  virtual bool Beenden() = 0;
  /// The icons were drawn anew for another palette.
  virtual void Symbole_gezeichnet() {}

  /// tbAllgemein, in that order.
  void Leiste_bauen(std::span<const Fensterbefehl> Befehle);
  void Menue_bauen(QMenu &Menue, std::span<const Fensterbefehl> Befehle);
  /// Draws the icons of all commands; once at the end of the construction, then by itself.
  void Symbole_zeichnen();

  /// Runs a command when none is under way; an edit is taken over first. False: refused.
  bool Ausfuehren(const std::function<void()> &Tun);

  void showEvent(QShowEvent *Ereignis) override;
  void closeEvent(QCloseEvent *Ereignis) override;
  void changeEvent(QEvent *Ereignis) override;
  bool eventFilter(QObject *Objekt, QEvent *Ereignis) override;

 private:
  QAction *Aktion(const Fensterbefehl &Befehl);
  void Aktivieren();

  bool Aktiviert_ = false;   ///< the first activation is over
  bool Laeuft_ = false;      ///< a command runs, or the window is about to close
  bool Schliessen_ = false;  ///< the window was closed in the middle of a run of its own
  QHash<QAction *, QString> Symbole_;
};

/// Shows the window of that class modally; one that is open comes to the front.
template <typename Fenster>
void Arbeitsfenster_zeigen() {
  static Fenster *offen = nullptr;
  if (offen != nullptr) {
    offen->Nach_vorn();
    return;
  }
  Fenster fenster;
  offen = &fenster;
  fenster.Modal_zeigen();
  offen = nullptr;
}

}  // namespace marklink
